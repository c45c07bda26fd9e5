// KeyAgreeRecipientInfo and its parts (RFC 5652, 6.2.2, 10.2.7).

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// OriginatorIdentifierOrKey ::= CHOICE {
//     issuerAndSerialNumber  IssuerAndSerialNumber,
//     subjectKeyIdentifier   [0] IMPLICIT OCTET STRING,
//     originatorKey          [1] IMPLICIT OriginatorPublicKey }
// OriginatorPublicKey has the components of a SubjectPublicKeyInfo.
constexpr Component originator_alternatives[] = {
    required("issuerAndSerialNumber", KOVRA_ASN1_TYPE_ISSUER_AND_SERIAL_NUMBER),
    required("subjectKeyIdentifier", KOVRA_ASN1_TYPE_OCTET_STRING, implicit_tag(0)),
    required("originatorKey", KOVRA_ASN1_TYPE_SUBJECT_PUBLIC_KEY_INFO, implicit_tag(1)),
};

// OtherKeyAttribute ::= SEQUENCE {
//     keyAttrId  OBJECT IDENTIFIER,
//     keyAttr    ANY DEFINED BY keyAttrId OPTIONAL }
constexpr Component key_attribute_components[] = {
    required("keyAttrId", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    optional("keyAttr", KOVRA_ASN1_TYPE_ANY),
};

// RecipientKeyIdentifier ::= SEQUENCE {
//     subjectKeyIdentifier  OCTET STRING,
//     date                  GeneralizedTime OPTIONAL,
//     other                 OtherKeyAttribute OPTIONAL }
constexpr Component key_identifier_components[] = {
    required("subjectKeyIdentifier", KOVRA_ASN1_TYPE_OCTET_STRING),
    optional("date", KOVRA_ASN1_TYPE_GENERALIZED_TIME),
    optional("other", KOVRA_ASN1_TYPE_OTHER_KEY_ATTRIBUTE),
};

// KeyAgreeRecipientIdentifier ::= CHOICE {
//     issuerAndSerialNumber  IssuerAndSerialNumber,
//     rKeyId                 [0] IMPLICIT RecipientKeyIdentifier }
constexpr Component recipient_alternatives[] = {
    required("issuerAndSerialNumber", KOVRA_ASN1_TYPE_ISSUER_AND_SERIAL_NUMBER),
    required("rKeyId", KOVRA_ASN1_TYPE_RECIPIENT_KEY_IDENTIFIER, implicit_tag(0)),
};

// RecipientEncryptedKey ::= SEQUENCE {
//     rid           KeyAgreeRecipientIdentifier,
//     encryptedKey  OCTET STRING }
constexpr Component encrypted_key_components[] = {
    required("rid", KOVRA_ASN1_TYPE_KEY_AGREE_RECIPIENT_IDENTIFIER),
    required("encryptedKey", KOVRA_ASN1_TYPE_OCTET_STRING),
};

// KeyAgreeRecipientInfo ::= SEQUENCE {
//     version                 INTEGER,
//     originator              [0] EXPLICIT OriginatorIdentifierOrKey,
//     ukm                     [1] EXPLICIT OCTET STRING OPTIONAL,
//     keyEncryptionAlgorithm  AlgorithmIdentifier,
//     recipientEncryptedKeys  SEQUENCE OF RecipientEncryptedKey }
constexpr Component agreement_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("originator", KOVRA_ASN1_TYPE_ORIGINATOR_IDENTIFIER_OR_KEY, explicit_tag(0)),
    optional("ukm", KOVRA_ASN1_TYPE_OCTET_STRING, explicit_tag(1)),
    required("keyEncryptionAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("recipientEncryptedKeys", KOVRA_ASN1_TYPE_RECIPIENT_ENCRYPTED_KEYS),
};

} // namespace

constexpr ChoiceShape originator_identifier_or_key = choice(source, originator_alternatives);
constexpr StructureShape other_key_attribute = structure(source, key_attribute_components);
constexpr StructureShape recipient_key_identifier = structure(source, key_identifier_components);
constexpr ChoiceShape key_agree_recipient_identifier = choice(source, recipient_alternatives);
constexpr StructureShape recipient_encrypted_key = structure(source, encrypted_key_components);
constexpr ListShape recipient_encrypted_keys = {.element = KOVRA_ASN1_TYPE_RECIPIENT_ENCRYPTED_KEY};
constexpr StructureShape key_agree_recipient_info = structure(source, agreement_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmskeyagreerecipientinfo_new(const kovra_asn1_value *version,
                                                     const kovra_asn1_value *originator_value,
                                                     const kovra_asn1_value *ukm, const kovra_asn1_value *algorithm,
                                                     const kovra_asn1_value *encrypted_keys) noexcept {
    return construct<key_agree_recipient_info>(version, originator_value, ukm, algorithm, encrypted_keys);
}

kovra_asn1_value *kovra_cmskeyagreerecipientinfo_getversion(const kovra_asn1_value *obj) noexcept {
    return part<key_agree_recipient_info, "version">(obj);
}

kovra_asn1_value *kovra_cmskeyagreerecipientinfo_getoriginator(const kovra_asn1_value *obj) noexcept {
    return part<key_agree_recipient_info, "originator">(obj);
}

kovra_asn1_value *kovra_cmskeyagreerecipientinfo_getukm(const kovra_asn1_value *obj) noexcept {
    return part<key_agree_recipient_info, "ukm">(obj);
}

int32_t kovra_cmskeyagreerecipientinfo_hasukm(const kovra_asn1_value *obj) noexcept {
    return has_part<key_agree_recipient_info, "ukm">(obj);
}

kovra_asn1_value *kovra_cmskeyagreerecipientinfo_getencalgo(const kovra_asn1_value *obj) noexcept {
    return part<key_agree_recipient_info, "keyEncryptionAlgorithm">(obj);
}

kovra_asn1_value *kovra_cmskeyagreerecipientinfo_getenckeys(const kovra_asn1_value *obj) noexcept {
    return part<key_agree_recipient_info, "recipientEncryptedKeys">(obj);
}

kovra_asn1_value *kovra_cmsorgidorkey_newissuersn(const kovra_asn1_value *issuer_and_serial) noexcept {
    return construct_choice<originator_identifier_or_key, "issuerAndSerialNumber">(issuer_and_serial);
}

kovra_asn1_value *kovra_cmsorgidorkey_newsubkeyid(const kovra_asn1_value *key_identifier_value) noexcept {
    return construct_choice<originator_identifier_or_key, "subjectKeyIdentifier">(key_identifier_value);
}

kovra_asn1_value *kovra_cmsorgidorkey_neworgkey(const kovra_asn1_value *public_key) noexcept {
    return construct_choice<originator_identifier_or_key, "originatorKey">(public_key);
}

int32_t kovra_cmsorgidorkey_gettype(const kovra_asn1_value *obj) noexcept {
    return alternative_number(originator_identifier_or_key, obj);
}

kovra_asn1_value *kovra_cmsorgidorkey_getissuersn(const kovra_asn1_value *obj) noexcept {
    return chosen_value(originator_identifier_or_key, obj);
}

kovra_asn1_value *kovra_cmsorgidorkey_getsubkeyid(const kovra_asn1_value *obj) noexcept {
    return chosen_value(originator_identifier_or_key, obj);
}

kovra_asn1_value *kovra_cmsorgidorkey_getorgkey(const kovra_asn1_value *obj) noexcept {
    return chosen_value(originator_identifier_or_key, obj);
}

kovra_asn1_value *kovra_cmsrecipientenckey_new(const kovra_asn1_value *rid,
                                               const kovra_asn1_value *encrypted_key_value) noexcept {
    return construct<recipient_encrypted_key>(rid, encrypted_key_value);
}

kovra_asn1_value *kovra_cmsrecipientenckey_getid(const kovra_asn1_value *obj) noexcept {
    return part<recipient_encrypted_key, "rid">(obj);
}

kovra_asn1_value *kovra_cmsrecipientenckey_getenckey(const kovra_asn1_value *obj) noexcept {
    return part<recipient_encrypted_key, "encryptedKey">(obj);
}

kovra_asn1_value *kovra_cmskeyagreerecipientid_newissuersn(const kovra_asn1_value *issuer_and_serial) noexcept {
    return construct_choice<key_agree_recipient_identifier, "issuerAndSerialNumber">(issuer_and_serial);
}

kovra_asn1_value *kovra_cmskeyagreerecipientid_newrkeyid(const kovra_asn1_value *key_identifier_value) noexcept {
    return construct_choice<key_agree_recipient_identifier, "rKeyId">(key_identifier_value);
}

int32_t kovra_cmskeyagreerecipientid_gettype(const kovra_asn1_value *obj) noexcept {
    return alternative_number(key_agree_recipient_identifier, obj);
}

kovra_asn1_value *kovra_cmskeyagreerecipientid_getissuersn(const kovra_asn1_value *obj) noexcept {
    return chosen_value(key_agree_recipient_identifier, obj);
}

kovra_asn1_value *kovra_cmskeyagreerecipientid_getrkeyid(const kovra_asn1_value *obj) noexcept {
    return chosen_value(key_agree_recipient_identifier, obj);
}

kovra_asn1_value *kovra_cmsrecipientkeyid_new(const kovra_asn1_value *subject_key_identifier,
                                              const kovra_asn1_value *date, const kovra_asn1_value *other) noexcept {
    return construct<recipient_key_identifier>(subject_key_identifier, date, other);
}

kovra_asn1_value *kovra_cmsrecipientkeyid_getsubkeyid(const kovra_asn1_value *obj) noexcept {
    return part<recipient_key_identifier, "subjectKeyIdentifier">(obj);
}

kovra_asn1_value *kovra_cmsrecipientkeyid_getdate(const kovra_asn1_value *obj) noexcept {
    return part<recipient_key_identifier, "date">(obj);
}

int32_t kovra_cmsrecipientkeyid_hasdate(const kovra_asn1_value *obj) noexcept {
    return has_part<recipient_key_identifier, "date">(obj);
}

kovra_asn1_value *kovra_cmsrecipientkeyid_getotherattr(const kovra_asn1_value *obj) noexcept {
    return part<recipient_key_identifier, "other">(obj);
}

int32_t kovra_cmsrecipientkeyid_hasotherattr(const kovra_asn1_value *obj) noexcept {
    return has_part<recipient_key_identifier, "other">(obj);
}

kovra_asn1_value *kovra_cmsotherkeyattr_new(const kovra_asn1_value *identifier,
                                            const kovra_asn1_value *value) noexcept {
    return construct<other_key_attribute>(identifier, value);
}

kovra_asn1_value *kovra_cmsotherkeyattr_getattrid(const kovra_asn1_value *obj) noexcept {
    return part<other_key_attribute, "keyAttrId">(obj);
}

kovra_asn1_value *kovra_cmsotherkeyattr_getattrvalue(const kovra_asn1_value *obj) noexcept {
    return part<other_key_attribute, "keyAttr">(obj);
}

int32_t kovra_cmsotherkeyattr_hasattrvalue(const kovra_asn1_value *obj) noexcept {
    return has_part<other_key_attribute, "keyAttr">(obj);
}
