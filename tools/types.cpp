// `types`: the type identifiers. Names are those of kovra/asn1_types.h, without KOVRA_ASN1_TYPE_, where it has one.

#include <algorithm>
#include <charconv>

#include "command.hpp"
#include "kovra/asn1.h"
#include "type_names.hpp"

namespace kovra::tool {

namespace {

struct TypeRow {
    Harmless name;
    uint8_t tag; // universal; 0: that of the alternative
    Harmless form;
};

// By type identifier.
constexpr TypeRow rows[] = {
    {"END_OF_CONTENTS", 0, "primitive"},
    {"BOOLEAN", 1, "primitive"},
    {"INTEGER", 2, "primitive"},
    {"BIT_STRING", 3, "either"},
    {"OCTET_STRING", 4, "either"},
    {"NULL", 5, "primitive"},
    {"OBJECT_IDENTIFIER", 6, "primitive"},
    {"ENUMERATED", 10, "primitive"},
    {"STRING", 0, "either"},
    {"UTF8_STRING", 12, "either"},
    {"NUMERIC_STRING", 18, "either"},
    {"PRINTABLE_STRING", 19, "either"},
    {"TELETEX_STRING", 20, "either"},
    {"VIDEOTEX_STRING", 21, "either"},
    {"IA5_STRING", 22, "either"},
    {"GRAPHIC_STRING", 25, "either"},
    {"VISIBLE_STRING", 26, "either"},
    {"GENERAL_STRING", 27, "either"},
    {"UNIVERSAL_STRING", 28, "either"},
    {"BMP_STRING", 30, "either"},
    {"TIME", 0, "either"},
    {"UTC_TIME", 23, "either"},
    {"GENERALIZED_TIME", 24, "either"},
    {"ANY", 0, "either"},
    {"SEQUENCE_OF_ANY", 16, "constructed"},
    {"SEQUENCE_OF_ANY_1", 16, "constructed"},
    {"SET_OF_ANY", 17, "constructed"},
    {"SET_OF_ANY_1", 17, "constructed"},
    {"CONTEXT", 16, "constructed"},
    {"ATTRIBUTE_TYPE_AND_DISTINGUISHED_VALUE", 16, "constructed"},
    {"ATTRIBUTE_TYPE_AND_VALUE", 16, "constructed"},
    {"RELATIVE_DISTINGUISHED_NAME", 17, "constructed"},
    {"NAME", 16, "constructed"},
    {"ALGORITHM_IDENTIFIER", 16, "constructed"},
    {"VALIDITY", 16, "constructed"},
    {"SUBJECT_PUBLIC_KEY_INFO", 16, "constructed"},
    {"EXTENSION", 16, "constructed"},
    {"EXTENSIONS", 16, "constructed"},
    {"TBS_CERTIFICATE", 16, "constructed"},
    {"CERTIFICATE", 16, "constructed"},
    {"TBS_CERT_LIST", 16, "constructed"},
    {"CERTIFICATE_LIST", 16, "constructed"},
    {"ATTRIBUTE", 16, "constructed"},
    {"PKCS10_ATTRIBUTE", 16, "constructed"},
    {"PKCS10_ATTRIBUTES", 17, "constructed"},
    {"CERTIFICATION_REQUEST_INFO", 16, "constructed"},
    {"CERTIFICATION_REQUEST", 16, "constructed"},
    {"DIRECTORY_STRING", 0, "either"},
    {"UUID_PAIR", 16, "constructed"},
    {"POSTAL_ADDRESS", 16, "constructed"},
    {"TELEX_NUMBER", 16, "constructed"},
    {"NAME_AND_OPTIONAL_UID", 16, "constructed"},
    {"PKCS9_STRING", 0, "either"},
    {"SMIME_CAPABILITY", 16, "constructed"},
    {"SMIME_CAPABILITIES", 16, "constructed"},
    {"CERTIFICATE_PAIR", 16, "constructed"},
    {"RSA_PUBLIC_KEY", 16, "constructed"},
    {"DIGEST_INFO", 16, "constructed"},
    {"DSS_SIG_VALUE", 16, "constructed"},
    {"ECDSA_SIG_VALUE", 16, "constructed"},
    {"DSS_PARMS", 16, "constructed"},
    {"INSTANCE_OF", 8, "constructed"},
    {"EDI_PARTY_NAME", 16, "constructed"},
    {"GENERAL_NAME", 0, "either"},
    {"GENERAL_NAMES", 16, "constructed"},
    {"AUTHORITY_KEY_IDENTIFIER", 16, "constructed"},
    {"EXT_KEY_USAGE", 16, "constructed"},
    {"PRIVATE_KEY_USAGE_PERIOD", 16, "constructed"},
    {"POLICY_QUALIFIER_INFO", 16, "constructed"},
    {"POLICY_INFORMATION", 16, "constructed"},
    {"CERTIFICATE_POLICIES", 16, "constructed"},
    {"DISPLAY_TEXT", 0, "either"},
    {"NOTICE_REFERENCE", 16, "constructed"},
    {"USER_NOTICE", 16, "constructed"},
    {"POLICY_MAPPINGS", 16, "constructed"},
    {"SUBJECT_DIRECTORY_ATTRIBUTES", 16, "constructed"},
    {"BASIC_CONSTRAINTS", 16, "constructed"},
    {"GENERAL_SUBTREE", 16, "constructed"},
    {"GENERAL_SUBTREES", 16, "constructed"},
    {"NAME_FORMS", 16, "constructed"},
    {"NAME_CONSTRAINTS", 16, "constructed"},
    {"PKIX_NAME_CONSTRAINTS", 16, "constructed"},
    {"POLICY_CONSTRAINTS", 16, "constructed"},
    {"DISTRIBUTION_POINT_NAME", 0, "constructed"},
    {"DISTRIBUTION_POINT", 16, "constructed"},
    {"CRL_DISTRIBUTION_POINTS", 16, "constructed"},
    {"ACCESS_DESCRIPTION", 16, "constructed"},
    {"INFORMATION_ACCESS", 16, "constructed"},
    {"ISSUING_DISTRIBUTION_POINT", 16, "constructed"},
    {"AA_ISSUING_DISTRIBUTION_POINT", 16, "constructed"},
    {"RELATIVE_OID", 13, "primitive"},
    {"OLD_CERT_THUMBPRINTS", 16, "constructed"},
    {"REVOKED_CERTIFICATE", 16, "constructed"},
    {"PRIVATE_KEY_ATTRIBUTE", 16, "constructed"},
    {"STORE_ATTRIBUTE", 16, "constructed"},
    {"STORE_ATTRIBUTE_LIST", 16, "constructed"},
    {"CERT_WITH_ATTRIBUTES", 16, "constructed"},
    {"CERT_STORE", 16, "constructed"},
    {"STORE_KEY_ID", 0, "either"},
    {"RSA_PRIVATE_KEY", 16, "constructed"},
    {"RSAES_OAEP_PARAMS", 16, "constructed"},
    {"RSASSA_PSS_PARAMS", 16, "constructed"},
    {"DH_PARAMETER", 16, "constructed"},
    {"PRIVATE_KEY_INFO", 16, "constructed"},
    {"ENCRYPTED_PRIVATE_KEY_INFO", 16, "constructed"},
    {"PBKDF2_PARAMS", 16, "constructed"},
    {"PBE_PARAMETER", 16, "constructed"},
    {"PBES2_PARAMS", 16, "constructed"},
    {"PBMAC1_PARAMS", 16, "constructed"},
    {"RC2_CBC_PARAMETER", 16, "constructed"},
    {"RC5_CBC_PARAMETERS", 16, "constructed"},
    {"CONTENT_INFO", 16, "constructed"},
    {"MAC_DATA", 16, "constructed"},
    {"PFX", 16, "constructed"},
    {"AUTHENTICATED_SAFE", 16, "constructed"},
    {"SAFE_BAG", 16, "constructed"},
    {"SAFE_CONTENTS", 16, "constructed"},
    {"CERT_BAG", 16, "constructed"},
    {"CRL_BAG", 16, "constructed"},
    {"SECRET_BAG", 16, "constructed"},
    {"PKCS12_PBE_PARAMS", 16, "constructed"},
    {"DIGESTED_DATA", 16, "constructed"},
    {"ISSUER_AND_SERIAL_NUMBER", 16, "constructed"},
    {"SIGNER_IDENTIFIER", 0, "either"},
    {"SIGNER_INFO", 16, "constructed"},
    {"SIGNER_INFOS", 17, "constructed"},
    {"DIGEST_ALGORITHM_IDENTIFIERS", 17, "constructed"},
    {"OTHER_CERTIFICATE_FORMAT", 16, "constructed"},
    {"OTHER_REVOCATION_INFO_FORMAT", 16, "constructed"},
    {"CERTIFICATE_CHOICES", 0, "either"},
    {"REVOCATION_INFO_CHOICE", 0, "either"},
    {"CERTIFICATE_SET", 17, "constructed"},
    {"REVOCATION_INFO_CHOICES", 17, "constructed"},
    {"PKCS7_SIGNED_DATA", 16, "constructed"},
    {"CMS_SIGNED_DATA", 16, "constructed"},
    {"DN_VALUES_WITH_CONTEXT_ITEM", 16, "constructed"},
    {"ATTRIBUTE_VALUES_WITH_CONTEXT_ITEM", 16, "constructed"},
    {"POLICY_QUALIFIERS", 16, "constructed"},
    {"NOTICE_NUMBERS", 16, "constructed"},
    {"POLICY_MAPPING", 16, "constructed"},
    {"REVOKED_CERTIFICATES", 16, "constructed"},
    {"CONTEXT_LIST", 17, "constructed"},
    {"DN_VALUES_WITH_CONTEXT", 17, "constructed"},
    {"ATTRIBUTE_VALUES_WITH_CONTEXT", 17, "constructed"},
    {"OTHER_PRIME_INFO", 16, "constructed"},
    {"OTHER_PRIME_INFOS", 16, "constructed"},
    {"PBKDF2_SALT", 0, "either"},
    {"ENCAPSULATED_CONTENT_INFO", 16, "constructed"},
    {"ENCRYPTED_CONTENT_INFO", 16, "constructed"},
    {"ENCRYPTED_DATA", 16, "constructed"},
    {"ORIGINATOR_INFO", 16, "constructed"},
    {"KEY_TRANS_RECIPIENT_INFO", 16, "constructed"},
    {"ORIGINATOR_IDENTIFIER_OR_KEY", 0, "either"},
    {"OTHER_KEY_ATTRIBUTE", 16, "constructed"},
    {"RECIPIENT_KEY_IDENTIFIER", 16, "constructed"},
    {"KEY_AGREE_RECIPIENT_IDENTIFIER", 0, "either"},
    {"RECIPIENT_ENCRYPTED_KEY", 16, "constructed"},
    {"RECIPIENT_ENCRYPTED_KEYS", 16, "constructed"},
    {"KEY_AGREE_RECIPIENT_INFO", 16, "constructed"},
    {"KEK_RECIPIENT_INFO", 16, "constructed"},
    {"PASSWORD_RECIPIENT_INFO", 16, "constructed"},
    {"OTHER_RECIPIENT_INFO", 16, "constructed"},
    {"RECIPIENT_INFO", 0, "either"},
    {"RECIPIENT_INFOS", 17, "constructed"},
    {"ENVELOPED_DATA", 16, "constructed"},
    {"AUTHENTICATED_DATA", 16, "constructed"},
    {"KEY_SPECIFIC_INFO", 16, "constructed"},
    {"OTHER_INFO", 16, "constructed"},
    {"OCSP_CERT_ID", 16, "constructed"},
    {"OCSP_SINGLE_REQUEST", 16, "constructed"},
    {"OCSP_REQUEST_LIST", 16, "constructed"},
    {"OCSP_TBS_REQUEST", 16, "constructed"},
    {"OCSP_SIGNATURE", 16, "constructed"},
    {"OCSP_REQUEST", 16, "constructed"},
    {"OCSP_RESPONSE_BYTES", 16, "constructed"},
    {"OCSP_RESPONSE", 16, "constructed"},
    {"OCSP_RESPONDER_ID", 0, "either"},
    {"OCSP_REVOKED_INFO", 16, "constructed"},
    {"OCSP_CERT_STATUS", 0, "either"},
    {"OCSP_SINGLE_RESPONSE", 16, "constructed"},
    {"OCSP_RESPONSES", 16, "constructed"},
    {"OCSP_RESPONSE_DATA", 16, "constructed"},
    {"OCSP_BASIC_RESPONSE", 16, "constructed"},
    {"OCSP_CRL_ID", 16, "constructed"},
    {"OCSP_SERVICE_LOCATOR", 16, "constructed"},
    {"OCSP_PREFERRED_SIGNATURE_ALGORITHMS", 16, "constructed"},
    {"MESSAGE_IMPRINT", 16, "constructed"},
    {"TIME_STAMP_REQ", 16, "constructed"},
    {"PKI_FREE_TEXT", 16, "constructed"},
    {"PKI_STATUS_INFO", 16, "constructed"},
    {"TIME_STAMP_RESP", 16, "constructed"},
    {"ACCURACY", 16, "constructed"},
    {"TST_INFO", 16, "constructed"},
    {"ISSUER_SERIAL", 16, "constructed"},
    {"ESS_CERT_ID", 16, "constructed"},
    {"ESS_CERT_ID_V2", 16, "constructed"},
    {"ESS_CERT_IDS", 16, "constructed"},
    {"ESS_CERT_IDS_V2", 16, "constructed"},
    {"CERTIFICATE_POLICIES_1", 16, "constructed"},
    {"SIGNING_CERTIFICATE", 16, "constructed"},
    {"SIGNING_CERTIFICATE_V2", 16, "constructed"},
    {"ECPK_PARAMETERS", 0, "either"},
    {"EC_PRIVATE_KEY", 16, "constructed"},
    {"SM2_CIPHER", 16, "constructed"},
    {"SM2_ENVELOPED_KEY", 16, "constructed"},
    {"RSA_ENVELOPED_KEY_PAIR", 16, "constructed"},
    {"INNER_ENVELOPED_KEY_PAIR", 0, "either"},
    {"ENVELOPED_KEY_PAIR", 16, "constructed"},
};
static_assert(sizeof rows / sizeof rows[0] == KOVRA_ASN1_TYPE_COUNT);

} // namespace

Harmless type_name(uint32_t type) {
    return type < KOVRA_ASN1_TYPE_COUNT ? rows[type].name : Harmless();
}

uint32_t find_type(std::string_view text) {
    uint32_t number = 0;
    const char *end = text.data() + text.size();
    if (const auto [stop, error] = std::from_chars(text.data(), end, number); error == std::errc() && stop == end)
        return std::min<uint32_t>(number, KOVRA_ASN1_TYPE_COUNT);
    const auto same = [](char left, char right) {
        const auto plain = [](char c) { return c == '-' ? '_' : c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; };
        return plain(left) == right;
    };
    const auto is_name = [&](std::string_view name) {
        return std::equal(text.begin(), text.end(), name.begin(), name.end(), same);
    };
    while (number < KOVRA_ASN1_TYPE_COUNT && !is_name(rows[number].name.view()))
        ++number;
    return number;
}

void types(Session &session) {
    session.out.put("type  tag  form         name\n");
    uint32_t number = 0;
    for (const TypeRow &row : rows) {
        session.out.put_right(number++, 4);
        session.out.put_right(row.tag, 5);
        session.out.put_blanks(2);
        session.out.put(row.form);
        session.out.put_blanks(13 - row.form.size());
        session.out.put(row.name);
        session.out.put("\n");
    }
}

} // namespace kovra::tool
