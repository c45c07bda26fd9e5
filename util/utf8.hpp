// UTF-8 (RFC 3629), strictly: only the shortest form of scalar values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kovra::util {

inline bool is_scalar_value(uint32_t character) {
    return character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
}

// The octets of the well-formed character that begins at `at`, before `end`; 0 when none does.
inline size_t utf8_length_at(const uint8_t *at, const uint8_t *end) {
    const uint8_t lead = at[0];
    if (lead < 0x80)
        return 1;
    const size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || static_cast<size_t>(end - at) < length)
        return 0;
    for (size_t i = 1; i < length; ++i)
        if ((at[i] & 0xC0) != 0x80)
            return 0;
    const bool is_overlong = (lead == 0xE0 && at[1] < 0xA0) || (lead == 0xF0 && at[1] < 0x90);
    const bool is_no_scalar = (lead == 0xED && at[1] > 0x9F) || (lead == 0xF4 && at[1] > 0x8F);
    return is_overlong || is_no_scalar ? 0 : length;
}

// The character that well-formed octets are.
inline uint32_t utf8_character(const uint8_t *at, size_t length) {
    if (length == 1)
        return at[0];
    uint32_t character = at[0] & (0x7FU >> length);
    for (size_t i = 1; i < length; ++i)
        character = character << 6 | (at[i] & 0x3FU);
    return character;
}

inline size_t utf8_length_of(uint32_t character) {
    return character < 0x80 ? 1 : character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
}

// Writes a character and returns the place behind it.
inline uint8_t *put_utf8(uint8_t *out, uint32_t character) {
    const size_t length = utf8_length_of(character);
    if (length == 1) {
        *out = static_cast<uint8_t>(character);
        return out + 1;
    }
    for (size_t i = length - 1; i > 0; --i, character >>= 6)
        out[i] = static_cast<uint8_t>(0x80 | (character & 0x3F));
    out[0] = static_cast<uint8_t>((0xF00U >> length) | character);
    return out + length;
}

// Skips ASCII octets, eight at a time; up to seven may be left.
inline const uint8_t *skip_ascii(const uint8_t *at, const uint8_t *end) {
    uint64_t word = 0;
    while (static_cast<size_t>(end - at) >= sizeof word) {
        std::memcpy(&word, at, sizeof word);
        if ((word & 0x8080808080808080U) != 0)
            break;
        at += sizeof word;
    }
    return at;
}

} // namespace kovra::util
