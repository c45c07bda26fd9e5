// CertStatus and RevokedInfo (RFC 6960, 4.2.1): what a responder says of a certificate.

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_ocsp.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_OCSP";

// RevokedInfo ::= SEQUENCE {
//     revocationTime    GeneralizedTime,
//     revocationReason  [0] EXPLICIT ENUMERATED OPTIONAL }
constexpr Component revocation_components[] = {
    required("revocationTime", KOVRA_ASN1_TYPE_GENERALIZED_TIME),
    optional("revocationReason", KOVRA_ASN1_TYPE_ENUMERATED, explicit_tag(0)),
};

// CertStatus ::= CHOICE {
//     good     [0] IMPLICIT NULL,
//     revoked  [1] IMPLICIT RevokedInfo,
//     unknown  [2] IMPLICIT NULL }
constexpr Component status_alternatives[] = {
    required("good", KOVRA_ASN1_TYPE_NULL, implicit_tag(0)),
    required("revoked", KOVRA_ASN1_TYPE_OCSP_REVOKED_INFO, implicit_tag(1)).unwritable(),
    required("unknown", KOVRA_ASN1_TYPE_NULL, implicit_tag(2)),
};

} // namespace

constexpr StructureShape ocsp_revoked_info = structure(source, revocation_components);
constexpr ChoiceShape ocsp_cert_status = choice(source, status_alternatives);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_ocsp_revokedinfo_new(const kovra_asn1_value *time, const kovra_asn1_value *reason) noexcept {
    return construct<ocsp_revoked_info>(time, reason);
}

kovra_asn1_value *kovra_ocsp_revokedinfo_gettime(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_revoked_info, "revocationTime">(obj);
}

kovra_asn1_value *kovra_ocsp_revokedinfo_getreason(const kovra_asn1_value *obj) noexcept {
    return part<ocsp_revoked_info, "revocationReason">(obj);
}

kovra_asn1_value *kovra_ocsp_certstatus_newgood(void) noexcept {
    return construct_choice<ocsp_cert_status, "good">();
}

kovra_asn1_value *kovra_ocsp_certstatus_newrevoked(const kovra_asn1_value *info) noexcept {
    return construct_choice<ocsp_cert_status, "revoked">(info);
}

kovra_asn1_value *kovra_ocsp_certstatus_newunknown(void) noexcept {
    return construct_choice<ocsp_cert_status, "unknown">();
}

int32_t kovra_ocsp_certstatus_gettype(const kovra_asn1_value *obj) noexcept {
    const Choice *choice = as_choice(ocsp_cert_status, obj);
    return choice != nullptr ? static_cast<int32_t>(choice->alternative) : 0;
}

kovra_asn1_value *kovra_ocsp_certstatus_getrevoked(const kovra_asn1_value *obj) noexcept {
    return chosen<ocsp_cert_status, "revoked">(obj);
}
