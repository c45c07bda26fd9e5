// OBJECT IDENTIFIER (X.690, 8.19) and RELATIVE-OID (8.20): content octets, and dotted text made when it is asked for.

#include "kovra/asn1_oid.h"

#include <bit>
#include <charconv>
#include <cstring>

#include "base/sizes.hpp"
#include "core/codec.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

Site here(int32_t line = __builtin_LINE()) {
    return {"ASN1_Oid", line};
}

constexpr size_t max_arc_digits = 20;

int32_t oid_content_length(const Type &, Value *value, Measure) {
    return value != nullptr ? static_cast<int32_t>(static_cast<const ObjectIdentifier *>(value)->octets.length)
                            : unknown;
}

Result encode_oid_content(Encoder &encoder, const Type &, Value *value, int32_t length) {
    const auto *oid = static_cast<const ObjectIdentifier *>(value);
    if (!encoder.has_stream() || oid == nullptr)
        return encoder.fail(here(), code::null_argument);
    if (length < 0 || static_cast<uint32_t>(length) != oid->octets.length)
        return encoder.fail(here(), code::bad_length);
    return encoder.put(here(), oid->octets.data(*oid->arena), oid->octets.length);
}

// Can a text be made? No subidentifier begins with a redundant 80 or does not fit 64 bits. Octets of an unfinished one
// at the end stay in the content and are not part of the text.
bool has_text(const uint8_t *octets, uint32_t length) {
    uint64_t value = 0;
    uint32_t begin = 0;
    bool fits = true;
    for (uint32_t i = 0; i < length; ++i) {
        fits = fits && value < uint64_t{1} << 57;
        value = value << 7 | (octets[i] & 0x7FU);
        if (octets[i] >= 0x80)
            continue;
        if (!fits || octets[begin] == 0x80)
            return false;
        value = 0;
        begin = i + 1;
    }
    return true;
}

// A quick test for the same. True is sure: no octet is 80, and the content is too short for a subidentifier that does
// not fit. False says nothing.
bool surely_has_text(const uint8_t *octets, int32_t length, uint32_t reach) {
    constexpr int32_t longest = 9;
    constexpr uint64_t every = 0x0101010101010101;
    if (std::endian::native != std::endian::little || length > longest || reach < longest)
        return false;
    uint64_t word = 0;
    std::memcpy(&word, octets, sizeof word);
    if (length < static_cast<int32_t>(sizeof word))
        word |= ~uint64_t{0} << (8 * (length & 7));
    else if (octets[longest - 1] == 0x80)
        return false;
    // Eight octets at once: with the highest bits turned, an octet 80 is an octet 0, and (x - 01..) & ~x & 80.. is not
    // zero where an octet of x is.
    word ^= every * 0x80;
    return ((word - every) & ~word & every * 0x80) == 0;
}

[[gnu::noinline]] Result decode_long_oid_content(Decoder &decoder, const Type &type, const Element &element,
                                                 Value *&out) {
    if (const Result result = check_primitive(decoder, here(), element); result != success)
        return result;
    if (element.length < 1)
        return decoder.fail(here(), code::bad_length);
    const uint32_t begin = decoder.position();
    auto *oid = new_record<ObjectIdentifier>(decoder.arena());
    if (oid == nullptr)
        return decoder.fail(here(), code::no_memory);
    if (const Result result = decoder.skip(here(), static_cast<uint32_t>(element.length)); result != success)
        return result;
    oid->octets = decoder.octets_from(begin);
    oid->relative = type.number == KOVRA_ASN1_TYPE_RELATIVE_OID;
    if (!has_text(decoder.at(begin), oid->octets.length))
        return decoder.fail(here(), code::bad_oid_content);
    out = oid;
    return success;
}

Result decode_oid_content(Decoder &decoder, const Type &type, const Element &element, Value *&out) {
    Octets octets;
    if (surely_has_text(decoder.next(), element.length, decoder.reach()))
        if (auto *oid = decoder.take<ObjectIdentifier>(element, octets); oid != nullptr) {
            oid->octets = octets;
            oid->relative = type.number == KOVRA_ASN1_TYPE_RELATIVE_OID;
            out = oid;
            return success;
        }
    return decode_long_oid_content(decoder, type, element, out);
}

// Most arcs have one digit or two.
char *put_number(char *out, uint64_t number) {
    if (number >= 100)
        return std::to_chars(out, out + max_arc_digits, number).ptr;
    const auto digits = static_cast<uint32_t>(number);
    if (digits >= 10)
        *out++ = static_cast<char>('0' + digits / 10);
    *out++ = static_cast<char>('0' + digits % 10);
    return out;
}

// The dotted text, in the arena of the record; null when memory is short.
const char *text_of(ObjectIdentifier &oid) {
    if (oid.text != nullptr)
        return oid.text;
    const uint8_t *octets = oid.octets.data(*oid.arena);
    // An octet gives at most three digits and a full stop; the first subidentifier one digit and a full stop more.
    const size_t size = sum(product(oid.octets.length, 4), max_arc_digits);
    auto *text = static_cast<char *>(oid.arena->allocate(size));
    if (text == nullptr)
        return nullptr;
    char *end = text;
    uint64_t value = 0;
    bool is_root = !oid.relative;
    // A content without a text was refused when the record was made.
    for (uint32_t i = 0; i < oid.octets.length; ++i) {
        value = value << 7 | (octets[i] & 0x7FU);
        if (octets[i] >= 0x80)
            continue;
        if (end != text)
            *end++ = '.';
        if (is_root) {
            // The first subidentifier holds two arcs.
            const uint64_t root = value < 40 ? 0 : value < 80 ? 1 : 2;
            *end++ = static_cast<char>('0' + static_cast<char>(root));
            *end++ = '.';
            value -= root * 40;
            is_root = false;
        }
        end = put_number(end, value);
        value = 0;
    }
    *end = '\0';
    return oid.text = text;
}

// Writes a subidentifier and gives the end of it.
uint8_t *put_subidentifier(uint8_t *out, uint64_t value) {
    int groups = 1;
    for (uint64_t rest = value >> 7; rest != 0; rest >>= 7)
        ++groups;
    for (int i = groups - 1; i >= 0; --i)
        *out++ = static_cast<uint8_t>((value >> (7 * i) & 0x7F) | (i == 0 ? 0 : 0x80));
    return out;
}

// The number of an arc of decimal digits; false when it is empty, too long or does not fit.
bool read_arc(const char *begin, const char *end, uint64_t &out) {
    constexpr ptrdiff_t longest = 30;
    if (begin == end || end - begin > longest)
        return false;
    const auto [stop, error] = std::from_chars(begin, end, out);
    // 2^64 - 1 is refused as too large, although it would fit.
    return error == std::errc{} && stop == end && out != UINT64_MAX;
}

bool is_digit(char character) {
    return character >= '0' && character <= '9';
}

ObjectIdentifier *from_text(const char *text, bool relative) {
    const size_t least = relative ? 1 : 3;
    const size_t length = text != nullptr ? std::strlen(text) : 0;
    if (length < least || length > max_length / 2 || !is_digit(text[length - 1]))
        return nullptr;
    // No arc takes more octets than it has digits.
    auto *oid = new_root<ObjectIdentifier>(sum(product(length, 2), 2 * sizeof(void *)));
    if (oid == nullptr)
        return nullptr;
    auto *stored = static_cast<char *>(oid->arena->allocate(sum(length, 1)));
    auto *octets = static_cast<uint8_t *>(oid->arena->allocate(length));
    bool is_good = stored != nullptr && octets != nullptr;
    uint8_t *end = octets;
    uint64_t first = 0;
    uint32_t arcs = 0;
    for (size_t i = 0, begin = 0; is_good && i <= length; ++i) {
        const char character = i < length ? text[i] : '.';
        stored[i] = i == length ? '\0' : character == ' ' ? '.' : character;
        if (is_digit(character))
            continue;
        uint64_t arc = 0;
        is_good = (character == '.' || character == ' ') && read_arc(text + begin, text + i, arc);
        begin = i + 1;
        if (!is_good)
            break;
        if (relative || arcs > 1) {
            end = put_subidentifier(end, arc);
        } else if (arcs == 0) {
            first = arc;
            is_good = arc <= 2;
        } else {
            is_good = (first == 2 || arc <= 39) && arc <= UINT64_MAX - first * 40;
            end = put_subidentifier(end, first * 40 + arc);
        }
        ++arcs;
    }
    if (!is_good || (!relative && arcs < 2)) {
        Arena::destroy(oid->arena);
        return nullptr;
    }
    oid->relative = relative;
    oid->text = stored;
    oid->octets = {octets, 0, static_cast<uint32_t>(end - octets)};
    return oid;
}

const char *get_text(const kovra_asn1_value *value) {
    auto *oid = as<ObjectIdentifier>(const_cast<kovra_asn1_value *>(value));
    return oid != nullptr ? text_of(*oid) : nullptr;
}

} // namespace

constexpr Operations object_identifier_operations = {
    .holds = holds_kind<ObjectIdentifier>,
    .content_length = oid_content_length,
    .encode_content = encode_oid_content,
    .decode_content = decode_oid_content,
    .decode_plain = decode_oid_content,
    .records_reserve = leaf_reserve<2 * sizeof(ObjectIdentifier)>,
};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_asn1_oid_new(const char *text) noexcept {
    return from_text(text, false);
}

kovra_asn1_value *kovra_asn1_relative_oid_new(const char *text) noexcept {
    return from_text(text, true);
}

const char *kovra_asn1_oid_getstring(const kovra_asn1_value *oid) noexcept {
    return get_text(oid);
}

const char *kovra_asn1_relative_oid_getstring(const kovra_asn1_value *oid) noexcept {
    return get_text(oid);
}
