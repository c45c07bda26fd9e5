// Parameters of password-based encryption and message authentication (PKCS #5, RFC 8018, A.2 to A.5).

#include "core/content.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_octetstring.h"
#include "kovra/asn1_pkcs5.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS5";

// AlgorithmIdentifier { id-hmacWithSHA1, NULL }
constexpr uint8_t hmac_sha1[] = {0x30, 0x0C, 0x06, 0x08, 0x2A, 0x86, 0x48, 0x86, 0xF7, 0x0D, 0x02, 0x07, 0x05, 0x00};
constexpr const Default &default_prf = default_encoding<KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, hmac_sha1>;

// PBEParameter ::= SEQUENCE {
//     salt            OCTET STRING (SIZE (8)),
//     iterationCount  INTEGER }
constexpr Component pbe_components[] = {
    required("salt", KOVRA_ASN1_TYPE_OCTET_STRING),
    required("iterationCount", KOVRA_ASN1_TYPE_INTEGER),
};

bool has_salt_of_8(const Structure &record) {
    return has_octets(record.slot(slot_of(pbe_components, "salt")), 8);
}
constexpr int32_t bad_salt = 0x10314;

// CHOICE {
//     specified    OCTET STRING,
//     otherSource  AlgorithmIdentifier }
constexpr Component salt_choice_alternatives[] = {
    required("specified", KOVRA_ASN1_TYPE_OCTET_STRING),
    required("otherSource", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
};

// PBKDF2-params ::= SEQUENCE {
//     salt            CHOICE { ... },
//     iterationCount  INTEGER,
//     keyLength       INTEGER OPTIONAL,
//     prf             AlgorithmIdentifier DEFAULT algid-hmacWithSHA1 }
constexpr Component pbkdf2_components[] = {
    required("salt", KOVRA_ASN1_TYPE_PBKDF2_SALT),
    required("iterationCount", KOVRA_ASN1_TYPE_INTEGER),
    optional("keyLength", KOVRA_ASN1_TYPE_INTEGER),
    defaulted("prf", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, default_prf),
};

// PBES2-params ::= SEQUENCE {
//     keyDerivationFunc  AlgorithmIdentifier,
//     encryptionScheme   AlgorithmIdentifier }
constexpr Component pbes2_components[] = {
    required("keyDerivationFunc", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("encryptionScheme", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
};

// PBMAC1-params ::= SEQUENCE {
//     keyDerivationFunc  AlgorithmIdentifier,
//     messageAuthScheme  AlgorithmIdentifier }
constexpr Component pbmac1_components[] = {
    required("keyDerivationFunc", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("messageAuthScheme", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
};

} // namespace

constexpr StructureShape pbe_parameter = restricted(source, pbe_components, has_salt_of_8, bad_salt);
constexpr ChoiceShape pbkdf2_salt = choice(source, salt_choice_alternatives);
constexpr StructureShape pbkdf2_params = structure(source, pbkdf2_components);
constexpr StructureShape pbes2_params = structure(source, pbes2_components);
constexpr StructureShape pbmac1_params = structure(source, pbmac1_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs5pbeparam_new(const kovra_asn1_value *salt,
                                          const kovra_asn1_value *iteration_count) noexcept {
    return construct<pbe_parameter>(salt, iteration_count);
}

kovra_asn1_value *kovra_pkcs5pbeparam_getsalt(const kovra_asn1_value *obj) noexcept {
    return part<pbe_parameter, "salt">(obj);
}

kovra_asn1_value *kovra_pkcs5pbeparam_getiterationcount(const kovra_asn1_value *obj) noexcept {
    return part<pbe_parameter, "iterationCount">(obj);
}

kovra_asn1_value *kovra_pkcs5pbkdf2salt_newspecified(const kovra_asn1_value *specified) noexcept {
    return construct_choice<pbkdf2_salt, "specified">(specified);
}

kovra_asn1_value *kovra_pkcs5pbkdf2salt_newothersource(const kovra_asn1_value *other_source) noexcept {
    return construct_choice<pbkdf2_salt, "otherSource">(other_source);
}

int32_t kovra_pkcs5pbkdf2salt_gettype(const kovra_asn1_value *obj) noexcept {
    const Choice *choice = as_choice(pbkdf2_salt, obj);
    return choice != nullptr ? static_cast<int32_t>(choice->alternative) : -1;
}

kovra_asn1_value *kovra_pkcs5pbkdf2salt_getspecified(const kovra_asn1_value *obj) noexcept {
    return chosen<pbkdf2_salt, "specified">(obj);
}

kovra_asn1_value *kovra_pkcs5pbkdf2salt_getothersource(const kovra_asn1_value *obj) noexcept {
    return chosen<pbkdf2_salt, "otherSource">(obj);
}

kovra_asn1_value *kovra_pkcs5pbkdf2params_new(const kovra_asn1_value *salt, const kovra_asn1_value *iteration_count,
                                              const kovra_asn1_value *key_length,
                                              const kovra_asn1_value *prf) noexcept {
    return construct<pbkdf2_params>(salt, iteration_count, key_length, prf);
}

kovra_asn1_value *kovra_pkcs5pbkdf2params_getsalt(const kovra_asn1_value *obj) noexcept {
    return part<pbkdf2_params, "salt">(obj);
}

kovra_asn1_value *kovra_pkcs5pbkdf2params_getiterationcount(const kovra_asn1_value *obj) noexcept {
    return part<pbkdf2_params, "iterationCount">(obj);
}

int32_t kovra_pkcs5pbkdf2params_haskeylength(const kovra_asn1_value *obj) noexcept {
    return has_part<pbkdf2_params, "keyLength">(obj);
}

kovra_asn1_value *kovra_pkcs5pbkdf2params_getkeylength(const kovra_asn1_value *obj) noexcept {
    return part<pbkdf2_params, "keyLength">(obj);
}

kovra_asn1_value *kovra_pkcs5pbkdf2params_getprf(const kovra_asn1_value *obj) noexcept {
    return part<pbkdf2_params, "prf">(obj);
}

kovra_asn1_value *kovra_pkcs5pbes2params_new(const kovra_asn1_value *key_derivation_func,
                                             const kovra_asn1_value *encryption_scheme) noexcept {
    return construct<pbes2_params>(key_derivation_func, encryption_scheme);
}

kovra_asn1_value *kovra_pkcs5pbes2params_getkeyderivationfunc(const kovra_asn1_value *obj) noexcept {
    return part<pbes2_params, "keyDerivationFunc">(obj);
}

kovra_asn1_value *kovra_pkcs5pbes2params_getencryptionscheme(const kovra_asn1_value *obj) noexcept {
    return part<pbes2_params, "encryptionScheme">(obj);
}

kovra_asn1_value *kovra_pkcs5pbmac1params_new(const kovra_asn1_value *key_derivation_func,
                                              const kovra_asn1_value *message_auth_scheme) noexcept {
    return construct<pbmac1_params>(key_derivation_func, message_auth_scheme);
}

kovra_asn1_value *kovra_pkcs5pbmac1params_getkeyderivationfunc(const kovra_asn1_value *obj) noexcept {
    return part<pbmac1_params, "keyDerivationFunc">(obj);
}

kovra_asn1_value *kovra_pkcs5pbmac1params_getmessageauthscheme(const kovra_asn1_value *obj) noexcept {
    return part<pbmac1_params, "messageAuthScheme">(obj);
}
