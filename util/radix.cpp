#include "util/radix.hpp"

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/sizes.hpp"
#include "base/thresholds.hpp"
#include "kovra/util_memory.h"
#include "util/transform.hpp"

namespace kovra::util {
namespace {

constexpr const char *module = "UTIL_BigInteger";

// `per_other` is the number of digits that one digit of the other base takes, in ten-thousandths, rounded up.
struct Binary {
    static constexpr uint64_t base = uint64_t{1} << 32;
    static constexpr size_t per_other = 9343;
};
struct Decimal {
    static constexpr uint64_t base = 1'000'000'000;
    static constexpr size_t per_other = 10704;
};

// Digits up to which the plain methods are faster. A converted chunk is short enough for a plain product, and all
// longer factors are such a length doubled several times.
constexpr auto plain_conversion = threshold<size_t>(28, 1);
constexpr auto plain_product = threshold<size_t>(32, 2);
// Between these a product is made by transforms.
constexpr auto transformed_from = threshold<size_t>(1024, 4);
constexpr auto transformed_to = threshold<size_t>(Columns::most_digits, 64);
static_assert(plain_conversion * Decimal::per_other / 10000 + 1 <= plain_product);

// to += from; the carry out.
template <class Base> uint32_t add(uint32_t *to, const uint32_t *from, size_t count) {
    uint32_t carry = 0;
    for (size_t i = 0; i < count; ++i) {
        const uint64_t sum = uint64_t{to[i]} + from[i] + carry;
        carry = sum >= Base::base ? 1 : 0;
        to[i] = static_cast<uint32_t>(carry != 0 ? sum - Base::base : sum);
    }
    return carry;
}

template <class Base> void add_carry(uint32_t *to, uint32_t carry) {
    for (; carry != 0; ++to) {
        const uint64_t sum = uint64_t{*to} + carry;
        carry = sum >= Base::base ? 1 : 0;
        *to = static_cast<uint32_t>(carry != 0 ? sum - Base::base : sum);
    }
}

// to = left - right; the borrow out. `to` may be either of them.
template <class Base> uint32_t subtract(uint32_t *to, const uint32_t *left, const uint32_t *right, size_t count) {
    uint32_t borrow = 0;
    for (size_t i = 0; i < count; ++i) {
        const uint64_t taken = uint64_t{right[i]} + borrow;
        borrow = left[i] < taken ? 1 : 0;
        to[i] = static_cast<uint32_t>(left[i] + (borrow != 0 ? Base::base : 0) - taken);
    }
    return borrow;
}

// to = |left - right|; true when the difference is negative.
template <class Base> bool difference(uint32_t *to, const uint32_t *left, const uint32_t *right, size_t count) {
    size_t top = count;
    while (top > 0 && left[top - 1] == right[top - 1])
        --top;
    const bool negative = top > 0 && left[top - 1] < right[top - 1];
    subtract<Base>(to, negative ? right : left, negative ? left : right, count);
    return negative;
}

template <class Base>
void multiply_plainly(uint32_t *product, const uint32_t *left, const uint32_t *right, size_t count) {
    std::memset(product, 0, 2 * count * sizeof *product);
    for (size_t i = 0; i < count; ++i) {
        uint64_t carry = 0;
        for (size_t j = 0; j < count; ++j) {
            const uint64_t sum = uint64_t{left[i]} * right[j] + product[i + j] + carry;
            product[i + j] = static_cast<uint32_t>(sum % Base::base);
            carry = sum / Base::base;
        }
        product[i + count] = static_cast<uint32_t>(carry);
    }
}

// Dividing by 10^9 is expensive: each column is summed as a whole and divided once. Its sum fits 64 bits when multiples
// of 10^18 are taken out of it on the way.
template <>
void multiply_plainly<Decimal>(uint32_t *product, const uint32_t *left, const uint32_t *right, size_t count) {
    constexpr uint64_t much = 8 * Decimal::base * Decimal::base; // two products more still fit
    uint64_t carry = 0;
    for (size_t column = 0; column + 1 < 2 * count; ++column) {
        uint64_t sum = 0;
        uint64_t next = 0;
        const size_t last = column < count ? column : count - 1;
        for (size_t i = column - last; i <= last; ++i) {
            sum += uint64_t{left[i]} * right[column - i];
            if (sum >= much) {
                sum -= much;
                next += 8 * Decimal::base;
            }
        }
        sum += carry;
        product[column] = static_cast<uint32_t>(sum % Decimal::base);
        carry = sum / Decimal::base + next;
    }
    product[2 * count - 1] = static_cast<uint32_t>(carry);
}

// The columns with their carries.
template <class Base>
void multiply_by_transform(uint32_t *product, const uint32_t *left, const uint32_t *right, size_t count,
                           uint32_t *room) {
    const Columns columns(left, right, count, room);
    uint64_t carry = 0;
    for (size_t i = 0; i < 2 * count; ++i) {
        const Column column = columns[i];
        const uint64_t low = column.low + carry;
        const uint64_t high = (uint64_t{column.high} + (low < carry ? 1 : 0)) << 32 | low >> 32;
        const uint64_t rest = high % Base::base << 32 | (low & UINT32_MAX);
        product[i] = static_cast<uint32_t>(rest % Base::base);
        carry = (high / Base::base << 32) + rest / Base::base;
    }
}

// Between the plain way and transforms, and above them, Karatsuba: a0 b1 + a1 b0 = a0 b0 + a1 b1 + (a0 - a1)(b1 - b0).
// The product has 2 * count digits, the scratch room as many. A count above plain_product is even, and so is its half
// while above it. Depth: log2 of the count.
template <class Base>
// NOLINTNEXTLINE(misc-no-recursion)
void multiply(uint32_t *product, const uint32_t *left, const uint32_t *right, size_t count, uint32_t *scratch,
              uint32_t *room) {
    if (count <= plain_product)
        return multiply_plainly<Base>(product, left, right, count);
    if (count >= transformed_from && count <= transformed_to)
        return multiply_by_transform<Base>(product, left, right, count, room);
    const size_t half = count / 2;
    const bool left_negative = difference<Base>(product, left, left + half, half);
    const bool right_negative = difference<Base>(product + half, right + half, right, half);
    multiply<Base>(scratch, product, product + half, half, scratch + count, room);
    multiply<Base>(product, left, right, half, scratch + count, room);
    multiply<Base>(product + count, left + half, right + half, half, scratch + count, room);

    // A borrow makes `carry` wrap below 0; the carries that are added next bring it back to 0 or above.
    uint32_t carry = left_negative != right_negative ? 0 - subtract<Base>(scratch, product, scratch, count)
                                                     : add<Base>(scratch, product, count);
    carry += add<Base>(scratch, product + count, count);
    carry += add<Base>(product + half, scratch, count);
    add_carry<Base>(product + half + count, carry);
}

// Writes `width` digits, enough for the number; quadratic.
template <class From, class To> void convert_plainly(uint32_t *to, size_t width, const uint32_t *from, size_t count) {
    std::memset(to, 0, width * sizeof *to);
    size_t used = 0;
    while (count > 0) {
        uint64_t carry = from[--count];
        for (size_t i = 0; i < used; ++i) {
            const uint64_t sum = to[i] * From::base + carry;
            to[i] = static_cast<uint32_t>(sum % To::base);
            carry = sum / To::base;
        }
        for (; carry != 0; carry /= To::base)
            to[used++] = static_cast<uint32_t>(carry % To::base);
    }
}

bool is_zero(const uint32_t *values, size_t count) {
    for (size_t i = 0; i < count; ++i)
        if (values[i] != 0)
            return false;
    return true;
}

template <class From, class To> Digits convert(const uint32_t *values, size_t count) {
    // 2^levels chunks of equal size, each of `width` digits when converted; then neighbours are joined, level by level.
    size_t chunk = count;
    size_t levels = 0;
    for (; chunk > plain_conversion; ++levels)
        chunk = chunk / 2 + chunk % 2;
    const size_t width = chunk * To::per_other / 10000 + 1;
    const size_t total = product(width, size_t{1} << levels);
    auto *result = static_cast<uint32_t *>(kovra_malloc(product(total, sizeof(uint32_t)), module, __LINE__));
    if (result == nullptr)
        return {};
    for (size_t i = 0; i < size_t{1} << levels; ++i) {
        const size_t begin = chunk * i;
        const size_t here = begin >= count ? 0 : (count - begin < chunk ? count - begin : chunk);
        convert_plainly<From, To>(result + width * i, width, values + (here > 0 ? begin : 0), here);
    }
    if (levels > 0) {
        // A product and its scratch room, two powers of half that size, and the room for a transform.
        const size_t factor = std::min(total / 2, transformed_to);
        const size_t words = sum(kovra::product(3, total), factor < transformed_from ? 0 : Columns::room_for(factor));
        auto *work = static_cast<uint32_t *>(kovra_malloc(kovra::product(words, sizeof(uint32_t)), module, __LINE__));
        if (work == nullptr) {
            kovra_free(result);
            return {};
        }
        uint32_t *product = work;
        uint32_t *scratch = product + total;
        uint32_t *power = scratch + total; // the number that an upper half is multiplied by
        uint32_t *next_power = power + total / 2;
        uint32_t *room = next_power + total / 2;
        uint32_t unit[plain_conversion + 1] = {};
        unit[chunk] = 1;
        convert_plainly<From, To>(power, width, unit, chunk + 1);
        for (size_t size = width; size < total; size *= 2) {
            for (uint32_t *low = result; low < result + total; low += 2 * size) {
                uint32_t *high = low + size;
                if (is_zero(high, size))
                    continue;
                multiply<To>(product, high, power, size, scratch, room);
                add_carry<To>(product + size, add<To>(product, low, size));
                std::memcpy(low, product, 2 * size * sizeof *low);
            }
            if (2 * size < total) {
                multiply<To>(next_power, power, power, size, scratch, room);
                std::swap(power, next_power);
            }
        }
        kovra_free(work);
    }
    return {result, total};
}

} // namespace

Digits binary_to_decimal(const uint32_t *values, size_t count) {
    return convert<Binary, Decimal>(values, count);
}

Digits decimal_to_binary(const uint32_t *values, size_t count) {
    return convert<Decimal, Binary>(values, count);
}

} // namespace kovra::util
