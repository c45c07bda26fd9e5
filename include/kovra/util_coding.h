#ifndef KOVRA_UTIL_CODING_H
#define KOVRA_UTIL_CODING_H

#include <stdint.h>

#include "kovra/export.h"

KOVRA_C_BEGIN

/* Modes of kovra_hexencode and kovra_base64decode. */
#define KOVRA_HEX_LOWER 1
#define KOVRA_HEX_UPPER 2
#define KOVRA_BASE64_STRICT 1
#define KOVRA_BASE64_IGNORE_SPACE 2

KOVRA_UTIL_API char *kovra_hexencode(const void *data, int32_t length, int32_t mode, int64_t *out_length) KOVRA_NOTHROW;
KOVRA_UTIL_API void *kovra_hexdecode(const char *text, int64_t length, int32_t *out_length) KOVRA_NOTHROW;
KOVRA_UTIL_API char *kovra_base64encode(const void *data, int32_t length, int32_t line_length,
                                        int64_t *out_length) KOVRA_NOTHROW;
KOVRA_UTIL_API void *kovra_base64decode(const char *text, int64_t length, int32_t mode,
                                        int32_t *out_length) KOVRA_NOTHROW;
KOVRA_UTIL_API void *kovra_pemdecode(const char *text, int64_t length, const char *label,
                                     int32_t *out_length) KOVRA_NOTHROW;
KOVRA_UTIL_API char *kovra_pemencode(const void *data, int32_t length, const char *label,
                                     int64_t *out_length) KOVRA_NOTHROW;
/* The next block at or after *position, whatever its label: 1 with the octets (kovra_free) and the label (a slice of
 * the text) and *position behind it; 0 when there is none; -1 when a block begins and is malformed. */
KOVRA_UTIL_API int32_t kovra_pemnext(const char *text, int64_t length, int64_t *position, const char **out_label,
                                     int32_t *out_label_length, void **out_data, int32_t *out_length) KOVRA_NOTHROW;

KOVRA_C_END

#endif
