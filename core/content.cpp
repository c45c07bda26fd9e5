#include "core/content.hpp"

#include <algorithm>
#include <cstring>

#include "core/codec.hpp"
#include "core/registry.hpp"
#include "kovra/util_memory.h"

namespace kovra::asn1 {

namespace {

constexpr char source_name[] = "ASN1_Lib";
constexpr int32_t piece = threshold(8192, 3);

// Copies as many octets from the start as the content was just found to have.
bool copy_octets(const Content &content, const Arena &arena, void *buffer, int32_t size) {
    if (content.stream != nullptr)
        return kovra_stream_ctrl(content.stream, KOVRA_STREAM_REWIND, 0, nullptr) == success &&
               kovra_stream_readn(content.stream, buffer, size, nullptr, nullptr) == success;
    if (size != 0)
        std::memcpy(buffer, content.octets.data(arena), static_cast<size_t>(size));
    return true;
}

} // namespace

int32_t size_of(const Content &content) {
    if (content.stream == nullptr)
        return static_cast<int32_t>(content.octets.length);
    const int64_t size = kovra_stream_ctrl(content.stream, KOVRA_STREAM_SIZE, 0, nullptr);
    if (size < 0)
        return indefinite;
    return size <= max_length ? static_cast<int32_t>(size) : unknown;
}

void use_stream(Content &content, Arena &arena, kovra_stream *stream) {
    content.stream = stream;
    if (kovra_stream_gettype(stream) != KOVRA_STREAM_MEMORY)
        arena.note_announced();
}

void *copy_of(const Content &content, int32_t length) {
    kovra_stream *stream = content.stream;
    const auto wanted = static_cast<size_t>(length);
    size_t capacity = kovra_stream_gettype(stream) == KOVRA_STREAM_MEMORY ? wanted : std::min<size_t>(wanted, piece);
    auto *octets = static_cast<uint8_t *>(kovra_malloc(capacity, source_name, __LINE__));
    bool is_good = octets != nullptr && kovra_stream_ctrl(stream, KOVRA_STREAM_REWIND, 0, nullptr) == success;
    for (size_t size = 0; is_good && size < wanted;) {
        if (size == capacity) {
            capacity = std::min(wanted, next_capacity(capacity, capacity));
            void *grown = kovra_realloc(octets, capacity, source_name, __LINE__);
            is_good = grown != nullptr;
            octets = is_good ? static_cast<uint8_t *>(grown) : octets;
            continue;
        }
        int32_t got = 0;
        is_good =
            kovra_stream_read(stream, octets + size, static_cast<int32_t>(capacity - size), &got, nullptr) == success &&
            got > 0;
        size += static_cast<size_t>(got);
    }
    if (is_good && size_of(content) == length)
        return octets;
    kovra_free(octets);
    return nullptr;
}

int32_t tell_length(Content &content, int32_t length) {
    if (content.stream != nullptr && length >= 0)
        content.told = static_cast<uint32_t>(length) + 1;
    return length;
}

bool copy_out(const Content &content, const Arena &arena, void *buffer, int32_t room) {
    return room >= 0 && size_of(content) == room && copy_octets(content, arena, buffer, room);
}

bool copy_told(const Content &content, const Arena &arena, void *buffer) {
    const int32_t size = size_of(content);
    const bool is_other =
        content.stream != nullptr && content.told != 0 && content.told - 1 != static_cast<uint32_t>(size);
    return size >= 0 && !is_other && copy_octets(content, arena, buffer, size);
}

Result put_content(Encoder &encoder, Site site, const Content &content, const Arena &arena, int64_t most,
                   int64_t &out_count) {
    if (content.stream != nullptr)
        return encoder.copy(site, content.stream, most, out_count);
    out_count = content.octets.length;
    return encoder.put(site, content.octets.data(arena), content.octets.length);
}

Result read_piece(Content &content, const Arena &arena, Site site, Piece wanted, void *buffer, int32_t size,
                  int32_t *out_count, kovra_err_ctx *ctx) {
    if (out_count != nullptr)
        *out_count = 0;
    const auto refuse = [&](int32_t code) {
        report(ctx, site, code);
        return failure;
    };
    if (size < 0)
        return refuse(code::bad_argument);
    if (wanted != Piece::first && wanted != Piece::next)
        return refuse(code::stream_read);
    if (content.stream != nullptr) {
        if (wanted == Piece::first && kovra_stream_ctrl(content.stream, KOVRA_STREAM_REWIND, 0, nullptr) != success)
            return refuse(code::stream_control);
        return size == 0 ? success : kovra_stream_read(content.stream, buffer, size, out_count, ctx);
    }
    if (wanted == Piece::first)
        content.position = 0;
    const uint32_t count = std::min(static_cast<uint32_t>(size), content.octets.length - content.position);
    if (count != 0)
        std::memcpy(buffer, content.octets.data(arena) + content.position, count);
    content.position += count;
    if (out_count != nullptr)
        *out_count = static_cast<int32_t>(count);
    return success;
}

Result decode_from(Content &content, const Arena &arena, Site site, uint32_t number, const Element *element,
                   kovra_asn1_value **out_value, kovra_err_ctx *ctx) {
    *out_value = nullptr;
    if (number >= type_count) {
        // Two entries: that of the decode, and the one that is added to every failed decode here.
        report(ctx, {"ASN1", __LINE__}, code::unsupported_type);
        report(ctx, site, code::unsupported_type);
        return failure;
    }
    const Type &type = row(number);
    const auto run = [&](Decoder &decoder, Value *&value) {
        return element == nullptr ? decode_root(decoder, type, value)
                                  : decode_root_content(decoder, type, *element, value);
    };
    const auto finish = [&](Result result, bool all_consumed, Value *value) {
        if (result != success) {
            report(ctx, site, type.base + 1);
            return result;
        }
        if (!all_consumed) {
            if (value != nullptr)
                Arena::destroy(value->arena);
            report(ctx, site, code::octets_left);
            return failure;
        }
        *out_value = value;
        return success;
    };
    Value *value = nullptr;
    if (content.stream == nullptr) {
        Decoder decoder(content.octets.data(arena), content.octets.length, ctx);
        const Result result = run(decoder, value);
        return finish(result, decoder.position() == content.octets.length, value);
    }
    if (kovra_stream_ctrl(content.stream, KOVRA_STREAM_REWIND, 0, nullptr) != success) {
        report(ctx, site, code::stream_control);
        return failure;
    }
    Decoder decoder(content.stream, ctx);
    const Result result = run(decoder, value);
    decoder.advance_stream();
    return finish(result,
                  result == success &&
                      kovra_stream_ctrl(content.stream, KOVRA_STREAM_ALL_CONSUMED, 0, nullptr) == success,
                  value);
}

Result StreamSource::copy(Site site, uint32_t count, kovra_stream *destination) {
    uint8_t buffer[piece];
    while (count != 0) {
        int32_t got = 0;
        const auto wanted = static_cast<int32_t>(std::min<uint32_t>(count, piece));
        if (const Result result = kovra_stream_read(stream_, buffer, wanted, &got, ctx_); result != success)
            return result;
        if (got <= 0)
            return fail({"UTIL_Stream", site.line}, code::stream_read);
        if (destination != nullptr)
            if (const Result result = kovra_stream_writen(destination, buffer, got, nullptr, ctx_); result != success)
                return result;
        count -= static_cast<uint32_t>(got);
        count_ += got;
    }
    return success;
}

} // namespace kovra::asn1
