// A ciphertext of SM2 and a key pair that is enveloped for an SM2 key (GM/T 0009).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_ecc.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_ECC";

// SM2Cipher ::= SEQUENCE {
//     x           INTEGER,
//     y           INTEGER,
//     hash        OCTET STRING,
//     ciphertext  OCTET STRING }
constexpr Component cipher_components[] = {
    required("x", KOVRA_ASN1_TYPE_INTEGER),
    required("y", KOVRA_ASN1_TYPE_INTEGER),
    required("hash", KOVRA_ASN1_TYPE_OCTET_STRING),
    required("ciphertext", KOVRA_ASN1_TYPE_OCTET_STRING),
};

// SM2EnvelopedKey ::= SEQUENCE {
//     symAlgID                AlgorithmIdentifier,
//     symEncryptedKey         SM2Cipher,
//     sm2PublicKey            BIT STRING,
//     sm2EncryptedPrivateKey  BIT STRING }
constexpr Component enveloped_components[] = {
    required("symAlgID", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("symEncryptedKey", KOVRA_ASN1_TYPE_SM2_CIPHER),
    required("sm2PublicKey", KOVRA_ASN1_TYPE_BIT_STRING),
    required("sm2EncryptedPrivateKey", KOVRA_ASN1_TYPE_BIT_STRING),
};

} // namespace

constexpr StructureShape sm2_cipher = structure(source, cipher_components);
constexpr StructureShape sm2_enveloped_key = structure(source, enveloped_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_sm2cipher_new(const kovra_asn1_value *x, const kovra_asn1_value *y,
                                      const kovra_asn1_value *hash, const kovra_asn1_value *ciphertext) noexcept {
    return construct<sm2_cipher>(x, y, hash, ciphertext);
}

kovra_asn1_value *kovra_sm2cipher_getx(const kovra_asn1_value *obj) noexcept {
    return part<sm2_cipher, "x">(obj);
}

kovra_asn1_value *kovra_sm2cipher_gety(const kovra_asn1_value *obj) noexcept {
    return part<sm2_cipher, "y">(obj);
}

kovra_asn1_value *kovra_sm2cipher_gethash(const kovra_asn1_value *obj) noexcept {
    return part<sm2_cipher, "hash">(obj);
}

kovra_asn1_value *kovra_sm2cipher_getciphertext(const kovra_asn1_value *obj) noexcept {
    return part<sm2_cipher, "ciphertext">(obj);
}

kovra_asn1_value *kovra_sm2envelopedkey_new(const kovra_asn1_value *sym_alg_id,
                                            const kovra_asn1_value *sym_encrypted_key,
                                            const kovra_asn1_value *public_key,
                                            const kovra_asn1_value *encrypted_private_key) noexcept {
    return construct<sm2_enveloped_key>(sym_alg_id, sym_encrypted_key, public_key, encrypted_private_key);
}

kovra_asn1_value *kovra_sm2envelopedkey_getsymalgid(const kovra_asn1_value *obj) noexcept {
    return part<sm2_enveloped_key, "symAlgID">(obj);
}

kovra_asn1_value *kovra_sm2envelopedkey_getsymencryptedkey(const kovra_asn1_value *obj) noexcept {
    return part<sm2_enveloped_key, "symEncryptedKey">(obj);
}

kovra_asn1_value *kovra_sm2envelopedkey_getsm2publickey(const kovra_asn1_value *obj) noexcept {
    return part<sm2_enveloped_key, "sm2PublicKey">(obj);
}

kovra_asn1_value *kovra_sm2envelopedkey_getsm2encryptedprivatekey(const kovra_asn1_value *obj) noexcept {
    return part<sm2_enveloped_key, "sm2EncryptedPrivateKey">(obj);
}
