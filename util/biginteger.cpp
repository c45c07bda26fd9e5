#include "kovra/util_biginteger.h"

#include <algorithm>

#include "base/handle.hpp"
#include "base/sizes.hpp"
#include "util/radix.hpp"

using namespace kovra;
using namespace kovra::util;

// The content octets follow the record in the same block; there is at least one.
struct kovra_biginteger {
    static constexpr uint32_t magic_of_type = magic_word("BIGI");
    uint32_t magic;
    int32_t length;
};

namespace kovra::util {
namespace {

constexpr const char *module = "UTIL_BigInteger";
constexpr size_t decimals_per_digit = 9;
constexpr size_t nibbles_per_digit = 8;

uint8_t *octets_of(kovra_biginteger *number) {
    return reinterpret_cast<uint8_t *>(number + 1);
}
const uint8_t *octets_of(const kovra_biginteger *number) {
    return reinterpret_cast<const uint8_t *>(number + 1);
}

struct Octets {
    const uint8_t *data;
    size_t length;

    [[nodiscard]] bool negative() const { return data[0] >= 0x80; }
};

// Without the leading octets that only repeat the sign.
Octets minimal(Octets number) {
    // The analyzer loses sight of what was written from the last octet to the first.
    // NOLINTNEXTLINE(clang-analyzer-core.UndefinedBinaryOperatorResult)
    while (number.length > 1 && number.data[0] == (number.data[1] < 0x80 ? 0x00 : 0xFF)) {
        ++number.data;
        --number.length;
    }
    return number;
}

Octets value_of(const kovra_biginteger *number) {
    return minimal({octets_of(number), static_cast<size_t>(number->length)});
}

uint32_t *new_digits(size_t count) {
    return static_cast<uint32_t *>(kovra_malloc(product(count, sizeof(uint32_t)), module, __LINE__));
}

size_t without_leading_zeros(const uint32_t *digits, size_t count) {
    while (count > 0 && digits[count - 1] == 0)
        --count;
    return count;
}

// The absolute value in base 2^32.
Digits magnitude(Octets number) {
    const size_t count = (number.length + 3) / 4;
    uint32_t *digits = new_digits(count);
    if (digits == nullptr)
        return {};
    std::fill_n(digits, count, 0U);
    const bool negative = number.negative();
    uint32_t carry = 1; // a negation inverts and adds 1
    for (size_t i = 0; i < number.length; ++i) {
        uint32_t octet = number.data[number.length - 1 - i];
        if (negative) {
            octet = (octet ^ 0xFF) + carry;
            carry = octet >> 8;
            octet &= 0xFF;
        }
        digits[i / 4] |= octet << (i % 4 * 8);
    }
    return {digits, without_leading_zeros(digits, count)};
}

// The number of this absolute value in base 2^32 and sign, in as few octets as possible.
kovra_biginteger *from_magnitude(const uint32_t *digits, size_t count, bool negative) {
    count = without_leading_zeros(digits, count);
    if (count >= INT32_MAX / 4)
        return nullptr;
    const size_t length = count * 4 + 1; // one octet more, for the sign
    auto *number = make_record<kovra_biginteger>(module, length);
    if (number == nullptr)
        return nullptr;
    uint8_t *octets = octets_of(number);
    octets[0] = 0;
    uint32_t carry = 1;
    for (size_t i = 0; i < length; ++i) {
        uint32_t octet = i == length - 1 ? 0 : digits[i / 4] >> (i % 4 * 8) & 0xFF;
        if (negative) {
            octet = (octet ^ 0xFF) + carry;
            carry = octet >> 8;
        }
        octets[length - 1 - i] = static_cast<uint8_t>(octet);
    }
    const Octets kept = minimal({octets, length});
    std::memmove(octets, kept.data, kept.length);
    number->length = static_cast<int32_t>(kept.length);
    return number;
}

// Text of digits that are `places` characters wide each in the base of the text, without leading zeros.
char *to_text(const uint32_t *digits, size_t count, size_t places, uint32_t text_base, bool negative) {
    count = without_leading_zeros(digits, count);
    auto *text = static_cast<char *>(kovra_malloc(sum(product(count, places), 3), module, __LINE__));
    if (text == nullptr)
        return nullptr;
    char *end = text;
    if (negative)
        *end++ = '-';
    char *const first = end;
    for (size_t i = count; i > 0; --i) {
        uint32_t rest = digits[i - 1];
        for (size_t place = places; place > 0; --place, rest /= text_base)
            end[place - 1] = "0123456789abcdef"[rest % text_base];
        end += places;
    }
    const char *kept = first;
    while (kept < end && *kept == '0')
        ++kept;
    const auto length = static_cast<size_t>(end - kept);
    std::memmove(first, kept, length);
    end = first + length;
    if (length == 0)
        *end++ = '0';
    *end = '\0';
    return text;
}

int32_t digit_value(char c, uint32_t text_base) {
    int32_t value = -1;
    if (c >= '0' && c <= '9')
        value = c - '0';
    else if (c >= 'a' && c <= 'f')
        value = c - 'a' + 10;
    else if (c >= 'A' && c <= 'F')
        value = c - 'A' + 10;
    return value < static_cast<int32_t>(text_base) ? value : -1;
}

// The text's digits, `places` characters to each, least significant first; the sign is set. None for anything but an
// optional minus sign and one or more digits.
Digits from_text(const char *text, size_t places, uint32_t text_base, bool &negative) {
    negative = *text == '-';
    if (negative)
        ++text;
    const size_t length = std::strlen(text);
    if (length == 0)
        return {};
    const size_t count = (length - 1) / places + 1;
    uint32_t *digits = new_digits(count);
    if (digits == nullptr)
        return {};
    std::fill_n(digits, count, 0U);
    for (size_t i = 0; i < length; ++i) {
        const int32_t value = digit_value(text[i], text_base);
        if (value < 0) {
            kovra_free(digits);
            return {};
        }
        uint32_t &digit = digits[(length - 1 - i) / places];
        digit = digit * text_base + static_cast<uint32_t>(value);
    }
    return {digits, count};
}

} // namespace
} // namespace kovra::util

kovra_biginteger *kovra_biginteger_newdata(const void *data, int32_t length) noexcept {
    if (data == nullptr || length < 1)
        return nullptr;
    auto *number = make_record<kovra_biginteger>(module, static_cast<size_t>(length));
    if (number == nullptr)
        return nullptr;
    number->length = length;
    std::memcpy(octets_of(number), data, static_cast<size_t>(length));
    return number;
}

kovra_data_blob *kovra_biginteger_getdata(const kovra_biginteger *number) noexcept {
    return is_valid(number) ? kovra_data_blob_new(octets_of(number), number->length) : nullptr;
}

kovra_biginteger *kovra_biginteger_dup(const kovra_biginteger *number) noexcept {
    return is_valid(number) ? kovra_biginteger_newdata(octets_of(number), number->length) : nullptr;
}

void kovra_biginteger_free(kovra_biginteger *number) noexcept {
    if (is_valid(number))
        release_record(number);
}

int32_t kovra_biginteger_compare(const kovra_biginteger *left, const kovra_biginteger *right,
                                 int32_t *out_order) noexcept {
    if (!is_valid(left) || !is_valid(right) || out_order == nullptr)
        return 0;
    const Octets a = value_of(left);
    const Octets b = value_of(right);
    // Of two negative numbers the longer is the lesser; at equal length and sign the octets decide for both signs.
    int order = 0;
    if (a.negative() != b.negative())
        order = a.negative() ? -1 : 1;
    else if (a.length != b.length)
        order = (a.length < b.length) != a.negative() ? -1 : 1;
    else
        order = std::memcmp(a.data, b.data, a.length);
    *out_order = order < 0 ? -1 : (order > 0 ? 1 : 0);
    return 1;
}

char *kovra_biginteger_todecimal(const kovra_biginteger *number) noexcept {
    if (!is_valid(number))
        return nullptr;
    const Octets value = value_of(number);
    const Digits binary = magnitude(value);
    if (binary.values == nullptr)
        return nullptr;
    const Digits decimal = binary_to_decimal(binary.values, binary.count);
    kovra_free(binary.values);
    if (decimal.values == nullptr)
        return nullptr;
    char *text = to_text(decimal.values, decimal.count, decimals_per_digit, 10, value.negative());
    kovra_free(decimal.values);
    return text;
}

char *kovra_biginteger_tohex(const kovra_biginteger *number) noexcept {
    if (!is_valid(number))
        return nullptr;
    const Octets value = value_of(number);
    const Digits binary = magnitude(value);
    if (binary.values == nullptr)
        return nullptr;
    char *text = to_text(binary.values, binary.count, nibbles_per_digit, 16, value.negative());
    kovra_free(binary.values);
    return text;
}

kovra_biginteger *kovra_biginteger_newdecimal(const char *text) noexcept {
    if (text == nullptr)
        return nullptr;
    bool negative = false;
    const Digits decimal = from_text(text, decimals_per_digit, 10, negative);
    if (decimal.values == nullptr)
        return nullptr;
    const Digits binary = decimal_to_binary(decimal.values, decimal.count);
    kovra_free(decimal.values);
    if (binary.values == nullptr)
        return nullptr;
    kovra_biginteger *number = from_magnitude(binary.values, binary.count, negative);
    kovra_free(binary.values);
    return number;
}

kovra_biginteger *kovra_biginteger_newhex(const char *text) noexcept {
    if (text == nullptr)
        return nullptr;
    bool negative = false;
    const Digits binary = from_text(text, nibbles_per_digit, 16, negative);
    if (binary.values == nullptr)
        return nullptr;
    kovra_biginteger *number = from_magnitude(binary.values, binary.count, negative);
    kovra_free(binary.values);
    return number;
}
