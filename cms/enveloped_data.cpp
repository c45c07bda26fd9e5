// EnvelopedData and OriginatorInfo (RFC 5652, 6.1).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// OriginatorInfo ::= SEQUENCE {
//     certs  [0] IMPLICIT CertificateSet OPTIONAL,
//     crls   [1] IMPLICIT RevocationInfoChoices OPTIONAL }
constexpr Component originator_components[] = {
    optional("certs", KOVRA_ASN1_TYPE_CERTIFICATE_SET, implicit_tag(0)),
    optional("crls", KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICES, implicit_tag(1)),
};

// EnvelopedData ::= SEQUENCE {
//     version               INTEGER,
//     originatorInfo        [0] IMPLICIT OriginatorInfo OPTIONAL,
//     recipientInfos        RecipientInfos,
//     encryptedContentInfo  EncryptedContentInfo,
//     unprotectedAttrs      [1] IMPLICIT SET OF Attribute OPTIONAL }
constexpr Component enveloped_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    optional("originatorInfo", KOVRA_ASN1_TYPE_ORIGINATOR_INFO, implicit_tag(0)),
    required("recipientInfos", KOVRA_ASN1_TYPE_RECIPIENT_INFOS),
    required("encryptedContentInfo", KOVRA_ASN1_TYPE_ENCRYPTED_CONTENT_INFO),
    optional("unprotectedAttrs", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(1)),
};

} // namespace

constexpr StructureShape originator_info = structure(source, originator_components);
constexpr StructureShape enveloped_data = structure(source, enveloped_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmsenvelopeddata_new(const kovra_asn1_value *version,
                                             const kovra_asn1_value *originator_info_value,
                                             const kovra_asn1_value *recipient_infos_list,
                                             const kovra_asn1_value *encrypted_content_info_value,
                                             const kovra_asn1_value *unprotected_attrs) noexcept {
    return construct<enveloped_data>(version, originator_info_value, recipient_infos_list, encrypted_content_info_value,
                                     unprotected_attrs);
}

kovra_asn1_value *kovra_cmsenvelopeddata_getversion(const kovra_asn1_value *obj) noexcept {
    return part<enveloped_data, "version">(obj);
}

kovra_asn1_value *kovra_cmsenvelopeddata_getoriginator(const kovra_asn1_value *obj) noexcept {
    return part<enveloped_data, "originatorInfo">(obj);
}

int32_t kovra_cmsenvelopeddata_hasoriginator(const kovra_asn1_value *obj) noexcept {
    return has_part<enveloped_data, "originatorInfo">(obj);
}

kovra_asn1_value *kovra_cmsenvelopeddata_getrecipinfos(const kovra_asn1_value *obj) noexcept {
    return part<enveloped_data, "recipientInfos">(obj);
}

kovra_asn1_value *kovra_cmsenvelopeddata_getencinfo(const kovra_asn1_value *obj) noexcept {
    return part<enveloped_data, "encryptedContentInfo">(obj);
}

kovra_asn1_value *kovra_cmsenvelopeddata_getattrs(const kovra_asn1_value *obj) noexcept {
    return part<enveloped_data, "unprotectedAttrs">(obj);
}

int32_t kovra_cmsenvelopeddata_hasattrs(const kovra_asn1_value *obj) noexcept {
    return has_part<enveloped_data, "unprotectedAttrs">(obj);
}

kovra_asn1_value *kovra_cmsoriginatorinfo_new(const kovra_asn1_value *certificates,
                                              const kovra_asn1_value *crls) noexcept {
    return construct<originator_info>(certificates, crls);
}

kovra_asn1_value *kovra_cmsoriginatorinfo_getcerts(const kovra_asn1_value *obj) noexcept {
    return part<originator_info, "certs">(obj);
}

int32_t kovra_cmsoriginatorinfo_hascerts(const kovra_asn1_value *obj) noexcept {
    return has_part<originator_info, "certs">(obj);
}

kovra_asn1_value *kovra_cmsoriginatorinfo_getcrls(const kovra_asn1_value *obj) noexcept {
    return part<originator_info, "crls">(obj);
}

int32_t kovra_cmsoriginatorinfo_hascrls(const kovra_asn1_value *obj) noexcept {
    return has_part<originator_info, "crls">(obj);
}
