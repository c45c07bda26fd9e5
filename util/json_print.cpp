#include <charconv>
#include <cmath>

#include "base/sizes.hpp"
#include "util/json_document.hpp"
#include "util/json_text.hpp"
#include "util/utf8.hpp"

using namespace kovra::util;

namespace kovra::util {
namespace {

// Deeper levels are indented no further, so that a deep document stays linear to print.
constexpr size_t deepest_indent = 64;

class Printer {
public:
    explicit Printer(int32_t indent) : indent_(static_cast<size_t>(indent)) {}

    // False when memory is short.
    bool run(const kovra_json *value) {
        for (;;) {
            if (const Container *container = json_container(value); container == nullptr)
                scalar(*value);
            else if (!open(*container))
                return false;
            while (open_.size() != 0 && open_.top().next == nullptr)
                close();
            if (open_.size() == 0) {
                out_.push('\0');
                return out_.is_complete();
            }
            Level &level = open_.top();
            value = level.next;
            if (value != level.container->first)
                out_.push(',');
            level.next = value->next;
            new_line();
            if (value->name != nullptr) {
                string(value->name, std::strlen(value->name));
                out_.put(": ", indent_ != 0 ? 2 : 1);
            }
        }
    }

    char *release(int64_t *out_length) {
        if (out_length != nullptr)
            *out_length = static_cast<int64_t>(out_.size() - 1);
        return out_.release();
    }

private:
    struct Level {
        const Container *container;
        const kovra_json *next; // item to come
    };

    bool open(const Container &container) {
        out_.push(container.kind() == KOVRA_JSON_OBJECT ? '{' : '[');
        if (container.count == 0)
            out_.push(closing(container));
        return container.count == 0 || open_.push({&container, container.first});
    }

    void close() {
        const Container &container = *open_.top().container;
        open_.pop();
        new_line();
        out_.push(closing(container));
    }

    static char closing(const Container &container) { return container.kind() == KOVRA_JSON_OBJECT ? '}' : ']'; }

    void new_line() {
        if (indent_ == 0)
            return;
        out_.push('\n');
        out_.fill(' ', product(indent_, std::min(open_.size(), deepest_indent)));
    }

    void scalar(const kovra_json &value) {
        switch (value.kind()) {
        case KOVRA_JSON_STRING:
            return string(value.text(), value.count);
        case KOVRA_JSON_NUMBER:
            return number(static_cast<const Number &>(value).number);
        case KOVRA_JSON_BOOLEAN:
            return value.count != 0 ? out_.put("true", 4) : out_.put("false", 5);
        default:
            return out_.put("null", 4);
        }
    }

    // Whole numbers up to here are exact, and print with all their digits.
    void number(double number) {
        constexpr double exact = 9007199254740992.0;
        char text[32];
        const bool is_whole =
            std::fabs(number) < exact && number == std::floor(number) && !(number == 0 && std::signbit(number));
        const auto result = is_whole ? std::to_chars(text, text + sizeof text, static_cast<int64_t>(number))
                                     : std::to_chars(text, text + sizeof text, number);
        out_.put(text, static_cast<size_t>(result.ptr - text));
    }

    void string(const char *text, size_t length) {
        const auto *at = reinterpret_cast<const uint8_t *>(text);
        const uint8_t *end = at + length;
        out_.push('"');
        for (;;) {
            const uint8_t *run = at;
            at = skip_plain(at, end);
            out_.put(reinterpret_cast<const char *>(run), static_cast<size_t>(at - run));
            if (at == end)
                break;
            if (*at < 0x80) {
                escape(*at++);
            } else if (const size_t size = utf8_length_at(at, end); size != 0) {
                out_.put(reinterpret_cast<const char *>(at), size);
                at += size;
            } else {
                out_.put("\xEF\xBF\xBD", 3);
                ++at;
            }
        }
        out_.push('"');
    }

    void escape(uint8_t octet) {
        static constexpr char escaped[] = "\"\\\b\f\n\r\t";
        static constexpr char letters[] = "\"\\bfnrt";
        static constexpr char digits[] = "0123456789abcdef";
        if (const char *found = octet != 0 ? std::strchr(escaped, octet) : nullptr; found != nullptr) {
            out_.push('\\');
            out_.push(letters[found - escaped]);
            return;
        }
        const char code[] = {'\\', 'u', '0', '0', digits[octet >> 4], digits[octet & 0x0F]};
        out_.put(code, sizeof code);
    }

    size_t indent_;
    GrowingArray<char> out_;
    Stack<Level, first_json_items<Level>> open_{"UTIL_JSON"};
};

} // namespace
} // namespace kovra::util

char *kovra_json_print(const kovra_json *value, int32_t indent, int64_t *out_length) noexcept {
    if (!is_json(value) || indent < 0)
        return nullptr;
    Printer printer(indent);
    return printer.run(value) ? printer.release(out_length) : nullptr;
}
