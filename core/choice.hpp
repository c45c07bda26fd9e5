// Choices as tables: like a structure's, with one row for each alternative, of which a value holds one.
#pragma once

#include "core/component.hpp"
#include "core/value.hpp"

namespace kovra::asn1 {

// Which alternatives are told apart by class and tag number alone, so that a form that does not fit is found when the
// content is read. Of a primitive type under an implicit tag that is so always.
enum class AnyForm : uint8_t { no, of_tagged, of_untagged_leaves };

struct ChoiceShape {
    const char *source; // module that the entries of failures name
    const Component *alternatives;
    uint8_t count;
    AnyForm any_form = AnyForm::no;
};

template <size_t count>
consteval ChoiceShape choice(const char *source, const Component (&alternatives)[count],
                             AnyForm any_form = AnyForm::no) {
    expect_sound(alternatives, count, true);
    return {source, alternatives, count, any_form};
}

// A new choice that holds a copy of `value`, made as the type that the alternative is copied as. Null when there is no
// value, or it cannot be copied.
Choice *construct_choice(const ChoiceShape &shape, uint32_t alternative, const kovra_asn1_value *value);

// A new choice of an alternative that is NULL and has no value.
Choice *construct_null_choice(const ChoiceShape &shape, uint32_t alternative);

// The choice behind a handle, if it is one of this table.
const Choice *as_choice(const ChoiceShape &shape, const kovra_asn1_value *handle);
// Its value, borrowed, when it holds this alternative; else null.
Value *alternative(const ChoiceShape &shape, const kovra_asn1_value *handle, uint32_t number);
// Its value, borrowed, whatever alternative it holds, and the number of that; null and 0 when it is none of this table.
Value *chosen_value(const ChoiceShape &shape, const kovra_asn1_value *handle);
int32_t alternative_number(const ChoiceShape &shape, const kovra_asn1_value *handle);

// Character string choices: the row of a TaggedString says which universal tags it may have.
struct StringChoiceShape {
    const char *source;
    uint32_t tags; // a bit for each universal tag number
};

constexpr bool allows(const StringChoiceShape &shape, int32_t tag) {
    return tag >= 0 && tag < 32 && (shape.tags >> tag & 1) != 0;
}

// A new string choice with a copy of an OCTET STRING's content; null when the tag is not allowed or it cannot be had.
TaggedString *construct_string_choice(const StringChoiceShape &shape, int32_t tag, const kovra_asn1_value *string);

} // namespace kovra::asn1
