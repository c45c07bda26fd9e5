/** @defgroup asn1_dss DSA and ECDSA
 * @ingroup kovra_asn1
 *
 * Signatures of DSA and ECDSA, parameters of DSA (RFC 3279). What holds for all structures stands in asn1_x509.h. The
 * two kinds of signatures (types 58 and 59) have the same components and are different kinds of values all the same.
 * Nothing about the numbers is checked.
 *
 * @{ */
#ifndef KOVRA_ASN1_DSS_H
#define KOVRA_ASN1_DSS_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_dsssigvalue_new returns a Dss-Sig-Value, a signature of DSA (RFC 3279, 2.2.2): r, an INTEGER; s, an INTEGER.
 */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dsssigvalue_new(const kovra_asn1_value *r,
                                                                  const kovra_asn1_value *s) KOVRA_NOTHROW;

/** kovra_dsssigvalue_getr returns r, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dsssigvalue_getr(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_dsssigvalue_gets returns s, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dsssigvalue_gets(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ecdsasigvalue_new returns an ECDSA-Sig-Value, a signature of ECDSA (RFC 3279, 2.2.3): r, an INTEGER; s, an
 * INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ecdsasigvalue_new(const kovra_asn1_value *r,
                                                                    const kovra_asn1_value *s) KOVRA_NOTHROW;

/** kovra_ecdsasigvalue_getr returns r, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ecdsasigvalue_getr(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ecdsasigvalue_gets returns s, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ecdsasigvalue_gets(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_dssparms_new returns Dss-Parms, the parameters of DSA (RFC 3279, 2.3.2): p, an INTEGER; q, an INTEGER; g, an
 * INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dssparms_new(const kovra_asn1_value *p, const kovra_asn1_value *q,
                                                               const kovra_asn1_value *g) KOVRA_NOTHROW;

/** kovra_dssparms_getp returns p, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dssparms_getp(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_dssparms_getq returns q, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dssparms_getq(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_dssparms_getg returns g, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dssparms_getg(const kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
