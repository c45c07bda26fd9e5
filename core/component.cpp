#include "core/component.hpp"

#include <cstring>

#include "kovra/asn1_types.h"

namespace kovra::asn1 {

int32_t component_length(const Component &component, Value *value, Measure measure) {
    const Type &type = row_of(component);
    const Tag tag = component.encode_tag;
    switch (tag.tagging) {
    case Tagging::none:
        return whole_length(type, value, measure);
    case Tagging::implicit:
        return whole_length_of(tag.number, content_length(type, value, measure));
    case Tagging::explicit_:
    case Tagging::bare:
        return whole_length_of(tag.number, whole_length(type, value, measure));
    }
    return unknown;
}

namespace {

Result encode_tagged(Encoder &encoder, Site site, const Component &component, Value *value, Measure measure) {
    const Type &type = row_of(component);
    const Tag tag = component.encode_tag;
    const bool is_explicit = tag.tagging == Tagging::explicit_;
    const int32_t length = is_explicit ? whole_length(type, value, measure) : content_length(type, value, measure);
    if (length < indefinite)
        return encoder.fail(site, code::no_length);
    const bool is_constructed =
        tag.tagging != Tagging::implicit || type.form == Form::constructed || length == indefinite;
    Result result =
        encoder.identifier(site, Class::context, is_constructed ? Form::constructed : Form::primitive, tag.number);
    if (result != success)
        return encoder.fail(site, code::write_identifier, result);
    if (result = encoder.length(site, length); result != success)
        return encoder.fail(site, code::write_length, result);
    return encode_within_tag(encoder, site, component, value, length, length >= 0 ? measure : Measure::fresh);
}

} // namespace

Result encode_component(Encoder &encoder, Site site, const Component &component, Value *value, Measure measure) {
    if (component.encode_tag.tagging != Tagging::none)
        return encode_tagged(encoder, site, component, value, measure);
    const Result result = encode(encoder, row_of(component), value, measure);
    return result == success ? success : fail_encode(encoder, site, component, result);
}

Result encode_within_tag(Encoder &encoder, Site site, const Component &component, Value *value, int32_t length,
                         Measure measure) {
    const bool is_explicit = component.encode_tag.tagging == Tagging::explicit_;
    Result result = is_explicit ? encode(encoder, row_of(component), value, measure)
                                : encode_component_content(encoder, site, component, value, length);
    if (result != success)
        return fail_encode(encoder, site, component, result);
    if (is_explicit && length == indefinite)
        if (result = encoder.end_of_contents(site); result != success)
            return encoder.fail(site, code::write_end_of_contents, result);
    return success;
}

Result encode_component_content(Encoder &encoder, Site site, const Component &component, Value *value, int32_t length) {
    return component.is_unwritable ? encoder.fail(site, code::incorrect_item)
                                   : encode_content(encoder, row_of(component), value, length);
}

Result decode_explicit(Decoder &decoder, Site site, const Component &component, int32_t length, Value *&out) {
    const uint32_t begin = decoder.position();
    if (const Result result = decode_component(decoder, site, component, out); result != success)
        return result;
    if (out->kind == Kind::any && static_cast<const Any *>(out)->end_of_contents)
        return decoder.fail(site, code::incorrect_item);
    if (length != indefinite)
        return decoder.position() - begin == static_cast<uint32_t>(length) ? success
                                                                           : decoder.fail(site, code::incorrect_length);
    Value *none = nullptr;
    const Result result = decode(decoder, row(KOVRA_ASN1_TYPE_END_OF_CONTENTS), none);
    return result == success ? success : decoder.fail(site, code::read_end_of_contents, result);
}

Value *make_encoded(Arena &arena, uint8_t type, const uint8_t *octets, size_t count) {
    Decoder decoder(octets, static_cast<uint32_t>(count), nullptr);
    Value *value = nullptr;
    if (decode_root(decoder, row(type), value) != success)
        return nullptr;
    if (arena.adopt(value))
        return value;
    Arena::destroy(value->arena);
    return nullptr;
}

bool is_encoded(const Value &value, uint8_t type, const uint8_t *octets, size_t count) {
    // A default is so short that encoding it allocates nothing, so that memory cannot fail between measuring and
    // encoding.
    Encoder encoder(static_cast<kovra_err_ctx *>(nullptr));
    auto *own = const_cast<Value *>(&value);
    return whole_length(row(type), own) == static_cast<int32_t>(count) &&
           encode(encoder, row(type), own, Measure::known) == success && encoder.size() == count &&
           std::memcmp(encoder.data(), octets, count) == 0;
}

} // namespace kovra::asn1
