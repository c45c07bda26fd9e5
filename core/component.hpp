// A row of a structure's or choice's table, and what is done with the value it stands for.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/registry.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

enum class Tagging : uint8_t {
    none,
    implicit,
    explicit_,
    bare, // written only: marked and counted like an explicit tag, with nothing but the value's content behind it
};
enum class Presence : uint8_t { required, optional, defaulted };

// What an absent component stands for.
struct Default {
    Value *(*make)(Arena &); // null when memory is short
    bool (*is)(const Value &);
};

extern const Default default_zero;  // INTEGER 0, as far as it reads as a 32-bit number
extern const Default default_false; // BOOLEAN FALSE
extern const Default default_true;  // BOOLEAN TRUE

// What a constant encoding decodes to: a new value, and the test whether one is encoded just so.
Value *make_encoded(Arena &arena, uint8_t type, const uint8_t *octets, size_t count);
bool is_encoded(const Value &value, uint8_t type, const uint8_t *octets, size_t count);

// A default given by its type and its encoding.
template <uint8_t type, const auto &octets>
inline constexpr Default default_encoding = {
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

// Which identifiers begin a component. The form is usually that of the tag's content, except that the content of an
// implicit tag, where its type is primitive, finds a constructed form by itself.
enum class Begins : uint8_t {
    usually,
    in_any_form,    // an alternative's class and tag alone tell; a wrong form is found when the content is read
    in_own_form,    // under an implicit tag too
    with_any_number // and any context tag, in either form
};

struct Component {
    const char *name;
    uint8_t type;
    Presence presence;
    Tag tag;
    Tag encode_tag;          // the same, unless the component is written under another tag than it is read under
    const Default *fallback; // of a defaulted component
    int32_t line;
    Begins begins = Begins::usually;
    // Required, and missing (0x1020a) where the content ends before it; else the octets behind the content are looked
    // at.
    bool within_content = false;
    // Codes that stand in for those of the component's type; 0: none does.
    int32_t encode_code = 0;
    int32_t decode_code = 0;
    // The row as which each direction takes the component, and as which a constructor copies its argument: that of its
    // type, unless another stands in for it.
    const Type *written_as = &registry[type];
    const Type *read_as = &registry[type];
    const Type *copied_as = &registry[type];
    // The row that writes the content octets although the lengths are those of the component's own; null: none does.
    const Type *content_written_as = nullptr;

    constexpr Component begun(Begins how) const {
        Component changed = *this;
        changed.begins = how;
        return changed;
    }
    constexpr Component only_within_content() const {
        Component changed = *this;
        changed.within_content = true;
        return changed;
    }
    constexpr Component codes(int32_t encode, int32_t decode) const {
        Component changed = *this;
        changed.encode_code = encode;
        changed.decode_code = decode;
        return changed;
    }
    constexpr Component encode_as(uint8_t other) const {
        Component changed = *this;
        changed.written_as = &registry[other];
        return changed;
    }
    constexpr Component decode_as(uint8_t other) const {
        Component changed = *this;
        changed.read_as = &registry[other];
        return changed;
    }
    constexpr Component encode_content_as(uint8_t other) const {
        Component changed = *this;
        changed.content_written_as = &registry[other];
        return changed;
    }
    constexpr Component encode_under(Tag other) const {
        Component changed = *this;
        changed.encode_tag = other;
        return changed;
    }
    constexpr Component copy_as(uint8_t other) const {
        Component changed = *this;
        changed.copied_as = &registry[other];
        return changed;
    }
    // Of a type that has no number.
    constexpr Component of(const Type &own) const {
        Component changed = *this;
        changed.written_as = changed.read_as = changed.copied_as = &own;
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

// Free of contradictions, for a static_assert beside a table: no two components have the same tag.
template <size_t count> consteval bool is_sound(const Component (&components)[count]) {
    for (size_t i = 0; i < count; ++i) {
        if (components[i].tag.tagging == Tagging::none)
            continue;
        for (size_t j = 0; j < i; ++j)
            if (components[j].tag.tagging != Tagging::none && components[j].tag.number == components[i].tag.number)
                return false;
    }
    return true;
}

// The types and codes that apply in each direction.
inline const Type &encode_row(const Component &component) {
    return *component.written_as;
}
inline const Type &decode_row(const Component &component) {
    return *component.read_as;
}
inline int32_t encode_code(const Component &component) {
    return component.encode_code != 0 ? component.encode_code : encode_row(component).base;
}
inline int32_t decode_code(const Component &component) {
    return component.decode_code != 0 ? component.decode_code : decode_row(component).base + 1;
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
    const Result result = decode(decoder, decode_row(component), out);
    return result == success ? success : fail_decode(decoder, site, component, result);
}

} // namespace kovra::asn1
