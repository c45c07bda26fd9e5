// Products of large numbers by number-theoretic transforms: n digits cost O(n log n) steps.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kovra::util {

// The sum over k of left[k] * right[i - k], of which `low` holds 64 bits.
struct Column {
    uint64_t low;
    uint32_t high;
};

// The columns of a product of two numbers of as many digits, each below 2^32, least significant first.
class Columns {
public:
    // More of them have no transform.
    static constexpr size_t most_digits = size_t{1} << 23;
    // Words of room for a product.
    static size_t room_for(size_t digits);

    Columns(const uint32_t *left, const uint32_t *right, size_t digits, uint32_t *room);
    // The column of number `i`, below twice the digits.
    [[nodiscard]] Column operator[](size_t i) const;

private:
    const uint32_t *residues_;
    size_t size_;
};

} // namespace kovra::util
