// `types`: the type identifiers. Names are those of kovra/asn1_types.h, without KOVRA_ASN1_TYPE_.

#include <algorithm>
#include <charconv>

#include "command.hpp"
#include "kovra/asn1.h"
#include "type_names.hpp"

namespace kovra::tool {

namespace {

struct TypeRow {
    Harmless name;
    uint8_t tag; // universal; 0: that of the alternative
    Harmless form;
};

// By type identifier; made from the registry when this is built.
constexpr TypeRow rows[] = {
#include "type_rows.inc"
};
static_assert(sizeof rows / sizeof rows[0] == KOVRA_ASN1_TYPE_COUNT);

} // namespace

Harmless type_name(uint32_t type) {
    return type < KOVRA_ASN1_TYPE_COUNT ? rows[type].name : Harmless();
}

uint32_t find_type(std::string_view text) {
    uint32_t number = 0;
    const char *end = text.data() + text.size();
    if (const auto [stop, error] = std::from_chars(text.data(), end, number); error == std::errc() && stop == end)
        return std::min<uint32_t>(number, KOVRA_ASN1_TYPE_COUNT);
    const auto same = [](char left, char right) {
        const auto plain = [](char c) { return c == '-' ? '_' : c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; };
        return plain(left) == right;
    };
    const auto is_name = [&](std::string_view name) {
        return std::equal(text.begin(), text.end(), name.begin(), name.end(), same);
    };
    while (number < KOVRA_ASN1_TYPE_COUNT && !is_name(rows[number].name.view()))
        ++number;
    return number;
}

void types(Session &session) {
    session.out.put("type  tag  form         name\n");
    uint32_t number = 0;
    for (const TypeRow &row : rows) {
        session.out.put_right(number++, 4);
        session.out.put_right(row.tag, 5);
        session.out.put_blanks(2);
        session.out.put(row.form);
        session.out.put_blanks(13 - row.form.size());
        session.out.put(row.name);
        session.out.put("\n");
    }
}

} // namespace kovra::tool
