// ResponderID (RFC 6960, 4.2.1): who signed a response.

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_ocsp.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_OCSP";

// ResponderID ::= CHOICE {
//     byName  [1] EXPLICIT Name,
//     byKey   [2] EXPLICIT OCTET STRING }
// byKey is encoded without the identifier and length octets of its OCTET STRING. They are counted in its length all the
// same, and decoding expects them.
constexpr uint32_t first_number = 1;
constexpr Component alternatives[] = {
    required("byName", KOVRA_ASN1_TYPE_NAME, explicit_tag(1)),
    required("byKey", KOVRA_ASN1_TYPE_OCTET_STRING, explicit_tag(2)).encode_under(bare_tag(2)),
};

} // namespace

constexpr ChoiceShape ocsp_responder_id = choice(source, alternatives);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_ocsp_responderid_newname(const kovra_asn1_value *name) noexcept {
    return construct_choice<ocsp_responder_id, "byName">(name);
}

kovra_asn1_value *kovra_ocsp_responderid_newkeyhash(const kovra_asn1_value *key_hash) noexcept {
    return construct_choice<ocsp_responder_id, "byKey">(key_hash);
}

int32_t kovra_ocsp_responderid_gettype(const kovra_asn1_value *obj) noexcept {
    const Choice *choice = as_choice(ocsp_responder_id, obj);
    return choice != nullptr ? static_cast<int32_t>(choice->alternative + first_number) : 0;
}

kovra_asn1_value *kovra_ocsp_responderid_getname(const kovra_asn1_value *obj) noexcept {
    return chosen<ocsp_responder_id, "byName">(obj);
}

kovra_asn1_value *kovra_ocsp_responderid_getkeyhash(const kovra_asn1_value *obj) noexcept {
    return chosen<ocsp_responder_id, "byKey">(obj);
}
