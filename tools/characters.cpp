#include "characters.hpp"

#include "kovra/util.h"
#include "tool_handles.hpp"

namespace kovra::tool {

namespace {

// The text in UTF-8; it is freed. False for null, which the library gives for octets that are no characters.
bool take_utf8(kovra_ustring *text, std::string &out) {
    const Blob utf8(kovra_ustring_toutf8(text));
    kovra_ustring_free(text);
    if (utf8 == nullptr)
        return false;
    out = to_string(utf8.get());
    return true;
}

} // namespace

Character character_at(const uint8_t *octets, size_t length) {
    const uint8_t lead = octets[0];
    const size_t size = lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    if (size == 0 || size > length)
        return {};
    uint32_t code = size == 1 ? lead : lead & (0xFFU >> (size + 1));
    for (size_t i = 1; i < size; ++i) {
        if ((octets[i] & 0xC0) != 0x80)
            return {};
        code = code << 6 | (octets[i] & 0x3FU);
    }
    const bool is_overlong = (size == 3 && code < 0x800) || (size == 4 && code < 0x10000);
    const bool is_surrogate = code >= 0xD800 && code <= 0xDFFF;
    return is_overlong || is_surrogate || code > 0x10FFFF ? Character() : Character{code, size};
}

bool is_harmless(uint32_t code) {
    const bool is_control = code < 0x20 || (code >= 0x7F && code < 0xA0);
    const bool is_direction = code == 0x061C || (code >= 0x200B && code <= 0x200F) ||
                              (code >= 0x2028 && code <= 0x202E) || (code >= 0x2060 && code <= 0x206F) ||
                              code == 0xFEFF;
    return !is_control && !is_direction && code < 0xE0000;
}

bool to_utf8(uint32_t tag, const uint8_t *octets, size_t length, std::string &out) {
    constexpr uint32_t teletex_string = 20;
    constexpr uint32_t universal_string = 28;
    constexpr uint32_t bmp_string = 30;
    if (tag == universal_string)
        return take_utf8(kovra_ustring_newutf32be(octets, static_cast<int32_t>(length)), out);
    if (tag == bmp_string)
        return take_utf8(kovra_ustring_newutf16be(octets, static_cast<int32_t>(length)), out);
    out.clear();
    for (size_t i = 0; i < length; ++i) {
        const bool is_latin = tag == teletex_string && octets[i] >= 0x80;
        if (is_latin)
            out += static_cast<char>(0xC0 | octets[i] >> 6);
        out += static_cast<char>(is_latin ? 0x80 | (octets[i] & 0x3F) : octets[i]);
    }
    return true;
}

} // namespace kovra::tool
