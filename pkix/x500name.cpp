// Name and what it is made of (RFC 5280, 4.1.2.4; X.501, 9.3 with values distinguished by context).

#include "kovra/asn1_x500name.h"

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_any.h"
#include "kovra/asn1_boolean.h"
#include "kovra/asn1_types.h"
#include "pkix/context_sort.hpp"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_X500Name";

// Context ::= SEQUENCE {
//     contextType    OBJECT IDENTIFIER,
//     contextValues  SET OF ANY,
//     fallback       BOOLEAN DEFAULT FALSE }
constexpr Component context_components[] = {
    required("contextType", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("contextValues", KOVRA_ASN1_TYPE_SET_OF_ANY_1),
    defaulted("fallback", KOVRA_ASN1_TYPE_BOOLEAN, default_false),
};

// SEQUENCE {
//     distingAttrValue  [0] EXPLICIT ANY OPTIONAL,
//     contextList       SET OF Context }
constexpr Component context_item_components[] = {
    optional("distingAttrValue", KOVRA_ASN1_TYPE_ANY, explicit_tag(0)),
    required("contextList", KOVRA_ASN1_TYPE_CONTEXT_LIST),
};

// AttributeTypeAndDistinguishedValue ::= SEQUENCE {
//     type                  OBJECT IDENTIFIER,
//     value                 ANY,
//     primaryDistinguished  BOOLEAN DEFAULT TRUE,
//     valuesWithContext     SET OF SEQUENCE { ... } OPTIONAL }
constexpr Component type_and_value_components[] = {
    required("type", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("value", KOVRA_ASN1_TYPE_ANY),
    defaulted("primaryDistinguished", KOVRA_ASN1_TYPE_BOOLEAN, default_true),
    optional("valuesWithContext", KOVRA_ASN1_TYPE_DN_VALUES_WITH_CONTEXT),
};

// AttributeTypeAndValue ::= SEQUENCE { type, value }, the same record without what X.501 adds.
bool is_plain(const Structure &record) {
    return record.slot(slot_of(type_and_value_components, "valuesWithContext")) == nullptr &&
           kovra_asn1_boolean_istrue(record.slot(slot_of(type_and_value_components, "primaryDistinguished"))) == 1;
}

// Name ::= SEQUENCE OF RelativeDistinguishedName
constexpr ListShape rdn_sequence_shape = {.element = KOVRA_ASN1_TYPE_RELATIVE_DISTINGUISHED_NAME};
constexpr Type rdn_sequence = {KOVRA_ASN1_TYPE_NAME, Form::constructed,  tag::sequence, 0x1024a,
                               &list_operations,     &rdn_sequence_shape};
constexpr Component name_components[] = {required("rdnSequence", KOVRA_ASN1_TYPE_NAME)};

} // namespace

constexpr StructureShape x500_context = structure(source, context_components);
constexpr ListShape context_list = {.element = KOVRA_ASN1_TYPE_CONTEXT};
constexpr StructureShape dn_values_with_context_item = structure(source, context_item_components);
constexpr ListShape dn_values_with_context = {.element = KOVRA_ASN1_TYPE_DN_VALUES_WITH_CONTEXT_ITEM};
constexpr StructureShape attribute_type_and_distinguished_value = structure(source, type_and_value_components);
constexpr StructureShape attribute_type_and_value =
    restricted(attribute_type_and_distinguished_value, is_plain, 0x10274, LengthOfRefused::none);
// RelativeDistinguishedName ::= SET OF AttributeTypeAndDistinguishedValue
constexpr ListShape relative_distinguished_name = {.element = KOVRA_ASN1_TYPE_ATTRIBUTE_TYPE_AND_DISTINGUISHED_VALUE};
constexpr StructureShape x500_name = list_structure(source, name_components, rdn_sequence);

namespace {

List *rdns_of(const kovra_asn1_value *name) {
    return static_cast<List *>(component(x500_name, name, 0));
}

} // namespace

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_x500name_new(void) noexcept {
    Structure *name = new_structure(x500_name);
    if (name == nullptr)
        return nullptr;
    name->slots[0] = new_list(*name->arena);
    if (name->slots[0] != nullptr)
        return name;
    Arena::destroy(name->arena);
    return nullptr;
}

int32_t kovra_x500name_addrdn(kovra_asn1_value *name, kovra_asn1_value *rdn, int32_t copy) noexcept {
    Structure *record = as_structure(x500_name, name);
    Value *list = as<List>(rdn);
    if (record == nullptr || list == nullptr)
        return 0;
    if (copy != 0) {
        list = duplicate(row(KOVRA_ASN1_TYPE_RELATIVE_DISTINGUISHED_NAME), list, nullptr);
        if (list == nullptr)
            return 0;
    }
    if (!list_append(*rdns_of(name), list)) {
        if (copy != 0)
            Arena::destroy(list->arena);
        return 0;
    }
    drop_kept_encoding(*record);
    return 1;
}

kovra_asn1_value *kovra_x500name_getdn(const kovra_asn1_value *name) noexcept {
    return rdns_of(name);
}

kovra_asn1_value *kovra_x500attrtypedistval_new(const kovra_asn1_value *type, const kovra_asn1_value *value,
                                                const kovra_asn1_value *primary_distinguished,
                                                const kovra_asn1_value *values_with_context) noexcept {
    if (kovra_asn1_any_iseoc(value) == 1)
        return nullptr;
    return construct<attribute_type_and_distinguished_value>(type, value, primary_distinguished, values_with_context);
}

kovra_asn1_value *kovra_pkixattrtypeval_new(const kovra_asn1_value *type, const kovra_asn1_value *value) noexcept {
    return kovra_x500attrtypedistval_new(type, value, nullptr, nullptr);
}

kovra_asn1_value *kovra_x500attrtypedistval_gettype(const kovra_asn1_value *obj) noexcept {
    return part<attribute_type_and_distinguished_value, "type">(obj);
}

kovra_asn1_value *kovra_x500attrtypedistval_getvalue(const kovra_asn1_value *obj) noexcept {
    return part<attribute_type_and_distinguished_value, "value">(obj);
}

kovra_asn1_value *kovra_x500attrtypedistval_getprimedist(const kovra_asn1_value *obj) noexcept {
    return part<attribute_type_and_distinguished_value, "primaryDistinguished">(obj);
}

kovra_asn1_value *kovra_x500attrtypedistval_getcontext(const kovra_asn1_value *obj) noexcept {
    return part<attribute_type_and_distinguished_value, "valuesWithContext">(obj);
}

int32_t kovra_x500attrtypedistval_hascontext(const kovra_asn1_value *obj) noexcept {
    return kovra_x500attrtypedistval_getcontext(obj) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_x500dnvalueswithcontextitem_new(const kovra_asn1_value *disting_attr_value,
                                                        const kovra_asn1_value *contexts) noexcept {
    if (kovra_asn1_any_iseoc(disting_attr_value) == 1)
        return nullptr;
    return construct<dn_values_with_context_item>(disting_attr_value, contexts);
}

kovra_asn1_value *kovra_x500dnvalueswithcontextitem_getdistvalue(const kovra_asn1_value *obj) noexcept {
    return part<dn_values_with_context_item, "distingAttrValue">(obj);
}

int32_t kovra_x500dnvalueswithcontextitem_hasdistvalue(const kovra_asn1_value *obj) noexcept {
    return kovra_x500dnvalueswithcontextitem_getdistvalue(obj) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_x500dnvalueswithcontextitem_getcontexts(const kovra_asn1_value *obj) noexcept {
    return part<dn_values_with_context_item, "contextList">(obj);
}

kovra_asn1_value *kovra_x500context_new(const kovra_asn1_value *context_type, const kovra_asn1_value *context_values,
                                        const kovra_asn1_value *fallback) noexcept {
    return construct<x500_context>(context_type, context_values, fallback);
}

kovra_asn1_value *kovra_x500context_gettype(const kovra_asn1_value *obj) noexcept {
    return part<x500_context, "contextType">(obj);
}

kovra_asn1_value *kovra_x500context_getvalues(const kovra_asn1_value *obj) noexcept {
    return part<x500_context, "contextValues">(obj);
}

kovra_asn1_value *kovra_x500context_getfallback(const kovra_asn1_value *obj) noexcept {
    return part<x500_context, "fallback">(obj);
}

int32_t kovra_x500RDN_sort(kovra_asn1_value *rdn) noexcept {
    auto *list = as<List>(rdn);
    if (list == nullptr)
        return 0;
    for (uint32_t i = 0; i < list->count; ++i) {
        const Value *member = list_element(*list, i);
        if (as_structure(attribute_type_and_distinguished_value, member) == nullptr)
            return 0;
        const Result result = sort_contexts(kovra_x500attrtypedistval_getcontext(member), dn_values_with_context_item,
                                            slot<dn_values_with_context_item, "contextList">,
                                            row(KOVRA_ASN1_TYPE_DN_VALUES_WITH_CONTEXT_ITEM));
        if (result != success)
            return result;
    }
    return sort_list(list, row(KOVRA_ASN1_TYPE_ATTRIBUTE_TYPE_AND_DISTINGUISHED_VALUE));
}

int32_t kovra_x500name_sort(kovra_asn1_value *name) noexcept {
    List *rdns = rdns_of(name);
    if (rdns == nullptr)
        return 0;
    for (uint32_t i = 0; i < rdns->count; ++i)
        if (const Result result = kovra_x500RDN_sort(list_element(*rdns, i)); result != success)
            return result;
    return 1;
}
