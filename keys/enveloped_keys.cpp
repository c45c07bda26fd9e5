// A key pair that an authority made, enveloped for the key that its owner signs with.

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_ecc.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_ECC";

// RSAEnvelopedKeyPair ::= SEQUENCE {
//     symAlgID                AlgorithmIdentifier,
//     symEncryptedKey         OCTET STRING,
//     rsaPublicKey            RSAPublicKey,
//     rsaEncryptedPrivateKey  OCTET STRING }
constexpr Component rsa_pair_components[] = {
    required("symAlgID", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("symEncryptedKey", KOVRA_ASN1_TYPE_OCTET_STRING),
    required("rsaPublicKey", KOVRA_ASN1_TYPE_RSA_PUBLIC_KEY),
    required("rsaEncryptedPrivateKey", KOVRA_ASN1_TYPE_OCTET_STRING),
};

// InnerEnvelopedKeyPair ::= CHOICE {
//     rsa  [1] EXPLICIT RSAEnvelopedKeyPair,
//     sm2  [0] EXPLICIT SM2EnvelopedKey }
// The alternatives are numbered 1 and 2, which are not their tags.
constexpr Component inner_alternatives[] = {
    required("rsa", KOVRA_ASN1_TYPE_RSA_ENVELOPED_KEY_PAIR, explicit_tag(1)),
    required("sm2", KOVRA_ASN1_TYPE_SM2_ENVELOPED_KEY, explicit_tag(0)),
};

// EnvelopedKeyPair ::= SEQUENCE {
//     signPublicKey  SubjectPublicKeyInfo,
//     envKeyPair     InnerEnvelopedKeyPair }
constexpr Component pair_components[] = {
    required("signPublicKey", KOVRA_ASN1_TYPE_SUBJECT_PUBLIC_KEY_INFO),
    required("envKeyPair", KOVRA_ASN1_TYPE_INNER_ENVELOPED_KEY_PAIR),
};

} // namespace

constexpr StructureShape rsa_enveloped_key_pair = structure(source, rsa_pair_components);
constexpr ChoiceShape inner_enveloped_key_pair = choice(source, inner_alternatives);
constexpr StructureShape enveloped_key_pair = structure(source, pair_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_rsaenvelopedkeypair_new(const kovra_asn1_value *sym_alg_id,
                                                const kovra_asn1_value *sym_encrypted_key,
                                                const kovra_asn1_value *public_key,
                                                const kovra_asn1_value *encrypted_private_key) noexcept {
    return construct<rsa_enveloped_key_pair>(sym_alg_id, sym_encrypted_key, public_key, encrypted_private_key);
}

kovra_asn1_value *kovra_rsaenvelopedkeypair_getsymalgid(const kovra_asn1_value *obj) noexcept {
    return part<rsa_enveloped_key_pair, "symAlgID">(obj);
}

kovra_asn1_value *kovra_rsaenvelopedkeypair_getsymencryptedkey(const kovra_asn1_value *obj) noexcept {
    return part<rsa_enveloped_key_pair, "symEncryptedKey">(obj);
}

kovra_asn1_value *kovra_rsaenvelopedkeypair_getrsapublickey(const kovra_asn1_value *obj) noexcept {
    return part<rsa_enveloped_key_pair, "rsaPublicKey">(obj);
}

kovra_asn1_value *kovra_rsaenvelopedkeypair_getrsaencryptedprivatekey(const kovra_asn1_value *obj) noexcept {
    return part<rsa_enveloped_key_pair, "rsaEncryptedPrivateKey">(obj);
}

kovra_asn1_value *kovra_innerenvelopedkeypair_newrsa(const kovra_asn1_value *rsa) noexcept {
    return construct_choice<inner_enveloped_key_pair, "rsa">(rsa);
}

kovra_asn1_value *kovra_innerenvelopedkeypair_newsm2(const kovra_asn1_value *sm2) noexcept {
    return construct_choice<inner_enveloped_key_pair, "sm2">(sm2);
}

int32_t kovra_innerenvelopedkeypair_gettype(const kovra_asn1_value *obj) noexcept {
    const Choice *choice = as_choice(inner_enveloped_key_pair, obj);
    return choice != nullptr ? static_cast<int32_t>(choice->alternative) + 1 : 0;
}

kovra_asn1_value *kovra_innerenvelopedkeypair_getrsa(const kovra_asn1_value *obj) noexcept {
    return chosen<inner_enveloped_key_pair, "rsa">(obj);
}

kovra_asn1_value *kovra_innerenvelopedkeypair_getsm2(const kovra_asn1_value *obj) noexcept {
    return chosen<inner_enveloped_key_pair, "sm2">(obj);
}

kovra_asn1_value *kovra_envelopedkeypair_new(const kovra_asn1_value *sign_public_key,
                                             const kovra_asn1_value *env_key_pair) noexcept {
    return construct<enveloped_key_pair>(sign_public_key, env_key_pair);
}

kovra_asn1_value *kovra_envelopedkeypair_getsignpubkey(const kovra_asn1_value *obj) noexcept {
    return part<enveloped_key_pair, "signPublicKey">(obj);
}

kovra_asn1_value *kovra_envelopedkeypair_getenvkeypair(const kovra_asn1_value *obj) noexcept {
    return part<enveloped_key_pair, "envKeyPair">(obj);
}
