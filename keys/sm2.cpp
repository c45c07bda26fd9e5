// A ciphertext of SM2 and a key pair that is enveloped for an SM2 key (GM/T 0009).

#include "core/descriptors.hpp"
#include "core/structure.hpp"
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
namespace cipher {
enum Slot : uint8_t { x, y, hash, ciphertext };
constexpr Component components[] = {
    required("x", KOVRA_ASN1_TYPE_INTEGER),
    required("y", KOVRA_ASN1_TYPE_INTEGER),
    required("hash", KOVRA_ASN1_TYPE_OCTET_STRING),
    required("ciphertext", KOVRA_ASN1_TYPE_OCTET_STRING),
};
} // namespace cipher

// SM2EnvelopedKey ::= SEQUENCE {
//     symAlgID                AlgorithmIdentifier,
//     symEncryptedKey         SM2Cipher,
//     sm2PublicKey            BIT STRING,
//     sm2EncryptedPrivateKey  BIT STRING }
namespace enveloped {
enum Slot : uint8_t { sym_alg_id, sym_encrypted_key, public_key, encrypted_private_key };
constexpr Component components[] = {
    required("symAlgID", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("symEncryptedKey", KOVRA_ASN1_TYPE_SM2_CIPHER),
    required("sm2PublicKey", KOVRA_ASN1_TYPE_BIT_STRING),
    required("sm2EncryptedPrivateKey", KOVRA_ASN1_TYPE_BIT_STRING),
};
} // namespace enveloped

} // namespace

constexpr Structure sm2_cipher = structure(source, cipher::components);
constexpr Structure sm2_enveloped_key = structure(source, enveloped::components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_sm2cipher_new(const kovra_asn1_value *x, const kovra_asn1_value *y,
                                      const kovra_asn1_value *hash, const kovra_asn1_value *ciphertext) noexcept {
    return construct(sm2_cipher, x, y, hash, ciphertext);
}

kovra_asn1_value *kovra_sm2cipher_getx(const kovra_asn1_value *obj) noexcept {
    return component(sm2_cipher, obj, cipher::x);
}

kovra_asn1_value *kovra_sm2cipher_gety(const kovra_asn1_value *obj) noexcept {
    return component(sm2_cipher, obj, cipher::y);
}

kovra_asn1_value *kovra_sm2cipher_gethash(const kovra_asn1_value *obj) noexcept {
    return component(sm2_cipher, obj, cipher::hash);
}

kovra_asn1_value *kovra_sm2cipher_getciphertext(const kovra_asn1_value *obj) noexcept {
    return component(sm2_cipher, obj, cipher::ciphertext);
}

kovra_asn1_value *kovra_sm2envelopedkey_new(const kovra_asn1_value *sym_alg_id,
                                            const kovra_asn1_value *sym_encrypted_key,
                                            const kovra_asn1_value *public_key,
                                            const kovra_asn1_value *encrypted_private_key) noexcept {
    return construct(sm2_enveloped_key, sym_alg_id, sym_encrypted_key, public_key, encrypted_private_key);
}

kovra_asn1_value *kovra_sm2envelopedkey_getsymalgid(const kovra_asn1_value *obj) noexcept {
    return component(sm2_enveloped_key, obj, enveloped::sym_alg_id);
}

kovra_asn1_value *kovra_sm2envelopedkey_getsymencryptedkey(const kovra_asn1_value *obj) noexcept {
    return component(sm2_enveloped_key, obj, enveloped::sym_encrypted_key);
}

kovra_asn1_value *kovra_sm2envelopedkey_getsm2publickey(const kovra_asn1_value *obj) noexcept {
    return component(sm2_enveloped_key, obj, enveloped::public_key);
}

kovra_asn1_value *kovra_sm2envelopedkey_getsm2encryptedprivatekey(const kovra_asn1_value *obj) noexcept {
    return component(sm2_enveloped_key, obj, enveloped::encrypted_private_key);
}
