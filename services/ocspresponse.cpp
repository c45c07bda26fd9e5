// OCSPResponse and BasicOCSPResponse (RFC 6960, 4.2).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_ocsp.h"
#include "kovra/asn1_types.h"
#include "pkix/signed.hpp"
#include "services/ocspcerts.hpp"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_OCSP";

// ResponseBytes ::= SEQUENCE {
//     responseType  OBJECT IDENTIFIER,
//     response      OCTET STRING }
constexpr Component bytes_components[] = {
    required("responseType", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("response", KOVRA_ASN1_TYPE_OCTET_STRING),
};

// OCSPResponse ::= SEQUENCE {
//     responseStatus  ENUMERATED,
//     responseBytes   [0] EXPLICIT ResponseBytes OPTIONAL }
constexpr Component response_components[] = {
    required("responseStatus", KOVRA_ASN1_TYPE_ENUMERATED),
    optional("responseBytes", KOVRA_ASN1_TYPE_OCSP_RESPONSE_BYTES, explicit_tag(0)),
};

// BasicOCSPResponse ::= SEQUENCE {
//     tbsResponseData     ResponseData,
//     signatureAlgorithm  AlgorithmIdentifier,
//     signature           BIT STRING,
//     certs               [0] EXPLICIT SEQUENCE OF Certificate OPTIONAL }
constexpr Component basic_components[] = {
    required("tbsResponseData", KOVRA_ASN1_TYPE_OCSP_RESPONSE_DATA),
    required("signatureAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("signature", KOVRA_ASN1_TYPE_BIT_STRING),
    optional("certs", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, explicit_tag(0)).of(ocsp_certificates),
};

} // namespace

constexpr StructureShape ocsp_response_bytes = structure(source, bytes_components);
constexpr StructureShape ocsp_response = structure(source, response_components);
constexpr StructureShape ocsp_basic_response = signed_structure(source, basic_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_ocsp_responsebytes_new(const kovra_asn1_value *type, const kovra_asn1_value *octets) noexcept {
    return construct<ocsp_response_bytes>(type, octets);
}

kovra_asn1_value *kovra_ocsp_responsebytes_gettype(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_response_bytes, "responseType">(obj);
}

kovra_asn1_value *kovra_ocsp_responsebytes_getresponse(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_response_bytes, "response">(obj);
}

kovra_asn1_value *kovra_ocsp_ocspresponse_new(const kovra_asn1_value *status,
                                              const kovra_asn1_value *response_bytes) noexcept {
    return construct<ocsp_response>(status, response_bytes);
}

kovra_asn1_value *kovra_ocsp_ocspresponse_getstatus(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_response, "responseStatus">(obj);
}

kovra_asn1_value *kovra_ocsp_ocspresponse_getresponse(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_response, "responseBytes">(obj);
}

kovra_asn1_value *kovra_ocsp_basicocspresponse_new(const kovra_asn1_value *data, const kovra_asn1_value *algorithm,
                                                   const kovra_asn1_value *signature,
                                                   const kovra_asn1_value *certs) noexcept {
    return construct<ocsp_basic_response>(data, algorithm, signature, certs);
}

kovra_asn1_value *kovra_ocsp_basicocspresponse_gettbs(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_basic_response, "tbsResponseData">(obj);
}

kovra_asn1_value *kovra_ocsp_basicocspresponse_getsignalgo(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_basic_response, "signatureAlgorithm">(obj);
}

kovra_asn1_value *kovra_ocsp_basicocspresponse_getsignature(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_basic_response, "signature">(obj);
}

kovra_asn1_value *kovra_ocsp_basicocspresponse_getcerts(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_basic_response, "certs">(obj);
}

int32_t kovra_ocsp_basicocspresponse_gettbsocts(kovra_asn1_value *obj, void *buffer, int32_t *length_in_out) noexcept {
    return copy_signed_octets(as_structure(ocsp_basic_response, obj), buffer, length_in_out);
}
