// Signatures of DSA and ECDSA, parameters of DSA (RFC 3279, 2.2 and 2.3.2).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_dss.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_DSS";

// Dss-Sig-Value ::= SEQUENCE { r INTEGER, s INTEGER }
// ECDSA-Sig-Value ::= SEQUENCE { r INTEGER, s INTEGER }
constexpr Component signature_components[] = {
    required("r", KOVRA_ASN1_TYPE_INTEGER),
    required("s", KOVRA_ASN1_TYPE_INTEGER),
};

// Dss-Parms ::= SEQUENCE { p INTEGER, q INTEGER, g INTEGER }
constexpr Component parameters_components[] = {
    required("p", KOVRA_ASN1_TYPE_INTEGER),
    required("q", KOVRA_ASN1_TYPE_INTEGER),
    required("g", KOVRA_ASN1_TYPE_INTEGER),
};

} // namespace

constexpr StructureShape dss_sig_value = structure(source, signature_components);
constexpr StructureShape ecdsa_sig_value = structure(source, signature_components);
constexpr StructureShape dss_parms = structure(source, parameters_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_dsssigvalue_new(const kovra_asn1_value *r, const kovra_asn1_value *s) noexcept {
    return construct<dss_sig_value>(r, s);
}

kovra_asn1_value *kovra_dsssigvalue_getr(const kovra_asn1_value *obj) noexcept {
    return part<dss_sig_value, "r">(obj);
}

kovra_asn1_value *kovra_dsssigvalue_gets(const kovra_asn1_value *obj) noexcept {
    return part<dss_sig_value, "s">(obj);
}

kovra_asn1_value *kovra_ecdsasigvalue_new(const kovra_asn1_value *r, const kovra_asn1_value *s) noexcept {
    return construct<ecdsa_sig_value>(r, s);
}

kovra_asn1_value *kovra_ecdsasigvalue_getr(const kovra_asn1_value *obj) noexcept {
    return part<ecdsa_sig_value, "r">(obj);
}

kovra_asn1_value *kovra_ecdsasigvalue_gets(const kovra_asn1_value *obj) noexcept {
    return part<ecdsa_sig_value, "s">(obj);
}

kovra_asn1_value *kovra_dssparms_new(const kovra_asn1_value *p, const kovra_asn1_value *q,
                                     const kovra_asn1_value *g) noexcept {
    return construct<dss_parms>(p, q, g);
}

kovra_asn1_value *kovra_dssparms_getp(const kovra_asn1_value *obj) noexcept {
    return part<dss_parms, "p">(obj);
}

kovra_asn1_value *kovra_dssparms_getq(const kovra_asn1_value *obj) noexcept {
    return part<dss_parms, "q">(obj);
}

kovra_asn1_value *kovra_dssparms_getg(const kovra_asn1_value *obj) noexcept {
    return part<dss_parms, "g">(obj);
}
