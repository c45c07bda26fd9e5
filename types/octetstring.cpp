// OCTET STRING (X.690, 8.7) and the character strings (8.23), whose contents are octets just as they are.

#include "kovra/asn1_octetstring.h"

#include "base/thresholds.hpp"
#include "core/codec.hpp"
#include "core/content.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_types.h"
#include "types/segments.hpp"

namespace kovra::asn1 {

namespace {

Site here(int32_t line = __builtin_LINE()) {
    return {"ASN1_OctetString", line};
}

// Contents of this many octets that are not in memory are written in segments.
constexpr auto segmented_from = threshold<int64_t>(0x500000, 40);

int32_t string_length(const String *string) {
    if (string == nullptr)
        return unknown;
    kovra_stream *stream = string->content.stream;
    if (stream == nullptr)
        return static_cast<int32_t>(string->content.octets.length);
    const int64_t size = kovra_stream_ctrl(stream, KOVRA_STREAM_SIZE, 0, nullptr);
    if (size < 0)
        return unknown;
    if (kovra_stream_gettype(stream) == KOVRA_STREAM_MEMORY)
        return size <= max_length ? static_cast<int32_t>(size) : unknown;
    return size < segmented_from ? static_cast<int32_t>(size) : indefinite;
}

// A stream may have another size the next time it is asked: what is written is what was measured.
int32_t string_content_length(const Type &, Value *value, Measure measure) {
    auto *string = static_cast<String *>(value);
    if (string == nullptr || string->content.stream == nullptr)
        return string_length(string);
    if (measure == Measure::fresh)
        string->measured = string_length(string);
    return string->measured;
}

Result write_segment(Encoder &encoder, const uint8_t *octets, int32_t length) {
    Result result = encoder.identifier(here(), Class::universal, Form::primitive, tag::octet_string);
    if (result == success)
        result = encoder.length(here(), length);
    if (result != success)
        return encoder.fail(here(), code::write_identifier, result);
    return encoder.put(here(), octets, static_cast<size_t>(length));
}

// Content of any length, as the segments of a constructed string.
Result write_segments(Encoder &encoder, const String &string) {
    Content content = string.content;
    if (content.stream != nullptr && encoder.leaves_streams()) {
        const Result result = encoder.note(here(), content.stream);
        return result == success ? encoder.end_of_contents(here()) : result;
    }
    for (auto piece = Piece::first;; piece = Piece::next) {
        uint8_t octets[segment_octets];
        int32_t got = 0;
        if (const Result result =
                read_piece(content, *string.arena, here(), piece, octets, segment_octets, &got, encoder.ctx());
            result != success)
            return result;
        if (got <= 0)
            break;
        if (const Result result = write_segment(encoder, octets, got); result != success)
            return result;
    }
    return end_segments(encoder, here(), content);
}

Result encode_string_content(Encoder &encoder, const Type &, Value *value, int32_t length) {
    const auto *string = static_cast<const String *>(value);
    if (!encoder.has_stream() || string == nullptr)
        return encoder.fail(here(), code::null_argument);
    if (length == indefinite)
        return write_segments(encoder, *string);
    if (length < 0)
        return encoder.fail(here(), code::bad_argument);
    int64_t copied = 0;
    if (const Result result = put_content(encoder, here(), string->content, *string->arena, length, copied);
        result != success)
        return result;
    return copied == length ? success : encoder.fail(here(), code::short_copy);
}

Result encode_octet_string(Encoder &encoder, const Type &type, Value *value) {
    const int32_t length = string_content_length(type, value, Measure::known);
    return encode_string<tag::octet_string, encode_string_content>(encoder, here(), type, value, length);
}

// The texts of these codes tell of other failures; callers know the codes.
Result encode_character_string(Encoder &encoder, const Type &type, Value *value) {
    const int32_t length = string_content_length(type, value, Measure::known);
    if (length == unknown)
        return encoder.fail(here(), code::no_length);
    Result result = encoder.identifier(here(), Class::universal, form_of(length), type.tag);
    if (result != success)
        return encoder.fail(here(), code::write_identifier, result);
    if (result = encoder.length(here(), length); result != success)
        return encoder.fail(here(), code::write_length, result);
    return encode_string_content(encoder, type, value, length);
}

[[gnu::noinline]] Result decode_string_segments(Decoder &decoder, const Element &element, Value *&out) {
    if (const Result result = check_source_and_place(decoder, here()); result != success)
        return result;
    auto *string = new_record<String>(decoder.arena());
    if (string == nullptr)
        return decoder.fail(here(), code::no_memory);
    uint32_t unused_bits = 0;
    const uint32_t begin = decoder.position();
    const Result result = decode_segments<false>(decoder, here(), element, string->content, unused_bits);
    kovra_stream *stream =
        element.length == indefinite ? find_stream_content(decoder.arena().stream_contents, begin) : nullptr;
    if (stream != nullptr)
        use_stream(string->content, decoder.arena(), stream);
    if (result == success)
        out = string;
    return result;
}

Result decode_string_content(Decoder &decoder, const Type &, const Element &element, Value *&out) {
    Octets octets;
    auto *string = decoder.take<String>(element, octets);
    if (string == nullptr)
        return decode_string_segments(decoder, element, out);
    string->content.octets = octets;
    out = string;
    return success;
}

Result decode_octet_string(Decoder &decoder, const Type &type, Value *&out) {
    Identifier identifier;
    int32_t length = 0;
    const Result result = read_segment(decoder, here(), tag::octet_string, identifier, length);
    if (result != success)
        return result;
    if (identifier.is_end_of_contents())
        return decoder.fail(here(), code::decode_octet_string);
    return decode_string_content(decoder, type, {identifier.form, length}, out);
}

// A string without a tag of its own can only be written and read under the tag of its holder.
Result refuse_encode(Encoder &encoder, const Type &, Value *) {
    return encoder.fail(here(), code::unsupported_encode);
}
Result refuse_decode(Decoder &decoder, const Type &, Value *&) {
    return decoder.fail(here(), code::unsupported_decode);
}

Result refuse(kovra_err_ctx *ctx, int32_t code, int32_t line = __builtin_LINE()) {
    report(ctx, here(line), code);
    return failure;
}

} // namespace

constexpr Operations octet_string_operations = {
    .holds = holds_kind<String>,
    .content_length = string_content_length,
    .encode_content = encode_string_content,
    .encode = encode_octet_string,
    .decode_content = decode_string_content,
    .decode = decode_octet_string,
    .decode_plain = decode_string_content,
    .records_reserve = leaf_reserve<2 * sizeof(String)>,
};

constexpr Operations character_string_operations = {
    .holds = holds_kind<String>,
    .content_length = string_content_length,
    .encode_content = encode_string_content,
    .encode = encode_character_string,
    .decode_content = decode_string_content,
    .decode_plain = decode_string_content,
    .records_reserve = leaf_reserve<2 * sizeof(String)>,
};

constexpr Operations untagged_string_operations = {
    .holds = holds_kind<String>,
    .content_length = string_content_length,
    .encode_content = encode_string_content,
    .encode = refuse_encode,
    .decode_content = decode_string_content,
    .decode = refuse_decode,
    .refuses_whole = true,
    .records_reserve = leaf_reserve<2 * sizeof(String)>,
};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_asn1_octetstring_new(const void *data, int32_t length) noexcept {
    if (length < 0 || (data == nullptr && length > 0))
        return nullptr;
    return new_with_content<String>(data, static_cast<uint32_t>(length));
}

kovra_asn1_value *kovra_asn1_string_new(const void *data, int32_t length) noexcept {
    return kovra_asn1_octetstring_new(data, length);
}

kovra_asn1_value *kovra_asn1_octetstring_newstream(kovra_stream *stream) noexcept {
    // Null has length 0, too.
    if (kovra_stream_gettype(stream) == 0)
        return nullptr;
    auto *string = new_root<String>();
    if (string != nullptr)
        use_stream(string->content, *string->arena, stream);
    return string;
}

int32_t kovra_asn1_octetstring_getlength(const kovra_asn1_value *string) noexcept {
    auto *record = as<String>(const_cast<kovra_asn1_value *>(string));
    return record != nullptr ? tell_length(record->content, string_length(record)) : unknown;
}

int32_t kovra_asn1_string_getlength(const kovra_asn1_value *string) noexcept {
    return kovra_asn1_octetstring_getlength(string);
}

int32_t kovra_asn1_octetstring_getall(kovra_asn1_value *string, void *buffer) noexcept {
    const auto *record = as<String>(string);
    return record != nullptr && buffer != nullptr && copy_told(record->content, *record->arena, buffer) ? 1 : 0;
}

int32_t kovra_asn1_string_get(kovra_asn1_value *string, void *buffer) noexcept {
    return kovra_asn1_octetstring_getall(string, buffer);
}

kovra_data_blob *kovra_asn1_octetstring_getblob(kovra_asn1_value *string) noexcept {
    const auto *record = as<String>(string);
    const int32_t length = string_length(record);
    if (length < 0)
        return nullptr;
    if (record->content.stream == nullptr)
        return kovra_data_blob_new(record->content.octets.data(*record->arena), length);
    void *copy = copy_of(record->content, length);
    kovra_data_blob *blob = copy != nullptr ? kovra_data_blob_new(copy, length) : nullptr;
    kovra_free(copy);
    return blob;
}

int32_t kovra_asn1_octetstring_get(kovra_asn1_value *string, int32_t mode, void *buffer, int32_t size,
                                   int32_t *out_count, kovra_err_ctx *ctx) noexcept {
    auto *record = as<String>(string);
    if (record == nullptr || buffer == nullptr)
        return refuse(ctx, fault_of(string, buffer));
    return read_piece(record->content, *record->arena, here(), static_cast<Piece>(mode), buffer, size, out_count, ctx);
}

int32_t kovra_asn1_octetstring_getobject(kovra_asn1_value *string, uint32_t type, kovra_asn1_value **out_value,
                                         kovra_err_ctx *ctx) noexcept {
    auto *record = holder_of<String>(string, out_value, here(), ctx);
    if (record == nullptr)
        return failure;
    return decode_from(record->content, *record->arena, here(), type, nullptr, out_value, ctx);
}

int32_t kovra_asn1_decode_octetstring_ex(kovra_stream *stream, kovra_stream *content_stream,
                                         kovra_asn1_value **out_string, int32_t *out_read,
                                         kovra_err_ctx *ctx) noexcept {
    return decode_to_stream<String>(stream, content_stream, here(), nullptr, out_string, out_read, ctx);
}

int32_t kovra_asn1_decode_octetstring_content_ex(kovra_stream *stream, kovra_stream *content_stream,
                                                 kovra_asn1_value **out_string, int32_t form, int32_t length,
                                                 int32_t *out_read, kovra_err_ctx *ctx) noexcept {
    const Element element{form == 0 ? Form::constructed : Form::primitive, length};
    return decode_to_stream<String>(stream, content_stream, here(), &element, out_string, out_read, ctx);
}

int32_t kovra_asn1_encode_octetstring_init(kovra_stream *stream) noexcept {
    static constexpr uint8_t octets[] = {0x20 | tag::octet_string, 0x80};
    return kovra_stream_writen(stream, octets, sizeof octets, nullptr, nullptr);
}

int32_t kovra_asn1_encode_octetstring_update(kovra_stream *stream, const void *data, int32_t length) noexcept {
    if (length < 0 || (data == nullptr && length > 0))
        return failure;
    Encoder encoder(stream, nullptr);
    const Result result = write_segment(encoder, static_cast<const uint8_t *>(data), length);
    return result == success ? encoder.flush() : result;
}

int32_t kovra_asn1_encode_octetstring_end(kovra_stream *stream) noexcept {
    static constexpr uint8_t octets[] = {0x00, 0x00};
    return kovra_stream_writen(stream, octets, sizeof octets, nullptr, nullptr);
}
