#ifndef KOVRA_UTIL_BIGINTEGER_H
#define KOVRA_UTIL_BIGINTEGER_H

#include <stdint.h>

#include "kovra/export.h"
#include "kovra/util_memory.h"

KOVRA_C_BEGIN

typedef struct kovra_biginteger kovra_biginteger;

KOVRA_UTIL_API kovra_biginteger *kovra_biginteger_newdata(const void *data, int32_t length) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_data_blob *kovra_biginteger_getdata(const kovra_biginteger *number) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_biginteger *kovra_biginteger_dup(const kovra_biginteger *number) KOVRA_NOTHROW;
KOVRA_UTIL_API void kovra_biginteger_free(kovra_biginteger *number) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_biginteger_compare(const kovra_biginteger *left, const kovra_biginteger *right,
                                                int32_t *out_order) KOVRA_NOTHROW;
KOVRA_UTIL_API char *kovra_biginteger_todecimal(const kovra_biginteger *number) KOVRA_NOTHROW;
KOVRA_UTIL_API char *kovra_biginteger_tohex(const kovra_biginteger *number) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_biginteger *kovra_biginteger_newdecimal(const char *text) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_biginteger *kovra_biginteger_newhex(const char *text) KOVRA_NOTHROW;

KOVRA_C_END

#endif
