// Structures as tables.
//
// A structure is declared once, as a constant table in the order of its ASN.1 definition, which stands above it. One
// engine walks the table to measure, encode and decode; it knows no structure by name. What a structure does that
// others do not is an attribute of its row or of its table.
#pragma once

#include <cstdint>

#include "core/component.hpp"
#include "core/type.hpp"
#include "core/value.hpp"

namespace kovra::asn1 {

// The content length of a record that is not allowed.
enum class LengthOfRefused : uint8_t { told, none };

struct StructureShape {
    const char *source; // module that the entries of failures name
    const Component *components;
    uint8_t count;
    bool is_signed = false;   // the first component: its exact octets are kept
    uint8_t required_end = 0; // behind the last required component
    uint32_t read_whole = 0;  // a bit for each component that is decoded without a look at its identifier first
    // The structure whose records these are, when this one only restricts it; null: its own.
    const StructureShape *records_of = nullptr;
    // A record that is not allowed is refused in both directions with `refusal`; null: all are allowed.
    bool (*allows)(const Structure &) = nullptr;
    int32_t refusal = 0;
    LengthOfRefused length_of_refused = LengthOfRefused::told;
    // What stands behind the last component in the indefinite form is read as an identifier first: an element there is
    // an item too many (0x1020a), not a broken end-of-contents marker (0x102e9).
    bool tests_end = false;
    // The only component is a list whose content is the structure's own; null: the components stand one after another.
    const Type *content = nullptr;

    [[nodiscard]] constexpr const StructureShape *record_shape() const {
        return records_of != nullptr ? records_of : this;
    }
};

// What all declarations of structures begin with.
template <size_t count> constexpr StructureShape tabulate(const char *source, const Component (&components)[count]) {
    static_assert(count <= 32);
    expect_sound(components, count, false);
    StructureShape made{source, components, count};
    for (uint32_t i = 0; i < count; ++i) {
        const bool is_required = components[i].presence == Presence::required;
        if (is_required)
            made.required_end = static_cast<uint8_t>(i + 1);
        // What stands behind a component that may be absent is known by its identifier, whether that was there or not.
        const bool is_next = i == 0 || components[i - 1].presence == Presence::required;
        if (components[i].tag.tagging == Tagging::none &&
            ((is_required && is_next) || components[i].type == KOVRA_ASN1_TYPE_ANY))
            made.read_whole |= uint32_t{1} << i;
    }
    return made;
}
// A structure that is nothing but its components. A table that contradicts itself does not compile.
template <size_t count> consteval StructureShape structure(const char *source, const Component (&components)[count]) {
    return tabulate(source, components);
}
// A structure that tells an element behind its last component from a broken end.
template <size_t count>
consteval StructureShape structure_with_tested_end(const char *source, const Component (&components)[count]) {
    StructureShape made = tabulate(source, components);
    made.tests_end = true;
    return made;
}
// A list that keeps its encoding, which lists by themselves do not.
template <size_t count>
consteval StructureShape list_structure(const char *source, const Component (&components)[count], const Type &content) {
    static_assert(count == 1);
    StructureShape made = tabulate(source, components);
    made.content = &content;
    return made;
}
// The records of another structure, of which only some are allowed.
consteval StructureShape restricted(const StructureShape &base, bool (*allows)(const Structure &), int32_t refusal,
                                    LengthOfRefused length = LengthOfRefused::told) {
    StructureShape made = base;
    made.records_of = &base;
    made.allows = allows;
    made.refusal = refusal;
    made.length_of_refused = length;
    return made;
}
// A structure of which only some records are allowed.
template <size_t count>
consteval StructureShape restricted(const char *source, const Component (&components)[count],
                                    bool (*allows)(const Structure &), int32_t refusal) {
    StructureShape made = tabulate(source, components);
    made.allows = allows;
    made.refusal = refusal;
    return made;
}
// A structure whose records are those of another: the components are the same under names of its own.
template <size_t count>
consteval StructureShape alike(const char *source, const Component (&components)[count], const StructureShape &base) {
    StructureShape made = tabulate(source, components);
    made.records_of = &base;
    return made;
}
// A structure that is signed: its first component is what the signature covers.
template <size_t count>
consteval StructureShape signed_structure(const char *source, const Component (&components)[count]) {
    StructureShape made = tabulate(source, components);
    made.is_signed = true;
    return made;
}

// A new, empty record in an arena of its own; null when memory is short.
Structure *new_structure(const StructureShape &shape);
// The same in an arena that is there.
Structure *new_structure(Arena &arena, const StructureShape &shape);
// Stores an independent copy of `value`, as a value of the type that the component is copied as, in a slot; an absent
// value leaves an optional slot empty and fills a defaulted one. False when a required value is absent or something
// cannot be copied.
bool store_copy(Structure &record, uint8_t slot, const kovra_asn1_value *value);
// Stores a value that is the root of its own arena, and takes it over. False when that cannot be; null is refused.
bool store(Structure &record, uint8_t slot, Value *value);

// A new record with copies of one argument for each component, in order; null when one cannot be had, or the record is
// not allowed.
template <class... Arguments> Structure *construct(const StructureShape &shape, Arguments... arguments) {
    Structure *record = new_structure(shape);
    if (record == nullptr)
        return nullptr;
    uint8_t slot = 0;
    if ((store_copy(*record, slot++, arguments) && ...) && slot == shape.count &&
        (shape.allows == nullptr || shape.allows(*record)))
        return record;
    Arena::destroy(record->arena);
    return nullptr;
}

// The record behind a handle, if it is one of this structure.
Structure *as_structure(const StructureShape &shape, const kovra_asn1_value *handle);
// The value in a slot, borrowed; null when it is absent, or the handle is not of this structure.
Value *component(const StructureShape &shape, const kovra_asn1_value *handle, uint8_t slot);

// Are there octets that a record keeps?
inline bool is_kept(const Octets &octets) {
    return octets.length != 0;
}
// Drops what is kept of the whole record, so that the next encoding is made from the fields.
void drop_kept_encoding(Structure &record);

// The octets of the signed component, encoded now if none are kept; 1 and the octets, or a failure.
Result signed_octets(Structure &record, const uint8_t *&out, uint32_t &out_length);

} // namespace kovra::asn1
