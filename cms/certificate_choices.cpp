// CertificateChoices, CertificateSet and OtherCertificateFormat (RFC 5652, 10.2.2, 10.2.3, 10.2.5).

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// OtherCertificateFormat ::= SEQUENCE {
//     otherCertFormat  OBJECT IDENTIFIER,
//     otherCert        ANY DEFINED BY otherCertFormat }
constexpr Component other_format_components[] = {
    required("otherCertFormat", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("otherCert", KOVRA_ASN1_TYPE_ANY),
};

// CertificateChoices ::= CHOICE {
//     certificate          Certificate,
//     extendedCertificate  [0] IMPLICIT ExtendedCertificate,
//     v1AttrCert           [1] IMPLICIT AttributeCertificateV1,
//     v2AttrCert           [2] IMPLICIT AttributeCertificateV2,
//     other                [3] IMPLICIT OtherCertificateFormat }
// Extended and attribute certificates are not taken apart: they are lists of any components. A failed decode of `other`
// reports the code of v2AttrCert.
constexpr Component certificate_choice_alternatives[] = {
    required("certificate", KOVRA_ASN1_TYPE_CERTIFICATE),
    required("extendedCertificate", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY_1, implicit_tag(0)).codes(0x10343, 0x10344),
    required("v1AttrCert", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY_1, implicit_tag(1)).codes(0x10345, 0x10346),
    required("v2AttrCert", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY_1, implicit_tag(2)).codes(0x10347, 0x10348),
    required("other", KOVRA_ASN1_TYPE_OTHER_CERTIFICATE_FORMAT, implicit_tag(3)).codes(0x1033f, 0x10348),
};

} // namespace

constexpr StructureShape other_certificate_format = structure(source, other_format_components);
constexpr ChoiceShape certificate_choices = choice(source, certificate_choice_alternatives);
// CertificateSet ::= SET OF CertificateChoices
constexpr ListShape certificate_set = {
    .element = KOVRA_ASN1_TYPE_CERTIFICATE_CHOICES, .reading = ListReading::inlined, .source = source};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmscertchoice_newx509pubkeycert(const kovra_asn1_value *certificate_value) noexcept {
    return construct_choice<certificate_choices, "certificate">(certificate_value);
}

kovra_asn1_value *kovra_cmscertchoice_newothercert(const kovra_asn1_value *other_format_value) noexcept {
    return construct_choice<certificate_choices, "other">(other_format_value);
}

int32_t kovra_cmscertchoice_gettype(const kovra_asn1_value *obj) noexcept {
    return alternative_number(certificate_choices, obj);
}

kovra_asn1_value *kovra_cmscertchoice_getx509pubkeycert(const kovra_asn1_value *obj) noexcept {
    return chosen_value(certificate_choices, obj);
}

kovra_asn1_value *kovra_cmscertchoice_getothercert(const kovra_asn1_value *obj) noexcept {
    return chosen_value(certificate_choices, obj);
}

kovra_asn1_value *kovra_cmsothercertformat_new(const kovra_asn1_value *format, const kovra_asn1_value *value) noexcept {
    return construct<other_certificate_format>(format, value);
}

kovra_asn1_value *kovra_cmsothercertformat_getformat(const kovra_asn1_value *obj) noexcept {
    return part<other_certificate_format, "otherCertFormat">(obj);
}

kovra_asn1_value *kovra_cmsothercertformat_getothercert(const kovra_asn1_value *obj) noexcept {
    return part<other_certificate_format, "otherCert">(obj);
}
