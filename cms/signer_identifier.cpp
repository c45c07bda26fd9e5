// Who signed, or whom a key is encrypted for: IssuerAndSerialNumber and SignerIdentifier (RFC 5652, 10.2.4, 5.3).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// IssuerAndSerialNumber ::= SEQUENCE {
//     issuer        Name,
//     serialNumber  INTEGER }
constexpr Component issuer_and_serial_components[] = {
    required("issuer", KOVRA_ASN1_TYPE_NAME),
    required("serialNumber", KOVRA_ASN1_TYPE_INTEGER),
};

// SignerIdentifier ::= CHOICE {
//     issuerAndSerialNumber  IssuerAndSerialNumber,
//     subjectKeyIdentifier   [0] IMPLICIT OCTET STRING }
constexpr Component identifier_alternatives[] = {
    required("issuerAndSerialNumber", KOVRA_ASN1_TYPE_ISSUER_AND_SERIAL_NUMBER),
    required("subjectKeyIdentifier", KOVRA_ASN1_TYPE_OCTET_STRING, implicit_tag(0)),
};

} // namespace

constexpr StructureShape issuer_and_serial_number = structure(source, issuer_and_serial_components);
constexpr ChoiceShape signer_identifier = choice(source, identifier_alternatives);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmsissuerandsn_new(const kovra_asn1_value *issuer,
                                           const kovra_asn1_value *serial_number) noexcept {
    return construct<issuer_and_serial_number>(issuer, serial_number);
}

kovra_asn1_value *kovra_cmsissuerandsn_getissuer(const kovra_asn1_value *obj) noexcept {
    return part<issuer_and_serial_number, "issuer">(obj);
}

kovra_asn1_value *kovra_cmsissuerandsn_getsn(const kovra_asn1_value *obj) noexcept {
    return part<issuer_and_serial_number, "serialNumber">(obj);
}

kovra_asn1_value *kovra_cmssignerid_newissuersn(const kovra_asn1_value *issuer_and_serial) noexcept {
    return construct_choice<signer_identifier, "issuerAndSerialNumber">(issuer_and_serial);
}

kovra_asn1_value *kovra_cmssignerid_newsubkeyid(const kovra_asn1_value *key_identifier) noexcept {
    return construct_choice<signer_identifier, "subjectKeyIdentifier">(key_identifier);
}

int32_t kovra_cmssignerid_gettype(const kovra_asn1_value *obj) noexcept {
    return alternative_number(signer_identifier, obj);
}

kovra_asn1_value *kovra_cmssignerid_getissuersn(const kovra_asn1_value *obj) noexcept {
    return chosen_value(signer_identifier, obj);
}

kovra_asn1_value *kovra_cmssignerid_getkeyid(const kovra_asn1_value *obj) noexcept {
    return chosen_value(signer_identifier, obj);
}
