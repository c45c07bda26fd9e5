// Structures whose components are shown one below the other, as tables of labels have them.
#pragma once

#include "show.hpp"
#include "tool_handles.hpp"

namespace kovra::tool {

// Prints a component, as a line or as a heading with lines below it; nothing for null.
using Line = void (*)(Printer &, Harmless, kovra_asn1_value *);

// A component of a structure with functions of its own.
struct Field {
    Harmless label;
    kovra_asn1_value *(*get)(const kovra_asn1_value *);
    Line line;
};
void show_fields(Printer &printer, std::span<const Field> fields, kovra_asn1_value *value);
template <const auto &fields> void show_fields(Printer &printer, kovra_asn1_value *value) {
    show_fields(printer, fields, value);
}

// A component of a structure that is a SEQUENCE of elements to the library, in the order of the table. What is not of
// its type, and what is left, is shown as it is.
struct Element {
    Harmless label;
    uint32_t type;
    Line line;
};
void show_items(Printer &printer, std::span<const Element> items, kovra_asn1_value *list);
template <const auto &items> void show_items(Printer &printer, kovra_asn1_value *list) {
    show_items(printer, items, list);
}
template <const auto &items> void show_items(Printer &printer, Harmless label, kovra_asn1_value *list) {
    printer.heading(label);
    const Printer::Deeper deeper(printer);
    show_items(printer, items, list);
}

// Lines. Numbers and octets that are private are told by their size only, unless they are asked for.
void show_count(Printer &printer, Harmless label, kovra_asn1_value *list);
void show_hex(Printer &printer, Harmless label, kovra_asn1_value *octet_string);
void show_bit_hex(Printer &printer, Harmless label, kovra_asn1_value *bit_string);
void show_named_oid(Printer &printer, Harmless label, kovra_asn1_value *oid);
void show_flag(Printer &printer, Harmless label, kovra_asn1_value *boolean);
void show_utf8(Printer &printer, Harmless label, kovra_asn1_value *string);
void show_one_name(Printer &printer, Harmless label, kovra_asn1_value *general_name);
void show_secret_number(Printer &printer, Harmless label, kovra_asn1_value *integer);
void show_secret_octets(Printer &printer, Harmless label, kovra_asn1_value *octet_string);
// An element that is not known to be anything.
void show_unknown(Printer &printer, Harmless label, kovra_asn1_value *any);
// A number with its size.
void show_modulus(Printer &printer, Harmless label, kovra_asn1_value *integer);

// A heading, and below it the lines of the type.
template <uint32_t type> void show_below(Printer &printer, Harmless label, kovra_asn1_value *value) {
    if (value == nullptr)
        return;
    printer.heading(label);
    const Printer::Deeper deeper(printer);
    show_value(printer, type, value);
}

// The lines of the type where the component stands.
template <uint32_t type> void show_here(Printer &printer, Harmless, kovra_asn1_value *value) {
    if (value != nullptr)
        show_value(printer, type, value);
}

// The number of elements, and below it the lines of the list.
template <uint32_t type> void show_counted(Printer &printer, Harmless label, kovra_asn1_value *list) {
    if (list == nullptr)
        return;
    show_count(printer, label, list);
    const Printer::Deeper deeper(printer);
    show_value(printer, type, list);
}

// Reads the octets of a string, or an element, as a value of the type.
bool read_octets(std::string_view octets, uint32_t type, Value &out);
bool read_any(kovra_asn1_value *any, uint32_t type, Value &out);

uint64_t bit_length(const std::string &octets);

// The structures that each file shows: show_value looks for a type in all of them.
std::span<const TypeRow> attribute_structures();
std::span<const TypeRow> certificate_structures();
std::span<const TypeRow> extension_structures();
std::span<const TypeRow> message_structures();
std::span<const TypeRow> name_structures();
std::span<const TypeRow> parameter_structures();
std::span<const TypeRow> point_structures();
std::span<const TypeRow> policy_structures();
std::span<const TypeRow> private_key_structures();
std::span<const TypeRow> public_key_structures();
std::span<const TypeRow> recipient_structures();
std::span<const TypeRow> stamp_structures();
std::span<const TypeRow> status_structures();
std::span<const TypeRow> store_structures();

} // namespace kovra::tool
