// Base64 as RFC 4648 section 4 has it, with padding.
#include "util/base64.hpp"

#include <algorithm>

#include "base/sizes.hpp"
#include "kovra/util_coding.h"
#include "kovra/util_memory.h"

namespace kovra::util {
namespace {

constexpr const char *module = "UTIL_Base64";
constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// The meanings of characters that are not in the alphabet; those in it mean 0 to 63.
constexpr uint8_t space = 0x40;
constexpr uint8_t padding = 0x41;
constexpr uint8_t invalid = 0x42;

struct Meanings {
    uint8_t of[256];
};

constexpr Meanings meanings = []() {
    Meanings table{};
    for (uint8_t &meaning : table.of)
        meaning = invalid;
    for (uint8_t i = 0; i < 64; ++i)
        table.of[static_cast<uint8_t>(alphabet[i])] = i;
    for (const char c : {' ', '\t', '\n', '\v', '\f', '\r'})
        table.of[static_cast<uint8_t>(c)] = space;
    table.of[static_cast<uint8_t>('=')] = padding;
    return table;
}();

uint8_t meaning_of(char c) {
    return meanings.of[static_cast<uint8_t>(c)];
}

// Takes base64 text apart into the room it is given.
class Decoder {
public:
    Decoder(const char *text, size_t length, bool ignore_space, uint8_t *to, size_t room)
        : at_(text), end_(text + length), ignore_space_(ignore_space), to_(to), room_(room) {}

    // The number of octets, or -1 for text that is not valid or gives more than the room holds.
    int64_t decode() {
        uint32_t bits = 0;
        int digits = 0; // of a quantum of four
        for (;;) {
            if (digits == 0 && !decode_whole_quanta())
                return -1;
            const uint8_t meaning = next_meaning();
            if (meaning >= space)
                return at_ == end_ || *at_ == '=' ? finish(bits, digits) : -1;
            ++at_;
            bits = bits << 6 | meaning;
            if (++digits == 4) {
                if (!put(bits, 3))
                    return -1;
                bits = 0;
                digits = 0;
            }
        }
    }

private:
    // Skips what may be skipped; `invalid` at the end.
    uint8_t next_meaning() {
        while (at_ < end_) {
            const uint8_t meaning = meaning_of(*at_);
            if (meaning != space || !ignore_space_)
                return meaning;
            ++at_;
        }
        return invalid;
    }

    // The bulk of the text: as many groups of four as stand without anything between. False when the room ends.
    bool decode_whole_quanta() {
        while (end_ - at_ >= 4) {
            const uint32_t a = meaning_of(at_[0]);
            const uint32_t b = meaning_of(at_[1]);
            const uint32_t c = meaning_of(at_[2]);
            const uint32_t d = meaning_of(at_[3]);
            if ((a | b | c | d) >= space)
                break;
            if (!put(a << 18 | b << 12 | c << 6 | d, 3))
                return false;
            at_ += 4;
        }
        return true;
    }

    // The upper `count` octets of 24 bits.
    bool put(uint32_t bits, size_t count) {
        if (room_ - used_ < count)
            return false;
        for (size_t i = 0; i < count; ++i)
            to_[used_ + i] = static_cast<uint8_t>(bits >> (16 - 8 * i));
        used_ += count;
        return true;
    }

    // The last quantum: its padding is there, nothing follows, and the bits that mean nothing are 0.
    int64_t finish(uint32_t bits, int digits) {
        if (digits == 1)
            return -1;
        if (digits > 1) {
            bits <<= 6 * (4 - digits);
            for (int i = digits; i < 4; ++i, ++at_)
                if (next_meaning() != padding)
                    return -1;
            const auto octets = static_cast<size_t>(digits - 1);
            if ((bits & (0xFFFFFFU >> (8 * octets))) != 0 || !put(bits, octets))
                return -1;
        }
        next_meaning();
        return at_ == end_ ? static_cast<int64_t>(used_) : -1;
    }

    const char *at_;
    const char *end_;
    bool ignore_space_;
    uint8_t *to_;
    size_t room_;
    size_t used_ = 0;
};

} // namespace

size_t base64_length(size_t octets, size_t line_length) {
    const size_t digits = product(octets / 3 + (octets % 3 != 0 ? 1 : 0), 4);
    if (line_length == 0 || digits == 0)
        return digits;
    return sum(digits, (digits - 1) / line_length + 1);
}

char *write_base64(char *to, const uint8_t *octets, size_t count, size_t line_length) {
    size_t column = 0;
    const auto put = [&](char c) {
        *to++ = c;
        if (line_length != 0 && ++column == line_length) {
            *to++ = '\n';
            column = 0;
        }
    };
    for (; count > 0; octets += 3) {
        const size_t here = std::min<size_t>(count, 3);
        uint32_t bits = 0;
        for (size_t i = 0; i < 3; ++i)
            bits = bits << 8 | (i < here ? octets[i] : 0U);
        put(alphabet[bits >> 18]);
        put(alphabet[bits >> 12 & 0x3F]);
        put(here > 1 ? alphabet[bits >> 6 & 0x3F] : '=');
        put(here > 2 ? alphabet[bits & 0x3F] : '=');
        count -= here;
    }
    if (column > 0)
        *to++ = '\n';
    return to;
}

} // namespace kovra::util

using namespace kovra::util;

char *kovra_base64encode(const void *data, int32_t length, int32_t line_length, int64_t *out_length) noexcept {
    if (out_length != nullptr)
        *out_length = 0;
    if (length < 0 || line_length < 0 || (data == nullptr && length > 0))
        return nullptr;
    const auto line = static_cast<size_t>(line_length);
    const auto count = static_cast<size_t>(length);
    const size_t size = base64_length(count, line);
    auto *text = static_cast<char *>(kovra_malloc(kovra::sum(size, 1), module, __LINE__));
    if (text == nullptr)
        return nullptr;
    *write_base64(text, static_cast<const uint8_t *>(data), count, line) = '\0';
    if (out_length != nullptr)
        *out_length = static_cast<int64_t>(size);
    return text;
}

void *kovra_base64decode(const char *text, int64_t length, int32_t mode, int32_t *out_length) noexcept {
    if (out_length != nullptr)
        *out_length = 0;
    if (length < 0 || length > PTRDIFF_MAX || (text == nullptr && length > 0) ||
        (mode != KOVRA_BASE64_STRICT && mode != KOVRA_BASE64_IGNORE_SPACE))
        return nullptr;
    if (length == 0)
        return kovra_malloc(1, module, __LINE__);
    const auto room = static_cast<size_t>(std::min<int64_t>(length / 4 * 3, INT32_MAX));
    auto *octets = static_cast<uint8_t *>(kovra_malloc(room, module, __LINE__));
    if (octets == nullptr)
        return nullptr;
    const int64_t count =
        Decoder(text, static_cast<size_t>(length), mode == KOVRA_BASE64_IGNORE_SPACE, octets, room).decode();
    if (count < 0) {
        kovra_free(octets);
        return nullptr;
    }
    if (out_length != nullptr)
        *out_length = static_cast<int32_t>(count);
    return octets;
}
