// A row of a structure's or choice's table, and what is done with the value it stands for.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/codec.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

enum class Tagging : uint8_t {
    none,
    implicit,
    explicit_,
    // Only for writing: tag and length of an explicit tag, and the content octets without the identifier and length
    // octets that an explicit tag has before them, although these are counted.
    bare,
};
enum class Presence : uint8_t { required, optional, defaulted };

// What an absent component stands for.
struct Default {
    uint8_t type;
    Value *(*make)(Arena &); // null when memory is short
    bool (*is)(const Value &);
};

Value *make_zero(Arena &arena);
Value *make_false(Arena &arena);
Value *make_true(Arena &arena);
bool is_zero(const Value &value);
bool is_false(const Value &value);
bool is_true(const Value &value);

// INTEGER 0, as far as it reads as a 32-bit number, and the two values of BOOLEAN.
inline constexpr Default default_zero = {KOVRA_ASN1_TYPE_INTEGER, make_zero, is_zero};
inline constexpr Default default_false = {KOVRA_ASN1_TYPE_BOOLEAN, make_false, is_false};
inline constexpr Default default_true = {KOVRA_ASN1_TYPE_BOOLEAN, make_true, is_true};

// What a constant encoding decodes to: a new value, and the test whether one is encoded just so.
Value *make_encoded(Arena &arena, uint8_t type, const uint8_t *octets, size_t count);
bool is_encoded(const Value &value, uint8_t type, const uint8_t *octets, size_t count);

// A default given by its type and its encoding.
template <uint8_t type, const auto &octets>
inline constexpr Default default_encoding = {
    type,
    [](Arena &arena) { return make_encoded(arena, type, octets, sizeof octets); },
    [](const Value &value) { return is_encoded(value, type, octets, sizeof octets); },
};

struct Tag {
    Tagging tagging;
    uint8_t number;
};
constexpr Tag untagged{Tagging::none, 0};
constexpr Tag implicit_tag(uint8_t number) {
    return {Tagging::implicit, number};
}
constexpr Tag explicit_tag(uint8_t number) {
    return {Tagging::explicit_, number};
}
constexpr Tag bare_tag(uint8_t number) {
    return {Tagging::bare, number};
}

// Of a component that adds no entry of its own to those that its value left.
inline constexpr int32_t no_code = -1;

struct Component {
    const char *name;
    uint8_t type;
    Presence presence;
    Tag tag;
    Tag encode_tag;          // the same, unless the component is written under another tag than it is read under
    const Default *fallback; // of a defaulted component
    int32_t line;
    // The usual identifier of an untagged component's type; 0 when the component is tagged or its type has none.
    uint8_t usual_identifier = tag.tagging == Tagging::none ? row(type).usual_identifier : uint8_t{0};
    bool has_own_form_only = false;
    bool has_any_context_tag = false;
    bool is_missing_at_end = false;
    bool is_unwritable = false;
    // Codes that stand in for those of the component's type; 0: none does.
    int32_t encode_code = 0;
    int32_t decode_code = 0;
    // The row as which the component is taken, and as which a constructor copies its argument: that of its type, unless
    // another stands in for it.
    const Type *taken_as = &row(type);
    const Type *copied_as = &row(type);

    // What a component does that others do not, as a remark behind its row.

    // Under an implicit tag, only the form of the type begins it. Without this, a constructed form of a primitive type
    // begins it, too, and is refused when the content is read.
    constexpr Component own_form_only() const {
        Component changed = *this;
        changed.has_own_form_only = true;
        return changed;
    }
    // Every context tag begins this alternative, in either form.
    constexpr Component any_context_tag() const {
        Component changed = *this;
        changed.has_any_context_tag = true;
        return changed;
    }
    // Where the content ends before it, the component is missing (0x1020a). Without this, an identifier is read there,
    // from the octets behind the structure.
    constexpr Component missing_at_end() const {
        Component changed = *this;
        changed.is_missing_at_end = true;
        return changed;
    }
    // Can be read and measured; writing it fails with 0x1020a.
    constexpr Component unwritable() const {
        Component changed = *this;
        changed.is_unwritable = true;
        return changed;
    }
    // Has codes of its own.
    constexpr Component codes(int32_t encode, int32_t decode) const {
        Component changed = *this;
        changed.encode_code = encode;
        changed.decode_code = decode;
        return changed;
    }
    // Has the codes of another type, or only its code of a failed decode.
    constexpr Component codes_of(uint8_t other) const { return codes(row(other).base, row(other).base + 1); }
    constexpr Component decode_code_of(uint8_t other) const { return codes(encode_code, row(other).base + 1); }
    // Is written under another tag than it is read under.
    constexpr Component encode_under(Tag other) const {
        Component changed = *this;
        changed.encode_tag = other;
        return changed;
    }
    // A constructor takes a value of another type for it.
    constexpr Component copy_as(uint8_t other) const {
        Component changed = *this;
        changed.copied_as = &row(other);
        return changed;
    }
    // Is of a type that has no number, and no code either.
    constexpr Component of(const Type &own) const {
        Component changed = codes(no_code, no_code);
        changed.taken_as = changed.copied_as = &own;
        changed.usual_identifier = tag.tagging == Tagging::none ? own.usual_identifier : uint8_t{0};
        return changed;
    }
};

constexpr Component required(const char *name, uint8_t type, Tag tag = untagged, int32_t line = __builtin_LINE()) {
    return {name, type, Presence::required, tag, tag, nullptr, line};
}
constexpr Component optional(const char *name, uint8_t type, Tag tag = untagged, int32_t line = __builtin_LINE()) {
    return {name, type, Presence::optional, tag, tag, nullptr, line};
}
constexpr Component defaulted(const char *name, uint8_t type, const Default &fallback, Tag tag = untagged,
                              int32_t line = __builtin_LINE()) {
    return {name, type, Presence::defaulted, tag, tag, &fallback, line};
}

// A table that contradicts itself does not compile: `structure` and `choice` call one of these, which are not
// constexpr, so that the error names what is wrong.
inline void an_implicit_tag_on_a_type_without_a_tag_of_its_own() {}
inline void components_that_cannot_be_told_apart() {}
inline void two_components_of_one_name() {}
inline void a_default_of_another_type() {}

// Has the type a tag that an implicit one can stand for? Choices and the open type have none.
constexpr bool has_own_tag(const Type &type) {
    return type.tag != 0 || type.number == KOVRA_ASN1_TYPE_STRING;
}

// Can one element begin either component? Of untagged choices only their own table knows; the open type begins with
// anything.
constexpr bool are_alike(const Component &left, const Component &right) {
    const auto is_open = [](const Component &component) {
        return component.tag.tagging == Tagging::none && component.taken_as->number == KOVRA_ASN1_TYPE_ANY;
    };
    if (is_open(left) || is_open(right))
        return true;
    const bool is_left_tagged = left.tag.tagging != Tagging::none;
    if (is_left_tagged != (right.tag.tagging != Tagging::none))
        return false;
    if (is_left_tagged)
        return left.tag.number == right.tag.number;
    return has_own_tag(*left.taken_as) && left.taken_as->tag == right.taken_as->tag;
}

constexpr bool is_same_text(const char *left, const char *right) {
    for (; *left == *right; ++left, ++right)
        if (*left == '\0')
            return true;
    return false;
}

// What may be absent must be told from all that may stand in its place, up to and with the next required component;
// each alternative of a choice from each other.
constexpr void expect_sound(const Component *components, size_t count, bool is_choice) {
    for (size_t i = 0; i < count; ++i) {
        const Component &component = components[i];
        if (component.tag.tagging == Tagging::implicit && !has_own_tag(*component.taken_as))
            an_implicit_tag_on_a_type_without_a_tag_of_its_own();
        if (component.presence == Presence::defaulted && component.fallback->type != component.type)
            a_default_of_another_type();
        bool may_be_next = true;
        for (size_t j = i + 1; j < count; ++j) {
            may_be_next = may_be_next && (is_choice || components[j - 1].presence != Presence::required);
            if (may_be_next && are_alike(component, components[j]))
                components_that_cannot_be_told_apart();
            if (is_same_text(component.name, components[j].name))
                two_components_of_one_name();
        }
    }
}

// The row and the codes that apply.
inline const Type &row_of(const Component &component) {
    return *component.taken_as;
}
inline int32_t encode_code(const Component &component) {
    return component.encode_code != 0 ? component.encode_code : row_of(component).base;
}
inline int32_t decode_code(const Component &component) {
    return component.decode_code != 0 ? component.decode_code : row_of(component).base + 1;
}

// Records the code of a component whose value could not be written or read.
inline Result fail_encode(Encoder &encoder, Site site, const Component &component, Result result) {
    const int32_t code = encode_code(component);
    return code == no_code ? result : encoder.fail(site, code, result);
}
inline Result fail_decode(Decoder &decoder, Site site, const Component &component, Result result) {
    const int32_t code = decode_code(component);
    return code == no_code ? result : decoder.fail(site, code, result);
}

// Octets that a value takes, the component's tag included.
int32_t component_length(const Component &component, Value *value, Measure measure = Measure::fresh);
// Writes a value under the component's tag.
Result encode_component(Encoder &encoder, Site site, const Component &component, Value *value, Measure measure);
// Writes what the component's own tag holds, `length` octets or of indefinite length.
Result encode_within_tag(Encoder &encoder, Site site, const Component &component, Value *value, int32_t length,
                         Measure measure);
// Writes the content octets of a value, `length` being what measuring gave.
Result encode_component_content(Encoder &encoder, Site site, const Component &component, Value *value, int32_t length);
// Reads what an explicit tag whose length was read holds.
Result decode_explicit(Decoder &decoder, Site site, const Component &component, int32_t length, Value *&out);
// Reads a value whole, as the component's type.
inline Result decode_component(Decoder &decoder, Site site, const Component &component, Value *&out) {
    const Result result = decode(decoder, row_of(component), out);
    return result == success ? success : fail_decode(decoder, site, component, result);
}

} // namespace kovra::asn1
