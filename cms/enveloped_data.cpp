// EnvelopedData and OriginatorInfo (RFC 5652, 6.1).

#include "core/descriptors.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// OriginatorInfo ::= SEQUENCE {
//     certs  [0] IMPLICIT CertificateSet OPTIONAL,
//     crls   [1] IMPLICIT RevocationInfoChoices OPTIONAL }
namespace originator {
enum Slot : uint8_t { certificates, crls };
constexpr Component components[] = {
    optional("certs", KOVRA_ASN1_TYPE_CERTIFICATE_SET, implicit_tag(0)),
    optional("crls", KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICES, implicit_tag(1)),
};
static_assert(is_sound(components));
} // namespace originator

// EnvelopedData ::= SEQUENCE {
//     version               INTEGER,
//     originatorInfo        [0] IMPLICIT OriginatorInfo OPTIONAL,
//     recipientInfos        RecipientInfos,
//     encryptedContentInfo  EncryptedContentInfo,
//     unprotectedAttrs      [1] IMPLICIT SET OF Attribute OPTIONAL }
namespace enveloped {
enum Slot : uint8_t { version, originator, recipients, content, attributes };
constexpr Component components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    optional("originatorInfo", KOVRA_ASN1_TYPE_ORIGINATOR_INFO, implicit_tag(0)),
    required("recipientInfos", KOVRA_ASN1_TYPE_RECIPIENT_INFOS),
    required("encryptedContentInfo", KOVRA_ASN1_TYPE_ENCRYPTED_CONTENT_INFO),
    optional("unprotectedAttrs", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(1)),
};
static_assert(is_sound(components));
} // namespace enveloped

} // namespace

constexpr Structure originator_info = structure(source, originator::components);
constexpr Structure enveloped_data = structure(source, enveloped::components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmsenvelopeddata_new(const kovra_asn1_value *version,
                                             const kovra_asn1_value *originator_info_value,
                                             const kovra_asn1_value *recipient_infos_list,
                                             const kovra_asn1_value *encrypted_content_info_value,
                                             const kovra_asn1_value *unprotected_attrs) noexcept {
    return construct(enveloped_data, version, originator_info_value, recipient_infos_list, encrypted_content_info_value,
                     unprotected_attrs);
}

kovra_asn1_value *kovra_cmsenvelopeddata_getversion(const kovra_asn1_value *obj) noexcept {
    return component(enveloped_data, obj, enveloped::version);
}

kovra_asn1_value *kovra_cmsenvelopeddata_getoriginator(const kovra_asn1_value *obj) noexcept {
    return component(enveloped_data, obj, enveloped::originator);
}

int32_t kovra_cmsenvelopeddata_hasoriginator(const kovra_asn1_value *obj) noexcept {
    return component(enveloped_data, obj, enveloped::originator) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_cmsenvelopeddata_getrecipinfos(const kovra_asn1_value *obj) noexcept {
    return component(enveloped_data, obj, enveloped::recipients);
}

kovra_asn1_value *kovra_cmsenvelopeddata_getencinfo(const kovra_asn1_value *obj) noexcept {
    return component(enveloped_data, obj, enveloped::content);
}

kovra_asn1_value *kovra_cmsenvelopeddata_getattrs(const kovra_asn1_value *obj) noexcept {
    return component(enveloped_data, obj, enveloped::attributes);
}

int32_t kovra_cmsenvelopeddata_hasattrs(const kovra_asn1_value *obj) noexcept {
    return component(enveloped_data, obj, enveloped::attributes) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_cmsoriginatorinfo_new(const kovra_asn1_value *certificates,
                                              const kovra_asn1_value *crls) noexcept {
    return construct(originator_info, certificates, crls);
}

kovra_asn1_value *kovra_cmsoriginatorinfo_getcerts(const kovra_asn1_value *obj) noexcept {
    return component(originator_info, obj, originator::certificates);
}

int32_t kovra_cmsoriginatorinfo_hascerts(const kovra_asn1_value *obj) noexcept {
    return component(originator_info, obj, originator::certificates) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_cmsoriginatorinfo_getcrls(const kovra_asn1_value *obj) noexcept {
    return component(originator_info, obj, originator::crls);
}

int32_t kovra_cmsoriginatorinfo_hascrls(const kovra_asn1_value *obj) noexcept {
    return component(originator_info, obj, originator::crls) != nullptr ? 1 : 0;
}
