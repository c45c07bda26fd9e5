#include "value_text.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <memory>

#include "kovra/asn1.h"
#include "kovra/util.h"
#include "oid_names.hpp"

namespace kovra::tool {

namespace {

constexpr std::array<const char *, 37> names = {
    "end-of-contents",
    "BOOLEAN",
    "INTEGER",
    "BIT STRING",
    "OCTET STRING",
    "NULL",
    "OBJECT IDENTIFIER",
    "ObjectDescriptor",
    "EXTERNAL",
    "REAL",
    "ENUMERATED",
    "EMBEDDED PDV",
    "UTF8String",
    "RELATIVE-OID",
    "TIME",
    nullptr,
    "SEQUENCE",
    "SET",
    "NumericString",
    "PrintableString",
    "TeletexString",
    "VideotexString",
    "IA5String",
    "UTCTime",
    "GeneralizedTime",
    "GraphicString",
    "VisibleString",
    "GeneralString",
    "UniversalString",
    "CHARACTER STRING",
    "BMPString",
    "DATE",
    "TIME-OF-DAY",
    "DATE-TIME",
    "DURATION",
    "OID-IRI",
    "RELATIVE-OID-IRI",
};

// The octets that are shown of a long value.
constexpr size_t shown_octets = 48;
constexpr size_t shown_text = 128;

class ValuePrinter {
public:
    ValuePrinter(Output &out, const Header &header, const uint8_t *element, ValueStyle style)
        : out_(out), header_(header), element_(element), content_(element + header.size), length_(header.length),
          style_(style) {}

    void run() {
        if (!header_.is_universal())
            return text_or_hex(1);
        switch (header_.tag) {
        case 1:
            return length_ == 1 ? boolean() : hex(content_, length_);
        case 2:
        case 10:
            return length_ - 1 < sizeof(uint64_t) ? integer() : hex(content_, length_, "0x");
        case 3:
            return length_ != 0 && content_[0] < 8 ? bits() : hex(content_, length_);
        case 4:
            return text_or_hex(4);
        case 6:
        case 13:
            return oid();
        case 7:
        case 12:
        case 18:
        case 19:
        case 20:
        case 21:
        case 22:
        case 25:
        case 26:
        case 27:
        case 14:
        case 31:
        case 32:
        case 33:
        case 34:
        case 35:
            return text(content_, length_);
        case 23:
        case 24:
            return time();
        case 28:
            return wide_text(kovra_ustring_newutf32be(content_, static_cast<int32_t>(length_)));
        case 30:
            return wide_text(kovra_ustring_newutf16be(content_, static_cast<int32_t>(length_)));
        default:
            return hex(content_, length_);
        }
    }

private:
    void boolean() { out_.put(content_[0] == 0 ? " FALSE" : content_[0] == 0xFF ? " TRUE" : " TRUE (not FF)"); }

    void integer() {
        const bool is_negative = content_[0] >= 0x80;
        uint64_t number = is_negative ? UINT64_MAX : 0;
        for (size_t i = 0; i < length_; ++i)
            number = number << 8 | content_[i];
        out_.put(is_negative ? " -" : " ");
        out_.put_number(is_negative ? 0 - number : number);
    }

    void bits() {
        if (content_[0] != 0) {
            out_.put(" (unused bits: ");
            out_.put_number(content_[0]);
            out_.put(')');
        }
        hex(content_ + 1, length_ - 1);
    }

    void hex(const uint8_t *octets, size_t length, std::string_view prefix = "") {
        const size_t shown = style_.is_full ? length : std::min(length, shown_octets);
        if (length != 0) {
            out_.put(' ');
            out_.put(prefix);
        }
        out_.put_hex(octets, shown);
        cut(shown, length);
    }

    void cut(size_t shown, size_t length) {
        if (shown == length)
            return;
        out_.put("... (");
        out_.put_number(length);
        out_.put(" octets)");
    }

    // Octets of no known kind are shown as text when they look like it: `least` of them or more.
    void text_or_hex(size_t least) {
        const bool is_text =
            length_ >= least && std::all_of(content_, content_ + length_, [](uint8_t octet) {
                return (octet >= 0x20 && octet < 0x7F) || octet == '\n' || octet == '\r' || octet == '\t';
            });
        return is_text ? text(content_, length_) : hex(content_, length_);
    }

    // Dotted text and, in it, the arcs that are complete; false where one is longer than 63 bits.
    bool dotted(std::string &out) const {
        uint64_t arc = 0;
        bool is_begun = false;
        for (size_t i = 0; i < length_; ++i) {
            if (arc >> 56 != 0 || (!is_begun && content_[i] == 0x80))
                return false;
            arc = arc << 7 | (content_[i] & 0x7FU);
            is_begun = content_[i] >= 0x80;
            if (is_begun)
                continue;
            if (out.empty() && header_.tag == 6) {
                const uint64_t root = arc < 40 ? 0 : arc < 80 ? 1 : 2;
                out += static_cast<char>('0' + root);
                arc -= root * 40;
            }
            if (!out.empty())
                out += '.';
            char digits[20];
            out.append(digits, std::to_chars(digits, digits + sizeof digits, arc).ptr);
            arc = 0;
        }
        return !is_begun && length_ != 0;
    }

    void oid() {
        std::string text;
        constexpr size_t longest = 4096;
        if (length_ > longest || !dotted(text)) {
            hex(content_, length_);
            return out_.put(" (not an object identifier)");
        }
        out_.put(' ');
        out_.put(text);
        const std::string_view name = header_.tag == 6 ? oid_name(text) : std::string_view();
        if (name.empty())
            return;
        out_.put(style_.is_colored ? " \x1b[32m" : " ");
        out_.put(name);
        if (style_.is_colored)
            out_.put("\x1b[0m");
    }

    // A character that is neither a control character nor one that a terminal acts on.
    static bool is_harmless(uint32_t character) {
        const bool is_control = character < 0x20 || (character >= 0x7F && character < 0xA0);
        const bool is_direction = character == 0x061C || (character >= 0x200B && character <= 0x200F) ||
                                  (character >= 0x2028 && character <= 0x202E) ||
                                  (character >= 0x2060 && character <= 0x206F) || character == 0xFEFF;
        return !is_control && !is_direction && character < 0xE0000;
    }

    // The octets of the well-formed character that begins here, which is stored; 0 when none does.
    static size_t character_at(const uint8_t *octets, size_t length, uint32_t &character) {
        const uint8_t lead = octets[0];
        const size_t size = lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
        if (size == 0 || size > length)
            return 0;
        character = size == 1 ? lead : lead & (0xFFU >> (size + 1));
        for (size_t i = 1; i < size; ++i) {
            if ((octets[i] & 0xC0) != 0x80)
                return 0;
            character = character << 6 | (octets[i] & 0x3FU);
        }
        const bool is_overlong = (size == 3 && character < 0x800) || (size == 4 && character < 0x10000);
        const bool is_surrogate = character >= 0xD800 && character <= 0xDFFF;
        return is_overlong || is_surrogate || character > 0x10FFFF ? 0 : size;
    }

    void put_escaped(uint32_t number, bool is_character) {
        if (number == '"' || number == '\\') {
            const char escaped[] = {'\\', static_cast<char>(number)};
            return out_.put({escaped, 2});
        }
        const char *letter = number == '\n' ? "\\n" : number == '\r' ? "\\r" : number == '\t' ? "\\t" : nullptr;
        if (letter != nullptr)
            return out_.put(letter);
        const bool is_short = !is_character || number < 0x80;
        char digits[8];
        const auto *end = std::to_chars(digits, digits + sizeof digits, number, 16).ptr;
        out_.put(is_short ? (number < 0x10 ? "\\x0" : "\\x") : "\\u{");
        out_.put({digits, static_cast<size_t>(end - digits)});
        if (!is_short)
            out_.put('}');
    }

    void text(const uint8_t *octets, size_t length) {
        const size_t shown = style_.is_full ? length : std::min(length, shown_text);
        size_t at = 0;
        out_.put(" \"");
        while (at < shown) {
            size_t end = at;
            while (end < shown && octets[end] >= 0x20 && octets[end] < 0x7F && octets[end] != '"' &&
                   octets[end] != '\\')
                ++end;
            out_.put({reinterpret_cast<const char *>(octets) + at, end - at});
            at = end;
            if (at >= shown)
                break;
            uint32_t character = 0;
            const size_t size = character_at(octets + at, length - at, character);
            if (size == 0)
                put_escaped(octets[at], false);
            else if (size == 1 || !is_harmless(character))
                put_escaped(character, true);
            else
                out_.put({reinterpret_cast<const char *>(octets) + at, size});
            at += std::max<size_t>(size, 1);
        }
        out_.put('"');
        cut(std::min(at, length), length);
    }

    // Takes the string over, which is null for octets that are none.
    void wide_text(kovra_ustring *string) {
        kovra_data_blob *utf8 = kovra_ustring_toutf8(string);
        kovra_ustring_free(string);
        if (utf8 == nullptr) {
            hex(content_, length_);
            out_.put(" (not characters)");
        } else {
            text(kovra_data_blob_getdata(utf8), static_cast<size_t>(kovra_data_blob_getlength(utf8)));
        }
        kovra_data_blob_free(utf8);
    }

    // The form that DER prescribes, without asking the library: long lists are full of it.
    bool plain_time() {
        const size_t digits = header_.tag == 23 ? 12 : 14;
        const auto is_digit = [](uint8_t octet) { return octet >= '0' && octet <= '9'; };
        if (length_ != digits + 1 || content_[digits] != 'Z' || !std::all_of(content_, content_ + digits, is_digit))
            return false;
        const uint8_t *rest = content_ + digits - 10;
        const auto pair = [rest](size_t i) { return (rest[i] - '0') * 10 + (rest[i + 1] - '0'); };
        if (pair(0) < 1 || pair(0) > 12 || pair(2) < 1 || pair(2) > 28 || pair(4) > 23 || pair(6) > 59 || pair(8) > 59)
            return false;
        char *out = out_.room(32);
        *out++ = ' ';
        if (header_.tag == 23)
            out = std::copy_n(content_[0] < '5' ? "20" : "19", 2, out);
        out = std::copy(content_, rest, out);
        for (size_t i = 0; i < 5; ++i) {
            *out++ = "-- ::"[i];
            out = std::copy_n(rest + 2 * i, 2, out);
        }
        out_.used(std::copy_n(" UTC", 4, out));
        return true;
    }

    void time() {
        if (plain_time())
            return;
        const auto size = static_cast<int32_t>(header_.size + header_.length);
        kovra_asn1_value *value = nullptr;
        kovra_time *time = nullptr;
        if (kovra_asn1_mem_decode(element_, size, KOVRA_ASN1_TYPE_TIME, &value) == size)
            time = kovra_asn1_time_getutctime(value);
        if (time == nullptr) {
            text(content_, length_);
            out_.put(" (not a time)");
        } else {
            readable(*time);
        }
        kovra_time_free(time);
        kovra_asn1_value_free(KOVRA_ASN1_TYPE_TIME, value);
    }

    void readable(const kovra_time &time) {
        const struct {
            char before;
            int32_t number;
        } parts[] = {{' ', kovra_time_getyear(&time)},   {'-', kovra_time_getmonth(&time)},
                     {'-', kovra_time_getday(&time)},    {' ', kovra_time_gethour(&time)},
                     {':', kovra_time_getminute(&time)}, {':', kovra_time_getsecond(&time)}};
        for (const auto &[before, number] : parts) {
            out_.put(before);
            if (number < 10)
                out_.put('0');
            out_.put_number(static_cast<uint64_t>(number));
        }
        if (int32_t fraction = kovra_time_getns(&time); fraction != 0) {
            out_.put('.');
            for (int32_t unit = 100000000; fraction != 0; fraction %= unit, unit /= 10)
                out_.put(static_cast<char>('0' + fraction / unit));
        }
        out_.put(kovra_time_isutctime(&time) == 1 ? " UTC" : " local");
    }

    Output &out_;
    const Header &header_;
    const uint8_t *element_;
    const uint8_t *content_;
    size_t length_;
    ValueStyle style_;
};

} // namespace

const char *universal_name(uint32_t tag) {
    return tag < names.size() ? names[tag] : nullptr;
}

void put_value(Output &out, const Header &header, const uint8_t *element, ValueStyle style) {
    ValuePrinter(out, header, element, style).run();
}

} // namespace kovra::tool
