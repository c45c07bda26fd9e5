// The operations that all kinds of streams share: checks, loops, and the recording of failures.
#include "util/byte_stream.hpp"

#include <initializer_list>

#include "base/thresholds.hpp"
#include "kovra/util_error.h"

namespace kovra::util {

int32_t fail_stream(kovra_err_ctx *ctx, Outcome outcome, int32_t line) {
    const char *text = kovra_igetStreamError(outcome.code);
    if (*text == '\0')
        text = kovra_igetGeneralError(outcome.code);
    kovra_err_ctx_put(ctx, stream_module, line, outcome.code, text);
    return outcome.result;
}

namespace {

constexpr auto copy_piece = threshold<size_t>(8192, 3);

Outcome check_handle(const kovra_stream *stream) {
    if (stream == nullptr)
        return failed(KOVRA_ERR_NULL_ARGUMENT);
    return is_valid(stream) ? Outcome{} : failed(KOVRA_ERR_BAD_ARGUMENT);
}

// The buffer may be null where the size is 0.
Outcome check_transfer(const kovra_stream *stream, const void *buffer, int32_t size) {
    if (const Outcome outcome = check_handle(stream); !outcome.ok())
        return outcome;
    if (size < 0)
        return failed(KOVRA_ERR_BAD_ARGUMENT);
    return buffer == nullptr && size > 0 ? failed(KOVRA_ERR_NULL_ARGUMENT) : Outcome{};
}

void store(int32_t *out_count, size_t count) {
    if (out_count != nullptr)
        *out_count = static_cast<int32_t>(count);
}

// Reads until the buffer is full or the stream ends.
Outcome read_full(kovra_stream &stream, uint8_t *buffer, size_t size, size_t &count) {
    count = 0;
    while (count < size) {
        size_t piece = 0;
        if (const Outcome outcome = stream.operations->read(stream, buffer + count, size - count, piece); !outcome.ok())
            return outcome;
        if (piece == 0)
            break;
        count += piece;
    }
    return {};
}

Outcome copy_from_start(kovra_stream &destination, kovra_stream &source, int64_t &copied) {
    if (const Outcome outcome = source.operations->rewind(source); !outcome.ok())
        return outcome;
    if (is_memory(source)) {
        auto &memory = as_memory(source);
        memory.position = memory.size;
        copied = static_cast<int64_t>(memory.size);
        return memory.size == 0 ? Outcome{} : destination.operations->write(destination, memory.octets, memory.size);
    }
    uint8_t buffer[copy_piece];
    for (;;) {
        size_t piece = 0;
        if (const Outcome outcome = read_full(source, buffer, sizeof buffer, piece); !outcome.ok())
            return outcome;
        if (piece == 0)
            return {};
        if (const Outcome outcome = destination.operations->write(destination, buffer, piece); !outcome.ok())
            return outcome;
        copied += static_cast<int64_t>(piece);
    }
}

} // namespace
} // namespace kovra::util

using namespace kovra;
using namespace kovra::util;

void kovra_stream_free(kovra_stream *stream) noexcept {
    if (!is_valid(stream))
        return;
    stream->operations->close(*stream);
    release_record(stream);
}

int32_t kovra_stream_gettype(const kovra_stream *stream) noexcept {
    return is_valid(stream) ? stream->kind : 0;
}

int32_t kovra_stream_read(kovra_stream *stream, void *buffer, int32_t size, int32_t *out_count,
                          kovra_err_ctx *ctx) noexcept {
    store(out_count, 0);
    if (const Outcome outcome = check_transfer(stream, buffer, size); !outcome.ok())
        return fail_stream(ctx, outcome);
    if (size == 0)
        return 1;
    size_t count = 0;
    const Outcome outcome =
        stream->operations->read(*stream, static_cast<uint8_t *>(buffer), static_cast<size_t>(size), count);
    if (!outcome.ok())
        return fail_stream(ctx, outcome);
    store(out_count, count);
    return 1;
}

int32_t kovra_stream_readn(kovra_stream *stream, void *buffer, int32_t size, int32_t *out_count,
                           kovra_err_ctx *ctx) noexcept {
    store(out_count, 0);
    if (const Outcome outcome = check_transfer(stream, buffer, size); !outcome.ok())
        return fail_stream(ctx, outcome);
    const auto wanted = static_cast<size_t>(size);
    if (wanted == 0)
        return 1;
    if (is_memory(*stream)) {
        auto &memory = as_memory(*stream);
        if (wanted <= memory.size - memory.position) {
            std::memcpy(buffer, memory.octets + memory.position, wanted);
            memory.position += wanted;
            store(out_count, wanted);
            return 1;
        }
    }
    size_t count = 0;
    const Outcome outcome = read_full(*stream, static_cast<uint8_t *>(buffer), wanted, count);
    if (!outcome.ok())
        return fail_stream(ctx, outcome);
    if (count < wanted)
        return fail_stream(ctx, failed(KOVRA_ERR_STREAM_READ));
    store(out_count, count);
    return 1;
}

int32_t kovra_stream_writen(kovra_stream *stream, const void *data, int32_t size, int32_t *out_count,
                            kovra_err_ctx *ctx) noexcept {
    store(out_count, 0);
    if (const Outcome outcome = check_transfer(stream, data, size); !outcome.ok())
        return fail_stream(ctx, outcome);
    const auto wanted = static_cast<size_t>(size);
    if (is_memory(*stream)) {
        auto &memory = as_memory(*stream);
        if (wanted > 0 && memory.capacity != 0 && wanted <= memory.capacity - memory.size) {
            std::memcpy(memory.octets + memory.size, data, wanted);
            memory.size += wanted;
            store(out_count, wanted);
            return 1;
        }
    }
    if (const Outcome outcome = stream->operations->write(*stream, static_cast<const uint8_t *>(data), wanted);
        !outcome.ok())
        return fail_stream(ctx, outcome);
    store(out_count, wanted);
    return 1;
}

int32_t kovra_stream_writefromstream(kovra_stream *destination, kovra_stream *source, int64_t *out_count,
                                     kovra_err_ctx *ctx) noexcept {
    if (out_count != nullptr)
        *out_count = 0;
    for (const kovra_stream *stream : {destination, source})
        if (const Outcome outcome = check_handle(stream); !outcome.ok())
            return fail_stream(ctx, outcome);
    if (destination == source)
        return fail_stream(ctx, failed(KOVRA_ERR_BAD_ARGUMENT));
    int64_t copied = 0;
    if (const Outcome outcome = copy_from_start(*destination, *source, copied); !outcome.ok())
        return fail_stream(ctx, outcome);
    if (out_count != nullptr)
        *out_count = copied;
    return 1;
}

int64_t kovra_stream_ctrl(kovra_stream *stream, int32_t command, int64_t argument, kovra_err_ctx *ctx) noexcept {
    Outcome outcome = check_handle(stream);
    int64_t value = 1;
    if (outcome.ok()) {
        const StreamOperations &operations = *stream->operations;
        switch (command) {
        case KOVRA_STREAM_REWIND:
            outcome = operations.rewind(*stream);
            break;
        case KOVRA_STREAM_SIZE:
            outcome = operations.size(*stream, value);
            break;
        case KOVRA_STREAM_SEEK:
            outcome = argument < 0 ? failed(KOVRA_ERR_STREAM_SEEK) : operations.seek(*stream, argument);
            break;
        case KOVRA_STREAM_ALL_CONSUMED: {
            bool consumed = false;
            outcome = operations.all_consumed(*stream, consumed);
            value = consumed ? 1 : 0;
            break;
        }
        default:
            outcome = failed(KOVRA_ERR_STREAM_COMMAND);
        }
    }
    if (outcome.ok())
        return value;
    fail_stream(ctx, outcome);
    return command == KOVRA_STREAM_SIZE ? -1 : 0;
}
