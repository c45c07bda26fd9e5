// Distinguished names on one line as in RFC 4514, general names, directory strings.

#include <algorithm>
#include <iterator>

#include "characters.hpp"
#include "element.hpp"
#include "show.hpp"
#include "tool_handles.hpp"

namespace kovra::tool {

namespace {

struct ShortName {
    std::string_view oid;
    Harmless name;
};
constexpr ShortName short_names[] = {
    {"2.5.4.3", "CN"},
    {"2.5.4.6", "C"},
    {"2.5.4.10", "O"},
    {"2.5.4.11", "OU"},
    {"2.5.4.7", "L"},
    {"2.5.4.8", "ST"},
    {"2.5.4.9", "STREET"},
    {"0.9.2342.19200300.100.1.25", "DC"},
    {"0.9.2342.19200300.100.1.1", "UID"},
};

constexpr bool is_string(uint32_t tag) {
    return tag == 12 || (tag >= 18 && tag <= 22) || (tag >= 25 && tag <= 28) || tag == 30;
}

// The characters of a primitive string in UTF-8; false for any other element.
bool characters_of(std::string_view element, std::string &text) {
    const auto *octets = reinterpret_cast<const uint8_t *>(element.data());
    Header header;
    return read_header(octets, 0, element.size(), header) && header.is_universal() && !header.is_constructed() &&
           is_string(header.tag) && to_utf8(header.tag, octets + header.size, header.length, text);
}

void put_attribute(Printer &printer, const kovra_asn1_value *attribute) {
    const kovra_asn1_value *oid = kovra_x500attrtypedistval_gettype(attribute);
    const std::string_view dotted = text_of_oid(oid);
    const auto *found = std::find_if(std::begin(short_names), std::end(short_names),
                                     [&](const ShortName &row) { return row.oid == dotted; });
    if (found != std::end(short_names))
        printer.out.put(found->name);
    else
        printer.out.put(name_of_oid(oid));
    printer.out.put("=");
    const std::string value = encoding_of(KOVRA_ASN1_TYPE_ANY, kovra_x500attrtypedistval_getvalue(attribute));
    std::string text;
    if (characters_of(value, text)) {
        printer.out.put(Outside(text, Form::name));
    } else {
        printer.out.put("#");
        printer.out.put_hex(reinterpret_cast<const uint8_t *>(value.data()), value.size());
    }
}

void put_version_4(Printer &printer, const uint8_t *octets) {
    for (size_t i = 0; i < 4; ++i) {
        printer.out.put(i == 0 ? Harmless() : ".");
        printer.out.put_number(octets[i]);
    }
}

// As RFC 5952 recommends: the longest run of two groups of zeros or more is left out.
void put_version_6(Printer &printer, const uint8_t *octets) {
    constexpr size_t count = 8;
    uint32_t groups[count];
    size_t best = count;
    size_t longest = 1;
    for (size_t i = 0; i < count; ++i)
        groups[i] = static_cast<uint32_t>(octets[2 * i] << 8 | octets[2 * i + 1]);
    for (size_t i = 0; i < count; ++i) {
        size_t end = i;
        while (end < count && groups[end] == 0)
            ++end;
        if (end - i > longest) {
            best = i;
            longest = end - i;
        }
    }
    for (size_t i = 0; i < count; ++i) {
        if (i == best) {
            printer.out.put("::");
            i += longest - 1;
            continue;
        }
        printer.out.put(i == 0 || i == best + longest ? Harmless() : ":");
        printer.out.put_number(groups[i], 16);
    }
}

// The number of leading ones of a mask that has no others; -1 for another mask.
int prefix_of(const uint8_t *mask, size_t size) {
    const size_t bits = size * 8;
    const auto is_set = [mask](size_t bit) { return (mask[bit / 8] >> (7 - bit % 8) & 1) != 0; };
    size_t ones = 0;
    while (ones < bits && is_set(ones))
        ++ones;
    for (size_t bit = ones; bit < bits; ++bit)
        if (is_set(bit))
            return -1;
    return static_cast<int>(ones);
}

constexpr Harmless kinds[] = {"otherName",    "email", "DNS", "x400Address", "dirName",
                              "ediPartyName", "URI",   "IP",  "registeredID"};

size_t alternative_of(const kovra_asn1_value *name) {
    int32_t alternative = -1;
    kovra_x509generalname_gettype(name, &alternative);
    return static_cast<size_t>(alternative);
}

void put_other_name(Printer &printer, const kovra_asn1_value *name) {
    printer.out.put(name_of_oid(kovra_instanceoftypeid_getid(name)));
    printer.out.put(" ");
    const std::string value = encoding_of(KOVRA_ASN1_TYPE_ANY, kovra_instanceoftypeid_gettype(name));
    std::string text;
    if (!characters_of(value, text))
        return printer.hex(value);
    printer.out.put("\"");
    put_unquoted(printer, text);
    printer.out.put("\"");
}

void put_directory_string(Printer &printer, kovra_asn1_value *string) {
    int32_t tag = 0;
    kovra_x500dirstring_gettype(string, &tag);
    put_quoted(printer, static_cast<uint32_t>(tag), octets_of(kovra_x500dirstring_getstring(string)));
}

void put_party_name(Printer &printer, const kovra_asn1_value *name) {
    if (kovra_asn1_value *assigner = kovra_x509edipartyname_getnameassigner(name); assigner != nullptr) {
        put_directory_string(printer, assigner);
        printer.out.put(", ");
    }
    put_directory_string(printer, kovra_x509edipartyname_getpartyname(name));
}

void show_name(Printer &printer, kovra_asn1_value *name) {
    show_name(printer, "name", name);
}

void show_general_name(Printer &printer, kovra_asn1_value *name) {
    printer.begin(kind_of_general_name(name));
    put_general_name(printer, name);
    printer.end();
}

void show_directory_string(Printer &printer, kovra_asn1_value *string) {
    printer.begin("value");
    put_directory_string(printer, string);
    printer.end();
}

void show_postal_address(Printer &printer, kovra_asn1_value *lines) {
    for_each(lines, [&](kovra_asn1_value *line) {
        printer.begin("line");
        put_directory_string(printer, line);
        printer.end();
    });
}

void show_telex_number(Printer &printer, kovra_asn1_value *number) {
    constexpr uint32_t printable_string = 19;
    show_text(printer, "number", printable_string, kovra_x500telexnum_gettelexnum(number));
    show_text(printer, "country", printable_string, kovra_x500telexnum_getcoutrycode(number));
    show_text(printer, "answerback", printable_string, kovra_x500telexnum_getanswerback(number));
}

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_NAME, show_name},
    {KOVRA_ASN1_TYPE_DIRECTORY_STRING, show_directory_string},
    {KOVRA_ASN1_TYPE_POSTAL_ADDRESS, show_postal_address},
    {KOVRA_ASN1_TYPE_TELEX_NUMBER, show_telex_number},
    {KOVRA_ASN1_TYPE_PKCS9_STRING, show_directory_string},
    {KOVRA_ASN1_TYPE_GENERAL_NAME, show_general_name},
    {KOVRA_ASN1_TYPE_GENERAL_NAMES, show_general_names},
};

} // namespace

void put_relative_name(Printer &printer, kovra_asn1_value *rdn) {
    bool is_first = true;
    for_each(rdn, [&](const kovra_asn1_value *attribute) {
        printer.out.put(is_first ? Harmless() : "+");
        is_first = false;
        put_attribute(printer, attribute);
    });
}

void put_name(Printer &printer, const kovra_asn1_value *name) {
    kovra_asn1_value *list = kovra_x500name_getdn(name);
    const int32_t size = kovra_asn1_list_getsize(list);
    if (size == 0)
        printer.out.put("(empty)");
    kovra_asn1_value *rdn = nullptr;
    for (int32_t i = size; i-- > 0 && kovra_asn1_list_get(list, i, &rdn) == 1;) {
        put_relative_name(printer, rdn);
        printer.out.put(i == 0 ? Harmless() : ",");
    }
}

void put_address(Printer &printer, std::string_view octets) {
    const auto *first = reinterpret_cast<const uint8_t *>(octets.data());
    const bool has_mask = octets.size() == 8 || octets.size() == 32;
    const size_t size = has_mask ? octets.size() / 2 : octets.size();
    if (size != 4 && size != 16)
        return printer.hex(octets);
    const auto put = size == 4 ? put_version_4 : put_version_6;
    put(printer, first);
    if (!has_mask)
        return;
    printer.out.put("/");
    if (const int prefix = prefix_of(first + size, size); prefix >= 0)
        printer.out.put_number(static_cast<uint64_t>(prefix));
    else
        put(printer, first + size);
}

Harmless kind_of_general_name(const kovra_asn1_value *name) {
    const size_t alternative = alternative_of(name);
    return alternative < std::size(kinds) ? kinds[alternative] : "name";
}

void put_general_name(Printer &printer, const kovra_asn1_value *name) {
    switch (alternative_of(name)) {
    case 0:
        return put_other_name(printer, kovra_x509generalname_getothername(name));
    case 1:
        return put_unquoted(printer, octets_of(kovra_x509generalname_getrfc(name)));
    case 2:
        return put_unquoted(printer, octets_of(kovra_x509generalname_getdnsname(name)));
    case 4:
        return put_name(printer, kovra_x509generalname_getdirname(name));
    case 5:
        return put_party_name(printer, kovra_x509generalname_getediname(name));
    case 6:
        return put_unquoted(printer, octets_of(kovra_x509generalname_geturi(name)));
    case 7:
        return put_address(printer, octets_of(kovra_x509generalname_getip(name)));
    case 8:
        return printer.out.put(name_of_oid(kovra_x509generalname_getregid(name)));
    default:
        return printer.hex(encoding_of(KOVRA_ASN1_TYPE_GENERAL_NAME, name));
    }
}

void show_name(Printer &printer, Harmless label, kovra_asn1_value *name) {
    if (name == nullptr)
        return;
    printer.begin(label);
    put_name(printer, name);
    printer.end();
}

void show_general_names(Printer &printer, kovra_asn1_value *names) {
    for_each(names, [&](kovra_asn1_value *name) { show_general_name(printer, name); });
}

void show_general_names(Printer &printer, Harmless label, kovra_asn1_value *names) {
    if (names == nullptr)
        return;
    printer.heading(label);
    const Printer::Deeper deeper(printer);
    show_general_names(printer, names);
}

std::span<const TypeRow> name_structures() {
    return rows;
}

} // namespace kovra::tool
