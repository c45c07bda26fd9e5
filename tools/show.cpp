// `show`: decoded structures in words.

#include "show.hpp"

#include "detect.hpp"
#include "type_names.hpp"

namespace kovra::tool {

namespace {

void put_heading(Session &session, const Item &item, const Place &place, uint32_t type) {
    const bool is_told = session.options.type != KOVRA_ASN1_TYPE_COUNT;
    if (session.options.is_quiet || (item.is_only && is_told))
        return;
    // Where there is only one element, its number [1] is left out.
    session.out.put("# ");
    session.out.put(item.is_only ? place.file + ":" : place.text());
    session.out.put(" ");
    session.out.put(type_name(type));
    if (!is_told) {
        session.out.put(" (");
        session.out.put_number(type);
        session.out.put(")");
    }
    session.out.put("\n");
}

} // namespace

void show(Session &session) {
    session.for_each_item([&](const Item &item, const Place &place) {
        const Detected detected = detect(item, session.options);
        if (!detected.is_good)
            return session.report(place.text(), explain(item, detected.type));
        put_heading(session, item, place, detected.type);
        Printer printer(session, place.text());
        if (detected.value == nullptr)
            printer.tree({reinterpret_cast<const char *>(item.octets) + item.begin, item.end - item.begin});
        else
            show_value(printer, detected.type, detected.value);
        kovra_asn1_value_free(detected.type, detected.value);
    });
}

} // namespace kovra::tool
