// Values of primitive elements for people to read.
#pragma once

#include <cstdint>

#include "element.hpp"
#include "kovra/util_time.h"
#include "output.hpp"

namespace kovra::tool {

struct ValueStyle {
    bool is_full = false;    // long values are not cut
    bool is_colored = false; // names of object identifiers
};

// The name of a universal tag; empty for one that has none.
Harmless universal_name(uint32_t tag);

// Prints the value of a primitive element: a blank, then the value; nothing for an empty one without meaning. Text is
// quoted; in it control characters, those that turn the direction of writing, and octets that are not of the character
// set are escaped.
void put_value(Output &out, const Header &header, const uint8_t *element, ValueStyle style);

// Prints a time as 2024-02-29 23:59:59.12 UTC.
void put_time(Output &out, const kovra_time &time);

} // namespace kovra::tool
