// SigningCertificate and SigningCertificateV2 (RFC 2634, 5.4; RFC 5035, 3), the values of the signed attributes.

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_tsp.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_TSP";

enum Slot : uint8_t { certs, policies };

// SigningCertificate ::= SEQUENCE {
//     certs     SEQUENCE OF ESSCertID,
//     policies  SEQUENCE OF PolicyInformation OPTIONAL }
constexpr Component components[] = {
    required("certs", KOVRA_ASN1_TYPE_ESS_CERT_IDS),
    optional("policies", KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES_1),
};

// SigningCertificateV2 ::= SEQUENCE {
//     certs     SEQUENCE OF ESSCertIDv2,
//     policies  SEQUENCE OF PolicyInformation OPTIONAL }
constexpr Component components_v2[] = {
    required("certs", KOVRA_ASN1_TYPE_ESS_CERT_IDS_V2),
    optional("policies", KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES_1),
};

} // namespace

constexpr StructureShape signing_certificate = structure(source, components);
constexpr StructureShape signing_certificate_v2 = structure(source, components_v2);

namespace {

// Of a value of either version.
Value *component_of_either(const kovra_asn1_value *obj, Slot slot) {
    const bool is_v2 = as_structure(signing_certificate_v2, obj) != nullptr;
    return component(is_v2 ? signing_certificate_v2 : signing_certificate, obj, slot);
}

} // namespace

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_ess_signingcertificate_new(const kovra_asn1_value *cert_ids,
                                                   const kovra_asn1_value *policy_list) noexcept {
    return construct<signing_certificate>(cert_ids, policy_list);
}

kovra_asn1_value *kovra_ess_signingcertificatev2_new(const kovra_asn1_value *cert_ids,
                                                     const kovra_asn1_value *policy_list) noexcept {
    return construct<signing_certificate_v2>(cert_ids, policy_list);
}

kovra_asn1_value *kovra_ess_signingcertificate_getcerts(const kovra_asn1_value *obj) noexcept {
    return component_of_either(obj, certs);
}

kovra_asn1_value *kovra_ess_signingcertificate_getpolicies(const kovra_asn1_value *obj) noexcept {
    return component_of_either(obj, policies);
}
