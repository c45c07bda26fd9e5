#include "fuzz/ber_tree.hpp"

#include <algorithm>
#include <cstdint>

namespace kovra::fuzz {

namespace {

constexpr int deepest = 48;

// Takes elements from the front of the octets, up to an end-of-contents marker if there is to be one; false where
// octets are left that are no element.
bool take_elements(std::string_view &octets, bool is_indefinite, int depth, Nodes &out);

bool take_header(std::string_view &octets, Node &node) {
    size_t at = 1;
    if (octets.empty())
        return false;
    if ((octets[0] & 0x1F) == 0x1F) {
        while (at < octets.size() && at < 6 && (octets[at] & 0x80) != 0)
            ++at;
        ++at;
    }
    if (at >= octets.size())
        return false;
    node.identifier = octets.substr(0, at);
    const auto first = static_cast<uint8_t>(octets[at]);
    const size_t count = first > 0x80 ? first - 0x80U : 0;
    if (octets.size() - at - 1 < count)
        return false;
    node.length = octets.substr(at, 1 + count);
    octets.remove_prefix(at + 1 + count);
    return true;
}

// The length that was read; SIZE_MAX for one that is no length or too large.
size_t length_of(std::string_view length) {
    const auto first = static_cast<uint8_t>(length[0]);
    if (first < 0x80)
        return first;
    size_t result = 0;
    for (const char octet : length.substr(1)) {
        if (result >> 24 != 0)
            return SIZE_MAX;
        result = result << 8 | static_cast<uint8_t>(octet);
    }
    return first == 0x80 ? SIZE_MAX : result;
}

bool take_content(std::string_view &octets, int depth, Node &node) {
    const bool is_indefinite = node.length == "\x80";
    if (is_indefinite) {
        node.form = Node::Length::indefinite;
        return node.is_constructed() && depth < deepest && take_elements(octets, true, depth + 1, node.inside);
    }
    const size_t length = length_of(node.length);
    if (length > octets.size())
        return false;
    const size_t shortest = length_octets(length).size();
    if (node.length.size() > shortest) {
        node.form = Node::Length::padded;
        node.padding = node.length.size() - shortest;
    }
    std::string_view content = octets.substr(0, length);
    octets.remove_prefix(length);
    node.content = content;
    const bool is_bit_string = node.identifier == "\x03";
    if (is_bit_string && content.size() > 2 && content[0] == 0) {
        node.lead = content.substr(0, 1);
        content.remove_prefix(1);
    }
    const bool may_hold = node.is_constructed() || (node.identifier == "\x04" && length > 1) || !node.lead.empty();
    if (!may_hold || depth >= deepest)
        node.lead.clear();
    else if (take_elements(content, false, depth + 1, node.inside) || node.is_constructed())
        node.content.clear();
    else {
        node.inside.clear();
        node.lead.clear();
    }
    return true;
}

bool take_elements(std::string_view &octets, bool is_indefinite, int depth, Nodes &out) {
    while (!octets.empty()) {
        if (is_indefinite && octets.substr(0, 2) == std::string_view("\0\0", 2)) {
            octets.remove_prefix(2);
            return true;
        }
        std::string_view rest = octets;
        Node node;
        if (!take_header(rest, node) || !take_content(rest, depth, node)) {
            node = {};
            node.content = octets;
            octets = {};
            out.push_back(std::move(node));
            return false;
        }
        octets = rest;
        out.push_back(std::move(node));
    }
    return !is_indefinite;
}

} // namespace

std::string length_octets(size_t length) {
    if (length < 0x80)
        return {static_cast<char>(length)};
    std::string octets;
    for (; length != 0; length >>= 8)
        octets.insert(octets.begin(), static_cast<char>(length));
    octets.insert(octets.begin(), static_cast<char>(0x80 + octets.size()));
    return octets;
}

Nodes read_nodes(std::string_view octets) {
    Nodes nodes;
    take_elements(octets, false, 0, nodes);
    return nodes;
}

std::string write_node(const Node &node) {
    std::string content = node.lead + (node.inside.empty() ? node.content : write_nodes(node.inside));
    if (!node.is_element())
        return content;
    const std::string shortest = length_octets(content.size());
    switch (node.form) {
    case Node::Length::shortest:
        break;
    case Node::Length::padded: {
        const std::string digits = shortest.size() == 1 ? shortest : shortest.substr(1);
        const size_t count = std::min<size_t>(node.padding + shortest.size() - 1, 126);
        return node.identifier + static_cast<char>(0x80 + std::max(count, digits.size())) +
               std::string(std::max(count, digits.size()) - digits.size(), '\0') + digits + content;
    }
    case Node::Length::indefinite:
        return node.identifier + '\x80' + content + std::string(2, '\0');
    case Node::Length::given:
        return node.identifier + node.length + content;
    }
    return node.identifier + shortest + content;
}

std::string write_nodes(const Nodes &nodes) {
    std::string octets;
    for (const Node &node : nodes)
        octets += write_node(node);
    return octets;
}

} // namespace kovra::fuzz
