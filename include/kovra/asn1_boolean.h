/** @defgroup asn1_boolean BOOLEAN
 * @ingroup kovra_asn1
 *
 * BOOLEAN (type 1; X.690 clauses 8.2 and 11.1).
 *
 * Decoding takes every octet but 00 for TRUE and does not keep it: TRUE is written as FF. Codes of decoding the
 * content: 0x10002, 0x1026a (constructed), 0x10206 (indefinite), 0x10203 (length not 1), 0x10000. Encoding the content
 * with another length than 1 records 0x10203 with the companion's text for it, which is empty; so does NULL.
 *
 * @{ */
#ifndef KOVRA_ASN1_BOOLEAN_H
#define KOVRA_ASN1_BOOLEAN_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_asn1_boolean_true returns a new BOOLEAN that is TRUE, written as 01 01 FF; null when memory is short. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_boolean_true(void) KOVRA_NOTHROW;

/** kovra_asn1_boolean_false returns a new BOOLEAN that is FALSE, written as 01 01 00; null when memory is short. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_boolean_false(void) KOVRA_NOTHROW;

/** kovra_asn1_boolean_istrue returns 1 for TRUE and 0 for FALSE, null and a value of another kind. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_boolean_istrue(const kovra_asn1_value *value) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
