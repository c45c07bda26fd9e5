// Values of every type, made from the tables that the types are declared in: a new row has them without further ado.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/registry.hpp"

namespace kovra::test {

namespace core = kovra::asn1;

struct Sample {
    std::string what;
    std::string octets;
};

// A minimal value, a full one, one for each alternative that is chosen within it, and the forms that its leaves can
// have. Lists also come with so many elements that they are not built while they are decoded.
const std::vector<Sample> &samples(uint32_t type);

// The first of them, the same as what it is a value of.
const std::string &minimal_sample(uint32_t type);

// A structure with each combination of those of its components that may be absent.
struct Combination {
    uint32_t present; // a bit for each component
    std::string octets;
};
std::vector<Combination> combinations(uint32_t number);

// A minimal and a full value in which every open type is the given element; none where there is no open type.
std::vector<std::string> with_open_type(uint32_t type, const std::string &open);

// A value of each component of a structure, as constructors take it, no two alike where that can be; empty when the row
// is none.
std::vector<Sample> component_values(const core::Type &type);

// Is everything in the type written as it is read? A few components are written under another tag, or not at all.
bool is_written_as_read(const core::Type &type);

// One component is counted under an explicit tag and written without what that would hold.
bool is_as_long_as_measured(const core::Type &type);

bool is_structure(const core::Type &type);
bool is_list(const core::Type &type);
bool is_choice(const core::Type &type); // of any kind: no content without the identifier before it

// An element of definite length.
std::string element(int identifier, const std::string &content);

// Elements of one identifier around each other, with lengths of four octets.
std::string nested_with_lengths(char identifier, size_t depth, const std::string &innermost);

} // namespace kovra::test
