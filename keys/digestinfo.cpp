// DigestInfo (RFC 8017, A.2.4).

#include "core/descriptors.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

// DigestInfo ::= SEQUENCE {
//     digestAlgorithm  AlgorithmIdentifier,
//     digest           OCTET STRING }
constexpr Component components[] = {
    required("digestAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("digest", KOVRA_ASN1_TYPE_OCTET_STRING),
};

} // namespace

constexpr Structure digest_info = structure("ASN1_PKCS1", components);

} // namespace kovra::asn1
