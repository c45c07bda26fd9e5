#include "util/transform.hpp"

#include <algorithm>
#include <array>
#include <bit>

namespace kovra::util {
namespace {

// The field of the numbers below a prime, whose multiplicative group has 2^order-th roots of unity. Factors that stay
// are kept multiplied by 2^32, which is what a product loses.
template <uint32_t prime_, uint32_t generator> struct Field {
    static constexpr uint32_t prime = prime_;
    static constexpr int order = std::countr_zero(prime - 1);

    static constexpr uint32_t negative_inverse = []() {
        uint32_t inverse = 1; // of the prime, modulo 2^32: each step doubles the bits that are right
        for (int i = 0; i < 5; ++i)
            inverse *= 2 - prime * inverse;
        return 0 - inverse;
    }();

    // left * right / 2^32
    static constexpr uint32_t multiply(uint32_t left, uint32_t right) {
        const uint64_t whole = uint64_t{left} * right;
        const uint32_t multiple = static_cast<uint32_t>(whole) * negative_inverse;
        const auto result = static_cast<uint32_t>((whole + uint64_t{multiple} * prime) >> 32);
        return result >= prime ? result - prime : result;
    }
    static constexpr uint32_t add(uint32_t left, uint32_t right) {
        const uint32_t sum = left + right;
        return sum >= prime ? sum - prime : sum;
    }
    static constexpr uint32_t subtract(uint32_t left, uint32_t right) {
        return left >= right ? left - right : left + (prime - right);
    }

    static constexpr uint32_t factor(uint64_t number) { return static_cast<uint32_t>((number << 32) % prime); }
    static constexpr uint32_t one = factor(1);
    static constexpr uint32_t power(uint32_t base, uint64_t exponent) {
        uint32_t result = one;
        for (; exponent != 0; exponent >>= 1, base = multiply(base, base))
            if ((exponent & 1) != 0)
                result = multiply(result, base);
        return result;
    }
    static constexpr uint32_t inverse(uint32_t number) { return power(number, prime - 2); }

    // Block s of a level is rotated by the product of the roots of order 2^(i+2) for each bit i that s has. These lead
    // from one block to the next, by the number of bits that are cleared then.
    using Steps = std::array<uint32_t, order - 1>;
    static constexpr Steps steps(uint32_t root) {
        Steps result{};
        uint32_t cleared = one;
        for (int i = 0; i < order - 1; ++i) {
            const uint32_t set = power(root, uint64_t{1} << (order - i - 2));
            result[static_cast<size_t>(i)] = multiply(set, cleared);
            cleared = multiply(cleared, inverse(set));
        }
        return result;
    }
    static constexpr uint32_t root = power(factor(generator), (prime - 1) >> order);
    static constexpr Steps forth = steps(root);
    static constexpr Steps back = steps(inverse(root));

    // The remainder of the polynomial by x - r, for every root of unity r, in an order that untransform() knows.
    static void transform(uint32_t *values, size_t size) {
        for (size_t half = size / 2; half > 0; half /= 2) {
            uint32_t rotation = one;
            for (size_t block = 0; 2 * half * block < size; ++block) {
                uint32_t *low = values + 2 * half * block;
                uint32_t *high = low + half;
                for (size_t i = 0; i < half; ++i) {
                    const uint32_t rotated = multiply(high[i], rotation);
                    high[i] = subtract(low[i], rotated);
                    low[i] = add(low[i], rotated);
                }
                rotation = multiply(rotation, forth[static_cast<size_t>(std::countr_one(block))]);
            }
        }
    }
    // Back again, all multiplied by the size.
    static void untransform(uint32_t *values, size_t size) {
        for (size_t half = 1; half < size; half *= 2) {
            uint32_t rotation = one;
            for (size_t block = 0; 2 * half * block < size; ++block) {
                uint32_t *low = values + 2 * half * block;
                uint32_t *high = low + half;
                for (size_t i = 0; i < half; ++i) {
                    const uint32_t difference = subtract(low[i], high[i]);
                    low[i] = add(low[i], high[i]);
                    high[i] = multiply(difference, rotation);
                }
                rotation = multiply(rotation, back[static_cast<size_t>(std::countr_one(block))]);
            }
        }
    }

    static void load(uint32_t *values, size_t size, const uint32_t *digits, size_t count) {
        std::transform(digits, digits + count, values, [](uint32_t digit) { return digit % prime; });
        std::fill(values + count, values + size, 0U);
        transform(values, size);
    }
    // The columns modulo the prime; `other` is room for as many.
    static void convolve(uint32_t *columns, uint32_t *other, size_t size, const uint32_t *left, const uint32_t *right,
                         size_t count) {
        load(columns, size, left, count);
        load(other, size, right, count);
        for (size_t i = 0; i < size; ++i)
            columns[i] = multiply(columns[i], other[i]);
        untransform(columns, size);
        // Multiplying two variables has lost 2^32 once more.
        const uint32_t scale = multiply(inverse(factor(size)), factor(one));
        for (size_t i = 0; i < size; ++i)
            columns[i] = multiply(columns[i], scale);
    }
};

using First = Field<2113929217, 5>;
using Second = Field<2013265921, 31>;
using Third = Field<1811939329, 13>;

constexpr size_t largest_size = 2 * Columns::most_digits;
static_assert(largest_size < size_t{1} << std::min({First::order, Second::order, Third::order}));

size_t size_for(size_t digits) {
    return std::bit_ceil(2 * digits);
}

} // namespace

size_t Columns::room_for(size_t digits) {
    return 4 * size_for(digits);
}

Columns::Columns(const uint32_t *left, const uint32_t *right, size_t digits, uint32_t *room)
    : residues_(room), size_(size_for(digits)) {
    uint32_t *other = room + 3 * size_;
    First::convolve(room, other, size_, left, right, digits);
    Second::convolve(room + size_, other, size_, left, right, digits);
    Third::convolve(room + 2 * size_, other, size_, left, right, digits);
}

// The number below the product of the primes that has the three residues: a + First (b + Second c).
Column Columns::operator[](size_t i) const {
    static constexpr uint32_t to_second = Second::inverse(Second::factor(First::prime));
    static constexpr uint32_t to_third =
        Third::inverse(Third::factor(uint64_t{First::prime} * Second::prime % Third::prime));
    static constexpr uint32_t first_in_third = Third::factor(First::prime);
    const uint32_t a = residues_[i];
    const uint32_t b = Second::multiply(Second::subtract(residues_[size_ + i], a % Second::prime), to_second);
    const uint32_t above = Third::add(a % Third::prime, Third::multiply(b % Third::prime, first_in_third));
    const uint32_t c = Third::multiply(Third::subtract(residues_[2 * size_ + i], above), to_third);
    constexpr uint64_t both = uint64_t{First::prime} * Second::prime;
    const uint64_t lower = (both & UINT32_MAX) * c;
    const uint64_t upper = (both >> 32) * c + (lower >> 32);
    const uint64_t small = a + uint64_t{b} * First::prime;
    const uint64_t low = (upper << 32 | (lower & UINT32_MAX)) + small;
    return {low, static_cast<uint32_t>((upper >> 32) + (low < small ? 1 : 0))};
}

} // namespace kovra::util
