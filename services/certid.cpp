// CertID (RFC 6960, 4.1.1): which certificate a request asks about.

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_ocsp.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_OCSP";

// CertID ::= SEQUENCE {
//     hashAlgorithm   AlgorithmIdentifier,
//     issuerNameHash  OCTET STRING,
//     issuerKeyHash   OCTET STRING,
//     serialNumber    INTEGER }
enum Slot : uint8_t { hash_algorithm, issuer_name_hash, issuer_key_hash, serial_number };
constexpr Component components[] = {
    required("hashAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("issuerNameHash", KOVRA_ASN1_TYPE_OCTET_STRING),
    required("issuerKeyHash", KOVRA_ASN1_TYPE_OCTET_STRING),
    required("serialNumber", KOVRA_ASN1_TYPE_INTEGER),
};

} // namespace

constexpr StructureShape ocsp_cert_id = structure(source, components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_ocsp_certid_new(const kovra_asn1_value *algorithm, const kovra_asn1_value *name_hash,
                                        const kovra_asn1_value *key_hash, const kovra_asn1_value *serial) noexcept {
    return construct<ocsp_cert_id>(algorithm, name_hash, key_hash, serial);
}

kovra_asn1_value *kovra_ocsp_certid_gethashalgo(const kovra_asn1_value *obj) noexcept {
    return component(ocsp_cert_id, obj, hash_algorithm);
}

kovra_asn1_value *kovra_ocsp_certid_getissuernamehash(const kovra_asn1_value *obj) noexcept {
    return component(ocsp_cert_id, obj, issuer_name_hash);
}

kovra_asn1_value *kovra_ocsp_certid_getissuerkeyhash(const kovra_asn1_value *obj) noexcept {
    return component(ocsp_cert_id, obj, issuer_key_hash);
}

kovra_asn1_value *kovra_ocsp_certid_getsn(const kovra_asn1_value *obj) noexcept {
    return component(ocsp_cert_id, obj, serial_number);
}
