// RevocationInfoChoice, RevocationInfoChoices and OtherRevocationInfoFormat (RFC 5652, 10.2.1).

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// OtherRevocationInfoFormat ::= SEQUENCE {
//     otherRevInfoFormat  OBJECT IDENTIFIER,
//     otherRevInfo        ANY DEFINED BY otherRevInfoFormat }
// Its records are OtherCertificateFormats.
constexpr Component other_components[] = {
    required("otherRevInfoFormat", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("otherRevInfo", KOVRA_ASN1_TYPE_ANY),
};

// RevocationInfoChoice ::= CHOICE {
//     crl    CertificateList,
//     other  [1] IMPLICIT OtherRevocationInfoFormat }
constexpr Component revocation_choice_alternatives[] = {
    required("crl", KOVRA_ASN1_TYPE_CERTIFICATE_LIST),
    required("other", KOVRA_ASN1_TYPE_OTHER_REVOCATION_INFO_FORMAT, implicit_tag(1)),
};

} // namespace

constexpr StructureShape other_revocation_info_format = alike(source, other_components, other_certificate_format);
constexpr ChoiceShape revocation_info_choice = choice(source, revocation_choice_alternatives);
// RevocationInfoChoices ::= SET OF RevocationInfoChoice
constexpr ListShape revocation_info_choices = {
    .element = KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICE, .reading = ListReading::inlined, .source = source};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmsrevinfochoice_newcrl(const kovra_asn1_value *crl) noexcept {
    return construct_choice<revocation_info_choice, "crl">(crl);
}

kovra_asn1_value *kovra_cmsrevinfochoice_newotherrevinfo(const kovra_asn1_value *other_format_value) noexcept {
    return construct_choice<revocation_info_choice, "other">(other_format_value);
}

int32_t kovra_cmsrevinfochoice_gettype(const kovra_asn1_value *obj) noexcept {
    return alternative_number(revocation_info_choice, obj);
}

kovra_asn1_value *kovra_cmsrevinfochoice_getcrl(const kovra_asn1_value *obj) noexcept {
    return chosen_value(revocation_info_choice, obj);
}

kovra_asn1_value *kovra_cmsrevinfochoice_getotherrevinfo(const kovra_asn1_value *obj) noexcept {
    return chosen_value(revocation_info_choice, obj);
}

kovra_asn1_value *kovra_cmsotherrevinfoformat_new(const kovra_asn1_value *format,
                                                  const kovra_asn1_value *value) noexcept {
    return construct<other_revocation_info_format>(format, value);
}

kovra_asn1_value *kovra_cmsotherrevinfoformat_getformat(const kovra_asn1_value *obj) noexcept {
    return part<other_revocation_info_format, "otherRevInfoFormat">(obj);
}

kovra_asn1_value *kovra_cmsotherrevinfoformat_getotherrevinfo(const kovra_asn1_value *obj) noexcept {
    return part<other_revocation_info_format, "otherRevInfo">(obj);
}
