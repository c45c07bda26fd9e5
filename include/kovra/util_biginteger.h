/** @defgroup util_biginteger Big integers
 * @ingroup kovra_util
 *
 * Whole numbers of any size, as two's-complement octets, the most significant first.
 *
 * @{ */
#ifndef KOVRA_UTIL_BIGINTEGER_H
#define KOVRA_UTIL_BIGINTEGER_H

#include <stdint.h>

#include "kovra/export.h"
#include "kovra/util_memory.h"

KOVRA_C_BEGIN

/** A whole number. */
typedef struct kovra_biginteger kovra_biginteger;

/** kovra_biginteger_newdata returns a number that keeps a copy of `length` two's-complement octets just as they are,
 * redundant leading ones included. Null for null data, a length below 1, and when memory is short. Numbers are
 * released with kovra_biginteger_free. */
KOVRA_UTIL_API kovra_biginteger *KOVRA_CALL kovra_biginteger_newdata(const void *data, int32_t length) KOVRA_NOTHROW;

/** kovra_biginteger_getdata returns a new blob with the octets that the number keeps; null for null and when memory is
 * short. The caller frees it with kovra_data_blob_free. */
KOVRA_UTIL_API kovra_data_blob *KOVRA_CALL kovra_biginteger_getdata(const kovra_biginteger *number) KOVRA_NOTHROW;

/** kovra_biginteger_dup returns a copy with the same octets; null for null and when memory is short. */
KOVRA_UTIL_API kovra_biginteger *KOVRA_CALL kovra_biginteger_dup(const kovra_biginteger *number) KOVRA_NOTHROW;

/** kovra_biginteger_free releases the number. Null is ignored. */
KOVRA_UTIL_API void KOVRA_CALL kovra_biginteger_free(kovra_biginteger *number) KOVRA_NOTHROW;

/** kovra_biginteger_compare stores -1, 0 or 1 in `*out_order` as the left value is below, equal to or above the right
 * one, and returns 1; 0 when an argument is null. Values are compared, not octets: 7F and 00 7F are equal. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_biginteger_compare(const kovra_biginteger *left, const kovra_biginteger *right,
                                                           int32_t *out_order) KOVRA_NOTHROW;

/** kovra_biginteger_todecimal returns the value as zero-terminated decimal text, with a minus sign where negative and
 * without leading zeros, released with kovra_free; null for null and when memory is short. n octets take
 * O(n log^2 n) steps (products by number-theoretic transforms, on halves) and at most 14n octets of memory on the way:
 * microseconds for a key, less than a second for two million digits. */
KOVRA_UTIL_API char *KOVRA_CALL kovra_biginteger_todecimal(const kovra_biginteger *number) KOVRA_NOTHROW;

/** kovra_biginteger_tohex returns the value as zero-terminated lower-case hexadecimal text of its magnitude, with a
 * minus sign where negative and without leading zeros ("-1f" for -31, "0" for 0), released with kovra_free; null for
 * null and when memory is short. Linear. */
KOVRA_UTIL_API char *KOVRA_CALL kovra_biginteger_tohex(const kovra_biginteger *number) KOVRA_NOTHROW;

/** kovra_biginteger_newdecimal returns the number of a decimal text, in as few octets as possible: an optional minus
 * sign and one or more digits, nothing else. Leading zeros are allowed, and "-0" is 0. Null for null, any other text,
 * and when memory is short. The cost is that of kovra_biginteger_todecimal. */
KOVRA_UTIL_API kovra_biginteger *KOVRA_CALL kovra_biginteger_newdecimal(const char *text) KOVRA_NOTHROW;

/** kovra_biginteger_newhex is kovra_biginteger_newdecimal for hexadecimal digits of either case, without a prefix.
 * Linear. */
KOVRA_UTIL_API kovra_biginteger *KOVRA_CALL kovra_biginteger_newhex(const char *text) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
