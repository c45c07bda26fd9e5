// What `show` prints with: lines of a label and a value, and tables from type identifiers and object identifiers to the
// functions that print a structure. A further structure is a function and a row in the table of its file, which
// show_fields.hpp lists.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "command.hpp"
#include "kovra/asn1.h"

namespace kovra::tool {

// Prints lines: indentation, a label with a colon, and the value in a column of its own.
class Printer {
public:
    Printer(Session &session, Message place) : out(session.out), session_(session), place_(std::move(place)) {}

    Output &out;

    // Begins a line; the caller prints the value, and ends the line.
    void begin(Harmless label) { begin(label, value_column); }
    void end() { out.put("\n"); }
    void field(Harmless label, Harmless value);
    // A line without a value, for what follows in the lines below it.
    void heading(Harmless label);
    void blanks() { out.put_blanks(indent_); }

    // Octets in hexadecimal, long ones cut.
    void hex(std::string_view octets);
    // A line of such.
    void hex(Harmless label, std::string_view octets);
    // The octets of one element: on one line when it is primitive, else as a tree below the label.
    void element(Harmless label, std::string_view octets);
    // An element as a tree, indented like a line.
    void tree(std::string_view octets);

    // A line with octets that are not of the type, which standard error explains. `what` says in words what they are.
    void malformed(Harmless what, uint32_t type, std::string_view octets);
    // The same of octets that may be private.
    void malformed_secret(Harmless what, uint32_t type, std::string_view octets);

    // Are private keys shown? Else their sizes are.
    [[nodiscard]] bool has_secrets() const { return session_.options.has_secrets; }
    // A line with octets that are private.
    void secret(Harmless label, std::string_view octets);
    // What stands in a line for what is private: its size.
    void hidden(uint64_t size, Harmless unit);
    [[nodiscard]] bool is_full() const { return session_.options.is_full; }

    // The type of what stands in content of type data, where that is known: in stores of keys.
    uint32_t type_of_data = KOVRA_ASN1_TYPE_COUNT;
    // There, what is not what it should be may be private.
    [[nodiscard]] bool is_in_store() const { return type_of_data != KOVRA_ASN1_TYPE_COUNT; }

    // Lines are indented further while one of these lives.
    class Deeper {
    public:
        explicit Deeper(Printer &printer) : printer_(printer) { printer_.indent_ += step; }
        Deeper(const Deeper &) = delete;
        Deeper &operator=(const Deeper &) = delete;
        ~Deeper() { printer_.indent_ -= step; }

    private:
        Printer &printer_;
    };
    // Structures inside structures without end are not followed from here on.
    [[nodiscard]] bool is_deep() const { return indent_ >= 32 * step; }

private:
    static constexpr size_t step = 2;
    static constexpr size_t value_column = 28;

    void begin(Harmless label, size_t column);
    void report(Harmless what, uint32_t type, std::string_view octets);

    Session &session_;
    Message place_;
    size_t indent_ = 0;
};

// Prints a value as lines.
using Show = void (*)(Printer &, kovra_asn1_value *);

struct TypeRow {
    uint32_t type;
    Show show;
};

// Prints a value of any type: as the tables have it, else as a tree.
void show_value(Printer &printer, uint32_t type, kovra_asn1_value *value);

// What the octets or the element that stands with an object identifier are.
struct OidRow {
    std::string_view oid;
    uint32_t type;
    Show show = nullptr; // null: as the type is shown
};
// The row of an object identifier; null when there is none.
const OidRow *find_row(std::span<const OidRow> rows, std::string_view oid);
const OidRow *find_parameters(std::string_view algorithm);

// Reading values. Octets of strings and integers; the whole encoding; the name of an object identifier, or its text.
std::string octets_of(kovra_asn1_value *string);
std::string bits_of(kovra_asn1_value *bit_string);
std::string integer_octets(const kovra_asn1_value *integer);
std::string encoding_of(uint32_t type, const kovra_asn1_value *value);
std::string_view text_of_oid(const kovra_asn1_value *oid);
Message name_of_oid(const kovra_asn1_value *oid);

template <class Function> void for_each(kovra_asn1_value *list, Function function) {
    kovra_asn1_value *element = nullptr;
    const int32_t size = kovra_asn1_list_getsize(list);
    for (int32_t i = 0; i < size && kovra_asn1_list_get(list, i, &element) == 1; ++i)
        function(element);
}

// Values within a line.
void put_integer(Printer &printer, const kovra_asn1_value *integer); // decimal, hexadecimal beyond 64 bits
void put_serial(Printer &printer, const kovra_asn1_value *integer);  // hexadecimal, 0x7f
void put_time(Printer &printer, const kovra_asn1_value *value);
void put_unquoted(Printer &printer, std::string_view text);
void put_quoted(Printer &printer, uint32_t tag, std::string_view octets);
void put_bits(Printer &printer, kovra_asn1_value *bit_string, std::span<const Harmless> names);
// The name of a number, and the number itself where it has none.
void put_named(Printer &printer, const kovra_asn1_value *integer, std::span<const Harmless> names);
void put_name(Printer &printer, const kovra_asn1_value *name);
void put_relative_name(Printer &printer, kovra_asn1_value *rdn);
void put_address(Printer &printer, std::string_view octets);
void put_general_name(Printer &printer, const kovra_asn1_value *name);
Harmless kind_of_general_name(const kovra_asn1_value *name);

// Lines with a label, nothing for null.
void show_integer(Printer &printer, Harmless label, kovra_asn1_value *integer);
void show_serial(Printer &printer, Harmless label, kovra_asn1_value *integer);
void show_time(Printer &printer, Harmless label, kovra_asn1_value *time);
void show_name(Printer &printer, Harmless label, kovra_asn1_value *name);
void show_any(Printer &printer, Harmless label, kovra_asn1_value *any);
void show_bits(Printer &printer, Harmless label, kovra_asn1_value *bit_string, std::span<const Harmless> names);
void show_text(Printer &printer, Harmless label, uint32_t tag, kovra_asn1_value *string);
void show_algorithm(Printer &printer, Harmless label, kovra_asn1_value *algorithm);
void show_general_names(Printer &printer, Harmless label, kovra_asn1_value *names);

// Names of the bits of ReasonFlags and of the numbers of CRLReason.
std::span<const Harmless> reason_flags();
std::span<const Harmless> crl_reasons();

// Versions are counted from 0; one that is absent is version 1.
void show_version(Printer &printer, const kovra_asn1_value *version);

// Structures and values that more than one file shows.
void show_certificate(Printer &printer, kovra_asn1_value *certificate);
void show_crl(Printer &printer, kovra_asn1_value *crl);
void show_public_key(Printer &printer, kovra_asn1_value *info);
void show_algorithm(Printer &printer, kovra_asn1_value *algorithm);
void show_extension(Printer &printer, kovra_asn1_value *extension);
void show_extensions(Printer &printer, kovra_asn1_value *extensions);
void show_attributes(Printer &printer, kovra_asn1_value *attributes);
void show_general_names(Printer &printer, kovra_asn1_value *names);
void show_octets(Printer &printer, kovra_asn1_value *string);
void show_oid(Printer &printer, kovra_asn1_value *oid);
void show_moment(Printer &printer, kovra_asn1_value *time);
void show_reason(Printer &printer, kovra_asn1_value *reason);

} // namespace kovra::tool
