// MessageImprint (RFC 3161, 2.4.1), which is a DigestInfo (RFC 8017, A.2.4) with error codes of its own.

#include "core/descriptors.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_tsp.h"

namespace kovra::asn1 {

namespace {

// MessageImprint ::= SEQUENCE {
//     hashAlgorithm  AlgorithmIdentifier,
//     hashedMessage  OCTET STRING }
enum Slot : uint8_t { hash_algorithm, hashed_message };

} // namespace

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_tsp_messageimprint_new(const kovra_asn1_value *algorithm,
                                               const kovra_asn1_value *hash) noexcept {
    return construct(digest_info, algorithm, hash);
}

kovra_asn1_value *kovra_tsp_messageimprint_gethashalgo(const kovra_asn1_value *obj) noexcept {
    return component(digest_info, obj, hash_algorithm);
}

kovra_asn1_value *kovra_tsp_messageimprint_gethashedmessage(const kovra_asn1_value *obj) noexcept {
    return component(digest_info, obj, hashed_message);
}
