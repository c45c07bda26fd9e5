#ifndef KOVRA_UTIL_BITSET_H
#define KOVRA_UTIL_BITSET_H

#include <stdint.h>

#include "kovra/export.h"
#include "kovra/util_memory.h"

KOVRA_C_BEGIN

typedef struct kovra_bitset kovra_bitset;

KOVRA_UTIL_API kovra_bitset *kovra_bitset_new(int32_t unused_bits, const void *data, int32_t length) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_bitset *kovra_bitset_empty(void) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_bitset_set(kovra_bitset *set, int32_t bit) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_bitset_clear(kovra_bitset *set, int32_t bit) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_bitset_test(const kovra_bitset *set, int32_t bit) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_bitset_getsize(const kovra_bitset *set) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_data_blob *kovra_bitset_getdata(const kovra_bitset *set, int32_t *out_unused_bits) KOVRA_NOTHROW;
KOVRA_UTIL_API void kovra_bitset_free(kovra_bitset *set) KOVRA_NOTHROW;

KOVRA_C_END

#endif
