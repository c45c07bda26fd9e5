/** @defgroup asn1_pkcs1 RSA keys
 * @ingroup kovra_asn1
 *
 * RSA keys, parameters of RSA algorithms, digests (PKCS #1, RFC 8017).
 *
 * What holds for all structures stands in asn1_x509.h. OtherPrimeInfos (type 145) is a list (asn1_list.h) of
 * OtherPrimeInfo (type 144); an empty one is refused with 0x1020c.
 *
 * The version of an RSAPrivateKey must be 0 without other primes and 1 with them: otherwise decoding gives 0x10303,
 * when everything has been read, and so does encoding. Nothing else about the numbers is checked.
 *
 * A DEFAULT component of the parameters of RSAES-OAEP and RSASSA-PSS is left out when it is encoded exactly as the
 * default is. SHA-1 without parameters, where the default has NULL, is another value and is written.
 *
 * @{ */
#ifndef KOVRA_ASN1_PKCS1_H
#define KOVRA_ASN1_PKCS1_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_pkcs1rsapublickey_new returns an RSAPublicKey (RFC 8017, A.1.1): modulus, an INTEGER; publicExponent, an
 * INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkcs1rsapublickey_new(const kovra_asn1_value *modulus, const kovra_asn1_value *public_exponent) KOVRA_NOTHROW;

/** kovra_pkcs1rsapublickey_getmodulus returns modulus, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsapublickey_getmodulus(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1rsapublickey_getpublicexponent returns publicExponent, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsapublickey_getpublicexponent(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1rsaprivatekey_new returns an RSAPrivateKey (RFC 8017, A.1.2): version, an INTEGER; modulus, an INTEGER;
 * publicExponent, an INTEGER; privateExponent, an INTEGER; prime1, an INTEGER; prime2, an INTEGER; exponent1, an
 * INTEGER; exponent2, an INTEGER; coefficient, an INTEGER; otherPrimeInfos, a list of OtherPrimeInfos, or null. Null
 * too when version is not 0 without other primes and 1 with them, or the list of them is empty. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsaprivatekey_new(
    const kovra_asn1_value *version, const kovra_asn1_value *modulus, const kovra_asn1_value *public_exponent,
    const kovra_asn1_value *private_exponent, const kovra_asn1_value *prime1, const kovra_asn1_value *prime2,
    const kovra_asn1_value *exponent1, const kovra_asn1_value *exponent2, const kovra_asn1_value *coefficient,
    const kovra_asn1_value *other_primes) KOVRA_NOTHROW;

/** kovra_pkcs1rsaprivatekey_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsaprivatekey_getversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1rsaprivatekey_getmodulus returns modulus, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsaprivatekey_getmodulus(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1rsaprivatekey_getpublicexponent returns publicExponent, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsaprivatekey_getpublicexponent(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1rsaprivatekey_getprivateexponent returns privateExponent, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsaprivatekey_getprivateexponent(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1rsaprivatekey_getprime1 returns prime1, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsaprivatekey_getprime1(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1rsaprivatekey_getprime2 returns prime2, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsaprivatekey_getprime2(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1rsaprivatekey_getexponent1 returns exponent1, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsaprivatekey_getexponent1(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1rsaprivatekey_getexponent2 returns exponent2, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsaprivatekey_getexponent2(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1rsaprivatekey_getcoefficient returns coefficient, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsaprivatekey_getcoefficient(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1rsaprivatekey_hasotherprimeinfos returns 1 when otherPrimeInfos is there, else 0. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs1rsaprivatekey_hasotherprimeinfos(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1rsaprivatekey_getotherprimeinfos returns otherPrimeInfos, a list of OtherPrimeInfos, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1rsaprivatekey_getotherprimeinfos(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1otherprimeinfo_new returns an OtherPrimeInfo (RFC 8017, A.1.2): prime, an INTEGER; exponent, an INTEGER;
 * coefficient, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1otherprimeinfo_new(
    const kovra_asn1_value *prime, const kovra_asn1_value *exponent, const kovra_asn1_value *coefficient) KOVRA_NOTHROW;

/** kovra_pkcs1otherprimeinfo_getprime returns prime, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1otherprimeinfo_getprime(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1otherprimeinfo_getexponent returns exponent, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1otherprimeinfo_getexponent(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1otherprimeinfo_getcoefficient returns coefficient, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1otherprimeinfo_getcoefficient(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1oaepparams_new returns RSAES-OAEP-params (RFC 8017, A.2.1): hashAlgorithm, an AlgorithmIdentifier, null
 * for SHA-1 with NULL parameters; maskGenAlgorithm, an AlgorithmIdentifier, null for MGF1 with that SHA-1;
 * pSourceAlgorithm, an AlgorithmIdentifier, null for pSpecified with the empty label. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkcs1oaepparams_new(const kovra_asn1_value *hash_algorithm, const kovra_asn1_value *mask_gen_algorithm,
                          const kovra_asn1_value *p_source_algorithm) KOVRA_NOTHROW;

/** kovra_pkcs1oaepparams_gethashalgorithm returns hashAlgorithm, an AlgorithmIdentifier, SHA-1 with NULL parameters by
 * default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1oaepparams_gethashalgorithm(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1oaepparams_getmaskgenalgorithm returns maskGenAlgorithm, an AlgorithmIdentifier, MGF1 with that SHA-1 by
 * default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1oaepparams_getmaskgenalgorithm(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1oaepparams_getpsourcealgorithm returns pSourceAlgorithm, an AlgorithmIdentifier, pSpecified with the
 * empty label by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1oaepparams_getpsourcealgorithm(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1pssparams_new returns RSASSA-PSS-params (RFC 8017, A.2.3): hashAlgorithm, an AlgorithmIdentifier, null
 * for SHA-1 with NULL parameters; maskGenAlgorithm, an AlgorithmIdentifier, null for MGF1 with that SHA-1;
 * saltLength, an INTEGER, null for 20; trailerField, an INTEGER, null for 1. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkcs1pssparams_new(const kovra_asn1_value *hash_algorithm, const kovra_asn1_value *mask_gen_algorithm,
                         const kovra_asn1_value *salt_length, const kovra_asn1_value *trailer_field) KOVRA_NOTHROW;

/** kovra_pkcs1pssparams_gethashalgorithm returns hashAlgorithm, an AlgorithmIdentifier, SHA-1 with NULL parameters by
 * default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1pssparams_gethashalgorithm(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1pssparams_getmaskgenalgorithm returns maskGenAlgorithm, an AlgorithmIdentifier, MGF1 with that SHA-1 by
 * default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1pssparams_getmaskgenalgorithm(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1pssparams_getsaltlength returns saltLength, an INTEGER, 20 by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1pssparams_getsaltlength(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1pssparams_gettrailerfield returns trailerField, an INTEGER, 1 by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1pssparams_gettrailerfield(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1digestinfo_new returns a DigestInfo (RFC 8017, A.2.4): digestAlgorithm, an AlgorithmIdentifier; digest,
 * an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1digestinfo_new(const kovra_asn1_value *digest_algorithm,
                                                                      const kovra_asn1_value *digest) KOVRA_NOTHROW;

/** kovra_pkcs1digestinfo_getdigestalgorithm returns digestAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1digestinfo_getdigestalgorithm(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs1digestinfo_getdigest returns digest, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs1digestinfo_getdigest(const kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
