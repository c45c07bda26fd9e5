// BIT STRING (X.690, 8.6 and 11.2). Bit 0 is the most significant bit of the first octet.

#include "kovra/asn1_bitstring.h"

#include <algorithm>

#include "base/thresholds.hpp"
#include "core/codec.hpp"
#include "core/content.hpp"
#include "core/registry.hpp"
#include "types/segments.hpp"

namespace kovra::asn1 {

namespace {

Site here(int32_t line = __builtin_LINE()) {
    return {"ASN1_BitString", line};
}

constexpr auto segment = threshold<int32_t>(8192, 3);

int32_t length_of(const BitString &bits) {
    const int32_t length = size_of(bits.content);
    return length < 0 ? length : length < max_length ? length + 1 : unknown;
}

// A stream may have another size the next time it is asked: what is written is what was measured.
int32_t bit_string_content_length(const Type &, Value *value, Measure measure) {
    auto *bits = static_cast<BitString *>(value);
    if (bits == nullptr)
        return unknown;
    if (bits->content.stream == nullptr)
        return length_of(*bits);
    if (measure == Measure::fresh)
        bits->measured = length_of(*bits);
    return bits->measured;
}

Result write_segment(Encoder &encoder, uint8_t unused_bits, const uint8_t *octets, int32_t length) {
    Result result = encoder.identifier(here(), Class::universal, Form::primitive, tag::bit_string);
    if (result != success)
        return encoder.fail(here(), code::write_identifier, result);
    if (result = encoder.length(here(), length + 1); result != success)
        return encoder.fail(here(), code::write_length, result);
    result = encoder.put(here(), &unused_bits, 1);
    return result == success ? encoder.put(here(), octets, static_cast<size_t>(length)) : result;
}

// Content of any length, as segments; one piece is held back because only the last segment has unused bits.
Result write_segments(Encoder &encoder, const BitString &bits) {
    Content content = bits.content;
    uint8_t octets[2][segment];
    int32_t held = 0;
    auto piece = Piece::first;
    for (int current = 0;; current ^= 1, piece = Piece::next) {
        int32_t got = 0;
        Result result = read_piece(content, *bits.arena, here(), piece, octets[current], segment, &got, encoder.ctx());
        if (result != success)
            return result;
        if (held > 0) {
            const auto unused_bits = static_cast<uint8_t>(got > 0 ? 0 : bits.unused_bits);
            if (result = write_segment(encoder, unused_bits, octets[current ^ 1], held); result != success)
                return result;
        }
        if (got <= 0)
            break;
        held = got;
    }
    return end_segments(encoder, here(), content);
}

Result encode_bit_string_content(Encoder &encoder, const Type &, Value *value, int32_t length) {
    const auto *bits = static_cast<const BitString *>(value);
    if (!encoder.has_stream() || bits == nullptr)
        return encoder.fail(here(), code::null_argument);
    const auto unused_bits = static_cast<uint8_t>(bits->unused_bits);
    if (length == indefinite)
        return write_segments(encoder, *bits);
    if (length < 1)
        return encoder.fail(here(), code::bad_argument);
    int64_t copied = 0;
    Result result = encoder.put(here(), &unused_bits, 1);
    if (result == success)
        result = put_content(encoder, here(), bits->content, *bits->arena, length - 1, copied);
    if (result != success)
        return result;
    return copied == length - 1 ? success : encoder.fail(here(), code::short_copy);
}

Result encode_bit_string(Encoder &encoder, const Type &type, Value *value) {
    const int32_t length = bit_string_content_length(type, value, Measure::known);
    return encode_string<tag::bit_string, encode_bit_string_content>(encoder, here(), type, value, length);
}

Result decode_bit_string_content(Decoder &decoder, const Type &, const Element &element, Value *&out) {
    if (const Result result = check_source_and_place(decoder, here()); result != success)
        return result;
    auto *bits = new_record<BitString>(decoder.arena());
    if (bits == nullptr)
        return decoder.fail(here(), code::no_memory);
    const Result result = decode_segments<true>(decoder, here(), element, bits->content, bits->unused_bits);
    if (result == success)
        out = bits;
    return result;
}

Result decode_bit_string(Decoder &decoder, const Type &type, Value *&out) {
    Identifier identifier;
    int32_t length = 0;
    const Result result = read_segment(decoder, here(), tag::bit_string, identifier, length);
    if (result != success)
        return result;
    if (identifier.is_end_of_contents())
        return decoder.fail(here(), code::decode_bit_string);
    return decode_bit_string_content(decoder, type, {identifier.form, length}, out);
}

Result refuse(kovra_err_ctx *ctx, int32_t code, int32_t line = __builtin_LINE()) {
    report(ctx, here(line), code);
    return failure;
}

} // namespace

constexpr Operations bit_string_operations = {
    .holds = holds_kind<BitString>,
    .content_length = bit_string_content_length,
    .encode_content = encode_bit_string_content,
    .encode = encode_bit_string,
    .decode_content = decode_bit_string_content,
    .decode = decode_bit_string,
    .decode_plain = decode_bit_string_content,
    .records_reserve = leaf_reserve<2 * sizeof(BitString)>,
};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_asn1_bitstring_new(int32_t unused_bits, const void *data, int32_t length) noexcept {
    if (length < 0 || unused_bits < 0 || unused_bits > 7 || (data == nullptr && length > 0) ||
        (unused_bits != 0 && length == 0))
        return nullptr;
    auto *bits = new_with_content<BitString>(data, static_cast<uint32_t>(length));
    if (bits == nullptr)
        return nullptr;
    bits->unused_bits = static_cast<uint32_t>(unused_bits);
    if (unused_bits != 0)
        const_cast<uint8_t *>(bits->content.octets.memory)[length - 1] &= static_cast<uint8_t>(0xFF << unused_bits);
    return bits;
}

kovra_asn1_value *kovra_asn1_bitstring_newbits(const int32_t *positions, int32_t count) noexcept {
    if (count < 0)
        return nullptr;
    if (positions == nullptr)
        return kovra_asn1_bitstring_new(0, nullptr, 0);
    // The first position is in the range even when the count is 0.
    const int32_t *end = positions + std::max(count, 1);
    if (std::any_of(positions, end, [](int32_t position) { return position < 0; }))
        return nullptr;
    const int32_t highest = *std::max_element(positions, end);
    const auto length = static_cast<uint32_t>(highest / 8 + 1);
    auto *bits = new_root<BitString>(length);
    auto *octets = bits != nullptr ? static_cast<uint8_t *>(bits->arena->allocate(length)) : nullptr;
    if (octets == nullptr) {
        if (bits != nullptr)
            Arena::destroy(bits->arena);
        return nullptr;
    }
    std::fill_n(octets, length, uint8_t{0});
    for (const int32_t *position = positions; position != end; ++position)
        octets[*position / 8] |= static_cast<uint8_t>(0x80 >> (*position % 8));
    bits->content.octets = {octets, 0, length};
    bits->unused_bits = static_cast<uint32_t>(7 - highest % 8);
    return bits;
}

kovra_asn1_value *kovra_asn1_bitstring_newbitset(const kovra_bitset *set) noexcept {
    int32_t unused_bits = 0;
    kovra_data_blob *octets = set != nullptr ? kovra_bitset_getdata(set, &unused_bits) : nullptr;
    if (octets == nullptr)
        return nullptr;
    kovra_asn1_value *bits =
        kovra_asn1_bitstring_new(unused_bits, kovra_data_blob_getdata(octets), kovra_data_blob_getlength(octets));
    kovra_data_blob_free(octets);
    return bits;
}

kovra_bitset *kovra_asn1_bitstring_getbitset(kovra_asn1_value *bitstring) noexcept {
    const auto *bits = as<BitString>(bitstring);
    const int32_t length = bits != nullptr ? size_of(bits->content) : unknown;
    if (length < 0)
        return nullptr;
    const auto unused_bits = static_cast<int32_t>(bits->unused_bits);
    if (int64_t{length} * 8 - unused_bits > INT32_MAX)
        return nullptr;
    if (length == 0)
        return unused_bits == 0 ? kovra_bitset_empty() : nullptr;
    if (bits->content.stream == nullptr)
        return kovra_bitset_new(unused_bits, bits->content.octets.data(*bits->arena), length);
    void *copy = copy_of(bits->content, length);
    kovra_bitset *set = copy != nullptr ? kovra_bitset_new(unused_bits, copy, length) : nullptr;
    kovra_free(copy);
    return set;
}

int32_t kovra_asn1_bitstring_getlength(const kovra_asn1_value *bitstring) noexcept {
    auto *bits = as<BitString>(const_cast<kovra_asn1_value *>(bitstring));
    return bits != nullptr ? tell_length(bits->content, size_of(bits->content)) : unknown;
}

int32_t kovra_asn1_bitstring_getunusedbits(const kovra_asn1_value *bitstring) noexcept {
    const auto *bits = as<BitString>(bitstring);
    return bits != nullptr ? static_cast<int32_t>(bits->unused_bits) : 0;
}

int32_t kovra_asn1_bitstring_getbit(kovra_asn1_value *bitstring, int32_t bit) noexcept {
    const auto *bits = as<BitString>(bitstring);
    if (bits == nullptr || bit < 0 || bit >= int64_t{size_of(bits->content)} * 8 - bits->unused_bits)
        return 0;
    uint8_t octet = 0;
    if (bits->content.stream == nullptr) {
        octet = bits->content.octets.data(*bits->arena)[bit / 8];
    } else if (kovra_stream_ctrl(bits->content.stream, KOVRA_STREAM_SEEK, bit / 8, nullptr) != success ||
               kovra_stream_readn(bits->content.stream, &octet, 1, nullptr, nullptr) != success) {
        return 0;
    }
    return (octet & 0x80 >> bit % 8) != 0 ? 1 : 0;
}

int32_t kovra_asn1_bitstring_getall(kovra_asn1_value *bitstring, void *buffer) noexcept {
    const auto *bits = as<BitString>(bitstring);
    return bits != nullptr && buffer != nullptr && copy_told(bits->content, *bits->arena, buffer) ? 1 : 0;
}

int32_t kovra_asn1_bitstring_get(kovra_asn1_value *bitstring, int32_t mode, void *buffer, int32_t size,
                                 int32_t *out_count, kovra_err_ctx *ctx) noexcept {
    auto *bits = as<BitString>(bitstring);
    if (bits == nullptr || buffer == nullptr)
        return refuse(ctx, fault_of(bitstring, buffer));
    return read_piece(bits->content, *bits->arena, here(), static_cast<Piece>(mode), buffer, size, out_count, ctx);
}

int32_t kovra_asn1_bitstring_getobject(kovra_asn1_value *bitstring, uint32_t type, kovra_asn1_value **out_value,
                                       kovra_err_ctx *ctx) noexcept {
    auto *bits = holder_of<BitString>(bitstring, out_value, here(), ctx);
    if (bits == nullptr)
        return failure;
    return decode_from(bits->content, *bits->arena, here(), type, nullptr, out_value, ctx);
}

int32_t kovra_asn1_decode_bitstring_ex(kovra_stream *stream, kovra_stream *content_stream,
                                       kovra_asn1_value **out_bitstring, int32_t *out_read,
                                       kovra_err_ctx *ctx) noexcept {
    return decode_to_stream<BitString>(stream, content_stream, here(), nullptr, out_bitstring, out_read, ctx);
}

int32_t kovra_asn1_decode_bitstring_content_ex(kovra_stream *stream, kovra_stream *content_stream,
                                               kovra_asn1_value **out_bitstring, int32_t form, int32_t length,
                                               int32_t *out_read, kovra_err_ctx *ctx) noexcept {
    const Element element{form == 0 ? Form::constructed : Form::primitive, length};
    return decode_to_stream<BitString>(stream, content_stream, here(), &element, out_bitstring, out_read, ctx);
}
