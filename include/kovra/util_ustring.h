/** @defgroup util_ustring Unicode strings
 * @ingroup kovra_util
 *
 * Unicode strings. Only scalar values (U+0000 to U+D7FF, U+E000 to U+10FFFF) are ever held; whatever is not the one
 * right form of such is refused.
 *
 * @{ */
#ifndef KOVRA_UTIL_USTRING_H
#define KOVRA_UTIL_USTRING_H

#include <stdint.h>

#include "kovra/export.h"
#include "kovra/util_memory.h"

KOVRA_C_BEGIN

/** A Unicode string. */
typedef struct kovra_ustring kovra_ustring;

/** kovra_ustring_newutf8 returns the text of UTF-8 octets for kovra_ustring_free: no overlong forms, no surrogates,
 * nothing above U+10FFFF (RFC 3629). U+0000 is a character like others. Null for ill-formed octets, a negative
 * length, null octets with a positive length, and when memory is short. */
KOVRA_UTIL_API kovra_ustring *KOVRA_CALL kovra_ustring_newutf8(const void *octets, int32_t length) KOVRA_NOTHROW;

/** kovra_ustring_newutf32be returns the text of four-octet big-endian characters (UniversalString); the length must
 * be a multiple of 4. Null as above. */
KOVRA_UTIL_API kovra_ustring *KOVRA_CALL kovra_ustring_newutf32be(const void *octets, int32_t length) KOVRA_NOTHROW;

/** kovra_ustring_newutf16be returns the text of UTF-16 in big-endian order; surrogates must stand in pairs. Null as
 * above. */
KOVRA_UTIL_API kovra_ustring *KOVRA_CALL kovra_ustring_newutf16be(const void *octets, int32_t length) KOVRA_NOTHROW;

/** kovra_ustring_newbmp returns the text of two-octet big-endian characters (BMPString); surrogates are refused.
 * Null as above. */
KOVRA_UTIL_API kovra_ustring *KOVRA_CALL kovra_ustring_newbmp(const void *octets, int32_t length) KOVRA_NOTHROW;

/** @{ */
/** kovra_ustring_toutf8 and the functions below return the text in that form as a new blob for
 * kovra_data_blob_free; null for null, when the result would be longer than 0x7FFFFFFF octets, and when memory is
 * short. */
KOVRA_UTIL_API kovra_data_blob *KOVRA_CALL kovra_ustring_toutf8(const kovra_ustring *text) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_data_blob *KOVRA_CALL kovra_ustring_toutf32be(const kovra_ustring *text) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_data_blob *KOVRA_CALL kovra_ustring_toutf16be(const kovra_ustring *text) KOVRA_NOTHROW;
/** @} */

/** kovra_ustring_tobmp refuses, with null, a text with a character above U+FFFF. */
KOVRA_UTIL_API kovra_data_blob *KOVRA_CALL kovra_ustring_tobmp(const kovra_ustring *text) KOVRA_NOTHROW;

/** kovra_ustring_free releases a text; null is ignored. */
KOVRA_UTIL_API void KOVRA_CALL kovra_ustring_free(kovra_ustring *text) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
