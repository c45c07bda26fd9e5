// EncryptedContentInfo and EncryptedData (RFC 5652, 6.1, 8).

#include "core/descriptors.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// EncryptedContentInfo ::= SEQUENCE {
//     contentType                 OBJECT IDENTIFIER,
//     contentEncryptionAlgorithm  AlgorithmIdentifier,
//     encryptedContent            [0] IMPLICIT OCTET STRING OPTIONAL }
namespace encrypted_content {
enum Slot : uint8_t { content_type, algorithm, content };
constexpr Component components[] = {
    required("contentType", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("contentEncryptionAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    optional("encryptedContent", KOVRA_ASN1_TYPE_OCTET_STRING, implicit_tag(0)),
};
static_assert(is_sound(components));
} // namespace encrypted_content

// EncryptedData ::= SEQUENCE {
//     version               INTEGER,
//     encryptedContentInfo  EncryptedContentInfo,
//     unprotectedAttrs      [1] IMPLICIT SET OF Attribute OPTIONAL }
namespace encrypted {
enum Slot : uint8_t { version, content, attributes };
constexpr Component components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("encryptedContentInfo", KOVRA_ASN1_TYPE_ENCRYPTED_CONTENT_INFO),
    optional("unprotectedAttrs", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(1)),
};
static_assert(is_sound(components));
} // namespace encrypted

} // namespace

constexpr Structure encrypted_content_info = structure(source, encrypted_content::components);
constexpr Structure encrypted_data = structure(source, encrypted::components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmsencryptedcontentinfo_new(const kovra_asn1_value *content_type,
                                                    const kovra_asn1_value *algorithm,
                                                    const kovra_asn1_value *encrypted_content) noexcept {
    return construct(encrypted_content_info, content_type, algorithm, encrypted_content);
}

kovra_asn1_value *kovra_cmsencryptedcontentinfo_gettype(const kovra_asn1_value *obj) noexcept {
    return component(encrypted_content_info, obj, encrypted_content::content_type);
}

kovra_asn1_value *kovra_cmsencryptedcontentinfo_getalgo(const kovra_asn1_value *obj) noexcept {
    return component(encrypted_content_info, obj, encrypted_content::algorithm);
}

kovra_asn1_value *kovra_cmsencryptedcontentinfo_getenccontent(const kovra_asn1_value *obj) noexcept {
    return component(encrypted_content_info, obj, encrypted_content::content);
}

int32_t kovra_cmsencryptedcontentinfo_hasenccontent(const kovra_asn1_value *obj) noexcept {
    return component(encrypted_content_info, obj, encrypted_content::content) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_cmsencrypteddata_new(const kovra_asn1_value *version,
                                             const kovra_asn1_value *encrypted_content_info_value,
                                             const kovra_asn1_value *unprotected_attrs) noexcept {
    return construct(encrypted_data, version, encrypted_content_info_value, unprotected_attrs);
}

kovra_asn1_value *kovra_cmsencrypteddata_getversion(const kovra_asn1_value *obj) noexcept {
    return component(encrypted_data, obj, encrypted::version);
}

kovra_asn1_value *kovra_cmsencrypteddata_getencinfo(const kovra_asn1_value *obj) noexcept {
    return component(encrypted_data, obj, encrypted::content);
}

kovra_asn1_value *kovra_cmsencrypteddata_getattrs(const kovra_asn1_value *obj) noexcept {
    return component(encrypted_data, obj, encrypted::attributes);
}

int32_t kovra_cmsencrypteddata_hasattrs(const kovra_asn1_value *obj) noexcept {
    return component(encrypted_data, obj, encrypted::attributes) != nullptr ? 1 : 0;
}
