// DigestInfo (PKCS #1, RFC 8017, A.2.4).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_pkcs1.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS1";

// DigestInfo ::= SEQUENCE {
//     digestAlgorithm  AlgorithmIdentifier,
//     digest           OCTET STRING }
constexpr Component info_components[] = {
    required("digestAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("digest", KOVRA_ASN1_TYPE_OCTET_STRING),
};

} // namespace

constexpr StructureShape digest_info = structure(source, info_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs1digestinfo_new(const kovra_asn1_value *digest_algorithm,
                                            const kovra_asn1_value *digest) noexcept {
    return construct<digest_info>(digest_algorithm, digest);
}

kovra_asn1_value *kovra_pkcs1digestinfo_getdigestalgorithm(const kovra_asn1_value *obj) noexcept {
    return part<digest_info, "digestAlgorithm">(obj);
}

kovra_asn1_value *kovra_pkcs1digestinfo_getdigest(const kovra_asn1_value *obj) noexcept {
    return part<digest_info, "digest">(obj);
}
