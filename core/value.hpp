// The records of values. Each begins with a header whose kind word makes the untyped public handles safe: whoever
// receives a value looks at it before touching anything else.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/arena.hpp"
#include "core/octets.hpp"
#include "kovra/asn1_value.h"

// What the handles of values point to, as callers see it. It has no members, so that a handle and its record have one
// address.
struct kovra_asn1_value {};

namespace kovra::asn1 {

struct ChoiceShape;
struct StructureShape;
struct TimeFields;
struct Type;

// Words that no other handle begins with.
enum class Kind : uint32_t {
    released = 0x4B560000,
    boolean = 0x4B561A01,
    integer,
    bit_string,
    string,
    object_identifier,
    time,
    any,
    list,
    tagged_string,
    choice,
    structure,
};

struct Value : kovra_asn1_value {
    Kind kind;
    int32_t measured; // content length found by the last measuring: what encoding that follows it at once relies on
    Arena *arena;
};
static_assert(offsetof(Value, kind) == 0);

// Octets that a record refers to: in its arena's copy of the encoding, or elsewhere in memory that lives as long.
struct Octets {
    const uint8_t *memory; // null: at `offset` of the arena's octets
    uint32_t offset;
    uint32_t length;

    [[nodiscard]] const uint8_t *data(const Arena &arena) const {
        return memory != nullptr ? memory : arena.octets + offset;
    }
};

// The content of a string-like value: octets, or a stream (the caller's, or one taken over).
struct Content {
    Octets octets;
    kovra_stream *stream; // null: the content is `octets`
    union {
        uint32_t position; // where piecewise reading of `octets` goes on
        uint32_t told;     // of a stream: 1 + the length that was last told; 0 while none was
    };
};

struct Boolean : Value {
    static constexpr Kind own_kind = Kind::boolean;
    uint32_t word; // 255 for TRUE, 0 for FALSE
};

// INTEGER and ENUMERATED: the content octets as built or received, never empty.
struct Integer : Value {
    static constexpr Kind own_kind = Kind::integer;
    Octets octets;
};

struct BitString : Value {
    static constexpr Kind own_kind = Kind::bit_string;
    Content content;      // without the unused-bits octet
    uint32_t unused_bits; // 0..7
};

// OCTET STRING and every character string.
struct String : Value {
    static constexpr Kind own_kind = Kind::string;
    Content content;
};

// OBJECT IDENTIFIER and RELATIVE-OID.
struct ObjectIdentifier : Value {
    static constexpr Kind own_kind = Kind::object_identifier;
    Octets octets;
    const char *text; // dotted decimal; null until first asked for
    bool relative;
};

struct Time : Value {
    static constexpr Kind own_kind = Kind::time;
    Octets text;
    const TimeFields *built; // what a constructor was given; null when the text was read
    uint8_t tag;             // 23 UTCTime, 24 GeneralizedTime
};

// The open type: one complete element, or an end-of-contents marker.
struct Any : Value {
    static constexpr Kind own_kind = Kind::any;
    Octets header; // identifier and length octets as read
    Content content;
    int32_t tag;
    int32_t length; // of the content; indefinite: the content ends with its end-of-contents octets
    Class tag_class;
    Form form;
    bool end_of_contents;
    kovra_stream *segments_of; // what the content shows as segments; null when the content is what it is
};

// SEQUENCE OF and SET OF. Elements of a long decoded list are built when they are first asked for: until then only
// their places in the arena's octets are kept.
struct List : Value {
    static constexpr Kind own_kind = Kind::list;
    Value **items;             // null while no element behind the places was asked for; a null item is not built yet
    Arena::Block *items_block; // the block that holds `items`, if any
    const uint32_t *places;    // offset of each element that was decoded; null when all were built at once
    const Type *element;       // what the places hold
    uint32_t count;
    uint32_t capacity;
    uint32_t placed; // how many of the elements, from the first on, have a place
};

// A character string choice (DirectoryString and its kin): a universal tag and the content octets.
struct TaggedString : Value {
    static constexpr Kind own_kind = Kind::tagged_string;
    int32_t tag;
    String *string;
};

// A choice: the number of the alternative in its table, and the value.
struct Choice : Value {
    static constexpr Kind own_kind = Kind::choice;
    const ChoiceShape *shape;
    Value *value;
    uint32_t alternative;
};

// Every other structure: a slot for each component, null when it is absent, and behind the slots the kept encodings.
struct Structure : Value {
    static constexpr Kind own_kind = Kind::structure;
    const StructureShape *shape;
    Value *slots[1]; // as many as the structure has components

    [[nodiscard]] Value *slot(uint8_t index) const { return slots[index]; }
};

// The record behind a handle, or null when the handle is null or of another kind.
template <class T> T *as(kovra_asn1_value *handle) {
    auto *value = static_cast<Value *>(handle);
    return value != nullptr && value->kind == T::own_kind ? static_cast<T *>(value) : nullptr;
}
template <class T> const T *as(const kovra_asn1_value *handle) {
    const auto *value = static_cast<const Value *>(handle);
    return value != nullptr && value->kind == T::own_kind ? static_cast<const T *>(value) : nullptr;
}

// A new record in the arena; everything behind the header is zero. Null when memory is short.
template <class T> T *new_record(Arena &arena, size_t size = sizeof(T)) {
    auto *record = static_cast<T *>(arena.allocate(size));
    if (record == nullptr)
        return nullptr;
    std::memset(static_cast<void *>(record), 0, size);
    record->kind = T::own_kind;
    record->arena = &arena;
    return record;
}

// A new record that is the root of an arena of its own, with room for `extra` further octets. Null when memory is
// short.
template <class T> T *new_root(size_t extra = 0) {
    Arena *arena = Arena::create(sizeof(T) + 2 * sizeof(void *), extra);
    if (arena == nullptr)
        return nullptr;
    T *record = new_record<T>(*arena);
    arena->root = record;
    return record;
}

} // namespace kovra::asn1
