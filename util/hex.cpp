#include "base/sizes.hpp"
#include "kovra/util_coding.h"
#include "kovra/util_memory.h"

namespace kovra::util {
namespace {

constexpr const char *module = "UTIL_Hex";
constexpr char lower_digits[] = "0123456789abcdef";
constexpr char upper_digits[] = "0123456789ABCDEF";
constexpr uint32_t no_digit = 0x100;

constexpr uint32_t value_of(char c) {
    if (c >= '0' && c <= '9')
        return static_cast<uint32_t>(c - '0');
    if (c >= 'a' && c <= 'f')
        return static_cast<uint32_t>(c - 'a' + 10);
    if (c >= 'A' && c <= 'F')
        return static_cast<uint32_t>(c - 'A' + 10);
    return no_digit;
}

struct Values {
    uint16_t of[256];
};

constexpr Values values = []() {
    Values table{};
    for (int i = 0; i < 256; ++i)
        table.of[i] = static_cast<uint16_t>(value_of(static_cast<char>(i)));
    return table;
}();

} // namespace
} // namespace kovra::util

using namespace kovra::util;

char *kovra_hexencode(const void *data, int32_t length, int32_t mode, int64_t *out_length) noexcept {
    if (out_length != nullptr)
        *out_length = 0;
    if (length < 0 || (data == nullptr && length > 0) || (mode != KOVRA_HEX_LOWER && mode != KOVRA_HEX_UPPER))
        return nullptr;
    const char *digits = mode == KOVRA_HEX_LOWER ? lower_digits : upper_digits;
    const auto *octets = static_cast<const uint8_t *>(data);
    const auto count = static_cast<size_t>(length);
    auto *text = static_cast<char *>(kovra_malloc(kovra::sum(kovra::product(count, 2), 1), module, __LINE__));
    if (text == nullptr)
        return nullptr;
    for (size_t i = 0; i < count; ++i) {
        text[2 * i] = digits[octets[i] >> 4];
        text[2 * i + 1] = digits[octets[i] & 0xF];
    }
    text[2 * count] = '\0';
    if (out_length != nullptr)
        *out_length = int64_t{length} * 2;
    return text;
}

void *kovra_hexdecode(const char *text, int64_t length, int32_t *out_length) noexcept {
    if (out_length != nullptr)
        *out_length = 0;
    if (length < 0 || length % 2 != 0 || length / 2 > INT32_MAX || (text == nullptr && length > 0))
        return nullptr;
    const auto count = static_cast<size_t>(length / 2);
    auto *octets = static_cast<uint8_t *>(kovra_malloc(count, module, __LINE__));
    if (octets == nullptr)
        return nullptr;
    for (size_t i = 0; i < count; ++i) {
        const uint32_t high = values.of[static_cast<uint8_t>(text[2 * i])];
        const uint32_t low = values.of[static_cast<uint8_t>(text[2 * i + 1])];
        if ((high | low) >= no_digit) {
            kovra_free(octets);
            return nullptr;
        }
        octets[i] = static_cast<uint8_t>(high << 4 | low);
    }
    if (out_length != nullptr)
        *out_length = static_cast<int32_t>(count);
    return octets;
}
