// RecipientInfo and its kinds (RFC 5652, 6.2), but for key agreement.

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// KeyTransRecipientInfo ::= SEQUENCE {
//     version                 INTEGER,
//     rid                     SignerIdentifier,
//     keyEncryptionAlgorithm  AlgorithmIdentifier,
//     encryptedKey            OCTET STRING }
constexpr Component transport_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("rid", KOVRA_ASN1_TYPE_SIGNER_IDENTIFIER),
    required("keyEncryptionAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("encryptedKey", KOVRA_ASN1_TYPE_OCTET_STRING),
};

// KEKRecipientInfo ::= SEQUENCE {
//     version                 INTEGER,
//     kekid                   KEKIdentifier,
//     keyEncryptionAlgorithm  AlgorithmIdentifier,
//     encryptedKey            OCTET STRING }
// A KEKIdentifier has the components of a RecipientKeyIdentifier.
constexpr Component kek_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("kekid", KOVRA_ASN1_TYPE_RECIPIENT_KEY_IDENTIFIER),
    required("keyEncryptionAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("encryptedKey", KOVRA_ASN1_TYPE_OCTET_STRING),
};

// PasswordRecipientInfo ::= SEQUENCE {
//     version                 INTEGER,
//     keyDerivationAlgorithm  [0] IMPLICIT AlgorithmIdentifier OPTIONAL,
//     keyEncryptionAlgorithm  AlgorithmIdentifier,
//     encryptedKey            OCTET STRING }
// keyDerivationAlgorithm is written under an implicit tag and read under an explicit one.
constexpr Component password_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    optional("keyDerivationAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, explicit_tag(0))
        .encode_under(implicit_tag(0)),
    required("keyEncryptionAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("encryptedKey", KOVRA_ASN1_TYPE_OCTET_STRING),
};

// OtherRecipientInfo ::= SEQUENCE {
//     oriType   OBJECT IDENTIFIER,
//     oriValue  ANY DEFINED BY oriType }
constexpr Component other_recipient_components[] = {
    required("oriType", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("oriValue", KOVRA_ASN1_TYPE_ANY),
};

// RecipientInfo ::= CHOICE {
//     ktri   KeyTransRecipientInfo,
//     kari   [1] IMPLICIT KeyAgreeRecipientInfo,
//     kekri  [2] IMPLICIT KEKRecipientInfo,
//     pwri   [3] IMPLICIT PasswordRecipientInfo,
//     ori    [4] IMPLICIT OtherRecipientInfo }
constexpr Component recipient_alternatives[] = {
    required("ktri", KOVRA_ASN1_TYPE_KEY_TRANS_RECIPIENT_INFO),
    required("kari", KOVRA_ASN1_TYPE_KEY_AGREE_RECIPIENT_INFO, implicit_tag(1)),
    required("kekri", KOVRA_ASN1_TYPE_KEK_RECIPIENT_INFO, implicit_tag(2)),
    required("pwri", KOVRA_ASN1_TYPE_PASSWORD_RECIPIENT_INFO, implicit_tag(3)),
    required("ori", KOVRA_ASN1_TYPE_OTHER_RECIPIENT_INFO, implicit_tag(4)),
};

} // namespace

constexpr StructureShape key_trans_recipient_info = structure(source, transport_components);
constexpr StructureShape kek_recipient_info = structure(source, kek_components);
constexpr StructureShape password_recipient_info = structure(source, password_components);
constexpr StructureShape other_recipient_info = structure(source, other_recipient_components);
constexpr ChoiceShape recipient_info = choice(source, recipient_alternatives);
// RecipientInfos ::= SET OF RecipientInfo
constexpr ListShape recipient_infos = {.element = KOVRA_ASN1_TYPE_RECIPIENT_INFO, .reading = ListReading::dispatched};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmsrecipientinfo_newktri(const kovra_asn1_value *ktri) noexcept {
    return construct_choice<recipient_info, "ktri">(ktri);
}

kovra_asn1_value *kovra_cmsrecipientinfo_newkari(const kovra_asn1_value *kari) noexcept {
    return construct_choice<recipient_info, "kari">(kari);
}

kovra_asn1_value *kovra_cmsrecipientinfo_newkekri(const kovra_asn1_value *kekri) noexcept {
    return construct_choice<recipient_info, "kekri">(kekri);
}

kovra_asn1_value *kovra_cmsrecipientinfo_newpwri(const kovra_asn1_value *pwri) noexcept {
    return construct_choice<recipient_info, "pwri">(pwri);
}

kovra_asn1_value *kovra_cmsrecipientinfo_newori(const kovra_asn1_value *ori) noexcept {
    return construct_choice<recipient_info, "ori">(ori);
}

int32_t kovra_cmsrecipientinfo_gettype(const kovra_asn1_value *obj) noexcept {
    return alternative_number(recipient_info, obj);
}

kovra_asn1_value *kovra_cmsrecipientinfo_getktri(const kovra_asn1_value *obj) noexcept {
    return chosen_value(recipient_info, obj);
}

kovra_asn1_value *kovra_cmsrecipientinfo_getkari(const kovra_asn1_value *obj) noexcept {
    return chosen_value(recipient_info, obj);
}

kovra_asn1_value *kovra_cmsrecipientinfo_getkekri(const kovra_asn1_value *obj) noexcept {
    return chosen_value(recipient_info, obj);
}

kovra_asn1_value *kovra_cmsrecipientinfo_getpwri(const kovra_asn1_value *obj) noexcept {
    return chosen_value(recipient_info, obj);
}

kovra_asn1_value *kovra_cmsrecipientinfo_getori(const kovra_asn1_value *obj) noexcept {
    return chosen_value(recipient_info, obj);
}

kovra_asn1_value *kovra_cmskeytransrecipientinfo_new(const kovra_asn1_value *version, const kovra_asn1_value *rid,
                                                     const kovra_asn1_value *algorithm,
                                                     const kovra_asn1_value *encrypted_key) noexcept {
    return construct<key_trans_recipient_info>(version, rid, algorithm, encrypted_key);
}

kovra_asn1_value *kovra_cmskeytransrecipientinfo_getversion(const kovra_asn1_value *obj) noexcept {
    return part<key_trans_recipient_info, "version">(obj);
}

kovra_asn1_value *kovra_cmskeytransrecipientinfo_getrid(const kovra_asn1_value *obj) noexcept {
    return part<key_trans_recipient_info, "rid">(obj);
}

kovra_asn1_value *kovra_cmskeytransrecipientinfo_getencalgo(const kovra_asn1_value *obj) noexcept {
    return part<key_trans_recipient_info, "keyEncryptionAlgorithm">(obj);
}

kovra_asn1_value *kovra_cmskeytransrecipientinfo_getenckey(const kovra_asn1_value *obj) noexcept {
    return part<key_trans_recipient_info, "encryptedKey">(obj);
}

kovra_asn1_value *kovra_cmskekrecipientinfo_new(const kovra_asn1_value *version, const kovra_asn1_value *kekid,
                                                const kovra_asn1_value *algorithm,
                                                const kovra_asn1_value *encrypted_key) noexcept {
    return construct<kek_recipient_info>(version, kekid, algorithm, encrypted_key);
}

kovra_asn1_value *kovra_cmskekrecipientinfo_getversion(const kovra_asn1_value *obj) noexcept {
    return part<kek_recipient_info, "version">(obj);
}

kovra_asn1_value *kovra_cmskekrecipientinfo_getkekid(const kovra_asn1_value *obj) noexcept {
    return part<kek_recipient_info, "kekid">(obj);
}

kovra_asn1_value *kovra_cmskekrecipientinfo_getencalgo(const kovra_asn1_value *obj) noexcept {
    return part<kek_recipient_info, "keyEncryptionAlgorithm">(obj);
}

kovra_asn1_value *kovra_cmskekrecipientinfo_getenckey(const kovra_asn1_value *obj) noexcept {
    return part<kek_recipient_info, "encryptedKey">(obj);
}

kovra_asn1_value *kovra_cmspwdrecipientinfo_new(const kovra_asn1_value *version,
                                                const kovra_asn1_value *derivation_algorithm,
                                                const kovra_asn1_value *algorithm,
                                                const kovra_asn1_value *encrypted_key) noexcept {
    return construct<password_recipient_info>(version, derivation_algorithm, algorithm, encrypted_key);
}

kovra_asn1_value *kovra_cmspwdrecipientinfo_getversion(const kovra_asn1_value *obj) noexcept {
    return part<password_recipient_info, "version">(obj);
}

kovra_asn1_value *kovra_cmspwdrecipientinfo_getderivalgo(const kovra_asn1_value *obj) noexcept {
    return part<password_recipient_info, "keyDerivationAlgorithm">(obj);
}

int32_t kovra_cmspwdrecipientinfo_hasderivalgo(const kovra_asn1_value *obj) noexcept {
    return has_part<password_recipient_info, "keyDerivationAlgorithm">(obj);
}

kovra_asn1_value *kovra_cmspwdrecipientinfo_getencalgo(const kovra_asn1_value *obj) noexcept {
    return part<password_recipient_info, "keyEncryptionAlgorithm">(obj);
}

kovra_asn1_value *kovra_cmspwdrecipientinfo_getenckey(const kovra_asn1_value *obj) noexcept {
    return part<password_recipient_info, "encryptedKey">(obj);
}

kovra_asn1_value *kovra_cmsotherrecipientinfo_new(const kovra_asn1_value *type,
                                                  const kovra_asn1_value *value) noexcept {
    return construct<other_recipient_info>(type, value);
}

kovra_asn1_value *kovra_cmsotherrecipientinfo_gettype(const kovra_asn1_value *obj) noexcept {
    return part<other_recipient_info, "oriType">(obj);
}

kovra_asn1_value *kovra_cmsotherrecipientinfo_getvalue(const kovra_asn1_value *obj) noexcept {
    return part<other_recipient_info, "oriValue">(obj);
}
