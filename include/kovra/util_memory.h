#ifndef KOVRA_UTIL_MEMORY_H
#define KOVRA_UTIL_MEMORY_H

#include <stddef.h>
#include <stdint.h>

#include "kovra/export.h"

KOVRA_C_BEGIN

typedef struct kovra_data_blob kovra_data_blob;

KOVRA_UTIL_API void *kovra_malloc(size_t size, const char *source, int32_t line) KOVRA_NOTHROW;
KOVRA_UTIL_API void *kovra_realloc(void *memory, size_t size, const char *source, int32_t line) KOVRA_NOTHROW;
KOVRA_UTIL_API void kovra_free(void *memory) KOVRA_NOTHROW;

KOVRA_UTIL_API kovra_data_blob *kovra_data_blob_new(const void *data, int32_t length) KOVRA_NOTHROW;
KOVRA_UTIL_API const uint8_t *kovra_data_blob_getdata(const kovra_data_blob *blob) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_data_blob_getlength(const kovra_data_blob *blob) KOVRA_NOTHROW;
KOVRA_UTIL_API void kovra_data_blob_free(kovra_data_blob *blob) KOVRA_NOTHROW;

KOVRA_C_END

#endif
