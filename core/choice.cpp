#include "core/choice.hpp"

#include "core/registry.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

const ChoiceShape &choice_of(const Type &type) {
    return *static_cast<const ChoiceShape *>(type.shape);
}
const StringChoiceShape &strings_of(const Type &type) {
    return *static_cast<const StringChoiceShape *>(type.shape);
}

Site in(const ChoiceShape &shape, int32_t line = __builtin_LINE()) {
    return {shape.source, line};
}
Site in(const StringChoiceShape &shape, int32_t line = __builtin_LINE()) {
    return {shape.source, line};
}
Site at(const ChoiceShape &shape, const Component &component) {
    return {shape.source, component.line};
}

const Component &chosen(const Choice &choice) {
    return choice.shape->alternatives[choice.alternative];
}

bool holds_choice(const Type &type, const Value &value) {
    return value.kind == Kind::choice && static_cast<const Choice &>(value).shape == &choice_of(type);
}

// What stands behind the identifier of the alternative.
int32_t choice_content_length(const Type &, Value *value, Measure measure) {
    auto *choice = static_cast<Choice *>(value);
    if (choice == nullptr)
        return unknown;
    if (measure == Measure::known)
        return choice->measured;
    const Component &component = chosen(*choice);
    const Type &type = row_of(component);
    const Tagging tagging = component.encode_tag.tagging;
    choice->measured = tagging == Tagging::explicit_ || tagging == Tagging::bare ? whole_length(type, choice->value)
                                                                                 : content_length(type, choice->value);
    return choice->measured;
}

int32_t choice_length(const Type &type, Value *value, Measure measure) {
    auto *choice = static_cast<Choice *>(value);
    if (choice == nullptr)
        return unknown;
    if (measure == Measure::fresh)
        choice_content_length(type, value, measure);
    return component_length(chosen(*choice), choice->value, Measure::known);
}

Result encode_choice(Encoder &encoder, const Type &type, Value *value) {
    auto *choice = static_cast<Choice *>(value);
    const ChoiceShape &shape = choice_of(type);
    if (!encoder.has_stream() || choice == nullptr)
        return encoder.fail(in(shape), code::null_argument);
    const Component &component = chosen(*choice);
    return encode_component(encoder, at(shape, component), component, choice->value, Measure::known);
}

Result encode_choice_content(Encoder &encoder, const Type &type, Value *value, int32_t length) {
    auto *choice = static_cast<Choice *>(value);
    const ChoiceShape &shape = choice_of(type);
    if (!encoder.has_stream() || choice == nullptr)
        return encoder.fail(in(shape), code::null_argument);
    if (length < indefinite)
        return encoder.fail(in(shape), code::bad_argument);
    const Component &component = chosen(*choice);
    if (component.encode_tag.tagging == Tagging::bare)
        length = content_length(row_of(component), choice->value);
    return encode_within_tag(encoder, at(shape, component), component, choice->value, length, Measure::fresh);
}

// The alternative that an identifier begins; the table's count when it begins none.
uint8_t find(const ChoiceShape &shape, const Identifier &identifier) {
    uint8_t i = 0;
    for (; i < shape.count; ++i) {
        const Component &component = shape.alternatives[i];
        const Type &type = row_of(component);
        if (component.tag.tagging == Tagging::none) {
            if (shape.any_form == AnyForm::of_untagged_leaves && type.form == Form::primitive
                    ? identifier.is(Class::universal, type.tag)
                    : begins(type, identifier))
                break;
            continue;
        }
        if (component.has_any_context_tag && identifier.tag_class == Class::context)
            break;
        const bool is_constructed = component.tag.tagging == Tagging::explicit_ || type.form == Form::constructed;
        if (identifier.is(Class::context, component.tag.number) &&
            (shape.any_form == AnyForm::of_tagged || !is_constructed || identifier.form == Form::constructed))
            break;
    }
    return i;
}

bool choice_begins(const Type &type, const Identifier &identifier) {
    return find(choice_of(type), identifier) != choice_of(type).count;
}

Result decode_choice_behind(Decoder &decoder, const Type &type, const Identifier &identifier, const Element &element,
                            Value *&out) {
    const ChoiceShape &shape = choice_of(type);
    const uint8_t number = find(shape, identifier);
    const Component &component = shape.alternatives[number];
    const Site site = at(shape, component);
    Value *value = nullptr;
    Result result = success;
    if (component.tag.tagging == Tagging::explicit_) {
        if (identifier.form != Form::constructed)
            return decoder.fail(site, code::form_error);
        result = decode_explicit(decoder, site, component, element.length, value);
    } else {
        const Type &content = row_of(component);
        if (component.tag.tagging == Tagging::none) {
            result = decode_behind(decoder, content, identifier, element, value);
        } else {
            const Element untagged{element.form, element.length};
            result = content.operations->decode_content(decoder, content, untagged, value);
        }
        if (result != success)
            fail_decode(decoder, site, component, result);
    }
    if (result != success)
        return result;
    auto *choice = new_record<Choice>(decoder.arena());
    if (choice == nullptr)
        return decoder.fail(site, code::no_memory);
    choice->shape = &shape;
    choice->alternative = number;
    choice->value = value;
    out = choice;
    return success;
}

Result decode_choice(Decoder &decoder, const Type &type, Value *&out) {
    const ChoiceShape &shape = choice_of(type);
    Identifier identifier;
    int32_t length = 0;
    const uint32_t start = decoder.position();
    if (const Result result = decode_identifier(decoder, in(shape), identifier); result != success)
        return result;
    const bool is_known = find(shape, identifier) != shape.count;
    // Where only the tag number tells the alternative, a broken length comes to light before an unknown number.
    const bool may_be_known =
        is_known || (shape.any_form == AnyForm::of_tagged && identifier.tag_class == Class::context);
    if (!may_be_known)
        return decoder.fail(in(shape), code::incorrect_item);
    if (const Result result = decode_length(decoder, in(shape), length); result != success)
        return result;
    if (!is_known)
        return decoder.fail(in(shape), code::incorrect_item);
    if (!decoder.has_source_and_place())
        return decoder.fail(in(shape), code::null_argument);
    return decode_choice_behind(decoder, type, identifier, {identifier.form, length, start}, out);
}

size_t choice_reserve(size_t octets) {
    return 256 + 4 * octets;
}

// Character string choices.

int32_t string_choice_content_length(const Type &, Value *value, Measure measure) {
    const auto *tagged = static_cast<const TaggedString *>(value);
    return tagged != nullptr ? content_length(row(KOVRA_ASN1_TYPE_OCTET_STRING), tagged->string, measure) : unknown;
}

int32_t string_choice_length(const Type &type, Value *value, Measure measure) {
    const int32_t content = string_choice_content_length(type, value, measure);
    return content == unknown ? unknown : whole_length_of(static_cast<const TaggedString *>(value)->tag, content);
}

Result encode_string_choice_content(Encoder &encoder, const Type &type, Value *value, int32_t length) {
    if (!encoder.has_stream() || value == nullptr)
        return encoder.fail(in(strings_of(type)), code::null_argument);
    return encode_content(encoder, row(KOVRA_ASN1_TYPE_OCTET_STRING), static_cast<TaggedString *>(value)->string,
                          length);
}

Result encode_string_choice(Encoder &encoder, const Type &type, Value *value) {
    const Site site = in(strings_of(type));
    if (!encoder.has_stream() || value == nullptr)
        return encoder.fail(site, code::null_argument);
    const int32_t length = string_choice_content_length(type, value, Measure::known);
    if (length == unknown)
        return encoder.fail(site, code::no_length);
    const Form form = length == indefinite ? Form::constructed : Form::primitive;
    Result result = encoder.identifier(site, Class::universal, form, static_cast<TaggedString *>(value)->tag);
    if (result != success)
        return encoder.fail(site, code::write_identifier, result);
    if (result = encoder.length(site, length); result != success)
        return encoder.fail(site, code::write_length, result);
    return encode_string_choice_content(encoder, type, value, length);
}

bool string_choice_begins(const Type &type, const Identifier &identifier) {
    return identifier.tag_class == Class::universal && allows(strings_of(type), identifier.tag);
}

Result decode_string_choice_behind(Decoder &decoder, const Type &type, const Identifier &identifier,
                                   const Element &element, Value *&out) {
    const Site site = in(strings_of(type));
    const Type &octets = row(KOVRA_ASN1_TYPE_OCTET_STRING);
    Value *string = nullptr;
    const Result result = octets.operations->decode_content(decoder, octets, element, string);
    if (result != success)
        return decoder.fail(site, code::decode_octet_string, result);
    auto *tagged = new_record<TaggedString>(decoder.arena());
    if (tagged == nullptr)
        return decoder.fail(site, code::no_memory);
    tagged->tag = identifier.tag;
    tagged->string = static_cast<String *>(string);
    out = tagged;
    return success;
}

Result decode_string_choice(Decoder &decoder, const Type &type, Value *&out) {
    Identifier identifier;
    int32_t length = 0;
    const uint32_t start = decoder.position();
    if (const Result result = decode_identifier(decoder, in(strings_of(type)), identifier); result != success)
        return result;
    if (!string_choice_begins(type, identifier))
        return fail_decode(decoder, in(strings_of(type)), type);
    if (const Result result = decode_length(decoder, in(strings_of(type)), length); result != success)
        return result;
    return decode_string_choice_behind(decoder, type, identifier, {identifier.form, length, start}, out);
}

} // namespace

constexpr Operations choice_operations = {
    .holds = holds_choice,
    .content_length = choice_content_length,
    .length = choice_length,
    .encode_content = encode_choice_content,
    .encode = encode_choice,
    .decode_content = refuse_decode_content,
    .decode = decode_choice,
    .begins = choice_begins,
    .decode_behind = decode_choice_behind,
    .records_reserve = choice_reserve,
};

constexpr Operations string_choice_operations = {
    .holds = holds_kind<TaggedString>,
    .content_length = string_choice_content_length,
    .length = string_choice_length,
    .encode_content = encode_string_choice_content,
    .encode = encode_string_choice,
    .decode_content = refuse_decode_content,
    .decode = decode_string_choice,
    .begins = string_choice_begins,
    .decode_behind = decode_string_choice_behind,
    .records_reserve = leaf_reserve<2 * (sizeof(TaggedString) + sizeof(String))>,
};

Choice *construct_choice(const ChoiceShape &shape, uint32_t alternative, const kovra_asn1_value *value) {
    Value *copy = copy_part(*shape.alternatives[alternative].copied_as, static_cast<const Value *>(value));
    if (copy == nullptr)
        return nullptr;
    auto *choice = new_root<Choice>();
    if (choice == nullptr || !choice->arena->adopt(copy)) {
        Arena::destroy(copy->arena);
        if (choice != nullptr)
            Arena::destroy(choice->arena);
        return nullptr;
    }
    choice->shape = &shape;
    choice->alternative = alternative;
    choice->value = copy;
    return choice;
}

Choice *construct_null_choice(const ChoiceShape &shape, uint32_t alternative) {
    auto *choice = new_root<Choice>();
    if (choice == nullptr)
        return nullptr;
    choice->shape = &shape;
    choice->alternative = alternative;
    return choice;
}

const Choice *as_choice(const ChoiceShape &shape, const kovra_asn1_value *handle) {
    const auto *choice = as<Choice>(handle);
    return choice != nullptr && choice->shape == &shape ? choice : nullptr;
}

Value *alternative(const ChoiceShape &shape, const kovra_asn1_value *handle, uint32_t number) {
    const Choice *choice = as_choice(shape, handle);
    return choice != nullptr && choice->alternative == number ? choice->value : nullptr;
}

Value *chosen_value(const ChoiceShape &shape, const kovra_asn1_value *handle) {
    const Choice *choice = as_choice(shape, handle);
    return choice != nullptr ? choice->value : nullptr;
}

int32_t alternative_number(const ChoiceShape &shape, const kovra_asn1_value *handle) {
    const Choice *choice = as_choice(shape, handle);
    return choice != nullptr ? static_cast<int32_t>(choice->alternative) : 0;
}

TaggedString *construct_string_choice(const StringChoiceShape &shape, int32_t tag, const kovra_asn1_value *string) {
    if (!allows(shape, tag) || as<String>(string) == nullptr)
        return nullptr;
    Value *copy = copy_part(row(KOVRA_ASN1_TYPE_OCTET_STRING), static_cast<const Value *>(string));
    if (copy == nullptr)
        return nullptr;
    auto *tagged = new_root<TaggedString>();
    if (tagged == nullptr || !tagged->arena->adopt(copy)) {
        Arena::destroy(copy->arena);
        if (tagged != nullptr)
            Arena::destroy(tagged->arena);
        return nullptr;
    }
    tagged->tag = tag;
    tagged->string = static_cast<String *>(copy);
    return tagged;
}

} // namespace kovra::asn1
