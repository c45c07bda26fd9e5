/** @defgroup asn1_pkcs3 Diffie-Hellman parameters
 * @ingroup kovra_asn1
 *
 * Diffie-Hellman parameters (PKCS #3). What holds for all structures stands in asn1_x509.h. The parameters of X9.42,
 * with a subgroup (RFC 3279, 2.3.3), have three INTEGERs too or more: those of three are read as a DHParameter.
 *
 * @{ */
#ifndef KOVRA_ASN1_PKCS3_H
#define KOVRA_ASN1_PKCS3_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_pkcs3dhparam_new returns a DHParameter (PKCS #3, 9): prime, an INTEGER; base, an INTEGER; privateValueLength,
 * an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkcs3dhparam_new(const kovra_asn1_value *prime, const kovra_asn1_value *base,
                       const kovra_asn1_value *private_value_length) KOVRA_NOTHROW;

/** kovra_pkcs3dhparam_getprime returns prime, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs3dhparam_getprime(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs3dhparam_getbase returns base, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs3dhparam_getbase(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs3dhparam_hasprivatevaluelength returns 1 when privateValueLength is there, else 0. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs3dhparam_hasprivatevaluelength(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs3dhparam_getprivatevaluelength returns privateValueLength, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs3dhparam_getprivatevaluelength(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
