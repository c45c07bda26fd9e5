/** @defgroup asn1_integer INTEGER and ENUMERATED
 * @ingroup kovra_asn1
 *
 * INTEGER (type 2) and ENUMERATED (type 7): one record (X.690 clauses 8.3 and 8.4).
 *
 * Decoding keeps the content octets as they are, and writes them so again. A content that is not minimal is accepted,
 * with the entry 0x102e3 as a warning: the only entry that a successful call leaves. Codes of decoding the content:
 * 0x10002, 0x1026a (constructed), 0x10206 (indefinite), 0x10203 (empty), 0x10000. Encoding the content: 0x10002,
 * 0x10203 (another length).
 *
 * @{ */
#ifndef KOVRA_ASN1_INTEGER_H
#define KOVRA_ASN1_INTEGER_H

#include "kovra/asn1_value.h"
#include "kovra/util_biginteger.h"

KOVRA_C_BEGIN

/** kovra_asn1_integer_value returns a new INTEGER of the number, in as few octets as possible. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_integer_value(int32_t number) KOVRA_NOTHROW;

/** kovra_asn1_enum_value is kovra_asn1_integer_value: one record serves both types. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_enum_value(int32_t number) KOVRA_NOTHROW;

/** kovra_asn1_integer_new returns a new INTEGER of `length` two's-complement octets, the most significant first,
 * without redundant leading ones. Null for null octets, a length below 1, and when memory is short. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_integer_new(const void *octets, int32_t length) KOVRA_NOTHROW;

/** kovra_asn1_unsigned_integer_new returns a new INTEGER of an unsigned magnitude, which may have leading zero octets.
 * Null as kovra_asn1_integer_new. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_unsigned_integer_new(const void *magnitude,
                                                                            int32_t length) KOVRA_NOTHROW;

/** kovra_asn1_integer_newbigint returns a new INTEGER of a big integer, which stays the caller's; null for null and
 * when memory is short. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_integer_newbigint(const kovra_biginteger *number) KOVRA_NOTHROW;

/** kovra_asn1_integer_getbigintger returns a new big integer of the value, released with kovra_biginteger_free; null
 * for null and when memory is short. */
KOVRA_ASN1_API kovra_biginteger *KOVRA_CALL kovra_asn1_integer_getbigintger(const kovra_asn1_value *integer)
    KOVRA_NOTHROW;

/** kovra_asn1_integer_get copies the content octets into a buffer of at least kovra_asn1_integer_getlength octets and
 * returns 1; 0 for a null argument. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_integer_get(const kovra_asn1_value *integer, void *buffer) KOVRA_NOTHROW;

/** kovra_asn1_integer_getlength returns the number of content octets; -2 for null. It also takes an object identifier.
 */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_integer_getlength(const kovra_asn1_value *integer) KOVRA_NOTHROW;

/** kovra_asn1_integer_getlong stores the number and returns 1; 0, with nothing recorded, for a null argument and a
 * number outside -2,147,483,647 to 2,147,483,647. -2,147,483,648 is refused, although kovra_asn1_integer_value makes
 * it. Redundant leading octets do not matter. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_integer_getlong(const kovra_asn1_value *integer,
                                                             int32_t *out_number) KOVRA_NOTHROW;

/** kovra_asn1_enum_getlong is kovra_asn1_integer_getlong. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_enum_getlong(const kovra_asn1_value *integer,
                                                          int32_t *out_number) KOVRA_NOTHROW;

/** kovra_asn1_integer_equals returns 1 when both have the same content octets, or both are null; else 0. Octets are
 * compared, not numbers: 01 and 00 01, which a decoder may give, differ. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_integer_equals(const kovra_asn1_value *left,
                                                            const kovra_asn1_value *right) KOVRA_NOTHROW;

/** kovra_asn1_integer_encodecmp orders by encoding, not by number: null first, then by the number of content octets,
 * then by the octets as unsigned numbers; -1, 0 or 1. So -1 (FF) comes after 1 (01). A value of another kind counts as
 * null. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_integer_encodecmp(const kovra_asn1_value *left,
                                                               const kovra_asn1_value *right) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
