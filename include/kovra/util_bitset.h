/** @defgroup util_bitset Bit sets
 * @ingroup kovra_util
 *
 * Growing sets of bits, numbered as ASN.1 does: bit 0 is the most significant bit of the first octet.
 *
 * @{ */
#ifndef KOVRA_UTIL_BITSET_H
#define KOVRA_UTIL_BITSET_H

#include <stdint.h>

#include "kovra/export.h"
#include "kovra/util_memory.h"

KOVRA_C_BEGIN

/** A set of bits. */
typedef struct kovra_bitset kovra_bitset;

/** kovra_bitset_new returns a set of the bits in `length` octets without the last `unused_bits` (0 to 7) of them,
 * released with kovra_bitset_free. Null when the length is negative, when it is positive and the data are null, when
 * it is 0 and unused_bits is not, when unused_bits is out of range, when the bits are more than 2,147,483,647, and
 * when memory is short. */
KOVRA_UTIL_API kovra_bitset *KOVRA_CALL kovra_bitset_new(int32_t unused_bits, const void *data,
                                                         int32_t length) KOVRA_NOTHROW;

/** kovra_bitset_empty returns a set of no bits, or null when memory is short. */
KOVRA_UTIL_API kovra_bitset *KOVRA_CALL kovra_bitset_empty(void) KOVRA_NOTHROW;

/** kovra_bitset_set sets a bit and returns 1. A bit beyond the size makes the set grow to end with it; the bits between
 * are 0. Returns 0, the set unchanged, for null, a negative bit, the bit 2,147,483,647, and when memory is short. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_bitset_set(kovra_bitset *set, int32_t bit) KOVRA_NOTHROW;

/** kovra_bitset_clear clears a bit; everything else, growing included, is as with kovra_bitset_set, so a set filled bit
 * by bit keeps the clear bits at its end. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_bitset_clear(kovra_bitset *set, int32_t bit) KOVRA_NOTHROW;

/** kovra_bitset_test returns 1 when the bit is set; 0 when it is clear or outside the set, and for null. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_bitset_test(const kovra_bitset *set, int32_t bit) KOVRA_NOTHROW;

/** kovra_bitset_getsize returns the number of bits; 0 for null. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_bitset_getsize(const kovra_bitset *set) KOVRA_NOTHROW;

/** kovra_bitset_getdata returns a new blob with the octets of the set, unused bits 0, and stores the number of unused
 * bits of the last octet in `*out_unused_bits` (may be null). Null, with 0 stored, for null and when memory is short.
 * The caller frees the blob with kovra_data_blob_free. */
KOVRA_UTIL_API kovra_data_blob *KOVRA_CALL kovra_bitset_getdata(const kovra_bitset *set,
                                                                int32_t *out_unused_bits) KOVRA_NOTHROW;

/** kovra_bitset_free releases the set. Null is ignored. */
KOVRA_UTIL_API void KOVRA_CALL kovra_bitset_free(kovra_bitset *set) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
