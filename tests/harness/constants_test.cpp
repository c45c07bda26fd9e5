// The names of numbers in the public headers, held against the tables that the library works by.
#include <algorithm>
#include <map>

#include "core/choice.hpp"
#include "tests/asn1_testing.hpp"
#include "tests/harness/samples.hpp"

namespace kovra::test {
namespace {

using Handle = const kovra_asn1_value *;

// A choice: the function that tells its alternatives apart, and the constants, in the order of the table.
struct Alternatives {
    int32_t (*number)(Handle);
    std::vector<std::pair<std::string, int32_t>> named;
};

template <auto function> int32_t stored(Handle value) {
    int32_t number = -7;
    return function(value, &number) == 1 ? number : -7;
}

const std::map<uint32_t, Alternatives> choices = {
    {KOVRA_ASN1_TYPE_GENERAL_NAME,
     {stored<kovra_x509generalname_gettype>,
      {{"otherName", KOVRA_ASN1_GENERAL_NAME_OTHER_NAME},
       {"rfc822Name", KOVRA_ASN1_GENERAL_NAME_RFC822_NAME},
       {"dNSName", KOVRA_ASN1_GENERAL_NAME_DNS_NAME},
       {"x400Address", KOVRA_ASN1_GENERAL_NAME_X400_ADDRESS},
       {"directoryName", KOVRA_ASN1_GENERAL_NAME_DIRECTORY_NAME},
       {"ediPartyName", KOVRA_ASN1_GENERAL_NAME_EDI_PARTY_NAME},
       {"uniformResourceIdentifier", KOVRA_ASN1_GENERAL_NAME_URI},
       {"iPAddress", KOVRA_ASN1_GENERAL_NAME_IP_ADDRESS},
       {"registeredID", KOVRA_ASN1_GENERAL_NAME_REGISTERED_ID}}}},
    {KOVRA_ASN1_TYPE_DISTRIBUTION_POINT_NAME,
     {stored<kovra_x509distpointname_gettype>,
      {{"fullName", KOVRA_ASN1_DISTRIBUTION_POINT_NAME_FULL_NAME},
       {"nameRelativeToCRLIssuer", KOVRA_ASN1_DISTRIBUTION_POINT_NAME_RELATIVE_NAME}}}},
    {KOVRA_ASN1_TYPE_STORE_KEY_ID,
     {kovra_certstore_keyid_gettype,
      {{"keyId", KOVRA_ASN1_STORE_KEY_ID_KEY_ID}, {"algorithm", KOVRA_ASN1_STORE_KEY_ID_ALGORITHM}}}},
    {KOVRA_ASN1_TYPE_SIGNER_IDENTIFIER,
     {kovra_cmssignerid_gettype,
      {{"issuerAndSerialNumber", KOVRA_ASN1_SIGNER_IDENTIFIER_ISSUER_AND_SERIAL_NUMBER},
       {"subjectKeyIdentifier", KOVRA_ASN1_SIGNER_IDENTIFIER_SUBJECT_KEY_IDENTIFIER}}}},
    {KOVRA_ASN1_TYPE_CERTIFICATE_CHOICES,
     {kovra_cmscertchoice_gettype,
      {{"certificate", KOVRA_ASN1_CERTIFICATE_CHOICES_CERTIFICATE},
       {"extendedCertificate", KOVRA_ASN1_CERTIFICATE_CHOICES_EXTENDED_CERTIFICATE},
       {"v1AttrCert", KOVRA_ASN1_CERTIFICATE_CHOICES_V1_ATTR_CERT},
       {"v2AttrCert", KOVRA_ASN1_CERTIFICATE_CHOICES_V2_ATTR_CERT},
       {"other", KOVRA_ASN1_CERTIFICATE_CHOICES_OTHER}}}},
    {KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICE,
     {kovra_cmsrevinfochoice_gettype,
      {{"crl", KOVRA_ASN1_REVOCATION_INFO_CHOICE_CRL}, {"other", KOVRA_ASN1_REVOCATION_INFO_CHOICE_OTHER}}}},
    {KOVRA_ASN1_TYPE_RECIPIENT_INFO,
     {kovra_cmsrecipientinfo_gettype,
      {{"ktri", KOVRA_ASN1_RECIPIENT_INFO_KTRI},
       {"kari", KOVRA_ASN1_RECIPIENT_INFO_KARI},
       {"kekri", KOVRA_ASN1_RECIPIENT_INFO_KEKRI},
       {"pwri", KOVRA_ASN1_RECIPIENT_INFO_PWRI},
       {"ori", KOVRA_ASN1_RECIPIENT_INFO_ORI}}}},
    {KOVRA_ASN1_TYPE_ORIGINATOR_IDENTIFIER_OR_KEY,
     {kovra_cmsorgidorkey_gettype,
      {{"issuerAndSerialNumber", KOVRA_ASN1_ORIGINATOR_IDENTIFIER_OR_KEY_ISSUER_AND_SERIAL_NUMBER},
       {"subjectKeyIdentifier", KOVRA_ASN1_ORIGINATOR_IDENTIFIER_OR_KEY_SUBJECT_KEY_IDENTIFIER},
       {"originatorKey", KOVRA_ASN1_ORIGINATOR_IDENTIFIER_OR_KEY_ORIGINATOR_KEY}}}},
    {KOVRA_ASN1_TYPE_KEY_AGREE_RECIPIENT_IDENTIFIER,
     {kovra_cmskeyagreerecipientid_gettype,
      {{"issuerAndSerialNumber", KOVRA_ASN1_KEY_AGREE_RECIPIENT_IDENTIFIER_ISSUER_AND_SERIAL_NUMBER},
       {"rKeyId", KOVRA_ASN1_KEY_AGREE_RECIPIENT_IDENTIFIER_R_KEY_ID}}}},
    {KOVRA_ASN1_TYPE_ECPK_PARAMETERS,
     {kovra_ecpkparameters_gettype,
      {{"ecParameters", KOVRA_ASN1_ECPK_PARAMETERS_EC_PARAMETERS},
       {"namedCurve", KOVRA_ASN1_ECPK_PARAMETERS_NAMED_CURVE},
       {"implicitlyCA", KOVRA_ASN1_ECPK_PARAMETERS_IMPLICITLY_CA}}}},
    {KOVRA_ASN1_TYPE_INNER_ENVELOPED_KEY_PAIR,
     {kovra_innerenvelopedkeypair_gettype,
      {{"rsa", KOVRA_ASN1_INNER_ENVELOPED_KEY_PAIR_RSA}, {"sm2", KOVRA_ASN1_INNER_ENVELOPED_KEY_PAIR_SM2}}}},
    {KOVRA_ASN1_TYPE_PBKDF2_SALT,
     {kovra_pkcs5pbkdf2salt_gettype,
      {{"specified", KOVRA_ASN1_PBKDF2_SALT_SPECIFIED}, {"otherSource", KOVRA_ASN1_PBKDF2_SALT_OTHER_SOURCE}}}},
    {KOVRA_ASN1_TYPE_OCSP_RESPONDER_ID,
     {kovra_ocsp_responderid_gettype,
      {{"byName", KOVRA_ASN1_OCSP_RESPONDER_ID_BY_NAME}, {"byKey", KOVRA_ASN1_OCSP_RESPONDER_ID_BY_KEY}}}},
    {KOVRA_ASN1_TYPE_OCSP_CERT_STATUS,
     {kovra_ocsp_certstatus_gettype,
      {{"good", KOVRA_ASN1_OCSP_CERT_STATUS_GOOD},
       {"revoked", KOVRA_ASN1_OCSP_CERT_STATUS_REVOKED},
       {"unknown", KOVRA_ASN1_OCSP_CERT_STATUS_UNKNOWN}}}},
};

TEST(Constants, OfAlternativesAreWhatTheFunctionsTell) {
    for (const core::Type &row : core::rows::all) {
        if (row.operations != &core::choice_operations)
            continue;
        SCOPED_TRACE(static_cast<int>(row.number));
        const auto &shape = *static_cast<const core::ChoiceShape *>(row.shape);
        const auto found = choices.find(row.number);
        ASSERT_NE(found, choices.end());
        const auto &[number, named] = found->second;
        ASSERT_EQ(named.size(), shape.count);
        std::vector<bool> seen(shape.count);
        for (const Sample &sample : samples(row.number)) {
            const Value value = decode(row.number, sample.octets).value;
            if (!value)
                continue;
            const uint32_t at = core::as_choice(shape, value.get())->alternative;
            seen[at] = true;
            EXPECT_EQ(named[at].first, shape.alternatives[at].name);
            EXPECT_EQ(named[at].second, number(value.get())) << named[at].first;
        }
        EXPECT_EQ(seen, std::vector<bool>(shape.count, true));
    }
}

// Types and tags have the same names and different numbers.
TEST(Constants, OfTagsAreThoseOfTheTypes) {
#define SAME_NAME(name)                                                                                                \
    { KOVRA_ASN1_TYPE_##name, KOVRA_ASN1_TAG_##name }
    const std::map<uint32_t, uint8_t> tags = {
        SAME_NAME(END_OF_CONTENTS),
        SAME_NAME(BOOLEAN),
        SAME_NAME(INTEGER),
        SAME_NAME(BIT_STRING),
        SAME_NAME(OCTET_STRING),
        SAME_NAME(NULL),
        SAME_NAME(ENUMERATED),
        SAME_NAME(OBJECT_IDENTIFIER),
        SAME_NAME(UTF8_STRING),
        SAME_NAME(NUMERIC_STRING),
        SAME_NAME(PRINTABLE_STRING),
        SAME_NAME(TELETEX_STRING),
        SAME_NAME(VIDEOTEX_STRING),
        SAME_NAME(IA5_STRING),
        SAME_NAME(GRAPHIC_STRING),
        SAME_NAME(VISIBLE_STRING),
        SAME_NAME(GENERAL_STRING),
        SAME_NAME(UNIVERSAL_STRING),
        SAME_NAME(BMP_STRING),
        SAME_NAME(UTC_TIME),
        SAME_NAME(GENERALIZED_TIME),
        SAME_NAME(RELATIVE_OID),
        {24, KOVRA_ASN1_TAG_SEQUENCE},
        {26, KOVRA_ASN1_TAG_SET},
        {KOVRA_ASN1_TYPE_INSTANCE_OF, KOVRA_ASN1_TAG_EXTERNAL},
    };
#undef SAME_NAME
    for (const auto &[type, tag] : tags)
        EXPECT_EQ(core::row(type).tag, tag) << type;
    for (const core::Type &row : core::rows::all)
        if (row.tag != 0) {
            const auto has_tag = [&](const auto &entry) { return entry.second == row.tag; };
            EXPECT_TRUE(std::any_of(tags.begin(), tags.end(), has_tag)) << "no name for tag " << int{row.tag};
        }
}

} // namespace
} // namespace kovra::test
