// The words of X.690: class, form, identifier and length octets.
#pragma once

#include <cstdint>

namespace kovra::asn1 {

enum class Class : uint8_t { universal = 0x00, application = 0x40, context = 0x80, private_use = 0xC0 };

// As the registry and the public functions number it; `either` stands in the registry only.
enum class Form : int8_t { either = -1, constructed = 0, primitive = 1 };

// A length is 0..0x7FFFFFFF, or one of these.
inline constexpr int32_t indefinite = -1;
inline constexpr int32_t unknown = -2;
inline constexpr int32_t max_length = 0x7FFFFFFF;

struct Identifier {
    Class tag_class = Class::universal;
    Form form = Form::primitive;
    int32_t tag = 0;

    [[nodiscard]] constexpr bool is_end_of_contents() const {
        return tag_class == Class::universal && form == Form::primitive && tag == 0;
    }
    [[nodiscard]] constexpr bool is(Class wanted_class, int32_t wanted_tag) const {
        return tag_class == wanted_class && tag == wanted_tag;
    }
};

// The identifier of one octet.
constexpr Identifier identifier_of(uint8_t octet) {
    return {static_cast<Class>(octet & 0xC0), (octet & 0x20) != 0 ? Form::constructed : Form::primitive, octet & 0x1F};
}

// Universal tag numbers that the code names.
namespace tag {
inline constexpr uint8_t boolean = 1;
inline constexpr uint8_t integer = 2;
inline constexpr uint8_t bit_string = 3;
inline constexpr uint8_t octet_string = 4;
inline constexpr uint8_t null = 5;
inline constexpr uint8_t sequence = 16;
inline constexpr uint8_t set = 17;
inline constexpr uint8_t utc_time = 23;
inline constexpr uint8_t generalized_time = 24;
} // namespace tag

// The longest identifier that an encoder writes: one octet and five base-128 digits; the longest length: five octets.
inline constexpr int32_t max_identifier_octets = 6;
inline constexpr int32_t max_length_octets = 5;

// Octets of the identifier of a tag number; `unknown` for a negative one.
constexpr int32_t identifier_length(int32_t tag) {
    if (tag < 0)
        return unknown;
    if (tag < 31)
        return 1;
    int32_t octets = 1;
    for (auto rest = static_cast<uint32_t>(tag); rest != 0; rest >>= 7)
        ++octets;
    return octets;
}

// Octets of the length field of a content length; `unknown` for a negative one other than indefinite.
constexpr int32_t length_length(int32_t length) {
    if (length == indefinite)
        return 1;
    if (length < 0)
        return unknown;
    if (length < 0x80)
        return 1;
    int32_t octets = 1;
    for (auto rest = static_cast<uint32_t>(length); rest != 0; rest >>= 8)
        ++octets;
    return octets;
}

// Writes the identifier octets and gives their number. The tag is not negative.
constexpr int32_t put_identifier(uint8_t *out, Class tag_class, Form form, int32_t tag) {
    const auto lead = static_cast<uint8_t>(static_cast<uint8_t>(tag_class) | (form == Form::constructed ? 0x20 : 0));
    if (tag < 31) {
        out[0] = static_cast<uint8_t>(lead | tag);
        return 1;
    }
    const int32_t total = identifier_length(tag);
    out[0] = lead | 0x1F;
    auto rest = static_cast<uint32_t>(tag);
    for (int32_t i = total - 1; i > 0; --i, rest >>= 7)
        out[i] = static_cast<uint8_t>((rest & 0x7F) | (i == total - 1 ? 0 : 0x80));
    return total;
}

// Writes the length octets and gives their number. The length is indefinite or not negative.
constexpr int32_t put_length(uint8_t *out, int32_t length) {
    if (length == indefinite) {
        out[0] = 0x80;
        return 1;
    }
    if (length < 0x80) {
        out[0] = static_cast<uint8_t>(length);
        return 1;
    }
    const int32_t total = length_length(length);
    out[0] = static_cast<uint8_t>(0x80 | (total - 1));
    auto rest = static_cast<uint32_t>(length);
    for (int32_t i = total - 1; i > 0; --i, rest >>= 8)
        out[i] = static_cast<uint8_t>(rest);
    return total;
}

} // namespace kovra::asn1
