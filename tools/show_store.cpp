// Stores of keys and certificates (PKCS #12), and the records of a certificate store.

#include "inner.hpp"
#include "show_fields.hpp"

namespace kovra::tool {

namespace {

void show_safe(Printer &printer, Harmless, kovra_asn1_value *info) {
    printer.type_of_data = KOVRA_ASN1_TYPE_AUTHENTICATED_SAFE;
    show_value(printer, KOVRA_ASN1_TYPE_CONTENT_INFO, info);
    printer.type_of_data = KOVRA_ASN1_TYPE_COUNT;
}

const Field store[] = {
    {"version", kovra_pkcs12pfx_getversion, show_integer},
    {"", kovra_pkcs12pfx_getauthsafe, show_safe},
    {"MAC", kovra_pkcs12pfx_getmacdata, show_below<KOVRA_ASN1_TYPE_MAC_DATA>},
};

const Field mac[] = {
    {"", kovra_pkcs12macdata_getmac, show_here<KOVRA_ASN1_TYPE_DIGEST_INFO>},
    {"salt", kovra_pkcs12macdata_getmacsalt, show_hex},
    {"iterations", kovra_pkcs12macdata_getiterations, show_integer},
};

void show_authenticated_safe(Printer &printer, kovra_asn1_value *infos) {
    const uint32_t before = printer.type_of_data;
    printer.type_of_data = KOVRA_ASN1_TYPE_SAFE_CONTENTS;
    for_each(infos, [&](kovra_asn1_value *info) { show_below<KOVRA_ASN1_TYPE_CONTENT_INFO>(printer, "safe", info); });
    printer.type_of_data = before;
}

// What is in a bag of no known type may be private.
void show_bag(Printer &printer, kovra_asn1_value *bag) {
    kovra_asn1_value *oid = kovra_pkcs12safebag_getbagid(bag);
    const std::string octets = encoding_of(KOVRA_ASN1_TYPE_ANY, kovra_pkcs12safebag_getbagvalue(bag));
    const OidRow *row = printer.is_deep() ? nullptr : find_bag(text_of_oid(oid));
    printer.field("bag", name_of_oid(oid));
    const Printer::Deeper deeper(printer);
    if (row == nullptr)
        printer.secret("value", octets);
    else if (Value value(row->type); read_octets(octets, row->type, value))
        show_value(printer, row->type, value.get());
    else
        printer.malformed_secret(name_of_oid(oid), row->type, octets);
    if (kovra_asn1_value *attributes = kovra_pkcs12safebag_getbagattributes(bag); attributes != nullptr)
        show_counted<KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES>(printer, "attributes", attributes);
}

// A certificate or CRL in the octets of an OCTET STRING.
void show_bag_content(Printer &printer, kovra_asn1_value *oid, kovra_asn1_value *any) {
    const OidRow *row = find_bag_content(text_of_oid(oid));
    show_named_oid(printer, "type", oid);
    Value string(KOVRA_ASN1_TYPE_OCTET_STRING);
    if (row == nullptr || !read_any(any, KOVRA_ASN1_TYPE_OCTET_STRING, string))
        return show_any(printer, "value", any);
    const std::string octets = octets_of(string.get());
    if (Value value(row->type); read_octets(octets, row->type, value))
        show_value(printer, row->type, value.get());
    else
        printer.malformed(name_of_oid(oid), row->type, octets);
}

void show_certificate_bag(Printer &printer, kovra_asn1_value *bag) {
    show_bag_content(printer, kovra_pkcs12certbag_getcertid(bag), kovra_pkcs12certbag_getcertvalue(bag));
}

void show_crl_bag(Printer &printer, kovra_asn1_value *bag) {
    show_bag_content(printer, kovra_pkcs12crlbag_getcrlid(bag), kovra_pkcs12crlbag_getcrlvalue(bag));
}

void show_secret_any(Printer &printer, Harmless label, kovra_asn1_value *any) {
    if (printer.has_secrets())
        show_any(printer, label, any);
    else
        printer.secret(label, encoding_of(KOVRA_ASN1_TYPE_ANY, any));
}

const Field secret_bag[] = {
    {"type", kovra_pkcs12secretbag_getsecrettypeid, show_named_oid},
    {"value", kovra_pkcs12secretbag_getsecretvalue, show_secret_any},
};

const Field record[] = {
    {"certificate", kovra_certstore_certwithattr_getcert, show_below<KOVRA_ASN1_TYPE_CERTIFICATE>},
    {"attributes", kovra_certstore_certwithattr_getattrlist, show_counted<KOVRA_ASN1_TYPE_STORE_ATTRIBUTE_LIST>},
};

const Field attribute[] = {
    {"type", kovra_certstore_attr_gettype, show_integer},
    {"value", kovra_certstore_attr_getvalue, show_any},
};

const Field key_attribute[] = {
    {"provider", kovra_certstore_privkeyattr_getprovider, show_utf8},
    {"part of the provider", kovra_certstore_privkeyattr_getsubprovider, show_utf8},
    {"key type", kovra_certstore_privkeyattr_getkeytype, show_integer},
    {"flag", kovra_certstore_privkeyattr_getflag, show_integer},
    {"", kovra_certstore_privkeyattr_getkeyid, show_here<KOVRA_ASN1_TYPE_STORE_KEY_ID>},
};

const Field key_id[] = {
    {"key id", kovra_certstore_keyid_getkeyid, show_utf8},
    {"key algorithm", kovra_certstore_keyid_getalgoid, show_algorithm},
};

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_PFX, show_fields<store>},
    {KOVRA_ASN1_TYPE_MAC_DATA, show_fields<mac>},
    {KOVRA_ASN1_TYPE_AUTHENTICATED_SAFE, show_authenticated_safe},
    {KOVRA_ASN1_TYPE_SAFE_BAG, show_bag},
    {KOVRA_ASN1_TYPE_CERT_BAG, show_certificate_bag},
    {KOVRA_ASN1_TYPE_CRL_BAG, show_crl_bag},
    {KOVRA_ASN1_TYPE_SECRET_BAG, show_fields<secret_bag>},
    {KOVRA_ASN1_TYPE_CERT_WITH_ATTRIBUTES, show_fields<record>},
    {KOVRA_ASN1_TYPE_STORE_ATTRIBUTE, show_fields<attribute>},
    {KOVRA_ASN1_TYPE_PRIVATE_KEY_ATTRIBUTE, show_fields<key_attribute>},
    {KOVRA_ASN1_TYPE_STORE_KEY_ID, show_fields<key_id>},
};

} // namespace

std::span<const TypeRow> store_structures() {
    return rows;
}

} // namespace kovra::tool
