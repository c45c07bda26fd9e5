// ResponseData and SingleResponse (RFC 6960, 4.2.1): what the signature of a response covers.

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_ocsp.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_OCSP";

// SingleResponse ::= SEQUENCE {
//     certID            CertID,
//     certStatus        CertStatus,
//     thisUpdate        GeneralizedTime,
//     nextUpdate        [0] EXPLICIT GeneralizedTime OPTIONAL,
//     singleExtensions  [1] EXPLICIT Extensions OPTIONAL }
// singleExtensions is encoded under [0] although it is decoded under [1].
constexpr Component single_components[] = {
    required("certID", KOVRA_ASN1_TYPE_OCSP_CERT_ID),
    required("certStatus", KOVRA_ASN1_TYPE_OCSP_CERT_STATUS),
    required("thisUpdate", KOVRA_ASN1_TYPE_GENERALIZED_TIME),
    optional("nextUpdate", KOVRA_ASN1_TYPE_GENERALIZED_TIME, explicit_tag(0)),
    optional("singleExtensions", KOVRA_ASN1_TYPE_EXTENSIONS, explicit_tag(1)).encode_under(explicit_tag(0)),
};

// ResponseData ::= SEQUENCE {
//     version             [0] EXPLICIT INTEGER DEFAULT v1(0),
//     responderID         ResponderID,
//     producedAt          GeneralizedTime,
//     responses           SEQUENCE OF SingleResponse,
//     responseExtensions  [1] EXPLICIT Extensions OPTIONAL }
constexpr Component data_components[] = {
    defaulted("version", KOVRA_ASN1_TYPE_INTEGER, default_zero, explicit_tag(0)),
    required("responderID", KOVRA_ASN1_TYPE_OCSP_RESPONDER_ID),
    required("producedAt", KOVRA_ASN1_TYPE_GENERALIZED_TIME),
    required("responses", KOVRA_ASN1_TYPE_OCSP_RESPONSES),
    optional("responseExtensions", KOVRA_ASN1_TYPE_EXTENSIONS, explicit_tag(1)),
};

} // namespace

constexpr StructureShape ocsp_single_response = structure(source, single_components);
// Responses ::= SEQUENCE OF SingleResponse
constexpr ListShape ocsp_responses = {.element = KOVRA_ASN1_TYPE_OCSP_SINGLE_RESPONSE};
constexpr StructureShape ocsp_response_data = structure(source, data_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_ocsp_singleresponse_new(const kovra_asn1_value *cert_id, const kovra_asn1_value *cert_status,
                                                const kovra_asn1_value *this_update,
                                                const kovra_asn1_value *next_update,
                                                const kovra_asn1_value *exts) noexcept {
    return construct<ocsp_single_response>(cert_id, cert_status, this_update, next_update, exts);
}

kovra_asn1_value *kovra_ocsp_singleresponse_getcertid(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_single_response, "certID">(obj);
}

kovra_asn1_value *kovra_ocsp_singleresponse_getcertstatus(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_single_response, "certStatus">(obj);
}

kovra_asn1_value *kovra_ocsp_singleresponse_getthisupdate(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_single_response, "thisUpdate">(obj);
}

kovra_asn1_value *kovra_ocsp_singleresponse_getnextupdate(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_single_response, "nextUpdate">(obj);
}

kovra_asn1_value *kovra_ocsp_singleresponse_getexts(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_single_response, "singleExtensions">(obj);
}

kovra_asn1_value *kovra_ocsp_responsedata_new(const kovra_asn1_value *version, const kovra_asn1_value *responder_id,
                                              const kovra_asn1_value *produced_at, const kovra_asn1_value *responses,
                                              const kovra_asn1_value *exts) noexcept {
    return construct<ocsp_response_data>(version, responder_id, produced_at, responses, exts);
}

kovra_asn1_value *kovra_ocsp_responsedata_getversion(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_response_data, "version">(obj);
}

kovra_asn1_value *kovra_ocsp_responsedata_getrespid(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_response_data, "responderID">(obj);
}

kovra_asn1_value *kovra_ocsp_responsedata_getproducedat(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_response_data, "producedAt">(obj);
}

kovra_asn1_value *kovra_ocsp_responsedata_getresponses(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_response_data, "responses">(obj);
}

kovra_asn1_value *kovra_ocsp_responsedata_getexts(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_response_data, "responseExtensions">(obj);
}
