// ContentInfo (RFC 5652, 3; PKCS #7, RFC 2315): any content under the name of its type.

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_pkcs7.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS7";

// ContentInfo ::= SEQUENCE {
//     contentType  OBJECT IDENTIFIER,
//     content      [0] EXPLICIT ANY DEFINED BY contentType OPTIONAL }
constexpr Component info_components[] = {
    required("contentType", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    optional("content", KOVRA_ASN1_TYPE_ANY, explicit_tag(0)),
};

} // namespace

constexpr StructureShape content_info = structure(source, info_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs7contentinfo_new(const kovra_asn1_value *content_type,
                                             const kovra_asn1_value *content) noexcept {
    return construct<content_info>(content_type, content);
}

kovra_asn1_value *kovra_pkcs7contentinfo_getcontenttype(const kovra_asn1_value *obj) noexcept {
    return part<content_info, "contentType">(obj);
}

kovra_asn1_value *kovra_pkcs7contentinfo_getcontent(const kovra_asn1_value *obj) noexcept {
    return part<content_info, "content">(obj);
}

int32_t kovra_pkcs7contentinfo_hascontent(const kovra_asn1_value *obj) noexcept {
    return has_part<content_info, "content">(obj);
}
