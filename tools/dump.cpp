// `dump`: the tree of any BER or DER, one line for each element, in one pass.

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "command.hpp"
#include "element.hpp"
#include "kovra/asn1.h"
#include "kovra/util.h"
#include "oid_names.hpp"

namespace kovra::tool {

namespace {

// Deeper elements are indented no further: the depth stands in front of the tag instead.
constexpr size_t deepest_indent = 32;
constexpr size_t longest_hex = 32;
constexpr size_t longest_text = 256;

constexpr const char *universal_names[] = {
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
    "reserved",
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
};

class Dumper {
public:
    Dumper(std::string_view octets, bool colored, Output &out)
        : octets_(reinterpret_cast<const uint8_t *>(octets.data())), size_(octets.size()), colored_(colored),
          out_(out) {}

    // Prints all elements; the fault, with `position` where it is, if there is one.
    Fault run(size_t &position) {
        OpenElements open(size_);
        while (position < size_ && !out_.is_closed()) {
            Header header;
            if (const Fault fault = read_header(octets_, position, open.limit(), header); fault != nullptr)
                return fault;
            if (header.is_end_of_contents() && !open.is_indefinite())
                return "end-of-contents where a value should stand";
            const size_t content = position + header.size;
            if (header.is_end_of_contents())
                open.leave();
            line_begin(position, header, open.depth());
            position = content;
            if (header.is_end_of_contents()) {
                out_.put('\n');
            } else if (header.is_constructed || header.is_indefinite) {
                out_.put('\n');
                open.enter(header, content);
            } else if (size_t hidden = 0; hides_element(header, content, hidden)) {
                // The content is looked into as if it stood there by itself.
                out_.put(header.tag == 3 ? " (encapsulates, 0 unused bits)\n" : " (encapsulates)\n");
                Header inside = header;
                inside.length -= hidden;
                open.enter(inside, content + hidden);
                position += hidden;
            } else {
                value(header, content);
                out_.put('\n');
                position += header.length;
            }
            while (open.ends_at(position))
                open.leave();
        }
        return open.depth() != 0 && !out_.is_closed() ? "the octets end within an element" : nullptr;
    }

private:
    void color(const char *code) {
        if (colored_)
            out_.put(code);
    }

    void number(size_t value, size_t width) {
        char digits[24];
        size_t begin = sizeof digits;
        do
            digits[--begin] = static_cast<char>('0' + value % 10);
        while ((value /= 10) != 0);
        const size_t count = sizeof digits - begin;
        if (count < width)
            out_.pad(width - count);
        out_.put(std::string_view(digits + begin, count));
    }

    // Offset, header length, length, tag.
    void line_begin(size_t position, const Header &header, size_t depth) {
        number(position, 8);
        number(header.size, 3);
        if (header.is_indefinite)
            out_.put("    indef");
        else
            number(header.length, 9);
        out_.pad(2 + 2 * (depth < deepest_indent ? depth : deepest_indent));
        if (depth > deepest_indent) {
            out_.put('<');
            number(depth, 0);
            out_.put("> ");
        }
        color("\x1b[36m");
        if (header.tag_class == 0) {
            out_.put(universal_names[header.tag]);
        } else {
            out_.put(header.tag_class == 0x40 ? "[APPLICATION " : header.tag_class == 0xC0 ? "[PRIVATE " : "[");
            number(header.tag, 0);
            out_.put(']');
        }
        color("\x1b[0m");
        if (header.is_constructed && !(header.tag_class == 0 && (header.tag == 16 || header.tag == 17)))
            out_.put(" cons");
    }

    // Is the content of an OCTET STRING, or of a BIT STRING behind its first octet, just one element?
    bool hides_element(const Header &header, size_t content, size_t &hidden) const {
        hidden = header.is_universal(3) ? 1 : 0;
        if (!header.is_universal(3) && !header.is_universal(4))
            return false;
        if (header.length < hidden + 2 || (hidden == 1 && octets_[content] != 0))
            return false;
        // Random octets pass for short primitives too easily in signatures and keys.
        const size_t begin = content + hidden;
        if (hidden == 1 && octets_[begin] != 0x30)
            return false;
        return is_one_element(octets_, begin, content + header.length);
    }

    void value(const Header &header, size_t content) {
        const std::span<const uint8_t> octets(octets_ + content, header.length);
        if (header.tag_class != 0) {
            raw_or_text(octets);
            return;
        }
        switch (header.tag) {
        case 1:
            if (octets.size() == 1) {
                out_.put(octets[0] == 0 ? " FALSE" : octets[0] == 0xFF ? " TRUE" : " TRUE (not DER)");
                return;
            }
            break;
        case 2:
        case 10:
            integer(octets);
            return;
        case 3:
            bit_string(octets);
            return;
        case 5:
            return;
        case 6:
        case 13:
            object_identifier(header, content);
            return;
        case 12:
            text(octets);
            return;
        case 18:
        case 19:
        case 20:
        case 21:
        case 22:
        case 25:
        case 26:
        case 27:
            text(octets);
            return;
        case 23:
        case 24:
            time(header, content);
            return;
        case 28:
        case 30:
            wide_text(header.tag, octets);
            return;
        default:
            break;
        }
        hex(octets);
    }

    void hex(std::span<const uint8_t> octets) {
        if (octets.empty())
            return;
        out_.put(' ');
        out_.put_hex(octets.first(octets.size() < longest_hex ? octets.size() : longest_hex));
        if (octets.size() > longest_hex) {
            out_.put("... (");
            number(octets.size(), 0);
            out_.put(" octets)");
        }
    }

    void integer(std::span<const uint8_t> octets) {
        if (octets.empty() || octets.size() > 8) {
            hex(octets);
            return;
        }
        uint64_t value = octets[0] >= 0x80 ? UINT64_MAX : 0;
        for (const uint8_t octet : octets)
            value = value << 8 | octet;
        out_.put(' ');
        if (octets[0] >= 0x80) {
            out_.put('-');
            value = 0 - value;
        }
        char digits[24];
        std::snprintf(digits, sizeof digits, "%llu", static_cast<unsigned long long>(value));
        out_.put(digits);
    }

    void bit_string(std::span<const uint8_t> octets) {
        if (octets.empty() || octets[0] > 7) {
            hex(octets);
            return;
        }
        out_.put(" (");
        number((octets.size() - 1) * 8 - (octets.size() > 1 ? octets[0] : 0), 0);
        out_.put(" bits)");
        hex(octets.subspan(1));
    }

    void object_identifier(const Header &header, size_t content) {
        const size_t begin = content - header.size;
        kovra_asn1_value *oid = nullptr;
        const uint32_t type = header.tag == 6 ? KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER : KOVRA_ASN1_TYPE_RELATIVE_OID;
        const auto length = static_cast<int32_t>(header.size + header.length);
        if (kovra_asn1_mem_decode(octets_ + begin, length, type, &oid) != length) {
            hex({octets_ + content, header.length});
            return;
        }
        const char *dotted = kovra_asn1_oid_getstring(oid);
        out_.put(' ');
        out_.put(dotted != nullptr ? dotted : "?");
        if (const std::string_view name = header.tag == 6 && dotted != nullptr ? oid_name(dotted) : ""; !name.empty()) {
            color("\x1b[33m");
            out_.put(" (");
            out_.put(name);
            out_.put(')');
            color("\x1b[0m");
        }
        kovra_asn1_value_free(type, oid);
    }

    // Well-formed UTF-8 as it is; what a terminal might take for a command, and everything else, escaped.
    void text(std::span<const uint8_t> octets) {
        color("\x1b[32m");
        out_.put(" \"");
        const size_t shown = octets.size() < longest_text ? octets.size() : longest_text;
        for (size_t i = 0; i < shown;) {
            const uint8_t octet = octets[i];
            size_t size = octet < 0x80 ? 1 : octet >= 0xF0 ? 4 : octet >= 0xE0 ? 3 : 2;
            if (octet >= 0x20 && octet < 0x7F && octet != '"' && octet != '\\') {
                out_.put(static_cast<char>(octet));
            } else if (octet >= 0xC2 && size <= octets.size() - i && is_printable(octets.subspan(i, size))) {
                out_.put(std::string_view(reinterpret_cast<const char *>(octets.data() + i), size));
            } else {
                static constexpr char digits[] = "0123456789abcdef";
                const char escaped[] = {'\\', 'x', digits[octet >> 4], digits[octet & 0x0F]};
                if (octet == '"' || octet == '\\') {
                    out_.put('\\');
                    out_.put(static_cast<char>(octet));
                } else {
                    out_.put(std::string_view(escaped, sizeof escaped));
                }
                size = 1;
            }
            i += size;
        }
        out_.put('"');
        color("\x1b[0m");
        if (octets.size() > shown) {
            out_.put("... (");
            number(octets.size(), 0);
            out_.put(" octets)");
        }
    }

    // One character beyond ASCII that is neither ill-formed nor a control character (U+0080 to U+009F) nor one that
    // changes the direction of what follows.
    static bool is_printable(std::span<const uint8_t> character) {
        kovra_ustring *string = kovra_ustring_newutf8(character.data(), static_cast<int32_t>(character.size()));
        kovra_ustring_free(string);
        if (string == nullptr)
            return false;
        const bool is_control = character[0] == 0xC2 && character[1] < 0xA0;
        const bool is_directional =
            character[0] == 0xE2 && ((character[1] == 0x80 && character[2] >= 0xA8 && character[2] <= 0xAE) ||
                                     (character[1] == 0x81 && character[2] >= 0xA6 && character[2] <= 0xA9));
        return !is_control && !is_directional;
    }

    void wide_text(uint32_t tag, std::span<const uint8_t> octets) {
        kovra_ustring *string = tag == 28
                                    ? kovra_ustring_newutf32be(octets.data(), static_cast<int32_t>(octets.size()))
                                    : kovra_ustring_newutf16be(octets.data(), static_cast<int32_t>(octets.size()));
        kovra_data_blob *utf8 = kovra_ustring_toutf8(string);
        if (utf8 != nullptr)
            text({kovra_data_blob_getdata(utf8), static_cast<size_t>(kovra_data_blob_getlength(utf8))});
        else
            hex(octets);
        kovra_data_blob_free(utf8);
        kovra_ustring_free(string);
    }

    void time(const Header &header, size_t content) {
        text({octets_ + content, header.length});
        if (int fields[6]; read_plain_time(header, octets_ + content, fields)) {
            readable_time(fields);
            return;
        }
        kovra_asn1_value *value = nullptr;
        const auto length = static_cast<int32_t>(header.size + header.length);
        if (kovra_asn1_mem_decode(octets_ + content - header.size, length, KOVRA_ASN1_TYPE_TIME, &value) != length) {
            out_.put(" (not a time)");
            return;
        }
        kovra_time *time = kovra_asn1_time_getutctime(value);
        char readable[64];
        std::snprintf(readable, sizeof readable, " (%04d-%02d-%02d %02d:%02d:%02d %s)", kovra_time_getyear(time),
                      kovra_time_getmonth(time), kovra_time_getday(time), kovra_time_gethour(time),
                      kovra_time_getminute(time), kovra_time_getsecond(time),
                      kovra_time_isutctime(time) == 1 ? "UTC" : "local");
        out_.put(readable);
        kovra_time_free(time);
        kovra_asn1_value_free(KOVRA_ASN1_TYPE_TIME, value);
    }

    void readable_time(const int (&fields)[6]) {
        char readable[] = " (0000-00-00 00:00:00 UTC)";
        const auto put_two = [&](size_t at, int number) {
            readable[at] = static_cast<char>('0' + number / 10);
            readable[at + 1] = static_cast<char>('0' + number % 10);
        };
        put_two(2, fields[0] / 100);
        put_two(4, fields[0] % 100);
        for (size_t i = 1; i < 6; ++i)
            put_two(4 + 3 * i, fields[i]);
        out_.put(std::string_view(readable, sizeof readable - 1));
    }

    // A primitive of another class may be text or anything.
    void raw_or_text(std::span<const uint8_t> octets) {
        bool is_text = !octets.empty();
        for (const uint8_t octet : octets)
            is_text = is_text && octet >= 0x20 && octet < 0x7F;
        if (is_text)
            text(octets);
        else
            hex(octets);
    }

    const uint8_t *octets_;
    size_t size_;
    bool colored_;
    Output &out_;
};

} // namespace

Status dump(const Options &options, Output &out) {
    const bool colored = options.color == "always" ||
                         (options.color == "auto" && out.is_terminal() && std::getenv("NO_COLOR") == nullptr);
    return for_each_item(options, [&](const Item &item, std::string_view file, size_t number, size_t count) {
        if (count > 1 || options.files.size() > 1) {
            out.put("# ");
            out.put(file);
            out.put('[');
            out.put(std::to_string(number));
            out.put("] ");
            out.put(item.label);
            out.put('\n');
        }
        size_t position = 0;
        const Fault fault = Dumper(item.octets, colored, out).run(position);
        if (fault == nullptr)
            return Status::good;
        report(options, {file, count > 1 ? number : 0, position, fault});
        return Status::malformed;
    });
}

} // namespace kovra::tool
