#include "text.hpp"

#include <algorithm>
#include <array>
#include <charconv>

#include "characters.hpp"

namespace kovra::tool {

namespace {

constexpr uint8_t bit(Form form) {
    return static_cast<uint8_t>(1U << static_cast<uint8_t>(form));
}

// The forms in which an octet is written as it is wherever it stands.
constexpr auto plain_in = []() {
    std::array<uint8_t, 256> of{};
    const auto all = static_cast<uint8_t>(bit(Form::plain) | bit(Form::quoted) | bit(Form::name) | bit(Form::json));
    for (size_t c = 0x20; c < 0x7F; ++c)
        of[c] = all;
    for (const char c : std::string_view("\"\\"))
        of[static_cast<uint8_t>(c)] = static_cast<uint8_t>(all & ~bit(Form::quoted));
    for (const char c : std::string_view(" #\"+,;<>\\"))
        of[static_cast<uint8_t>(c)] = static_cast<uint8_t>(of[static_cast<uint8_t>(c)] & ~bit(Form::name));
    return of;
}();

char *put_hex(char *out, uint32_t number, size_t digits) {
    for (size_t i = digits; i-- != 0;)
        *out++ = "0123456789abcdef"[number >> (4 * i) & 0x0F];
    return out;
}

// \u and four digits for each unit of UTF-16.
char *put_json(char *out, uint32_t code) {
    *out++ = '\\';
    *out++ = 'u';
    if (code < 0x10000)
        return put_hex(out, code, 4);
    out = put_hex(out, 0xD7C0 + (code >> 10), 4);
    *out++ = '\\';
    *out++ = 'u';
    return put_hex(out, 0xDC00 | (code & 0x3FF), 4);
}

// As in C; an octet that is no character is \x and two digits.
char *put_c(char *out, uint32_t code, bool is_octet) {
    const char letter = code == '\n'                  ? 'n'
                        : code == '\r'                ? 'r'
                        : code == '\t'                ? 't'
                        : code == '"' || code == '\\' ? static_cast<char>(code)
                                                      : '\0';
    *out++ = '\\';
    if (letter != '\0') {
        *out++ = letter;
        return out;
    }
    if (is_octet || code < 0x80) {
        *out++ = 'x';
        return put_hex(out, code, 2);
    }
    *out++ = 'u';
    *out++ = '{';
    out = std::to_chars(out, out + 6, code, 16).ptr;
    *out++ = '}';
    return out;
}

} // namespace

bool Pieces::next(Harmless &piece) {
    if (at_ >= text_.end_)
        return false;
    const uint8_t form = bit(text_.form_);
    const char *begin = text_.octets_.data() + at_;
    const char *end = text_.octets_.data() + text_.end_;
    const char *stop = begin;
    while (stop != end && (plain_in[static_cast<uint8_t>(*stop)] & form) != 0)
        ++stop;
    if (stop == begin) {
        const auto [code, size] =
            character_at(reinterpret_cast<const uint8_t *>(text_.octets_.data()) + at_, text_.octets_.size() - at_);
        piece = Harmless(escaped(code, size));
        at_ += std::max<size_t>(size, 1);
    } else {
        const auto size = static_cast<size_t>(stop - begin);
        piece = Harmless(text_.octets_.substr(at_, size));
        at_ += size;
    }
    return true;
}

// How the character is written that stands next, of `size` octets, 0 for an octet that is none.
std::string_view Pieces::escaped(uint32_t code, size_t size) {
    const std::string_view itself = text_.octets_.substr(at_, std::max<size_t>(size, 1));
    const auto octet = static_cast<uint8_t>(itself[0]);
    const bool is_edge = at_ == 0 || at_ + 1 == text_.octets_.size();
    if (size > 1 && is_harmless(code))
        return itself;
    char *out = escape_;
    if (text_.form_ == Form::json) {
        constexpr uint32_t replacement = 0xFFFD;
        out = put_json(out, size == 0 ? replacement : code);
    } else if (text_.form_ != Form::name) {
        out = put_c(out, size == 0 ? octet : code, size == 0);
    } else if (size == 1 && is_harmless(code)) {
        const bool is_inside = octet == ' ' ? !is_edge : octet == '#' && at_ != 0;
        if (is_inside)
            return itself;
        *out++ = '\\';
        *out++ = itself[0];
    } else {
        for (const char each : itself) {
            *out++ = '\\';
            out = put_hex(out, static_cast<uint8_t>(each), 2);
        }
    }
    return {escape_, static_cast<size_t>(out - escape_)};
}

Message &Message::operator+=(const Outside &text) {
    Pieces pieces(text);
    for (Harmless piece; pieces.next(piece);)
        text_ += piece.view();
    return *this;
}

Message decimal(uint64_t number) {
    char digits[20];
    const char *end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    return Message(Outside({digits, static_cast<size_t>(end - digits)}));
}

Message blanks(size_t count) {
    return Message(Outside(std::string(count, ' ')));
}

} // namespace kovra::tool
