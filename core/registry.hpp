// The registry: a row for each type identifier, and the walk through its operations.
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
    // Reads the content behind the row's own identifier and a definite length whose octets are all there, with what
    // `decode` does besides. Null: there is no such shorter way, as for types with `begins`.
    Result (*decode_entered)(Decoder &, const Type &, const Element &, Value *&out) = nullptr;
    // Can a value begin with this identifier? Null: it must be the row's.
    bool (*begins)(const Type &, const Identifier &) = nullptr;
    // Reads the content behind an identifier that the value can begin with. Null: `decode_content`.
    Result (*decode_begun)(Decoder &, const Type &, const Identifier &, const Element &, Value *&out) = nullptr;
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
          usual_identifier(static_cast<uint8_t>(form_ == Form::constructed ? tag_ | 0x20 : tag_)),
          usual_form(form_ == Form::constructed ? Form::constructed : Form::primitive), base(base_),
          operations(operations_), shape(shape_) {}

    uint8_t number;
    Form form;
    uint8_t tag;              // universal
    uint8_t usual_identifier; // octet of the tag in the usual form
    Form usual_form;          // primitive where either will do
    int32_t base;             // code of a failed encode; that of a failed decode is one above
    const Operations *operations;
    const void *shape; // the declaration that shared operations work from; null for the leaves

    // An element under the usual identifier.
    [[nodiscard]] Element usual_element(uint32_t length, uint32_t start) const {
        return {usual_form, static_cast<int32_t>(length), start};
    }
};

inline constexpr uint32_t type_count = 208;

// The rows by type identifier.
extern const Type registry[type_count];
inline const Type &row(uint32_t number) {
    return registry[number];
}

// Is there a value, and one that the type works on?
inline bool holds(const Type &type, const Value *value) {
    return value != nullptr && type.operations->holds(type, *value);
}

// Lengths. A value of another kind has none.
int32_t content_length(const Type &type, Value *value, Measure measure = Measure::fresh);
int32_t whole_length(const Type &type, Value *value, Measure measure = Measure::fresh);
// Identifier, length and content octets of a content length; indefinite when there are more than 0x7FFFFFFF.
int32_t whole_length_of(int32_t tag, int32_t content);

// Writes a whole value; one of known measure has just been measured as a part of its holder.
Result encode(Encoder &encoder, const Type &type, Value *value, Measure measure = Measure::fresh);
// A value that the type has no use for is a bad argument; no stream, or no value, comes before it.
Result refuse_value(Encoder &encoder, const Value *value);
// Writes the content octets of a value that was just measured, `length` of them or of indefinite length.
Result encode_content(Encoder &encoder, const Type &type, Value *value, int32_t length);

// Reads a whole value, and the content behind an identifier that `begins` accepted.
Result decode_generic(Decoder &decoder, const Type &type, Value *&out);
inline Result decode(Decoder &decoder, const Type &type, Value *&out) {
    uint32_t length = 0;
    const uint32_t start = decoder.position();
    const Operations &operations = *type.operations;
    if (operations.decode_entered != nullptr && decoder.enter(type.usual_identifier, length))
        return operations.decode_entered(decoder, type, type.usual_element(length, start), out);
    return operations.decode != nullptr ? operations.decode(decoder, type, out) : decode_generic(decoder, type, out);
}
inline bool begins(const Type &type, const Identifier &identifier) {
    if (type.operations->begins != nullptr)
        return type.operations->begins(type, identifier);
    return identifier.is(Class::universal, type.tag) && (type.form == Form::either || type.form == identifier.form);
}
inline Result decode_begun(Decoder &decoder, const Type &type, const Identifier &identifier, const Element &element,
                           Value *&out) {
    if (type.operations->decode_begun != nullptr)
        return type.operations->decode_begun(decoder, type, identifier, element, out);
    return type.operations->decode_content(decoder, type, element, out);
}

// A copy that is independent of the value, by encoding and decoding it. Null, with entries, when that fails.
Value *duplicate(const Type &type, const Value *value, kovra_err_ctx *ctx);
// A copy for a value that is being built, without entries. Contents in streams that are so long that they are written
// in segments are not copied: the copy refers to the same streams.
Value *copy_part(const Type &type, const Value *value);
// The same between two types (an INTEGER to an ANY, say); a type that needs no value may have none.
Value *convert(const Type &from, const Value *value, const Type &to);

// The type's own codes.
inline Result fail_encode(Encoder &encoder, Site site, const Type &type, Result result = failure) {
    return encoder.fail(site, type.base, result);
}
inline Result fail_decode(Decoder &decoder, Site site, const Type &type, Result result = failure) {
    return decoder.fail(site, type.base + 1, result);
}

// The first checks of every content decoder.
inline Result enter(Decoder &decoder, Site site) {
    if (!decoder.has_both_ends())
        return decoder.fail(site, code::null_argument);
    return success;
}
// And of those whose content is primitive and definite.
inline Result enter_primitive(Decoder &decoder, Site site, const Element &element) {
    if (const Result result = enter(decoder, site); result != success)
        return result;
    if (element.form == Form::constructed)
        return decoder.fail(site, code::form_error);
    if (element.length == indefinite)
        return decoder.fail(site, code::definite_wanted);
    return success;
}

// Building blocks for tables of operations.
template <class T> bool holds_kind(const Type &, const Value &value) {
    return value.kind == T::own_kind;
}
template <size_t record_octets> size_t leaf_reserve(size_t) {
    return record_octets;
}
Result refuse_decode_content(Decoder &decoder, const Type &, const Element &, Value *&);

} // namespace kovra::asn1
