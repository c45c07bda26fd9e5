#include "element.hpp"

namespace kovra::tool {

namespace {

constexpr uint32_t bit(int tag) {
    return uint32_t{1} << tag;
}
constexpr uint32_t either_form = bit(3) | bit(4) | bit(7) | bit(12) | 0x1FFC0000U /* 18-28 */ | bit(30);
constexpr uint32_t primitive_tags =
    either_form | bit(0) | bit(1) | bit(2) | bit(5) | bit(6) | bit(9) | bit(10) | bit(13);
constexpr uint32_t constructed_tags = either_form | bit(8) | bit(11) | bit(16) | bit(17);

constexpr Fault cut_off = "the octets end within an element";

} // namespace

Fault read_header(const uint8_t *octets, size_t offset, size_t end, Header &out) {
    size_t at = offset;
    const auto next = [&](uint8_t &octet) {
        if (at == end)
            return false;
        octet = octets[at++];
        return true;
    };
    uint8_t octet = 0;
    if (!next(octet))
        return cut_off;
    out.tag_class = octet & 0xC0;
    out.is_constructed = (octet & 0x20) != 0;
    out.is_indefinite = false;
    out.tag = octet & 0x1F;
    out.length = 0;
    if (out.tag == 0x1F) {
        uint32_t tag = 0;
        do {
            if (tag >= 0x1000000)
                return "the tag number is too large";
            if (!next(octet))
                return cut_off;
            tag = tag << 7 | (octet & 0x7F);
        } while ((octet & 0x80) != 0);
        if (tag < 31)
            return "a tag number below 31 in the long form";
        out.tag = tag;
    }
    if (out.tag_class == 0) {
        const uint32_t possible = out.is_constructed ? constructed_tags : primitive_tags;
        if (out.tag > 31 || (possible >> out.tag & 1) == 0)
            return "no universal type has this tag and form";
    }
    if (!next(octet))
        return cut_off;
    if (out.is_end_of_contents() && octet != 0)
        return "end-of-contents with a length";
    if (octet == 0x80) {
        out.is_indefinite = true;
    } else if (octet < 0x80) {
        out.length = octet;
    } else {
        if (octet == 0xFF)
            return "bad length octet";
        size_t length = 0;
        for (int count = octet & 0x7F; count > 0; --count) {
            if (length >= 0x800000)
                return "the length is too large";
            if (!next(octet))
                return cut_off;
            length = length << 8 | octet;
        }
        out.length = length;
    }
    out.size = at - offset;
    return !out.is_indefinite && out.length > end - at ? cut_off : nullptr;
}

Fault element_end(const uint8_t *octets, size_t offset, size_t end, size_t &out) {
    size_t open = 0;
    size_t at = offset;
    do {
        Header header;
        if (const Fault fault = read_header(octets, at, end, header); fault != nullptr)
            return fault;
        at += header.size + header.length;
        if (header.is_indefinite)
            ++open;
        else if (header.is_end_of_contents() && open != 0)
            --open;
    } while (open != 0);
    out = at;
    return nullptr;
}

bool is_one_element(const uint8_t *octets, size_t begin, size_t end) {
    OpenElements open(end);
    size_t at = begin;
    do {
        Header header;
        if (read_header(octets, at, open.limit(), header) != nullptr)
            return false;
        at += header.size;
        if (header.is_end_of_contents()) {
            if (!open.is_indefinite())
                return false;
            open.leave();
        } else if (header.is_constructed) {
            open.enter(header, at);
        } else if (header.is_indefinite) {
            return false;
        } else {
            at += header.length;
        }
        while (open.ends_at(at))
            open.leave();
    } while (open.depth() != 0);
    return at == end;
}

bool read_plain_time(const Header &header, const uint8_t *text, int (&fields)[6]) {
    if (!header.is_universal(23) || header.is_constructed || header.length != 13 || text[12] != 'Z')
        return false;
    for (int i = 0; i < 6; ++i) {
        const int tens = text[2 * i] - '0';
        const int ones = text[2 * i + 1] - '0';
        if (tens < 0 || tens > 9 || ones < 0 || ones > 9)
            return false;
        fields[i] = tens * 10 + ones;
    }
    auto &[year, month, day, hour, minute, second] = fields;
    year += year < 50 ? 2000 : 1900;
    return month >= 1 && month <= 12 && day >= 1 && day <= 28 && hour <= 23 && minute <= 59 && second <= 59;
}

} // namespace kovra::tool
