// The content of OCTET STRING and BIT STRING (X.690, 8.6 and 8.7): primitive, or constructed of segments that may
// themselves be constructed, as deep as the input likes.
#pragma once

#include <cstdint>
#include <type_traits>

#include "base/stack.hpp"
#include "base/thresholds.hpp"
#include "core/codes.hpp"
#include "core/content.hpp"
#include "core/decoder.hpp"
#include "core/encoder.hpp"
#include "core/failure.hpp"
#include "core/octets.hpp"

namespace kovra::asn1 {

// The constructed strings that are open while their segments are read.
class OpenStrings {
public:
    static constexpr int64_t until_end_of_contents = -1;
    struct Level {
        int64_t end;          // position behind the last segment, or until_end_of_contents
        uint32_t unused_bits; // of the last segment of a BIT STRING
    };

    // False when memory is short.
    bool open(int64_t end) {
        if (count_ < outer_count)
            outer_[count_] = {end, 0};
        else if (!inner_.push({end, 0}))
            return false;
        ++count_;
        return true;
    }
    void close() {
        if (count_ > outer_count)
            inner_.pop();
        --count_;
    }
    [[nodiscard]] bool empty() const { return count_ == 0; }
    [[nodiscard]] Level &top() { return count_ > outer_count ? inner_.top() : outer_[count_ - 1]; }

private:
    static constexpr auto outer_count = threshold<size_t>(8, 1);
    Level outer_[outer_count]; // as deep as strings are mostly; they take no allocation
    Stack<Level, outer_count> inner_{"ASN1_OctetString"};
    size_t count_ = 0;
};

// Reads a segment's identifier and length. An end-of-contents marker that stands there was read to its end.
template <class Source>
Result read_segment(Source &source, Site site, int32_t tag, Identifier &identifier, int32_t &length) {
    if (const Result result = read_identifier(source, site, identifier); result != success)
        return source.fail(site, code::read_identifier, result);
    if (identifier.is_end_of_contents()) {
        // A BIT STRING tells of a wrong second octet and not of a missing one, an OCTET STRING the other way round.
        const bool is_bits = tag == tag::bit_string;
        uint8_t octet = 0;
        if (const Result result = source.octet(site, octet); result != success)
            return is_bits ? failure : source.fail(site, code::read_end_of_contents, result);
        if (octet == 0)
            return success;
        return is_bits ? source.fail(site, code::read_end_of_contents) : failure;
    }
    if (!identifier.is(Class::universal, tag))
        return source.fail(site, code::incorrect_item);
    const Result result = read_length(source, site, length);
    return result == success ? success : source.fail(site, code::read_length, result);
}

// Walks the content of a string and calls take(length) where content octets stand, which takes that many of them from
// the source. For a BIT STRING the unused-bits octets are read here, and `unused_bits` tells the last.
template <bool of_bits> class SegmentWalk {
public:
    template <class Source, class Take>
    static Result run(Source &source, Site site, const Element &element, Take take, uint32_t &unused_bits) {
        unused_bits = 0;
        if (element.form == Form::primitive)
            return primitive(source, site, element.length, take, unused_bits);
        if (element.length < indefinite)
            return source.fail(site, code::bad_length);
        if (element.length == 0)
            return success;
        OpenStrings open;
        const Result result = constructed(source, site, element.length, take, open, unused_bits);
        // Each BIT STRING of indefinite length that was open tells that it failed.
        for (; of_bits && result != success && !open.empty(); open.close())
            if (open.top().end == OpenStrings::until_end_of_contents)
                source.fail(site, code::decode_bit_string);
        return result;
    }

private:
    static constexpr int32_t tag = of_bits ? tag::bit_string : tag::octet_string;

    template <class Source, class Take>
    static Result primitive(Source &source, Site site, int32_t length, Take &take, uint32_t &unused_bits) {
        if (length == indefinite)
            return source.fail(site, code::definite_wanted);
        if (length < (of_bits ? 1 : 0))
            return source.fail(site, code::bad_length);
        auto count = static_cast<uint32_t>(length);
        if constexpr (of_bits) {
            uint8_t octet = 0;
            if (const Result result = source.octet(site, octet); result != success)
                return result;
            if (octet >= 8 || (octet != 0 && length == 1))
                return source.fail(site, code::bad_unused_bits);
            --count;
            unused_bits = octet;
        }
        return take(count);
    }

    template <class Source, class Take>
    static Result constructed(Source &source, Site site, int32_t length, Take &take, OpenStrings &open,
                              uint32_t &unused_bits) {
        const auto enter = [&](int32_t content) {
            const int64_t end = content == indefinite ? OpenStrings::until_end_of_contents
                                                      : static_cast<int64_t>(source.position()) + content;
            return open.open(end) ? success : source.fail(site, code::no_memory);
        };
        if (const Result result = enter(length); result != success)
            return result;
        while (!open.empty()) {
            OpenStrings::Level &level = open.top();
            const bool is_indefinite = level.end == OpenStrings::until_end_of_contents;
            Identifier identifier;
            int32_t segment = 0;
            uint32_t unused = 0;
            if (const Result result = read_segment(source, site, tag, identifier, segment); result != success)
                return result;
            if (identifier.is_end_of_contents()) {
                if (!is_indefinite)
                    return source.fail(site, code::incorrect_item);
                unused = level.unused_bits;
                open.close();
            } else {
                // Only the last segment may have unused bits.
                if (is_indefinite && level.unused_bits != 0)
                    return source.fail(site, code::bad_unused_bits);
                if (identifier.form == Form::constructed && segment != 0) {
                    if (const Result result = enter(segment); result != success)
                        return result;
                    continue;
                }
                if (identifier.form == Form::primitive)
                    if (const Result result = primitive(source, site, segment, take, unused); result != success)
                        return result;
            }
            if (const Result result = segment_ended(source, site, open, unused); result != success)
                return result;
            unused_bits = unused;
        }
        return success;
    }

    // A segment with `unused` bits ended; strings of definite length that end with it are closed.
    template <class Source>
    static Result segment_ended(Source &source, Site site, OpenStrings &open, uint32_t &unused) {
        while (!open.empty()) {
            OpenStrings::Level &level = open.top();
            level.unused_bits = unused;
            if (level.end == OpenStrings::until_end_of_contents)
                return success;
            const auto position = static_cast<int64_t>(source.position());
            if (position > level.end)
                return source.fail(site, code::bad_length);
            if (position < level.end)
                return unused == 0 ? success : source.fail(site, code::bad_unused_bits);
            open.close();
        }
        return success;
    }
};

// Decodes the content of a string into a record's content: a slice of the octets, or the segments put together.
template <bool of_bits>
Result decode_segments(Decoder &decoder, Site site, const Element &element, Content &out, uint32_t &unused_bits);

// A string whose length cannot be told beforehand is written as segments.
constexpr Form form_of(int32_t length) {
    return length == indefinite ? Form::constructed : Form::primitive;
}

// Writes a whole OCTET STRING or BIT STRING of this content length. Identifier octets that cannot be written leave no
// entry of their own.
template <int32_t tag_number, auto encode_content>
Result encode_string(Encoder &encoder, Site site, const Type &type, Value *value, int32_t length) {
    if (length == unknown)
        return encoder.fail(site, code::bad_length);
    Result result = encoder.identifier(site, Class::universal, form_of(length), tag_number);
    if (result != success)
        return result;
    if (result = encoder.length(site, length); result != success)
        return encoder.fail(site, code::write_length, result);
    return encode_content(encoder, type, value, length);
}

// Ends the segments of a content that was written to its end.
inline Result end_segments(Encoder &encoder, Site site, const Content &content) {
    if (content.stream != nullptr &&
        kovra_stream_ctrl(content.stream, KOVRA_STREAM_ALL_CONSUMED, 0, nullptr) != success)
        return encoder.fail(site, code::stream_control);
    const Result result = encoder.end_of_contents(site);
    return result == success ? success : encoder.fail(site, code::write_end_of_contents, result);
}

// Reads a string from a stream and appends its content octets to another, which the value then uses. With an element,
// its identifier and length were read; else they are read here.
template <class Record>
Result decode_to_stream(kovra_stream *stream, kovra_stream *content_stream, Site site, const Element *element,
                        kovra_asn1_value **out_string, int32_t *out_read, kovra_err_ctx *ctx) {
    constexpr bool of_bits = std::is_same_v<Record, BitString>;
    if (out_string != nullptr)
        *out_string = nullptr;
    const auto refuse = [&](int32_t code) {
        report(ctx, site, code);
        return failure;
    };
    if (stream == nullptr || content_stream == nullptr || out_string == nullptr)
        return refuse(code::null_argument);
    StreamSource source(stream, ctx);
    Element own{};
    if (element == nullptr) {
        Identifier identifier;
        const Result result =
            read_segment(source, site, of_bits ? tag::bit_string : tag::octet_string, identifier, own.length);
        if (result != success)
            return result;
        if (identifier.is_end_of_contents())
            return refuse(of_bits ? code::decode_bit_string : code::decode_octet_string);
        own.form = identifier.form;
        element = &own;
    }
    auto *string = new_root<Record>();
    if (string == nullptr)
        return refuse(code::no_memory);
    const auto copy = [&](uint32_t count) { return source.copy(site, count, content_stream); };
    uint32_t unused_bits = 0;
    const Result result = SegmentWalk<of_bits>::run(source, site, *element, copy, unused_bits);
    if (result != success) {
        Arena::destroy(string->arena);
        return result;
    }
    if constexpr (of_bits)
        string->unused_bits = unused_bits;
    use_stream(string->content, *string->arena, content_stream);
    *out_string = string;
    if (out_read != nullptr)
        *out_read = static_cast<int32_t>(source.position());
    return success;
}

} // namespace kovra::asn1
