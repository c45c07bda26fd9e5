/** @defgroup util_error Error contexts
 * @ingroup kovra_util
 *
 * Error contexts: what failed, where, and why, from the innermost cause outward.
 *
 * @{ */
#ifndef KOVRA_UTIL_ERROR_H
#define KOVRA_UTIL_ERROR_H

#include <stdint.h>

#include "kovra/export.h"

KOVRA_C_BEGIN

/** An error context. */
typedef struct kovra_err_ctx kovra_err_ctx;

/** @name General codes
 * @{ */
#define KOVRA_ERR_NO_MEMORY 0x10000     /**< out of memory */
#define KOVRA_ERR_BAD_ARGUMENT 0x10001  /**< an argument is out of range or does not fit the others */
#define KOVRA_ERR_NULL_ARGUMENT 0x10002 /**< a required argument is null */
#define KOVRA_ERR_SHORT_COPY 0x10004    /**< fewer octets were copied than the length announced */
/** @} */

/** @name Stream codes
 * @{ */
#define KOVRA_ERR_STREAM_READ 0x10105    /**< reading from the stream failed, or it ended too early */
#define KOVRA_ERR_STREAM_REWIND 0x10109  /**< the stream cannot be rewound, or is not at its end */
#define KOVRA_ERR_STREAM_BASE64 0x10111  /**< the text is not valid base64 */
#define KOVRA_ERR_STREAM_SIZE 0x10114    /**< the size of the stream cannot be told */
#define KOVRA_ERR_STREAM_PEM 0x10116     /**< the text holds no valid PEM block of the wanted label */
#define KOVRA_ERR_STREAM_WRITE 0x10106   /**< writing to the stream failed */
#define KOVRA_ERR_STREAM_OPEN 0x10107    /**< the file cannot be opened */
#define KOVRA_ERR_STREAM_SEEK 0x10108    /**< the stream cannot be positioned there */
#define KOVRA_ERR_STREAM_COMMAND 0x10110 /**< unknown stream command */
/** @} */

/** kovra_err_ctx_new returns an empty context, released with kovra_err_ctx_free, or null when memory is short. A
 * context belongs to one thread at a time. Every function that takes one also takes null, and then records nothing. */
KOVRA_UTIL_API kovra_err_ctx *KOVRA_CALL kovra_err_ctx_new(void) KOVRA_NOTHROW;

/** kovra_err_ctx_free releases the context and its entries. Null is ignored. */
KOVRA_UTIL_API void KOVRA_CALL kovra_err_ctx_free(kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_err_ctx_put appends an entry with copies of the two texts; a null text counts as empty. It never fails: the
 * first 8 entries need no memory beyond the context (a source name above 31 octets or a message above 95 is then cut
 * short, at a whole UTF-8 character, only if there is no memory for it), and later entries lose their texts, or are
 * dropped, when memory is short. */
KOVRA_UTIL_API void KOVRA_CALL kovra_err_ctx_put(kovra_err_ctx *ctx, const char *source, int32_t line, int32_t code,
                                                 const char *message) KOVRA_NOTHROW;

/** kovra_err_ctx_getcount returns the number of entries; 0 for null. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_err_ctx_getcount(const kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_err_ctx_getentry stores the parts of the entry at `index`, the oldest being 0, and returns 1; 0, with nothing
 * stored, for null or an index outside the entries. Every out pointer may be null. The texts are never null and live
 * until the context is cleared or released, also while entries are added. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_err_ctx_getentry(const kovra_err_ctx *ctx, int32_t index,
                                                         const char **out_source, int32_t *out_line, int32_t *out_code,
                                                         const char **out_message) KOVRA_NOTHROW;

/** kovra_err_ctx_clear removes all entries. Null is ignored. */
KOVRA_UTIL_API void KOVRA_CALL kovra_err_ctx_clear(kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_igetGeneralError returns the constant English text of a general code, and the empty text, never null, for any
 * other. */
KOVRA_UTIL_API const char *KOVRA_CALL kovra_igetGeneralError(int32_t code) KOVRA_NOTHROW;

/** kovra_igetStreamError returns the constant English text of a stream code, and the empty text, never null, for any
 * other. */
KOVRA_UTIL_API const char *KOVRA_CALL kovra_igetStreamError(int32_t code) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
