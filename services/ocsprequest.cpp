// OCSPRequest (RFC 6960, 4.1) and its parts.

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_ocsp.h"
#include "kovra/asn1_types.h"
#include "services/ocspcerts.hpp"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_OCSP";

// Request ::= SEQUENCE {
//     reqCert                  CertID,
//     singleRequestExtensions  [0] EXPLICIT Extensions OPTIONAL }
constexpr Component single_components[] = {
    required("reqCert", KOVRA_ASN1_TYPE_OCSP_CERT_ID),
    optional("singleRequestExtensions", KOVRA_ASN1_TYPE_EXTENSIONS, explicit_tag(0)),
};

// TBSRequest ::= SEQUENCE {
//     version            [0] EXPLICIT INTEGER DEFAULT v1(0),
//     requestorName      [1] EXPLICIT GeneralName OPTIONAL,
//     requestList        SEQUENCE OF Request,
//     requestExtensions  [2] EXPLICIT Extensions OPTIONAL }
constexpr Component tbs_components[] = {
    defaulted("version", KOVRA_ASN1_TYPE_INTEGER, default_zero, explicit_tag(0)),
    optional("requestorName", KOVRA_ASN1_TYPE_GENERAL_NAME, explicit_tag(1)),
    required("requestList", KOVRA_ASN1_TYPE_OCSP_REQUEST_LIST),
    optional("requestExtensions", KOVRA_ASN1_TYPE_EXTENSIONS, explicit_tag(2)),
};

// Signature ::= SEQUENCE {
//     signatureAlgorithm  AlgorithmIdentifier,
//     signature           BIT STRING,
//     certs               [0] EXPLICIT SEQUENCE OF Certificate OPTIONAL }
constexpr Component signing_components[] = {
    required("signatureAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("signature", KOVRA_ASN1_TYPE_BIT_STRING),
    optional("certs", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, explicit_tag(0)).of(ocsp_certificates),
};

// OCSPRequest ::= SEQUENCE {
//     tbsRequest         TBSRequest,
//     optionalSignature  [0] EXPLICIT Signature OPTIONAL }
constexpr Component request_components[] = {
    required("tbsRequest", KOVRA_ASN1_TYPE_OCSP_TBS_REQUEST),
    optional("optionalSignature", KOVRA_ASN1_TYPE_OCSP_SIGNATURE, explicit_tag(0)),
};

} // namespace

constexpr StructureShape ocsp_single_request = structure(source, single_components);
// RequestList ::= SEQUENCE OF Request
constexpr ListShape ocsp_request_list = {.element = KOVRA_ASN1_TYPE_OCSP_SINGLE_REQUEST};
constexpr StructureShape ocsp_tbs_request = structure(source, tbs_components);
constexpr StructureShape ocsp_signature = structure(source, signing_components);
constexpr StructureShape ocsp_request = structure(source, request_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_ocsp_request_new(const kovra_asn1_value *req_cert, const kovra_asn1_value *exts) noexcept {
    return construct<ocsp_single_request>(req_cert, exts);
}

kovra_asn1_value *kovra_ocsp_request_getcertid(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_single_request, "reqCert">(obj);
}

kovra_asn1_value *kovra_ocsp_request_getexts(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_single_request, "singleRequestExtensions">(obj);
}

kovra_asn1_value *kovra_ocsp_tbsrequest_new(const kovra_asn1_value *version, const kovra_asn1_value *requestor_name,
                                            const kovra_asn1_value *request_list,
                                            const kovra_asn1_value *exts) noexcept {
    return construct<ocsp_tbs_request>(version, requestor_name, request_list, exts);
}

kovra_asn1_value *kovra_ocsp_tbsrequest_getversion(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_tbs_request, "version">(obj);
}

kovra_asn1_value *kovra_ocsp_tbsrequest_getname(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_tbs_request, "requestorName">(obj);
}

kovra_asn1_value *kovra_ocsp_tbsrequest_getreqlist(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_tbs_request, "requestList">(obj);
}

kovra_asn1_value *kovra_ocsp_tbsrequest_getexts(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_tbs_request, "requestExtensions">(obj);
}

kovra_asn1_value *kovra_ocsp_signature_new(const kovra_asn1_value *algorithm, const kovra_asn1_value *signature,
                                           const kovra_asn1_value *certs) noexcept {
    return construct<ocsp_signature>(algorithm, signature, certs);
}

kovra_asn1_value *kovra_ocsp_signature_getsignalgo(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_signature, "signatureAlgorithm">(obj);
}

kovra_asn1_value *kovra_ocsp_signature_getsignature(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_signature, "signature">(obj);
}

kovra_asn1_value *kovra_ocsp_signature_getcerts(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_signature, "certs">(obj);
}

kovra_asn1_value *kovra_ocsp_ocsprequest_new(const kovra_asn1_value *tbs_request,
                                             const kovra_asn1_value *optional_signature) noexcept {
    return construct<ocsp_request>(tbs_request, optional_signature);
}

kovra_asn1_value *kovra_ocsp_ocsprequest_gettbs(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_request, "tbsRequest">(obj);
}

kovra_asn1_value *kovra_ocsp_ocsprequest_getsignature(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_request, "optionalSignature">(obj);
}
