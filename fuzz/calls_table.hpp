// Every exported function as a row: how it is called with arguments from the input, and how many octets that takes.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "fuzz/draw.hpp"
#include "tests/harness/exports.hpp"

namespace kovra::fuzz {

using test::Export;

class Machine;

struct Function {
    const test::Export *row;
    uint16_t selector; // comes from the name, so that inputs mean the same when functions are added

    [[nodiscard]] bool takes_one_handle() const;
    // Draws the arguments and calls.
    void call(Machine &machine, Draw &input) const;
    // Draws the arguments only.
    void skip(Draw &input) const;
};

// In the order of their selectors.
const std::vector<Function> &functions();

// The first function with this selector or a higher one, else the first of all.
const Function &function_of(uint16_t selector);

uint16_t selector_of(std::string_view name);

} // namespace kovra::fuzz
