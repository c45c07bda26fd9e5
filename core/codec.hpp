// Measuring, writing, reading and copying a value of any type: what the rows' operations leave to be the same for all.
#pragma once

#include "core/type.hpp"

namespace kovra::asn1 {

// Is there a value, of a kind that the type's operations work on?
inline bool holds(const Type &type, const Value *value) {
    return value != nullptr && type.operations->holds(type, *value);
}

// Lengths. A value of another kind has none.
int32_t content_length(const Type &type, Value *value, Measure measure = Measure::fresh);
int32_t whole_length(const Type &type, Value *value, Measure measure = Measure::fresh);
// Identifier, length and content octets of a content length; indefinite when there are more than 0x7FFFFFFF.
int32_t whole_length_of(int32_t tag, int32_t content);

// Writes a whole value. Its measure is known when what holds it has just been measured.
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
    if (type.usual_identifier != 0 && decoder.enter(type.usual_identifier, length))
        return operations.decode_plain(decoder, type, type.usual_element(length, start), out);
    return operations.decode != nullptr ? operations.decode(decoder, type, out) : decode_generic(decoder, type, out);
}
inline bool begins(const Type &type, const Identifier &identifier) {
    if (type.operations->begins != nullptr)
        return type.operations->begins(type, identifier);
    return identifier.is(Class::universal, type.tag) && (type.form == Form::either || type.form == identifier.form);
}
inline Result decode_behind(Decoder &decoder, const Type &type, const Identifier &identifier, const Element &element,
                            Value *&out) {
    if (type.operations->decode_behind != nullptr)
        return type.operations->decode_behind(decoder, type, identifier, element, out);
    return type.operations->decode_content(decoder, type, element, out);
}

// Decodes a whole value, or the content of one, into an arena of its own that holds a copy of the octets.
Result decode_root(Decoder &decoder, const Type &type, Value *&out);
Result decode_root_content(Decoder &decoder, const Type &type, const Element &element, Value *&out);

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
inline Result check_source_and_place(Decoder &decoder, Site site) {
    if (!decoder.has_source_and_place())
        return decoder.fail(site, code::null_argument);
    return success;
}
// The first checks of those whose content is primitive and of definite length.
inline Result check_primitive(Decoder &decoder, Site site, const Element &element) {
    if (const Result result = check_source_and_place(decoder, site); result != success)
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
