#include "kovra/util_ustring.h"

#include <cstring>

#include "base/handle.hpp"
#include "util/utf8.hpp"

using namespace kovra;
using namespace kovra::util;

// Held as UTF-8, in octets behind the record: UTF-8 is asked for most and then needs no conversion.
struct kovra_ustring {
    static constexpr uint32_t magic_of_type = magic_word("USTR");
    uint32_t magic;
    int32_t length; // octets
    [[nodiscard]] uint8_t *octets() { return reinterpret_cast<uint8_t *>(this + 1); }
    [[nodiscard]] const uint8_t *octets() const { return reinterpret_cast<const uint8_t *>(this + 1); }
};

namespace kovra::util {
namespace {

constexpr const char *module = "UTIL_UString";
constexpr int32_t max_length = 0x7FFFFFFF;

constexpr uint32_t ill_formed = UINT32_MAX;

// The next character of UTF-8.
uint32_t next_utf8(const uint8_t *&at, const uint8_t *end) {
    const size_t length = utf8_length_at(at, end);
    const uint32_t character = length != 0 ? utf8_character(at, length) : ill_formed;
    at += length;
    return character;
}

uint32_t big_endian(const uint8_t *octets, int count) {
    uint32_t value = 0;
    for (int i = 0; i < count; ++i)
        value = value << 8 | octets[i];
    return value;
}

uint32_t next_utf32(const uint8_t *&at, const uint8_t *) {
    const uint32_t character = big_endian(at, 4);
    at += 4;
    return is_scalar_value(character) ? character : ill_formed;
}

uint32_t next_bmp(const uint8_t *&at, const uint8_t *) {
    const uint32_t character = big_endian(at, 2);
    at += 2;
    return is_scalar_value(character) ? character : ill_formed;
}

uint32_t next_utf16(const uint8_t *&at, const uint8_t *end) {
    const uint32_t high = big_endian(at, 2);
    at += 2;
    if (is_scalar_value(high))
        return high;
    if (high > 0xDBFF || end - at < 2)
        return ill_formed;
    const uint32_t low = big_endian(at, 2);
    at += 2;
    return low >= 0xDC00 && low <= 0xDFFF ? 0x10000 + ((high & 0x3FF) << 10 | (low & 0x3FF)) : ill_formed;
}

kovra_ustring *make(int64_t length) {
    if (length > max_length)
        return nullptr;
    auto *text = make_record<kovra_ustring>(module, static_cast<size_t>(length));
    if (text != nullptr)
        text->length = static_cast<int32_t>(length);
    return text;
}

// Converts octets of which `next` reads a character at a time, in units of `unit` octets: once to see that all are good
// and how long they get, once to write them.
template <class Next> kovra_ustring *convert(const void *data, int32_t length, int32_t unit, Next next) {
    if (length < 0 || (data == nullptr && length > 0) || length % unit != 0)
        return nullptr;
    const auto *octets = static_cast<const uint8_t *>(data);
    const uint8_t *end = length > 0 ? octets + length : octets;
    int64_t total = 0;
    for (const uint8_t *at = octets; at != end;) {
        const uint32_t character = next(at, end);
        if (character == ill_formed)
            return nullptr;
        total += static_cast<int64_t>(utf8_length_of(character));
    }
    kovra_ustring *text = make(total);
    if (text == nullptr)
        return nullptr;
    uint8_t *out = text->octets();
    for (const uint8_t *at = octets; at != end;)
        out = put_utf8(out, next(at, end));
    return text;
}

uint8_t *put_unit(uint8_t *out, uint32_t value, int count) {
    for (int i = count - 1; i >= 0; --i)
        *out++ = static_cast<uint8_t>(value >> (8 * i));
    return out;
}

// The text in another form: size_of(character) gives the octets of one (0: it has none), put(out, character) writes it.
template <class Size, class Put> kovra_data_blob *export_as(const kovra_ustring *text, Size size_of, Put put) {
    if (!is_valid(text))
        return nullptr;
    const uint8_t *end = text->octets() + text->length;
    int64_t total = 0;
    for (const uint8_t *at = text->octets(); at != end;) {
        const int size = size_of(next_utf8(at, end));
        if (size == 0)
            return nullptr;
        total += size;
    }
    if (total > max_length)
        return nullptr;
    auto *octets = static_cast<uint8_t *>(kovra_malloc(total > 0 ? static_cast<size_t>(total) : 1, module, __LINE__));
    if (octets == nullptr)
        return nullptr;
    uint8_t *out = octets;
    for (const uint8_t *at = text->octets(); at != end;)
        out = put(out, next_utf8(at, end));
    kovra_data_blob *blob = kovra_data_blob_new(octets, static_cast<int32_t>(total));
    kovra_free(octets);
    return blob;
}

} // namespace
} // namespace kovra::util

kovra_ustring *kovra_ustring_newutf8(const void *octets, int32_t length) noexcept {
    if (length < 0 || (octets == nullptr && length > 0))
        return nullptr;
    const auto *begin = static_cast<const uint8_t *>(octets);
    const uint8_t *end = length > 0 ? begin + length : begin;
    for (const uint8_t *at = skip_ascii(begin, end); at != end;) {
        const size_t size = utf8_length_at(at, end);
        if (size == 0)
            return nullptr;
        at += size;
        if (size == 1)
            at = skip_ascii(at, end);
    }
    kovra_ustring *text = make(length);
    if (text != nullptr && length > 0)
        std::memcpy(text->octets(), octets, static_cast<size_t>(length));
    return text;
}

kovra_ustring *kovra_ustring_newutf32be(const void *octets, int32_t length) noexcept {
    return convert(octets, length, 4, next_utf32);
}

kovra_ustring *kovra_ustring_newutf16be(const void *octets, int32_t length) noexcept {
    return convert(octets, length, 2, next_utf16);
}

kovra_ustring *kovra_ustring_newbmp(const void *octets, int32_t length) noexcept {
    return convert(octets, length, 2, next_bmp);
}

kovra_data_blob *kovra_ustring_toutf8(const kovra_ustring *text) noexcept {
    return is_valid(text) ? kovra_data_blob_new(text->octets(), text->length) : nullptr;
}

kovra_data_blob *kovra_ustring_toutf32be(const kovra_ustring *text) noexcept {
    return export_as(
        text, [](uint32_t) { return 4; }, [](uint8_t *out, uint32_t character) { return put_unit(out, character, 4); });
}

kovra_data_blob *kovra_ustring_toutf16be(const kovra_ustring *text) noexcept {
    return export_as(
        text, [](uint32_t character) { return character > 0xFFFF ? 4 : 2; },
        [](uint8_t *out, uint32_t character) {
            if (character <= 0xFFFF)
                return put_unit(out, character, 2);
            const uint32_t rest = character - 0x10000;
            return put_unit(put_unit(out, 0xD800 | rest >> 10, 2), 0xDC00 | (rest & 0x3FF), 2);
        });
}

kovra_data_blob *kovra_ustring_tobmp(const kovra_ustring *text) noexcept {
    return export_as(
        text, [](uint32_t character) { return character > 0xFFFF ? 0 : 2; },
        [](uint8_t *out, uint32_t character) { return put_unit(out, character, 2); });
}

void kovra_ustring_free(kovra_ustring *text) noexcept {
    if (is_valid(text))
        release_record(text);
}
