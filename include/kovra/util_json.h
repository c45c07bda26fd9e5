#ifndef KOVRA_UTIL_JSON_H
#define KOVRA_UTIL_JSON_H

#include <stdint.h>

#include "kovra/export.h"

KOVRA_C_BEGIN

typedef struct kovra_json kovra_json;

/* Kinds that kovra_json_gettype reports. */
#define KOVRA_JSON_STRING 1
#define KOVRA_JSON_NUMBER 2
#define KOVRA_JSON_BOOLEAN 3
#define KOVRA_JSON_NULL 4
#define KOVRA_JSON_OBJECT 5
#define KOVRA_JSON_ARRAY 6

KOVRA_UTIL_API kovra_json *kovra_json_newstring(const void *utf8, int32_t length) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_newnumber(double number) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_newboolean(int32_t truth) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_newnull(void) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_newobject(void) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_newarray(void) KOVRA_NOTHROW;
KOVRA_UTIL_API void kovra_json_free(kovra_json *value) KOVRA_NOTHROW;

KOVRA_UTIL_API int32_t kovra_json_addobjectitem(kovra_json *object, const char *name, kovra_json *value) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_json_addarrayitem(kovra_json *array, kovra_json *value) KOVRA_NOTHROW;

/* Values made in place, in the memory of the document that `container` belongs to: faster than new and add. The
 * container is an object (with a name) or an array (name null); the result is borrowed from it. */
KOVRA_UTIL_API kovra_json *kovra_json_putstring(kovra_json *container, const char *name, const void *utf8,
                                                int32_t length) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_putnumber(kovra_json *container, const char *name, double number) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_putboolean(kovra_json *container, const char *name, int32_t truth) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_putnull(kovra_json *container, const char *name) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_putobject(kovra_json *container, const char *name) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_putarray(kovra_json *container, const char *name) KOVRA_NOTHROW;
/* A string of 2 x length lower-case hexadecimal digits of the octets. */
KOVRA_UTIL_API kovra_json *kovra_json_puthex(kovra_json *container, const char *name, const void *octets,
                                             int32_t length) KOVRA_NOTHROW;

KOVRA_UTIL_API int32_t kovra_json_gettype(const kovra_json *value) KOVRA_NOTHROW;
KOVRA_UTIL_API const char *kovra_json_getstring(const kovra_json *value) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_json_getstringlength(const kovra_json *value) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_json_getnumber(const kovra_json *value, double *out_number) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_json_istrue(const kovra_json *value) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_json_getobjectsize(const kovra_json *object) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_getobjectvalue(const kovra_json *object, const char *name) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_getobjectitem(const kovra_json *object, int32_t index,
                                                    const char **out_name) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_json_getarraysize(const kovra_json *array) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_getarrayitem(const kovra_json *array, int32_t index) KOVRA_NOTHROW;

/* indent 0: compact; n > 0: n blanks a level. The text is zero-terminated and goes back through kovra_free. */
KOVRA_UTIL_API char *kovra_json_print(const kovra_json *value, int32_t indent, int64_t *out_length) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *kovra_json_parse(const char *text, int64_t length, int64_t *out_error_offset) KOVRA_NOTHROW;

KOVRA_C_END

#endif
