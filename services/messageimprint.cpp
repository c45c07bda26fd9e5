// MessageImprint (RFC 3161, 2.4.1), which is a DigestInfo (RFC 8017, A.2.4) with error codes of its own.

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_tsp.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

// MessageImprint ::= SEQUENCE {
//     hashAlgorithm  AlgorithmIdentifier,
//     hashedMessage  OCTET STRING }
constexpr Component components[] = {
    required("hashAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("hashedMessage", KOVRA_ASN1_TYPE_OCTET_STRING),
};

} // namespace

constexpr StructureShape message_imprint = alike("ASN1_PKCS1", components, digest_info);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_tsp_messageimprint_new(const kovra_asn1_value *algorithm,
                                               const kovra_asn1_value *hash) noexcept {
    return construct<message_imprint>(algorithm, hash);
}

kovra_asn1_value *kovra_tsp_messageimprint_gethashalgo(const kovra_asn1_value *obj) noexcept {
    return part<message_imprint, "hashAlgorithm">(obj);
}

kovra_asn1_value *kovra_tsp_messageimprint_gethashedmessage(const kovra_asn1_value *obj) noexcept {
    return part<message_imprint, "hashedMessage">(obj);
}
