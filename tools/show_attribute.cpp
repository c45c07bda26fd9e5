// Attributes: of requests, of subjects, of messages.

#include "show.hpp"
#include "tool_handles.hpp"

namespace kovra::tool {

void show_attribute(Printer &printer, kovra_asn1_value *attribute) {
    const kovra_asn1_value *oid = kovra_x500attribute_gettype(attribute);
    const OidRow *row = printer.is_deep() ? nullptr : find_attribute(text_of_oid(oid));
    const Message name = name_of_oid(oid);
    printer.heading(name);
    const Printer::Deeper deeper(printer);
    for_each(kovra_x500attribute_getvalue(attribute), [&](kovra_asn1_value *any) {
        if (row == nullptr)
            return show_any(printer, "value", any);
        Value value(row->type);
        if (kovra_asn1_any_toobject(any, row->type, value.place(), nullptr) != 1)
            printer.malformed(name, row->type, encoding_of(KOVRA_ASN1_TYPE_ANY, any));
        else if (row->show != nullptr)
            row->show(printer, value.get());
        else
            show_value(printer, row->type, value.get());
    });
    for_each(kovra_x500attribute_getcontext(attribute), [&](kovra_asn1_value *item) {
        printer.heading("value with context");
        const Printer::Deeper further(printer);
        show_value(printer, KOVRA_ASN1_TYPE_ATTRIBUTE_VALUES_WITH_CONTEXT_ITEM, item);
    });
}

void show_attributes(Printer &printer, kovra_asn1_value *attributes) {
    for_each(attributes, [&](kovra_asn1_value *attribute) { show_attribute(printer, attribute); });
}

} // namespace kovra::tool
