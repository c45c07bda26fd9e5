// Extensions, and the values of those that are a single value or a short list.

#include <iterator>

#include "oid_names.hpp"
#include "show_fields.hpp"
#include "value_text.hpp"

namespace kovra::tool {

namespace {

bool is_true(const kovra_asn1_value *value) {
    return kovra_asn1_boolean_istrue(value) == 1;
}

// Big-endian numbers and runs of octets, with the lengths in front of them.
class Reader {
public:
    explicit Reader(std::string_view octets) : octets_(octets) {}

    [[nodiscard]] bool is_good() const { return is_good_; }
    [[nodiscard]] bool is_empty() const { return octets_.empty(); }
    std::string_view run(size_t length) {
        is_good_ = is_good_ && length <= octets_.size();
        const std::string_view run = octets_.substr(0, is_good_ ? length : 0);
        octets_.remove_prefix(run.size());
        return run;
    }
    uint64_t number(size_t length) {
        uint64_t value = 0;
        for (const char octet : run(length))
            value = value << 8 | static_cast<uint8_t>(octet);
        return value;
    }
    // As many octets as the two before them say.
    std::string_view counted() { return run(static_cast<size_t>(number(2))); }

private:
    std::string_view octets_;
    bool is_good_ = true;
};

// SignedCertificateTimestamp (RFC 6962, 3.2): version, log, milliseconds since 1970, extensions, signature.
bool show_timestamp(Printer &printer, std::string_view octets) {
    Reader reader(octets);
    const uint64_t version = reader.number(1);
    const std::string_view log = reader.run(32);
    const uint64_t milliseconds = reader.number(8);
    reader.counted();
    if (!reader.is_good() || version != 0)
        return false;
    const Time time(kovra_time_newunix(static_cast<int64_t>(milliseconds / 1000),
                                       static_cast<int32_t>(milliseconds % 1000 * 1000000)));
    if (time == nullptr)
        return false;
    printer.begin("time stamp");
    put_time(printer.out, *time);
    printer.out.put(", log ");
    printer.hex(log);
    printer.end();
    return true;
}

void show_key_usage(Printer &printer, kovra_asn1_value *bits) {
    static constexpr Harmless names[] = {"digitalSignature", "contentCommitment", "keyEncipherment",
                                         "dataEncipherment", "keyAgreement",      "keyCertSign",
                                         "cRLSign",          "encipherOnly",      "decipherOnly"};
    show_bits(printer, "usage", bits, names);
}

void show_certificate_type(Printer &printer, kovra_asn1_value *bits) {
    static constexpr Harmless names[] = {"sslClient", "sslServer", "email",   "objectSigning",
                                         "reserved",  "sslCA",     "emailCA", "objectSigningCA"};
    show_bits(printer, "type", bits, names);
}

void show_private_key_period(Printer &printer, kovra_asn1_value *period) {
    show_time(printer, "not before", kovra_x509privkeyperiod_getnotbefore(period));
    show_time(printer, "not after", kovra_x509privkeyperiod_getnotafter(period));
}

void show_basic_constraints(Printer &printer, kovra_asn1_value *constraints) {
    printer.field("CA", is_true(kovra_x509basicconstraints_getisca(constraints)) ? Harmless("yes") : "no");
    show_integer(printer, "path length", kovra_x509basicconstraints_getlen(constraints));
}

void show_purposes(Printer &printer, kovra_asn1_value *purposes) {
    for_each(purposes, [&](const kovra_asn1_value *purpose) { printer.field("purpose", name_of_oid(purpose)); });
}

void show_authority_key(Printer &printer, kovra_asn1_value *identifier) {
    if (kovra_asn1_value *key = kovra_x509akid_getkeyid(identifier); key != nullptr)
        printer.hex("key id", octets_of(key));
    show_general_names(printer, "issuer", kovra_x509akid_getissuerissuer(identifier));
    show_serial(printer, "serial", kovra_x509akid_getissuercertsn(identifier));
}

void show_number(Printer &printer, kovra_asn1_value *integer) {
    show_integer(printer, "number", integer);
}

void show_key_identifier(Printer &printer, kovra_asn1_value *string) {
    printer.hex("key id", octets_of(string));
}

void show_string(Printer &printer, kovra_asn1_value *string) {
    constexpr uint32_t ia5_string = 22;
    show_text(printer, "text", ia5_string, string);
}

void show_features(Printer &printer, kovra_asn1_value *features) {
    for_each(features, [&](kovra_asn1_value *element) {
        Value feature(KOVRA_ASN1_TYPE_INTEGER);
        int32_t number = 0;
        if (kovra_asn1_any_toobject(element, KOVRA_ASN1_TYPE_INTEGER, feature.place(), nullptr) != 1)
            return show_any(printer, "feature", element);
        kovra_asn1_integer_getlong(feature.get(), &number);
        if (number == 5 || number == 17)
            printer.field("feature", number == 5 ? Harmless("status_request") : "status_request_v2");
        else
            show_integer(printer, "feature", feature.get());
    });
}

void show_statements(Printer &printer, kovra_asn1_value *statements) {
    for_each(statements, [&](kovra_asn1_value *element) {
        // A statement is an identifier and, optionally, anything, as an algorithm is.
        Value statement(KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER);
        if (kovra_asn1_any_toobject(element, KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, statement.place(), nullptr) != 1)
            return show_any(printer, "statement", element);
        printer.field("statement", name_of_oid(kovra_x509algoid_getalgo(statement.get())));
        const Printer::Deeper deeper(printer);
        show_any(printer, "information", kovra_x509algoid_getparam(statement.get()));
    });
}

void show_timestamps(Printer &printer, kovra_asn1_value *string) {
    const std::string octets = octets_of(string);
    Reader reader(octets);
    Reader list(reader.counted());
    if (!reader.is_good() || !reader.is_empty())
        return printer.hex("octets", octets);
    while (!list.is_empty()) {
        const std::string_view timestamp = list.counted();
        if (!list.is_good())
            return printer.hex("octets", octets);
        if (!show_timestamp(printer, timestamp))
            printer.hex("time stamp", timestamp);
    }
}

void show_nothing(Printer &printer, kovra_asn1_value *) {
    printer.field("content", "NULL");
}

void show_response_types(Printer &printer, kovra_asn1_value *types) {
    for_each(types, [&](kovra_asn1_value *type) { show_named_oid(printer, "response type", type); });
}

// RFC 6960, 4.4.6.
constexpr Element service_locator[] = {
    {"issuer", KOVRA_ASN1_TYPE_NAME, show_name},
    {"locator", KOVRA_ASN1_TYPE_INFORMATION_ACCESS, show_below<KOVRA_ASN1_TYPE_INFORMATION_ACCESS>},
};

constexpr OidRow values[] = {
    // RFC 5280 and X.509.
    {"2.5.29.9", KOVRA_ASN1_TYPE_SUBJECT_DIRECTORY_ATTRIBUTES},
    {"2.5.29.14", KOVRA_ASN1_TYPE_OCTET_STRING, show_key_identifier},
    {"2.5.29.15", KOVRA_ASN1_TYPE_BIT_STRING, show_key_usage},
    {"2.5.29.16", KOVRA_ASN1_TYPE_PRIVATE_KEY_USAGE_PERIOD},
    {"2.5.29.17", KOVRA_ASN1_TYPE_GENERAL_NAMES},
    {"2.5.29.18", KOVRA_ASN1_TYPE_GENERAL_NAMES},
    {"2.5.29.19", KOVRA_ASN1_TYPE_BASIC_CONSTRAINTS},
    {"2.5.29.20", KOVRA_ASN1_TYPE_INTEGER, show_number},
    {"2.5.29.21", KOVRA_ASN1_TYPE_ENUMERATED, show_reason},
    {"2.5.29.23", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER, show_oid},
    {"2.5.29.24", KOVRA_ASN1_TYPE_GENERALIZED_TIME, show_moment},
    {"2.5.29.27", KOVRA_ASN1_TYPE_INTEGER, show_number},
    {"2.5.29.28", KOVRA_ASN1_TYPE_ISSUING_DISTRIBUTION_POINT},
    {"2.5.29.29", KOVRA_ASN1_TYPE_GENERAL_NAMES},
    {"2.5.29.30", KOVRA_ASN1_TYPE_NAME_CONSTRAINTS},
    {"2.5.29.31", KOVRA_ASN1_TYPE_CRL_DISTRIBUTION_POINTS},
    {"2.5.29.32", KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES},
    {"2.5.29.33", KOVRA_ASN1_TYPE_POLICY_MAPPINGS},
    {"2.5.29.35", KOVRA_ASN1_TYPE_AUTHORITY_KEY_IDENTIFIER},
    {"2.5.29.36", KOVRA_ASN1_TYPE_POLICY_CONSTRAINTS},
    {"2.5.29.37", KOVRA_ASN1_TYPE_EXT_KEY_USAGE},
    {"2.5.29.46", KOVRA_ASN1_TYPE_CRL_DISTRIBUTION_POINTS},
    {"2.5.29.54", KOVRA_ASN1_TYPE_INTEGER, show_number},
    {"2.5.29.63", KOVRA_ASN1_TYPE_AA_ISSUING_DISTRIBUTION_POINT},
    {"1.3.6.1.5.5.7.1.1", KOVRA_ASN1_TYPE_INFORMATION_ACCESS},
    {"1.3.6.1.5.5.7.1.11", KOVRA_ASN1_TYPE_INFORMATION_ACCESS},
    // RFC 3739, 7633, 6960, 6962.
    {"1.3.6.1.5.5.7.1.3", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_statements},
    {"1.3.6.1.5.5.7.1.24", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_features},
    {"1.3.6.1.5.5.7.48.1.2", KOVRA_ASN1_TYPE_OCTET_STRING, show_octets},
    {"1.3.6.1.5.5.7.48.1.3", KOVRA_ASN1_TYPE_OCSP_CRL_ID},
    {"1.3.6.1.5.5.7.48.1.4", KOVRA_ASN1_TYPE_EXT_KEY_USAGE, show_response_types},
    {"1.3.6.1.5.5.7.48.1.5", KOVRA_ASN1_TYPE_NULL, show_nothing},
    {"1.3.6.1.5.5.7.48.1.6", KOVRA_ASN1_TYPE_GENERALIZED_TIME, show_moment},
    {"1.3.6.1.5.5.7.48.1.7", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_items<service_locator>},
    {"1.3.6.1.5.5.7.48.1.9", KOVRA_ASN1_TYPE_NULL, show_nothing},
    {"1.3.6.1.4.1.11129.2.4.2", KOVRA_ASN1_TYPE_OCTET_STRING, show_timestamps},
    {"1.3.6.1.4.1.11129.2.4.3", KOVRA_ASN1_TYPE_NULL, show_nothing},
    {"1.3.6.1.4.1.11129.2.4.5", KOVRA_ASN1_TYPE_OCTET_STRING, show_timestamps},
    // Of makers of software.
    {"2.16.840.1.113730.1.1", KOVRA_ASN1_TYPE_BIT_STRING, show_certificate_type},
    {"2.16.840.1.113730.1.2", KOVRA_ASN1_TYPE_IA5_STRING, show_string},
    {"2.16.840.1.113730.1.3", KOVRA_ASN1_TYPE_IA5_STRING, show_string},
    {"2.16.840.1.113730.1.4", KOVRA_ASN1_TYPE_IA5_STRING, show_string},
    {"2.16.840.1.113730.1.8", KOVRA_ASN1_TYPE_IA5_STRING, show_string},
    {"2.16.840.1.113730.1.12", KOVRA_ASN1_TYPE_IA5_STRING, show_string},
    {"2.16.840.1.113730.1.13", KOVRA_ASN1_TYPE_IA5_STRING, show_string},
    {"1.3.6.1.4.1.311.20.2", KOVRA_ASN1_TYPE_ANY},
    {"1.3.6.1.4.1.311.21.1", KOVRA_ASN1_TYPE_INTEGER, show_number},
    {"1.3.6.1.4.1.311.21.2", KOVRA_ASN1_TYPE_OCTET_STRING, show_octets},
    {"1.3.6.1.4.1.311.21.4", KOVRA_ASN1_TYPE_TIME, show_moment},
    {"1.3.6.1.4.1.311.21.7", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY},
    {"1.3.6.1.4.1.311.21.10", KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES},
    {"1.3.6.1.4.1.311.21.14", KOVRA_ASN1_TYPE_CRL_DISTRIBUTION_POINTS},
};

// Octets of known meaning, as shown; unknown and malformed ones in hexadecimal.
void show_extension_value(Printer &printer, const Message &name, kovra_asn1_value *oid, kovra_asn1_value *string) {
    const OidRow *row = printer.is_deep() ? nullptr : find_row(values, text_of_oid(oid));
    if (row == nullptr) {
        if (const Message id{Outside(text_of_oid(oid))}; Harmless(id) != name)
            printer.field("id", id);
        return printer.hex("value", octets_of(string));
    }
    Value value(row->type);
    if (kovra_asn1_octetstring_getobject(string, row->type, value.place(), nullptr) != 1)
        printer.malformed(name, row->type, octets_of(string));
    else if (row->show != nullptr)
        row->show(printer, value.get());
    else
        show_value(printer, row->type, value.get());
}

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_EXTENSION, show_extension},
    {KOVRA_ASN1_TYPE_EXTENSIONS, show_extensions},
    {KOVRA_ASN1_TYPE_AUTHORITY_KEY_IDENTIFIER, show_authority_key},
    {KOVRA_ASN1_TYPE_EXT_KEY_USAGE, show_purposes},
    {KOVRA_ASN1_TYPE_PRIVATE_KEY_USAGE_PERIOD, show_private_key_period},
    {KOVRA_ASN1_TYPE_BASIC_CONSTRAINTS, show_basic_constraints},
};

} // namespace

void show_extension(Printer &printer, kovra_asn1_value *extension) {
    kovra_asn1_value *oid = kovra_x509extension_getid(extension);
    const Message name = name_of_oid(oid);
    if (is_true(kovra_x509extension_getcritical(extension)))
        printer.field(name, "critical");
    else
        printer.heading(name);
    const Printer::Deeper deeper(printer);
    show_extension_value(printer, name, oid, kovra_x509extension_getvalue(extension));
}

void show_extensions(Printer &printer, kovra_asn1_value *extensions) {
    if (extensions == nullptr)
        return;
    printer.begin("extensions");
    printer.out.put_number(static_cast<uint64_t>(kovra_asn1_list_getsize(extensions)));
    printer.end();
    const Printer::Deeper deeper(printer);
    for_each(extensions, [&](kovra_asn1_value *extension) { show_extension(printer, extension); });
}

void show_octets(Printer &printer, kovra_asn1_value *string) {
    printer.hex("octets", octets_of(string));
}

void show_oid(Printer &printer, kovra_asn1_value *oid) {
    printer.field("id", name_of_oid(oid));
}

void show_moment(Printer &printer, kovra_asn1_value *time) {
    show_time(printer, "time", time);
}

void show_reason(Printer &printer, kovra_asn1_value *reason) {
    printer.begin("reason");
    put_named(printer, reason, crl_reasons());
    printer.end();
}

std::span<const TypeRow> extension_structures() {
    return rows;
}

} // namespace kovra::tool
