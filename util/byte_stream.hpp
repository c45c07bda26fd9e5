// What the kinds of streams have in common inside the library.
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/handle.hpp"
#include "kovra/util_stream.h"

namespace kovra::util {

inline constexpr const char *stream_module = "UTIL_Stream";

// What an operation of a stream came to: the result for the caller, and the code to record when it is not 1.
// Only the exported functions record, so every failure leaves exactly one entry.
struct Outcome {
    int32_t result = 1;
    int32_t code = 0;

    [[nodiscard]] bool ok() const { return result == 1; }
};

constexpr Outcome failed(int32_t code) {
    return {0, code};
}

// The operations of a kind of stream. Handles and sizes have been checked before they are called.
struct StreamOperations {
    // Up to `size` octets (at least 1); a count of 0 means the end.
    Outcome (*read)(kovra_stream &stream, uint8_t *buffer, size_t size, size_t &count);
    // All octets, appended.
    Outcome (*write)(kovra_stream &stream, const uint8_t *data, size_t size);
    Outcome (*rewind)(kovra_stream &stream);
    // The offset is not negative.
    Outcome (*seek)(kovra_stream &stream, int64_t offset);
    // -1 when unknown, which is not a failure.
    Outcome (*size)(kovra_stream &stream, int64_t &size);
    Outcome (*all_consumed)(kovra_stream &stream, bool &consumed);
    // Releases what the stream holds, not the record.
    void (*close)(kovra_stream &stream);
};

} // namespace kovra::util

// The records of the kinds begin with this one.
struct kovra_stream {
    static constexpr uint32_t magic_of_type = kovra::magic_word("STRM");
    uint32_t magic;
    int32_t kind;
    const kovra::util::StreamOperations *operations;
};

namespace kovra::util {

// Growable, or read-only over the caller's octets.
struct MemoryStream : kovra_stream {
    uint8_t *octets;
    size_t size;
    size_t position;
    size_t capacity; // 0 while nothing is allocated
    size_t first_capacity;
    bool read_only;
};

inline bool is_memory(const kovra_stream &stream) {
    return stream.kind == KOVRA_STREAM_MEMORY;
}
inline MemoryStream &as_memory(kovra_stream &stream) {
    return static_cast<MemoryStream &>(stream);
}

// Records a failure and gives its result.
int32_t fail_stream(kovra_err_ctx *ctx, Outcome outcome, int32_t line = __builtin_LINE());

} // namespace kovra::util
