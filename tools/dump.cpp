// `dump`: a line for each element.

#include "kovra/asn1_types.h"
#include "tree.hpp"

namespace kovra::tool {

namespace {

void put_heading(Output &out, const Item &item, const Place &place) {
    out.put("# ");
    out.put(place.text());
    if (!item.label.empty())
        out.put(" ");
    out.put(Outside(item.label));
    out.put("\n");
}

} // namespace

void dump(Session &session) {
    TreeStyle style;
    style.is_full = session.options.is_full;
    style.is_colored = session.options.is_colored;
    session.for_each_item([&](const Item &item, const Place &place) {
        if (!item.is_only && !session.options.is_quiet)
            put_heading(session.out, item, place);
        Refusal refusal;
        style.origin = item.origin;
        if (!put_tree(session.out, item.octets, item.begin, item.end, style, refusal))
            session.report(place.text(), explain(refusal, {KOVRA_ASN1_TYPE_ANY}));
    });
}

} // namespace kovra::tool
