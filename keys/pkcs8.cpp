// Private keys of any algorithm, plain and encrypted (PKCS #8, RFC 5958).

#include "core/descriptors.hpp"
#include "core/structure.hpp"
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
namespace info {
enum Slot : uint8_t { version, private_key_algorithm, private_key, attributes, public_key };
constexpr Component components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("privateKeyAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("privateKey", KOVRA_ASN1_TYPE_OCTET_STRING),
    optional("attributes", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(0)),
    optional("publicKey", KOVRA_ASN1_TYPE_BIT_STRING, implicit_tag(1)),
};
static_assert(is_sound(components));
} // namespace info

// EncryptedPrivateKeyInfo ::= SEQUENCE {
//     encryptionAlgorithm  AlgorithmIdentifier,
//     encryptedData        OCTET STRING }
namespace encrypted {
enum Slot : uint8_t { encryption_algorithm, encrypted_data };
constexpr Component components[] = {
    required("encryptionAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("encryptedData", KOVRA_ASN1_TYPE_OCTET_STRING),
};
} // namespace encrypted

} // namespace

constexpr Structure private_key_info = structure(source, info::components);
constexpr Structure encrypted_private_key_info = structure(source, encrypted::components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs8privkeyinfo_new(const kovra_asn1_value *version,
                                             const kovra_asn1_value *private_key_algorithm,
                                             const kovra_asn1_value *private_key,
                                             const kovra_asn1_value *attributes) noexcept {
    return construct(private_key_info, version, private_key_algorithm, private_key, attributes,
                     static_cast<const kovra_asn1_value *>(nullptr));
}

kovra_asn1_value *kovra_pkcs8privkeyinfo_new_with_pubkey(const kovra_asn1_value *version,
                                                         const kovra_asn1_value *private_key_algorithm,
                                                         const kovra_asn1_value *private_key,
                                                         const kovra_asn1_value *attributes,
                                                         const kovra_asn1_value *public_key) noexcept {
    return construct(private_key_info, version, private_key_algorithm, private_key, attributes, public_key);
}

kovra_asn1_value *kovra_pkcs8privkeyinfo_getversion(const kovra_asn1_value *obj) noexcept {
    return component(private_key_info, obj, info::version);
}

kovra_asn1_value *kovra_pkcs8privkeyinfo_getprivatekeyalgorithm(const kovra_asn1_value *obj) noexcept {
    return component(private_key_info, obj, info::private_key_algorithm);
}

kovra_asn1_value *kovra_pkcs8privkeyinfo_getprivatekey(const kovra_asn1_value *obj) noexcept {
    return component(private_key_info, obj, info::private_key);
}

int32_t kovra_pkcs8privkeyinfo_hasattributes(const kovra_asn1_value *obj) noexcept {
    return component(private_key_info, obj, info::attributes) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_pkcs8privkeyinfo_getattributes(const kovra_asn1_value *obj) noexcept {
    return component(private_key_info, obj, info::attributes);
}

int32_t kovra_pkcs8privkeyinfo_haspublickey(const kovra_asn1_value *obj) noexcept {
    return component(private_key_info, obj, info::public_key) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_pkcs8privkeyinfo_getpublickey(const kovra_asn1_value *obj) noexcept {
    return component(private_key_info, obj, info::public_key);
}

kovra_asn1_value *kovra_pkcs8encryptedprivkeyinfo_new(const kovra_asn1_value *encryption_algorithm,
                                                      const kovra_asn1_value *encrypted_data) noexcept {
    return construct(encrypted_private_key_info, encryption_algorithm, encrypted_data);
}

kovra_asn1_value *kovra_pkcs8encryptedprivkeyinfo_getencryptionalgorithm(const kovra_asn1_value *obj) noexcept {
    return component(encrypted_private_key_info, obj, encrypted::encryption_algorithm);
}

kovra_asn1_value *kovra_pkcs8encryptedprivkeyinfo_getencrypteddata(const kovra_asn1_value *obj) noexcept {
    return component(encrypted_private_key_info, obj, encrypted::encrypted_data);
}
