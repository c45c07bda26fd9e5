// Key identifiers and usages, basic constraints, name constraints and directory attributes (RFC 5280, 4.2.1;
// X.509, 9.4).

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_boolean.h"
#include "kovra/asn1_extension.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_Extension";

// AuthorityKeyIdentifier ::= SEQUENCE {
//     keyIdentifier              [0] IMPLICIT OCTET STRING OPTIONAL,
//     authorityCertIssuer        [1] IMPLICIT GeneralNames OPTIONAL,
//     authorityCertSerialNumber  [2] IMPLICIT INTEGER OPTIONAL }
constexpr Component akid_components[] = {
    optional("keyIdentifier", KOVRA_ASN1_TYPE_OCTET_STRING, implicit_tag(0)),
    optional("authorityCertIssuer", KOVRA_ASN1_TYPE_GENERAL_NAMES, implicit_tag(1)),
    optional("authorityCertSerialNumber", KOVRA_ASN1_TYPE_INTEGER, implicit_tag(2)),
};

// PrivateKeyUsagePeriod ::= SEQUENCE {
//     notBefore  [0] IMPLICIT GeneralizedTime OPTIONAL,
//     notAfter   [1] IMPLICIT GeneralizedTime OPTIONAL }
constexpr Component usage_period_components[] = {
    optional("notBefore", KOVRA_ASN1_TYPE_GENERALIZED_TIME, implicit_tag(0)),
    optional("notAfter", KOVRA_ASN1_TYPE_GENERALIZED_TIME, implicit_tag(1)),
};

// BasicConstraints ::= SEQUENCE {
//     cA                 BOOLEAN DEFAULT FALSE,
//     pathLenConstraint  INTEGER OPTIONAL }
constexpr Component basic_components[] = {
    defaulted("cA", KOVRA_ASN1_TYPE_BOOLEAN, default_false),
    optional("pathLenConstraint", KOVRA_ASN1_TYPE_INTEGER),
};

// GeneralSubtree ::= SEQUENCE {
//     base     GeneralName,
//     minimum  [0] IMPLICIT INTEGER DEFAULT 0,
//     maximum  [1] IMPLICIT INTEGER OPTIONAL }
constexpr Component subtree_components[] = {
    required("base", KOVRA_ASN1_TYPE_GENERAL_NAME),
    defaulted("minimum", KOVRA_ASN1_TYPE_INTEGER, default_zero, implicit_tag(0)),
    optional("maximum", KOVRA_ASN1_TYPE_INTEGER, implicit_tag(1)),
};

// NameForms ::= SEQUENCE {
//     basicNameForms  [0] IMPLICIT BIT STRING OPTIONAL,
//     otherNameForms  [1] IMPLICIT SEQUENCE OF OBJECT IDENTIFIER OPTIONAL }
constexpr Component forms_components[] = {
    optional("basicNameForms", KOVRA_ASN1_TYPE_BIT_STRING, implicit_tag(0)),
    optional("otherNameForms", KOVRA_ASN1_TYPE_EXT_KEY_USAGE, implicit_tag(1)).codes(0x102ec, 0x102ed),
};

// NameConstraints ::= SEQUENCE {
//     permittedSubtrees  [0] IMPLICIT GeneralSubtrees OPTIONAL,
//     excludedSubtrees   [1] IMPLICIT GeneralSubtrees OPTIONAL,
//     requiredNameForms  [2] IMPLICIT NameForms OPTIONAL }
constexpr Component names_components[] = {
    optional("permittedSubtrees", KOVRA_ASN1_TYPE_GENERAL_SUBTREES, implicit_tag(0)),
    optional("excludedSubtrees", KOVRA_ASN1_TYPE_GENERAL_SUBTREES, implicit_tag(1)),
    optional("requiredNameForms", KOVRA_ASN1_TYPE_NAME_FORMS, implicit_tag(2)),
};

// The form of RFC 5280 has no requiredNameForms.
bool is_pkix(const Structure &record) {
    return record.slot(slot_of(names_components, "requiredNameForms")) == nullptr;
}

} // namespace

constexpr StructureShape authority_key_identifier = structure(source, akid_components);
constexpr ListShape ext_key_usage = {.element = KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER};
constexpr StructureShape private_key_usage_period = structure(source, usage_period_components);
constexpr ListShape subject_directory_attributes = {.element = KOVRA_ASN1_TYPE_ATTRIBUTE};
constexpr StructureShape basic_constraints = structure(source, basic_components);
constexpr StructureShape general_subtree = structure(source, subtree_components);
constexpr ListShape general_subtrees = {.element = KOVRA_ASN1_TYPE_GENERAL_SUBTREE};
constexpr StructureShape name_forms = structure(source, forms_components);
constexpr StructureShape name_constraints = structure(source, names_components);
constexpr StructureShape pkix_name_constraints = restricted(name_constraints, is_pkix, 0x102cc, LengthOfRefused::none);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_x509akid_new(const kovra_asn1_value *key_identifier,
                                     const kovra_asn1_value *authority_cert_issuer,
                                     const kovra_asn1_value *authority_cert_serial_number) noexcept {
    return construct<authority_key_identifier>(key_identifier, authority_cert_issuer, authority_cert_serial_number);
}

kovra_asn1_value *kovra_x509akid_getkeyid(const kovra_asn1_value *obj) noexcept {
    return part<authority_key_identifier, "keyIdentifier">(obj);
}

kovra_asn1_value *kovra_x509akid_getissuerissuer(const kovra_asn1_value *obj) noexcept {
    return part<authority_key_identifier, "authorityCertIssuer">(obj);
}

kovra_asn1_value *kovra_x509akid_getissuercertsn(const kovra_asn1_value *obj) noexcept {
    return part<authority_key_identifier, "authorityCertSerialNumber">(obj);
}

kovra_asn1_value *kovra_x509privkeyperiod_new(const kovra_asn1_value *not_before,
                                              const kovra_asn1_value *not_after) noexcept {
    if (not_before == nullptr && not_after == nullptr)
        return nullptr;
    return construct<private_key_usage_period>(not_before, not_after);
}

kovra_asn1_value *kovra_x509privkeyperiod_getnotbefore(const kovra_asn1_value *obj) noexcept {
    return part<private_key_usage_period, "notBefore">(obj);
}

kovra_asn1_value *kovra_x509privkeyperiod_getnotafter(const kovra_asn1_value *obj) noexcept {
    return part<private_key_usage_period, "notAfter">(obj);
}

kovra_asn1_value *kovra_x509basicconstraints_new(const kovra_asn1_value *ca,
                                                 const kovra_asn1_value *path_len_constraint) noexcept {
    // The guard makes a TRUE and looks whether there is one, instead of looking at cA: the length is stored for any
    // cA, and the BOOLEAN is never released.
    if (path_len_constraint != nullptr && kovra_asn1_boolean_true() == nullptr)
        return nullptr;
    return construct<basic_constraints>(ca, path_len_constraint);
}

kovra_asn1_value *kovra_x509basicconstraints_getisca(const kovra_asn1_value *obj) noexcept {
    return part<basic_constraints, "cA">(obj);
}

kovra_asn1_value *kovra_x509basicconstraints_getlen(const kovra_asn1_value *obj) noexcept {
    return part<basic_constraints, "pathLenConstraint">(obj);
}

kovra_asn1_value *kovra_x509gensubtree_new(const kovra_asn1_value *base, const kovra_asn1_value *minimum,
                                           const kovra_asn1_value *maximum) noexcept {
    return construct<general_subtree>(base, minimum, maximum);
}

kovra_asn1_value *kovra_x509gensubtree_getbase(const kovra_asn1_value *obj) noexcept {
    return part<general_subtree, "base">(obj);
}

kovra_asn1_value *kovra_x509gensubtree_getmin(const kovra_asn1_value *obj) noexcept {
    return part<general_subtree, "minimum">(obj);
}

kovra_asn1_value *kovra_x509gensubtree_getmax(const kovra_asn1_value *obj) noexcept {
    return part<general_subtree, "maximum">(obj);
}

kovra_asn1_value *kovra_x509nameforms_new(const kovra_asn1_value *basic_name_forms,
                                          const kovra_asn1_value *other_name_forms) noexcept {
    return construct<name_forms>(basic_name_forms, other_name_forms);
}

kovra_asn1_value *kovra_x509nameforms_getbasic(const kovra_asn1_value *obj) noexcept {
    return part<name_forms, "basicNameForms">(obj);
}

kovra_asn1_value *kovra_x509nameforms_getother(const kovra_asn1_value *obj) noexcept {
    return part<name_forms, "otherNameForms">(obj);
}

kovra_asn1_value *kovra_x509namecons_new(const kovra_asn1_value *permitted_subtrees,
                                         const kovra_asn1_value *excluded_subtrees,
                                         const kovra_asn1_value *required_name_forms) noexcept {
    return construct<name_constraints>(permitted_subtrees, excluded_subtrees, required_name_forms);
}

kovra_asn1_value *kovra_x509namecons_getpermit(const kovra_asn1_value *obj) noexcept {
    return part<name_constraints, "permittedSubtrees">(obj);
}

kovra_asn1_value *kovra_x509namecons_getexclude(const kovra_asn1_value *obj) noexcept {
    return part<name_constraints, "excludedSubtrees">(obj);
}

kovra_asn1_value *kovra_x509namecons_getreqforms(const kovra_asn1_value *obj) noexcept {
    return part<name_constraints, "requiredNameForms">(obj);
}
