/** @defgroup util_json JSON
 * @ingroup kovra_util
 *
 * JSON values (RFC 8259): a model with the order of members kept, printing and strict parsing. Depth is bounded by
 * memory only. A value belongs to the document of its root; only roots are freed. Null, or a handle of another kind, is
 * an absent value everywhere. Looking things up makes indexes inside: threads that share a document take turns, for
 * reading too.
 *
 * @{ */
#ifndef KOVRA_UTIL_JSON_H
#define KOVRA_UTIL_JSON_H

#include <stdint.h>

#include "kovra/export.h"

KOVRA_C_BEGIN

/** A JSON value. */
typedef struct kovra_json kovra_json;

/** @name Kinds that kovra_json_gettype reports
 * @{ */
#define KOVRA_JSON_STRING 1  /**< a string */
#define KOVRA_JSON_NUMBER 2  /**< a number */
#define KOVRA_JSON_BOOLEAN 3 /**< true or false */
#define KOVRA_JSON_NULL 4    /**< null */
#define KOVRA_JSON_OBJECT 5  /**< an object */
#define KOVRA_JSON_ARRAY 6   /**< an array */
/** @} */

/** kovra_json_newstring returns a string with a copy of the octets, as they are; length -1 takes those up to the
 * terminating zero. U+0000 may stand inside. Null for other negative lengths, null octets with a length other than
 * 0, and when memory is short. This and the functions below return the root of a new document, for kovra_json_free
 * or one of the add functions. */
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_newstring(const void *utf8, int32_t length) KOVRA_NOTHROW;

/** kovra_json_newnumber returns a number; null for infinities and NaN, which JSON has not. */
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_newnumber(double number) KOVRA_NOTHROW;

/** kovra_json_newboolean returns true for a number other than 0. */
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_newboolean(int32_t truth) KOVRA_NOTHROW;

/** kovra_json_newnull returns a null. */
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_newnull(void) KOVRA_NOTHROW;

/** kovra_json_newobject returns an object without members. */
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_newobject(void) KOVRA_NOTHROW;

/** kovra_json_newarray returns an array without items. */
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_newarray(void) KOVRA_NOTHROW;

/** kovra_json_free releases a root and everything in it, without recursion. A value that is in a container is left
 * alone: it is released with the container. */
KOVRA_UTIL_API void KOVRA_CALL kovra_json_free(kovra_json *value) KOVRA_NOTHROW;

/** kovra_json_addobjectitem puts a root at the end of an object under a name and returns 1; the object owns it from
 * then on. Returns 0, the value still being the caller's, when it is not a root, the container is not an object or
 * lies inside the value, the name is null, and when memory is short. Several members may have one name. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_json_addobjectitem(kovra_json *object, const char *name,
                                                           kovra_json *value) KOVRA_NOTHROW;

/** kovra_json_addarrayitem puts a root at the end of an array in the same way. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_json_addarrayitem(kovra_json *array, kovra_json *value) KOVRA_NOTHROW;

/** @{ */
/** kovra_json_putstring and the put functions below make a value at the end of a container, in the memory of its
 * document, which is faster than new and add. The container is an object and the name given, or an array and the
 * name null. They return the new value, borrowed; null, nothing changed, when the arguments do not fit and when
 * memory is short. */
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_putstring(kovra_json *container, const char *name, const void *utf8,
                                                           int32_t length) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_putnumber(kovra_json *container, const char *name,
                                                           double number) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_putboolean(kovra_json *container, const char *name,
                                                            int32_t truth) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_putnull(kovra_json *container, const char *name) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_putobject(kovra_json *container, const char *name) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_putarray(kovra_json *container, const char *name) KOVRA_NOTHROW;
/** @} */

/** kovra_json_puthex puts a string of two lower-case hexadecimal digits for each octet. */
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_puthex(kovra_json *container, const char *name, const void *octets,
                                                        int32_t length) KOVRA_NOTHROW;

/** kovra_json_gettype returns the kind of a value, 0 for null. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_json_gettype(const kovra_json *value) KOVRA_NOTHROW;

/** kovra_json_getstring returns the zero-terminated octets of a string, borrowed; null for other kinds. */
KOVRA_UTIL_API const char *KOVRA_CALL kovra_json_getstring(const kovra_json *value) KOVRA_NOTHROW;

/** kovra_json_getstringlength returns the octets of a string; 0 for other kinds. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_json_getstringlength(const kovra_json *value) KOVRA_NOTHROW;

/** kovra_json_getnumber stores a number and returns 1; 0 for other kinds. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_json_getnumber(const kovra_json *value, double *out_number) KOVRA_NOTHROW;

/** kovra_json_istrue returns 1 for the boolean true, else 0. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_json_istrue(const kovra_json *value) KOVRA_NOTHROW;

/** kovra_json_getobjectsize returns the number of members; 0 for other kinds. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_json_getobjectsize(const kovra_json *object) KOVRA_NOTHROW;

/** kovra_json_getobjectvalue returns the member of that name, borrowed, and of several the last; null when there is
 * none. Looking up every member of an object takes time proportional to its size. */
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_getobjectvalue(const kovra_json *object,
                                                                const char *name) KOVRA_NOTHROW;

/** kovra_json_getobjectitem returns the member at an index, borrowed, and stores its name; null outside. */
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_getobjectitem(const kovra_json *object, int32_t index,
                                                               const char **out_name) KOVRA_NOTHROW;

/** kovra_json_getarraysize returns the number of items; 0 for other kinds. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_json_getarraysize(const kovra_json *array) KOVRA_NOTHROW;

/** kovra_json_getarrayitem returns the item at an index, borrowed; null outside. Visiting all items by index takes
 * time proportional to their number. */
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_getarrayitem(const kovra_json *array, int32_t index) KOVRA_NOTHROW;

/** kovra_json_print returns the text of a value, zero-terminated, for kovra_free, and stores its length (the place
 * may be null). indent 0 prints on one line; n prints each item on a line of its own with n blanks a level, for
 * the first 64 levels. Numbers print as short as reads back the same; control characters are escaped, ill-formed
 * UTF-8 prints as U+FFFD. Null for a negative indent and when memory is short. */
KOVRA_UTIL_API char *KOVRA_CALL kovra_json_print(const kovra_json *value, int32_t indent,
                                                 int64_t *out_length) KOVRA_NOTHROW;

/** kovra_json_parse returns the value that the text is, all of it, as a root: strict RFC 8259 in UTF-8, surrogate
 * escapes in pairs, no NUL in a member's name; a number too large for a double is refused, one too small is 0. Null
 * where it is not, with the offset stored (the place may be null) of the octet that does not fit, of the escape that is
 * no character or of the name with a NUL; null also when memory is short, and for null and a negative length. */
KOVRA_UTIL_API kovra_json *KOVRA_CALL kovra_json_parse(const char *text, int64_t length,
                                                       int64_t *out_error_offset) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
