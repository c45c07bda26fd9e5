// EncapsulatedContentInfo (RFC 5652, 5.2).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// EncapsulatedContentInfo ::= SEQUENCE {
//     eContentType  OBJECT IDENTIFIER,
//     eContent      [0] EXPLICIT OCTET STRING OPTIONAL }
constexpr Component encapsulated_components[] = {
    required("eContentType", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    optional("eContent", KOVRA_ASN1_TYPE_OCTET_STRING, explicit_tag(0)),
};

} // namespace

constexpr StructureShape encapsulated_content_info = structure(source, encapsulated_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmsencapsulatedcontentinfo_new(const kovra_asn1_value *content_type,
                                                       const kovra_asn1_value *content) noexcept {
    return construct<encapsulated_content_info>(content_type, content);
}

kovra_asn1_value *kovra_cmsencapsulatedcontentinfo_getcontenttype(const kovra_asn1_value *obj) noexcept {
    return part<encapsulated_content_info, "eContentType">(obj);
}

kovra_asn1_value *kovra_cmsencapsulatedcontentinfo_getcontent(const kovra_asn1_value *obj) noexcept {
    return part<encapsulated_content_info, "eContent">(obj);
}
