// `dump`: a line for each element.

#include "kovra/asn1_types.h"
#include "tree.hpp"

namespace kovra::tool {

void dump(Session &session) {
    TreeStyle style;
    style.is_full = session.options.is_full;
    style.is_colored = session.options.is_colored;
    session.for_each_item([&](const Item &item, const std::string &place) {
        if (!item.is_only && !session.options.is_quiet)
            session.out.put("# " + place + (item.label.empty() ? "" : " " + item.label) + "\n");
        Refusal refusal;
        style.origin = item.origin;
        if (!put_tree(session.out, item.octets, item.begin, item.end, style, refusal))
            session.report(place, explain(refusal, {KOVRA_ASN1_TYPE_ANY}));
    });
}

} // namespace kovra::tool
