// The "type" names of the JSON description, and what they stand for.
#pragma once

#include <cstdint>

namespace kovra::asn1 {

// How the "value" member of a kind is written.
enum class Notation : uint8_t {
    boolean,
    hex,
    bits,
    none,
    oid,
    time,
    octets,
    numeric,
    printable,
    ia5,
    visible,
    utf8,
    utf32,
    bmp,
    list
};

struct JsonKind {
    const char *name;
    uint8_t tag; // universal
    uint8_t type;
    Notation notation;
    bool is_input_only; // another name of a kind that has one for output
};

// The kind that a universal tag is written as; null when it has none and is written as its whole encoding.
const JsonKind *kind_of_tag(int32_t tag);
// The kind of a name; null when there is none such.
const JsonKind *kind_of_name(const char *name);

// Class names of a tagged value: the index is the class shifted down.
inline constexpr const char *class_names[] = {"UNIVERSAL", "APPLICATION", "CONTEXT", "PRIVATE"};
inline constexpr const char *tagged_name = "TAGGEDTYPE";
inline constexpr const char *any_name = "ANY";

// Do the octets belong to the repertoire of the string kind? Kinds without one accept any.
bool is_in_repertoire(Notation notation, const uint8_t *octets, uint32_t length);

} // namespace kovra::asn1
