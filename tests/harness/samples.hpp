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

// A list that a value of a type can hold without another list around it, and the way there: components and alternatives
// by their numbers.
struct HeldList {
    const core::Type *holder;
    const core::Type *list;
    const core::Type *kept; // the last on the way that keeps its octets or is signed; null: none
    std::vector<uint8_t> way;
    std::string name;

    // A holder of this list.
    [[nodiscard]] std::string in_holder(const std::string &encoding) const;
    // The list of a holder; null when it has none.
    [[nodiscard]] const core::Value *of(const core::Value *value) const;
};

// One way to each list, and one more for each type that is the last to keep its octets on the way. A list holds itself.
std::vector<HeldList> lists_in(const core::Type &type);

// What a list is made of: the type of the elements, a value of it, and whether there need be any.
const core::Type &member_of(const core::Type &list);
std::string minimal_member(const core::Type &list);
bool may_be_empty(const core::Type &list);

// Is everything in the type written as it is read? A few components are written under another tag, or not at all.
bool is_written_as_read(const core::Type &type);

// One component is counted under an explicit tag and written without what that would hold.
bool is_as_long_as_measured(const core::Type &type);

bool is_structure(const core::Type &type);
bool is_list(const core::Type &type);
bool is_choice(const core::Type &type); // of any kind: no content without the identifier before it

// An element of definite length.
std::string element(int identifier, const std::string &content);

// An element of indefinite length.
std::string open_element(int identifier, const std::string &content);

// Elements of one identifier around each other, of indefinite length, or with lengths of four octets.
std::string nested_open(char identifier, size_t depth, const std::string &innermost);
std::string nested_with_lengths(char identifier, size_t depth, const std::string &innermost);

} // namespace kovra::test
