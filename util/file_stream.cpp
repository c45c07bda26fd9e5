#include <algorithm>

#include "base/thresholds.hpp"
#include "util/byte_stream.hpp"
#include "util/os_file.hpp"

namespace kovra::util {
namespace {

constexpr auto buffer_size = threshold<size_t>(8192, 3);

struct FileStream : kovra_stream {
    OsFile file;
    bool readable;
    bool writable;
    int64_t fetched; // offset of the first octet not yet read from the file
    int64_t end;     // offset at which writing goes on
    // The buffer's first `buffered` octets are those of the file before `fetched`; those from `next` on are unread.
    size_t next;
    size_t buffered;
    uint8_t buffer[buffer_size];
};

FileStream &as_file(kovra_stream &stream) {
    return static_cast<FileStream &>(stream);
}

// Reads from the file itself. The buffer is empty, and the octets do not pass through it.
Outcome fetch(FileStream &stream, uint8_t *to, size_t size, size_t &count) {
    if (!stream.readable)
        return failed(KOVRA_ERR_STREAM_READ);
    const int64_t fetched = read_file(stream.file, stream.fetched, to, size);
    if (fetched < 0 || fetched > INT64_MAX - stream.fetched)
        return failed(KOVRA_ERR_STREAM_READ);
    stream.fetched += fetched;
    count = static_cast<size_t>(fetched);
    return {};
}

Outcome fill_buffer(FileStream &stream) {
    stream.next = stream.buffered = 0;
    return fetch(stream, stream.buffer, buffer_size, stream.buffered);
}

Outcome read_from_file(kovra_stream &stream, uint8_t *to, size_t size, size_t &count) {
    auto &file = as_file(stream);
    count = 0;
    while (count < size) {
        const size_t wanted = size - count;
        size_t piece = std::min(wanted, file.buffered - file.next);
        if (piece > 0) {
            std::memcpy(to + count, file.buffer + file.next, piece);
            file.next += piece;
        } else if (wanted >= buffer_size) {
            file.next = file.buffered = 0;
            if (const Outcome outcome = fetch(file, to + count, wanted, piece); !outcome.ok())
                return outcome;
            if (piece == 0)
                break;
        } else {
            if (const Outcome outcome = fill_buffer(file); !outcome.ok())
                return outcome;
            if (file.buffered == 0)
                break;
        }
        count += piece;
    }
    return {};
}

// Straight to the file: an octet reported as written has been taken by the operating system.
Outcome write_to_file(kovra_stream &stream, const uint8_t *data, size_t size) {
    auto &file = as_file(stream);
    if (!file.writable || size > static_cast<uint64_t>(INT64_MAX - file.end))
        return failed(KOVRA_ERR_STREAM_WRITE);
    while (size > 0) {
        const int64_t written = write_file(file.file, file.end, data, size);
        if (written <= 0)
            return failed(KOVRA_ERR_STREAM_WRITE);
        file.end += written;
        data += written;
        size -= static_cast<size_t>(written);
    }
    return {};
}

Outcome position_file(FileStream &stream, int64_t offset, int32_t code) {
    const int64_t buffer_start = stream.fetched - static_cast<int64_t>(stream.buffered);
    // A pipe cannot be positioned; asking for the present position is no failure.
    if (!stream.file.positioned && offset != buffer_start + static_cast<int64_t>(stream.next))
        return failed(code);
    if (offset >= buffer_start && offset <= stream.fetched) {
        stream.next = static_cast<size_t>(offset - buffer_start);
        return {};
    }
    stream.next = stream.buffered = 0;
    stream.fetched = offset;
    return {};
}

Outcome rewind_file(kovra_stream &stream) {
    return position_file(as_file(stream), 0, KOVRA_ERR_STREAM_REWIND);
}

Outcome seek_file(kovra_stream &stream, int64_t offset) {
    auto &file = as_file(stream);
    if (file.file.positioned && offset > file_size(file.file))
        return failed(KOVRA_ERR_STREAM_SEEK);
    return position_file(file, offset, KOVRA_ERR_STREAM_SEEK);
}

Outcome size_of_file(kovra_stream &stream, int64_t &size) {
    const auto &file = as_file(stream);
    size = -1;
    if (!file.file.positioned)
        return {};
    size = file_size(file.file);
    return size < 0 ? failed(KOVRA_ERR_STREAM_SIZE) : Outcome{};
}

Outcome all_consumed_file(kovra_stream &stream, bool &consumed) {
    auto &file = as_file(stream);
    if (!file.readable) {
        consumed = file.end == 0;
        return {};
    }
    if (file.next == file.buffered)
        if (const Outcome outcome = fill_buffer(file); !outcome.ok())
            return outcome;
    consumed = file.next == file.buffered;
    return {};
}

void close_file_stream(kovra_stream &stream) {
    close_file(as_file(stream).file);
}

constexpr StreamOperations file_operations = {read_from_file, write_to_file,     rewind_file,      seek_file,
                                              size_of_file,   all_consumed_file, close_file_stream};

} // namespace
} // namespace kovra::util

using namespace kovra;
using namespace kovra::util;

kovra_stream *kovra_stream_new_file(const char *path, int32_t mode, kovra_err_ctx *ctx) noexcept {
    if (path == nullptr) {
        fail_stream(ctx, failed(KOVRA_ERR_NULL_ARGUMENT));
        return nullptr;
    }
    if (mode != KOVRA_FILE_READ && mode != KOVRA_FILE_WRITE && mode != KOVRA_FILE_READ_WRITE) {
        fail_stream(ctx, failed(KOVRA_ERR_BAD_ARGUMENT));
        return nullptr;
    }
    auto *stream = make_record<FileStream>(stream_module);
    if (stream == nullptr) {
        fail_stream(ctx, failed(KOVRA_ERR_NO_MEMORY));
        return nullptr;
    }
    stream->kind = KOVRA_STREAM_FILE;
    stream->operations = &file_operations;
    stream->readable = mode != KOVRA_FILE_WRITE;
    stream->writable = mode != KOVRA_FILE_READ;
    if (!open_file(path, stream->readable, stream->writable, stream->file)) {
        release_record(stream);
        fail_stream(ctx, failed(KOVRA_ERR_STREAM_OPEN));
        return nullptr;
    }
    return stream;
}
