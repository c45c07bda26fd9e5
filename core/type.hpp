// What a type is: a row of the registry, and the operations that rows of one kind share.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/decoder.hpp"
#include "core/encoder.hpp"
#include "core/value.hpp"

namespace kovra::asn1 {

// Lengths of constructed values are computed once: an encoding that follows a measuring uses what it found.
enum class Measure : uint8_t { fresh, known };

// What a type can do. Types of one kind share their operations; what distinguishes them stands in their rows.
//
// A null `value` is the absence of one.
struct Operations {
    // Is this a record that the type's operations work on?
    bool (*holds)(const Type &, const Value &) = nullptr;
    // Content octets; indefinite when that is how the content will be written; unknown when it cannot be told.
    int32_t (*content_length)(const Type &, Value *, Measure) = nullptr;
    // Octets of identifier, length and content. Null: computed from the content length.
    int32_t (*length)(const Type &, Value *, Measure) = nullptr;
    // Writes the content, `length` being what measuring gave (indefinite: with its end-of-contents).
    Result (*encode_content)(Encoder &, const Type &, Value *, int32_t length) = nullptr;
    // Writes the whole value. Null: universal identifier, length, content.
    Result (*encode)(Encoder &, const Type &, Value *) = nullptr;
    // Reads the content of an element.
    Result (*decode_content)(Decoder &, const Type &, const Element &, Value *&out) = nullptr;
    // Reads a whole value. Null: the identifier must be the row's.
    Result (*decode)(Decoder &, const Type &, Value *&out) = nullptr;
    // Reads the content behind the usual identifier and a definite length whose octets are all there, and does what
    // `decode` does around it: sets a window and keeps the octets, where the type does so. Null for types that have no
    // usual identifier, and for no others.
    Result (*decode_plain)(Decoder &, const Type &, const Element &, Value *&out) = nullptr;
    // Can a value begin with this identifier? Null: it must be the row's.
    bool (*begins)(const Type &, const Identifier &) = nullptr;
    // Reads the content behind an identifier that the value can begin with. Null: `decode_content`.
    Result (*decode_behind)(Decoder &, const Type &, const Identifier &, const Element &, Value *&out) = nullptr;
    // Says why the content of a value that the type does not hold is not written. Null: it is a bad argument.
    Result (*refuse_content)(Encoder &, const Type &, const Value &) = nullptr;
    // Whole values are refused in both directions, whatever they are.
    bool refuses_whole = false;
    // Octets of records to make room for when this many octets are to be decoded.
    size_t (*records_reserve)(size_t octets) = nullptr;
};

// A row of the registry.
struct Type {
    constexpr Type(uint8_t number_, Form form_, uint8_t tag_, int32_t base_, const Operations *operations_,
                   const void *shape_)
        : number(number_), form(form_), tag(tag_),
          usual_identifier(static_cast<uint8_t>(tag_ != 0 && form_ == Form::constructed ? tag_ | 0x20 : tag_)),
          usual_form(form_ == Form::constructed ? Form::constructed : Form::primitive), base(base_),
          operations(operations_), shape(shape_) {}

    uint8_t number;
    Form form;
    uint8_t tag;              // universal
    uint8_t usual_identifier; // octet of the tag in the usual form; 0: the type has no tag
    Form usual_form;          // primitive where either will do
    int32_t base;             // code of a failed encode; that of a failed decode is one above
    const Operations *operations;
    const void *shape; // the declaration that shared operations work from; null for the leaves

    // An element under the usual identifier.
    [[nodiscard]] Element usual_element(uint32_t length, uint32_t start) const {
        return {usual_form, static_cast<int32_t>(length), start};
    }
};

} // namespace kovra::asn1
