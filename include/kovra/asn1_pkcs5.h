/** @defgroup asn1_pkcs5 Password-based encryption
 * @ingroup kovra_asn1
 *
 * Parameters of password-based encryption and message authentication, and of the ciphers RC2 and RC5 (PKCS #5, RFC
 * 8018). What holds for all structures stands in asn1_x509.h.
 *
 * The salt of a PBEParameter must have 8 octets: otherwise decoding and encoding give 0x10314. Iteration counts,
 * lengths and versions are not checked. prf is left out when it is encoded exactly as its default is, with NULL
 * parameters.
 *
 * The salt of PBKDF2-params (type 146) is a choice. Decoding: 0x102e5; 0x1020a for another identifier; 0x102e7; the
 * decode code of the alternative's type on top of what it recorded. Its content alone cannot be decoded (0x1026d).
 *
 * @{ */
#ifndef KOVRA_ASN1_PKCS5_H
#define KOVRA_ASN1_PKCS5_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_pkcs5pbeparam_new returns a PBEParameter (RFC 8018, A.3): salt, an OCTET STRING of 8 octets; iterationCount,
 * an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkcs5pbeparam_new(const kovra_asn1_value *salt, const kovra_asn1_value *iteration_count) KOVRA_NOTHROW;

/** kovra_pkcs5pbeparam_getsalt returns salt, an OCTET STRING of 8 octets. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbeparam_getsalt(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs5pbeparam_getiterationcount returns iterationCount, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbeparam_getiterationcount(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5pbkdf2params_new returns PBKDF2-params (RFC 8018, A.2): salt, a salt choice; iterationCount, an INTEGER;
 * keyLength, an INTEGER, or null; prf, an AlgorithmIdentifier, null for HMAC with SHA-1. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbkdf2params_new(const kovra_asn1_value *salt,
                                                                        const kovra_asn1_value *iteration_count,
                                                                        const kovra_asn1_value *key_length,
                                                                        const kovra_asn1_value *prf) KOVRA_NOTHROW;

/** kovra_pkcs5pbkdf2params_getsalt returns salt, a salt choice. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbkdf2params_getsalt(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs5pbkdf2params_getiterationcount returns iterationCount, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbkdf2params_getiterationcount(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5pbkdf2params_haskeylength returns 1 when keyLength is there, else 0. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs5pbkdf2params_haskeylength(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs5pbkdf2params_getkeylength returns keyLength, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbkdf2params_getkeylength(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5pbkdf2params_getprf returns prf, an AlgorithmIdentifier, HMAC with SHA-1 by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbkdf2params_getprf(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** @name Alternatives of the salt of PBKDF2-params
 * @{ */
#define KOVRA_ASN1_PBKDF2_SALT_SPECIFIED 0    /**< specified */
#define KOVRA_ASN1_PBKDF2_SALT_OTHER_SOURCE 1 /**< otherSource */
/** @} */

/** kovra_pkcs5pbkdf2salt_newspecified returns the salt of PBKDF2-params (RFC 8018, A.2) of alternative 0, specified,
 * an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbkdf2salt_newspecified(const kovra_asn1_value *specified)
    KOVRA_NOTHROW;

/** kovra_pkcs5pbkdf2salt_newothersource returns the salt of PBKDF2-params (RFC 8018, A.2) of alternative 1,
 * otherSource, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbkdf2salt_newothersource(const kovra_asn1_value *other_source)
    KOVRA_NOTHROW;

/** kovra_pkcs5pbkdf2salt_gettype returns the number of the alternative, 0 or 1; -1 for null and for a value of another
 * kind. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs5pbkdf2salt_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs5pbkdf2salt_getspecified returns specified, an OCTET STRING; null when the value holds another
 * alternative. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbkdf2salt_getspecified(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5pbkdf2salt_getothersource returns otherSource, an AlgorithmIdentifier; null when the value holds another
 * alternative. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbkdf2salt_getothersource(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5pbes2params_new returns PBES2-params (RFC 8018, A.4): keyDerivationFunc, an AlgorithmIdentifier;
 * encryptionScheme, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbes2params_new(
    const kovra_asn1_value *key_derivation_func, const kovra_asn1_value *encryption_scheme) KOVRA_NOTHROW;

/** kovra_pkcs5pbes2params_getkeyderivationfunc returns keyDerivationFunc, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbes2params_getkeyderivationfunc(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5pbes2params_getencryptionscheme returns encryptionScheme, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbes2params_getencryptionscheme(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5pbmac1params_new returns PBMAC1-params (RFC 8018, A.5): keyDerivationFunc, an AlgorithmIdentifier;
 * messageAuthScheme, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbmac1params_new(
    const kovra_asn1_value *key_derivation_func, const kovra_asn1_value *message_auth_scheme) KOVRA_NOTHROW;

/** kovra_pkcs5pbmac1params_getkeyderivationfunc returns keyDerivationFunc, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbmac1params_getkeyderivationfunc(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5pbmac1params_getmessageauthscheme returns messageAuthScheme, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5pbmac1params_getmessageauthscheme(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5rc2cbcparam_new returns an RC2-CBC-Parameter (RFC 8018, B.2.3): rc2ParameterVersion, an INTEGER, or
 * null; iv, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5rc2cbcparam_new(const kovra_asn1_value *parameter_version,
                                                                       const kovra_asn1_value *iv) KOVRA_NOTHROW;

/** kovra_pkcs5rc2cbcparam_hasrc2parameterversion returns 1 when rc2ParameterVersion is there, else 0. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs5rc2cbcparam_hasrc2parameterversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5rc2cbcparam_getrc2parameterversion returns rc2ParameterVersion, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5rc2cbcparam_getrc2parameterversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5rc2cbcparam_getiv returns iv, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5rc2cbcparam_getiv(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs5rc5cbcparam_new returns RC5-CBC-Parameters (RFC 8018, B.2.4): version, an INTEGER; rounds, an INTEGER;
 * blockSizeInBits, an INTEGER; iv, an OCTET STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5rc5cbcparam_new(const kovra_asn1_value *version,
                                                                       const kovra_asn1_value *rounds,
                                                                       const kovra_asn1_value *block_size_in_bits,
                                                                       const kovra_asn1_value *iv) KOVRA_NOTHROW;

/** kovra_pkcs5rc5cbcparam_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5rc5cbcparam_getversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5rc5cbcparam_getrounds returns rounds, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5rc5cbcparam_getrounds(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs5rc5cbcparam_getblocksizeinbits returns blockSizeInBits, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5rc5cbcparam_getblocksizeinbits(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs5rc5cbcparam_hasiv returns 1 when iv is there, else 0. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs5rc5cbcparam_hasiv(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs5rc5cbcparam_getiv returns iv, an OCTET STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs5rc5cbcparam_getiv(const kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
