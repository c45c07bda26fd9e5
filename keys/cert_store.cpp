// The records of a certificate store: a format of this library.

#include "core/choice.hpp"
#include "core/descriptors.hpp"
#include "core/list.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_any.h"
#include "kovra/asn1_certstore.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CertStore";

// StoreAttribute ::= SEQUENCE {
//     type   INTEGER,
//     value  ANY }
namespace attribute_slots {
enum Slot : uint8_t { type, value };
constexpr Component components[] = {
    required("type", KOVRA_ASN1_TYPE_INTEGER),
    required("value", KOVRA_ASN1_TYPE_ANY),
};
} // namespace attribute_slots

// CertWithAttributes ::= SEQUENCE {
//     cert      Certificate,
//     attrList  StoreAttributeList OPTIONAL }
namespace entry {
enum Slot : uint8_t { cert, attr_list };
constexpr Component components[] = {
    required("cert", KOVRA_ASN1_TYPE_CERTIFICATE),
    optional("attrList", KOVRA_ASN1_TYPE_STORE_ATTRIBUTE_LIST),
};
} // namespace entry

// StoreKeyId ::= CHOICE {
//     keyId      UTF8String,
//     algorithm  [0] IMPLICIT AlgorithmIdentifier }
// Every context tag is taken for an algorithm.
namespace key_id_choice {
enum Alternative : uint8_t { key_id, algorithm };
constexpr Component alternatives[] = {
    required("keyId", KOVRA_ASN1_TYPE_UTF8_STRING),
    required("algorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, implicit_tag(0)).begun(Begins::with_any_number),
};
static_assert(is_sound(alternatives));
} // namespace key_id_choice

// PrivateKeyAttribute ::= SEQUENCE {
//     provider     UTF8String,
//     subProvider  UTF8String OPTIONAL,
//     keyType      [0] IMPLICIT INTEGER OPTIONAL,
//     flag         INTEGER,
//     keyId        [1] EXPLICIT StoreKeyId OPTIONAL }
namespace private_key {
enum Slot : uint8_t { provider, sub_provider, key_type, flag, key_id };
constexpr Component components[] = {
    required("provider", KOVRA_ASN1_TYPE_UTF8_STRING),
    optional("subProvider", KOVRA_ASN1_TYPE_UTF8_STRING),
    optional("keyType", KOVRA_ASN1_TYPE_INTEGER, implicit_tag(0)).begun(Begins::in_own_form),
    required("flag", KOVRA_ASN1_TYPE_INTEGER),
    optional("keyId", KOVRA_ASN1_TYPE_STORE_KEY_ID, explicit_tag(1)),
};
static_assert(is_sound(components));
} // namespace private_key

} // namespace

constexpr Structure store_attribute = structure(source, attribute_slots::components);
constexpr Structure cert_with_attributes = structure(source, entry::components);
constexpr ChoiceShape store_key_id = choice(source, key_id_choice::alternatives);
constexpr Structure private_key_attribute = structure(source, private_key::components);
// StoreAttributeList ::= SEQUENCE SIZE (1..MAX) OF StoreAttribute
constexpr ListShape store_attribute_list = {KOVRA_ASN1_TYPE_STORE_ATTRIBUTE, ListReading::tagged, source};
// CertStore ::= SEQUENCE OF CertWithAttributes
constexpr ListShape cert_store = {KOVRA_ASN1_TYPE_CERT_WITH_ATTRIBUTES};
// OldCertThumbprints ::= SEQUENCE OF OCTET STRING
constexpr ListShape old_cert_thumbprints = {KOVRA_ASN1_TYPE_OCTET_STRING};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_certstore_attr_new(const kovra_asn1_value *type, const kovra_asn1_value *value) noexcept {
    if (kovra_asn1_any_iseoc(value) == 1)
        return nullptr;
    return construct(store_attribute, type, value);
}

kovra_asn1_value *kovra_certstore_attr_gettype(const kovra_asn1_value *obj) noexcept {
    return component(store_attribute, obj, attribute_slots::type);
}

kovra_asn1_value *kovra_certstore_attr_getvalue(const kovra_asn1_value *obj) noexcept {
    return component(store_attribute, obj, attribute_slots::value);
}

kovra_asn1_value *kovra_certstore_certwithattr_new(const kovra_asn1_value *cert,
                                                   const kovra_asn1_value *attr_list) noexcept {
    return construct(cert_with_attributes, cert, attr_list);
}

kovra_asn1_value *kovra_certstore_certwithattr_getcert(const kovra_asn1_value *obj) noexcept {
    return component(cert_with_attributes, obj, entry::cert);
}

kovra_asn1_value *kovra_certstore_certwithattr_getattrlist(const kovra_asn1_value *obj) noexcept {
    return component(cert_with_attributes, obj, entry::attr_list);
}

kovra_asn1_value *kovra_certstore_keyid_newkeyid(const kovra_asn1_value *key_id) noexcept {
    return construct_choice(store_key_id, key_id_choice::key_id, key_id);
}

kovra_asn1_value *kovra_certstore_keyid_newalgoid(const kovra_asn1_value *algorithm) noexcept {
    return construct_choice(store_key_id, key_id_choice::algorithm, algorithm);
}

int32_t kovra_certstore_keyid_gettype(const kovra_asn1_value *obj) noexcept {
    const Choice *choice = as_choice(store_key_id, obj);
    return choice != nullptr ? static_cast<int32_t>(choice->alternative) : -1;
}

kovra_asn1_value *kovra_certstore_keyid_getkeyid(const kovra_asn1_value *obj) noexcept {
    return alternative(store_key_id, obj, key_id_choice::key_id);
}

kovra_asn1_value *kovra_certstore_keyid_getalgoid(const kovra_asn1_value *obj) noexcept {
    return alternative(store_key_id, obj, key_id_choice::algorithm);
}

kovra_asn1_value *kovra_certstore_privkeyattr_new(const kovra_asn1_value *provider,
                                                  const kovra_asn1_value *sub_provider,
                                                  const kovra_asn1_value *key_type, const kovra_asn1_value *flag,
                                                  const kovra_asn1_value *key_id) noexcept {
    return construct(private_key_attribute, provider, sub_provider, key_type, flag, key_id);
}

kovra_asn1_value *kovra_certstore_privkeyattr_getprovider(const kovra_asn1_value *obj) noexcept {
    return component(private_key_attribute, obj, private_key::provider);
}

kovra_asn1_value *kovra_certstore_privkeyattr_getsubprovider(const kovra_asn1_value *obj) noexcept {
    return component(private_key_attribute, obj, private_key::sub_provider);
}

kovra_asn1_value *kovra_certstore_privkeyattr_getkeytype(const kovra_asn1_value *obj) noexcept {
    return component(private_key_attribute, obj, private_key::key_type);
}

kovra_asn1_value *kovra_certstore_privkeyattr_getflag(const kovra_asn1_value *obj) noexcept {
    return component(private_key_attribute, obj, private_key::flag);
}

kovra_asn1_value *kovra_certstore_privkeyattr_getkeyid(const kovra_asn1_value *obj) noexcept {
    return component(private_key_attribute, obj, private_key::key_id);
}
