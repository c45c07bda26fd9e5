// Elements as a tree, a line for each, printed in one pass.
#pragma once

#include "command.hpp"

namespace kovra::tool {

struct TreeStyle {
    bool has_columns = true;  // offset, header length and length in front of each line
    size_t origin = 0;        // added to the offsets that are printed
    size_t indent = 2;        // blanks in front of the outermost tag
    size_t value_column = 33; // counted from behind the columns; deep elements have their values farther to the right
    bool is_full = false;
    bool is_colored = false;
};

// Prints the element from `begin` on, which has to end at `end` at the latest. Primitive strings of octets and bits
// that hold one element are entered like constructed ones. False where what follows is no element: `refusal` tells
// where.
bool put_tree(Output &out, const uint8_t *octets, size_t begin, size_t end, TreeStyle style, Refusal &refusal);

} // namespace kovra::tool
