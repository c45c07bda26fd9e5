// JSON text (RFC 8259): printing and strict parsing, both without recursion.

#include <charconv>
#include <cmath>
#include <cstring>

#include "util/json_value.hpp"

namespace kovra::util {

namespace {

constexpr char replacement[] = "\xEF\xBF\xBD"; // U+FFFD

// Octets of the well-formed UTF-8 character that begins here; 0 when none does.
size_t character_size(const char *text, size_t length) {
    const auto *octets = reinterpret_cast<const uint8_t *>(text);
    const uint8_t lead = octets[0];
    if (lead < 0x80)
        return 1;
    const size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || size > length)
        return 0;
    for (size_t i = 1; i < size; ++i)
        if ((octets[i] & 0xC0) != 0x80)
            return 0;
    const bool is_overlong = (lead == 0xE0 && octets[1] < 0xA0) || (lead == 0xF0 && octets[1] < 0x90);
    const bool is_no_scalar = (lead == 0xED && octets[1] > 0x9F) || (lead == 0xF4 && octets[1] > 0x8F);
    return is_overlong || is_no_scalar ? 0 : size;
}

bool is_plain(char character) {
    const auto octet = static_cast<uint8_t>(character);
    return octet >= 0x20 && octet < 0x80 && octet != '"' && octet != '\\';
}

void print_escaped(TextBuffer &out, uint8_t octet) {
    static constexpr char digits[] = "0123456789abcdef";
    const char *short_form = octet == '"'    ? "\\\""
                             : octet == '\\' ? "\\\\"
                             : octet == '\b' ? "\\b"
                             : octet == '\f' ? "\\f"
                             : octet == '\n' ? "\\n"
                             : octet == '\r' ? "\\r"
                             : octet == '\t' ? "\\t"
                                             : nullptr;
    if (short_form != nullptr) {
        out.put(short_form, 2);
        return;
    }
    const char escaped[] = {'\\', 'u', '0', '0', digits[octet >> 4], digits[octet & 0x0F]};
    out.put(escaped, sizeof escaped);
}

void print_string(TextBuffer &out, const char *text, size_t length) {
    out.put('"');
    for (size_t i = 0; i < length;) {
        size_t run = i;
        while (run < length && is_plain(text[run]))
            ++run;
        out.put(text + i, run - i);
        i = run;
        if (i == length)
            break;
        const auto octet = static_cast<uint8_t>(text[i]);
        if (octet < 0x80) {
            print_escaped(out, octet);
            ++i;
        } else if (const size_t size = character_size(text + i, length - i); size != 0) {
            out.put(text + i, size);
            i += size;
        } else {
            out.put(replacement, sizeof replacement - 1);
            ++i;
        }
    }
    out.put('"');
}

void print_number(TextBuffer &out, double number) {
    constexpr double exact = 9007199254740992.0;
    char text[32];
    const bool is_whole =
        number == std::floor(number) && std::fabs(number) < exact && !(number == 0 && std::signbit(number));
    const auto result = is_whole ? std::to_chars(text, text + sizeof text, static_cast<int64_t>(number))
                                 : std::to_chars(text, text + sizeof text, number);
    out.put(text, static_cast<size_t>(result.ptr - text));
}

void print_scalar(TextBuffer &out, const kovra_json &value) {
    switch (value.kind) {
    case KOVRA_JSON_STRING:
        print_string(out, value.text, value.count);
        break;
    case KOVRA_JSON_NUMBER:
        print_number(out, value.number);
        break;
    case KOVRA_JSON_BOOLEAN:
        out.put(value.truth ? "true" : "false", value.truth ? 4 : 5);
        break;
    default:
        out.put("null", 4);
    }
}

// Deeper levels are indented no further, so that a deep document stays linear to print.
constexpr size_t deepest_indent = 64;

void new_line(TextBuffer &out, int32_t indent, size_t depth) {
    if (indent <= 0)
        return;
    out.put('\n');
    out.fill(' ', static_cast<size_t>(indent) * (depth < deepest_indent ? depth : deepest_indent));
}

char closing(const kovra_json &container) {
    return container.kind == KOVRA_JSON_OBJECT ? '}' : ']';
}

bool print(TextBuffer &out, const kovra_json *root, int32_t indent) {
    OpenContainers open;
    const kovra_json *value = root;
    for (;;) {
        if (is_container(value)) {
            out.put(value->kind == KOVRA_JSON_OBJECT ? '{' : '[');
            if (value->count == 0)
                out.put(closing(*value));
            else if (!open.push({static_cast<Container *>(const_cast<kovra_json *>(value)), value->first}))
                return false;
        } else {
            print_scalar(out, *value);
        }
        while (open.size() != 0 && open.top().next == nullptr) {
            const Container *container = open.top().container;
            open.pop();
            new_line(out, indent, open.size());
            out.put(closing(*container));
        }
        if (open.size() == 0)
            return out.is_complete();
        OpenContainers::Level &level = open.top();
        value = level.next;
        if (value != level.container->first)
            out.put(',');
        level.next = value->next;
        new_line(out, indent, open.size());
        if (value->name != nullptr) {
            print_string(out, value->name, std::strlen(value->name));
            out.put(": ", indent > 0 ? 2 : 1);
        }
    }
}

class Parser {
public:
    Parser(const char *text, size_t length) : at_(text), end_(text + length) {}

    [[nodiscard]] const char *at() const { return at_; }

    // The value that the whole text is; null where it is none, or memory is short.
    kovra_json *run() {
        // The document needs a root before its kind is known: it is the one item of an array, or the array itself.
        kovra_json *holder = kovra_json_newarray();
        if (holder == nullptr)
            return nullptr;
        kovra_json *root = document(holder);
        if (root == nullptr)
            kovra_json_free(holder);
        return root;
    }

private:
    kovra_json *document(kovra_json *holder) {
        skip_space();
        const char first = at_ != end_ ? *at_ : '\0';
        kovra_json *root = nullptr;
        if (first == '{' || first == '[') {
            ++at_;
            root = first == '[' ? holder : kovra_json_newobject();
            if (root == nullptr || !open_.push({static_cast<Container *>(root), nullptr}) || !items()) {
                if (root != holder)
                    kovra_json_free(root);
                return nullptr;
            }
        } else {
            root = scalar_root();
            if (root == nullptr)
                return nullptr;
        }
        skip_space();
        if (at_ != end_) {
            if (root != holder)
                kovra_json_free(root);
            return nullptr;
        }
        if (root != holder)
            kovra_json_free(holder);
        return root;
    }

    kovra_json *scalar_root() {
        Scalar scalar;
        if (!read_scalar(scalar))
            return nullptr;
        switch (scalar.kind) {
        case KOVRA_JSON_STRING:
            return kovra_json_newstring(text_.data() != nullptr ? text_.data() : "",
                                        static_cast<int32_t>(text_.size()));
        case KOVRA_JSON_NUMBER:
            return kovra_json_newnumber(scalar.number);
        case KOVRA_JSON_BOOLEAN:
            return kovra_json_newboolean(scalar.truth ? 1 : 0);
        default:
            return kovra_json_newnull();
        }
    }

    // Reads until every open container is closed.
    bool items() {
        while (open_.size() != 0) {
            Container *container = open_.top().container;
            const bool is_object = container->kind == KOVRA_JSON_OBJECT;
            skip_space();
            if (at_ == end_)
                return false;
            if (*at_ == (is_object ? '}' : ']')) {
                // No comma stands before the end.
                ++at_;
                open_.pop();
                continue;
            }
            if (container->count != 0) {
                if (*at_ != ',')
                    return false;
                ++at_;
                skip_space();
                if (at_ == end_)
                    return false;
            }
            const char *name = nullptr;
            if (is_object) {
                if (*at_ != '"' || !read_string() || std::memchr(text_.data(), '\0', text_.size()) != nullptr)
                    return false;
                text_.put('\0');
                if (!text_.is_complete() || (name = container->document->intern(text_.data())) == nullptr)
                    return false;
                skip_space();
                if (at_ == end_ || *at_ != ':')
                    return false;
                ++at_;
                skip_space();
            }
            if (at_ == end_)
                return false;
            if (!item(*container, name))
                return false;
        }
        return true;
    }

    bool item(Container &container, const char *name) {
        if (*at_ == '{' || *at_ == '[') {
            kovra_json *inner =
                *at_ == '{' ? kovra_json_putobject(&container, name) : kovra_json_putarray(&container, name);
            ++at_;
            return inner != nullptr && open_.push({static_cast<Container *>(inner), nullptr});
        }
        Scalar scalar;
        if (!read_scalar(scalar))
            return false;
        switch (scalar.kind) {
        case KOVRA_JSON_STRING:
            return kovra_json_putstring(&container, name, text_.data() != nullptr ? text_.data() : "",
                                        static_cast<int32_t>(text_.size())) != nullptr;
        case KOVRA_JSON_NUMBER:
            return kovra_json_putnumber(&container, name, scalar.number) != nullptr;
        case KOVRA_JSON_BOOLEAN:
            return kovra_json_putboolean(&container, name, scalar.truth ? 1 : 0) != nullptr;
        default:
            return kovra_json_putnull(&container, name) != nullptr;
        }
    }

    struct Scalar {
        uint8_t kind = KOVRA_JSON_NULL;
        bool truth = false;
        double number = 0;
    };

    void skip_space() {
        while (at_ != end_ && (*at_ == ' ' || *at_ == '\t' || *at_ == '\n' || *at_ == '\r'))
            ++at_;
    }

    bool word(const char *expected, size_t length) {
        if (static_cast<size_t>(end_ - at_) < length || std::memcmp(at_, expected, length) != 0)
            return false;
        at_ += length;
        return true;
    }

    // A string is left in `text_`.
    bool read_scalar(Scalar &out) {
        if (at_ == end_)
            return false;
        switch (*at_) {
        case '"':
            out.kind = KOVRA_JSON_STRING;
            return read_string();
        case 't':
            out = {KOVRA_JSON_BOOLEAN, true, 0};
            return word("true", 4);
        case 'f':
            out = {KOVRA_JSON_BOOLEAN, false, 0};
            return word("false", 5);
        case 'n':
            return word("null", 4);
        default:
            out.kind = KOVRA_JSON_NUMBER;
            return read_number(out.number);
        }
    }

    [[nodiscard]] bool is_digit() const { return at_ != end_ && *at_ >= '0' && *at_ <= '9'; }

    bool digits() {
        if (!is_digit())
            return false;
        while (is_digit())
            ++at_;
        return true;
    }

    bool read_number(double &out) {
        const char *begin = at_;
        if (*at_ == '-')
            ++at_;
        if (at_ != end_ && *at_ == '0')
            ++at_;
        else if (!digits())
            return false;
        if (at_ != end_ && *at_ == '.') {
            ++at_;
            if (!digits())
                return false;
        }
        if (at_ != end_ && (*at_ == 'e' || *at_ == 'E')) {
            ++at_;
            if (at_ != end_ && (*at_ == '+' || *at_ == '-'))
                ++at_;
            if (!digits())
                return false;
        }
        const auto [stop, error] = std::from_chars(begin, at_, out);
        return error == std::errc{} && stop == at_ && std::isfinite(out);
    }

    bool read_string() {
        text_.clear();
        ++at_;
        for (;;) {
            const char *run = at_;
            while (run != end_ && is_plain(*run))
                ++run;
            text_.put(at_, static_cast<size_t>(run - at_));
            at_ = run;
            if (at_ == end_)
                return false;
            if (*at_ == '"') {
                ++at_;
                return text_.is_complete() && text_.size() <= 0x7FFFFFFF;
            }
            if (*at_ == '\\') {
                if (!read_escape())
                    return false;
                continue;
            }
            const size_t size =
                static_cast<uint8_t>(*at_) < 0x80 ? 0 : character_size(at_, static_cast<size_t>(end_ - at_));
            if (size == 0)
                return false;
            text_.put(at_, size);
            at_ += size;
        }
    }

    bool read_hex4(uint32_t &out) {
        if (end_ - at_ < 4)
            return false;
        const auto [stop, error] = std::from_chars(at_, at_ + 4, out, 16);
        if (error != std::errc{} || stop != at_ + 4)
            return false;
        at_ += 4;
        return true;
    }

    bool read_escape() {
        if (end_ - at_ < 2)
            return false;
        const char letter = at_[1];
        at_ += 2;
        if (letter != 'u') {
            constexpr char letters[] = "\"\\/bfnrt";
            constexpr char meant[] = "\"\\/\b\f\n\r\t";
            const char *found = letter != '\0' ? std::strchr(letters, letter) : nullptr;
            if (found == nullptr) {
                at_ -= 2;
                return false;
            }
            text_.put(meant[found - letters]);
            return true;
        }
        uint32_t character = 0;
        if (!read_hex4(character))
            return false;
        if (character >= 0xD800 && character <= 0xDFFF) {
            uint32_t low = 0;
            if (character > 0xDBFF || end_ - at_ < 2 || at_[0] != '\\' || at_[1] != 'u')
                return false;
            at_ += 2;
            if (!read_hex4(low) || low < 0xDC00 || low > 0xDFFF)
                return false;
            character = 0x10000 + ((character & 0x3FF) << 10 | (low & 0x3FF));
        }
        put_utf8(character);
        return true;
    }

    void put_utf8(uint32_t character) {
        if (character < 0x80) {
            text_.put(static_cast<char>(character));
            return;
        }
        const int more = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
        text_.put(static_cast<char>((0xF00U >> (more + 1) & 0xFF) | character >> (6 * more)));
        for (int i = more - 1; i >= 0; --i)
            text_.put(static_cast<char>(0x80 | (character >> (6 * i) & 0x3F)));
    }

    const char *at_;
    const char *end_;
    OpenContainers open_;
    TextBuffer text_;
};

} // namespace

} // namespace kovra::util

using namespace kovra::util;

char *kovra_json_print(const kovra_json *value, int32_t indent, int64_t *out_length) noexcept {
    TextBuffer out;
    if (!is_valid(value) || indent < 0 || !print(out, value, indent))
        return nullptr;
    return out.release(out_length);
}

kovra_json *kovra_json_parse(const char *text, int64_t length, int64_t *out_error_offset) noexcept {
    if (text == nullptr || length < 0 || static_cast<uint64_t>(length) > SIZE_MAX / 2)
        return nullptr;
    Parser parser(text, static_cast<size_t>(length));
    kovra_json *root = parser.run();
    if (root == nullptr && out_error_offset != nullptr)
        *out_error_offset = parser.at() - text;
    return root;
}
