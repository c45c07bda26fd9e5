// What the tests of the codec share: octets from hexadecimal, input streams that tell how far they were read, and
// calls that give result, octets and the whole chain of error codes at once.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/thresholds.hpp"
#include "kovra/asn1.h"
#include "kovra/util.h"
#include "tests/util_handles.hpp"

namespace kovra::test {

// Octets of hexadecimal digits; everything else is decoration.
inline std::string octets(std::string_view hex) {
    std::string result;
    int high = -1;
    for (char c : hex) {
        int digit = c >= '0' && c <= '9' ? c - '0' : c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
        if (digit < 0)
            continue;
        if (high < 0) {
            high = digit;
        } else {
            result += static_cast<char>(high * 16 + digit);
            high = -1;
        }
    }
    return result;
}

inline std::string hex(std::string_view octets) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string result;
    for (char c : octets) {
        auto octet = static_cast<unsigned char>(c);
        result += digits[octet >> 4];
        result += digits[octet & 15];
    }
    return result;
}

inline std::string repeated(std::string_view octets, size_t times) {
    std::string result;
    result.reserve(octets.size() * times);
    for (size_t i = 0; i < times; ++i)
        result += octets;
    return result;
}

// A number in four octets, as lengths are where they need not be short.
inline std::string in_four_octets(size_t number) {
    std::string result;
    for (int shift = 24; shift >= 0; shift -= 8)
        result += static_cast<char>(number >> shift);
    return result;
}

// Contents in streams from this size on are written in segments of that many octets.
inline constexpr auto segmented_from = threshold<size_t>(0x500000, 40);
inline constexpr auto segment = threshold<size_t>(8192, 3);

// The segments of a string, OCTET STRINGs or BIT STRINGs whose last has the unused bits, and the end-of-contents.
inline std::string in_segments(std::string_view data, int unused_bits = -1) {
    std::string result;
    for (; !data.empty(); data.remove_prefix(std::min(data.size(), segment))) {
        const std::string_view piece = data.substr(0, segment);
        const size_t length = piece.size() + (unused_bits >= 0 ? 1 : 0);
        result += unused_bits >= 0 ? '\3' : '\4';
        if (length >= 0x80)
            result += length > 0xFF ? std::string{'\x82', static_cast<char>(length >> 8)} : "\x81";
        result += static_cast<char>(length);
        if (unused_bits >= 0)
            result += static_cast<char>(piece.size() == data.size() ? unused_bits : 0);
        result += piece;
    }
    return result + std::string(2, '\0');
}

// A chain of error codes, the innermost first.
struct Codes : std::vector<int32_t> {
    using std::vector<int32_t>::vector;
    Codes(const kovra_err_ctx *ctx) {
        for (int32_t i = 0, code = 0; kovra_err_ctx_getentry(ctx, i, nullptr, nullptr, &code, nullptr); ++i)
            push_back(code);
    }
    friend std::ostream &operator<<(std::ostream &out, const Codes &codes) {
        out << '{' << std::hex;
        for (size_t i = 0; i < codes.size(); ++i)
            i < 12 ? out << " 0x" << codes[i] : out << '.';
        return out << std::dec << " }";
    }
};
inline void PrintTo(const Codes &codes, std::ostream *out) {
    *out << codes;
}

// As tables have them, each behind a blank.
inline std::string listed(const Codes &codes) {
    std::ostringstream text;
    for (const int32_t code : codes)
        text << ' ' << std::hex << code;
    return text.str();
}

// A place for a value that shows when it was not written.
inline kovra_asn1_value *unwritten() {
    static char mark;
    return reinterpret_cast<kovra_asn1_value *>(&mark);
}

// Octets in a buffer that ends where they end, as a stream: in memory, or through a callback that gives one octet at a
// time, knows no size and cannot be rewound. `stop` makes the callback refuse, with `refusal`, from that octet on.
enum class Feed { memory, trickle };

class Input {
public:
    explicit Input(std::string_view data, Feed feed = Feed::memory, size_t stop = SIZE_MAX, int32_t refusal = 0)
        : copy_(new char[data.size()]), size_(data.size()), stop_(stop), refusal_(refusal) {
        std::memcpy(copy_.get(), data.data(), data.size());
        kovra_stream_callbacks callbacks = {};
        callbacks.read = read;
        stream_.reset(feed == Feed::memory
                          ? kovra_stream_new_romem(copy_.get(), static_cast<int64_t>(size_), 0, nullptr)
                          : kovra_stream_new_callbacks(&callbacks, this, nullptr));
    }
    Input(const Input &) = delete;
    kovra_stream *stream() const { return stream_.get(); }
    int64_t reads() const { return reads_; }
    size_t consumed() const {
        const uint8_t *rest = nullptr;
        int64_t length = 0;
        return kovra_stream_peek(stream_.get(), &rest, &length) == 1 ? size_ - static_cast<size_t>(length) : position_;
    }

private:
    static int32_t read(void *user, void *buffer, int32_t size, int32_t *out_count) {
        Input &self = *static_cast<Input *>(user);
        ++self.reads_;
        *out_count = 0;
        if (self.position_ >= self.stop_)
            return self.refusal_;
        if (self.position_ < self.size_ && size > 0) {
            *static_cast<char *>(buffer) = self.copy_[self.position_++];
            *out_count = 1;
        }
        return 1;
    }
    std::unique_ptr<char[]> copy_;
    size_t size_;
    size_t stop_;
    int32_t refusal_;
    size_t position_ = 0;
    int64_t reads_ = 0;
    Stream stream_;
};

inline Stream memory_stream() {
    return Stream(kovra_stream_new_mem(64, nullptr));
}

// All octets of a growable memory stream, which is empty afterwards.
inline std::string taken(const Stream &stream) {
    int64_t length = 0;
    Memory<void> data(kovra_memstreamdeatch(stream.get(), &length));
    return {static_cast<const char *>(data.get()), static_cast<size_t>(length)};
}

struct Decoded {
    int32_t result = 0;
    Value value;
    int32_t read = -7;
    size_t consumed = 0;
    Codes codes;
};

// Calls `decoder(stream, out_value, out_read, ctx)` and checks what holds for every decoder: nothing comes out of a
// failure, and a success has read what it says.
template <class Decoder> Decoded decode_with(uint32_t type, const Input &input, Decoder decoder) {
    Decoded decoded;
    Errors ctx(kovra_err_ctx_new());
    bool without_record = type == KOVRA_ASN1_TYPE_END_OF_CONTENTS || type == KOVRA_ASN1_TYPE_NULL;
    kovra_asn1_value *value = without_record ? nullptr : unwritten();
    decoded.result = decoder(input.stream(), &value, &decoded.read, ctx.get());
    decoded.consumed = input.consumed();
    decoded.codes = ctx.get();
    if (decoded.result == 1) {
        EXPECT_EQ(static_cast<size_t>(decoded.read), decoded.consumed);
        EXPECT_NE(value, unwritten());
        decoded.value = Value(type, value);
    } else {
        EXPECT_TRUE(value == nullptr || type >= KOVRA_ASN1_TYPE_COUNT) << "after a failure";
        EXPECT_EQ(decoded.read, -7) << "after a failure";
    }
    return decoded;
}

inline Decoded decode(uint32_t type, const Input &input) {
    return decode_with(type, input, [type](auto *stream, auto **out, auto *read, auto *ctx) {
        return kovra_asn1_decode(stream, type, out, read, ctx);
    });
}

inline Decoded decode(uint32_t type, std::string_view data, Feed feed = Feed::memory) {
    return decode(type, Input(data, feed));
}

inline Value decoded(uint32_t type, std::string_view hex) {
    return decode(type, octets(hex)).value;
}

inline Decoded decode_content(uint32_t type, std::string_view data, int32_t form, int32_t length) {
    return decode_with(type, Input(data), [=](auto *stream, auto **out, auto *read, auto *ctx) {
        return kovra_asn1_decode_content(stream, type, out, form, length, read, ctx);
    });
}

struct Encoded {
    int32_t result = 0;
    std::string octets;
    Codes codes;
};

template <class Encoder> Encoded encode_with(Encoder encoder) {
    Encoded encoded;
    Errors ctx(kovra_err_ctx_new());
    Stream stream = memory_stream();
    int32_t written = -7;
    encoded.result = encoder(stream.get(), &written, ctx.get());
    encoded.octets = taken(stream);
    encoded.codes = ctx.get();
    if (encoded.result == 1) {
        EXPECT_EQ(static_cast<size_t>(written), encoded.octets.size());
    } else {
        EXPECT_EQ(written, -7) << "after a failure";
    }
    return encoded;
}

inline Encoded encode(uint32_t type, const kovra_asn1_value *value) {
    return encode_with(
        [=](auto *stream, auto *written, auto *ctx) { return kovra_asn1_encode(stream, type, value, written, ctx); });
}

inline Encoded encode_content(uint32_t type, const kovra_asn1_value *value, int32_t length) {
    return encode_with([=](auto *stream, auto *written, auto *ctx) {
        return kovra_asn1_encode_content(stream, type, value, length, written, ctx);
    });
}

inline std::string encoding(const Value &value) {
    return hex(encode(value.type(), value.get()).octets);
}

// The lines of a file in tests/data, without comments, as fields without the blanks around them.
inline std::vector<std::vector<std::string>> table(const std::string &name) {
    std::vector<std::vector<std::string>> rows;
    std::ifstream file(KOVRA_SOURCE_DIR "/tests/data/" + name);
    EXPECT_TRUE(file) << name;
    for (std::string line; std::getline(file, line);) {
        line.erase(std::min(line.find('#'), line.size()));
        if (line.find_first_not_of(' ') == line.npos)
            continue;
        std::vector<std::string> row;
        std::istringstream fields(line);
        for (std::string field; std::getline(fields, field, ';');) {
            field.erase(0, field.find_first_not_of(' '));
            row.push_back(field.substr(0, field.find_last_not_of(' ') + 1));
        }
        rows.push_back(row);
    }
    return rows;
}

// What stands before and behind an arrow.
inline std::pair<std::string, std::string> sides_of(const std::string &field) {
    const size_t arrow = field.find("->");
    std::string left = field.substr(0, arrow), right = field.substr(std::min(arrow + 2, field.size()));
    left.erase(left.find_last_not_of(' ') + 1);
    right.erase(0, right.find_first_not_of(' '));
    return {left, right};
}

// What stands between commas.
inline std::vector<std::string> parts_of(const std::string &field) {
    std::vector<std::string> parts;
    std::istringstream text(field);
    for (std::string part; std::getline(text, part, ',');)
        parts.push_back(part);
    return parts.empty() ? std::vector<std::string>{""} : parts;
}

} // namespace kovra::test
