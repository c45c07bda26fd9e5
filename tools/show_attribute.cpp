// Attributes: of requests, of subjects, of messages.

#include "show_fields.hpp"

namespace kovra::tool {

namespace {

constexpr OidRow values[] = {
    {"1.2.840.113549.1.9.2", KOVRA_ASN1_TYPE_PKCS9_STRING},
    {"1.2.840.113549.1.9.3", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER, show_oid},
    {"1.2.840.113549.1.9.4", KOVRA_ASN1_TYPE_OCTET_STRING, show_octets},
    {"1.2.840.113549.1.9.5", KOVRA_ASN1_TYPE_TIME, show_moment},
    {"1.2.840.113549.1.9.6", KOVRA_ASN1_TYPE_SIGNER_INFO},
    {"1.2.840.113549.1.9.7", KOVRA_ASN1_TYPE_DIRECTORY_STRING},
    {"1.2.840.113549.1.9.8", KOVRA_ASN1_TYPE_DIRECTORY_STRING},
    {"1.2.840.113549.1.9.14", KOVRA_ASN1_TYPE_EXTENSIONS},
    {"1.2.840.113549.1.9.15", KOVRA_ASN1_TYPE_SMIME_CAPABILITIES},
    {"1.2.840.113549.1.9.16.2.12", KOVRA_ASN1_TYPE_SIGNING_CERTIFICATE},
    {"1.2.840.113549.1.9.16.2.14", KOVRA_ASN1_TYPE_CONTENT_INFO},
    {"1.2.840.113549.1.9.16.2.20", KOVRA_ASN1_TYPE_CONTENT_INFO},
    {"1.2.840.113549.1.9.16.2.25", KOVRA_ASN1_TYPE_CONTENT_INFO},
    {"1.2.840.113549.1.9.16.2.26", KOVRA_ASN1_TYPE_CONTENT_INFO},
    {"1.2.840.113549.1.9.16.2.27", KOVRA_ASN1_TYPE_CONTENT_INFO},
    {"1.2.840.113549.1.9.16.2.47", KOVRA_ASN1_TYPE_SIGNING_CERTIFICATE_V2},
    {"1.2.840.113549.1.9.16.2.48", KOVRA_ASN1_TYPE_CONTENT_INFO},
    {"1.2.840.113549.1.9.20", KOVRA_ASN1_TYPE_DIRECTORY_STRING},
    {"1.2.840.113549.1.9.21", KOVRA_ASN1_TYPE_OCTET_STRING, show_octets},
    {"1.3.6.1.4.1.311.2.4.1", KOVRA_ASN1_TYPE_CONTENT_INFO},
    {"1.3.6.1.4.1.311.3.3.1", KOVRA_ASN1_TYPE_CONTENT_INFO},
    {"1.3.6.1.4.1.311.17.1", KOVRA_ASN1_TYPE_DIRECTORY_STRING},
    {"1.3.6.1.4.1.311.2.1.14", KOVRA_ASN1_TYPE_EXTENSIONS},
    {"1.3.6.1.5.5.7.9.1", KOVRA_ASN1_TYPE_GENERALIZED_TIME, show_moment},
    {"2.5.4.16", KOVRA_ASN1_TYPE_POSTAL_ADDRESS},
    {"2.5.4.21", KOVRA_ASN1_TYPE_TELEX_NUMBER},
};

void show_attribute(Printer &printer, kovra_asn1_value *attribute) {
    const kovra_asn1_value *oid = kovra_x500attribute_gettype(attribute);
    const OidRow *row = printer.is_deep() ? nullptr : find_row(values, text_of_oid(oid));
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

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_ATTRIBUTE, show_attribute},
    {KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTE, show_attribute},
    {KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, show_attributes},
    {KOVRA_ASN1_TYPE_SUBJECT_DIRECTORY_ATTRIBUTES, show_attributes},
};

} // namespace

void show_attributes(Printer &printer, kovra_asn1_value *attributes) {
    for_each(attributes, [&](kovra_asn1_value *attribute) { show_attribute(printer, attribute); });
}

std::span<const TypeRow> attribute_structures() {
    return rows;
}

} // namespace kovra::tool
