// The textual armour of RFC 7468, with the header lines of RFC 1421 passed over.
#include <algorithm>
#include <cstring>

#include "base/sizes.hpp"
#include "kovra/util_coding.h"
#include "kovra/util_memory.h"
#include "util/base64.hpp"

namespace kovra::util {
namespace {

constexpr const char *module = "UTIL_PEM";
constexpr size_t body_line = 64;

struct Slice {
    const char *data;
    size_t length;

    [[nodiscard]] bool starts_with(Slice prefix) const {
        return length >= prefix.length && std::memcmp(data, prefix.data, prefix.length) == 0;
    }
    [[nodiscard]] bool equals(Slice other) const { return length == other.length && starts_with(other); }
};

template <size_t size> constexpr Slice literal(const char (&text)[size]) {
    return {text, size - 1};
}

constexpr Slice dashes = literal("-----");
constexpr Slice begin_mark = literal("-----BEGIN ");
constexpr Slice end_mark = literal("-----END ");
constexpr Slice byte_order_mark = literal("\xEF\xBB\xBF");

bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

// The label of a BEGIN or END line.
bool label_of(Slice line, Slice mark, Slice &label) {
    if (!line.starts_with(mark) || line.length < mark.length + dashes.length)
        return false;
    label = {line.data + mark.length, line.length - mark.length - dashes.length};
    return Slice{label.data + label.length, dashes.length}.equals(dashes);
}

enum class Found { none, block, malformed };

struct Block {
    Slice label;
    Slice body;
};

// Walks text line by line. No line is looked at twice, whatever the text: a caller that goes on behind each block, also
// behind malformed ones, reads the text once.
class Reader {
public:
    Reader(const char *text, size_t length, size_t position) : text_(text), length_(length), position_(position) {}

    [[nodiscard]] size_t position() const { return position_; }

    // Finds the next block and goes behind it, or behind the part of a malformed one that was read.
    Found next(Block &block) {
        Slice line{};
        do {
            if (!next_line(line))
                return Found::none;
        } while (!label_of(line, begin_mark, block.label));
        return read_body(block);
    }

private:
    // The line without the white space at its end.
    bool next_line(Slice &line) {
        if (position_ == length_)
            return false;
        size_t begin = position_;
        if (begin == 0 && Slice{text_, length_}.starts_with(byte_order_mark))
            begin = byte_order_mark.length;
        const auto *feed = static_cast<const char *>(std::memchr(text_ + begin, '\n', length_ - begin));
        size_t end = feed == nullptr ? length_ : static_cast<size_t>(feed - text_);
        position_ = feed == nullptr ? length_ : end + 1;
        while (end > begin && is_blank(text_[end - 1]))
            --end;
        line = {text_ + begin, end - begin};
        return true;
    }

    Found read_body(Block &block) {
        block.body = {text_ + position_, 0};
        bool headers = false;
        bool in_body = false;
        for (;;) {
            const size_t line_begin = position_;
            Slice line{};
            if (!next_line(line))
                return Found::malformed;
            if (line.starts_with(dashes)) {
                Slice label{};
                if (label_of(line, end_mark, label) && label.equals(block.label)) {
                    if (in_body)
                        block.body.length = static_cast<size_t>(text_ + line_begin - block.body.data);
                    return Found::block;
                }
                // Another block begins here: the next call finds it.
                if (label_of(line, begin_mark, label))
                    position_ = line_begin;
                return Found::malformed;
            }
            if (in_body)
                continue;
            // Headers have a colon or continue the header before; the first line of another kind begins the body.
            if (line.length == 0)
                in_body = headers;
            else if (std::memchr(line.data, ':', line.length) != nullptr)
                headers = true;
            else if (!headers || !is_blank(line.data[0]))
                in_body = true;
            if (in_body)
                block.body.data = text_ + line_begin;
        }
    }

    const char *text_;
    size_t length_;
    size_t position_;
};

void *decode_body(const Block &block, int32_t *out_length) {
    return kovra_base64decode(block.body.data, static_cast<int64_t>(block.body.length), KOVRA_BASE64_IGNORE_SPACE,
                              out_length);
}

bool is_label(Slice label) {
    return std::all_of(label.data, label.data + label.length, [](char c) { return c >= ' ' && c <= '~'; });
}

char *put(char *to, Slice slice) {
    std::memcpy(to, slice.data, slice.length);
    return to + slice.length;
}

} // namespace
} // namespace kovra::util

using namespace kovra::util;

void *kovra_pemdecode(const char *text, int64_t length, const char *label, int32_t *out_length) noexcept {
    if (out_length != nullptr)
        *out_length = 0;
    if (text == nullptr || length < 0 || length > PTRDIFF_MAX || label == nullptr)
        return nullptr;
    const Slice wanted = {label, std::strlen(label)};
    Reader reader(text, static_cast<size_t>(length), 0);
    for (;;) {
        Block block{};
        const Found found = reader.next(block);
        if (found == Found::none)
            return nullptr;
        if (block.label.equals(wanted))
            return found == Found::block ? decode_body(block, out_length) : nullptr;
    }
}

int32_t kovra_pemnext(const char *text, int64_t length, int64_t *position, const char **out_label,
                      int32_t *out_label_length, void **out_data, int32_t *out_length) noexcept {
    if (out_label != nullptr)
        *out_label = nullptr;
    if (out_label_length != nullptr)
        *out_label_length = 0;
    if (out_data != nullptr)
        *out_data = nullptr;
    if (out_length != nullptr)
        *out_length = 0;
    if (text == nullptr || position == nullptr || out_data == nullptr || out_length == nullptr || *position < 0 ||
        *position > length || length > PTRDIFF_MAX)
        return 0;
    Reader reader(text, static_cast<size_t>(length), static_cast<size_t>(*position));
    Block block{};
    const Found found = reader.next(block);
    *position = static_cast<int64_t>(reader.position());
    if (found == Found::none)
        return 0;
    if (out_label != nullptr)
        *out_label = block.label.data;
    if (out_label_length != nullptr)
        *out_label_length = static_cast<int32_t>(std::min<size_t>(block.label.length, INT32_MAX));
    if (found == Found::block)
        *out_data = decode_body(block, out_length);
    return *out_data != nullptr ? 1 : -1;
}

char *kovra_pemencode(const void *data, int32_t length, const char *label, int64_t *out_length) noexcept {
    if (out_length != nullptr)
        *out_length = 0;
    if (length < 0 || (data == nullptr && length > 0) || label == nullptr)
        return nullptr;
    const Slice name = {label, std::strlen(label)};
    if (!is_label(name))
        return nullptr;
    constexpr Slice line_end = literal("-----\n");
    const auto count = static_cast<size_t>(length);
    const size_t size = kovra::sum(begin_mark.length + end_mark.length + 2 * line_end.length,
                                   kovra::product(name.length, 2), base64_length(count, body_line));
    auto *text = static_cast<char *>(kovra_malloc(kovra::sum(size, 1), module, __LINE__));
    if (text == nullptr)
        return nullptr;
    char *end = put(put(put(text, begin_mark), name), line_end);
    end = write_base64(end, static_cast<const uint8_t *>(data), count, body_line);
    end = put(put(put(end, end_mark), name), line_end);
    *end = '\0';
    if (out_length != nullptr)
        *out_length = static_cast<int64_t>(size);
    return text;
}
