// Which type an element is of.
#pragma once

#include <cstdint>

#include "command.hpp"
#include "tool_handles.hpp"

namespace kovra::tool {

// What became of an element.
struct Detected {
    uint32_t type = 0;
    bool is_good = false;              // the element is exactly one encoding of the type
    kovra_asn1_value *value = nullptr; // the caller's, null for a type without record
};

// Decodes the element as the type that the options name. Without one it is decoded as what the label of its PEM block
// promises, else as the first type whose pattern it fits and that takes it, else as ANY. Where the label or a
// pattern that nothing else fits names a type that does not take the element, that type is told, not ANY.
Detected detect(const Item &item, const Options &options);

// Why the element is not of the type.
Trouble explain(const Item &item, uint32_t type);

} // namespace kovra::tool
