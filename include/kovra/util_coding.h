/** @defgroup util_coding Octets as text
 * @ingroup kovra_util
 *
 * Octets as text: hexadecimal, base64 (RFC 4648), PEM (RFC 7468). What these functions return goes back through
 * kovra_free. Where an out pointer may be null this is said; 0 or null is stored on failure. Time is linear in the
 * input.
 *
 * @{ */
#ifndef KOVRA_UTIL_CODING_H
#define KOVRA_UTIL_CODING_H

#include <stdint.h>

#include "kovra/export.h"

KOVRA_C_BEGIN

/** @name Modes of kovra_hexencode and kovra_base64decode
 * @{ */
#define KOVRA_HEX_LOWER 1           /**< digits a to f */
#define KOVRA_HEX_UPPER 2           /**< digits A to F */
#define KOVRA_BASE64_STRICT 1       /**< no other characters */
#define KOVRA_BASE64_IGNORE_SPACE 2 /**< white space is skipped */
/** @} */

/** kovra_hexencode returns zero-terminated hexadecimal text of the octets, in lower case (mode 1) or upper case (mode
 * 2), and stores its length in `*out_length` (may be null); no octets give the empty text. Null for another mode, a
 * negative length, null data with a positive length, and when memory is short. */
KOVRA_UTIL_API char *KOVRA_CALL kovra_hexencode(const void *data, int32_t length, int32_t mode,
                                                int64_t *out_length) KOVRA_NOTHROW;

/** kovra_hexdecode returns the octets of hexadecimal text of either case without separators, and stores their number in
 * `*out_length` (may be null); empty text gives a non-null result of length 0. Null for an odd or negative length, any
 * other character, null text with a positive length, and when memory is short. */
KOVRA_UTIL_API void *KOVRA_CALL kovra_hexdecode(const char *text, int64_t length, int32_t *out_length) KOVRA_NOTHROW;

/** kovra_base64encode returns zero-terminated base64 text of the octets, padded, and stores its length in `*out_length`
 * (may be null). With a line_length above 0 each line of that many characters, and the last one however long, ends
 * with a line feed; with 0 there is none. Null for a negative length or line_length, null data with a positive length,
 * and when memory is short. */
KOVRA_UTIL_API char *KOVRA_CALL kovra_base64encode(const void *data, int32_t length, int32_t line_length,
                                                   int64_t *out_length) KOVRA_NOTHROW;

/** kovra_base64decode returns the octets of base64 text and stores their number in `*out_length` (may be null); text of
 * none gives a non-null result of length 0. Mode 2 passes over white space (blank, tab, line feed, vertical tab, form
 * feed, carriage return) wherever it stands, mode 1 refuses it. In both the padding must be there, nothing may follow
 * it, and the bits that mean nothing must be 0. Null for other text, another mode, a negative length, null text with a
 * positive length, more than 2,147,483,647 octets, and when memory is short. */
KOVRA_UTIL_API void *KOVRA_CALL kovra_base64decode(const char *text, int64_t length, int32_t mode,
                                                   int32_t *out_length) KOVRA_NOTHROW;

/** kovra_pemdecode returns the octets of the first PEM block whose label is exactly `label`, and stores their number in
 * `*out_length` (may be null). Armour lines begin at the start of a line; text before and between blocks and blocks
 * with other labels are passed over, and so are RFC 1421 header lines with their continuations. Lines end with LF or
 * CR LF, the last one possibly with nothing; a UTF-8 byte order mark at the start is ignored. Null when there is no
 * such block or it is malformed (no matching END line, invalid base64), for null text or label, a negative length, and
 * when memory is short. */
KOVRA_UTIL_API void *KOVRA_CALL kovra_pemdecode(const char *text, int64_t length, const char *label,
                                                int32_t *out_length) KOVRA_NOTHROW;

/** kovra_pemencode returns zero-terminated PEM text of the octets with the label, in lines of 64 characters that end
 * with LF, and stores its length in `*out_length` (may be null). Null for a null label or one with characters other
 * than printable ASCII, a negative length, null data with a positive length, and when memory is short. */
KOVRA_UTIL_API char *KOVRA_CALL kovra_pemencode(const void *data, int32_t length, const char *label,
                                                int64_t *out_length) KOVRA_NOTHROW;

/** kovra_pemnext gives the next block at or after `*position`, whatever its label, by the rules of kovra_pemdecode: 1
 * with the octets in `*out_data`, the label as a slice of the text in `*out_label` (both label pointers may be null)
 * and `*position` behind the block. 0 when there is none, and for null text, position or data pointers or a position
 * outside the text. -1 when a block begins and is malformed, or memory is short: the label is stored, the octets are
 * null, and `*position` is behind what was read of it, so that a caller may go on; doing so over any text is linear. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_pemnext(const char *text, int64_t length, int64_t *position,
                                                const char **out_label, int32_t *out_label_length, void **out_data,
                                                int32_t *out_length) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
