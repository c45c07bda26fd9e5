// Messages (PKCS #7, CMS): content of any type, signed and digested data.

#include "show_message.hpp"

#include <algorithm>

#include "inner.hpp"
#include "show_fields.hpp"

namespace kovra::tool {

namespace {

constexpr uint32_t utf8_string = 12;

// Is it printable ASCII and white space only?
bool is_text(std::string_view octets) {
    return std::all_of(octets.begin(), octets.end(), [](char c) {
        const auto octet = static_cast<uint8_t>(c);
        return (octet >= 0x20 && octet < 0x7F) || octet == '\n' || octet == '\r' || octet == '\t';
    });
}

// Data in a store of keys: an AuthenticatedSafe or SafeContents.
void show_store_data(Printer &printer, std::string_view octets) {
    const uint32_t type = printer.type_of_data;
    Value value(type);
    if (printer.is_deep() || !read_octets(octets, type, value))
        return printer.malformed_secret("content", type, octets);
    printer.heading("content");
    const Printer::Deeper deeper(printer);
    printer.type_of_data = KOVRA_ASN1_TYPE_COUNT;
    show_value(printer, type, value.get());
    printer.type_of_data = type;
}

void show_data(Printer &printer, std::string_view octets) {
    constexpr size_t longest = 200;
    if (printer.is_in_store())
        return show_store_data(printer, octets);
    if (octets.empty() || !is_text(octets) || (octets.size() > longest && !printer.is_full()))
        return printer.hex("content", octets);
    printer.begin("content");
    put_quoted(printer, utf8_string, octets);
    printer.end();
}

// Content that is the encoding of a structure; false when its type is not known.
bool show_structure(Printer &printer, const kovra_asn1_value *oid, std::string_view octets) {
    const auto rows = printer.is_deep() ? std::span<const OidRow>() : find_content(text_of_oid(oid));
    for (const OidRow &row : rows) {
        Value value(row.type);
        if (!read_octets(octets, row.type, value))
            continue;
        printer.heading("content");
        const Printer::Deeper deeper(printer);
        if (row.show != nullptr)
            row.show(printer, value.get());
        else
            show_value(printer, row.type, value.get());
        return true;
    }
    if (rows.empty())
        return false;
    printer.malformed(name_of_oid(oid), rows.front().type, octets);
    return true;
}

void show_content_info(Printer &printer, kovra_asn1_value *info) {
    kovra_asn1_value *oid = kovra_pkcs7contentinfo_getcontenttype(info);
    show_named_oid(printer, "content type", oid);
    show_content(printer, oid, kovra_pkcs7contentinfo_getcontent(info));
}

void show_encapsulated_content(Printer &printer, kovra_asn1_value *info) {
    kovra_asn1_value *oid = kovra_cmsencapsulatedcontentinfo_getcontenttype(info);
    show_named_oid(printer, "content type", oid);
    show_content_octets(printer, oid, kovra_cmsencapsulatedcontentinfo_getcontent(info));
}

void show_certificate_choice(Printer &printer, kovra_asn1_value *choice) {
    static constexpr Harmless kinds[] = {"", "extended certificate", "attribute certificate, version 1",
                                         "attribute certificate, version 2"};
    const int32_t kind = kovra_cmscertchoice_gettype(choice);
    if (kind == 0)
        return show_certificate(printer, kovra_cmscertchoice_getx509pubkeycert(choice));
    if (kind == 4)
        return show_value(printer, KOVRA_ASN1_TYPE_OTHER_CERTIFICATE_FORMAT, kovra_cmscertchoice_getothercert(choice));
    printer.field("kind", kinds[kind]);
    printer.tree(encoding_of(KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY_1, kovra_cmscertchoice_getx509pubkeycert(choice)));
}

void show_revocation_choice(Printer &printer, kovra_asn1_value *choice) {
    if (kovra_cmsrevinfochoice_gettype(choice) == 0)
        return show_crl(printer, kovra_cmsrevinfochoice_getcrl(choice));
    show_value(printer, KOVRA_ASN1_TYPE_OTHER_REVOCATION_INFO_FORMAT, kovra_cmsrevinfochoice_getotherrevinfo(choice));
}

void show_other_certificate(Printer &printer, kovra_asn1_value *other) {
    show_named_oid(printer, "format", kovra_cmsothercertformat_getformat(other));
    show_any(printer, "value", kovra_cmsothercertformat_getothercert(other));
}

void show_other_revocation(Printer &printer, kovra_asn1_value *other) {
    constexpr std::string_view ocsp_response = "1.3.6.1.5.5.7.16.2";
    kovra_asn1_value *format = kovra_cmsotherrevinfoformat_getformat(other);
    kovra_asn1_value *any = kovra_cmsotherrevinfoformat_getotherrevinfo(other);
    show_named_oid(printer, "format", format);
    Value response(KOVRA_ASN1_TYPE_OCSP_RESPONSE);
    if (text_of_oid(format) == ocsp_response && read_any(any, KOVRA_ASN1_TYPE_OCSP_RESPONSE, response))
        show_below<KOVRA_ASN1_TYPE_OCSP_RESPONSE>(printer, "OCSP response", response.get());
    else
        show_any(printer, "value", any);
}

const Field issuer_and_serial[] = {
    {"issuer", kovra_cmsissuerandsn_getissuer, show_name},
    {"serial", kovra_cmsissuerandsn_getsn, show_serial},
};

void show_signer_id(Printer &printer, kovra_asn1_value *identifier) {
    if (kovra_cmssignerid_gettype(identifier) == 0)
        show_fields<issuer_and_serial>(printer, kovra_cmssignerid_getissuersn(identifier));
    else
        show_hex(printer, "key id", kovra_cmssignerid_getkeyid(identifier));
}

const Field signed_data[] = {
    {"version", kovra_pkcs7signeddata_getversion, show_integer},
    {"", kovra_pkcs7signeddata_getdigestalgos, show_here<KOVRA_ASN1_TYPE_DIGEST_ALGORITHM_IDENTIFIERS>},
    {"", kovra_pkcs7signeddata_getcontentinfo, show_here<KOVRA_ASN1_TYPE_CONTENT_INFO>},
    {"certificates", kovra_pkcs7signeddata_getcerts, show_counted<KOVRA_ASN1_TYPE_CERTIFICATE_SET>},
    {"CRLs", kovra_pkcs7signeddata_getcrls, show_counted<KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICES>},
    {"signers", kovra_pkcs7signeddata_getsignerinfos, show_counted<KOVRA_ASN1_TYPE_SIGNER_INFOS>},
};

const Field signer_info[] = {
    {"version", kovra_cmssignerinfo_getversion, show_integer},
    {"", kovra_cmssignerinfo_getsid, show_here<KOVRA_ASN1_TYPE_SIGNER_IDENTIFIER>},
    {"digest algorithm", kovra_cmssignerinfo_getdigestalgo, show_algorithm},
    {"signed attributes", kovra_cmssignerinfo_getsignattrs, show_counted<KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES>},
    {"signature algorithm", kovra_cmssignerinfo_getsignalgo, show_algorithm},
    {"signature", kovra_cmssignerinfo_getsignature, show_hex},
    {"unsigned attributes", kovra_cmssignerinfo_getunsignattrs, show_counted<KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES>},
};

const Field digested_data[] = {
    {"version", kovra_pkcs7digesteddata_getversion, show_integer},
    {"digest algorithm", kovra_pkcs7digesteddata_getdigestalgo, show_algorithm},
    {"", kovra_pkcs7digesteddata_getcontentinfo, show_here<KOVRA_ASN1_TYPE_CONTENT_INFO>},
    {"digest", kovra_pkcs7digesteddata_getdigest, show_hex},
};

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_CONTENT_INFO, show_content_info},
    {KOVRA_ASN1_TYPE_ENCAPSULATED_CONTENT_INFO, show_encapsulated_content},
    {KOVRA_ASN1_TYPE_PKCS7_SIGNED_DATA, show_fields<signed_data>},
    {KOVRA_ASN1_TYPE_CMS_SIGNED_DATA, show_fields<signed_data>},
    {KOVRA_ASN1_TYPE_DIGESTED_DATA, show_fields<digested_data>},
    {KOVRA_ASN1_TYPE_SIGNER_INFO, show_fields<signer_info>},
    {KOVRA_ASN1_TYPE_ISSUER_AND_SERIAL_NUMBER, show_fields<issuer_and_serial>},
    {KOVRA_ASN1_TYPE_SIGNER_IDENTIFIER, show_signer_id},
    {KOVRA_ASN1_TYPE_CERTIFICATE_CHOICES, show_certificate_choice},
    {KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICE, show_revocation_choice},
    {KOVRA_ASN1_TYPE_OTHER_CERTIFICATE_FORMAT, show_other_certificate},
    {KOVRA_ASN1_TYPE_OTHER_REVOCATION_INFO_FORMAT, show_other_revocation},
};

} // namespace

void show_content(Printer &printer, const kovra_asn1_value *oid, kovra_asn1_value *any) {
    if (any == nullptr)
        return printer.field("content", "(none)");
    Value string(KOVRA_ASN1_TYPE_OCTET_STRING);
    if (read_any(any, KOVRA_ASN1_TYPE_OCTET_STRING, string))
        return show_content_octets(printer, oid, string.get());
    const std::string octets = encoding_of(KOVRA_ASN1_TYPE_ANY, any);
    if (show_structure(printer, oid, octets))
        return;
    show_unknown(printer, "content", any);
}

void show_content_octets(Printer &printer, const kovra_asn1_value *oid, kovra_asn1_value *octet_string) {
    if (octet_string == nullptr)
        return printer.field("content", "(none)");
    const std::string octets = octets_of(octet_string);
    if (text_of_oid(oid) == data_oid)
        return show_data(printer, octets);
    if (show_structure(printer, oid, octets))
        return;
    if (printer.is_in_store())
        printer.secret("content", octets);
    else
        printer.hex("content", octets);
}

std::span<const TypeRow> message_structures() {
    return rows;
}

} // namespace kovra::tool
