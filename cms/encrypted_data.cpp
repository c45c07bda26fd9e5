// EncryptedContentInfo and EncryptedData (RFC 5652, 6.1, 8).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// EncryptedContentInfo ::= SEQUENCE {
//     contentType                 OBJECT IDENTIFIER,
//     contentEncryptionAlgorithm  AlgorithmIdentifier,
//     encryptedContent            [0] IMPLICIT OCTET STRING OPTIONAL }
constexpr Component encrypted_content_components[] = {
    required("contentType", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("contentEncryptionAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    optional("encryptedContent", KOVRA_ASN1_TYPE_OCTET_STRING, implicit_tag(0)),
};

// EncryptedData ::= SEQUENCE {
//     version               INTEGER,
//     encryptedContentInfo  EncryptedContentInfo,
//     unprotectedAttrs      [1] IMPLICIT SET OF Attribute OPTIONAL }
constexpr Component encrypted_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("encryptedContentInfo", KOVRA_ASN1_TYPE_ENCRYPTED_CONTENT_INFO),
    optional("unprotectedAttrs", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(1)),
};

} // namespace

constexpr StructureShape encrypted_content_info = structure(source, encrypted_content_components);
constexpr StructureShape encrypted_data = structure(source, encrypted_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmsencryptedcontentinfo_new(const kovra_asn1_value *content_type,
                                                    const kovra_asn1_value *algorithm,
                                                    const kovra_asn1_value *encrypted_content) noexcept {
    return construct<encrypted_content_info>(content_type, algorithm, encrypted_content);
}

kovra_asn1_value *kovra_cmsencryptedcontentinfo_gettype(const kovra_asn1_value *obj) noexcept {
    return part<encrypted_content_info, "contentType">(obj);
}

kovra_asn1_value *kovra_cmsencryptedcontentinfo_getalgo(const kovra_asn1_value *obj) noexcept {
    return part<encrypted_content_info, "contentEncryptionAlgorithm">(obj);
}

kovra_asn1_value *kovra_cmsencryptedcontentinfo_getenccontent(const kovra_asn1_value *obj) noexcept {
    return part<encrypted_content_info, "encryptedContent">(obj);
}

int32_t kovra_cmsencryptedcontentinfo_hasenccontent(const kovra_asn1_value *obj) noexcept {
    return has_part<encrypted_content_info, "encryptedContent">(obj);
}

kovra_asn1_value *kovra_cmsencrypteddata_new(const kovra_asn1_value *version,
                                             const kovra_asn1_value *encrypted_content_info_value,
                                             const kovra_asn1_value *unprotected_attrs) noexcept {
    return construct<encrypted_data>(version, encrypted_content_info_value, unprotected_attrs);
}

kovra_asn1_value *kovra_cmsencrypteddata_getversion(const kovra_asn1_value *obj) noexcept {
    return part<encrypted_data, "version">(obj);
}

kovra_asn1_value *kovra_cmsencrypteddata_getencinfo(const kovra_asn1_value *obj) noexcept {
    return part<encrypted_data, "encryptedContentInfo">(obj);
}

kovra_asn1_value *kovra_cmsencrypteddata_getattrs(const kovra_asn1_value *obj) noexcept {
    return part<encrypted_data, "unprotectedAttrs">(obj);
}

int32_t kovra_cmsencrypteddata_hasattrs(const kovra_asn1_value *obj) noexcept {
    return has_part<encrypted_data, "unprotectedAttrs">(obj);
}
