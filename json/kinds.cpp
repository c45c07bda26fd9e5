#include "json/kinds.hpp"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr JsonKind kinds[] = {
    {"BOOLEAN", 1, KOVRA_ASN1_TYPE_BOOLEAN, Notation::boolean, false},
    {"INTEGER", 2, KOVRA_ASN1_TYPE_INTEGER, Notation::hex, false},
    {"BITSTRING", 3, KOVRA_ASN1_TYPE_BIT_STRING, Notation::bits, false},
    {"OCTETSTRING", 4, KOVRA_ASN1_TYPE_OCTET_STRING, Notation::hex, false},
    {"NULL", 5, KOVRA_ASN1_TYPE_NULL, Notation::none, false},
    {"OID", 6, KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER, Notation::oid, false},
    {"ENUM", 10, KOVRA_ASN1_TYPE_ENUMERATED, Notation::hex, false},
    {"UTF8STRING", 12, KOVRA_ASN1_TYPE_UTF8_STRING, Notation::utf8, false},
    {"SEQUENCE", 16, KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, Notation::list, false},
    {"SEQUENCEOF", 16, KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, Notation::list, true},
    {"SETOF", 17, KOVRA_ASN1_TYPE_SET_OF_ANY, Notation::list, false},
    {"SET", 17, KOVRA_ASN1_TYPE_SET_OF_ANY, Notation::list, true},
    {"NUMERICSTRING", 18, KOVRA_ASN1_TYPE_NUMERIC_STRING, Notation::numeric, false},
    {"PRINTABLESTRING", 19, KOVRA_ASN1_TYPE_PRINTABLE_STRING, Notation::printable, false},
    {"TELETEXSTRING", 20, KOVRA_ASN1_TYPE_TELETEX_STRING, Notation::octets, false},
    {"T61STRING", 20, KOVRA_ASN1_TYPE_TELETEX_STRING, Notation::octets, true},
    {"IA5STRING", 22, KOVRA_ASN1_TYPE_IA5_STRING, Notation::ia5, false},
    {"UTCTIME", 23, KOVRA_ASN1_TYPE_UTC_TIME, Notation::time, false},
    {"GENTIME", 24, KOVRA_ASN1_TYPE_GENERALIZED_TIME, Notation::time, false},
    {"VISIBLESTRING", 26, KOVRA_ASN1_TYPE_VISIBLE_STRING, Notation::visible, false},
    // Existing documents have this spelling of ISO646STRING.
    {"ISO636STRING", 26, KOVRA_ASN1_TYPE_VISIBLE_STRING, Notation::visible, true},
    {"UNIVERSALSTRING", 28, KOVRA_ASN1_TYPE_UNIVERSAL_STRING, Notation::utf32, false},
    {"BMPSTRING", 30, KOVRA_ASN1_TYPE_BMP_STRING, Notation::bmp, false},
};

// Indices into `kinds` by tag.
struct ByTag {
    uint8_t index[32];
    constexpr ByTag() : index{} {
        for (size_t i = 0; i < std::size(kinds); ++i)
            if (!kinds[i].is_input_only)
                index[kinds[i].tag] = static_cast<uint8_t>(i + 1);
    }
};
constexpr ByTag by_tag;

bool is_letter_or_digit(uint8_t octet) {
    return (octet >= 'A' && octet <= 'Z') || (octet >= 'a' && octet <= 'z') || (octet >= '0' && octet <= '9');
}
bool is_numeric(uint8_t octet) {
    return octet == ' ' || (octet >= '0' && octet <= '9');
}
bool is_printable(uint8_t octet) {
    return is_letter_or_digit(octet) || (octet != 0 && std::strchr(" '()+,-./:=?", octet) != nullptr);
}
bool is_ia5(uint8_t octet) {
    return octet <= 0x7F;
}
bool is_visible(uint8_t octet) {
    return octet >= 0x20 && octet <= 0x7E;
}

} // namespace

const JsonKind *kind_of_tag(int32_t tag) {
    return tag >= 0 && tag < 32 && by_tag.index[tag] != 0 ? &kinds[by_tag.index[tag] - 1] : nullptr;
}

const JsonKind *kind_of_name(const char *name) {
    const auto *found = std::find_if(std::begin(kinds), std::end(kinds),
                                     [name](const JsonKind &kind) { return std::strcmp(kind.name, name) == 0; });
    return found != std::end(kinds) ? found : nullptr;
}

bool is_in_repertoire(Notation notation, const uint8_t *octets, uint32_t length) {
    switch (notation) {
    case Notation::numeric:
        return std::all_of(octets, octets + length, is_numeric);
    case Notation::printable:
        return std::all_of(octets, octets + length, is_printable);
    case Notation::ia5:
        return std::all_of(octets, octets + length, is_ia5);
    case Notation::visible:
        return std::all_of(octets, octets + length, is_visible);
    default:
        return true;
    }
}

} // namespace kovra::asn1
