// AuthenticatedData (RFC 5652, 9.1).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// AuthenticatedData ::= SEQUENCE {
//     version           INTEGER,
//     originatorInfo    [0] IMPLICIT OriginatorInfo OPTIONAL,
//     recipientInfos    RecipientInfos,
//     macAlgorithm      AlgorithmIdentifier,
//     digestAlgorithm   [1] IMPLICIT AlgorithmIdentifier OPTIONAL,
//     encapContentInfo  EncapsulatedContentInfo,
//     authAttrs         [2] IMPLICIT SET OF Attribute OPTIONAL,
//     mac               OCTET STRING,
//     unauthAttrs       [3] IMPLICIT SET OF Attribute OPTIONAL }
constexpr Component authenticated_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    optional("originatorInfo", KOVRA_ASN1_TYPE_ORIGINATOR_INFO, implicit_tag(0)),
    required("recipientInfos", KOVRA_ASN1_TYPE_RECIPIENT_INFOS),
    required("macAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    optional("digestAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, implicit_tag(1)),
    required("encapContentInfo", KOVRA_ASN1_TYPE_ENCAPSULATED_CONTENT_INFO),
    optional("authAttrs", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(2)),
    required("mac", KOVRA_ASN1_TYPE_OCTET_STRING),
    optional("unauthAttrs", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(3)),
};

} // namespace

constexpr StructureShape authenticated_data = structure(source, authenticated_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmsauthdata_new(const kovra_asn1_value *version, const kovra_asn1_value *originator_info_value,
                                        const kovra_asn1_value *recipient_infos_list,
                                        const kovra_asn1_value *mac_algorithm, const kovra_asn1_value *digest_algorithm,
                                        const kovra_asn1_value *encap_content_info, const kovra_asn1_value *auth_attrs,
                                        const kovra_asn1_value *mac, const kovra_asn1_value *unauth_attrs) noexcept {
    return construct<authenticated_data>(version, originator_info_value, recipient_infos_list, mac_algorithm,
                                         digest_algorithm, encap_content_info, auth_attrs, mac, unauth_attrs);
}

kovra_asn1_value *kovra_cmsauthdata_getversion(const kovra_asn1_value *obj) noexcept {
    return part<authenticated_data, "version">(obj);
}

kovra_asn1_value *kovra_cmsauthdata_getoriginator(const kovra_asn1_value *obj) noexcept {
    return part<authenticated_data, "originatorInfo">(obj);
}

int32_t kovra_cmsauthdata_hasoriginator(const kovra_asn1_value *obj) noexcept {
    return has_part<authenticated_data, "originatorInfo">(obj);
}

kovra_asn1_value *kovra_cmsauthdata_getrecipinfos(const kovra_asn1_value *obj) noexcept {
    return part<authenticated_data, "recipientInfos">(obj);
}

kovra_asn1_value *kovra_cmsauthdata_getmacalgo(const kovra_asn1_value *obj) noexcept {
    return part<authenticated_data, "macAlgorithm">(obj);
}

kovra_asn1_value *kovra_cmsauthdata_gethashalgo(const kovra_asn1_value *obj) noexcept {
    return part<authenticated_data, "digestAlgorithm">(obj);
}

int32_t kovra_cmsauthdata_hashashalgo(const kovra_asn1_value *obj) noexcept {
    return has_part<authenticated_data, "digestAlgorithm">(obj);
}

kovra_asn1_value *kovra_cmsauthdata_getencapinfo(const kovra_asn1_value *obj) noexcept {
    return part<authenticated_data, "encapContentInfo">(obj);
}

kovra_asn1_value *kovra_cmsauthdata_getauthatrrs(const kovra_asn1_value *obj) noexcept {
    return part<authenticated_data, "authAttrs">(obj);
}

int32_t kovra_cmsauthdata_hasauthatrrs(const kovra_asn1_value *obj) noexcept {
    return has_part<authenticated_data, "authAttrs">(obj);
}

kovra_asn1_value *kovra_cmsauthdata_getmac(const kovra_asn1_value *obj) noexcept {
    return part<authenticated_data, "mac">(obj);
}

kovra_asn1_value *kovra_cmsauthdata_getunauthatrrs(const kovra_asn1_value *obj) noexcept {
    return part<authenticated_data, "unauthAttrs">(obj);
}

int32_t kovra_cmsauthdata_hasunauthatrrs(const kovra_asn1_value *obj) noexcept {
    return has_part<authenticated_data, "unauthAttrs">(obj);
}
