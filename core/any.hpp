// One element of unknown type: its extent, and the open-type record that holds it.
#pragma once

#include "core/decoder.hpp"
#include "core/registry.hpp"

namespace kovra::asn1 {

// What was read of an element: where its content stands behind its header, and what its header says.
struct Extent {
    uint32_t start;
    uint32_t content;
    Identifier identifier;
    int32_t length;
};

// Steps over one element whatever its type, checking that universal tags have a form they can have. Elements of
// indefinite length may nest without bound.
Result walk_element(Decoder &decoder, Extent &out);

// The open-type record of an element that was just walked over; null when memory is short.
Any *new_any(Decoder &decoder, const Extent &extent);

} // namespace kovra::asn1
