// BOOLEAN (X.690, 8.2), NULL (8.8) and the end-of-contents octets (8.1.5).

#include "kovra/asn1_boolean.h"

#include "core/codec.hpp"
#include "core/component.hpp"
#include "core/registry.hpp"

namespace kovra::asn1 {

namespace {

Site here(int32_t line = __builtin_LINE()) {
    return {"ASN1_Boolean", line};
}

constexpr uint32_t true_word = 255;

int32_t boolean_content_length(const Type &, Value *, Measure) {
    return 1;
}

Result encode_boolean_content(Encoder &encoder, const Type &, Value *value, int32_t length) {
    const auto *boolean = static_cast<const Boolean *>(value);
    if (!encoder.has_stream() || boolean == nullptr)
        return encoder.fail(here(), code::null_argument);
    if (length != 1) {
        report_general(encoder.ctx(), here(), code::bad_length);
        return failure;
    }
    const uint8_t octet = boolean->word != 0 ? 0xFF : 0x00;
    return encoder.put(here(), &octet, 1);
}

Result decode_boolean_content(Decoder &decoder, const Type &, const Element &element, Value *&out) {
    if (const Result result = check_primitive(decoder, here(), element); result != success)
        return result;
    if (element.length != 1)
        return decoder.fail(here(), code::bad_length);
    uint8_t octet = 0;
    if (const Result result = decoder.octet(here(), octet); result != success)
        return result;
    auto *boolean = new_record<Boolean>(decoder.arena());
    if (boolean == nullptr)
        return decoder.fail(here(), code::no_memory);
    boolean->word = octet != 0 ? true_word : 0;
    out = boolean;
    return success;
}

Boolean *new_boolean(uint32_t word) {
    auto *boolean = new_root<Boolean>();
    if (boolean != nullptr)
        boolean->word = word;
    return boolean;
}

// NULL and end-of-contents have no record: whatever value comes with them is ignored.

Site null_here(int32_t line = __builtin_LINE()) {
    return {"ASN1_Null", line};
}

bool holds_anything(const Type &, const Value &) {
    return true;
}
int32_t no_content_length(const Type &, Value *, Measure) {
    return 0;
}
int32_t two_octets(const Type &, Value *, Measure) {
    return 2;
}

Result encode_null_content(Encoder &encoder, const Type &, Value *, int32_t length) {
    if (!encoder.has_stream())
        return encoder.fail(null_here(), code::null_argument);
    if (length != 0) {
        report_general(encoder.ctx(), null_here(), code::bad_length);
        return failure;
    }
    return success;
}

Result encode_null(Encoder &encoder, const Type &, Value *) {
    static constexpr uint8_t octets[] = {tag::null, 0x00};
    if (!encoder.has_stream())
        return encoder.fail(null_here(), code::null_argument);
    return encoder.put(null_here(), octets, sizeof octets);
}

Result decode_null_content(Decoder &decoder, const Type &, const Element &element, Value *&) {
    if (const Result result = check_primitive(decoder, null_here(), element); result != success)
        return result;
    return element.length == 0 ? success : decoder.fail(null_here(), code::bad_length);
}

Result encode_end_of_contents_content(Encoder &encoder, const Type &, Value *, int32_t length) {
    if (!encoder.has_stream())
        return encoder.fail(here(), code::null_argument);
    return length == 0 ? success : encoder.fail(here(), code::bad_length);
}

Result encode_end_of_contents(Encoder &encoder, const Type &, Value *) {
    if (!encoder.has_stream())
        return encoder.fail(here(), code::null_argument);
    return encoder.end_of_contents(here());
}

Result decode_end_of_contents_content(Decoder &decoder, const Type &, const Element &element, Value *&) {
    if (!decoder.has_stream())
        return decoder.fail(here(), code::null_argument);
    if (element.form == Form::constructed)
        return decoder.fail(here(), code::form_error);
    return element.length == 0 ? success : decoder.fail(here(), code::bad_length);
}

// A wrong octet is reported only when both are there.
Result decode_end_of_contents(Decoder &decoder, const Type &, Value *&) {
    uint8_t octets[2] = {};
    for (uint8_t &octet : octets)
        if (const Result result = decoder.octet(here(), octet); result != success)
            return result;
    return octets[0] == 0 && octets[1] == 0 ? success : decoder.fail(here(), code::bad_end_of_contents);
}

} // namespace

constexpr Operations boolean_operations = {
    .holds = holds_kind<Boolean>,
    .content_length = boolean_content_length,
    .encode_content = encode_boolean_content,
    .decode_content = decode_boolean_content,
    .decode_plain = decode_boolean_content,
    .records_reserve = leaf_reserve<2 * sizeof(Boolean)>,
};

constexpr Operations null_operations = {
    .holds = holds_anything,
    .content_length = no_content_length,
    .length = two_octets,
    .encode_content = encode_null_content,
    .encode = encode_null,
    .decode_content = decode_null_content,
    .decode_plain = decode_null_content,
    .records_reserve = leaf_reserve<0>,
};

constexpr Operations end_of_contents_operations = {
    .holds = holds_anything,
    .content_length = no_content_length,
    .length = two_octets,
    .encode_content = encode_end_of_contents_content,
    .encode = encode_end_of_contents,
    .decode_content = decode_end_of_contents_content,
    .decode = decode_end_of_contents,
    .records_reserve = leaf_reserve<0>,
};

Value *make_false(Arena &arena) {
    return new_record<Boolean>(arena);
}
Value *make_true(Arena &arena) {
    auto *boolean = new_record<Boolean>(arena);
    if (boolean != nullptr)
        boolean->word = true_word;
    return boolean;
}

bool is_false(const Value &value) {
    return kovra_asn1_boolean_istrue(&value) == 0;
}
bool is_true(const Value &value) {
    return kovra_asn1_boolean_istrue(&value) == 1;
}

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_asn1_boolean_true(void) noexcept {
    return new_boolean(true_word);
}

kovra_asn1_value *kovra_asn1_boolean_false(void) noexcept {
    return new_boolean(0);
}

int32_t kovra_asn1_boolean_istrue(const kovra_asn1_value *value) noexcept {
    const auto *boolean = as<Boolean>(value);
    return boolean != nullptr && boolean->word != 0 ? 1 : 0;
}
