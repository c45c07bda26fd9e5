#include <charconv>
#include <cmath>

#include "util/json_document.hpp"
#include "util/json_text.hpp"
#include "util/utf8.hpp"

using namespace kovra::util;

namespace kovra::util {
namespace {

class Parser {
public:
    Parser(const uint8_t *text, size_t length) : at_(text), end_(text + length) {}

    // Where the last run() ended.
    [[nodiscard]] const uint8_t *at() const { return at_; }

    // The value that the whole text is, a root; null where it is none, and when memory is short.
    kovra_json *run() {
        skip_space();
        kovra_json *root = first_value();
        if (root == nullptr)
            return nullptr;
        if (Container *container = json_container(root); container == nullptr || (open_.push(container) && items())) {
            skip_space();
            if (at_ == end_)
                return root;
        }
        kovra_json_free(root);
        return nullptr;
    }

private:
    // A value that is no container, as it was read; a string's octets are in the text, or in `unescaped_`.
    struct Scalar {
        uint8_t kind;
        bool truth;
        double number;
        const uint8_t *string;
        size_t length;
    };

    [[nodiscard]] bool is_next(char character) const { return at_ != end_ && *at_ == static_cast<uint8_t>(character); }

    bool skip(char character) {
        if (!is_next(character))
            return false;
        ++at_;
        return true;
    }

    void skip_space() {
        while (at_ != end_ && (*at_ == ' ' || *at_ == '\t' || *at_ == '\n' || *at_ == '\r'))
            ++at_;
    }

    // The value that the text begins with; of a container only the opening bracket is read.
    kovra_json *first_value() {
        if (skip('{'))
            return kovra_json_newobject();
        if (skip('['))
            return kovra_json_newarray();
        Scalar scalar{};
        if (!read_scalar(scalar))
            return nullptr;
        switch (scalar.kind) {
        case KOVRA_JSON_STRING:
            return kovra_json_newstring(scalar.string, static_cast<int32_t>(scalar.length));
        case KOVRA_JSON_NUMBER:
            return kovra_json_newnumber(scalar.number);
        case KOVRA_JSON_BOOLEAN:
            return kovra_json_newboolean(scalar.truth ? 1 : 0);
        default:
            return kovra_json_newnull();
        }
    }

    // Reads items until every open container is closed.
    bool items() {
        while (open_.size() != 0) {
            Container &container = *open_.top();
            const bool is_object = container.kind() == KOVRA_JSON_OBJECT;
            skip_space();
            if (skip(is_object ? '}' : ']')) {
                open_.pop();
                continue;
            }
            if (container.count != 0) {
                if (!skip(','))
                    return false;
                skip_space();
            }
            const char *name = nullptr;
            if (is_object && !read_name(*container.document, name))
                return false;
            kovra_json *item = read_item(*container.document);
            if (item == nullptr || container.count == most_json_items)
                return false;
            container.append(item, name);
            if (Container *inner = json_container(item); inner != nullptr && !open_.push(inner))
                return false;
        }
        return true;
    }

    bool read_name(Document &document, const char *&out) {
        Scalar name{};
        const uint8_t *begin = at_;
        if (!is_next('"') || !read_string(name))
            return false;
        if (std::memchr(name.string, '\0', name.length) != nullptr) {
            at_ = begin;
            return false;
        }
        out = document.intern(reinterpret_cast<const char *>(name.string), name.length);
        skip_space();
        if (out == nullptr || !skip(':'))
            return false;
        skip_space();
        return true;
    }

    kovra_json *read_item(Document &document) {
        if (skip('{'))
            return document.make_container(KOVRA_JSON_OBJECT);
        if (skip('['))
            return document.make_container(KOVRA_JSON_ARRAY);
        Scalar scalar{};
        if (!read_scalar(scalar))
            return nullptr;
        if (scalar.kind == KOVRA_JSON_NUMBER)
            return document.make_number(scalar.number);
        if (scalar.kind != KOVRA_JSON_STRING)
            return document.make_plain(scalar.kind, scalar.truth);
        kovra_json *value = document.make_string(scalar.length);
        if (value != nullptr)
            std::memcpy(value->text(), scalar.string, scalar.length);
        return value;
    }

    bool read_scalar(Scalar &out) {
        if (at_ == end_)
            return false;
        switch (*at_) {
        case '"':
            return read_string(out);
        case 't':
            out.truth = true;
            out.kind = KOVRA_JSON_BOOLEAN;
            return skip_word("true");
        case 'f':
            out.kind = KOVRA_JSON_BOOLEAN;
            return skip_word("false");
        case 'n':
            out.kind = KOVRA_JSON_NULL;
            return skip_word("null");
        default:
            return read_number(out);
        }
    }

    bool skip_word(const char *word) {
        while (*word != '\0')
            if (!skip(*word++))
                return false;
        return true;
    }

    // Skips digits; false when there is none.
    bool skip_digits() {
        const uint8_t *begin = at_;
        while (at_ != end_ && *at_ >= '0' && *at_ <= '9')
            ++at_;
        return at_ != begin;
    }

    bool read_number(Scalar &out) {
        const auto *begin = reinterpret_cast<const char *>(at_);
        skip('-');
        if (!skip('0') && !skip_digits())
            return false;
        if (skip('.') && !skip_digits())
            return false;
        if (skip('e') || skip('E')) {
            if (!skip('+'))
                skip('-');
            if (!skip_digits())
                return false;
        }
        const auto *end = reinterpret_cast<const char *>(at_);
        out.kind = KOVRA_JSON_NUMBER;
        const auto [stop, error] = std::from_chars(begin, end, out.number);
        if (error == std::errc::result_out_of_range && is_tiny(begin, end)) {
            out.number = *begin == '-' ? -0.0 : 0.0;
            return true;
        }
        return error == std::errc{} && stop == end && std::isfinite(out.number);
    }

    // Tells a number that is too small for a double from one that is too large: by the power of ten of its first
    // digit other than 0.
    static bool is_tiny(const char *at, const char *end) {
        int64_t power = 0;
        bool is_fraction = false;
        bool is_significant = false;
        for (; at != end && *at != 'e' && *at != 'E'; ++at) {
            is_fraction = is_fraction || *at == '.';
            if (*at < '0' || *at > '9')
                continue;
            if (is_fraction)
                power -= is_significant ? 0 : 1;
            else
                power += is_significant ? 1 : 0;
            is_significant = is_significant || *at != '0';
        }
        if (at == end)
            return power < 0;
        const bool is_negative = *++at == '-';
        int64_t exponent = 0;
        for (constexpr int64_t most = INT64_MAX / 100; at != end && exponent < most; ++at)
            exponent = *at >= '0' && *at <= '9' ? exponent * 10 + (*at - '0') : exponent;
        return (is_negative ? -exponent : exponent) + power < 0;
    }

    // A string without escapes is taken where it stands.
    bool read_string(Scalar &out) {
        out.kind = KOVRA_JSON_STRING;
        unescaped_.clear();
        const uint8_t *run = ++at_;
        for (;;) {
            at_ = skip_plain(at_, end_);
            if (at_ == end_)
                return false;
            if (*at_ == '"') {
                out.string = run;
                out.length = static_cast<size_t>(at_ - run);
                if (unescaped_.size() != 0) {
                    unescaped_.put(run, out.length);
                    out.string = unescaped_.data();
                    out.length = unescaped_.size();
                }
                ++at_;
                return unescaped_.is_complete() && out.length <= most_json_items;
            }
            if (*at_ == '\\') {
                unescaped_.put(run, static_cast<size_t>(at_ - run));
                if (!read_escape())
                    return false;
                run = at_;
                continue;
            }
            const size_t size = *at_ < 0x80 ? 0 : utf8_length_at(at_, end_);
            if (size == 0)
                return false;
            at_ += size;
        }
    }

    bool read_escape() {
        static constexpr char letters[] = "\"\\/bfnrt";
        static constexpr char meant[] = "\"\\/\b\f\n\r\t";
        const uint8_t *begin = at_++;
        if (skip('u'))
            return read_code(begin);
        const char *found = at_ != end_ && *at_ != '\0' ? std::strchr(letters, *at_) : nullptr;
        if (found == nullptr)
            return false;
        ++at_;
        return unescaped_.push(static_cast<uint8_t>(meant[found - letters]));
    }

    // What follows \u. An escape that names no character is at fault from its beginning.
    bool read_code(const uint8_t *begin) {
        uint32_t character = 0;
        uint32_t low = 0;
        if (!read_hex4(character))
            return false;
        if (character >= 0xD800 && character <= 0xDBFF && skip('\\')) {
            if (!skip('u') || !read_hex4(low))
                return false;
            if (low >= 0xDC00 && low <= 0xDFFF)
                character = 0x10000 + ((character & 0x3FF) << 10 | (low & 0x3FF));
        }
        if (!is_scalar_value(character)) {
            at_ = begin;
            return false;
        }
        uint8_t octets[4];
        unescaped_.put(octets, static_cast<size_t>(put_utf8(octets, character) - octets));
        return true;
    }

    bool read_hex4(uint32_t &out) {
        out = 0;
        for (int i = 0; i < 4; ++i, ++at_) {
            if (at_ == end_)
                return false;
            const int letter = *at_ | 0x20;
            const int digit = *at_ >= '0' && *at_ <= '9'       ? *at_ - '0'
                              : letter >= 'a' && letter <= 'f' ? letter - 'a' + 10
                                                               : -1;
            if (digit < 0)
                return false;
            out = out << 4 | static_cast<uint32_t>(digit);
        }
        return true;
    }

    const uint8_t *at_;
    const uint8_t *end_;
    Stack<Container *, first_json_items<Container *>> open_{"UTIL_JSON"};
    GrowingArray<uint8_t> unescaped_;
};

} // namespace
} // namespace kovra::util

kovra_json *kovra_json_parse(const char *text, int64_t length, int64_t *out_error_offset) noexcept {
    if (out_error_offset != nullptr)
        *out_error_offset = 0;
    if (text == nullptr || length < 0 || static_cast<uint64_t>(length) > SIZE_MAX / 2)
        return nullptr;
    const auto *octets = reinterpret_cast<const uint8_t *>(text);
    Parser parser(octets, static_cast<size_t>(length));
    kovra_json *root = parser.run();
    if (root == nullptr && out_error_offset != nullptr)
        *out_error_offset = parser.at() - octets;
    return root;
}
