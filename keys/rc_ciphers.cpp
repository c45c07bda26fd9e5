// Parameters of RC2 and RC5 in CBC mode (RFC 8018, B.2.3 and B.2.4).

#include "core/descriptors.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_pkcs5.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS5";

// RC2-CBC-Parameter ::= SEQUENCE {
//     rc2ParameterVersion  INTEGER OPTIONAL,
//     iv                   OCTET STRING }
namespace rc2 {
enum Slot : uint8_t { parameter_version, iv };
constexpr Component components[] = {
    optional("rc2ParameterVersion", KOVRA_ASN1_TYPE_INTEGER),
    required("iv", KOVRA_ASN1_TYPE_OCTET_STRING),
};
} // namespace rc2

// RC5-CBC-Parameters ::= SEQUENCE {
//     version          INTEGER,
//     rounds           INTEGER,
//     blockSizeInBits  INTEGER,
//     iv               OCTET STRING OPTIONAL }
namespace rc5 {
enum Slot : uint8_t { version, rounds, block_size_in_bits, iv };
constexpr Component components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("rounds", KOVRA_ASN1_TYPE_INTEGER),
    required("blockSizeInBits", KOVRA_ASN1_TYPE_INTEGER),
    optional("iv", KOVRA_ASN1_TYPE_OCTET_STRING),
};
} // namespace rc5

} // namespace

constexpr Structure rc2_cbc_parameter = structure(source, rc2::components);
constexpr Structure rc5_cbc_parameters = structure(source, rc5::components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs5rc2cbcparam_new(const kovra_asn1_value *parameter_version,
                                             const kovra_asn1_value *iv) noexcept {
    return construct(rc2_cbc_parameter, parameter_version, iv);
}

int32_t kovra_pkcs5rc2cbcparam_hasrc2parameterversion(const kovra_asn1_value *obj) noexcept {
    return component(rc2_cbc_parameter, obj, rc2::parameter_version) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_pkcs5rc2cbcparam_getrc2parameterversion(const kovra_asn1_value *obj) noexcept {
    return component(rc2_cbc_parameter, obj, rc2::parameter_version);
}

kovra_asn1_value *kovra_pkcs5rc2cbcparam_getiv(const kovra_asn1_value *obj) noexcept {
    return component(rc2_cbc_parameter, obj, rc2::iv);
}

kovra_asn1_value *kovra_pkcs5rc5cbcparam_new(const kovra_asn1_value *version, const kovra_asn1_value *rounds,
                                             const kovra_asn1_value *block_size_in_bits,
                                             const kovra_asn1_value *iv) noexcept {
    return construct(rc5_cbc_parameters, version, rounds, block_size_in_bits, iv);
}

kovra_asn1_value *kovra_pkcs5rc5cbcparam_getversion(const kovra_asn1_value *obj) noexcept {
    return component(rc5_cbc_parameters, obj, rc5::version);
}

kovra_asn1_value *kovra_pkcs5rc5cbcparam_getrounds(const kovra_asn1_value *obj) noexcept {
    return component(rc5_cbc_parameters, obj, rc5::rounds);
}

kovra_asn1_value *kovra_pkcs5rc5cbcparam_getblocksizeinbits(const kovra_asn1_value *obj) noexcept {
    return component(rc5_cbc_parameters, obj, rc5::block_size_in_bits);
}

int32_t kovra_pkcs5rc5cbcparam_hasiv(const kovra_asn1_value *obj) noexcept {
    return component(rc5_cbc_parameters, obj, rc5::iv) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_pkcs5rc5cbcparam_getiv(const kovra_asn1_value *obj) noexcept {
    return component(rc5_cbc_parameters, obj, rc5::iv);
}
