// Private keys of elliptic curves (RFC 5915).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_ecc.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_ECC";

// ECPrivateKey ::= SEQUENCE {
//     version     INTEGER,
//     privateKey  OCTET STRING,
//     parameters  [0] EXPLICIT EcpkParameters OPTIONAL,
//     publicKey   [1] EXPLICIT BIT STRING OPTIONAL }
constexpr Component key_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("privateKey", KOVRA_ASN1_TYPE_OCTET_STRING),
    optional("parameters", KOVRA_ASN1_TYPE_ECPK_PARAMETERS, explicit_tag(0)),
    optional("publicKey", KOVRA_ASN1_TYPE_BIT_STRING, explicit_tag(1)),
};

} // namespace

constexpr StructureShape ec_private_key = structure(source, key_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_ecprivatekey_new(const kovra_asn1_value *version, const kovra_asn1_value *private_key,
                                         const kovra_asn1_value *parameters,
                                         const kovra_asn1_value *public_key) noexcept {
    return construct<ec_private_key>(version, private_key, parameters, public_key);
}

kovra_asn1_value *kovra_ecprivatekey_getversion(const kovra_asn1_value *obj) noexcept {
    return part<ec_private_key, "version">(obj);
}

kovra_asn1_value *kovra_ecprivatekey_getprivkey(const kovra_asn1_value *obj) noexcept {
    return part<ec_private_key, "privateKey">(obj);
}

kovra_asn1_value *kovra_ecprivatekey_getparam(const kovra_asn1_value *obj) noexcept {
    return part<ec_private_key, "parameters">(obj);
}

kovra_asn1_value *kovra_ecprivatekey_getpubkey(const kovra_asn1_value *obj) noexcept {
    return part<ec_private_key, "publicKey">(obj);
}
