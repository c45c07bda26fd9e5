#include <algorithm>
#include <functional>

#include "base/sizes.hpp"
#include "base/thresholds.hpp"
#include "util/byte_stream.hpp"

namespace kovra::util {
namespace {

constexpr auto smallest_buffer = threshold<size_t>(64, 1);
// An initial size beyond this is not allocated at once: so many octets may never come.
constexpr auto largest_first_buffer = threshold<size_t>(65536, 3);

// A peek into an empty stream gives this place, never null.
constexpr uint8_t no_octets[1] = {};

Outcome read_memory(kovra_stream &stream, uint8_t *buffer, size_t size, size_t &count) {
    auto &memory = as_memory(stream);
    count = std::min(size, memory.size - memory.position);
    if (count > 0)
        std::memcpy(buffer, memory.octets + memory.position, count);
    memory.position += count;
    return {};
}

bool grow(MemoryStream &memory, size_t needed) {
    size_t capacity = memory.capacity == 0 ? std::max(memory.first_capacity, smallest_buffer)
                                           : next_capacity(memory.capacity, memory.capacity / 2);
    capacity = std::max(capacity, needed);
    // No allocation is larger than PTRDIFF_MAX, but what is needed may fit.
    if (capacity > PTRDIFF_MAX)
        capacity = needed;
    void *grown = kovra_realloc(memory.octets, capacity, stream_module, __LINE__);
    if (grown == nullptr)
        return false;
    memory.octets = static_cast<uint8_t *>(grown);
    memory.capacity = capacity;
    return true;
}

Outcome write_memory(kovra_stream &stream, const uint8_t *data, size_t size) {
    auto &memory = as_memory(stream);
    if (memory.read_only)
        return failed(KOVRA_ERR_STREAM_WRITE);
    if (size == 0)
        return {};
    if (size > memory.capacity - memory.size) {
        if (size > static_cast<size_t>(PTRDIFF_MAX) - memory.size)
            return failed(KOVRA_ERR_NO_MEMORY);
        // The octets to write may be in this buffer, where the caller got them by a peek: then they move with it.
        const std::less<> before;
        const bool own =
            memory.capacity != 0 && !before(data, memory.octets) && before(data, memory.octets + memory.size);
        const ptrdiff_t offset = own ? data - memory.octets : 0;
        if (!grow(memory, sum(memory.size, size)))
            return failed(KOVRA_ERR_NO_MEMORY);
        if (own)
            data = memory.octets + offset;
    }
    std::memcpy(memory.octets + memory.size, data, size);
    memory.size += size;
    return {};
}

Outcome rewind_memory(kovra_stream &stream) {
    as_memory(stream).position = 0;
    return {};
}

Outcome seek_memory(kovra_stream &stream, int64_t offset) {
    auto &memory = as_memory(stream);
    if (static_cast<uint64_t>(offset) > memory.size)
        return failed(KOVRA_ERR_STREAM_SEEK);
    memory.position = static_cast<size_t>(offset);
    return {};
}

Outcome size_memory(kovra_stream &stream, int64_t &size) {
    size = static_cast<int64_t>(as_memory(stream).size);
    return {};
}

Outcome all_consumed_memory(kovra_stream &stream, bool &consumed) {
    consumed = as_memory(stream).position == as_memory(stream).size;
    return {};
}

void close_memory(kovra_stream &stream) {
    if (!as_memory(stream).read_only)
        kovra_free(as_memory(stream).octets);
}

constexpr StreamOperations memory_operations = {read_memory, write_memory,        rewind_memory, seek_memory,
                                                size_memory, all_consumed_memory, close_memory};

MemoryStream *make_memory_stream(kovra_err_ctx *ctx) {
    auto *stream = make_record<MemoryStream>(stream_module);
    if (stream == nullptr) {
        fail_stream(ctx, failed(KOVRA_ERR_NO_MEMORY));
        return nullptr;
    }
    stream->kind = KOVRA_STREAM_MEMORY;
    stream->operations = &memory_operations;
    return stream;
}

} // namespace
} // namespace kovra::util

using namespace kovra;
using namespace kovra::util;

kovra_stream *kovra_stream_new_mem(int64_t initial_size, kovra_err_ctx *ctx) noexcept {
    if (initial_size < 0) {
        fail_stream(ctx, failed(KOVRA_ERR_BAD_ARGUMENT));
        return nullptr;
    }
    MemoryStream *stream = make_memory_stream(ctx);
    if (stream != nullptr)
        stream->first_capacity = static_cast<size_t>(std::min<int64_t>(initial_size, largest_first_buffer));
    return stream;
}

kovra_stream *kovra_stream_new_romem(const void *data, int64_t length, int32_t /*reserved*/,
                                     kovra_err_ctx *ctx) noexcept {
    if (length < 0 || length > PTRDIFF_MAX) {
        fail_stream(ctx, failed(KOVRA_ERR_BAD_ARGUMENT));
        return nullptr;
    }
    if (data == nullptr && length > 0) {
        fail_stream(ctx, failed(KOVRA_ERR_NULL_ARGUMENT));
        return nullptr;
    }
    MemoryStream *stream = make_memory_stream(ctx);
    if (stream == nullptr)
        return nullptr;
    stream->read_only = true;
    // Never written through: every way to write looks at read_only, or at the capacity, which stays 0.
    stream->octets = const_cast<uint8_t *>(static_cast<const uint8_t *>(data));
    stream->size = static_cast<size_t>(length);
    return stream;
}

void *kovra_memstreamdeatch(kovra_stream *stream, int64_t *out_length) noexcept {
    if (out_length != nullptr)
        *out_length = 0;
    if (!is_valid(stream) || !is_memory(*stream) || as_memory(*stream).read_only)
        return nullptr;
    auto &memory = as_memory(*stream);
    void *buffer = memory.octets;
    if (buffer == nullptr)
        return kovra_malloc(1, stream_module, __LINE__);
    if (out_length != nullptr)
        *out_length = static_cast<int64_t>(memory.size);
    memory.octets = nullptr;
    memory.size = memory.position = memory.capacity = 0;
    return buffer;
}

int32_t kovra_stream_peek(kovra_stream *stream, const uint8_t **out_data, int64_t *out_length) noexcept {
    if (!is_valid(stream) || !is_memory(*stream) || out_data == nullptr || out_length == nullptr)
        return 0;
    const auto &memory = as_memory(*stream);
    *out_data = memory.octets == nullptr ? no_octets : memory.octets + memory.position;
    *out_length = static_cast<int64_t>(memory.size - memory.position);
    return 1;
}

int32_t kovra_stream_advance(kovra_stream *stream, int64_t count) noexcept {
    if (!is_valid(stream) || !is_memory(*stream) || count < 0)
        return 0;
    auto &memory = as_memory(*stream);
    if (static_cast<uint64_t>(count) > memory.size - memory.position)
        return 0;
    memory.position += static_cast<size_t>(count);
    return 1;
}
