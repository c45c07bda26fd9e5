/** @defgroup asn1_pkcs8 Private keys
 * @ingroup kovra_asn1
 *
 * Private keys of any algorithm, plain and encrypted (PKCS #8, RFC 5958). What holds for all structures stands in
 * asn1_x509.h. Neither version nor key is looked at: the caller who knows the algorithm decodes privateKey with
 * kovra_asn1_octetstring_getobject and the type of the key, for example 99 for RSA and 202 for elliptic curves. A key
 * is encrypted and decrypted by the caller. Attributes are those of certification requests (types 43 and 44); the set
 * is written in the order of the list.
 *
 * @{ */
#ifndef KOVRA_ASN1_PKCS8_H
#define KOVRA_ASN1_PKCS8_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_pkcs8privkeyinfo_new returns a PrivateKeyInfo (RFC 5958, 2): version, an INTEGER; privateKeyAlgorithm, an
 * AlgorithmIdentifier; privateKey, an OCTET STRING; attributes, a list of Attributes, or null. There is no publicKey.
 */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkcs8privkeyinfo_new(const kovra_asn1_value *version, const kovra_asn1_value *private_key_algorithm,
                           const kovra_asn1_value *private_key, const kovra_asn1_value *attributes) KOVRA_NOTHROW;

/** kovra_pkcs8privkeyinfo_new_with_pubkey returns a PrivateKeyInfo with publicKey, a BIT STRING that may be null,
 * behind the other components. Such a one has version 1 (RFC 5958). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs8privkeyinfo_new_with_pubkey(
    const kovra_asn1_value *version, const kovra_asn1_value *private_key_algorithm, const kovra_asn1_value *private_key,
    const kovra_asn1_value *attributes, const kovra_asn1_value *public_key) KOVRA_NOTHROW;

/** kovra_pkcs8privkeyinfo_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs8privkeyinfo_getversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs8privkeyinfo_getprivatekeyalgorithm returns privateKeyAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs8privkeyinfo_getprivatekeyalgorithm(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs8privkeyinfo_getprivatekey returns privateKey, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs8privkeyinfo_getprivatekey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs8privkeyinfo_hasattributes returns 1 when attributes is there, else 0. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs8privkeyinfo_hasattributes(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs8privkeyinfo_getattributes returns attributes, a list of Attributes, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs8privkeyinfo_getattributes(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs8privkeyinfo_haspublickey returns 1 when publicKey is there, else 0. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs8privkeyinfo_haspublickey(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs8privkeyinfo_getpublickey returns publicKey, a BIT STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs8privkeyinfo_getpublickey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs8encryptedprivkeyinfo_new returns an EncryptedPrivateKeyInfo (RFC 5958, 3): encryptionAlgorithm, an
 * AlgorithmIdentifier; encryptedData, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs8encryptedprivkeyinfo_new(
    const kovra_asn1_value *encryption_algorithm, const kovra_asn1_value *encrypted_data) KOVRA_NOTHROW;

/** kovra_pkcs8encryptedprivkeyinfo_getencryptionalgorithm returns encryptionAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkcs8encryptedprivkeyinfo_getencryptionalgorithm(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs8encryptedprivkeyinfo_getencrypteddata returns encryptedData, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkcs8encryptedprivkeyinfo_getencrypteddata(const kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
