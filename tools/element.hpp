// Headers of BER elements, read in place. The library's functions for this work on streams, at the cost of a call for
// each octet: too much for a tool that prints a million entries. The limits are the library's.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kovra::tool {

struct Header {
    uint8_t tag_class = 0; // 0x00, 0x40, 0x80, 0xC0
    bool is_constructed = false;
    bool is_indefinite = false;
    uint32_t tag = 0;
    size_t size = 0;   // octets of identifier and length
    size_t length = 0; // of the content, unless it is indefinite

    [[nodiscard]] bool is_end_of_contents() const { return tag_class == 0 && tag == 0 && !is_constructed; }
    [[nodiscard]] bool is_universal(uint32_t number) const { return tag_class == 0 && tag == number; }
};

// What is wrong with a header; null when nothing is.
using Fault = const char *;

// Reads the header at `offset` of the octets up to `end`; the content of a definite length must end there too.
Fault read_header(const uint8_t *octets, size_t offset, size_t end, Header &out);

// The end of the element at `offset`: nested elements of indefinite length are stepped over.
Fault element_end(const uint8_t *octets, size_t offset, size_t end, size_t &out);

// Constructed elements that are entered and not left.
class OpenElements {
public:
    explicit OpenElements(size_t end) : end_(end) {}

    [[nodiscard]] size_t depth() const { return open_.size(); }
    // Nothing may reach beyond this.
    [[nodiscard]] size_t limit() const { return open_.empty() ? end_ : open_.back().limit; }
    [[nodiscard]] bool is_indefinite() const { return !open_.empty() && open_.back().is_indefinite; }
    void enter(const Header &header, size_t content) {
        open_.push_back({header.is_indefinite ? limit() : content + header.length, header.is_indefinite});
    }
    void leave() { open_.pop_back(); }
    // Does the innermost element end here?
    [[nodiscard]] bool ends_at(size_t position) const {
        return !open_.empty() && !open_.back().is_indefinite && open_.back().limit == position;
    }

private:
    struct Level {
        size_t limit;
        bool is_indefinite;
    };
    std::vector<Level> open_;
    size_t end_;
};

// Are the octets just one element, well formed down to its primitives?
bool is_one_element(const uint8_t *octets, size_t begin, size_t end);

// UTCTime in the form of DER and of a date that every month has, as nearly all are: year, month, day, hour, minute,
// second. False for others, which the library reads.
bool read_plain_time(const Header &header, const uint8_t *text, int (&fields)[6]);

} // namespace kovra::tool
