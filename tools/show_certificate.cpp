// Certificates, CRLs and certification requests.

#include "show_fields.hpp"

namespace kovra::tool {

namespace {

void show_signature(Printer &printer, kovra_asn1_value *inner, kovra_asn1_value *algorithm, kovra_asn1_value *value) {
    show_algorithm(printer, "signature algorithm", algorithm);
    if (inner != nullptr && encoding_of(KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, inner) !=
                                encoding_of(KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, algorithm))
        printer.field("note", "the signed part names another signature algorithm");
    printer.hex("signature", bits_of(value));
}

void show_unique_id(Printer &printer, Harmless label, kovra_asn1_value *identifier) {
    if (identifier != nullptr)
        printer.hex(label, bits_of(identifier));
}

// The reason of an entry that has a plain one, which is shown in the entry's line.
bool put_plain_reason(Printer &printer, kovra_asn1_value *extension) {
    constexpr std::string_view crl_reason = "2.5.29.21";
    if (text_of_oid(kovra_x509extension_getid(extension)) != crl_reason ||
        kovra_asn1_boolean_istrue(kovra_x509extension_getcritical(extension)) == 1)
        return false;
    const std::string octets = octets_of(kovra_x509extension_getvalue(extension));
    const bool is_plain = octets.size() == 3 && octets[0] == 0x0A && octets[1] == 1;
    const auto reason = is_plain ? static_cast<uint8_t>(octets[2]) : crl_reasons().size();
    if (reason >= crl_reasons().size() || crl_reasons()[reason].empty())
        return false;
    printer.out.put("  ");
    printer.out.put(crl_reasons()[reason]);
    return true;
}

void show_certificate_pair(Printer &printer, kovra_asn1_value *pair) {
    show_below<KOVRA_ASN1_TYPE_CERTIFICATE>(printer, "issued to this CA", kovra_x509certpair_getissuedtothisca(pair));
    show_below<KOVRA_ASN1_TYPE_CERTIFICATE>(printer, "issued by this CA", kovra_x509certpair_getissuedbythisca(pair));
}

void show_revoked(Printer &printer, kovra_asn1_value *entry) {
    printer.blanks();
    put_time(printer, kovra_x509revcertinfo_getrevdate(entry));
    printer.out.put("  ");
    put_serial(printer, kovra_x509revcertinfo_getserilano(entry));
    kovra_asn1_value *extensions = kovra_x509revcertinfo_getexts(entry);
    if (extensions == nullptr)
        return printer.end();
    kovra_asn1_value *first = nullptr;
    kovra_asn1_list_get(extensions, 0, &first);
    const bool has_reason = first != nullptr && put_plain_reason(printer, first);
    printer.end();
    const Printer::Deeper deeper(printer);
    for_each(extensions, [&](kovra_asn1_value *extension) {
        if (extension != first || !has_reason)
            show_extension(printer, extension);
    });
}

void show_request(Printer &printer, kovra_asn1_value *request) {
    show_version(printer, kovra_pkcs10certreq_getversion(request));
    show_name(printer, "subject", kovra_pkcs10certreq_getsubject(request));
    show_public_key(printer, kovra_pkcs10certreq_getpubkey(request));
    show_count(printer, "attributes", kovra_pkcs10certreq_getattrs(request));
    {
        const Printer::Deeper deeper(printer);
        show_attributes(printer, kovra_pkcs10certreq_getattrs(request));
    }
    show_signature(printer, nullptr, kovra_pkcs10certreq_getsignalgo(request),
                   kovra_pkcs10certreq_getsignvalue(request));
}

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_CERTIFICATE, show_certificate},       {KOVRA_ASN1_TYPE_CERTIFICATE_LIST, show_crl},
    {KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST, show_request}, {KOVRA_ASN1_TYPE_CERTIFICATE_PAIR, show_certificate_pair},
    {KOVRA_ASN1_TYPE_REVOKED_CERTIFICATE, show_revoked},
};

} // namespace

void show_version(Printer &printer, const kovra_asn1_value *version) {
    int32_t number = 0;
    printer.begin("version");
    if (version != nullptr && (kovra_asn1_integer_getlong(version, &number) != 1 || number < 0 || number > 99)) {
        put_integer(printer, version);
        printer.out.put(" as encoded");
    } else {
        printer.out.put_number(static_cast<uint64_t>(number) + 1);
    }
    printer.end();
}

std::span<const Harmless> crl_reasons() {
    static constexpr Harmless reasons[] = {
        "unspecified",   "keyCompromise",        "cACompromise",    "affiliationChanged",
        "superseded",    "cessationOfOperation", "certificateHold", "",
        "removeFromCRL", "privilegeWithdrawn",   "aACompromise"};
    return reasons;
}

void show_certificate(Printer &printer, kovra_asn1_value *certificate) {
    kovra_asn1_value *validity = kovra_x509pubkeycert_getvalidity(certificate);
    kovra_asn1_value *inner = kovra_x509pubkeycert_getinnersignalgo(certificate);
    show_version(printer, kovra_x509pubkeycert_getversion(certificate));
    show_serial(printer, "serial", kovra_x509pubkeycert_getserialno(certificate));
    show_algorithm(printer, "algorithm", inner);
    show_name(printer, "issuer", kovra_x509pubkeycert_getissuer(certificate));
    show_time(printer, "not before", kovra_x509validity_getnotbefore(validity));
    show_time(printer, "not after", kovra_x509validity_getnotafter(validity));
    show_name(printer, "subject", kovra_x509pubkeycert_getsubject(certificate));
    show_public_key(printer, kovra_x509pubkeycert_getpubkey(certificate));
    show_unique_id(printer, "issuer unique id", kovra_x509pubkeycert_getissueruid(certificate));
    show_unique_id(printer, "subject unique id", kovra_x509pubkeycert_getsubjectuid(certificate));
    show_extensions(printer, kovra_x509pubkeycert_getexts(certificate));
    show_signature(printer, inner, kovra_x509pubkeycert_getsignalgo(certificate),
                   kovra_x509pubkeycert_getsignvalue(certificate));
}

void show_crl(Printer &printer, kovra_asn1_value *crl) {
    kovra_asn1_value *inner = kovra_x509crl_getinnersignalgo(crl);
    show_version(printer, kovra_x509crl_getversion(crl));
    show_algorithm(printer, "algorithm", inner);
    show_name(printer, "issuer", kovra_x509crl_getissuer(crl));
    show_time(printer, "this update", kovra_x509crl_getthisupdate(crl));
    show_time(printer, "next update", kovra_x509crl_getnextupdate(crl));
    kovra_asn1_value *entries = kovra_x509crl_getrevcerts(crl);
    show_count(printer, "revoked", entries);
    {
        const Printer::Deeper deeper(printer);
        for_each(entries, [&](kovra_asn1_value *entry) {
            if (!printer.out.is_over())
                show_revoked(printer, entry);
        });
    }
    show_extensions(printer, kovra_x509crl_getexts(crl));
    show_signature(printer, inner, kovra_x509crl_getsignalgo(crl), kovra_x509crl_getsignvalue(crl));
}

std::span<const TypeRow> certificate_structures() {
    return rows;
}

} // namespace kovra::tool
