// Which structure is shown how, and what stands with which object identifier.

#include <algorithm>
#include <iterator>

#include "show_fields.hpp"

namespace kovra::tool {

namespace {

constexpr TypeRow structures[] = {
    {KOVRA_ASN1_TYPE_NAME, show_name},
    {KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_algorithm},
    {KOVRA_ASN1_TYPE_SUBJECT_PUBLIC_KEY_INFO, show_public_key},
    {KOVRA_ASN1_TYPE_EXTENSION, show_extension},
    {KOVRA_ASN1_TYPE_EXTENSIONS, show_extensions},
    {KOVRA_ASN1_TYPE_CERTIFICATE, show_certificate},
    {KOVRA_ASN1_TYPE_CERTIFICATE_LIST, show_crl},
    {KOVRA_ASN1_TYPE_ATTRIBUTE, show_attribute},
    {KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTE, show_attribute},
    {KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, show_attributes},
    {KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST, show_request},
    {KOVRA_ASN1_TYPE_DIRECTORY_STRING, show_directory_string},
    {KOVRA_ASN1_TYPE_POSTAL_ADDRESS, show_postal_address},
    {KOVRA_ASN1_TYPE_TELEX_NUMBER, show_telex_number},
    {KOVRA_ASN1_TYPE_PKCS9_STRING, show_directory_string},
    {KOVRA_ASN1_TYPE_CERTIFICATE_PAIR, show_certificate_pair},
    {KOVRA_ASN1_TYPE_GENERAL_NAME, show_general_name},
    {KOVRA_ASN1_TYPE_GENERAL_NAMES, show_general_names},
    {KOVRA_ASN1_TYPE_AUTHORITY_KEY_IDENTIFIER, show_authority_key},
    {KOVRA_ASN1_TYPE_EXT_KEY_USAGE, show_purposes},
    {KOVRA_ASN1_TYPE_PRIVATE_KEY_USAGE_PERIOD, show_private_key_period},
    {KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES, show_policies},
    {KOVRA_ASN1_TYPE_POLICY_MAPPINGS, show_policy_mappings},
    {KOVRA_ASN1_TYPE_SUBJECT_DIRECTORY_ATTRIBUTES, show_attributes},
    {KOVRA_ASN1_TYPE_BASIC_CONSTRAINTS, show_basic_constraints},
    {KOVRA_ASN1_TYPE_NAME_CONSTRAINTS, show_name_constraints},
    {KOVRA_ASN1_TYPE_PKIX_NAME_CONSTRAINTS, show_name_constraints},
    {KOVRA_ASN1_TYPE_POLICY_CONSTRAINTS, show_policy_constraints},
    {KOVRA_ASN1_TYPE_CRL_DISTRIBUTION_POINTS, show_distribution_points},
    {KOVRA_ASN1_TYPE_INFORMATION_ACCESS, show_access},
    {KOVRA_ASN1_TYPE_ISSUING_DISTRIBUTION_POINT, show_issuing_point},
    {KOVRA_ASN1_TYPE_AA_ISSUING_DISTRIBUTION_POINT, show_attribute_issuing_point},
    {KOVRA_ASN1_TYPE_REVOKED_CERTIFICATE, show_revoked},
};

// Lists, and how each element is shown.
struct ListRow {
    uint32_t type;
    Harmless label;
    Line line;
};
constexpr ListRow lists[] = {
    {KOVRA_ASN1_TYPE_SMIME_CAPABILITIES, "capability", show_algorithm},
    {KOVRA_ASN1_TYPE_DIGEST_ALGORITHM_IDENTIFIERS, "digest algorithm", show_algorithm},
    {KOVRA_ASN1_TYPE_CERTIFICATE_SET, "certificate", show_below<KOVRA_ASN1_TYPE_CERTIFICATE_CHOICES>},
    {KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICES, "CRL", show_below<KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICE>},
    {KOVRA_ASN1_TYPE_SIGNER_INFOS, "signer", show_below<KOVRA_ASN1_TYPE_SIGNER_INFO>},
    {KOVRA_ASN1_TYPE_RECIPIENT_INFOS, "", show_here<KOVRA_ASN1_TYPE_RECIPIENT_INFO>},
    {KOVRA_ASN1_TYPE_RECIPIENT_ENCRYPTED_KEYS, "recipient", show_below<KOVRA_ASN1_TYPE_RECIPIENT_ENCRYPTED_KEY>},
    {KOVRA_ASN1_TYPE_OCSP_REQUEST_LIST, "request", show_below<KOVRA_ASN1_TYPE_OCSP_SINGLE_REQUEST>},
    {KOVRA_ASN1_TYPE_OCSP_RESPONSES, "response", show_below<KOVRA_ASN1_TYPE_OCSP_SINGLE_RESPONSE>},
    {KOVRA_ASN1_TYPE_PKI_FREE_TEXT, "text", show_utf8},
    {KOVRA_ASN1_TYPE_ESS_CERT_IDS, "certificate", show_below<KOVRA_ASN1_TYPE_ESS_CERT_ID>},
    {KOVRA_ASN1_TYPE_ESS_CERT_IDS_V2, "certificate", show_below<KOVRA_ASN1_TYPE_ESS_CERT_ID_V2>},
    {KOVRA_ASN1_TYPE_OTHER_PRIME_INFOS, "other prime", show_below<KOVRA_ASN1_TYPE_OTHER_PRIME_INFO>},
    {KOVRA_ASN1_TYPE_SAFE_CONTENTS, "", show_here<KOVRA_ASN1_TYPE_SAFE_BAG>},
    {KOVRA_ASN1_TYPE_OLD_CERT_THUMBPRINTS, "thumbprint", show_hex},
    {KOVRA_ASN1_TYPE_STORE_ATTRIBUTE_LIST, "attribute", show_below<KOVRA_ASN1_TYPE_STORE_ATTRIBUTE>},
    {KOVRA_ASN1_TYPE_CERT_STORE, "record", show_below<KOVRA_ASN1_TYPE_CERT_WITH_ATTRIBUTES>},
};

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

constexpr OidRow extensions[] = {
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

constexpr OidRow attributes[] = {
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

const OidRow *find(std::span<const OidRow> rows, std::string_view oid) {
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const OidRow &row) { return row.oid == oid; });
    return found != rows.end() ? &*found : nullptr;
}

} // namespace

void show_value(Printer &printer, uint32_t type, kovra_asn1_value *value) {
    const auto is_row = [&](const auto &row) { return row.type == type; };
    const std::span<const TypeRow> tables[] = {
        structures,         message_structures(), recipient_structures(), status_structures(),
        stamp_structures(), key_structures(),     parameter_structures(), store_structures()};
    for (const auto &table : tables)
        if (const auto row = std::find_if(table.begin(), table.end(), is_row); row != table.end())
            return row->show(printer, value);
    if (const auto *list = std::find_if(std::begin(lists), std::end(lists), is_row); list != std::end(lists))
        return for_each(value, [&](kovra_asn1_value *element) { list->line(printer, list->label, element); });
    printer.tree(encoding_of(type, value));
}

const OidRow *find_extension(std::string_view oid) {
    return find(extensions, oid);
}

const OidRow *find_attribute(std::string_view oid) {
    return find(attributes, oid);
}

} // namespace kovra::tool
