#include "characters.hpp"

#include <algorithm>
#include <charconv>

#include "kovra/util.h"
#include "tool_handles.hpp"

namespace kovra::tool {

namespace {

void put_escaped(Output &out, uint32_t number, bool is_character) {
    if (number == '"' || number == '\\') {
        const char escaped[] = {'\\', static_cast<char>(number)};
        return out.put({escaped, 2});
    }
    const char *letter = number == '\n' ? "\\n" : number == '\r' ? "\\r" : number == '\t' ? "\\t" : nullptr;
    if (letter != nullptr)
        return out.put(letter);
    const bool is_short = !is_character || number < 0x80;
    char digits[8];
    const auto *end = std::to_chars(digits, digits + sizeof digits, number, 16).ptr;
    out.put(is_short ? (number < 0x10 ? "\\x0" : "\\x") : "\\u{");
    out.put({digits, static_cast<size_t>(end - digits)});
    if (!is_short)
        out.put('}');
}

// Takes the text over, which is null for octets that are none.
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

size_t put_text(Output &out, const uint8_t *octets, size_t length, size_t shown) {
    size_t at = 0;
    while (at < shown) {
        size_t end = at;
        while (end < shown && octets[end] >= 0x20 && octets[end] < 0x7F && octets[end] != '"' && octets[end] != '\\')
            ++end;
        out.put({reinterpret_cast<const char *>(octets) + at, end - at});
        at = end;
        if (at >= shown)
            break;
        const auto [code, size] = character_at(octets + at, length - at);
        if (size == 0)
            put_escaped(out, octets[at], false);
        else if (size == 1 || !is_harmless(code))
            put_escaped(out, code, true);
        else
            out.put({reinterpret_cast<const char *>(octets) + at, size});
        at += std::max<size_t>(size, 1);
    }
    return at;
}

void put_name_text(Output &out, std::string_view text) {
    const auto *octets = reinterpret_cast<const uint8_t *>(text.data());
    constexpr std::string_view special("\"+,;<>\\");
    for (size_t at = 0; at < text.size();) {
        const auto [code, size] = character_at(octets + at, text.size() - at);
        const size_t taken = std::max<size_t>(size, 1);
        const bool is_edge = (at == 0 && (code == ' ' || code == '#')) || (at + 1 == text.size() && code == ' ');
        if (size == 0 || !is_harmless(code)) {
            for (size_t i = at; i < at + taken; ++i) {
                out.put('\\');
                out.put_hex(octets + i, 1);
            }
        } else {
            if (is_edge || (size == 1 && special.find(text[at]) != std::string_view::npos))
                out.put('\\');
            out.put(text.substr(at, taken));
        }
        at += taken;
    }
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
