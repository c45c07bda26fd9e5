#ifndef KOVRA_UTIL_USTRING_H
#define KOVRA_UTIL_USTRING_H

#include <stdint.h>

#include "kovra/export.h"
#include "kovra/util_memory.h"

KOVRA_C_BEGIN

typedef struct kovra_ustring kovra_ustring;

KOVRA_UTIL_API kovra_ustring *kovra_ustring_newutf8(const void *octets, int32_t length) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_ustring *kovra_ustring_newutf32be(const void *octets, int32_t length) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_ustring *kovra_ustring_newutf16be(const void *octets, int32_t length) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_ustring *kovra_ustring_newbmp(const void *octets, int32_t length) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_data_blob *kovra_ustring_toutf8(const kovra_ustring *text) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_data_blob *kovra_ustring_toutf32be(const kovra_ustring *text) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_data_blob *kovra_ustring_toutf16be(const kovra_ustring *text) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_data_blob *kovra_ustring_tobmp(const kovra_ustring *text) KOVRA_NOTHROW;
KOVRA_UTIL_API void kovra_ustring_free(kovra_ustring *text) KOVRA_NOTHROW;

KOVRA_C_END

#endif
