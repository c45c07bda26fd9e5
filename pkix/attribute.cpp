// Attribute (X.501, 8.2) and the attribute values that have structures of their own (X.520, PKCS #9, RFC 8551).

#include "kovra/asn1_attribute.h"

#include "core/content.hpp"
#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_codec.h"
#include "kovra/asn1_octetstring.h"
#include "kovra/asn1_types.h"
#include "kovra/asn1_x500name.h"
#include "pkix/context_sort.hpp"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_Attribute";

// SEQUENCE { value ANY, contextList SET OF Context }
constexpr Component context_item_components[] = {
    required("value", KOVRA_ASN1_TYPE_ANY),
    required("contextList", KOVRA_ASN1_TYPE_CONTEXT_LIST),
};

// Attribute ::= SEQUENCE {
//     type               OBJECT IDENTIFIER,
//     values             SET OF ANY,
//     valuesWithContext  SET OF SEQUENCE { ... } OPTIONAL }
constexpr Component attribute_components[] = {
    required("type", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("values", KOVRA_ASN1_TYPE_SET_OF_ANY),
    optional("valuesWithContext", KOVRA_ASN1_TYPE_ATTRIBUTE_VALUES_WITH_CONTEXT),
};

// The attributes of PKCS #10 and CMS have plain values only.
bool is_plain(const Structure &record) {
    return record.slot(slot_of(attribute_components, "valuesWithContext")) == nullptr;
}

// UUIDPair ::= SEQUENCE {
//     issuerUUID   OCTET STRING (SIZE (16)),
//     subjectUUID  OCTET STRING (SIZE (16)) }
constexpr int32_t uuid_octets = 16;
constexpr Component uuids_components[] = {
    required("issuerUUID", KOVRA_ASN1_TYPE_OCTET_STRING),
    required("subjectUUID", KOVRA_ASN1_TYPE_OCTET_STRING),
};
bool have_size(const Structure &record) {
    return has_octets(record.slot(slot_of(uuids_components, "issuerUUID")), uuid_octets) &&
           has_octets(record.slot(slot_of(uuids_components, "subjectUUID")), uuid_octets);
}

// TelexNumber ::= SEQUENCE {
//     telexNumber  PrintableString,
//     countryCode  PrintableString,
//     answerback   PrintableString }
constexpr Component telex_components[] = {
    required("telexNumber", KOVRA_ASN1_TYPE_PRINTABLE_STRING),
    required("countryCode", KOVRA_ASN1_TYPE_PRINTABLE_STRING),
    required("answerback", KOVRA_ASN1_TYPE_PRINTABLE_STRING),
};

// NameAndOptionalUID ::= SEQUENCE { dn Name, uid BIT STRING OPTIONAL }
constexpr Component name_and_uid_components[] = {
    required("dn", KOVRA_ASN1_TYPE_NAME),
    optional("uid", KOVRA_ASN1_TYPE_BIT_STRING),
};

} // namespace

constexpr StructureShape attribute_values_with_context_item = structure(source, context_item_components);
constexpr ListShape attribute_values_with_context = {.element = KOVRA_ASN1_TYPE_ATTRIBUTE_VALUES_WITH_CONTEXT_ITEM};
constexpr StructureShape attribute = structure(source, attribute_components);
constexpr StructureShape pkcs10_attribute = restricted(attribute, is_plain, 0x1027d);
// DirectoryString ::= CHOICE { teletexString, printableString, universalString, utf8String, bmpString }
constexpr StringChoiceShape directory_string = {source, 0x50181000};
// PKCS9String ::= CHOICE { ia5String, directoryString }
constexpr StringChoiceShape pkcs9_string = {source, 0x50581000};
constexpr StructureShape uuid_pair = restricted(source, uuids_components, have_size, code::incorrect_length);
constexpr ListShape postal_address = {.element = KOVRA_ASN1_TYPE_DIRECTORY_STRING, .reading = ListReading::whole};
constexpr StructureShape telex_number = structure(source, telex_components);
constexpr StructureShape name_and_optional_uid = structure(source, name_and_uid_components);
constexpr ListShape smime_capabilities = {.element = KOVRA_ASN1_TYPE_SMIME_CAPABILITY};

namespace {

int32_t get_tag(const kovra_asn1_value *value, int32_t *out_tag) {
    const auto *string = as<TaggedString>(value);
    if (string == nullptr || out_tag == nullptr)
        return 0;
    *out_tag = string->tag;
    return 1;
}

kovra_asn1_value *get_string(const kovra_asn1_value *value) {
    const auto *string = as<TaggedString>(value);
    return string != nullptr ? string->string : nullptr;
}

int32_t copy_uuid(const kovra_asn1_value *uuid, void *out) {
    const auto *string = as<String>(uuid);
    return string != nullptr && out != nullptr && copy_out(string->content, *string->arena, out, uuid_octets) ? 1 : 0;
}

} // namespace

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_x500attribute_new(kovra_asn1_value *type, const kovra_asn1_value *values) noexcept {
    if (type == nullptr || values == nullptr)
        return nullptr;
    Structure *record = new_structure(attribute);
    if (record == nullptr)
        return nullptr;
    if (store_copy(*record, slot<attribute, "type">, type)) {
        if (store_copy(*record, slot<attribute, "values">, values))
            return record;
        // On this failure the caller's `type` is released, as the header says.
        kovra_asn1_value_free(KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER, type);
    }
    Arena::destroy(record->arena);
    return nullptr;
}

kovra_asn1_value *kovra_x500attribute_gettype(const kovra_asn1_value *obj) noexcept {
    return part<attribute, "type">(obj);
}

kovra_asn1_value *kovra_x500attribute_getvalue(const kovra_asn1_value *obj) noexcept {
    return part<attribute, "values">(obj);
}

kovra_asn1_value *kovra_x500attribute_getcontext(const kovra_asn1_value *obj) noexcept {
    return part<attribute, "valuesWithContext">(obj);
}

int32_t kovra_x500attribute_hascontext(const kovra_asn1_value *obj) noexcept {
    return kovra_x500attribute_getcontext(obj) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_x500attrvalueswithcontextitem_getvalue(const kovra_asn1_value *obj) noexcept {
    return part<attribute_values_with_context_item, "value">(obj);
}

kovra_asn1_value *kovra_x500attrvalueswithcontextitem_getcontexts(const kovra_asn1_value *obj) noexcept {
    return part<attribute_values_with_context_item, "contextList">(obj);
}

int32_t kovra_x500attribute_sort(kovra_asn1_value *obj) noexcept {
    auto *values = static_cast<List *>(kovra_x500attribute_getvalue(obj));
    const Result result = sort_contexts(kovra_x500attribute_getcontext(obj), attribute_values_with_context_item,
                                        slot<attribute_values_with_context_item, "contextList">,
                                        row(KOVRA_ASN1_TYPE_ATTRIBUTE_VALUES_WITH_CONTEXT_ITEM));
    return result == success ? sort_list(values, row(KOVRA_ASN1_TYPE_ANY)) : result;
}

kovra_asn1_value *kovra_x500dirstring_new(int32_t tag, const kovra_asn1_value *string) noexcept {
    return construct_string_choice(directory_string, tag, string);
}

kovra_asn1_value *kovra_pkcs9string_new(int32_t tag, const kovra_asn1_value *string) noexcept {
    return construct_string_choice(pkcs9_string, tag, string);
}

int32_t kovra_x500dirstring_gettype(const kovra_asn1_value *value, int32_t *out_tag) noexcept {
    return get_tag(value, out_tag);
}

int32_t kovra_pkcs9string_gettype(const kovra_asn1_value *value, int32_t *out_tag) noexcept {
    return get_tag(value, out_tag);
}

kovra_asn1_value *kovra_x500dirstring_getstring(const kovra_asn1_value *value) noexcept {
    return get_string(value);
}

kovra_asn1_value *kovra_pkcs9string_getstring(const kovra_asn1_value *value) noexcept {
    return get_string(value);
}

kovra_asn1_value *kovra_x500uuidpair_new(const void *issuer_uuid, const void *subject_uuid) noexcept {
    if (issuer_uuid == nullptr || subject_uuid == nullptr)
        return nullptr;
    auto *issuer = new_with_content<String>(issuer_uuid, uuid_octets);
    auto *subject = new_with_content<String>(subject_uuid, uuid_octets);
    Structure *pair = issuer != nullptr && subject != nullptr ? construct<uuid_pair>(issuer, subject) : nullptr;
    kovra_asn1_value_free(KOVRA_ASN1_TYPE_OCTET_STRING, issuer);
    kovra_asn1_value_free(KOVRA_ASN1_TYPE_OCTET_STRING, subject);
    return pair;
}

int32_t kovra_x500uuidpair_getissueruuid(const kovra_asn1_value *pair, void *out) noexcept {
    return copy_uuid(part<uuid_pair, "issuerUUID">(pair), out);
}

int32_t kovra_x500uuidpair_getsubjectuuid(const kovra_asn1_value *pair, void *out) noexcept {
    return copy_uuid(part<uuid_pair, "subjectUUID">(pair), out);
}

kovra_asn1_value *kovra_x500telexnum_new(const kovra_asn1_value *number, const kovra_asn1_value *country_code,
                                         const kovra_asn1_value *answerback) noexcept {
    return construct<telex_number>(number, country_code, answerback);
}

kovra_asn1_value *kovra_x500telexnum_gettelexnum(const kovra_asn1_value *obj) noexcept {
    return part<telex_number, "telexNumber">(obj);
}

kovra_asn1_value *kovra_x500telexnum_getcoutrycode(const kovra_asn1_value *obj) noexcept {
    return part<telex_number, "countryCode">(obj);
}

kovra_asn1_value *kovra_x500telexnum_getanswerback(const kovra_asn1_value *obj) noexcept {
    return part<telex_number, "answerback">(obj);
}

kovra_asn1_value *kovra_x500nameandoptuid_new(const kovra_asn1_value *dn, const kovra_asn1_value *uid) noexcept {
    return construct<name_and_optional_uid>(dn, uid);
}

kovra_asn1_value *kovra_x500nameandoptuid_getname(const kovra_asn1_value *obj) noexcept {
    return part<name_and_optional_uid, "dn">(obj);
}

kovra_asn1_value *kovra_x500nameandoptuid_getuid(const kovra_asn1_value *obj) noexcept {
    return part<name_and_optional_uid, "uid">(obj);
}
