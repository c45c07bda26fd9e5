// Distribution points and access descriptions (RFC 5280, 4.2.1.13, 4.2.2.1, 5.2.5; X.509, 15.5).

#include "core/choice.hpp"
#include "core/descriptors.hpp"
#include "core/list.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_boolean.h"
#include "kovra/asn1_extension.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_Extension";

// DistributionPointName ::= CHOICE {
//     fullName                 [0] IMPLICIT GeneralNames,
//     nameRelativeToCRLIssuer  [1] IMPLICIT RelativeDistinguishedName }
namespace point_name {
enum Alternative : uint8_t { full_name, relative_name };
constexpr Component alternatives[] = {
    required("fullName", KOVRA_ASN1_TYPE_GENERAL_NAMES, implicit_tag(0)),
    required("nameRelativeToCRLIssuer", KOVRA_ASN1_TYPE_RELATIVE_DISTINGUISHED_NAME, implicit_tag(1)),
};
static_assert(is_sound(alternatives));
} // namespace point_name

// DistributionPoint ::= SEQUENCE {
//     distributionPoint  [0] EXPLICIT DistributionPointName OPTIONAL,
//     reasons            [1] IMPLICIT BIT STRING OPTIONAL,
//     cRLIssuer          [2] IMPLICIT GeneralNames OPTIONAL }
namespace point {
enum Slot : uint8_t { distribution_point, reasons, crl_issuer };
constexpr Component components[] = {
    optional("distributionPoint", KOVRA_ASN1_TYPE_DISTRIBUTION_POINT_NAME, explicit_tag(0)),
    optional("reasons", KOVRA_ASN1_TYPE_BIT_STRING, implicit_tag(1)),
    optional("cRLIssuer", KOVRA_ASN1_TYPE_GENERAL_NAMES, implicit_tag(2)),
};
static_assert(is_sound(components));
} // namespace point

// AccessDescription ::= SEQUENCE {
//     accessMethod    OBJECT IDENTIFIER,
//     accessLocation  GeneralName }
namespace access {
enum Slot : uint8_t { method, location };
constexpr Component components[] = {
    required("accessMethod", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("accessLocation", KOVRA_ASN1_TYPE_GENERAL_NAME),
};
} // namespace access

// IssuingDistributionPoint ::= SEQUENCE {
//     distributionPoint           [0] EXPLICIT DistributionPointName OPTIONAL,
//     onlyContainsUserCerts       [1] IMPLICIT BOOLEAN DEFAULT FALSE,
//     onlyContainsCACerts         [2] IMPLICIT BOOLEAN DEFAULT FALSE,
//     onlySomeReasons             [3] IMPLICIT BIT STRING OPTIONAL,
//     indirectCRL                 [4] IMPLICIT BOOLEAN DEFAULT FALSE,
//     onlyContainsAttributeCerts  [5] IMPLICIT BOOLEAN DEFAULT FALSE }
namespace idp {
enum Slot : uint8_t {
    distribution_point,
    only_user_certs,
    only_ca_certs,
    only_some_reasons,
    indirect_crl,
    only_attribute_certs,
};
constexpr Component components[] = {
    optional("distributionPoint", KOVRA_ASN1_TYPE_DISTRIBUTION_POINT_NAME, explicit_tag(0)),
    defaulted("onlyContainsUserCerts", KOVRA_ASN1_TYPE_BOOLEAN, default_false, implicit_tag(1)),
    defaulted("onlyContainsCACerts", KOVRA_ASN1_TYPE_BOOLEAN, default_false, implicit_tag(2)),
    optional("onlySomeReasons", KOVRA_ASN1_TYPE_BIT_STRING, implicit_tag(3)),
    defaulted("indirectCRL", KOVRA_ASN1_TYPE_BOOLEAN, default_false, implicit_tag(4)),
    defaulted("onlyContainsAttributeCerts", KOVRA_ASN1_TYPE_BOOLEAN, default_false, implicit_tag(5)),
};
static_assert(is_sound(components));
} // namespace idp

// AAIssuingDistributionPoint ::= SEQUENCE {
//     distributionPoint           [0] EXPLICIT DistributionPointName OPTIONAL,
//     onlySomeReasons             [1] IMPLICIT BIT STRING OPTIONAL,
//     indirectCRL                 [2] IMPLICIT BOOLEAN DEFAULT FALSE,
//     containsUserAttributeCerts  [3] IMPLICIT BOOLEAN DEFAULT TRUE,
//     containsAACerts             [4] IMPLICIT BOOLEAN DEFAULT TRUE,
//     containsSOAPublicKeyCerts   [5] IMPLICIT BOOLEAN DEFAULT TRUE }
namespace aaidp {
enum Slot : uint8_t {
    distribution_point,
    only_some_reasons,
    indirect_crl,
    user_attribute_certs,
    aa_certs,
    soa_public_key_certs,
};
constexpr Component components[] = {
    optional("distributionPoint", KOVRA_ASN1_TYPE_DISTRIBUTION_POINT_NAME, explicit_tag(0)),
    optional("onlySomeReasons", KOVRA_ASN1_TYPE_BIT_STRING, implicit_tag(1)),
    defaulted("indirectCRL", KOVRA_ASN1_TYPE_BOOLEAN, default_false, implicit_tag(2)),
    defaulted("containsUserAttributeCerts", KOVRA_ASN1_TYPE_BOOLEAN, default_true, implicit_tag(3)),
    defaulted("containsAACerts", KOVRA_ASN1_TYPE_BOOLEAN, default_true, implicit_tag(4)),
    defaulted("containsSOAPublicKeyCerts", KOVRA_ASN1_TYPE_BOOLEAN, default_true, implicit_tag(5)),
};
static_assert(is_sound(components));
} // namespace aaidp

} // namespace

constexpr ChoiceShape distribution_point_name = choice(source, point_name::alternatives);
constexpr Structure distribution_point = structure(source, point::components);
constexpr ListShape crl_distribution_points = {KOVRA_ASN1_TYPE_DISTRIBUTION_POINT};
constexpr Structure access_description = structure(source, access::components);
constexpr ListShape information_access = {KOVRA_ASN1_TYPE_ACCESS_DESCRIPTION};
constexpr Structure issuing_distribution_point = structure(source, idp::components);
constexpr Structure aa_issuing_distribution_point = structure(source, aaidp::components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_x509distpointname_new_fullname(const kovra_asn1_value *full_name) noexcept {
    return construct_choice(distribution_point_name, point_name::full_name, full_name);
}

kovra_asn1_value *kovra_x509distpointname_new_relname(const kovra_asn1_value *relative_name) noexcept {
    return construct_choice(distribution_point_name, point_name::relative_name, relative_name);
}

int32_t kovra_x509distpointname_gettype(const kovra_asn1_value *obj, int32_t *out_choice) noexcept {
    const Choice *choice = as_choice(distribution_point_name, obj);
    if (choice == nullptr || out_choice == nullptr)
        return 0;
    *out_choice = static_cast<int32_t>(choice->alternative);
    return 1;
}

kovra_asn1_value *kovra_x509distpointname_getfullname(const kovra_asn1_value *obj) noexcept {
    return alternative(distribution_point_name, obj, point_name::full_name);
}

kovra_asn1_value *kovra_x509distpointname_getrelname(const kovra_asn1_value *obj) noexcept {
    return alternative(distribution_point_name, obj, point_name::relative_name);
}

kovra_asn1_value *kovra_x509distpoint_new(const kovra_asn1_value *point_name, const kovra_asn1_value *reasons,
                                          const kovra_asn1_value *crl_issuer) noexcept {
    return construct(distribution_point, point_name, reasons, crl_issuer);
}

kovra_asn1_value *kovra_x509distpoint_getname(const kovra_asn1_value *obj) noexcept {
    return component(distribution_point, obj, point::distribution_point);
}

kovra_asn1_value *kovra_x509distpoint_getreason(const kovra_asn1_value *obj) noexcept {
    return component(distribution_point, obj, point::reasons);
}

kovra_asn1_value *kovra_x509distpoint_getcrlissuer(const kovra_asn1_value *obj) noexcept {
    return component(distribution_point, obj, point::crl_issuer);
}

kovra_asn1_value *kovra_pkixaccessdesp_new(const kovra_asn1_value *access_method,
                                           const kovra_asn1_value *access_location) noexcept {
    return construct(access_description, access_method, access_location);
}

kovra_asn1_value *kovra_pkixaccessdesp_getmethod(const kovra_asn1_value *obj) noexcept {
    return component(access_description, obj, access::method);
}

kovra_asn1_value *kovra_pkixaccessdesp_getlocate(const kovra_asn1_value *obj) noexcept {
    return component(access_description, obj, access::location);
}

kovra_asn1_value *kovra_pkixidp_new(const kovra_asn1_value *point_name,
                                    const kovra_asn1_value *only_contains_user_certs,
                                    const kovra_asn1_value *only_contains_ca_certs,
                                    const kovra_asn1_value *only_some_reasons,
                                    const kovra_asn1_value *indirect_crl) noexcept {
    if (kovra_asn1_boolean_istrue(only_contains_user_certs) == 1 &&
        kovra_asn1_boolean_istrue(only_contains_ca_certs) == 1)
        return nullptr;
    return construct(issuing_distribution_point, point_name, only_contains_user_certs, only_contains_ca_certs,
                     only_some_reasons, indirect_crl, static_cast<const kovra_asn1_value *>(nullptr));
}

kovra_asn1_value *kovra_pkixidp_getdpname(const kovra_asn1_value *obj) noexcept {
    return component(issuing_distribution_point, obj, idp::distribution_point);
}

kovra_asn1_value *kovra_pkixidp_getonlyusercert(const kovra_asn1_value *obj) noexcept {
    return component(issuing_distribution_point, obj, idp::only_user_certs);
}

kovra_asn1_value *kovra_pkixidp_getonlycacert(const kovra_asn1_value *obj) noexcept {
    return component(issuing_distribution_point, obj, idp::only_ca_certs);
}

kovra_asn1_value *kovra_pkixidp_getonlysomereason(const kovra_asn1_value *obj) noexcept {
    return component(issuing_distribution_point, obj, idp::only_some_reasons);
}

kovra_asn1_value *kovra_pkixidp_getindirectCRL(const kovra_asn1_value *obj) noexcept {
    return component(issuing_distribution_point, obj, idp::indirect_crl);
}

kovra_asn1_value *kovra_pkixidp_getonlyattrcert(const kovra_asn1_value *obj) noexcept {
    return component(issuing_distribution_point, obj, idp::only_attribute_certs);
}

// The first two flags stand in the other order than their components.
kovra_asn1_value *kovra_x509aaidp_new(const kovra_asn1_value *point_name, const kovra_asn1_value *contains_aa_certs,
                                      const kovra_asn1_value *contains_user_attribute_certs,
                                      const kovra_asn1_value *contains_soa_public_key_certs,
                                      const kovra_asn1_value *only_some_reasons,
                                      const kovra_asn1_value *indirect_crl) noexcept {
    return construct(aa_issuing_distribution_point, point_name, only_some_reasons, indirect_crl,
                     contains_user_attribute_certs, contains_aa_certs, contains_soa_public_key_certs);
}

kovra_asn1_value *kovra_x509aaidp_getdpname(const kovra_asn1_value *obj) noexcept {
    return component(aa_issuing_distribution_point, obj, aaidp::distribution_point);
}

kovra_asn1_value *kovra_x509aaidp_getonlysomereason(const kovra_asn1_value *obj) noexcept {
    return component(aa_issuing_distribution_point, obj, aaidp::only_some_reasons);
}

kovra_asn1_value *kovra_x509aaidp_getindirectCRL(const kovra_asn1_value *obj) noexcept {
    return component(aa_issuing_distribution_point, obj, aaidp::indirect_crl);
}

kovra_asn1_value *kovra_x509aaidp_getcontuserattrcert(const kovra_asn1_value *obj) noexcept {
    return component(aa_issuing_distribution_point, obj, aaidp::user_attribute_certs);
}

kovra_asn1_value *kovra_x509aaidp_getcontaacert(const kovra_asn1_value *obj) noexcept {
    return component(aa_issuing_distribution_point, obj, aaidp::aa_certs);
}

kovra_asn1_value *kovra_x509aaidp_getcontsoacert(const kovra_asn1_value *obj) noexcept {
    return component(aa_issuing_distribution_point, obj, aaidp::soa_public_key_certs);
}
