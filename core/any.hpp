// One element of unknown type: its extent, and the open-type record that holds it.
#pragma once

#include <array>
#include <initializer_list>

#include "core/decoder.hpp"
#include "core/type.hpp"

namespace kovra::asn1 {

constexpr uint32_t tag_bits(std::initializer_list<int> tags) {
    uint32_t mask = 0;
    for (const int tag : tags)
        mask |= uint32_t{1} << tag;
    return mask;
}

// Universal tag numbers that may stand in either form, in primitive form only, in constructed form only.
inline constexpr uint32_t either_form = tag_bits({3, 4, 7, 12, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 30});
inline constexpr uint32_t primitive_tags = either_form | tag_bits({0, 1, 2, 5, 6, 9, 10, 13});
inline constexpr uint32_t constructed_tags = either_form | tag_bits({8, 11, 16, 17});

constexpr bool is_possible(const Identifier &identifier) {
    if (identifier.tag_class != Class::universal)
        return true;
    const uint32_t mask = identifier.form == Form::primitive ? primitive_tags : constructed_tags;
    return identifier.tag < 32 && (mask >> identifier.tag & 1) != 0;
}

// Is the octet an identifier that an element, other than an end-of-contents marker, can have?
inline constexpr auto begins_element = []() {
    std::array<bool, 256> table{};
    for (size_t octet = 1; octet < table.size(); ++octet)
        table[octet] = is_possible(identifier_of(static_cast<uint8_t>(octet)));
    return table;
}();

// What was read of an element: where its content stands behind its header, and what its header says.
struct Extent {
    uint32_t start;
    uint32_t content;
    Identifier identifier;
    int32_t length;
};

// Steps over one element whatever its type, checking that universal tags have a form they can have. Elements of
// indefinite length may nest without bound.
Result walk_element_with_care(Decoder &decoder, Extent &out);
inline Result walk_element(Decoder &decoder, Extent &out) {
    uint8_t octet = 0;
    uint32_t length = 0;
    const uint32_t start = decoder.position();
    if (decoder.header(octet, length)) {
        if (begins_element[octet]) {
            out = {start, decoder.position(), identifier_of(octet), static_cast<int32_t>(length)};
            decoder.step_over(length);
            return success;
        }
        decoder.rewind(start);
    }
    return walk_element_with_care(decoder, out);
}

// Makes a record the open-type value of an element whose content, with its end-of-contents, has so many octets.
inline void fill_any(Any &any, Arena &arena, const Extent &extent, uint32_t content_octets) {
    const bool is_marker = extent.identifier.is_end_of_contents();
    any.kind = Kind::any;
    any.measured = 0;
    any.arena = &arena;
    any.header = {nullptr, extent.start, is_marker ? 0 : extent.content - extent.start};
    any.content = {{nullptr, extent.content, content_octets}, nullptr, 0};
    any.tag = extent.identifier.tag;
    any.length = extent.length;
    any.tag_class = extent.identifier.tag_class;
    any.form = extent.identifier.form;
    any.end_of_contents = is_marker;
    any.segments_of = nullptr;
}

// Gives an element whose content is noted to be in a stream that stream; false when memory is short.
bool attach_stream(Any &any);

// The open-type record of an element that was just walked over; null when memory is short.
inline Any *new_any(Decoder &decoder, const Extent &extent) {
    Arena &arena = decoder.arena();
    auto *any = static_cast<Any *>(arena.allocate(sizeof(Any)));
    if (any == nullptr)
        return nullptr;
    fill_any(*any, arena, extent, decoder.position() - extent.content);
    return arena.stream_contents == nullptr || attach_stream(*any) ? any : nullptr;
}

} // namespace kovra::asn1
