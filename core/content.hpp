// The content octets of string-like values and of the open type, wherever they live.
#pragma once

#include <cstdint>

#include "core/decoder.hpp"
#include "core/encoder.hpp"
#include "core/value.hpp"

namespace kovra::asn1 {

struct Type;

// Octets of the content; -1 when its stream cannot tell, -2 when there are more than a length can hold.
int32_t size_of(const Content &content);

// Makes a stream the content of a value in the arena. The size that it tells is only announced, unless it is a memory
// stream.
void use_stream(Content &content, Arena &arena, kovra_stream *stream);

// A copy of a content in a stream, which has just told `length`, for kovra_free; null when it has another length now,
// or memory is short. The octets take memory as they come.
void *copy_of(const Content &content, int32_t length);

// Is the value a string of so many octets? The length is not remembered as told to the caller.
inline bool has_octets(const kovra_asn1_value *value, int32_t count) {
    const auto *string = as<String>(value);
    return string != nullptr && size_of(string->content) == count;
}

// Gives back a length that is told to the caller, who may make room for so many octets: that of a stream, which may
// have another size the next time it is asked, is remembered. -1 and -2 are no lengths.
int32_t tell_length(Content &content, int32_t length);

// Copies all content octets into room for `room` of them. False, and perhaps some of them copied, when they are more or
// fewer than that, or the stream fails.
bool copy_out(const Content &content, const Arena &arena, void *buffer, int32_t room);
// The same into room for the length that was last told. Where none was, only the caller knows that the room is as large
// as the content is now.
bool copy_told(const Content &content, const Arena &arena, void *buffer);

// Writes all content octets and tells how many that were. Of a stream that goes on behind `most` of them, which is a
// fault for the caller to tell, the rest may be left.
Result put_content(Encoder &encoder, Site site, const Content &content, const Arena &arena, int64_t most,
                   int64_t &out_count);

// Which piece of a content is read, as public functions number it: the one at the start, or the one behind that which
// was read last. Callers may give any number.
enum class Piece : int32_t { first = 1, next = 2 };
Result read_piece(Content &content, const Arena &arena, Site site, Piece wanted, void *buffer, int32_t size,
                  int32_t *out_count, kovra_err_ctx *ctx);

// Decodes a value of the type with this number, whole or as the content of `element`, from content octets, all of which
// it must take up.
Result decode_from(Content &content, const Arena &arena, Site site, uint32_t number, const Element *element,
                   kovra_asn1_value **out_value, kovra_err_ctx *ctx);

// The code for a handle without a record of the wanted kind, or for a null place.
inline int32_t fault_of(const kovra_asn1_value *value, const void *place) {
    return value == nullptr || place == nullptr ? code::null_argument : code::bad_argument;
}

// The record whose content an object is to be decoded from; null, with an entry, when it or the place for the object
// is missing. The place is cleared.
template <class T> T *holder_of(kovra_asn1_value *value, kovra_asn1_value **out_value, Site site, kovra_err_ctx *ctx) {
    T *holder = as<T>(value);
    if (out_value != nullptr)
        *out_value = nullptr;
    if (holder != nullptr && out_value != nullptr)
        return holder;
    report(ctx, site, fault_of(value, out_value));
    return nullptr;
}

// A record that is the root of an arena of its own and holds a copy of the octets. Null when memory is short.
template <class T> T *new_with_content(const void *data, uint32_t length) {
    T *record = new_root<T>(length);
    if (record == nullptr)
        return nullptr;
    auto *copy = static_cast<uint8_t *>(record->arena->allocate(length));
    if (copy == nullptr) {
        Arena::destroy(record->arena);
        return nullptr;
    }
    if (length != 0)
        std::memcpy(copy, data, length);
    record->arena->octets = copy;
    record->arena->octets_length = length;
    record->content.octets = {copy, 0, length};
    return record;
}

// Reads octets from a stream one at a time, for functions that work on any stream directly.
class StreamSource {
public:
    StreamSource(kovra_stream *stream, kovra_err_ctx *ctx) : stream_(stream), ctx_(ctx) {}

    Result octet(Site site, uint8_t &out) {
        int32_t got = 0;
        const Result result = kovra_stream_read(stream_, &out, 1, &got, ctx_);
        if (result != success)
            return result;
        if (got != 1)
            return fail({"UTIL_Stream", site.line}, code::stream_read);
        ++count_;
        return success;
    }
    // Copies `count` octets to a stream (null: drops them).
    Result copy(Site site, uint32_t count, kovra_stream *destination);
    Result fail(Site site, int32_t code, Result result = failure) const {
        report(ctx_, site, code);
        return result;
    }
    [[nodiscard]] int64_t position() const { return count_; }

private:
    kovra_stream *stream_;
    kovra_err_ctx *ctx_;
    int64_t count_ = 0; // octets read so far
};

} // namespace kovra::asn1
