// RSA keys (PKCS #1, RFC 8017, A.1).

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_integer.h"
#include "kovra/asn1_pkcs1.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS1";

// RSAPublicKey ::= SEQUENCE {
//     modulus         INTEGER,
//     publicExponent  INTEGER }
constexpr Component public_key_components[] = {
    required("modulus", KOVRA_ASN1_TYPE_INTEGER),
    required("publicExponent", KOVRA_ASN1_TYPE_INTEGER),
};

// OtherPrimeInfo ::= SEQUENCE {
//     prime        INTEGER,
//     exponent     INTEGER,
//     coefficient  INTEGER }
constexpr Component prime_info_components[] = {
    required("prime", KOVRA_ASN1_TYPE_INTEGER),
    required("exponent", KOVRA_ASN1_TYPE_INTEGER),
    required("coefficient", KOVRA_ASN1_TYPE_INTEGER),
};

// RSAPrivateKey ::= SEQUENCE {
//     version          INTEGER { two-prime(0), multi(1) },
//     modulus          INTEGER,
//     publicExponent   INTEGER,
//     privateExponent  INTEGER,
//     prime1           INTEGER,
//     prime2           INTEGER,
//     exponent1        INTEGER,
//     exponent2        INTEGER,
//     coefficient      INTEGER,
//     otherPrimeInfos  OtherPrimeInfos OPTIONAL }
// The version says whether there are other primes, and has to be right.
// clang-format off
constexpr Component private_key_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("modulus", KOVRA_ASN1_TYPE_INTEGER),
    required("publicExponent", KOVRA_ASN1_TYPE_INTEGER),
    required("privateExponent", KOVRA_ASN1_TYPE_INTEGER),
    required("prime1", KOVRA_ASN1_TYPE_INTEGER),
    required("prime2", KOVRA_ASN1_TYPE_INTEGER),
    required("exponent1", KOVRA_ASN1_TYPE_INTEGER),
    required("exponent2", KOVRA_ASN1_TYPE_INTEGER),
    required("coefficient", KOVRA_ASN1_TYPE_INTEGER),
    optional("otherPrimeInfos", KOVRA_ASN1_TYPE_OTHER_PRIME_INFOS),
};
// clang-format on

bool has_right_version(const Structure &record) {
    int32_t number = 0;
    return kovra_asn1_integer_getlong(record.slot(slot_of(private_key_components, "version")), &number) == 1 &&
           number == (record.slot(slot_of(private_key_components, "otherPrimeInfos")) != nullptr ? 1 : 0);
}
constexpr int32_t bad_version = 0x10303;

} // namespace

constexpr StructureShape rsa_public_key = structure(source, public_key_components);
constexpr StructureShape other_prime_info = structure(source, prime_info_components);
constexpr StructureShape rsa_private_key = restricted(source, private_key_components, has_right_version, bad_version);
// OtherPrimeInfos ::= SEQUENCE SIZE (1..MAX) OF OtherPrimeInfo
constexpr ListShape other_prime_infos = {.element = KOVRA_ASN1_TYPE_OTHER_PRIME_INFO, .nonempty = source};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs1rsapublickey_new(const kovra_asn1_value *modulus,
                                              const kovra_asn1_value *public_exponent) noexcept {
    return construct<rsa_public_key>(modulus, public_exponent);
}

kovra_asn1_value *kovra_pkcs1rsapublickey_getmodulus(const kovra_asn1_value *obj) noexcept {
    return part<rsa_public_key, "modulus">(obj);
}

kovra_asn1_value *kovra_pkcs1rsapublickey_getpublicexponent(const kovra_asn1_value *obj) noexcept {
    return part<rsa_public_key, "publicExponent">(obj);
}

kovra_asn1_value *kovra_pkcs1otherprimeinfo_new(const kovra_asn1_value *prime, const kovra_asn1_value *exponent,
                                                const kovra_asn1_value *coefficient) noexcept {
    return construct<other_prime_info>(prime, exponent, coefficient);
}

kovra_asn1_value *kovra_pkcs1otherprimeinfo_getprime(const kovra_asn1_value *obj) noexcept {
    return part<other_prime_info, "prime">(obj);
}

kovra_asn1_value *kovra_pkcs1otherprimeinfo_getexponent(const kovra_asn1_value *obj) noexcept {
    return part<other_prime_info, "exponent">(obj);
}

kovra_asn1_value *kovra_pkcs1otherprimeinfo_getcoefficient(const kovra_asn1_value *obj) noexcept {
    return part<other_prime_info, "coefficient">(obj);
}

kovra_asn1_value *kovra_pkcs1rsaprivatekey_new(const kovra_asn1_value *version, const kovra_asn1_value *modulus,
                                               const kovra_asn1_value *public_exponent,
                                               const kovra_asn1_value *private_exponent, const kovra_asn1_value *prime1,
                                               const kovra_asn1_value *prime2, const kovra_asn1_value *exponent1,
                                               const kovra_asn1_value *exponent2, const kovra_asn1_value *coefficient,
                                               const kovra_asn1_value *other_primes) noexcept {
    return construct<rsa_private_key>(version, modulus, public_exponent, private_exponent, prime1, prime2, exponent1,
                                      exponent2, coefficient, other_primes);
}

kovra_asn1_value *kovra_pkcs1rsaprivatekey_getversion(const kovra_asn1_value *obj) noexcept {
    return part<rsa_private_key, "version">(obj);
}

kovra_asn1_value *kovra_pkcs1rsaprivatekey_getmodulus(const kovra_asn1_value *obj) noexcept {
    return part<rsa_private_key, "modulus">(obj);
}

kovra_asn1_value *kovra_pkcs1rsaprivatekey_getpublicexponent(const kovra_asn1_value *obj) noexcept {
    return part<rsa_private_key, "publicExponent">(obj);
}

kovra_asn1_value *kovra_pkcs1rsaprivatekey_getprivateexponent(const kovra_asn1_value *obj) noexcept {
    return part<rsa_private_key, "privateExponent">(obj);
}

kovra_asn1_value *kovra_pkcs1rsaprivatekey_getprime1(const kovra_asn1_value *obj) noexcept {
    return part<rsa_private_key, "prime1">(obj);
}

kovra_asn1_value *kovra_pkcs1rsaprivatekey_getprime2(const kovra_asn1_value *obj) noexcept {
    return part<rsa_private_key, "prime2">(obj);
}

kovra_asn1_value *kovra_pkcs1rsaprivatekey_getexponent1(const kovra_asn1_value *obj) noexcept {
    return part<rsa_private_key, "exponent1">(obj);
}

kovra_asn1_value *kovra_pkcs1rsaprivatekey_getexponent2(const kovra_asn1_value *obj) noexcept {
    return part<rsa_private_key, "exponent2">(obj);
}

kovra_asn1_value *kovra_pkcs1rsaprivatekey_getcoefficient(const kovra_asn1_value *obj) noexcept {
    return part<rsa_private_key, "coefficient">(obj);
}

int32_t kovra_pkcs1rsaprivatekey_hasotherprimeinfos(const kovra_asn1_value *obj) noexcept {
    return has_part<rsa_private_key, "otherPrimeInfos">(obj);
}

kovra_asn1_value *kovra_pkcs1rsaprivatekey_getotherprimeinfos(const kovra_asn1_value *obj) noexcept {
    return part<rsa_private_key, "otherPrimeInfos">(obj);
}
