// The open type (X.680, clause 14.1 of 1990's ANY): one complete element, kept as it was read.

#include "core/any.hpp"

#include <cstring>

#include "base/sizes.hpp"
#include "core/codec.hpp"
#include "core/content.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_any.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

Site here(int32_t line = __builtin_LINE()) {
    return {"ASN1_Any", line};
}

// Identifier and length octets; an end-of-contents marker counts as a header without content.
Result walk_header(Decoder &decoder, Identifier &identifier, int32_t &length) {
    if (const Result result = decode_identifier(decoder, here(), identifier); result != success)
        return result;
    if (identifier.is_end_of_contents()) {
        length = 0;
        return read_end_of_contents_length(decoder, here());
    }
    if (!is_possible(identifier))
        return decoder.fail(here(), code::bad_tag);
    return decode_length(decoder, here(), length);
}

} // namespace

Result walk_element_with_care(Decoder &decoder, Extent &out) {
    out.start = decoder.position();
    if (const Result result = walk_header(decoder, out.identifier, out.length); result != success)
        return result;
    out.content = decoder.position();
    if (out.length != indefinite)
        return decoder.skip(here(), static_cast<uint32_t>(out.length));
    // Only elements of indefinite length are opened, since others are stepped over: a count is all there is to
    // remember.
    for (uint32_t open = 1; open != 0;) {
        Identifier identifier;
        int32_t length = 0;
        if (const Result result = walk_header(decoder, identifier, length); result != success)
            return result;
        if (identifier.is_end_of_contents())
            --open;
        else if (length == indefinite)
            ++open;
        else if (const Result result = decoder.skip(here(), static_cast<uint32_t>(length)); result != success)
            return result;
    }
    return success;
}

bool attach_stream(Any &any) {
    kovra_stream *source = find_stream_content(any.arena->stream_contents, any.content.octets.offset);
    if (source == nullptr || any.length != indefinite)
        return true;
    kovra_stream *stream = new_segment_stream(source);
    if (stream == nullptr)
        return false;
    if (!any.arena->own(stream)) {
        kovra_stream_free(stream);
        return false;
    }
    any.content.stream = stream;
    any.segments_of = source;
    return true;
}

namespace {

int32_t any_content_length(const Type &, Value *value, Measure) {
    return value != nullptr ? static_cast<const Any *>(value)->length : unknown;
}

int32_t any_length(const Type &, Value *value, Measure) {
    const auto *any = static_cast<const Any *>(value);
    if (any == nullptr)
        return unknown;
    if (any->end_of_contents)
        return 2;
    if (any->length < 0)
        return any->length;
    const int64_t total = static_cast<int64_t>(any->header.length) + any->length;
    return total < max_length ? static_cast<int32_t>(total) : unknown;
}

// The length of the content; none when it is indefinite.
int64_t most_octets(const Any &any) {
    return any.length == indefinite ? INT64_MAX : any.length;
}

Result encode_any(Encoder &encoder, const Type &, Value *value) {
    const auto *any = static_cast<const Any *>(value);
    if (!encoder.has_stream() || any == nullptr)
        return encoder.fail(here(), code::null_argument);
    if (any->end_of_contents)
        return encoder.end_of_contents(here());
    int64_t copied = 0;
    Result result = encoder.put(here(), any->header.data(*any->arena), any->header.length);
    if (result == success && any->segments_of != nullptr && encoder.leaves_streams()) {
        result = encoder.note(here(), any->segments_of);
        return result == success ? encoder.end_of_contents(here()) : result;
    }
    if (result == success)
        result = put_content(encoder, here(), any->content, *any->arena, most_octets(*any), copied);
    if (result == success && any->length != indefinite && copied != any->length)
        return encoder.fail(here(), code::encode_any);
    return result;
}

Result encode_any_content(Encoder &encoder, const Type &, Value *value, int32_t length) {
    const auto *any = static_cast<const Any *>(value);
    if (!encoder.has_stream() || any == nullptr)
        return encoder.fail(here(), code::null_argument);
    if (length != any->length)
        return encoder.fail(here(), code::bad_argument);
    if (any->end_of_contents)
        return success;
    int64_t copied = 0;
    if (const Result result = put_content(encoder, here(), any->content, *any->arena, most_octets(*any), copied);
        result != success)
        return result;
    return length == indefinite || copied == length ? success : encoder.fail(here(), code::short_copy);
}

[[gnu::noinline]] Result decode_any_with_care(Decoder &decoder, Value *&out) {
    if (const Result result = check_source_and_place(decoder, here()); result != success)
        return result;
    Extent extent;
    if (const Result result = walk_element(decoder, extent); result != success)
        return result;
    out = new_any(decoder, extent);
    return out != nullptr ? success : decoder.fail(here(), code::no_memory);
}

Result decode_any(Decoder &decoder, const Type &, Value *&out) {
    const uint32_t start = decoder.position();
    uint8_t octet = 0;
    uint32_t length = 0;
    if (decoder.has_source_and_place() && decoder.header(octet, length)) {
        auto *any =
            begins_element[octet] ? static_cast<Any *>(decoder.arena().allocate_in_place(sizeof(Any))) : nullptr;
        if (any != nullptr) {
            fill_any(*any, decoder.arena(),
                     {start, decoder.position(), identifier_of(octet), static_cast<int32_t>(length)}, length);
            decoder.step_over(length);
            out = any;
            return success;
        }
        decoder.rewind(start);
    }
    return decode_any_with_care(decoder, out);
}

// An element, or the end-of-contents that stands where one may stand.
bool any_begins(const Type &, const Identifier &) {
    return true;
}

// Header and content stand one behind the other in memory: together they are the whole element.
bool is_one_piece(const Any &any) {
    return any.content.stream == nullptr && any.header.memory == nullptr && any.content.octets.memory == nullptr &&
           any.header.offset + any.header.length == any.content.octets.offset;
}

Any *new_any_root(const Identifier &identifier, int32_t length, const uint8_t *header, uint32_t header_length,
                  const void *content, uint32_t content_length) {
    const size_t size = sum(header_length, content_length);
    auto *any = new_root<Any>(size);
    if (any == nullptr)
        return nullptr;
    auto *octets = static_cast<uint8_t *>(any->arena->allocate(size));
    if (octets == nullptr) {
        Arena::destroy(any->arena);
        return nullptr;
    }
    std::memcpy(octets, header, header_length);
    if (content_length != 0)
        std::memcpy(octets + header_length, content, content_length);
    any->arena->octets = octets;
    any->arena->octets_length = header_length + content_length;
    any->tag_class = identifier.tag_class;
    any->form = identifier.form;
    any->tag = identifier.tag;
    any->length = length;
    any->header = {nullptr, 0, header_length};
    any->content.octets = {nullptr, header_length, content_length};
    return any;
}

Result refuse(kovra_err_ctx *ctx, int32_t code, int32_t line = __builtin_LINE()) {
    report(ctx, here(line), code);
    return failure;
}

} // namespace

constexpr Operations any_operations = {
    .holds = holds_kind<Any>,
    .content_length = any_content_length,
    .length = any_length,
    .encode_content = encode_any_content,
    .encode = encode_any,
    .decode_content = refuse_decode_content,
    .decode = decode_any,
    .begins = any_begins,
    .records_reserve = leaf_reserve<2 * sizeof(Any)>,
};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_asn1_any_new(uint32_t tag_class, int32_t form, int32_t tag, int32_t length, const void *content,
                                     int32_t content_length) noexcept {
    const auto *octets = static_cast<const uint8_t *>(content);
    if (content_length < 0 || (octets == nullptr && content_length > 0) || (tag_class & ~0xC0U) != 0 || tag < 0 ||
        length < indefinite)
        return nullptr;
    if (length == indefinite &&
        (content_length < 2 || octets[content_length - 2] != 0 || octets[content_length - 1] != 0))
        return nullptr;
    const Identifier identifier{static_cast<Class>(tag_class), form == 0 ? Form::constructed : Form::primitive, tag};
    uint8_t header[max_identifier_octets + max_length_octets];
    int32_t count = put_identifier(header, identifier.tag_class, identifier.form, tag);
    count += put_length(header + count, length);
    Any *any = new_any_root(identifier, length, header, static_cast<uint32_t>(count), content,
                            static_cast<uint32_t>(content_length));
    if (any != nullptr && length > content_length)
        any->arena->note_announced();
    return any;
}

int32_t kovra_asn1_any_isprimitive(const kovra_asn1_value *any, int32_t *out_form) noexcept {
    const auto *element = as<Any>(any);
    if (element == nullptr || out_form == nullptr)
        return 0;
    *out_form = static_cast<int32_t>(element->form);
    return 1;
}

int32_t kovra_asn1_any_gettagnumber(const kovra_asn1_value *any, int32_t *out_tag) noexcept {
    const auto *element = as<Any>(any);
    if (element == nullptr || out_tag == nullptr)
        return 0;
    *out_tag = element->tag;
    return 1;
}

int32_t kovra_asn1_any_getcontentlength(const kovra_asn1_value *any) noexcept {
    const auto *element = as<Any>(any);
    return element != nullptr ? element->length : unknown;
}

int32_t kovra_asn1_any_iseoc(const kovra_asn1_value *any) noexcept {
    const auto *element = as<Any>(any);
    return element != nullptr && element->end_of_contents ? 1 : 0;
}

int32_t kovra_asn1_any_getcontent(kovra_asn1_value *any, int32_t mode, void *buffer, int32_t size, int32_t *out_count,
                                  kovra_err_ctx *ctx) noexcept {
    auto *element = as<Any>(any);
    if (out_count != nullptr)
        *out_count = 0;
    if (element == nullptr || buffer == nullptr)
        return refuse(ctx, fault_of(any, buffer));
    return read_piece(element->content, *element->arena, here(), static_cast<Piece>(mode), buffer, size, out_count,
                      ctx);
}

int32_t kovra_asn1_any_getobject(kovra_asn1_value *any, uint32_t type, kovra_asn1_value **out_value,
                                 kovra_err_ctx *ctx) noexcept {
    Any *element = holder_of<Any>(any, out_value, here(), ctx);
    if (element == nullptr)
        return failure;
    if (element->end_of_contents) // which has no content to go back in
        return refuse(ctx, code::stream_control);
    return decode_from(element->content, *element->arena, here(), type, nullptr, out_value, ctx);
}

int32_t kovra_asn1_any_contenttoobject(kovra_asn1_value *any, uint32_t type, kovra_asn1_value **out_value,
                                       kovra_err_ctx *ctx) noexcept {
    Any *element = holder_of<Any>(any, out_value, here(), ctx);
    if (element == nullptr)
        return failure;
    if (element->end_of_contents) // which has no content to go back in
        return refuse(ctx, code::stream_control);
    const Element content{element->form, element->length};
    return decode_from(element->content, *element->arena, here(), type, &content, out_value, ctx);
}

int32_t kovra_asn1_any_toobject(kovra_asn1_value *any, uint32_t type, kovra_asn1_value **out_value,
                                kovra_err_ctx *ctx) noexcept {
    Any *element = holder_of<Any>(any, out_value, here(), ctx);
    if (element == nullptr)
        return failure;
    Encoder encoder(ctx);
    Content whole{};
    if (is_one_piece(*element) && !element->end_of_contents &&
        (element->length == indefinite || element->content.octets.length == static_cast<uint32_t>(element->length))) {
        if (element->content.octets.length > max_length - element->header.length)
            return refuse(ctx, code::length_too_large);
        whole.octets = {nullptr, element->header.offset, element->header.length + element->content.octets.length};
    } else {
        if (encode_any(encoder, row(KOVRA_ASN1_TYPE_ANY), element) != success)
            return refuse(ctx, code::encode_any);
        if (encoder.size() > static_cast<size_t>(max_length))
            return refuse(ctx, code::length_too_large);
        whole.octets = {encoder.data(), 0, static_cast<uint32_t>(encoder.size())};
    }
    return decode_from(whole, *element->arena, here(), type, nullptr, out_value, ctx);
}

kovra_asn1_value *kovra_asn1_objecttoany(uint32_t type, const kovra_asn1_value *value) noexcept {
    if (type == KOVRA_ASN1_TYPE_END_OF_CONTENTS || type >= type_count)
        return nullptr;
    return convert(row(type), static_cast<const Value *>(value), row(KOVRA_ASN1_TYPE_ANY));
}

int32_t kovra_asn1_decode_any_ex(kovra_stream *stream, kovra_stream *content_stream, kovra_asn1_value **out_any,
                                 int32_t *out_read, kovra_err_ctx *ctx) noexcept {
    if (out_any != nullptr)
        *out_any = nullptr;
    if (stream == nullptr || content_stream == nullptr || out_any == nullptr)
        return refuse(ctx, code::null_argument);
    Decoder decoder(stream, ctx);
    Value *value = nullptr;
    Result result = decode_root(decoder, row(KOVRA_ASN1_TYPE_ANY), value);
    decoder.advance_stream();
    if (result != success)
        return result;
    auto *read = static_cast<Any *>(value);
    const uint8_t *octets = read->content.octets.data(*read->arena);
    Any *any = read;
    if (!read->end_of_contents) {
        // The record that goes out holds the header only.
        any = new_any_root({read->tag_class, read->form, read->tag}, read->length, read->header.data(*read->arena),
                           read->header.length, nullptr, 0);
        result = any != nullptr ? kovra_stream_writen(content_stream, octets,
                                                      static_cast<int32_t>(read->content.octets.length), nullptr, ctx)
                                : refuse(ctx, code::no_memory);
        Arena::destroy(read->arena);
        if (result != success) {
            if (any != nullptr)
                Arena::destroy(any->arena);
            return result;
        }
        any->content.stream = content_stream;
        any->arena->note_announced();
    }
    *out_any = any;
    if (out_read != nullptr)
        *out_read = static_cast<int32_t>(decoder.position());
    return success;
}
