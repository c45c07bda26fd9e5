// `json`: the description that kovra_asn1_tojson makes, printed while the octets are walked, without a tree.

#include <array>
#include <charconv>
#include <memory>

#include "base/thresholds.hpp"
#include "command.hpp"
#include "element.hpp"
#include "kovra/asn1.h"
#include "kovra/util.h"
#include "tool_handles.hpp"

namespace kovra::tool {

namespace {

constexpr uint32_t sequence = 16;
constexpr uint32_t set = 17;

// For a first walk, which finds out whether there is a description at all: half of one is never printed.
struct NoWriter {
    static constexpr bool prints = false;
};

class Writer {
public:
    static constexpr bool prints = true;

    Writer(Output &out, int32_t indent) : out_(out), indent_(static_cast<size_t>(indent)) {}

    [[nodiscard]] Output &out() { return out_; }
    [[nodiscard]] int32_t indent() const { return static_cast<int32_t>(indent_); }

    void begin_object() {
        out_.put("{");
        ++depth_;
    }
    void end_object() {
        --depth_;
        new_line();
        out_.put("}");
    }
    void begin_array() {
        out_.put("[");
        ++depth_;
    }
    void end_array(bool is_empty) {
        --depth_;
        if (!is_empty)
            new_line();
        out_.put("]");
    }
    // The name of a member, with its quotation marks.
    void first_name(Harmless quoted) {
        new_line();
        out_.put(quoted);
        out_.put(indent_ > 0 ? Harmless(": ") : ":");
    }
    void name(Harmless quoted) {
        out_.put(",");
        first_name(quoted);
    }
    void item(bool is_first) {
        if (!is_first)
            out_.put(",");
        new_line();
    }
    void type(Harmless quoted) {
        begin_object();
        first_name("\"type\"");
        out_.put(quoted);
    }
    void hex(const uint8_t *octets, size_t length) {
        out_.put("\"");
        out_.put_hex(octets, length);
        out_.put("\"");
    }
    // What the library printed with the same indent: its lines are moved to the level where they stand here.
    void printed(std::string_view text) {
        if (indent_ == 0)
            return text_of_json(text);
        for (size_t at = 0; at < text.size();) {
            size_t end = text.find('\n', at);
            if (end == std::string_view::npos)
                end = text.size();
            text_of_json(text.substr(at, end - at));
            if (end == text.size())
                return;
            at = text.find_first_not_of(' ', end + 1);
            const size_t level = (at - end - 1) / indent_;
            depth_ += level;
            new_line();
            depth_ -= level;
        }
    }

    // JSON may have characters in its strings that a terminal would act on; these are escaped.
    void text_of_json(std::string_view text) { out_.put(Outside(text, Form::json)); }

private:
    void new_line() {
        if (indent_ == 0)
            return;
        out_.put_line(indent_ * (depth_ < deepest_indent ? depth_ : deepest_indent));
    }

    // As the library prints: deeper levels are indented no further.
    static constexpr size_t deepest_indent = 64;

    Output &out_;
    size_t indent_;
    size_t depth_ = 0;
};

struct Free {
    void operator()(void *memory) const { kovra_free(memory); }
    void operator()(kovra_json *value) const { kovra_json_free(value); }
};

// The type of a universal tag that has a description of its own and no members; 0 for others.
constexpr auto leaf_types = []() {
    std::array<uint8_t, 32> of{};
    of[1] = KOVRA_ASN1_TYPE_BOOLEAN;
    of[2] = KOVRA_ASN1_TYPE_INTEGER;
    of[3] = KOVRA_ASN1_TYPE_BIT_STRING;
    of[4] = KOVRA_ASN1_TYPE_OCTET_STRING;
    of[5] = KOVRA_ASN1_TYPE_NULL;
    of[6] = KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER;
    of[10] = KOVRA_ASN1_TYPE_ENUMERATED;
    of[12] = KOVRA_ASN1_TYPE_UTF8_STRING;
    of[18] = KOVRA_ASN1_TYPE_NUMERIC_STRING;
    of[19] = KOVRA_ASN1_TYPE_PRINTABLE_STRING;
    of[20] = KOVRA_ASN1_TYPE_TELETEX_STRING;
    of[22] = KOVRA_ASN1_TYPE_IA5_STRING;
    of[23] = KOVRA_ASN1_TYPE_UTC_TIME;
    of[24] = KOVRA_ASN1_TYPE_GENERALIZED_TIME;
    of[26] = KOVRA_ASN1_TYPE_VISIBLE_STRING;
    of[28] = KOVRA_ASN1_TYPE_UNIVERSAL_STRING;
    of[30] = KOVRA_ASN1_TYPE_BMP_STRING;
    return of;
}();

// Can a string of the tag be printed between quotation marks without a change?
bool is_plain_text(const uint8_t *octets, size_t length, uint32_t tag) {
    constexpr auto plain = []() {
        // Bits: 1 for PrintableString, 2 for the others.
        std::array<uint8_t, 256> of{};
        for (uint8_t c = 0x20; c < 0x7F; ++c)
            of[c] = c == '"' || c == '\\' ? 0 : 2;
        for (const char c : std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                             "0123456789 '()+,-./:=?"))
            of[static_cast<uint8_t>(c)] |= 1;
        return of;
    }();
    constexpr uint32_t printable_string = 19;
    const uint8_t mask = tag == printable_string ? 1 : 2;
    uint8_t all = mask;
    for (size_t i = 0; i < length; ++i)
        all = static_cast<uint8_t>(all & plain[octets[i]]);
    return all != 0;
}

struct Moment {
    uint32_t year, month, day, hour, minute, second;
};

// A time as DER writes it, without a fraction.
bool read_plain_time(const uint8_t *text, size_t length, bool is_short, Moment &out) {
    const size_t digits = is_short ? 12 : 14;
    if (length != digits + 1 || text[digits] != 'Z')
        return false;
    uint32_t pairs[7] = {};
    for (size_t i = 0; i < digits; i += 2) {
        const uint32_t tens = text[i] - uint32_t{'0'};
        const uint32_t ones = text[i + 1] - uint32_t{'0'};
        if (tens > 9 || ones > 9)
            return false;
        pairs[i / 2] = tens * 10 + ones;
    }
    const uint32_t *rest = pairs + (is_short ? 1 : 2);
    out.year = is_short ? pairs[0] + (pairs[0] < 50 ? 2000 : 1900) : pairs[0] * 100 + pairs[1];
    out.month = rest[0];
    out.day = rest[1];
    out.hour = rest[2];
    out.minute = rest[3];
    out.second = rest[4];
    // The library decides about days from 29 on, second 60 and early years, which are rare.
    return out.year >= 1583 && out.month - 1 < 12 && out.day - 1 < 28 && out.hour < 24 && out.minute < 60 &&
           out.second < 60;
}

// One walk over the octets of an element.
template <class Printer> class Description {
public:
    Description(const Item &item, Printer &printer)
        : octets_(item.octets), at_(item.begin), end_(item.end), to_(printer) {}

    // False when the element has no description: refusal() and refused_type() tell where.
    bool run() {
        if (!element(end_))
            return false;
        while (!open_.empty()) {
            Frame &frame = open_.back();
            if (frame.is_indefinite && frame.limit - at_ >= 2 && octets_[at_] == 0 && octets_[at_ + 1] == 0) {
                at_ += 2;
                close();
                continue;
            }
            if (!frame.is_indefinite && at_ == frame.limit) {
                close();
                continue;
            }
            if constexpr (Printer::prints)
                if (!frame.is_tagged)
                    to_.item(frame.is_empty);
            frame.is_empty = false;
            if (!element(frame.limit))
                return false;
        }
        return at_ == end_ || refuse(at_, end_, KOVRA_ASN1_TYPE_ANY);
    }

    [[nodiscard]] Refusal refusal() const { return {octets_, refused_at_, refused_limit_}; }
    [[nodiscard]] uint32_t refused_type() const { return refused_type_; }

private:
    struct Frame {
        size_t limit; // of its members: its own end, or that of what it stands in
                      // when its length is indefinite
        bool is_indefinite;
        bool is_tagged; // has one member, which stands in no array
        bool is_empty;
    };

    bool refuse(size_t at, size_t limit, uint32_t type) {
        refused_at_ = at;
        refused_limit_ = limit;
        refused_type_ = type;
        return false;
    }

    bool element(size_t limit) {
        Header header;
        if (!read_header(octets_, at_, limit, header) || !is_possible(header) || header.is_end_of_contents())
            return refuse(at_, limit, KOVRA_ASN1_TYPE_ANY);
        if (!header.is_universal())
            return tagged(header, limit);
        if (header.tag == sequence || header.tag == set) {
            if constexpr (Printer::prints) {
                to_.type(header.tag == sequence ? Harmless("\"SEQUENCE\"") : "\"SETOF\"");
                to_.name("\"value\"");
                to_.begin_array();
            }
            enter(header, limit, false);
            return true;
        }
        const uint32_t type = header.tag < leaf_types.size() ? leaf_types[header.tag] : 0;
        if (type == 0)
            return whole("\"ANY\"", limit);
        if (!header.is_constructed() && !header.is_indefinite && plain(header)) {
            at_ += size_t{header.size} + header.length;
            return true;
        }
        return by_library(type, limit);
    }

    void enter(const Header &header, size_t limit, bool is_tagged) {
        at_ += header.size;
        open_.push_back({header.is_indefinite ? limit : at_ + header.length, header.is_indefinite, is_tagged, true});
    }

    void close() {
        const Frame frame = open_.back();
        open_.pop_back();
        if constexpr (Printer::prints) {
            if (!frame.is_tagged)
                to_.end_array(frame.is_empty);
            to_.end_object();
        }
    }

    // An explicit tag is a constructed one whose content is just one element.
    bool tagged(const Header &header, size_t limit) {
        const size_t content = at_ + header.size;
        const bool is_explicit =
            header.is_constructed() && !header.is_indefinite && header.length != 0 && octets_[content] != 0 &&
            element_end(octets_, content, content + header.length, Tags::possible) == content + header.length;
        if (!is_explicit)
            return whole("\"ANY\"", limit);
        if constexpr (Printer::prints) {
            constexpr Harmless classes[] = {"\"UNIVERSAL\"", "\"APPLICATION\"", "\"CONTEXT\"", "\"PRIVATE\""};
            to_.type("\"TAGGEDTYPE\"");
            to_.name("\"class\"");
            to_.out().put(classes[header.lead >> 6]);
            to_.name("\"number\"");
            to_.out().put_number(header.tag);
            to_.name("\"explicit\"");
            to_.out().put("true");
            to_.name("\"value\"");
        }
        enter(header, limit, true);
        return true;
    }

    // An element that is written as it stands.
    bool whole(Harmless type, size_t limit) {
        const size_t end = element_end(octets_, at_, limit, Tags::possible);
        if (end == nowhere)
            return refuse(at_, limit, KOVRA_ASN1_TYPE_ANY);
        if constexpr (Printer::prints) {
            to_.type(type);
            to_.name("\"hexencode\"");
            to_.hex(octets_ + at_, end - at_);
            to_.end_object();
        }
        at_ = end;
        return true;
    }

    // Prints what is simple and frequent; false, with nothing printed, for the rest, which the library describes.
    bool plain(const Header &header) {
        const uint8_t *content = octets_ + at_ + header.size;
        const size_t length = header.length;
        switch (header.tag) {
        case 2:
            return length != 0 && hex_value("\"INTEGER\"", content, length);
        case 10:
            return length != 0 && hex_value("\"ENUM\"", content, length);
        case 4:
            return hex_value("\"OCTETSTRING\"", content, length);
        case 3:
            return bits(content, length);
        case 5:
            return length == 0 && word_value("\"NULL\"", {});
        case 1:
            return length == 1 && word_value("\"BOOLEAN\"", content[0] != 0 ? Harmless("true") : "false");
        case 6:
            return oid(content, length);
        case 12:
            return plain_text("\"UTF8STRING\"", content, header);
        case 19:
            return plain_text("\"PRINTABLESTRING\"", content, header);
        case 22:
            return plain_text("\"IA5STRING\"", content, header);
        case 26:
            return plain_text("\"VISIBLESTRING\"", content, header);
        case 23:
            return time("\"UTCTIME\"", content, length, true);
        case 24:
            return time("\"GENTIME\"", content, length, false);
        default:
            return false;
        }
    }

    bool hex_value(Harmless type, const uint8_t *octets, size_t length) {
        if constexpr (Printer::prints) {
            to_.type(type);
            to_.name("\"value\"");
            to_.hex(octets, length);
            to_.end_object();
        }
        return true;
    }

    bool word_value(Harmless type, Harmless word) {
        if constexpr (Printer::prints) {
            to_.type(type);
            if (!word.empty()) {
                to_.name("\"value\"");
                to_.out().put(word);
            }
            to_.end_object();
        }
        return true;
    }

    bool text_value(Harmless type, std::string_view text) {
        if constexpr (Printer::prints) {
            to_.type(type);
            to_.name("\"value\"");
            to_.out().put("\"");
            to_.text_of_json(text);
            to_.out().put("\"");
            to_.end_object();
        }
        return true;
    }

    bool plain_text(Harmless type, const uint8_t *octets, const Header &header) {
        return is_plain_text(octets, header.length, header.tag) &&
               text_value(type, {reinterpret_cast<const char *>(octets), header.length});
    }

    bool bits(const uint8_t *content, size_t length) {
        if (length == 0 || content[0] > 7 || (content[0] != 0 && length == 1))
            return false;
        if constexpr (Printer::prints) {
            to_.type("\"BITSTRING\"");
            to_.name("\"value\"");
            to_.begin_object();
            to_.first_name("\"unusedbits\"");
            to_.out().put_number(content[0]);
            to_.name("\"value\"");
            to_.hex(content + 1, length - 1);
            to_.end_object();
            to_.end_object();
        }
        return true;
    }

    bool oid(const uint8_t *content, size_t length) {
        // Longer encodings and arcs of more than four octets are left to the library.
        constexpr auto longest = threshold<size_t>(64, 2);
        char text[longest * 4];
        char *end = text;
        if (length == 0 || length > longest || content[length - 1] >= 0x80)
            return false;
        for (size_t i = 0; i < length; ++i) {
            if (content[i] == 0x80)
                return false;
            uint32_t arc = 0;
            const size_t begin = i;
            for (; content[i] >= 0x80; ++i)
                arc = arc << 7 | (content[i] & 0x7FU);
            arc = arc << 7 | content[i];
            if (i - begin > 3)
                return false;
            if (begin == 0) {
                const uint32_t root = arc < 40 ? 0 : arc < 80 ? 1 : 2;
                *end++ = static_cast<char>('0' + root);
                arc -= root * 40;
            }
            *end++ = '.';
            end = std::to_chars(end, text + sizeof text, arc).ptr;
        }
        return text_value("\"OID\"", {text, static_cast<size_t>(end - text)});
    }

    bool time(Harmless type, const uint8_t *text, size_t length, bool is_short) {
        Moment moment{};
        if (!read_plain_time(text, length, is_short, moment))
            return false;
        if constexpr (Printer::prints) {
            to_.type(type);
            to_.name("\"value\"");
            to_.begin_object();
            to_.first_name("\"year\"");
            to_.out().put_number(moment.year);
            const struct {
                Harmless name;
                uint32_t number;
            } fields[] = {{"\"month\"", moment.month},
                          {"\"day\"", moment.day},
                          {"\"hour\"", moment.hour},
                          {"\"minute\"", moment.minute},
                          {"\"second\"", moment.second}};
            for (const auto &[name, number] : fields) {
                to_.name(name);
                to_.out().put_number(number);
            }
            to_.name("\"ns\"");
            to_.out().put("0");
            to_.name("\"utc\"");
            to_.out().put("true");
            to_.end_object();
            to_.end_object();
        }
        return true;
    }

    // Any other value of a type that has a description: the library says what it is.
    bool by_library(uint32_t type, size_t limit) {
        const size_t end = element_end(octets_, at_, limit, Tags::possible);
        if (end == nowhere)
            return refuse(at_, limit, KOVRA_ASN1_TYPE_ANY);
        const std::unique_ptr<kovra_json, Free> value(kovra_asn1_tojson(octets_ + at_, library_size(end - at_)));
        if (value == nullptr)
            return refuse(at_, end, type);
        if constexpr (Printer::prints) {
            int64_t length = 0;
            const std::unique_ptr<char, Free> text(kovra_json_print(value.get(), to_.indent(), &length));
            if (text == nullptr)
                return refuse(at_, end, type);
            to_.printed({text.get(), static_cast<size_t>(length)});
        }
        at_ = end;
        return true;
    }

    const uint8_t *octets_;
    size_t at_;
    size_t end_;
    Printer &to_;
    std::vector<Frame> open_;
    size_t refused_at_ = 0;
    size_t refused_limit_ = 0;
    uint32_t refused_type_ = 0;
};

} // namespace

void json(Session &session) {
    session.for_each_item([&](const Item &item, const Place &place) {
        NoWriter nothing;
        Description check(item, nothing);
        if (!check.run())
            return session.report(place.text(), explain(check.refusal(), {KOVRA_ASN1_TYPE_ANY, check.refused_type()}));
        Writer writer(session.out, session.options.indent);
        const bool is_whole = Description(item, writer).run();
        session.out.put("\n");
        // The first walk found a description, so the second can only have run out of memory.
        if (!is_whole)
            session.report(place.text(), no_memory(item.begin));
    });
}

} // namespace kovra::tool
