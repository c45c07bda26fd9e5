// What certificates, CRLs and certification requests share: a signed part, an algorithm and the signature bits.
#pragma once

#include "core/structure.hpp"

namespace kovra::asn1 {

// SEQUENCE { to-be-signed part, signatureAlgorithm AlgorithmIdentifier, signatureValue BIT STRING }
namespace signed_object {
enum Slot : uint8_t { to_be_signed, signature_algorithm, signature_value };
}

// Where an object may come from: its type and the PEM labels, tried in order; the second may be null.
struct Armour {
    uint8_t type;
    const char *label;
    const char *other_label;
};

// Decodes DER or BER octets, base64 text or PEM text, told apart by the first octet, all of which must be taken up.
kovra_asn1_value *load(Site site, const Armour &armour, const void *data, int32_t length, kovra_err_ctx *ctx);

// A new signed object with copies of its three parts, encoded once so that its encodings are kept; null on failure.
kovra_asn1_value *assemble(const Structure &shape, uint8_t type, const kovra_asn1_value *to_be_signed,
                           const kovra_asn1_value *algorithm, const kovra_asn1_value *signature);

// Gives the to-be-signed octets, or how many there are.
int32_t copy_signed_octets(Record *record, void *buffer, int32_t *length_in_out);

} // namespace kovra::asn1
