// Values of the extensions of OCSP (RFC 6960, 4.4).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_ocsp.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_OCSP";

// CrlID ::= SEQUENCE {
//     crlUrl   [0] EXPLICIT IA5String OPTIONAL,
//     crlNum   [1] EXPLICIT INTEGER OPTIONAL,
//     crlTime  [2] EXPLICIT GeneralizedTime OPTIONAL }
// crlTime is encoded under [1] although it is decoded under [2].
constexpr Component crl_components[] = {
    optional("crlUrl", KOVRA_ASN1_TYPE_IA5_STRING, explicit_tag(0)),
    optional("crlNum", KOVRA_ASN1_TYPE_INTEGER, explicit_tag(1)),
    optional("crlTime", KOVRA_ASN1_TYPE_GENERALIZED_TIME, explicit_tag(2)).encode_under(explicit_tag(1)),
};

// ServiceLocator ::= SEQUENCE {
//     issuer   Name,
//     locator  AuthorityInfoAccessSyntax }
constexpr Component locator_components[] = {
    required("issuer", KOVRA_ASN1_TYPE_NAME),
    required("locator", KOVRA_ASN1_TYPE_INFORMATION_ACCESS),
};

// PreferredSignatureAlgorithms ::= SEQUENCE {
//     algorithms  SET OF AlgorithmIdentifier }
// The standard has a SEQUENCE OF another structure here.
constexpr Component preferred_components[] = {
    required("algorithms", KOVRA_ASN1_TYPE_DIGEST_ALGORITHM_IDENTIFIERS),
};

} // namespace

constexpr StructureShape ocsp_crl_id = structure(source, crl_components);
constexpr StructureShape ocsp_service_locator = structure(source, locator_components);
constexpr StructureShape ocsp_preferred_signature_algorithms = structure(source, preferred_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_ocsp_crlid_new(const kovra_asn1_value *url, const kovra_asn1_value *number,
                                       const kovra_asn1_value *time) noexcept {
    return construct<ocsp_crl_id>(url, number, time);
}

kovra_asn1_value *kovra_ocsp_crlid_geturl(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_crl_id, "crlUrl">(obj);
}

kovra_asn1_value *kovra_ocsp_crlid_getnum(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_crl_id, "crlNum">(obj);
}

kovra_asn1_value *kovra_ocsp_crlid_gettime(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_crl_id, "crlTime">(obj);
}
