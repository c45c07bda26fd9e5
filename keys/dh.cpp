// Diffie-Hellman parameters (PKCS #3).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_pkcs3.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS3";

// DHParameter ::= SEQUENCE {
//     prime               INTEGER,
//     base                INTEGER,
//     privateValueLength  INTEGER OPTIONAL }
constexpr Component parameter_components[] = {
    required("prime", KOVRA_ASN1_TYPE_INTEGER),
    required("base", KOVRA_ASN1_TYPE_INTEGER),
    optional("privateValueLength", KOVRA_ASN1_TYPE_INTEGER),
};

} // namespace

constexpr StructureShape dh_parameter = structure(source, parameter_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs3dhparam_new(const kovra_asn1_value *prime, const kovra_asn1_value *base,
                                         const kovra_asn1_value *private_value_length) noexcept {
    return construct<dh_parameter>(prime, base, private_value_length);
}

kovra_asn1_value *kovra_pkcs3dhparam_getprime(const kovra_asn1_value *obj) noexcept {
    return part<dh_parameter, "prime">(obj);
}

kovra_asn1_value *kovra_pkcs3dhparam_getbase(const kovra_asn1_value *obj) noexcept {
    return part<dh_parameter, "base">(obj);
}

int32_t kovra_pkcs3dhparam_hasprivatevaluelength(const kovra_asn1_value *obj) noexcept {
    return has_part<dh_parameter, "privateValueLength">(obj);
}

kovra_asn1_value *kovra_pkcs3dhparam_getprivatevaluelength(const kovra_asn1_value *obj) noexcept {
    return part<dh_parameter, "privateValueLength">(obj);
}
