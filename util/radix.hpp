// Conversion of large numbers between base 2^32 and base 10^9.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kovra::util {

// Digits of either base, least significant first; released with kovra_free.
struct Digits {
    uint32_t *values = nullptr; // null when memory was short
    size_t count = 0;           // may include leading zeros
};

// Both split the number in halves and join the converted halves by multiplying: plainly, by Karatsuba's method or by
// transforms (util/transform.hpp). n digits cost O(n log^2 n) steps and 14n digits of memory at most, the result
// included.
Digits binary_to_decimal(const uint32_t *values, size_t count);
Digits decimal_to_binary(const uint32_t *values, size_t count);

} // namespace kovra::util
