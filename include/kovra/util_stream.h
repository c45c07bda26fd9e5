#ifndef KOVRA_UTIL_STREAM_H
#define KOVRA_UTIL_STREAM_H

#include <stddef.h>
#include <stdint.h>

#include "kovra/export.h"
#include "kovra/util_error.h"

KOVRA_C_BEGIN

typedef struct kovra_stream kovra_stream;

/* Kinds that kovra_stream_gettype reports. */
#define KOVRA_STREAM_MEMORY 0x20001
#define KOVRA_STREAM_FILE 0x20002
#define KOVRA_STREAM_CALLBACK 0x20003

/* Commands of kovra_stream_ctrl. */
#define KOVRA_STREAM_REWIND 1
#define KOVRA_STREAM_SIZE 2
#define KOVRA_STREAM_SEEK 8
#define KOVRA_STREAM_ALL_CONSUMED 11

/* Modes of kovra_stream_new_file. */
#define KOVRA_FILE_READ 1
#define KOVRA_FILE_WRITE 2
#define KOVRA_FILE_READ_WRITE 3

typedef struct kovra_stream_callbacks {
    int32_t (*read)(void *user, void *buffer, int32_t size, int32_t *out_count);
    int32_t (*write)(void *user, const void *data, int32_t size, int32_t *out_count);
    int64_t (*control)(void *user, int32_t command, int64_t argument);
    void (*close)(void *user);
} kovra_stream_callbacks;

KOVRA_UTIL_API kovra_stream *kovra_stream_new_mem(int64_t initial_size, kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_stream *kovra_stream_new_romem(const void *data, int64_t length, int32_t reserved,
                                                    kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_stream *kovra_stream_new_file(const char *path, int32_t mode, kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_stream *kovra_stream_new_callbacks(const kovra_stream_callbacks *callbacks, void *user,
                                                        kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_UTIL_API void kovra_stream_free(kovra_stream *stream) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_stream_gettype(const kovra_stream *stream) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_stream_read(kovra_stream *stream, void *buffer, int32_t size, int32_t *out_count,
                                         kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_stream_readn(kovra_stream *stream, void *buffer, int32_t size, int32_t *out_count,
                                          kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_stream_writen(kovra_stream *stream, const void *data, int32_t size, int32_t *out_count,
                                           kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_stream_writefromstream(kovra_stream *destination, kovra_stream *source, int64_t *out_count,
                                                    kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_UTIL_API int64_t kovra_stream_ctrl(kovra_stream *stream, int32_t command, int64_t argument,
                                         kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_UTIL_API void *kovra_memstreamdeatch(kovra_stream *stream, int64_t *out_length) KOVRA_NOTHROW;

/* The cursor of memory streams: see the unread octets in place, and step over them. */
KOVRA_UTIL_API int32_t kovra_stream_peek(kovra_stream *stream, const uint8_t **out_data,
                                         int64_t *out_length) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_stream_advance(kovra_stream *stream, int64_t count) KOVRA_NOTHROW;

KOVRA_C_END

#endif
