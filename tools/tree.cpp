#include "tree.hpp"

#include <algorithm>
#include <charconv>

#include "element.hpp"
#include "value_text.hpp"

namespace kovra::tool {

namespace {

// An element that is entered and not left.
struct Level {
    size_t limit; // of its members: its own end, or that of what it stands in
                  // when its length is indefinite
    bool is_indefinite;
};

// The elements that are open around a position.
class OpenElements {
public:
    explicit OpenElements(size_t end) : end_(end) {}

    [[nodiscard]] size_t depth() const { return levels_.size(); }
    [[nodiscard]] size_t limit() const { return levels_.empty() ? end_ : levels_.back().limit; }
    [[nodiscard]] bool is_indefinite() const { return !levels_.empty() && levels_.back().is_indefinite; }

    void clear(size_t end) {
        levels_.clear();
        end_ = end;
    }
    void enter(const Header &header, size_t content) {
        levels_.push_back({header.is_indefinite ? limit() : content + header.length, header.is_indefinite});
    }
    void leave() { levels_.pop_back(); }
    // Leaves the elements of definite length that end here.
    void leave_ended(size_t position) {
        while (!levels_.empty() && !levels_.back().is_indefinite && levels_.back().limit == position)
            levels_.pop_back();
    }

private:
    std::vector<Level> levels_;
    size_t end_;
};

class Tree {
public:
    Tree(Output &out, const uint8_t *octets, size_t begin, size_t end, TreeStyle style)
        : octets_(octets), at_(begin), out_(out), open_(end), inside_(end), style_(style) {
        constexpr size_t usual_width = 6;
        char digits[20];
        const auto width =
            static_cast<size_t>(std::to_chars(digits, digits + sizeof digits, style.origin + end).ptr - digits);
        width_ = std::max(usual_width, width);
    }

    bool run() {
        do {
            Header header;
            if (!read_header(octets_, at_, open_.limit(), header) ||
                (header.is_end_of_contents() && !open_.is_indefinite()))
                return false;
            if (header.is_end_of_contents())
                open_.leave();
            put_line(header);
            at_ += header.size;
            if (header.is_constructed() || header.is_indefinite)
                open_.enter(header, at_);
            else
                at_ += header.length;
            open_.leave_ended(at_);
        } while (open_.depth() != 0 && !out_.is_over());
        return true;
    }

    [[nodiscard]] Refusal refusal() const { return {octets_, at_, open_.limit()}; }

private:
    void put_line(Header &header) {
        if (style_.has_columns)
            put_columns(header);
        // Deeper levels are indented no further, so that a deep nest takes no more than a line each.
        constexpr size_t deepest_indent = 32;
        const size_t indent = style_.indent + 2 * std::min(open_.depth(), deepest_indent);
        out_.put_blanks(indent);
        const size_t printed = indent + put_tag(header);
        if (!header.is_constructed() && !header.is_indefinite && !header.is_end_of_contents()) {
            // put_value begins with a blank of its own.
            const size_t blanks = printed + 1 < style_.value_column ? style_.value_column - printed - 1 : 1;
            if (is_opened(header))
                put_opened(header, blanks);
            else if (header.length != 0)
                put_plain(header, blanks);
        }
        out_.put("\n");
    }

    void put_columns(const Header &header) {
        out_.put_right(style_.origin + at_, width_);
        out_.put_right(header.size, 4);
        out_.put(" ");
        if (header.is_indefinite) {
            out_.put_blanks(width_ - 5);
            out_.put("indef");
        } else {
            out_.put_right(header.length, width_);
        }
    }

    void put_plain(const Header &header, size_t blanks) {
        out_.put_blanks(blanks);
        put_value(out_, header, octets_ + at_, {style_.is_full, style_.is_colored});
    }

    // The content is entered like that of a constructed element; the octet of unused bits, 0, goes to the header.
    void put_opened(Header &header, size_t blanks) {
        out_.put_blanks(blanks + 1);
        out_.put("contains an element");
        if (header.tag == bit_string) {
            ++header.size;
            --header.length;
        }
        header.lead |= 0x20;
    }

    size_t put_tag(const Header &header) {
        if (style_.is_colored && header.is_constructed())
            out_.put("\x1b[1;34m");
        size_t width = 0;
        const auto put = [&](Harmless text) {
            out_.put(text);
            width += text.size();
        };
        const Harmless name = header.is_universal() ? universal_name(header.tag) : Harmless();
        if (!name.empty()) {
            put(name);
            if (header.is_constructed() && header.tag != sequence && header.tag != set)
                put(" (constructed)");
        } else {
            constexpr Harmless classes[] = {"[UNIVERSAL ", "[APPLICATION ", "[", "[PRIVATE "};
            put(classes[header.lead >> 6]);
            put(decimal(header.tag));
            put("]");
        }
        if (style_.is_colored && header.is_constructed())
            out_.put("\x1b[0m");
        return width;
    }

    // Is the content of an OCTET STRING or a BIT STRING one element, well formed down to its primitive ones?
    bool is_opened(const Header &header) {
        if (header.lead != octet_string && header.lead != bit_string)
            return false;
        size_t begin = at_ + header.size;
        const size_t end = begin + header.length;
        if (header.lead == bit_string) {
            if (header.length == 0 || octets_[begin] != 0)
                return false;
            ++begin;
        }
        return end - begin >= 2 && is_likely(octets_[begin]) && is_element(begin, end);
    }

    // Keys and digests are random octets; only what content usually begins with is taken for an element.
    static bool is_likely(uint8_t lead) {
        constexpr std::string_view leads("\x01\x02\x03\x04\x05\x06\x0A\x0C\x13\x16\x17\x18\x1E\x30\x31");
        return leads.find(static_cast<char>(lead)) != std::string_view::npos;
    }

    // Looks at every header once: strings inside are opened by later calls, which begin where this one passes over.
    bool is_element(size_t at, size_t end) {
        inside_.clear(end);
        do {
            Header header;
            if (!read_header(octets_, at, inside_.limit(), header) || !is_possible(header))
                return false;
            at += header.size;
            if (header.is_end_of_contents()) {
                if (!inside_.is_indefinite())
                    return false;
                inside_.leave();
            } else if (header.is_constructed() || header.is_indefinite) {
                inside_.enter(header, at);
            } else {
                at += header.length;
            }
            inside_.leave_ended(at);
        } while (inside_.depth() != 0);
        return at == end;
    }

    static constexpr uint32_t bit_string = 3;
    static constexpr uint32_t octet_string = 4;
    static constexpr uint32_t sequence = 16;
    static constexpr uint32_t set = 17;

    const uint8_t *octets_;
    size_t at_;
    Output &out_;
    OpenElements open_;
    OpenElements inside_;
    TreeStyle style_;
    size_t width_ = 0;
};

} // namespace

bool put_tree(Output &out, const uint8_t *octets, size_t begin, size_t end, TreeStyle style, Refusal &refusal) {
    Tree tree(out, octets, begin, end, style);
    if (tree.run())
        return true;
    refusal = tree.refusal();
    return false;
}

} // namespace kovra::tool
