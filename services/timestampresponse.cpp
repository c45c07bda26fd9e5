// TimeStampResp and its status (RFC 3161, 2.4.2).

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_tsp.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_TSP";

// PKIStatusInfo ::= SEQUENCE {
//     status        INTEGER,
//     statusString  PKIFreeText OPTIONAL,
//     failInfo      BIT STRING OPTIONAL }
constexpr Component info_components[] = {
    required("status", KOVRA_ASN1_TYPE_INTEGER),
    optional("statusString", KOVRA_ASN1_TYPE_PKI_FREE_TEXT),
    optional("failInfo", KOVRA_ASN1_TYPE_BIT_STRING),
};

// TimeStampResp ::= SEQUENCE {
//     status          PKIStatusInfo,
//     timeStampToken  ContentInfo OPTIONAL }
constexpr Component response_components[] = {
    required("status", KOVRA_ASN1_TYPE_PKI_STATUS_INFO),
    optional("timeStampToken", KOVRA_ASN1_TYPE_CONTENT_INFO),
};

} // namespace

// PKIFreeText ::= SEQUENCE SIZE (1..MAX) OF UTF8String
constexpr ListShape pki_free_text = {.element = KOVRA_ASN1_TYPE_UTF8_STRING, .nonempty = source};
constexpr StructureShape pki_status_info = structure(source, info_components);
constexpr StructureShape time_stamp_resp = structure(source, response_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_tsp_pkistatusinfo_new(const kovra_asn1_value *status, const kovra_asn1_value *status_string,
                                              const kovra_asn1_value *fail_info) noexcept {
    return construct<pki_status_info>(status, status_string, fail_info);
}

kovra_asn1_value *kovra_tsp_pkistatusinfo_getstatus(const kovra_asn1_value *obj) noexcept {
    return part<pki_status_info, "status">(obj);
}

kovra_asn1_value *kovra_tsp_pkistatusinfo_getstatusstring(const kovra_asn1_value *obj) noexcept {
    return part<pki_status_info, "statusString">(obj);
}

kovra_asn1_value *kovra_tsp_pkistatusinfo_getfailinfo(const kovra_asn1_value *obj) noexcept {
    return part<pki_status_info, "failInfo">(obj);
}

kovra_asn1_value *kovra_tsp_timestampresp_new(const kovra_asn1_value *status, const kovra_asn1_value *token) noexcept {
    return construct<time_stamp_resp>(status, token);
}

kovra_asn1_value *kovra_tsp_timestampresp_getstatus(const kovra_asn1_value *obj) noexcept {
    return part<time_stamp_resp, "status">(obj);
}

kovra_asn1_value *kovra_tsp_timestampresp_gettoken(const kovra_asn1_value *obj) noexcept {
    return part<time_stamp_resp, "timeStampToken">(obj);
}
