#include "value_text.hpp"

#include <algorithm>
#include <array>
#include <charconv>

#include "characters.hpp"
#include "kovra/asn1.h"
#include "oid_names.hpp"
#include "tool_handles.hpp"

namespace kovra::tool {

namespace {

constexpr std::array<Harmless, 37> names = {
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
    "",
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
        case 30:
            return wide_text();
        default:
            return hex(content_, length_);
        }
    }

private:
    void boolean() {
        out_.put(content_[0] == 0 ? Harmless(" FALSE") : content_[0] == 0xFF ? Harmless(" TRUE") : " TRUE (not FF)");
    }

    void integer() {
        const bool is_negative = content_[0] >= 0x80;
        uint64_t number = is_negative ? UINT64_MAX : 0;
        for (size_t i = 0; i < length_; ++i)
            number = number << 8 | content_[i];
        out_.put(is_negative ? Harmless(" -") : " ");
        out_.put_number(is_negative ? 0 - number : number);
    }

    void bits() {
        if (content_[0] != 0) {
            out_.put(" (unused bits: ");
            out_.put_number(content_[0]);
            out_.put(")");
        }
        hex(content_ + 1, length_ - 1);
    }

    void hex(const uint8_t *octets, size_t length, Harmless prefix = {}) {
        const size_t shown = style_.is_full ? length : std::min(length, shown_octets);
        if (length != 0) {
            out_.put(" ");
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
        out_.put(" ");
        out_.put(Outside(text));
        const Harmless name = header_.tag == 6 ? oid_name(text) : Harmless();
        if (name.empty())
            return;
        out_.put(style_.is_colored ? Harmless(" \x1b[32m") : " ");
        out_.put(name);
        if (style_.is_colored)
            out_.put("\x1b[0m");
    }

    void text(const uint8_t *octets, size_t length) {
        out_.put(" \"");
        const std::string_view all(reinterpret_cast<const char *>(octets), length);
        const size_t printed = out_.put(Outside(all, Form::quoted, style_.is_full ? Outside::all : shown_text));
        out_.put("\"");
        cut(std::min(printed, length), length);
    }

    // Of BMPString and UniversalString.
    void wide_text() {
        std::string utf8;
        if (to_utf8(header_.tag, content_, length_, utf8))
            return text(reinterpret_cast<const uint8_t *>(utf8.data()), utf8.size());
        hex(content_, length_);
        out_.put(" (not characters)");
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
        char text[24];
        char *out = text;
        *out++ = ' ';
        if (header_.tag == 23)
            out = std::copy_n(content_[0] < '5' ? "20" : "19", 2, out);
        out = std::copy(content_, rest, out);
        for (size_t i = 0; i < 5; ++i) {
            *out++ = "-- ::"[i];
            out = std::copy_n(rest + 2 * i, 2, out);
        }
        out = std::copy_n(" UTC", 4, out);
        out_.put(Outside({text, static_cast<size_t>(out - text)}));
        return true;
    }

    void time() {
        if (plain_time())
            return;
        const auto size = library_size(size_t{header_.size} + header_.length);
        Value value(KOVRA_ASN1_TYPE_TIME);
        Time time;
        if (size > 0 && kovra_asn1_mem_decode(element_, size, KOVRA_ASN1_TYPE_TIME, value.place()) == size)
            time.reset(kovra_asn1_time_getutctime(value.get()));
        if (time == nullptr) {
            text(content_, length_);
            out_.put(" (not a time)");
        } else {
            out_.put(" ");
            put_time(out_, *time);
        }
    }

    Output &out_;
    const Header &header_;
    const uint8_t *element_;
    const uint8_t *content_;
    size_t length_;
    ValueStyle style_;
};

} // namespace

Harmless universal_name(uint32_t tag) {
    return tag < names.size() ? names[tag] : Harmless();
}

void put_value(Output &out, const Header &header, const uint8_t *element, ValueStyle style) {
    ValuePrinter(out, header, element, style).run();
}

void put_time(Output &out, const kovra_time &time) {
    const struct {
        Harmless before;
        int32_t number;
    } parts[] = {{"", kovra_time_getyear(&time)},    {"-", kovra_time_getmonth(&time)},
                 {"-", kovra_time_getday(&time)},    {" ", kovra_time_gethour(&time)},
                 {":", kovra_time_getminute(&time)}, {":", kovra_time_getsecond(&time)}};
    for (const auto &[before, number] : parts) {
        out.put(before);
        if (number < 10)
            out.put("0");
        out.put_number(static_cast<uint64_t>(number));
    }
    if (int32_t fraction = kovra_time_getns(&time); fraction != 0) {
        out.put(".");
        for (int32_t unit = 100000000; fraction != 0; fraction %= unit, unit /= 10)
            out.put_number(static_cast<uint64_t>(fraction / unit));
    }
    out.put(kovra_time_isutctime(&time) == 1 ? Harmless(" UTC") : " local");
}

} // namespace kovra::tool
