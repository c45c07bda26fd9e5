/** @defgroup util_stream Streams
 * @ingroup kovra_util
 *
 * Streams of octets: memory, files, the caller's functions.
 *
 * A stream has a read position, which starts at 0; writing appends at the end, wherever the read position is. Functions
 * return 1, or on failure 0 or what a callback returned if that is not 1, and record exactly one entry with the source
 * name "UTIL_Stream": 0x10002 for a null stream, path or buffer (a null buffer is allowed with a size of 0), 0x10001
 * for a handle of another kind or a negative size, 0x10000 when memory is short, or the code stated with the function.
 * `out_count` may be null and is set to 0 on failure; `ctx` may be null.
 *
 * @{ */
#ifndef KOVRA_UTIL_STREAM_H
#define KOVRA_UTIL_STREAM_H

#include <stddef.h>
#include <stdint.h>

#include "kovra/export.h"
#include "kovra/util_error.h"

KOVRA_C_BEGIN

/** A stream. */
typedef struct kovra_stream kovra_stream;

/** @name Kinds that kovra_stream_gettype reports
 * @{ */
#define KOVRA_STREAM_MEMORY 0x20001   /**< memory, growing or read in place */
#define KOVRA_STREAM_FILE 0x20002     /**< a file */
#define KOVRA_STREAM_CALLBACK 0x20003 /**< the caller's functions */
/** @} */

/** @name Commands of kovra_stream_ctrl
 * @{ */
#define KOVRA_STREAM_REWIND 1        /**< to the start */
#define KOVRA_STREAM_SIZE 2          /**< the number of octets */
#define KOVRA_STREAM_SEEK 8          /**< to an octet */
#define KOVRA_STREAM_ALL_CONSUMED 11 /**< whether all octets were read */
/** @} */

/** @name Modes of kovra_stream_new_file
 * @{ */
#define KOVRA_FILE_READ 1       /**< an existing file */
#define KOVRA_FILE_WRITE 2      /**< a file that is made or emptied */
#define KOVRA_FILE_READ_WRITE 3 /**< the same, for both */
/** @} */

/** The functions of a stream over callbacks. THEY MUST NOT THROW: an exception does not pass through the libraries. */
typedef struct kovra_stream_callbacks {
    /** read puts up to `size` octets into `buffer` and their number into `*out_count`; fewer than asked is allowed,
     * none means the end. 1, or the result that the stream's reader is to see. */
    int32_t(KOVRA_CALL *read)(void *user, void *buffer, int32_t size, int32_t *out_count);

    /** write takes up to `size` octets and stores their number, at least 1. */
    int32_t(KOVRA_CALL *write)(void *user, const void *data, int32_t size, int32_t *out_count);

    /** control answers command 1 (rewind: 1 if done), 2 (the whole size, negative if unknown) and 8 (seek to octet
     * `argument`: 1 if done); 0 to any other command. */
    int64_t(KOVRA_CALL *control)(void *user, int32_t command, int64_t argument);

    /** close is called once, when the stream is freed. */
    void(KOVRA_CALL *close)(void *user);
} kovra_stream_callbacks;

/** kovra_stream_new_mem returns an empty growable memory stream (kind 0x20001). Its buffer is allocated at the first
 * write, for at least `initial_size` octets but not for more than 65,536 on its word alone, and grows by half of
 * itself. A negative size: 0x10001. */
KOVRA_UTIL_API kovra_stream *KOVRA_CALL kovra_stream_new_mem(int64_t initial_size, kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_stream_new_romem returns a memory stream (kind 0x20001) that reads the caller's octets in place; they must
 * outlive it. Writing to it fails with 0x10106. `reserved` is ignored. Null data are allowed with length 0. */
KOVRA_UTIL_API kovra_stream *KOVRA_CALL kovra_stream_new_romem(const void *data, int64_t length, int32_t reserved,
                                                               kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_stream_new_file opens a file by its UTF-8 path as a stream of kind 0x20002: mode 1 reads an existing file, 2
 * makes or empties one for writing, 3 makes or empties one for both. A file that cannot be opened, and a directory:
 * 0x10107; another mode: 0x10001. Reading is buffered; writing is not, so octets reported as written have reached the
 * operating system. A pipe or device can be read and written, but its size is unknown and it cannot be positioned. */
KOVRA_UTIL_API kovra_stream *KOVRA_CALL kovra_stream_new_file(const char *path, int32_t mode,
                                                              kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_stream_new_callbacks returns a stream of kind 0x20003 that calls the functions, with `user` as their first
 * argument. The structure is copied. Any of them may be null: reading then fails with 0x10105, writing with 0x10106,
 * the size is unknown, rewinding and seeking fail, nothing is closed. When this function returns null, `close` has not
 * been called. */
KOVRA_UTIL_API kovra_stream *KOVRA_CALL kovra_stream_new_callbacks(const kovra_stream_callbacks *callbacks, void *user,
                                                                   kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_stream_free closes and releases the stream. Null is ignored. */
KOVRA_UTIL_API void KOVRA_CALL kovra_stream_free(kovra_stream *stream) KOVRA_NOTHROW;

/** kovra_stream_gettype returns the kind; 0 for null or a handle of another kind. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_stream_gettype(const kovra_stream *stream) KOVRA_NOTHROW;

/** kovra_stream_read reads up to `size` octets. At the end it gives 1 with a count of 0; fewer than asked come only at
 * the end or when a callback gave fewer. Failure: 0x10105, also for a callback whose count is impossible. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_stream_read(kovra_stream *stream, void *buffer, int32_t size,
                                                    int32_t *out_count, kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_stream_readn reads exactly `size` octets. When the stream ends before them it fails with 0x10105, the octets
 * until there being consumed. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_stream_readn(kovra_stream *stream, void *buffer, int32_t size,
                                                     int32_t *out_count, kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_stream_writen appends exactly `size` octets. Failure: 0x10106, also for a callback that takes none; a part may
 * then have been written, except to memory. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_stream_writen(kovra_stream *stream, const void *data, int32_t size,
                                                      int32_t *out_count, kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_stream_writefromstream rewinds the source and appends all of it to the destination, a memory source at once,
 * any other in pieces of 8,192 octets. `*out_count` is the number of octets copied. A source that cannot be rewound:
 * 0x10109; a stream into itself: 0x10001; otherwise the codes of reading and writing. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_stream_writefromstream(kovra_stream *destination, kovra_stream *source,
                                                               int64_t *out_count, kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_stream_ctrl answers a command. 1 sets the read position to the start (failure 0x10109). 2 returns the size,
 * counting all octets in the stream, read or not, or -1 when it is unknown, which records nothing (failure: -1 with
 * 0x10114). 8 sets the read position to octet `argument`, from 0 to the size (failure 0x10108). 11 returns 1 when all
 * octets are consumed and 0 when not, which records nothing; where only reading can tell, one octet is read ahead and
 * kept for the next read (failure 0 with 0x10105). Commands 1 and 8 return 1. Any other command returns 0 with
 * 0x10110. */
KOVRA_UTIL_API int64_t KOVRA_CALL kovra_stream_ctrl(kovra_stream *stream, int32_t command, int64_t argument,
                                                    kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_memstreamdeatch hands over the buffer of a growable memory stream, with all its octets whatever the read
 * position, and stores their number in `*out_length` (may be null); the caller frees it with kovra_free. The stream is
 * then empty and can be written again. An empty stream gives a non-null buffer of length 0. Null with 0 for any other
 * stream and when memory is short. */
KOVRA_UTIL_API void *KOVRA_CALL kovra_memstreamdeatch(kovra_stream *stream, int64_t *out_length) KOVRA_NOTHROW;

/* The cursor of memory streams: see the unread octets in place, and step over them. */

/** kovra_stream_peek stores where the unread octets of a memory stream are and how many, and returns 1; the place is
 * valid until the stream is next written, detached or freed, and not null even if there are none. 0, with nothing
 * stored, for other streams and null arguments. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_stream_peek(kovra_stream *stream, const uint8_t **out_data,
                                                    int64_t *out_length) KOVRA_NOTHROW;

/** kovra_stream_advance moves the read position of a memory stream over `count` octets and returns 1; 0, without
 * moving, for other streams and a count that is negative or above the number of unread octets. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_stream_advance(kovra_stream *stream, int64_t count) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
