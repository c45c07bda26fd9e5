// Finds how a structure is shown: as a table of its file has it, as the list that it is, or as a tree.

#include <algorithm>
#include <iterator>

#include "show_fields.hpp"

namespace kovra::tool {

namespace {

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

} // namespace

const OidRow *find_row(std::span<const OidRow> rows, std::string_view oid) {
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const OidRow &row) { return row.oid == oid; });
    return found != rows.end() ? &*found : nullptr;
}

void show_value(Printer &printer, uint32_t type, kovra_asn1_value *value) {
    const auto is_row = [&](const auto &row) { return row.type == type; };
    const std::span<const TypeRow> tables[] = {
        certificate_structures(), public_key_structures(), name_structures(),  attribute_structures(),
        extension_structures(),   policy_structures(),     point_structures(), message_structures(),
        recipient_structures(),   status_structures(),     stamp_structures(), private_key_structures(),
        parameter_structures(),   store_structures()};
    for (const auto &table : tables)
        if (const auto row = std::find_if(table.begin(), table.end(), is_row); row != table.end())
            return row->show(printer, value);
    if (const auto *list = std::find_if(std::begin(lists), std::end(lists), is_row); list != std::end(lists))
        return for_each(value, [&](kovra_asn1_value *element) { list->line(printer, list->label, element); });
    printer.tree(encoding_of(type, value));
}

} // namespace kovra::tool
