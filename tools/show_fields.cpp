#include "show_fields.hpp"

#include <bit>

namespace kovra::tool {

namespace {

constexpr uint32_t utf8_string = 12;

} // namespace

void show_fields(Printer &printer, std::span<const Field> fields, kovra_asn1_value *value) {
    for (const Field &field : fields)
        if (kovra_asn1_value *component = field.get(value); component != nullptr)
            field.line(printer, field.label, component);
}

void show_items(Printer &printer, std::span<const Element> items, kovra_asn1_value *list) {
    size_t index = 0;
    for_each(list, [&](kovra_asn1_value *any) {
        if (index == items.size())
            return show_any(printer, "element", any);
        const Element &item = items[index++];
        Value value(item.type);
        if (read_any(any, item.type, value))
            item.line(printer, item.label, value.get());
        else
            show_any(printer, item.label, any);
    });
}

void show_count(Printer &printer, Harmless label, kovra_asn1_value *list) {
    printer.begin(label);
    printer.out.put_number(static_cast<uint64_t>(kovra_asn1_list_getsize(list)));
    printer.end();
}

void show_hex(Printer &printer, Harmless label, kovra_asn1_value *octet_string) {
    if (octet_string != nullptr)
        printer.hex(label, octets_of(octet_string));
}

void show_bit_hex(Printer &printer, Harmless label, kovra_asn1_value *bit_string) {
    if (bit_string != nullptr)
        printer.hex(label, bits_of(bit_string));
}

void show_named_oid(Printer &printer, Harmless label, kovra_asn1_value *oid) {
    if (oid != nullptr)
        printer.field(label, name_of_oid(oid));
}

void show_flag(Printer &printer, Harmless label, kovra_asn1_value *boolean) {
    printer.field(label, kovra_asn1_boolean_istrue(boolean) == 1 ? Harmless("yes") : "no");
}

void show_utf8(Printer &printer, Harmless label, kovra_asn1_value *string) {
    show_text(printer, label, utf8_string, string);
}

void show_one_name(Printer &printer, Harmless label, kovra_asn1_value *general_name) {
    printer.begin(label);
    printer.out.put(kind_of_general_name(general_name));
    printer.out.put(":");
    put_general_name(printer, general_name);
    printer.end();
}

void show_secret_number(Printer &printer, Harmless label, kovra_asn1_value *integer) {
    if (printer.has_secrets())
        return show_integer(printer, label, integer);
    printer.begin(label);
    printer.hidden(bit_length(integer_octets(integer)), " bits");
    printer.end();
}

void show_unknown(Printer &printer, Harmless label, kovra_asn1_value *any) {
    if (printer.is_in_store())
        printer.secret(label, encoding_of(KOVRA_ASN1_TYPE_ANY, any));
    else
        show_any(printer, label, any);
}

void show_modulus(Printer &printer, Harmless label, kovra_asn1_value *integer) {
    printer.begin(label);
    printer.out.put_number(bit_length(integer_octets(integer)));
    printer.out.put(" bits, ");
    put_integer(printer, integer);
    printer.end();
}

void show_secret_octets(Printer &printer, Harmless label, kovra_asn1_value *octet_string) {
    printer.secret(label, octets_of(octet_string));
}

bool read_octets(std::string_view octets, uint32_t type, Value &out) {
    const int32_t size = library_size(octets.size());
    return size > 0 && kovra_asn1_mem_decode(octets.data(), size, type, out.place()) == size;
}

bool read_any(kovra_asn1_value *any, uint32_t type, Value &out) {
    return kovra_asn1_any_toobject(any, type, out.place(), nullptr) == 1;
}

uint64_t bit_length(const std::string &octets) {
    const size_t first = octets.find_first_not_of('\0');
    return first == std::string::npos ? 0
                                      : uint64_t{octets.size() - first - 1} * 8 +
                                            static_cast<uint64_t>(std::bit_width(static_cast<uint8_t>(octets[first])));
}

} // namespace kovra::tool
