#include <algorithm>

#include "element.hpp"
#include "show.hpp"
#include "tree.hpp"
#include "value_text.hpp"

namespace kovra::tool {

namespace {

const uint8_t *octets_in(std::string_view text) {
    return reinterpret_cast<const uint8_t *>(text.data());
}

} // namespace

void Printer::begin(Harmless label, size_t column) {
    blanks();
    out.put(label);
    out.put(":");
    const size_t printed = indent_ + label.size() + 1;
    out.put_blanks(printed < column ? column - printed : 1);
}

void Printer::field(Harmless label, Harmless value) {
    begin(label);
    out.put(value);
    end();
}

void Printer::heading(Harmless label) {
    blanks();
    out.put(label);
    out.put(":\n");
}

void Printer::hex(std::string_view octets) {
    constexpr size_t longest = 32;
    const size_t shown = session_.options.is_full ? octets.size() : std::min(octets.size(), longest);
    out.put_hex(octets_in(octets), shown);
    if (octets.empty())
        out.put("(empty)");
    if (shown == octets.size())
        return;
    out.put("... (");
    out.put_number(octets.size());
    out.put(" octets)");
}

void Printer::hex(Harmless label, std::string_view octets) {
    begin(label);
    hex(octets);
    end();
}

void Printer::element(Harmless label, std::string_view octets) {
    Header header;
    if (!read_header(octets_in(octets), 0, octets.size(), header))
        return hex(label, octets);
    if (header.is_constructed() || header.is_indefinite) {
        heading(label);
        const Deeper deeper(*this);
        return tree(octets);
    }
    if (header.length == 0) {
        const Harmless name = header.is_universal() ? universal_name(header.tag) : Harmless();
        return field(label, !name.empty() ? name : "(empty)");
    }
    // put_value begins with a blank.
    begin(label, value_column - 1);
    put_value(out, header, octets_in(octets), {session_.options.is_full, false});
    end();
}

void Printer::tree(std::string_view octets) {
    TreeStyle style;
    style.has_columns = false;
    style.indent = indent_;
    style.value_column = value_column;
    style.is_full = session_.options.is_full;
    Refusal refusal;
    if (!put_tree(out, octets_in(octets), 0, octets.size(), style, refusal))
        hex("malformed", octets);
}

void Printer::malformed(Harmless what, uint32_t type, std::string_view octets) {
    if (is_in_store())
        return malformed_secret(what, type, octets);
    hex("malformed", octets);
    report(what, type, octets);
}

void Printer::malformed_secret(Harmless what, uint32_t type, std::string_view octets) {
    secret("malformed", octets);
    report(what, type, octets);
}

void Printer::secret(Harmless label, std::string_view octets) {
    begin(label);
    if (has_secrets())
        hex(octets);
    else
        hidden(octets.size(), " octets");
    end();
}

void Printer::hidden(uint64_t size, Harmless unit) {
    out.put("(hidden, ");
    out.put_number(size);
    out.put(unit);
    out.put(")");
}

void Printer::report(Harmless what, uint32_t type, std::string_view octets) {
    session_.report(place_ + " " + what, explain({octets_in(octets), 0, octets.size(), true}, {type}));
}

} // namespace kovra::tool
