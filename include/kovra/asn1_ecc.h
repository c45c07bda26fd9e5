/** @defgroup asn1_ecc Keys of elliptic curves
 * @ingroup kovra_asn1
 *
 * Keys of elliptic curves, ciphertexts of SM2, enveloped key pairs (RFC 3279, RFC 5915, GM/T 0009). What holds for all
 * structures stands in asn1_x509.h. Nothing is computed on a curve, encrypted or decrypted.
 *
 * EcpkParameters (type 201) and InnerEnvelopedKeyPair (type 206) are choices. Decoding: 0x102e5; 0x1020a when the
 * identifier begins no alternative; 0x102e7; the decode code of the alternative's type on top of what it recorded; for
 * InnerEnvelopedKeyPair 0x1020b or 0x102e9 when the value does not fill its tag. The content of a choice alone cannot
 * be decoded (0x1026d). A curve that is written out (alternative 1 of EcpkParameters) stays a list of ANYs: it comes
 * from decoding, and is read by encoding it and decoding it as type 25.
 *
 * @{ */
#ifndef KOVRA_ASN1_ECC_H
#define KOVRA_ASN1_ECC_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** @name Alternatives of EcpkParameters
 * @{ */
#define KOVRA_ASN1_ECPK_PARAMETERS_EC_PARAMETERS 1 /**< ecParameters */
#define KOVRA_ASN1_ECPK_PARAMETERS_NAMED_CURVE 2   /**< namedCurve */
#define KOVRA_ASN1_ECPK_PARAMETERS_IMPLICITLY_CA 3 /**< implicitlyCA */
/** @} */

/** kovra_ecpkparameters_new_namedcurve returns EcpkParameters (RFC 3279, 2.3.5) of alternative 2, namedCurve, an
 * OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ecpkparameters_new_namedcurve(const kovra_asn1_value *curve)
    KOVRA_NOTHROW;

/** kovra_ecpkparameters_new_implicitlyca returns EcpkParameters (RFC 3279, 2.3.5) of alternative 3, implicitlyCA,
 * which has no value. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ecpkparameters_new_implicitlyca(void) KOVRA_NOTHROW;

/** kovra_ecpkparameters_gettype returns the number of the alternative, 1 to 3; 0 for null and for a value of another
 * kind. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_ecpkparameters_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ecpkparameters_namedcurve returns namedCurve, an OBJECT IDENTIFIER; null when the value holds another
 * alternative. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ecpkparameters_namedcurve(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ecprivatekey_new returns an ECPrivateKey (RFC 5915, 3): version, an INTEGER; privateKey, an OCTET STRING;
 * parameters, EcpkParameters, or null; publicKey, a BIT STRING, or null. The version, 1 in the standard, is not
 * checked. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ecprivatekey_new(const kovra_asn1_value *version,
                                                                   const kovra_asn1_value *private_key,
                                                                   const kovra_asn1_value *parameters,
                                                                   const kovra_asn1_value *public_key) KOVRA_NOTHROW;

/** kovra_ecprivatekey_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ecprivatekey_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ecprivatekey_getprivkey returns privateKey, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ecprivatekey_getprivkey(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ecprivatekey_getparam returns parameters, EcpkParameters, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ecprivatekey_getparam(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ecprivatekey_getpubkey returns publicKey, a BIT STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ecprivatekey_getpubkey(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_sm2cipher_new returns an SM2Cipher (GM/T 0009): x, an INTEGER; y, an INTEGER; hash, an OCTET STRING;
 * ciphertext, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_sm2cipher_new(const kovra_asn1_value *x, const kovra_asn1_value *y,
                                                                const kovra_asn1_value *hash,
                                                                const kovra_asn1_value *ciphertext) KOVRA_NOTHROW;

/** kovra_sm2cipher_getx returns x, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_sm2cipher_getx(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_sm2cipher_gety returns y, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_sm2cipher_gety(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_sm2cipher_gethash returns hash, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_sm2cipher_gethash(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_sm2cipher_getciphertext returns ciphertext, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_sm2cipher_getciphertext(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_sm2envelopedkey_new returns an SM2EnvelopedKey (GM/T 0009): symAlgID, an AlgorithmIdentifier;
 * symEncryptedKey, an SM2Cipher; sm2PublicKey, a BIT STRING; sm2EncryptedPrivateKey, a BIT STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_sm2envelopedkey_new(
    const kovra_asn1_value *sym_alg_id, const kovra_asn1_value *sym_encrypted_key, const kovra_asn1_value *public_key,
    const kovra_asn1_value *encrypted_private_key) KOVRA_NOTHROW;

/** kovra_sm2envelopedkey_getsymalgid returns symAlgID, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_sm2envelopedkey_getsymalgid(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_sm2envelopedkey_getsymencryptedkey returns symEncryptedKey, an SM2Cipher. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_sm2envelopedkey_getsymencryptedkey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_sm2envelopedkey_getsm2publickey returns sm2PublicKey, a BIT STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_sm2envelopedkey_getsm2publickey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_sm2envelopedkey_getsm2encryptedprivatekey returns sm2EncryptedPrivateKey, a BIT STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_sm2envelopedkey_getsm2encryptedprivatekey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_rsaenvelopedkeypair_new returns an RSAEnvelopedKeyPair: symAlgID, an AlgorithmIdentifier; symEncryptedKey,
 * an OCTET STRING; rsaPublicKey, an RSAPublicKey; rsaEncryptedPrivateKey, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_rsaenvelopedkeypair_new(
    const kovra_asn1_value *sym_alg_id, const kovra_asn1_value *sym_encrypted_key, const kovra_asn1_value *public_key,
    const kovra_asn1_value *encrypted_private_key) KOVRA_NOTHROW;

/** kovra_rsaenvelopedkeypair_getsymalgid returns symAlgID, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_rsaenvelopedkeypair_getsymalgid(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_rsaenvelopedkeypair_getsymencryptedkey returns symEncryptedKey, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_rsaenvelopedkeypair_getsymencryptedkey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_rsaenvelopedkeypair_getrsapublickey returns rsaPublicKey, an RSAPublicKey. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_rsaenvelopedkeypair_getrsapublickey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_rsaenvelopedkeypair_getrsaencryptedprivatekey returns rsaEncryptedPrivateKey, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_rsaenvelopedkeypair_getrsaencryptedprivatekey(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** @name Alternatives of InnerEnvelopedKeyPair
 * @{ */
#define KOVRA_ASN1_INNER_ENVELOPED_KEY_PAIR_RSA 1 /**< rsa */
#define KOVRA_ASN1_INNER_ENVELOPED_KEY_PAIR_SM2 2 /**< sm2 */
/** @} */

/** kovra_innerenvelopedkeypair_newrsa returns an InnerEnvelopedKeyPair of alternative 1, rsa, an
 * RSAEnvelopedKeyPair. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_innerenvelopedkeypair_newrsa(const kovra_asn1_value *rsa)
    KOVRA_NOTHROW;

/** kovra_innerenvelopedkeypair_newsm2 returns an InnerEnvelopedKeyPair of alternative 2, sm2, an
 * SM2EnvelopedKey. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_innerenvelopedkeypair_newsm2(const kovra_asn1_value *sm2)
    KOVRA_NOTHROW;

/** kovra_innerenvelopedkeypair_gettype returns the number of the alternative, 1 or 2; 0 for null and for a value of
 * another kind. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_innerenvelopedkeypair_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_innerenvelopedkeypair_getrsa returns rsa, an RSAEnvelopedKeyPair; null when the value holds another
 * alternative. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_innerenvelopedkeypair_getrsa(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_innerenvelopedkeypair_getsm2 returns sm2, an SM2EnvelopedKey; null when the value holds another alternative.
 */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_innerenvelopedkeypair_getsm2(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_envelopedkeypair_new returns an EnvelopedKeyPair: signPublicKey, a SubjectPublicKeyInfo; envKeyPair, an
 * InnerEnvelopedKeyPair. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_envelopedkeypair_new(const kovra_asn1_value *sign_public_key, const kovra_asn1_value *env_key_pair) KOVRA_NOTHROW;

/** kovra_envelopedkeypair_getsignpubkey returns signPublicKey, a SubjectPublicKeyInfo. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_envelopedkeypair_getsignpubkey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_envelopedkeypair_getenvkeypair returns envKeyPair, an InnerEnvelopedKeyPair. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_envelopedkeypair_getenvkeypair(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
