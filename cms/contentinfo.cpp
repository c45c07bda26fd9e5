// ContentInfo and DigestAlgorithmIdentifiers (RFC 5652, 3 and 5.1).

#include "core/descriptors.hpp"
#include "core/list.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

// ContentInfo ::= SEQUENCE {
//     contentType  OBJECT IDENTIFIER,
//     content      [0] EXPLICIT ANY DEFINED BY contentType OPTIONAL }
constexpr Component components[] = {
    required("contentType", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    optional("content", KOVRA_ASN1_TYPE_ANY, explicit_tag(0)),
};
static_assert(is_sound(components));

} // namespace

constexpr Structure content_info = structure("ASN1_CMS", components);
// DigestAlgorithmIdentifiers ::= SET OF AlgorithmIdentifier
constexpr ListShape digest_algorithm_identifiers = {KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER};

} // namespace kovra::asn1
