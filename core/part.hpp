// Components and alternatives by the names that their tables give them, looked up while compiling: a getter states its
// structure and its component, a constructor its structure, and nothing else. A name that the table does not have, and
// a constructor with too few or too many arguments, do not compile.
#pragma once

#include <algorithm>

#include "core/choice.hpp"
#include "core/structure.hpp"

namespace kovra::asn1 {

template <size_t size> struct Name {
    char text[size];
    // NOLINTNEXTLINE(google-explicit-constructor)
    consteval Name(const char (&literal)[size]) { std::copy_n(literal, size, text); }
};

// Not constexpr: reaching it while a name is looked up is the error, which says what is wrong.
inline void the_table_has_no_component_of_this_name() {}

template <size_t size> consteval uint8_t slot_of(const Component *components, size_t count, const Name<size> &name) {
    for (uint8_t i = 0; i < count; ++i)
        if (std::equal(name.text, name.text + size, components[i].name,
                       [](char left, char right) { return left == right; }))
            return i;
    the_table_has_no_component_of_this_name();
    return 0;
}
// For hooks of a table that is still being declared.
template <size_t count, size_t size>
consteval uint8_t slot_of(const Component (&components)[count], const char (&name)[size]) {
    return slot_of(components, count, Name<size>(name));
}

template <const StructureShape &shape, Name name>
inline constexpr uint8_t slot = slot_of(shape.components, shape.count, name);
template <const ChoiceShape &shape, Name name>
inline constexpr uint8_t alternative_named = slot_of(shape.alternatives, shape.count, name);

// The component of a value, borrowed; null when it is absent, or the handle is of another structure.
template <const StructureShape &shape, Name name> Value *part(const kovra_asn1_value *obj) {
    return component(shape, obj, slot<shape, name>);
}
template <const StructureShape &shape, Name name> int32_t has_part(const kovra_asn1_value *obj) {
    return part<shape, name>(obj) != nullptr ? 1 : 0;
}
// The value of a choice, borrowed, when it holds this alternative; else null.
template <const ChoiceShape &shape, Name name> Value *chosen(const kovra_asn1_value *obj) {
    return alternative(shape, obj, alternative_named<shape, name>);
}

// A new value with copies of one argument for each component, in order.
template <const StructureShape &shape, class... Arguments> Structure *construct(Arguments... arguments) {
    static_assert(sizeof...(arguments) == shape.count, "one argument for each component");
    return construct(shape, arguments...);
}
// A new choice of this alternative, with a copy of the value; without one of an alternative that is NULL.
template <const ChoiceShape &shape, Name name> Choice *construct_choice(const kovra_asn1_value *value) {
    return construct_choice(shape, alternative_named<shape, name>, value);
}
template <const ChoiceShape &shape, Name name> Choice *construct_choice() {
    return construct_null_choice(shape, alternative_named<shape, name>);
}

} // namespace kovra::asn1
