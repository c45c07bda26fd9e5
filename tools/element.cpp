#include "element.hpp"

#include <initializer_list>

namespace kovra::tool {

namespace {

constexpr uint32_t bits(std::initializer_list<int> tags) {
    uint32_t mask = 0;
    for (const int tag : tags)
        mask |= uint32_t{1} << tag;
    return mask;
}
constexpr uint32_t either_form = bits({3, 4, 7, 12, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 30});
constexpr uint32_t primitive_tags = either_form | bits({0, 1, 2, 5, 6, 9, 10, 13});
constexpr uint32_t constructed_tags = either_form | bits({8, 11, 16, 17});

constexpr uint32_t largest = 0x7FFFFFFF;

// The octets of a tag number behind the first octet.
bool read_long_tag(const uint8_t *octets, size_t &at, size_t end, uint32_t &tag) {
    tag = 0;
    uint8_t octet = 0x80;
    while ((octet & 0x80) != 0) {
        if (at == end || tag > largest >> 7)
            return false;
        octet = octets[at++];
        tag = tag << 7 | (octet & 0x7FU);
    }
    return tag >= 31;
}

// The octets of a length behind the first.
bool read_long_length(const uint8_t *octets, size_t &at, size_t end, uint32_t &length) {
    const uint32_t count = octets[at - 1] & 0x7FU;
    if (count == 0x7F || count > end - at)
        return false;
    for (uint32_t i = 0; i < count; ++i) {
        if (length > largest >> 8)
            return false;
        length = length << 8 | octets[at++];
    }
    return true;
}

} // namespace

bool read_header(const uint8_t *octets, size_t position, size_t end, Header &out) {
    size_t at = position;
    if (end - at < 2)
        return false;
    out.lead = octets[at++];
    out.tag = out.lead & 0x1FU;
    if (out.tag == 0x1F && !read_long_tag(octets, at, end, out.tag))
        return false;
    if (at == end)
        return false;
    const uint8_t length = octets[at++];
    out.is_indefinite = length == 0x80;
    out.length = 0;
    if (length < 0x80)
        out.length = length;
    else if (length > 0x80 && !read_long_length(octets, at, end, out.length))
        return false;
    out.size = static_cast<uint32_t>(at - position);
    return out.length <= end - at && !(out.is_end_of_contents() && length != 0);
}

bool is_possible(const Header &header) {
    if (!header.is_universal())
        return true;
    const uint32_t mask = header.is_constructed() ? constructed_tags : primitive_tags;
    return header.tag < 32 && (mask >> header.tag & 1) != 0;
}

size_t element_end(const uint8_t *octets, size_t position, size_t end, Tags tags) {
    size_t open = 0;
    do {
        Header header;
        if (!read_header(octets, position, end, header) || (tags == Tags::possible && !is_possible(header)))
            return nowhere;
        position += size_t{header.size} + header.length;
        if (header.is_indefinite)
            ++open;
        else if (header.is_end_of_contents() && open != 0)
            --open;
    } while (open != 0);
    return position;
}

} // namespace kovra::tool
