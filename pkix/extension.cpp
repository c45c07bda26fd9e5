// Extension and Extensions (RFC 5280, 4.1.2.9): the values stay octets until the caller says what they are.

#include "kovra/asn1_extension.h"

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_codec.h"
#include "kovra/asn1_octetstring.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

// Extension ::= SEQUENCE {
//     extnID     OBJECT IDENTIFIER,
//     critical   BOOLEAN DEFAULT FALSE,
//     extnValue  OCTET STRING }
constexpr Component extension_components[] = {
    required("extnID", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    defaulted("critical", KOVRA_ASN1_TYPE_BOOLEAN, default_false),
    required("extnValue", KOVRA_ASN1_TYPE_OCTET_STRING),
};

} // namespace

constexpr StructureShape extension = structure("ASN1_Extension", extension_components);
// Extensions ::= SEQUENCE OF Extension
constexpr ListShape extensions = {.element = KOVRA_ASN1_TYPE_EXTENSION};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_x509extension_new(const kovra_asn1_value *extn_id, const kovra_asn1_value *critical,
                                          const kovra_asn1_value *extn_value) noexcept {
    return construct<extension>(extn_id, critical, extn_value);
}

kovra_asn1_value *kovra_x509extension_create(const kovra_asn1_value *extn_id, const kovra_asn1_value *critical,
                                             uint32_t value_type, const kovra_asn1_value *value) noexcept {
    if (value_type == KOVRA_ASN1_TYPE_END_OF_CONTENTS)
        return nullptr;
    kovra_data_blob *encoding = kovra_asn1_mem_encode(value_type, value);
    if (encoding == nullptr)
        return nullptr;
    kovra_asn1_value *octets =
        kovra_asn1_octetstring_new(kovra_data_blob_getdata(encoding), kovra_data_blob_getlength(encoding));
    kovra_data_blob_free(encoding);
    kovra_asn1_value *made = octets != nullptr ? kovra_x509extension_new(extn_id, critical, octets) : nullptr;
    kovra_asn1_value_free(KOVRA_ASN1_TYPE_OCTET_STRING, octets);
    return made;
}

kovra_asn1_value *kovra_x509extension_getid(const kovra_asn1_value *obj) noexcept {
    return part<extension, "extnID">(obj);
}

kovra_asn1_value *kovra_x509extension_getcritical(const kovra_asn1_value *obj) noexcept {
    return part<extension, "critical">(obj);
}

kovra_asn1_value *kovra_x509extension_getvalue(const kovra_asn1_value *obj) noexcept {
    return part<extension, "extnValue">(obj);
}
