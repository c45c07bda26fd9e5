// Private keys of any algorithm, plain and encrypted (PKCS #8, RFC 5958).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_pkcs8.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS8";

// PrivateKeyInfo ::= SEQUENCE {
//     version              INTEGER,
//     privateKeyAlgorithm  AlgorithmIdentifier,
//     privateKey           OCTET STRING,
//     attributes           [0] IMPLICIT SET OF Attribute OPTIONAL,
//     publicKey            [1] IMPLICIT BIT STRING OPTIONAL }
constexpr Component info_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("privateKeyAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("privateKey", KOVRA_ASN1_TYPE_OCTET_STRING),
    optional("attributes", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(0)),
    optional("publicKey", KOVRA_ASN1_TYPE_BIT_STRING, implicit_tag(1)),
};

// EncryptedPrivateKeyInfo ::= SEQUENCE {
//     encryptionAlgorithm  AlgorithmIdentifier,
//     encryptedData        OCTET STRING }
constexpr Component encrypted_components[] = {
    required("encryptionAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("encryptedData", KOVRA_ASN1_TYPE_OCTET_STRING),
};

} // namespace

constexpr StructureShape private_key_info = structure(source, info_components);
constexpr StructureShape encrypted_private_key_info = structure(source, encrypted_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs8privkeyinfo_new(const kovra_asn1_value *version,
                                             const kovra_asn1_value *private_key_algorithm,
                                             const kovra_asn1_value *private_key,
                                             const kovra_asn1_value *attributes) noexcept {
    return construct<private_key_info>(version, private_key_algorithm, private_key, attributes,
                                       static_cast<const kovra_asn1_value *>(nullptr));
}

kovra_asn1_value *kovra_pkcs8privkeyinfo_new_with_pubkey(const kovra_asn1_value *version,
                                                         const kovra_asn1_value *private_key_algorithm,
                                                         const kovra_asn1_value *private_key,
                                                         const kovra_asn1_value *attributes,
                                                         const kovra_asn1_value *public_key) noexcept {
    return construct<private_key_info>(version, private_key_algorithm, private_key, attributes, public_key);
}

kovra_asn1_value *kovra_pkcs8privkeyinfo_getversion(const kovra_asn1_value *obj) noexcept {
    return part<private_key_info, "version">(obj);
}

kovra_asn1_value *kovra_pkcs8privkeyinfo_getprivatekeyalgorithm(const kovra_asn1_value *obj) noexcept {
    return part<private_key_info, "privateKeyAlgorithm">(obj);
}

kovra_asn1_value *kovra_pkcs8privkeyinfo_getprivatekey(const kovra_asn1_value *obj) noexcept {
    return part<private_key_info, "privateKey">(obj);
}

int32_t kovra_pkcs8privkeyinfo_hasattributes(const kovra_asn1_value *obj) noexcept {
    return has_part<private_key_info, "attributes">(obj);
}

kovra_asn1_value *kovra_pkcs8privkeyinfo_getattributes(const kovra_asn1_value *obj) noexcept {
    return part<private_key_info, "attributes">(obj);
}

int32_t kovra_pkcs8privkeyinfo_haspublickey(const kovra_asn1_value *obj) noexcept {
    return has_part<private_key_info, "publicKey">(obj);
}

kovra_asn1_value *kovra_pkcs8privkeyinfo_getpublickey(const kovra_asn1_value *obj) noexcept {
    return part<private_key_info, "publicKey">(obj);
}

kovra_asn1_value *kovra_pkcs8encryptedprivkeyinfo_new(const kovra_asn1_value *encryption_algorithm,
                                                      const kovra_asn1_value *encrypted_data) noexcept {
    return construct<encrypted_private_key_info>(encryption_algorithm, encrypted_data);
}

kovra_asn1_value *kovra_pkcs8encryptedprivkeyinfo_getencryptionalgorithm(const kovra_asn1_value *obj) noexcept {
    return part<encrypted_private_key_info, "encryptionAlgorithm">(obj);
}

kovra_asn1_value *kovra_pkcs8encryptedprivkeyinfo_getencrypteddata(const kovra_asn1_value *obj) noexcept {
    return part<encrypted_private_key_info, "encryptedData">(obj);
}
