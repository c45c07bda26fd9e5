// INTEGER (X.690, 8.3) and ENUMERATED (8.4): two's-complement content octets, kept as they came.

#include "kovra/asn1_integer.h"

#include <algorithm>
#include <cstring>

#include "core/codec.hpp"
#include "core/component.hpp"
#include "core/registry.hpp"

namespace kovra::asn1 {

namespace {

Site here(int32_t line = __builtin_LINE()) {
    return {"ASN1_Integer", line};
}

const uint8_t *octets_of(const Integer &integer) {
    return integer.octets.data(*integer.arena);
}

// Is the first octet nothing but a repetition of the sign of the second?
bool is_redundant(uint8_t first, uint8_t second) {
    return (first == 0x00 && second < 0x80) || (first == 0xFF && second >= 0x80);
}

int32_t integer_content_length(const Type &, Value *value, Measure) {
    return value != nullptr ? static_cast<int32_t>(static_cast<const Integer *>(value)->octets.length) : unknown;
}

Result encode_integer_content(Encoder &encoder, const Type &, Value *value, int32_t length) {
    const auto *integer = static_cast<const Integer *>(value);
    if (!encoder.has_stream() || integer == nullptr)
        return encoder.fail(here(), code::null_argument);
    if (length < 0 || static_cast<uint32_t>(length) != integer->octets.length)
        return encoder.fail(here(), code::bad_length);
    return encoder.put(here(), octets_of(*integer), integer->octets.length);
}

[[gnu::noinline]] Result decode_other_integer_content(Decoder &decoder, const Element &element, Value *&out) {
    if (const Result result = check_primitive(decoder, here(), element); result != success)
        return result;
    if (element.length < 1)
        return decoder.fail(here(), code::bad_length);
    const uint32_t begin = decoder.position();
    auto *integer = new_record<Integer>(decoder.arena());
    if (integer == nullptr)
        return decoder.fail(here(), code::no_memory);
    if (const Result result = decoder.skip(here(), static_cast<uint32_t>(element.length)); result != success)
        return result;
    integer->octets = decoder.octets_from(begin);
    // Accepted and kept as it is: the entry is a warning.
    if (element.length > 1 && is_redundant(*decoder.at(begin), *decoder.at(begin + 1)))
        decoder.warn(here(), code::not_minimal_integer);
    out = integer;
    return success;
}

Result decode_integer_content(Decoder &decoder, const Type &, const Element &element, Value *&out) {
    Octets octets;
    const bool is_minimal =
        decoder.reach() > 1 && (element.length == 1 || !is_redundant(decoder.next()[0], decoder.next()[1]));
    Integer *integer = is_minimal ? decoder.take<Integer>(element, octets) : nullptr;
    if (integer == nullptr)
        return decode_other_integer_content(decoder, element, out);
    integer->octets = octets;
    out = integer;
    return success;
}

// A record that is the root of its own arena, with octets to be filled in. Null when memory is short.
Integer *new_integer(uint32_t length, uint8_t *&octets) {
    auto *integer = new_root<Integer>(length);
    if (integer == nullptr)
        return nullptr;
    octets = static_cast<uint8_t *>(integer->arena->allocate(length));
    if (octets == nullptr) {
        Arena::destroy(integer->arena);
        return nullptr;
    }
    integer->arena->octets = octets;
    integer->arena->octets_length = length;
    integer->octets = {octets, 0, length};
    return integer;
}

} // namespace

constexpr Operations integer_operations = {
    .holds = holds_kind<Integer>,
    .content_length = integer_content_length,
    .encode_content = encode_integer_content,
    .decode_content = decode_integer_content,
    .decode_plain = decode_integer_content,
    .records_reserve = leaf_reserve<2 * sizeof(Integer)>,
};

Value *make_zero(Arena &arena) {
    static constexpr uint8_t zero = 0;
    auto *integer = new_record<Integer>(arena);
    if (integer != nullptr)
        integer->octets = {&zero, 0, 1};
    return integer;
}

bool is_zero(const Value &value) {
    int32_t number = 0;
    return kovra_asn1_integer_getlong(&value, &number) == 1 && number == 0;
}

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_asn1_integer_value(int32_t number) noexcept {
    const auto bits = static_cast<uint32_t>(number);
    const uint8_t octets[] = {static_cast<uint8_t>(bits >> 24), static_cast<uint8_t>(bits >> 16),
                              static_cast<uint8_t>(bits >> 8), static_cast<uint8_t>(bits)};
    return kovra_asn1_integer_new(octets, sizeof octets);
}

kovra_asn1_value *kovra_asn1_enum_value(int32_t number) noexcept {
    return kovra_asn1_integer_value(number);
}

kovra_asn1_value *kovra_asn1_integer_new(const void *octets, int32_t length) noexcept {
    const auto *from = static_cast<const uint8_t *>(octets);
    if (from == nullptr || length < 1)
        return nullptr;
    for (; length >= 2 && is_redundant(from[0], from[1]); --length)
        ++from;
    uint8_t *copy = nullptr;
    Integer *integer = new_integer(static_cast<uint32_t>(length), copy);
    if (integer != nullptr)
        std::memcpy(copy, from, static_cast<size_t>(length));
    return integer;
}

kovra_asn1_value *kovra_asn1_unsigned_integer_new(const void *magnitude, int32_t length) noexcept {
    const auto *from = static_cast<const uint8_t *>(magnitude);
    if (from == nullptr || length < 1)
        return nullptr;
    for (; length >= 2 && from[0] == 0x00 && from[1] < 0x80; --length)
        ++from;
    const uint32_t sign = from[0] >= 0x80 ? 1 : 0;
    if (length == max_length && sign != 0)
        return nullptr;
    uint8_t *copy = nullptr;
    Integer *integer = new_integer(static_cast<uint32_t>(length) + sign, copy);
    if (integer == nullptr)
        return nullptr;
    copy[0] = 0x00;
    std::memcpy(copy + sign, from, static_cast<size_t>(length));
    return integer;
}

kovra_asn1_value *kovra_asn1_integer_newbigint(const kovra_biginteger *number) noexcept {
    kovra_data_blob *octets = number != nullptr ? kovra_biginteger_getdata(number) : nullptr;
    if (octets == nullptr)
        return nullptr;
    kovra_asn1_value *integer =
        kovra_asn1_integer_new(kovra_data_blob_getdata(octets), kovra_data_blob_getlength(octets));
    kovra_data_blob_free(octets);
    return integer;
}

kovra_biginteger *kovra_asn1_integer_getbigintger(const kovra_asn1_value *integer) noexcept {
    const auto *record = as<Integer>(integer);
    return record != nullptr ? kovra_biginteger_newdata(octets_of(*record), static_cast<int32_t>(record->octets.length))
                             : nullptr;
}

int32_t kovra_asn1_integer_get(const kovra_asn1_value *integer, void *buffer) noexcept {
    const auto *record = as<Integer>(integer);
    if (record == nullptr || buffer == nullptr)
        return 0;
    std::memcpy(buffer, octets_of(*record), record->octets.length);
    return 1;
}

int32_t kovra_asn1_integer_getlength(const kovra_asn1_value *integer) noexcept {
    const auto *record = as<Integer>(integer);
    if (record != nullptr)
        return static_cast<int32_t>(record->octets.length);
    // Also takes an OBJECT IDENTIFIER.
    const auto *oid = as<ObjectIdentifier>(integer);
    return oid != nullptr ? static_cast<int32_t>(oid->octets.length) : unknown;
}

int32_t kovra_asn1_integer_getlong(const kovra_asn1_value *integer, int32_t *out_number) noexcept {
    const auto *record = as<Integer>(integer);
    if (record == nullptr || out_number == nullptr)
        return 0;
    const uint8_t *octets = octets_of(*record);
    const uint32_t length = record->octets.length;
    const bool is_negative = octets[0] >= 0x80;
    // The magnitude of a negative number: trailing zero octets stay, the last octet that is not zero is negated, and
    // those before it are inverted.
    uint32_t last = length - 1;
    while (last > 0 && octets[last] == 0)
        --last;
    uint32_t magnitude = 0;
    for (uint32_t i = 0; i < length; ++i) {
        uint32_t octet = octets[i];
        if (is_negative)
            octet = i < last ? octet ^ 0xFF : (0x100 - octet) & 0xFF;
        // Refuses -2^31 as well, whose magnitude would fit.
        if (magnitude >= 0x800000)
            return 0;
        magnitude = magnitude << 8 | octet;
    }
    if (is_negative && magnitude == 0)
        return 0;
    *out_number = is_negative ? -static_cast<int32_t>(magnitude) : static_cast<int32_t>(magnitude);
    return 1;
}

int32_t kovra_asn1_enum_getlong(const kovra_asn1_value *integer, int32_t *out_number) noexcept {
    return kovra_asn1_integer_getlong(integer, out_number);
}

int32_t kovra_asn1_integer_equals(const kovra_asn1_value *left, const kovra_asn1_value *right) noexcept {
    if (left == nullptr && right == nullptr)
        return 1;
    const auto *first = as<Integer>(left);
    const auto *second = as<Integer>(right);
    return first != nullptr && second != nullptr && kovra_asn1_integer_encodecmp(left, right) == 0 ? 1 : 0;
}

int32_t kovra_asn1_integer_encodecmp(const kovra_asn1_value *left, const kovra_asn1_value *right) noexcept {
    const auto *first = as<Integer>(left);
    const auto *second = as<Integer>(right);
    if (first == nullptr || second == nullptr)
        return (first != nullptr ? 1 : 0) - (second != nullptr ? 1 : 0);
    if (first->octets.length != second->octets.length)
        return first->octets.length > second->octets.length ? 1 : -1;
    const int order = std::memcmp(octets_of(*first), octets_of(*second), first->octets.length);
    return (order > 0 ? 1 : 0) - (order < 0 ? 1 : 0);
}
