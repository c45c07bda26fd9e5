// The records of a certificate store: a format of this library.

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_any.h"
#include "kovra/asn1_certstore.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CertStore";

// StoreAttribute ::= SEQUENCE {
//     type   INTEGER,
//     value  ANY }
constexpr Component attribute_components[] = {
    required("type", KOVRA_ASN1_TYPE_INTEGER),
    required("value", KOVRA_ASN1_TYPE_ANY),
};

// CertWithAttributes ::= SEQUENCE {
//     cert      Certificate,
//     attrList  StoreAttributeList OPTIONAL }
constexpr Component entry_components[] = {
    required("cert", KOVRA_ASN1_TYPE_CERTIFICATE),
    optional("attrList", KOVRA_ASN1_TYPE_STORE_ATTRIBUTE_LIST),
};

// StoreKeyId ::= CHOICE {
//     keyId      UTF8String,
//     algorithm  [0] IMPLICIT AlgorithmIdentifier }
// Every context tag is taken for an algorithm.
constexpr Component key_id_choice_alternatives[] = {
    required("keyId", KOVRA_ASN1_TYPE_UTF8_STRING),
    required("algorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, implicit_tag(0)).any_context_tag(),
};

// PrivateKeyAttribute ::= SEQUENCE {
//     provider     UTF8String,
//     subProvider  UTF8String OPTIONAL,
//     keyType      [0] IMPLICIT INTEGER OPTIONAL,
//     flag         INTEGER,
//     keyId        [1] EXPLICIT StoreKeyId OPTIONAL }
constexpr Component private_key_components[] = {
    required("provider", KOVRA_ASN1_TYPE_UTF8_STRING),
    optional("subProvider", KOVRA_ASN1_TYPE_UTF8_STRING),
    optional("keyType", KOVRA_ASN1_TYPE_INTEGER, implicit_tag(0)).own_form_only(),
    required("flag", KOVRA_ASN1_TYPE_INTEGER),
    optional("keyId", KOVRA_ASN1_TYPE_STORE_KEY_ID, explicit_tag(1)),
};

} // namespace

constexpr StructureShape store_attribute = structure(source, attribute_components);
constexpr StructureShape cert_with_attributes = structure(source, entry_components);
constexpr ChoiceShape store_key_id = choice(source, key_id_choice_alternatives);
constexpr StructureShape private_key_attribute = structure(source, private_key_components);
// StoreAttributeList ::= SEQUENCE SIZE (1..MAX) OF StoreAttribute
constexpr ListShape store_attribute_list = {.element = KOVRA_ASN1_TYPE_STORE_ATTRIBUTE, .nonempty = source};
// CertStore ::= SEQUENCE OF CertWithAttributes
constexpr ListShape cert_store = {.element = KOVRA_ASN1_TYPE_CERT_WITH_ATTRIBUTES};
// OldCertThumbprints ::= SEQUENCE OF OCTET STRING
constexpr ListShape old_cert_thumbprints = {.element = KOVRA_ASN1_TYPE_OCTET_STRING};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_certstore_attr_new(const kovra_asn1_value *type, const kovra_asn1_value *value) noexcept {
    if (kovra_asn1_any_iseoc(value) == 1)
        return nullptr;
    return construct<store_attribute>(type, value);
}

kovra_asn1_value *kovra_certstore_attr_gettype(const kovra_asn1_value *obj) noexcept {
    return part<store_attribute, "type">(obj);
}

kovra_asn1_value *kovra_certstore_attr_getvalue(const kovra_asn1_value *obj) noexcept {
    return part<store_attribute, "value">(obj);
}

kovra_asn1_value *kovra_certstore_certwithattr_new(const kovra_asn1_value *cert,
                                                   const kovra_asn1_value *attr_list) noexcept {
    return construct<cert_with_attributes>(cert, attr_list);
}

kovra_asn1_value *kovra_certstore_certwithattr_getcert(const kovra_asn1_value *obj) noexcept {
    return part<cert_with_attributes, "cert">(obj);
}

kovra_asn1_value *kovra_certstore_certwithattr_getattrlist(const kovra_asn1_value *obj) noexcept {
    return part<cert_with_attributes, "attrList">(obj);
}

kovra_asn1_value *kovra_certstore_keyid_newkeyid(const kovra_asn1_value *key_id) noexcept {
    return construct_choice<store_key_id, "keyId">(key_id);
}

kovra_asn1_value *kovra_certstore_keyid_newalgoid(const kovra_asn1_value *algorithm) noexcept {
    return construct_choice<store_key_id, "algorithm">(algorithm);
}

int32_t kovra_certstore_keyid_gettype(const kovra_asn1_value *obj) noexcept {
    const Choice *choice = as_choice(store_key_id, obj);
    return choice != nullptr ? static_cast<int32_t>(choice->alternative) : -1;
}

kovra_asn1_value *kovra_certstore_keyid_getkeyid(const kovra_asn1_value *obj) noexcept {
    return chosen<store_key_id, "keyId">(obj);
}

kovra_asn1_value *kovra_certstore_keyid_getalgoid(const kovra_asn1_value *obj) noexcept {
    return chosen<store_key_id, "algorithm">(obj);
}

kovra_asn1_value *kovra_certstore_privkeyattr_new(const kovra_asn1_value *provider,
                                                  const kovra_asn1_value *sub_provider,
                                                  const kovra_asn1_value *key_type, const kovra_asn1_value *flag,
                                                  const kovra_asn1_value *key_id) noexcept {
    return construct<private_key_attribute>(provider, sub_provider, key_type, flag, key_id);
}

kovra_asn1_value *kovra_certstore_privkeyattr_getprovider(const kovra_asn1_value *obj) noexcept {
    return part<private_key_attribute, "provider">(obj);
}

kovra_asn1_value *kovra_certstore_privkeyattr_getsubprovider(const kovra_asn1_value *obj) noexcept {
    return part<private_key_attribute, "subProvider">(obj);
}

kovra_asn1_value *kovra_certstore_privkeyattr_getkeytype(const kovra_asn1_value *obj) noexcept {
    return part<private_key_attribute, "keyType">(obj);
}

kovra_asn1_value *kovra_certstore_privkeyattr_getflag(const kovra_asn1_value *obj) noexcept {
    return part<private_key_attribute, "flag">(obj);
}

kovra_asn1_value *kovra_certstore_privkeyattr_getkeyid(const kovra_asn1_value *obj) noexcept {
    return part<private_key_attribute, "keyId">(obj);
}
