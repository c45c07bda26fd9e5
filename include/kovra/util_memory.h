/** @defgroup util_memory Memory
 * @ingroup kovra_util
 *
 * Memory, and data blobs: octets with a length.
 *
 * @{ */
#ifndef KOVRA_UTIL_MEMORY_H
#define KOVRA_UTIL_MEMORY_H

#include <stddef.h>
#include <stdint.h>

#include "kovra/export.h"

KOVRA_C_BEGIN

/** A data blob. */
typedef struct kovra_data_blob kovra_data_blob;

/** kovra_malloc returns at least `size` octets of memory, aligned for any type, or null when there are none. A size of
 * 0 also gives memory of its own. `source` and `line` say who asks; they are there for whoever replaces this function,
 * and may be null and 0. Everything that the libraries keep comes from here, and a program may replace the three
 * functions by defining its own. */
KOVRA_UTIL_API void *KOVRA_CALL kovra_malloc(size_t size, const char *source, int32_t line) KOVRA_NOTHROW;

/** kovra_realloc changes the size of memory that kovra_malloc or kovra_realloc gave, and returns its new place; null
 * memory makes it kovra_malloc. When it returns null the memory is as it was. */
KOVRA_UTIL_API void *KOVRA_CALL kovra_realloc(void *memory, size_t size, const char *source,
                                              int32_t line) KOVRA_NOTHROW;

/** kovra_free releases memory that kovra_malloc or kovra_realloc gave, and all memory that other functions say goes
 * back through it. Null is ignored. */
KOVRA_UTIL_API void KOVRA_CALL kovra_free(void *memory) KOVRA_NOTHROW;

/** kovra_data_blob_new returns a blob with a copy of `length` octets, released with kovra_data_blob_free. Null data
 * with length 0 is an empty blob. Null when the length is negative, when it is positive and the data are null, and
 * when memory is short. */
KOVRA_UTIL_API kovra_data_blob *KOVRA_CALL kovra_data_blob_new(const void *data, int32_t length) KOVRA_NOTHROW;

/** kovra_data_blob_getdata returns the octets, which live as long as the blob and are not zero-terminated; not null for
 * an empty blob, null for null. */
KOVRA_UTIL_API const uint8_t *KOVRA_CALL kovra_data_blob_getdata(const kovra_data_blob *blob) KOVRA_NOTHROW;

/** kovra_data_blob_getlength returns the number of octets; 0 for null. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_data_blob_getlength(const kovra_data_blob *blob) KOVRA_NOTHROW;

/** kovra_data_blob_free releases the blob. Null is ignored. */
KOVRA_UTIL_API void KOVRA_CALL kovra_data_blob_free(kovra_data_blob *blob) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
