// Elements as a tree that can be changed and written again, well-formed or not: what the mutator works on.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kovra::fuzz {

struct Node {
    enum class Length {
        shortest,
        padded,     // with `padding` zeros in front
        indefinite, // with an end-of-contents marker
        given,      // the octets `length`, whatever the content
    };

    std::string identifier; // empty: octets that are no element, which are the content
    Length form = Length::shortest;
    size_t padding = 0;
    std::string length;  // as it was read
    std::string lead;    // octets of the content in front of the elements in it
    std::string content; // where there are no elements in it
    std::vector<Node> inside;

    [[nodiscard]] bool is_element() const { return !identifier.empty(); }
    [[nodiscard]] bool is_constructed() const { return is_element() && (identifier[0] & 0x20) != 0; }
};

using Nodes = std::vector<Node>;

// The elements that the octets are; what is no element is a node of its own. OCTET STRINGs and BIT STRINGs that hold
// nothing but elements are looked into. Elements nested deeper than some levels are content.
Nodes read_nodes(std::string_view octets);

std::string write_nodes(const Nodes &nodes);
std::string write_node(const Node &node);

// The fewest length octets.
std::string length_octets(size_t length);

} // namespace kovra::fuzz
