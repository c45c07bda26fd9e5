// CertStatus and RevokedInfo (RFC 6960, 4.2.1): what a responder says of a certificate.

#include "core/choice.hpp"
#include "core/descriptors.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_ocsp.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_OCSP";

// RevokedInfo ::= SEQUENCE {
//     revocationTime    GeneralizedTime,
//     revocationReason  [0] EXPLICIT ENUMERATED OPTIONAL }
namespace revocation {
enum Slot : uint8_t { time, reason };
constexpr Component components[] = {
    required("revocationTime", KOVRA_ASN1_TYPE_GENERALIZED_TIME),
    optional("revocationReason", KOVRA_ASN1_TYPE_ENUMERATED, explicit_tag(0)),
};
static_assert(is_sound(components));
} // namespace revocation

// CertStatus ::= CHOICE {
//     good     [0] IMPLICIT NULL,
//     revoked  [1] IMPLICIT RevokedInfo,
//     unknown  [2] IMPLICIT NULL }
// The content of revoked is handed to the operations of CertStatus, which have no use for it: it can be read and
// measured, not written.
namespace status {
enum Alternative : uint8_t { good, revoked, unknown };
constexpr Component alternatives[] = {
    required("good", KOVRA_ASN1_TYPE_NULL, implicit_tag(0)),
    required("revoked", KOVRA_ASN1_TYPE_OCSP_REVOKED_INFO, implicit_tag(1))
        .encode_content_as(KOVRA_ASN1_TYPE_OCSP_CERT_STATUS),
    required("unknown", KOVRA_ASN1_TYPE_NULL, implicit_tag(2)),
};
static_assert(is_sound(alternatives));
} // namespace status

} // namespace

constexpr Structure ocsp_revoked_info = structure(source, revocation::components);
constexpr ChoiceShape ocsp_cert_status = choice(source, status::alternatives);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_ocsp_revokedinfo_new(const kovra_asn1_value *time, const kovra_asn1_value *reason) noexcept {
    return construct(ocsp_revoked_info, time, reason);
}

kovra_asn1_value *kovra_ocsp_revokedinfo_gettime(const kovra_asn1_value *obj) noexcept {
    return component(ocsp_revoked_info, obj, revocation::time);
}

kovra_asn1_value *kovra_ocsp_revokedinfo_getreason(const kovra_asn1_value *obj) noexcept {
    return component(ocsp_revoked_info, obj, revocation::reason);
}

kovra_asn1_value *kovra_ocsp_certstatus_newgood(void) noexcept {
    return construct_null_choice(ocsp_cert_status, status::good);
}

kovra_asn1_value *kovra_ocsp_certstatus_newrevoked(const kovra_asn1_value *info) noexcept {
    return construct_choice(ocsp_cert_status, status::revoked, info);
}

kovra_asn1_value *kovra_ocsp_certstatus_newunknown(void) noexcept {
    return construct_null_choice(ocsp_cert_status, status::unknown);
}

int32_t kovra_ocsp_certstatus_gettype(const kovra_asn1_value *obj) noexcept {
    const Choice *choice = as_choice(ocsp_cert_status, obj);
    return choice != nullptr ? static_cast<int32_t>(choice->alternative) : 0;
}

kovra_asn1_value *kovra_ocsp_certstatus_getrevoked(const kovra_asn1_value *obj) noexcept {
    return alternative(ocsp_cert_status, obj, status::revoked);
}
