// Certificate policies and their qualifiers, policy mappings and constraints (RFC 5280, 4.2.1.4, 4.2.1.5, 4.2.1.11).

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_extension.h"
#include "kovra/asn1_types.h"
#include "kovra/asn1_x509.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_Extension";

// PolicyInformation ::= SEQUENCE {
//     policyIdentifier  OBJECT IDENTIFIER,
//     policyQualifiers  SEQUENCE OF PolicyQualifierInfo OPTIONAL }
constexpr Component information_components[] = {
    required("policyIdentifier", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    optional("policyQualifiers", KOVRA_ASN1_TYPE_POLICY_QUALIFIERS),
};

// PolicyQualifierInfo ::= SEQUENCE {
//     policyQualifierId  OBJECT IDENTIFIER,
//     qualifier          ANY DEFINED BY policyQualifierId OPTIONAL }
// Its records are AlgorithmIdentifiers, and so is the module that failures name.
constexpr Component qualifier_components[] = {
    required("policyQualifierId", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    optional("qualifier", KOVRA_ASN1_TYPE_ANY),
};

// NoticeReference ::= SEQUENCE {
//     organization   DisplayText,
//     noticeNumbers  SEQUENCE OF INTEGER }
constexpr Component reference_components[] = {
    required("organization", KOVRA_ASN1_TYPE_DISPLAY_TEXT),
    required("noticeNumbers", KOVRA_ASN1_TYPE_NOTICE_NUMBERS),
};

// UserNotice ::= SEQUENCE {
//     noticeRef     NoticeReference OPTIONAL,
//     explicitText  DisplayText OPTIONAL }
constexpr Component notice_components[] = {
    optional("noticeRef", KOVRA_ASN1_TYPE_NOTICE_REFERENCE),
    optional("explicitText", KOVRA_ASN1_TYPE_DISPLAY_TEXT),
};

// PolicyMapping ::= SEQUENCE {
//     issuerDomainPolicy   OBJECT IDENTIFIER,
//     subjectDomainPolicy  OBJECT IDENTIFIER }
constexpr Component mapping_components[] = {
    required("issuerDomainPolicy", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("subjectDomainPolicy", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
};

// PolicyConstraints ::= SEQUENCE {
//     requireExplicitPolicy  [0] IMPLICIT INTEGER OPTIONAL,
//     inhibitPolicyMapping   [1] IMPLICIT INTEGER OPTIONAL }
constexpr Component constraints_components[] = {
    optional("requireExplicitPolicy", KOVRA_ASN1_TYPE_INTEGER, implicit_tag(0)),
    optional("inhibitPolicyMapping", KOVRA_ASN1_TYPE_INTEGER, implicit_tag(1)),
};

} // namespace

constexpr ListShape policy_qualifiers = {.element = KOVRA_ASN1_TYPE_POLICY_QUALIFIER_INFO};
constexpr StructureShape policy_qualifier_info = alike("ASN1_X509", qualifier_components, algorithm_identifier);
constexpr StructureShape policy_information = structure(source, information_components);
constexpr ListShape certificate_policies = {.element = KOVRA_ASN1_TYPE_POLICY_INFORMATION};
// DisplayText ::= CHOICE { ia5String, visibleString, bmpString, utf8String }
constexpr StringChoiceShape display_text = {source, 1U << 12 | 1U << 22 | 1U << 26 | 1U << 30};
constexpr ListShape notice_numbers = {.element = KOVRA_ASN1_TYPE_INTEGER};
constexpr StructureShape notice_reference = structure(source, reference_components);
constexpr StructureShape user_notice = structure(source, notice_components);
constexpr StructureShape policy_mapping = structure(source, mapping_components);
constexpr ListShape policy_mappings = {.element = KOVRA_ASN1_TYPE_POLICY_MAPPING};
constexpr StructureShape policy_constraints = structure(source, constraints_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_x509polqualifierinfo_new(const kovra_asn1_value *policy_qualifier_id,
                                                 const kovra_asn1_value *qualifier) noexcept {
    return construct<policy_qualifier_info>(policy_qualifier_id, qualifier);
}

kovra_asn1_value *kovra_x509polqualifierinfo_getid(const kovra_asn1_value *obj) noexcept {
    return part<policy_qualifier_info, "policyQualifierId">(obj);
}

kovra_asn1_value *kovra_x509polqualifierinfo_getqualifier(const kovra_asn1_value *obj) noexcept {
    return part<policy_qualifier_info, "qualifier">(obj);
}

kovra_asn1_value *kovra_x509policyinfo_new(const kovra_asn1_value *policy_identifier,
                                           const kovra_asn1_value *qualifiers) noexcept {
    return construct<policy_information>(policy_identifier, qualifiers);
}

kovra_asn1_value *kovra_x509policyinfo_getid(const kovra_asn1_value *obj) noexcept {
    return part<policy_information, "policyIdentifier">(obj);
}

kovra_asn1_value *kovra_x509policyinfo_getqualifiers(const kovra_asn1_value *obj) noexcept {
    return part<policy_information, "policyQualifiers">(obj);
}

kovra_asn1_value *kovra_pkixdisplaytext_new(int32_t tag, const kovra_asn1_value *string) noexcept {
    return construct_string_choice(display_text, tag, string);
}

int32_t kovra_pkixdisplaytext_gettype(const kovra_asn1_value *value, int32_t *out_tag) noexcept {
    const auto *text = as<TaggedString>(value);
    if (text == nullptr || out_tag == nullptr)
        return 0;
    *out_tag = text->tag;
    return 1;
}

kovra_asn1_value *kovra_pkixdisplaytext_getstring(const kovra_asn1_value *value) noexcept {
    const auto *text = as<TaggedString>(value);
    return text != nullptr ? text->string : nullptr;
}

kovra_asn1_value *kovra_pkixnoticeref_new(const kovra_asn1_value *organization,
                                          const kovra_asn1_value *numbers) noexcept {
    return construct<notice_reference>(organization, numbers);
}

kovra_asn1_value *kovra_pkixnoticeref_getorg(const kovra_asn1_value *obj) noexcept {
    return part<notice_reference, "organization">(obj);
}

kovra_asn1_value *kovra_pkixnoticeref_getnums(const kovra_asn1_value *obj) noexcept {
    return part<notice_reference, "noticeNumbers">(obj);
}

kovra_asn1_value *kovra_pkixusernotice_new(const kovra_asn1_value *notice_ref,
                                           const kovra_asn1_value *explicit_text) noexcept {
    return construct<user_notice>(notice_ref, explicit_text);
}

kovra_asn1_value *kovra_pkixusernotice_getref(const kovra_asn1_value *obj) noexcept {
    return part<user_notice, "noticeRef">(obj);
}

kovra_asn1_value *kovra_pkixusernotice_gettext(const kovra_asn1_value *obj) noexcept {
    return part<user_notice, "explicitText">(obj);
}

kovra_asn1_value *kovra_x509policymapping_new(const kovra_asn1_value *issuer_domain_policy,
                                              const kovra_asn1_value *subject_domain_policy) noexcept {
    return construct<policy_mapping>(issuer_domain_policy, subject_domain_policy);
}

kovra_asn1_value *kovra_x509policymapping_getissuerpolicy(const kovra_asn1_value *obj) noexcept {
    return part<policy_mapping, "issuerDomainPolicy">(obj);
}

kovra_asn1_value *kovra_x509policymapping_getsubjectpolicy(const kovra_asn1_value *obj) noexcept {
    return part<policy_mapping, "subjectDomainPolicy">(obj);
}

kovra_asn1_value *kovra_x509polcons_new(const kovra_asn1_value *require_explicit_policy,
                                        const kovra_asn1_value *inhibit_policy_mapping) noexcept {
    return construct<policy_constraints>(require_explicit_policy, inhibit_policy_mapping);
}

kovra_asn1_value *kovra_x509polcons_getreqexppol(const kovra_asn1_value *obj) noexcept {
    return part<policy_constraints, "requireExplicitPolicy">(obj);
}

kovra_asn1_value *kovra_x509polcons_getinhibitpolmap(const kovra_asn1_value *obj) noexcept {
    return part<policy_constraints, "inhibitPolicyMapping">(obj);
}
