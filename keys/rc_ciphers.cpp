// Parameters of RC2 and RC5 in CBC mode (RFC 8018, B.2.3 and B.2.4).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_pkcs5.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS5";

// RC2-CBC-Parameter ::= SEQUENCE {
//     rc2ParameterVersion  INTEGER OPTIONAL,
//     iv                   OCTET STRING }
constexpr Component rc2_components[] = {
    optional("rc2ParameterVersion", KOVRA_ASN1_TYPE_INTEGER),
    required("iv", KOVRA_ASN1_TYPE_OCTET_STRING),
};

// RC5-CBC-Parameters ::= SEQUENCE {
//     version          INTEGER,
//     rounds           INTEGER,
//     blockSizeInBits  INTEGER,
//     iv               OCTET STRING OPTIONAL }
constexpr Component rc5_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("rounds", KOVRA_ASN1_TYPE_INTEGER),
    required("blockSizeInBits", KOVRA_ASN1_TYPE_INTEGER),
    optional("iv", KOVRA_ASN1_TYPE_OCTET_STRING),
};

} // namespace

constexpr StructureShape rc2_cbc_parameter = structure(source, rc2_components);
constexpr StructureShape rc5_cbc_parameters = structure(source, rc5_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs5rc2cbcparam_new(const kovra_asn1_value *parameter_version,
                                             const kovra_asn1_value *iv) noexcept {
    return construct<rc2_cbc_parameter>(parameter_version, iv);
}

int32_t kovra_pkcs5rc2cbcparam_hasrc2parameterversion(const kovra_asn1_value *obj) noexcept {
    return has_part<rc2_cbc_parameter, "rc2ParameterVersion">(obj);
}

kovra_asn1_value *kovra_pkcs5rc2cbcparam_getrc2parameterversion(const kovra_asn1_value *obj) noexcept {
    return part<rc2_cbc_parameter, "rc2ParameterVersion">(obj);
}

kovra_asn1_value *kovra_pkcs5rc2cbcparam_getiv(const kovra_asn1_value *obj) noexcept {
    return part<rc2_cbc_parameter, "iv">(obj);
}

kovra_asn1_value *kovra_pkcs5rc5cbcparam_new(const kovra_asn1_value *version, const kovra_asn1_value *rounds,
                                             const kovra_asn1_value *block_size_in_bits,
                                             const kovra_asn1_value *iv) noexcept {
    return construct<rc5_cbc_parameters>(version, rounds, block_size_in_bits, iv);
}

kovra_asn1_value *kovra_pkcs5rc5cbcparam_getversion(const kovra_asn1_value *obj) noexcept {
    return part<rc5_cbc_parameters, "version">(obj);
}

kovra_asn1_value *kovra_pkcs5rc5cbcparam_getrounds(const kovra_asn1_value *obj) noexcept {
    return part<rc5_cbc_parameters, "rounds">(obj);
}

kovra_asn1_value *kovra_pkcs5rc5cbcparam_getblocksizeinbits(const kovra_asn1_value *obj) noexcept {
    return part<rc5_cbc_parameters, "blockSizeInBits">(obj);
}

int32_t kovra_pkcs5rc5cbcparam_hasiv(const kovra_asn1_value *obj) noexcept {
    return has_part<rc5_cbc_parameters, "iv">(obj);
}

kovra_asn1_value *kovra_pkcs5rc5cbcparam_getiv(const kovra_asn1_value *obj) noexcept {
    return part<rc5_cbc_parameters, "iv">(obj);
}
