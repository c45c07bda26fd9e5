// Extensions about policies, and name constraints.

#include "show_fields.hpp"

namespace kovra::tool {

namespace {

void put_display_text(Printer &printer, kovra_asn1_value *text) {
    int32_t tag = 0;
    kovra_pkixdisplaytext_gettype(text, &tag);
    put_quoted(printer, static_cast<uint32_t>(tag), octets_of(kovra_pkixdisplaytext_getstring(text)));
}

void show_notice(Printer &printer, kovra_asn1_value *notice) {
    kovra_asn1_value *reference = kovra_pkixusernotice_getref(notice);
    printer.begin("notice");
    if (kovra_asn1_value *text = kovra_pkixusernotice_gettext(notice); text != nullptr)
        put_display_text(printer, text);
    else
        printer.out.put("(no text)");
    printer.end();
    if (reference == nullptr)
        return;
    const Printer::Deeper deeper(printer);
    printer.begin("organization");
    put_display_text(printer, kovra_pkixnoticeref_getorg(reference));
    printer.end();
    printer.begin("numbers");
    Harmless between;
    for_each(kovra_pkixnoticeref_getnums(reference), [&](const kovra_asn1_value *number) {
        printer.out.put(between);
        put_integer(printer, number);
        between = ", ";
    });
    printer.end();
}

void show_qualifier(Printer &printer, kovra_asn1_value *info) {
    const kovra_asn1_value *oid = kovra_x509polqualifierinfo_getid(info);
    kovra_asn1_value *qualifier = kovra_x509polqualifierinfo_getqualifier(info);
    const std::string_view id = text_of_oid(oid);
    if (id == "1.3.6.1.5.5.7.2.1") {
        Value uri(KOVRA_ASN1_TYPE_IA5_STRING);
        if (kovra_asn1_any_toobject(qualifier, KOVRA_ASN1_TYPE_IA5_STRING, uri.place(), nullptr) == 1) {
            printer.begin("CPS");
            put_unquoted(printer, octets_of(uri.get()));
            return printer.end();
        }
    } else if (id == "1.3.6.1.5.5.7.2.2") {
        Value notice(KOVRA_ASN1_TYPE_USER_NOTICE);
        if (kovra_asn1_any_toobject(qualifier, KOVRA_ASN1_TYPE_USER_NOTICE, notice.place(), nullptr) == 1)
            return show_notice(printer, notice.get());
    }
    printer.field("qualifier", name_of_oid(oid));
    const Printer::Deeper deeper(printer);
    show_any(printer, "value", qualifier);
}

void show_subtrees(Printer &printer, Harmless label, kovra_asn1_value *subtrees) {
    if (subtrees == nullptr)
        return;
    printer.heading(label);
    const Printer::Deeper deeper(printer);
    for_each(subtrees, [&](kovra_asn1_value *subtree) {
        const kovra_asn1_value *base = kovra_x509gensubtree_getbase(subtree);
        const kovra_asn1_value *least = kovra_x509gensubtree_getmin(subtree);
        const kovra_asn1_value *most = kovra_x509gensubtree_getmax(subtree);
        int32_t minimum = -1;
        kovra_asn1_integer_getlong(least, &minimum);
        printer.begin(kind_of_general_name(base));
        put_general_name(printer, base);
        if (minimum != 0) {
            printer.out.put(", minimum ");
            put_integer(printer, least);
        }
        if (most != nullptr) {
            printer.out.put(", maximum ");
            put_integer(printer, most);
        }
        printer.end();
    });
}

void show_policies(Printer &printer, kovra_asn1_value *policies) {
    for_each(policies, [&](kovra_asn1_value *policy) {
        printer.field("policy", name_of_oid(kovra_x509policyinfo_getid(policy)));
        const Printer::Deeper deeper(printer);
        for_each(kovra_x509policyinfo_getqualifiers(policy),
                 [&](kovra_asn1_value *qualifier) { show_qualifier(printer, qualifier); });
    });
}

void show_policy_mappings(Printer &printer, kovra_asn1_value *mappings) {
    for_each(mappings, [&](kovra_asn1_value *mapping) {
        printer.begin("mapping");
        printer.out.put(name_of_oid(kovra_x509policymapping_getissuerpolicy(mapping)));
        printer.out.put(" -> ");
        printer.out.put(name_of_oid(kovra_x509policymapping_getsubjectpolicy(mapping)));
        printer.end();
    });
}

void show_policy_constraints(Printer &printer, kovra_asn1_value *constraints) {
    show_integer(printer, "explicit policy after", kovra_x509polcons_getreqexppol(constraints));
    show_integer(printer, "no mapping after", kovra_x509polcons_getinhibitpolmap(constraints));
}

void show_name_constraints(Printer &printer, kovra_asn1_value *constraints) {
    show_subtrees(printer, "permitted", kovra_x509namecons_getpermit(constraints));
    show_subtrees(printer, "excluded", kovra_x509namecons_getexclude(constraints));
    kovra_asn1_value *forms = kovra_x509namecons_getreqforms(constraints);
    if (forms == nullptr)
        return;
    static constexpr Harmless basic[] = {"rfc822Name",    "dNSName",      "x400Address",
                                         "directoryName", "ediPartyName", "uniformResourceIdentifier",
                                         "iPAddress",     "registeredID"};
    printer.heading("required name forms");
    const Printer::Deeper deeper(printer);
    show_bits(printer, "basic", kovra_x509nameforms_getbasic(forms), basic);
    for_each(kovra_x509nameforms_getother(forms),
             [&](const kovra_asn1_value *oid) { printer.field("other", name_of_oid(oid)); });
}

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES, show_policies},
    {KOVRA_ASN1_TYPE_POLICY_MAPPINGS, show_policy_mappings},
    {KOVRA_ASN1_TYPE_NAME_CONSTRAINTS, show_name_constraints},
    {KOVRA_ASN1_TYPE_PKIX_NAME_CONSTRAINTS, show_name_constraints},
    {KOVRA_ASN1_TYPE_POLICY_CONSTRAINTS, show_policy_constraints},
    {KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES_1, show_policies},
};

} // namespace

std::span<const TypeRow> policy_structures() {
    return rows;
}

} // namespace kovra::tool
