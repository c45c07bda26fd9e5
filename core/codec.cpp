// The generic walk through the registry, and the public functions that begin it.

#include "kovra/asn1_codec.h"

#include <algorithm>

#include "core/codec.hpp"
#include "core/registry.hpp"

namespace kovra::asn1 {

namespace {

Site here(int32_t line = __builtin_LINE()) {
    return {"ASN1", line};
}

Result encode_generic(Encoder &encoder, const Type &type, Value *value, int32_t content) {
    Result result = success;
    if (!encoder.has_stream())
        return encoder.fail(here(), code::null_argument);
    if (content == unknown)
        return encoder.fail(here(), code::incorrect_length);
    Form form = type.form;
    if (form == Form::either)
        form = content == indefinite ? Form::constructed : Form::primitive;
    if (result = encoder.identifier(here(), Class::universal, form, type.tag); result != success)
        return encoder.fail(here(), code::write_identifier, result);
    if (result = encoder.length(here(), content); result != success)
        return encoder.fail(here(), code::write_length, result);
    return type.operations->encode_content(encoder, type, value, content);
}

} // namespace

Result refuse_value(Encoder &encoder, const Value *value) {
    return encoder.fail(here(), value == nullptr || !encoder.has_stream() ? code::null_argument : code::bad_argument);
}

int32_t content_length(const Type &type, Value *value, Measure measure) {
    if (value != nullptr && !type.operations->holds(type, *value))
        return unknown;
    return type.operations->content_length(type, value, measure);
}

int32_t whole_length_of(int32_t tag, int32_t content) {
    if (content < 0)
        return content;
    const int32_t length_octets = length_length(content);
    // The two tests differ: the first refuses a sum of exactly the maximum, the second allows it.
    if (max_length - content <= length_octets)
        return indefinite;
    const int32_t identifier_octets = identifier_length(tag);
    if (max_length - (content + length_octets) < identifier_octets)
        return indefinite;
    return identifier_octets + length_octets + content;
}

int32_t whole_length(const Type &type, Value *value, Measure measure) {
    if (value != nullptr && !type.operations->holds(type, *value))
        return unknown;
    if (type.operations->length != nullptr)
        return type.operations->length(type, value, measure);
    return whole_length_of(type.tag, type.operations->content_length(type, value, measure));
}

Result encode(Encoder &encoder, const Type &type, Value *value, Measure measure) {
    if (type.operations->refuses_whole)
        return type.operations->encode(encoder, type, nullptr);
    if (value != nullptr && !type.operations->holds(type, *value))
        return refuse_value(encoder, value);
    if (measure == Measure::fresh && value != nullptr) {
        const int32_t whole = whole_length(type, value);
        if (whole > 0)
            if (const Result result = encoder.expect(here(), static_cast<size_t>(whole), *value); result != success)
                return result;
    }
    if (type.operations->encode != nullptr)
        return type.operations->encode(encoder, type, value);
    if (value == nullptr)
        return refuse_value(encoder, value);
    return encode_generic(encoder, type, value, type.operations->content_length(type, value, Measure::known));
}

Result encode_content(Encoder &encoder, const Type &type, Value *value, int32_t length) {
    if (value == nullptr || type.operations->holds(type, *value))
        return type.operations->encode_content(encoder, type, value, length);
    return type.operations->refuse_content != nullptr ? type.operations->refuse_content(encoder, type, *value)
                                                      : refuse_value(encoder, value);
}

Result decode_generic(Decoder &decoder, const Type &type, Value *&out) {
    Identifier identifier;
    int32_t length = 0;
    const uint32_t start = decoder.position();
    if (const Result result = decode_identifier(decoder, here(), identifier); result != success)
        return result;
    if (!identifier.is(Class::universal, type.tag))
        return decoder.fail(here(), code::incorrect_item);
    if (type.form != Form::either && type.form != identifier.form)
        return decoder.fail(here(), code::form_error);
    if (const Result result = decode_length(decoder, here(), length); result != success)
        return result;
    return type.operations->decode_content(decoder, type, {identifier.form, length, start}, out);
}

namespace {

template <class Decode>
Result decode_into_arena(Decoder &decoder, const Type &type, size_t octets, Decode decode_value, Value *&out) {
    // No room is made in advance for the records of more octets than these.
    constexpr size_t much = 16384;
    return decoder.into_own_arena(octets, type.operations->records_reserve(std::min(octets, much)), decode_value, out);
}

} // namespace

Result decode_root(Decoder &decoder, const Type &type, Value *&out) {
    // An element that is all there tells how much there will be.
    const uint32_t begin = decoder.position();
    uint8_t octet = 0;
    uint32_t length = 0;
    size_t expected = 0;
    if (decoder.header(octet, length)) {
        expected = decoder.position() - begin + size_t{length};
        decoder.rewind(begin);
    }
    return decode_into_arena(
        decoder, type, expected, [&](Value *&value) { return decode(decoder, type, value); }, out);
}

Result decode_root_content(Decoder &decoder, const Type &type, const Element &element, Value *&out) {
    const size_t announced = element.length > 0 ? static_cast<size_t>(element.length) : 0;
    return decode_into_arena(
        decoder, type, std::min<size_t>(decoder.reach(), announced),
        [&](Value *&value) { return type.operations->decode_content(decoder, type, element, value); }, out);
}

namespace {

enum class Streams : uint8_t { copied, left };

// Calls itself once at most: when streams were left where they are and that failed.
// NOLINTNEXTLINE(misc-no-recursion)
Value *convert_with(const Type &from, const Value *value, const Type &to, Streams streams, kovra_err_ctx *ctx) {
    Encoder encoder(ctx);
    if (streams == Streams::left)
        encoder.leave_streams();
    if (encode(encoder, from, const_cast<Value *>(value)) != success) {
        report(ctx, here(), from.base);
        return nullptr;
    }
    if (encoder.size() > static_cast<size_t>(max_length)) {
        report(ctx, here(), code::length_too_large);
        return nullptr;
    }
    Decoder decoder(encoder.data(), static_cast<uint32_t>(encoder.size()), ctx);
    decoder.place_streams(encoder.take_notes());
    Value *copy = nullptr;
    if (decode_root(decoder, to, copy) != success) {
        report(ctx, here(), to.base + 1);
        return nullptr;
    }
    if (copy == nullptr) // of a type without a record
        return nullptr;
    if (!all_found(copy->arena->stream_contents)) {
        Arena::destroy(copy->arena);
        return convert_with(from, value, to, Streams::copied, ctx);
    }
    if (decoder.position() != encoder.size()) {
        Arena::destroy(copy->arena);
        report(ctx, here(), code::octets_left);
        return nullptr;
    }
    return copy;
}

} // namespace

Value *duplicate(const Type &type, const Value *value, kovra_err_ctx *ctx) {
    return convert_with(type, value, type, Streams::copied, ctx);
}

Value *copy_part(const Type &type, const Value *value) {
    return value != nullptr ? convert_with(type, value, type, Streams::left, nullptr) : nullptr;
}

Value *convert(const Type &from, const Value *value, const Type &to) {
    return convert_with(from, value, to, Streams::left, nullptr);
}

Result refuse_decode_content(Decoder &decoder, const Type &, const Element &, Value *&) {
    return decoder.fail(here(), code::unsupported_decode);
}

namespace {

// Runs one decode call and stores what it gave.
template <class Run>
Result decode_call(kovra_stream *stream, uint32_t type, kovra_asn1_value **out_value, int32_t *out_read,
                   kovra_err_ctx *ctx, Run run) {
    const bool stores_nothing = type == KOVRA_ASN1_TYPE_NULL || type == KOVRA_ASN1_TYPE_END_OF_CONTENTS;
    Decoder decoder(stream, ctx);
    Value *value = nullptr;
    if (out_value == nullptr && !stores_nothing)
        decoder.lack_place();
    const Result result = run(decoder, row(type), value);
    decoder.advance_stream();
    if (out_value != nullptr && !(stores_nothing && result == success))
        *out_value = value;
    if (result == success && out_read != nullptr)
        *out_read = static_cast<int32_t>(decoder.position());
    return result;
}

// Runs one encode call and gives the stream what it put.
template <class Run> Result encode_call(kovra_stream *stream, int32_t *out_written, kovra_err_ctx *ctx, Run run) {
    Encoder encoder(stream, ctx);
    Result result = run(encoder);
    if (result != success)
        return result;
    if (result = encoder.flush(); result != success) {
        if (encoder.refuse_all(result))
            run(encoder);
        return result;
    }
    if (out_written != nullptr)
        *out_written = static_cast<int32_t>(encoder.written());
    return success;
}

bool unsupported(uint32_t type, kovra_err_ctx *ctx) {
    if (type < type_count)
        return false;
    report(ctx, here(), code::unsupported_type);
    return true;
}

// A failed decode gives no value.
Result refuse_type(kovra_asn1_value **out_value) {
    if (out_value != nullptr)
        *out_value = nullptr;
    return failure;
}

// The record behind a handle. The library fills kept encodings of values that are const to the caller.
Value *record_of(const kovra_asn1_value *value) {
    return static_cast<Value *>(const_cast<kovra_asn1_value *>(value));
}

} // namespace

} // namespace kovra::asn1

using namespace kovra::asn1;

void kovra_asn1_value_free(uint32_t type, kovra_asn1_value *value) noexcept {
    const bool has_record = type != KOVRA_ASN1_TYPE_END_OF_CONTENTS && type != KOVRA_ASN1_TYPE_NULL;
    if (type >= type_count || !has_record || value == nullptr)
        return;
    auto *record = static_cast<Value *>(value);
    const bool is_value = record->kind >= Kind::boolean && record->kind <= Kind::structure;
    if (is_value && record->arena->is_root(record) && !record->arena->is_owned())
        Arena::destroy(record->arena);
}

int32_t kovra_asn1_content_length(uint32_t type, const kovra_asn1_value *value) noexcept {
    return type < type_count ? content_length(row(type), record_of(value)) : unknown;
}

int32_t kovra_asn1_length(uint32_t type, const kovra_asn1_value *value) noexcept {
    return type < type_count ? whole_length(row(type), record_of(value)) : unknown;
}

int32_t kovra_asn1_encode(kovra_stream *stream, uint32_t type, const kovra_asn1_value *value, int32_t *out_written,
                          kovra_err_ctx *ctx) noexcept {
    if (unsupported(type, ctx))
        return failure;
    return encode_call(stream, out_written, ctx,
                       [&](Encoder &encoder) { return encode(encoder, row(type), record_of(value)); });
}

int32_t kovra_asn1_encode_content(kovra_stream *stream, uint32_t type, const kovra_asn1_value *value,
                                  int32_t content_length_given, int32_t *out_written, kovra_err_ctx *ctx) noexcept {
    if (unsupported(type, ctx))
        return failure;
    const Type &row_of_type = row(type);
    Value *record = record_of(value);
    return encode_call(stream, out_written, ctx, [&](Encoder &encoder) {
        if (record != nullptr && !row_of_type.operations->holds(row_of_type, *record))
            return refuse_value(encoder, record);
        if (record != nullptr)
            content_length(row_of_type, record);
        return row_of_type.operations->encode_content(encoder, row_of_type, record, content_length_given);
    });
}

int32_t kovra_asn1_decode(kovra_stream *stream, uint32_t type, kovra_asn1_value **out_value, int32_t *out_read,
                          kovra_err_ctx *ctx) noexcept {
    if (unsupported(type, ctx))
        return refuse_type(out_value);
    return decode_call(stream, type, out_value, out_read, ctx, [](Decoder &decoder, const Type &wanted, Value *&value) {
        return decode_root(decoder, wanted, value);
    });
}

int32_t kovra_asn1_decode_content(kovra_stream *stream, uint32_t type, kovra_asn1_value **out_value, int32_t form,
                                  int32_t length, int32_t *out_read, kovra_err_ctx *ctx) noexcept {
    if (unsupported(type, ctx))
        return refuse_type(out_value);
    const Element element{form == 0 ? Form::constructed : Form::primitive, length};
    return decode_call(stream, type, out_value, out_read, ctx,
                       [&](Decoder &decoder, const Type &wanted, Value *&value) {
                           return decode_root_content(decoder, wanted, element, value);
                       });
}

void kovra_asn1_encode_puterr(kovra_err_ctx *ctx, uint32_t type, const char *sourcefile, int32_t line) noexcept {
    report(ctx, {sourcefile, line}, type < type_count ? row(type).base : code::unsupported_type);
}

void kovra_asn1_decode_puterr(kovra_err_ctx *ctx, uint32_t type, const char *sourcefile, int32_t line) noexcept {
    report(ctx, {sourcefile, line}, type < type_count ? row(type).base + 1 : code::unsupported_type);
}

kovra_data_blob *kovra_asn1_mem_encode(uint32_t type, const kovra_asn1_value *value) noexcept {
    if (type >= type_count)
        return nullptr;
    Encoder encoder(static_cast<kovra_err_ctx *>(nullptr));
    if (encode(encoder, row(type), record_of(value)) != success || encoder.size() > static_cast<size_t>(max_length))
        return nullptr;
    return kovra_data_blob_new(encoder.data(), static_cast<int32_t>(encoder.size()));
}

int32_t kovra_asn1_mem_decode(const void *data, int32_t length, uint32_t type, kovra_asn1_value **out_value) noexcept {
    if (data == nullptr || length <= 0 || out_value == nullptr || type >= type_count)
        return -1;
    Decoder decoder(data, static_cast<uint32_t>(length), nullptr);
    Value *value = nullptr;
    const Result result = decode_root(decoder, row(type), value);
    if (result != success || value != nullptr)
        *out_value = value;
    return result == success ? static_cast<int32_t>(decoder.position()) : -1;
}

kovra_asn1_value *kovra_asn1_dupobject(uint32_t type, const kovra_asn1_value *value, kovra_err_ctx *ctx) noexcept {
    if (value == nullptr) {
        report(ctx, here(), code::null_argument);
        return nullptr;
    }
    if (unsupported(type, ctx)) {
        // The encoding records it, and so does the entry that is added to a failed encoding.
        kovra_asn1_encode_puterr(ctx, type, "ASN1", __LINE__);
        return nullptr;
    }
    return duplicate(row(type), record_of(value), ctx);
}

const char *kovra_asn1_version(void) noexcept {
    return "KOVRA ASN.1 Library 1.2.12,Build on 2012";
}
