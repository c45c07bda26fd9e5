#include <algorithm>

#include "base/thresholds.hpp"
#include "util/byte_stream.hpp"

namespace kovra::util {
namespace {

// One call of the caller's functions moves at most this much.
constexpr auto largest_call = threshold<size_t>(INT32_MAX, 7);

struct CallbackStream : kovra_stream {
    kovra_stream_callbacks callbacks;
    void *user;
    int64_t position; // of the octet that the next read gives, counted from the start
    bool has_ahead;   // an octet was read to learn whether there is one, and not given out yet
    uint8_t ahead;
};

CallbackStream &as_callback(kovra_stream &stream) {
    return static_cast<CallbackStream &>(stream);
}

// One call of the caller's function. A count that it cannot have moved is a failure.
Outcome call_read(CallbackStream &stream, uint8_t *buffer, size_t size, size_t &count) {
    count = 0;
    if (stream.callbacks.read == nullptr)
        return failed(KOVRA_ERR_STREAM_READ);
    const auto wanted = static_cast<int32_t>(std::min(size, largest_call));
    int32_t given = 0;
    const int32_t result = stream.callbacks.read(stream.user, buffer, wanted, &given);
    if (result != 1)
        return {result, KOVRA_ERR_STREAM_READ};
    if (given < 0 || given > wanted)
        return failed(KOVRA_ERR_STREAM_READ);
    count = static_cast<size_t>(given);
    return {};
}

Outcome read_from_callback(kovra_stream &stream, uint8_t *buffer, size_t size, size_t &count) {
    auto &callback = as_callback(stream);
    const size_t from_ahead = callback.has_ahead ? 1 : 0;
    size_t called = 0;
    if (from_ahead > 0)
        buffer[0] = callback.ahead;
    if (size > from_ahead)
        if (const Outcome outcome = call_read(callback, buffer + from_ahead, size - from_ahead, called); !outcome.ok())
            return outcome;
    callback.has_ahead = false;
    count = from_ahead + called;
    callback.position += static_cast<int64_t>(count);
    return {};
}

Outcome write_to_callback(kovra_stream &stream, const uint8_t *data, size_t size) {
    auto &callback = as_callback(stream);
    if (callback.callbacks.write == nullptr)
        return failed(KOVRA_ERR_STREAM_WRITE);
    while (size > 0) {
        const auto offered = static_cast<int32_t>(std::min(size, largest_call));
        int32_t taken = 0;
        const int32_t result = callback.callbacks.write(callback.user, data, offered, &taken);
        if (result != 1)
            return {result, KOVRA_ERR_STREAM_WRITE};
        if (taken <= 0 || taken > offered) // none taken: going on could last for ever
            return failed(KOVRA_ERR_STREAM_WRITE);
        data += taken;
        size -= static_cast<size_t>(taken);
    }
    return {};
}

int64_t control(const CallbackStream &stream, int32_t command, int64_t argument, int64_t otherwise) {
    const auto function = stream.callbacks.control;
    return function == nullptr ? otherwise : function(stream.user, command, argument);
}

Outcome rewind_callback(kovra_stream &stream) {
    auto &callback = as_callback(stream);
    if (control(callback, KOVRA_STREAM_REWIND, 0, 0) != 1)
        return failed(KOVRA_ERR_STREAM_REWIND);
    callback.position = 0;
    callback.has_ahead = false;
    return {};
}

Outcome size_of_callback(kovra_stream &stream, int64_t &size) {
    size = std::max<int64_t>(control(as_callback(stream), KOVRA_STREAM_SIZE, 0, -1), -1);
    return {};
}

Outcome seek_callback(kovra_stream &stream, int64_t offset) {
    auto &callback = as_callback(stream);
    int64_t size = -1;
    size_of_callback(stream, size);
    if (size >= 0 && offset > size)
        return failed(KOVRA_ERR_STREAM_SEEK);
    if (control(callback, KOVRA_STREAM_SEEK, offset, 0) != 1)
        return failed(KOVRA_ERR_STREAM_SEEK);
    callback.position = offset;
    callback.has_ahead = false;
    return {};
}

// Reads an octet ahead only where the size is not known: reading might wait for an octet that never comes.
Outcome all_consumed_callback(kovra_stream &stream, bool &consumed) {
    auto &callback = as_callback(stream);
    int64_t size = -1;
    size_of_callback(stream, size);
    if (size >= 0) {
        consumed = callback.position >= size;
        return {};
    }
    size_t count = 0;
    if (!callback.has_ahead) {
        if (const Outcome outcome = call_read(callback, &callback.ahead, 1, count); !outcome.ok())
            return outcome;
        callback.has_ahead = count == 1;
    }
    consumed = !callback.has_ahead;
    return {};
}

void close_callback(kovra_stream &stream) {
    const auto &callback = as_callback(stream);
    if (callback.callbacks.close != nullptr)
        callback.callbacks.close(callback.user);
}

constexpr StreamOperations callback_operations = {read_from_callback, write_to_callback, rewind_callback,
                                                  seek_callback,      size_of_callback,  all_consumed_callback,
                                                  close_callback};

} // namespace
} // namespace kovra::util

using namespace kovra;
using namespace kovra::util;

kovra_stream *kovra_stream_new_callbacks(const kovra_stream_callbacks *callbacks, void *user,
                                         kovra_err_ctx *ctx) noexcept {
    if (callbacks == nullptr) {
        fail_stream(ctx, failed(KOVRA_ERR_NULL_ARGUMENT));
        return nullptr;
    }
    auto *stream = make_record<CallbackStream>(stream_module);
    if (stream == nullptr) {
        fail_stream(ctx, failed(KOVRA_ERR_NO_MEMORY));
        return nullptr;
    }
    stream->kind = KOVRA_STREAM_CALLBACK;
    stream->operations = &callback_operations;
    stream->callbacks = *callbacks;
    stream->user = user;
    return stream;
}
