// What certificates, CRLs and certification requests share: a signed part, an algorithm and the signature bits.
#pragma once

#include "core/structure.hpp"

namespace kovra::asn1 {

// Where an object may come from: its type and the PEM labels, tried in order; the second may be null.
struct Armour {
    uint8_t type;
    const char *label;
    const char *other_label;
};

// Decodes DER or BER octets, base64 text or PEM text, told apart by the first octet, all of which must be taken up.
kovra_asn1_value *load(Site site, const Armour &armour, const void *data, int32_t length, kovra_err_ctx *ctx);

// A new signed object (null: there is none), encoded once so that its encodings are kept; null, and the object is
// released, when that fails.
kovra_asn1_value *with_encoding(Structure *object, uint8_t type);

// Gives the to-be-signed octets, or how many there are.
int32_t copy_signed_octets(Structure *record, void *buffer, int32_t *length_in_out);

} // namespace kovra::asn1
