// Distribution points and access descriptions (RFC 5280, 4.2.1.13, 4.2.2.1, 5.2.5; X.509, 15.5).

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_boolean.h"
#include "kovra/asn1_extension.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_Extension";

// DistributionPointName ::= CHOICE {
//     fullName                 [0] IMPLICIT GeneralNames,
//     nameRelativeToCRLIssuer  [1] IMPLICIT RelativeDistinguishedName }
constexpr Component point_name_alternatives[] = {
    required("fullName", KOVRA_ASN1_TYPE_GENERAL_NAMES, implicit_tag(0)),
    required("nameRelativeToCRLIssuer", KOVRA_ASN1_TYPE_RELATIVE_DISTINGUISHED_NAME, implicit_tag(1)),
};

// DistributionPoint ::= SEQUENCE {
//     distributionPoint  [0] EXPLICIT DistributionPointName OPTIONAL,
//     reasons            [1] IMPLICIT BIT STRING OPTIONAL,
//     cRLIssuer          [2] IMPLICIT GeneralNames OPTIONAL }
constexpr Component point_components[] = {
    optional("distributionPoint", KOVRA_ASN1_TYPE_DISTRIBUTION_POINT_NAME, explicit_tag(0)),
    optional("reasons", KOVRA_ASN1_TYPE_BIT_STRING, implicit_tag(1)),
    optional("cRLIssuer", KOVRA_ASN1_TYPE_GENERAL_NAMES, implicit_tag(2)),
};

// AccessDescription ::= SEQUENCE {
//     accessMethod    OBJECT IDENTIFIER,
//     accessLocation  GeneralName }
constexpr Component access_components[] = {
    required("accessMethod", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("accessLocation", KOVRA_ASN1_TYPE_GENERAL_NAME),
};

// IssuingDistributionPoint ::= SEQUENCE {
//     distributionPoint           [0] EXPLICIT DistributionPointName OPTIONAL,
//     onlyContainsUserCerts       [1] IMPLICIT BOOLEAN DEFAULT FALSE,
//     onlyContainsCACerts         [2] IMPLICIT BOOLEAN DEFAULT FALSE,
//     onlySomeReasons             [3] IMPLICIT BIT STRING OPTIONAL,
//     indirectCRL                 [4] IMPLICIT BOOLEAN DEFAULT FALSE,
//     onlyContainsAttributeCerts  [5] IMPLICIT BOOLEAN DEFAULT FALSE }
constexpr Component idp_components[] = {
    optional("distributionPoint", KOVRA_ASN1_TYPE_DISTRIBUTION_POINT_NAME, explicit_tag(0)),
    defaulted("onlyContainsUserCerts", KOVRA_ASN1_TYPE_BOOLEAN, default_false, implicit_tag(1)),
    defaulted("onlyContainsCACerts", KOVRA_ASN1_TYPE_BOOLEAN, default_false, implicit_tag(2)),
    optional("onlySomeReasons", KOVRA_ASN1_TYPE_BIT_STRING, implicit_tag(3)),
    defaulted("indirectCRL", KOVRA_ASN1_TYPE_BOOLEAN, default_false, implicit_tag(4)),
    defaulted("onlyContainsAttributeCerts", KOVRA_ASN1_TYPE_BOOLEAN, default_false, implicit_tag(5)),
};

// AAIssuingDistributionPoint ::= SEQUENCE {
//     distributionPoint           [0] EXPLICIT DistributionPointName OPTIONAL,
//     onlySomeReasons             [1] IMPLICIT BIT STRING OPTIONAL,
//     indirectCRL                 [2] IMPLICIT BOOLEAN DEFAULT FALSE,
//     containsUserAttributeCerts  [3] IMPLICIT BOOLEAN DEFAULT TRUE,
//     containsAACerts             [4] IMPLICIT BOOLEAN DEFAULT TRUE,
//     containsSOAPublicKeyCerts   [5] IMPLICIT BOOLEAN DEFAULT TRUE }
constexpr Component aaidp_components[] = {
    optional("distributionPoint", KOVRA_ASN1_TYPE_DISTRIBUTION_POINT_NAME, explicit_tag(0)),
    optional("onlySomeReasons", KOVRA_ASN1_TYPE_BIT_STRING, implicit_tag(1)),
    defaulted("indirectCRL", KOVRA_ASN1_TYPE_BOOLEAN, default_false, implicit_tag(2)),
    defaulted("containsUserAttributeCerts", KOVRA_ASN1_TYPE_BOOLEAN, default_true, implicit_tag(3)),
    defaulted("containsAACerts", KOVRA_ASN1_TYPE_BOOLEAN, default_true, implicit_tag(4)),
    defaulted("containsSOAPublicKeyCerts", KOVRA_ASN1_TYPE_BOOLEAN, default_true, implicit_tag(5)),
};

} // namespace

constexpr ChoiceShape distribution_point_name = choice(source, point_name_alternatives);
constexpr StructureShape distribution_point = structure(source, point_components);
constexpr ListShape crl_distribution_points = {.element = KOVRA_ASN1_TYPE_DISTRIBUTION_POINT};
constexpr StructureShape access_description = structure(source, access_components);
constexpr ListShape information_access = {.element = KOVRA_ASN1_TYPE_ACCESS_DESCRIPTION};
constexpr StructureShape issuing_distribution_point = structure(source, idp_components);
constexpr StructureShape aa_issuing_distribution_point = structure(source, aaidp_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_x509distpointname_new_fullname(const kovra_asn1_value *full_name) noexcept {
    return construct_choice<distribution_point_name, "fullName">(full_name);
}

kovra_asn1_value *kovra_x509distpointname_new_relname(const kovra_asn1_value *relative_name) noexcept {
    return construct_choice<distribution_point_name, "nameRelativeToCRLIssuer">(relative_name);
}

int32_t kovra_x509distpointname_gettype(const kovra_asn1_value *obj, int32_t *out_choice) noexcept {
    const Choice *choice = as_choice(distribution_point_name, obj);
    if (choice == nullptr || out_choice == nullptr)
        return 0;
    *out_choice = static_cast<int32_t>(choice->alternative);
    return 1;
}

kovra_asn1_value *kovra_x509distpointname_getfullname(const kovra_asn1_value *obj) noexcept {
    return chosen<distribution_point_name, "fullName">(obj);
}

kovra_asn1_value *kovra_x509distpointname_getrelname(const kovra_asn1_value *obj) noexcept {
    return chosen<distribution_point_name, "nameRelativeToCRLIssuer">(obj);
}

kovra_asn1_value *kovra_x509distpoint_new(const kovra_asn1_value *point_name, const kovra_asn1_value *reasons,
                                          const kovra_asn1_value *crl_issuer) noexcept {
    return construct<distribution_point>(point_name, reasons, crl_issuer);
}

kovra_asn1_value *kovra_x509distpoint_getname(const kovra_asn1_value *obj) noexcept {
    return part<distribution_point, "distributionPoint">(obj);
}

kovra_asn1_value *kovra_x509distpoint_getreason(const kovra_asn1_value *obj) noexcept {
    return part<distribution_point, "reasons">(obj);
}

kovra_asn1_value *kovra_x509distpoint_getcrlissuer(const kovra_asn1_value *obj) noexcept {
    return part<distribution_point, "cRLIssuer">(obj);
}

kovra_asn1_value *kovra_pkixaccessdesp_new(const kovra_asn1_value *access_method,
                                           const kovra_asn1_value *access_location) noexcept {
    return construct<access_description>(access_method, access_location);
}

kovra_asn1_value *kovra_pkixaccessdesp_getmethod(const kovra_asn1_value *obj) noexcept {
    return part<access_description, "accessMethod">(obj);
}

kovra_asn1_value *kovra_pkixaccessdesp_getlocate(const kovra_asn1_value *obj) noexcept {
    return part<access_description, "accessLocation">(obj);
}

kovra_asn1_value *kovra_pkixidp_new(const kovra_asn1_value *point_name,
                                    const kovra_asn1_value *only_contains_user_certs,
                                    const kovra_asn1_value *only_contains_ca_certs,
                                    const kovra_asn1_value *only_some_reasons,
                                    const kovra_asn1_value *indirect_crl) noexcept {
    if (kovra_asn1_boolean_istrue(only_contains_user_certs) == 1 &&
        kovra_asn1_boolean_istrue(only_contains_ca_certs) == 1)
        return nullptr;
    return construct<issuing_distribution_point>(point_name, only_contains_user_certs, only_contains_ca_certs,
                                                 only_some_reasons, indirect_crl,
                                                 static_cast<const kovra_asn1_value *>(nullptr));
}

kovra_asn1_value *kovra_pkixidp_getdpname(const kovra_asn1_value *obj) noexcept {
    return part<issuing_distribution_point, "distributionPoint">(obj);
}

kovra_asn1_value *kovra_pkixidp_getonlyusercert(const kovra_asn1_value *obj) noexcept {
    return part<issuing_distribution_point, "onlyContainsUserCerts">(obj);
}

kovra_asn1_value *kovra_pkixidp_getonlycacert(const kovra_asn1_value *obj) noexcept {
    return part<issuing_distribution_point, "onlyContainsCACerts">(obj);
}

kovra_asn1_value *kovra_pkixidp_getonlysomereason(const kovra_asn1_value *obj) noexcept {
    return part<issuing_distribution_point, "onlySomeReasons">(obj);
}

kovra_asn1_value *kovra_pkixidp_getindirectCRL(const kovra_asn1_value *obj) noexcept {
    return part<issuing_distribution_point, "indirectCRL">(obj);
}

kovra_asn1_value *kovra_pkixidp_getonlyattrcert(const kovra_asn1_value *obj) noexcept {
    return part<issuing_distribution_point, "onlyContainsAttributeCerts">(obj);
}

// Arguments 2 and 3 are containsAACerts [4] and containsUserAttributeCerts [3], in this order.
kovra_asn1_value *kovra_x509aaidp_new(const kovra_asn1_value *point_name, const kovra_asn1_value *contains_aa_certs,
                                      const kovra_asn1_value *contains_user_attribute_certs,
                                      const kovra_asn1_value *contains_soa_public_key_certs,
                                      const kovra_asn1_value *only_some_reasons,
                                      const kovra_asn1_value *indirect_crl) noexcept {
    return construct<aa_issuing_distribution_point>(point_name, only_some_reasons, indirect_crl,
                                                    contains_user_attribute_certs, contains_aa_certs,
                                                    contains_soa_public_key_certs);
}

kovra_asn1_value *kovra_x509aaidp_getdpname(const kovra_asn1_value *obj) noexcept {
    return part<aa_issuing_distribution_point, "distributionPoint">(obj);
}

kovra_asn1_value *kovra_x509aaidp_getonlysomereason(const kovra_asn1_value *obj) noexcept {
    return part<aa_issuing_distribution_point, "onlySomeReasons">(obj);
}

kovra_asn1_value *kovra_x509aaidp_getindirectCRL(const kovra_asn1_value *obj) noexcept {
    return part<aa_issuing_distribution_point, "indirectCRL">(obj);
}

kovra_asn1_value *kovra_x509aaidp_getcontuserattrcert(const kovra_asn1_value *obj) noexcept {
    return part<aa_issuing_distribution_point, "containsUserAttributeCerts">(obj);
}

kovra_asn1_value *kovra_x509aaidp_getcontaacert(const kovra_asn1_value *obj) noexcept {
    return part<aa_issuing_distribution_point, "containsAACerts">(obj);
}

kovra_asn1_value *kovra_x509aaidp_getcontsoacert(const kovra_asn1_value *obj) noexcept {
    return part<aa_issuing_distribution_point, "containsSOAPublicKeyCerts">(obj);
}
