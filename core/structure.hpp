// Structures as tables.
//
// A structure is declared once, as a constant table in the order of its ASN.1 definition, which stands above it. One
// engine walks the table to measure, encode and decode; it knows no structure by name. What a structure does that
// others do not is an attribute of its row or of its table.
#pragma once

#include <cstdint>

#include "core/registry.hpp"
#include "core/value.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

enum class Tagging : uint8_t { none, implicit, explicit_ };
enum class Presence : uint8_t { required, optional, defaulted };

// What an absent component stands for.
struct Default {
    Value *(*make)(Arena &); // null when memory is short
    bool (*is)(const Value &);
};

extern const Default default_zero;  // INTEGER 0, as far as it reads as a 32-bit number
extern const Default default_false; // BOOLEAN FALSE
extern const Default default_true;  // BOOLEAN TRUE

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

struct Component {
    const char *name;
    uint8_t type;
    Presence presence;
    Tag tag;
    const Default *fallback; // of a defaulted component
    int32_t line;
    // Codes that stand in for those of the component's type; 0: none does.
    int32_t encode_code = 0;
    int32_t decode_code = 0;
    // Types that stand in for the component's own in one direction; 0: none does.
    uint8_t encode_type = 0;
    uint8_t decode_type = 0;

    constexpr Component codes(int32_t encode, int32_t decode) const {
        Component changed = *this;
        changed.encode_code = encode;
        changed.decode_code = decode;
        return changed;
    }
    constexpr Component encode_as(uint8_t other) const {
        Component changed = *this;
        changed.encode_type = other;
        return changed;
    }
    constexpr Component decode_as(uint8_t other) const {
        Component changed = *this;
        changed.decode_type = other;
        return changed;
    }
};

constexpr Component required(const char *name, uint8_t type, Tag tag = untagged, int32_t line = __builtin_LINE()) {
    return {name, type, Presence::required, tag, nullptr, line};
}
constexpr Component optional(const char *name, uint8_t type, Tag tag = untagged, int32_t line = __builtin_LINE()) {
    return {name, type, Presence::optional, tag, nullptr, line};
}
constexpr Component defaulted(const char *name, uint8_t type, const Default &fallback, Tag tag = untagged,
                              int32_t line = __builtin_LINE()) {
    return {name, type, Presence::defaulted, tag, &fallback, line};
}

inline constexpr uint8_t no_slot = 0xFF;

struct Structure {
    const char *source; // module that the entries of failures name
    const Component *components;
    uint8_t count;
    // The first component, when its exact octets are kept because they are what is signed; else no_slot.
    uint8_t signed_slot = no_slot;
    // The structure whose records these are, when this one only restricts it; null: its own.
    const Structure *record = nullptr;
    // A record that is not allowed is refused in both directions with `refusal`; null: all are allowed.
    bool (*allows)(const Record &) = nullptr;
    int32_t refusal = 0;
    bool refuses_length = false; // and has no content length either

    [[nodiscard]] constexpr const Structure *shape() const { return record != nullptr ? record : this; }
};

template <size_t count> constexpr Structure structure(const char *source, const Component (&components)[count]) {
    static_assert(count < no_slot);
    return {source, components, count};
}
// A structure that is signed: its first component is what the signature covers.
template <size_t count> constexpr Structure signed_structure(const char *source, const Component (&components)[count]) {
    Structure made = structure(source, components);
    made.signed_slot = 0;
    return made;
}

// Contradictions in a table, for a static_assert beside it: a tag on a component that is told apart from another by the
// same tag, a default without a maker.
template <size_t count> consteval bool is_sound(const Component (&components)[count]) {
    for (size_t i = 0; i < count; ++i) {
        if ((components[i].presence == Presence::defaulted) != (components[i].fallback != nullptr))
            return false;
        if (components[i].tag.tagging == Tagging::none)
            continue;
        for (size_t j = 0; j < i; ++j)
            if (components[j].tag.tagging != Tagging::none && components[j].tag.number == components[i].tag.number)
                return false;
    }
    return true;
}

// A new, empty record in an arena of its own; null when memory is short.
Record *new_structure(const Structure &shape);
// Stores an independent copy of `value`, as a value of the component's type, in a slot; an absent value leaves an
// optional slot empty and fills a defaulted one. False when a required value is absent or something cannot be copied.
bool store_copy(Record &record, uint8_t slot, const kovra_asn1_value *value);
// Stores a value that is the root of its own arena, and takes it over. False when that cannot be; null is refused.
bool store(Record &record, uint8_t slot, Value *value);

// A new record with copies of one argument for each component, in order; null when one cannot be had.
template <class... Arguments> Record *construct(const Structure &shape, Arguments... arguments) {
    Record *record = new_structure(shape);
    if (record == nullptr)
        return nullptr;
    uint8_t slot = 0;
    if ((store_copy(*record, slot++, arguments) && ...) && slot == shape.count)
        return record;
    Arena::destroy(record->arena);
    return nullptr;
}

// The record behind a handle, if it is one of this structure.
Record *as_record(const Structure &shape, const kovra_asn1_value *handle);
// The value in a slot, borrowed; null when it is absent, or the handle is not of this structure.
Value *component(const Structure &shape, const kovra_asn1_value *handle, uint8_t slot);

// Exact octets that a record keeps.
Octets &kept_encoding(Record &record);
Octets &kept_signed_octets(Record &record);
inline bool is_kept(const Octets &octets) {
    return octets.length != 0;
}
// Drops what is kept of the whole record, so that the next encoding is made from the fields.
void drop_kept_encoding(Record &record);

// The octets of the signed component, encoded now if none are kept; 1 and the octets, or a failure.
Result signed_octets(Record &record, const uint8_t *&out, uint32_t &out_length);

} // namespace kovra::asn1
