// Values within a line, and lines of one value.

#include <algorithm>

#include "characters.hpp"
#include "element.hpp"
#include "oid_names.hpp"
#include "show.hpp"
#include "tool_handles.hpp"
#include "value_text.hpp"

namespace kovra::tool {

namespace {

// Octets of a value by the two functions that give their number and copy them; empty when there is no length.
template <class T> std::string copied(T *value, int32_t (*measure)(const T *), int32_t (*copy)(T *, void *)) {
    const int32_t length = measure(value);
    std::string octets(length > 0 ? static_cast<size_t>(length) : 0, '\0');
    if (!octets.empty() && copy(value, octets.data()) != 1)
        octets.clear();
    return octets;
}

} // namespace

std::string octets_of(kovra_asn1_value *string) {
    return copied<kovra_asn1_value>(string, kovra_asn1_octetstring_getlength, kovra_asn1_octetstring_getall);
}

std::string bits_of(kovra_asn1_value *bit_string) {
    return copied<kovra_asn1_value>(bit_string, kovra_asn1_bitstring_getlength, kovra_asn1_bitstring_getall);
}

std::string integer_octets(const kovra_asn1_value *integer) {
    return copied<const kovra_asn1_value>(integer, kovra_asn1_integer_getlength, kovra_asn1_integer_get);
}

std::string encoding_of(uint32_t type, const kovra_asn1_value *value) {
    const Blob blob(kovra_asn1_mem_encode(type, value));
    return to_string(blob.get());
}

std::string_view text_of_oid(const kovra_asn1_value *oid) {
    const char *text = kovra_asn1_oid_getstring(oid);
    return text == nullptr || *text == '\0' ? "(no object identifier)" : text;
}

Message name_of_oid(const kovra_asn1_value *oid) {
    const std::string_view text = text_of_oid(oid);
    const Harmless name = oid_name(text);
    return name.empty() ? Message(Outside(text)) : Message(name);
}

void put_integer(Printer &printer, const kovra_asn1_value *integer) {
    const std::string octets = integer_octets(integer);
    if (octets.size() > sizeof(uint64_t) || octets.empty())
        return put_serial(printer, integer);
    const bool is_negative = static_cast<uint8_t>(octets[0]) >= 0x80;
    uint64_t number = is_negative ? UINT64_MAX : 0;
    for (const char octet : octets)
        number = number << 8 | static_cast<uint8_t>(octet);
    if (is_negative)
        printer.out.put("-");
    printer.out.put_number(is_negative ? 0 - number : number);
}

void put_serial(Printer &printer, const kovra_asn1_value *integer) {
    std::string octets = integer_octets(integer);
    if (!octets.empty() && static_cast<uint8_t>(octets[0]) >= 0x80) {
        // The magnitude of the two's complement.
        printer.out.put("-");
        unsigned carry = 1;
        for (size_t i = octets.size(); i-- != 0; carry >>= 8) {
            carry += static_cast<uint8_t>(~octets[i]);
            octets[i] = static_cast<char>(carry);
        }
    }
    octets.erase(0, std::min(octets.find_first_not_of('\0'), octets.size() - (octets.empty() ? 0 : 1)));
    printer.out.put("0x");
    printer.hex(octets);
}

void put_time(Printer &printer, const kovra_asn1_value *value) {
    const Time time(kovra_asn1_time_getutctime(value));
    if (time == nullptr)
        return printer.out.put("(no time)");
    put_time(printer.out, *time);
}

void put_unquoted(Printer &printer, std::string_view text) {
    printer.out.put(Outside(text, Form::quoted));
}

void put_quoted(Printer &printer, uint32_t tag, std::string_view octets) {
    std::string text;
    if (!to_utf8(tag, reinterpret_cast<const uint8_t *>(octets.data()), octets.size(), text)) {
        printer.hex(octets);
        return printer.out.put(" (not characters)");
    }
    printer.out.put("\"");
    put_unquoted(printer, text);
    printer.out.put("\"");
}

void put_bits(Printer &printer, kovra_asn1_value *bit_string, std::span<const Harmless> names) {
    const std::string octets = bits_of(bit_string);
    const int64_t count = static_cast<int64_t>(octets.size()) * 8 - kovra_asn1_bitstring_getunusedbits(bit_string);
    // A long string is no list of flags: its octets are shown.
    constexpr int32_t most = 64;
    if (count > most)
        return printer.hex(octets);
    bool is_first = true;
    for (int32_t bit = 0; bit < count; ++bit) {
        if (kovra_asn1_bitstring_getbit(bit_string, bit) != 1)
            continue;
        printer.out.put(is_first ? Harmless() : ", ");
        is_first = false;
        const auto index = static_cast<size_t>(bit);
        if (index < names.size() && !names[index].empty()) {
            printer.out.put(names[index]);
        } else {
            printer.out.put("bit ");
            printer.out.put_number(index);
        }
    }
    if (is_first)
        printer.out.put("(none)");
}

void put_named(Printer &printer, const kovra_asn1_value *integer, std::span<const Harmless> names) {
    int32_t number = -1;
    kovra_asn1_integer_getlong(integer, &number);
    const auto index = static_cast<size_t>(number);
    if (number >= 0 && index < names.size() && !names[index].empty())
        printer.out.put(names[index]);
    else
        put_integer(printer, integer);
}

void show_integer(Printer &printer, Harmless label, kovra_asn1_value *integer) {
    if (integer == nullptr)
        return;
    printer.begin(label);
    put_integer(printer, integer);
    printer.end();
}

void show_serial(Printer &printer, Harmless label, kovra_asn1_value *integer) {
    if (integer == nullptr)
        return;
    printer.begin(label);
    put_serial(printer, integer);
    if (const int32_t length = kovra_asn1_integer_getlength(integer); length > 0 && length <= 8) {
        printer.out.put(" (");
        put_integer(printer, integer);
        printer.out.put(")");
    }
    printer.end();
}

void show_time(Printer &printer, Harmless label, kovra_asn1_value *time) {
    if (time == nullptr)
        return;
    printer.begin(label);
    put_time(printer, time);
    printer.end();
}

void show_any(Printer &printer, Harmless label, kovra_asn1_value *any) {
    if (any != nullptr)
        printer.element(label, encoding_of(KOVRA_ASN1_TYPE_ANY, any));
}

void show_bits(Printer &printer, Harmless label, kovra_asn1_value *bit_string, std::span<const Harmless> names) {
    if (bit_string == nullptr)
        return;
    printer.begin(label);
    put_bits(printer, bit_string, names);
    printer.end();
}

void show_text(Printer &printer, Harmless label, uint32_t tag, kovra_asn1_value *string) {
    if (string == nullptr)
        return;
    printer.begin(label);
    put_quoted(printer, tag, octets_of(string));
    printer.end();
}

} // namespace kovra::tool
