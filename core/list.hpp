// SEQUENCE OF and SET OF of any registered type.
#pragma once

#include "core/type.hpp"

namespace kovra::asn1 {

// How a list finds its elements.
enum class ListReading : uint8_t {
    tagged,     // each begins with the element type's own universal identifier; where one fails, the result is 0
    whole,      // each is decoded whole: its type tells alternatives apart by itself
    dispatched, // each identifier is looked at first, and one that begins no alternative is an incorrect item
    inlined,    // the same, but a failed element leaves the entries of its alternative only
};

struct ListShape {
    uint8_t element;
    ListReading reading = ListReading::tagged;
    // SIZE (1..MAX): the module that refuses an empty list; null: there is none.
    const char *nonempty = nullptr;
    // The module that entries of reading name.
    const char *source = "ASN1_List";
};

// The operations of lists, for types that have others beside them.
int32_t list_content_length(const Type &type, Value *value, Measure measure);
Result encode_list_content(Encoder &encoder, const Type &type, Value *value, int32_t length);
Result decode_list(Decoder &decoder, const Type &type, const Element &element, Value *&out);
size_t list_reserve(size_t octets);

// An empty list in the arena; null when memory is short.
List *new_list(Arena &arena);

// The element at an index, built if need be; null when the index is out of range or memory is short.
Value *list_element(List &list, uint32_t index);

// Appends a value that the list takes over; false when it cannot be taken over or memory is short.
bool list_append(List &list, Value *element);

// Puts the elements in ascending order of their encodings as `element` (X.690, 11.6). On failure nothing changes.
Result sort_list(List *list, const Type &element);

} // namespace kovra::asn1
