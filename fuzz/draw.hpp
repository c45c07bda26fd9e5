// Octets of the input in portions, and checks that end the process.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace kovra::fuzz {

// Ends the process, with what should have held, unless it does.
void check(bool holds, const char *what, const char *file = __builtin_FILE(), int line = __builtin_LINE());

// The input, from its first octet on; behind its end everything is 0 or empty.
class Draw {
public:
    Draw(const uint8_t *data, size_t size) : rest_(reinterpret_cast<const char *>(data), size) {}
    bool is_over() const { return rest_.empty(); }
    size_t left() const { return rest_.size(); }

    uint8_t octet() {
        if (rest_.empty())
            return 0;
        const auto first = static_cast<uint8_t>(rest_[0]);
        rest_.remove_prefix(1);
        return first;
    }
    uint64_t number(int octets) {
        uint64_t result = 0;
        while (octets-- > 0)
            result = result << 8 | octet();
        return result;
    }
    std::string_view octets(size_t count) {
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(taken.size());
        return taken;
    }
    std::string_view rest() { return octets(rest_.size()); }

private:
    std::string_view rest_;
};

// A copy that ends where its memory ends, so that reading behind it shows.
class Exact {
public:
    explicit Exact(std::string_view octets);
    const char *data() const { return copy_.get(); }
    size_t size() const { return size_; }
    int32_t length() const { return static_cast<int32_t>(size_); }
    std::string_view view() const { return {copy_.get(), size_}; }

private:
    std::unique_ptr<char[]> copy_;
    size_t size_;
};

} // namespace kovra::fuzz
