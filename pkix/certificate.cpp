// Certificate and CertificatePair (RFC 5280, 4.1; X.509, 11.2).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_types.h"
#include "kovra/asn1_x509.h"
#include "pkix/signed.hpp"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_X509";
Site here(int32_t line = __builtin_LINE()) {
    return {source, line};
}

// TBSCertificate ::= SEQUENCE {
//     version               [0] EXPLICIT INTEGER DEFAULT v1(0),
//     serialNumber          INTEGER,
//     signature             AlgorithmIdentifier,
//     issuer                Name,
//     validity              Validity,
//     subject               Name,
//     subjectPublicKeyInfo  SubjectPublicKeyInfo,
//     issuerUniqueID        [1] IMPLICIT BIT STRING OPTIONAL,
//     subjectUniqueID       [2] IMPLICIT BIT STRING OPTIONAL,
//     extensions            [3] EXPLICIT Extensions OPTIONAL }
// No version is tied to the components that follow it.
constexpr Component tbs_components[] = {
    defaulted("version", KOVRA_ASN1_TYPE_INTEGER, default_zero, explicit_tag(0)),
    required("serialNumber", KOVRA_ASN1_TYPE_INTEGER),
    required("signature", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("issuer", KOVRA_ASN1_TYPE_NAME),
    required("validity", KOVRA_ASN1_TYPE_VALIDITY),
    required("subject", KOVRA_ASN1_TYPE_NAME),
    required("subjectPublicKeyInfo", KOVRA_ASN1_TYPE_SUBJECT_PUBLIC_KEY_INFO),
    optional("issuerUniqueID", KOVRA_ASN1_TYPE_BIT_STRING, implicit_tag(1)),
    optional("subjectUniqueID", KOVRA_ASN1_TYPE_BIT_STRING, implicit_tag(2)),
    optional("extensions", KOVRA_ASN1_TYPE_EXTENSIONS, explicit_tag(3)),
};

// Certificate ::= SEQUENCE {
//     tbsCertificate      TBSCertificate,
//     signatureAlgorithm  AlgorithmIdentifier,
//     signatureValue      BIT STRING }
constexpr Component certificate_components[] = {
    required("tbsCertificate", KOVRA_ASN1_TYPE_TBS_CERTIFICATE),
    required("signatureAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("signatureValue", KOVRA_ASN1_TYPE_BIT_STRING),
};

// CertificatePair ::= SEQUENCE {
//     issuedToThisCA  [0] EXPLICIT Certificate OPTIONAL,
//     issuedByThisCA  [1] EXPLICIT Certificate OPTIONAL }
// A certificate that cannot be decoded is reported with the code of the to-be-signed part.
constexpr Component pair_components[] = {
    optional("issuedToThisCA", KOVRA_ASN1_TYPE_CERTIFICATE, explicit_tag(0))
        .decode_code_of(KOVRA_ASN1_TYPE_TBS_CERTIFICATE),
    optional("issuedByThisCA", KOVRA_ASN1_TYPE_CERTIFICATE, explicit_tag(1))
        .decode_code_of(KOVRA_ASN1_TYPE_TBS_CERTIFICATE),
};

constexpr Armour armour = {KOVRA_ASN1_TYPE_CERTIFICATE, "CERTIFICATE", nullptr};

} // namespace

constexpr StructureShape tbs_certificate = structure_with_tested_end(source, tbs_components);
constexpr StructureShape certificate = signed_structure(source, certificate_components);
constexpr StructureShape certificate_pair = structure(source, pair_components);

namespace {

// A component of the signed part.
template <Name name> Value *signed_part(const kovra_asn1_value *obj) {
    return part<tbs_certificate, name>(part<certificate, "tbsCertificate">(obj));
}

} // namespace

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_x509TBSCertificate_new(const kovra_asn1_value *version, const kovra_asn1_value *serial_number,
                                               const kovra_asn1_value *signature, const kovra_asn1_value *issuer,
                                               const kovra_asn1_value *validity_period, const kovra_asn1_value *subject,
                                               const kovra_asn1_value *subject_public_key,
                                               const kovra_asn1_value *issuer_unique_id,
                                               const kovra_asn1_value *subject_unique_id,
                                               const kovra_asn1_value *extension_list) noexcept {
    return construct<tbs_certificate>(version, serial_number, signature, issuer, validity_period, subject,
                                      subject_public_key, issuer_unique_id, subject_unique_id, extension_list);
}

kovra_asn1_value *kovra_x509pubkeycert_create(const kovra_asn1_value *tbs_value,
                                              const kovra_asn1_value *signature_value) noexcept {
    return with_encoding(
        construct<certificate>(tbs_value, part<tbs_certificate, "signature">(tbs_value), signature_value),
        KOVRA_ASN1_TYPE_CERTIFICATE);
}

kovra_asn1_value *kovra_x509pubkeycert_new(const void *data, int32_t length, kovra_err_ctx *ctx) noexcept {
    return load(here(), armour, data, length, ctx);
}

kovra_asn1_value *kovra_x509certpair_new(const kovra_asn1_value *issued_to_this_ca,
                                         const kovra_asn1_value *issued_by_this_ca) noexcept {
    if (issued_to_this_ca == nullptr && issued_by_this_ca == nullptr)
        return nullptr;
    return construct<certificate_pair>(issued_to_this_ca, issued_by_this_ca);
}

int32_t kovra_x509pubkeycert_gettbsocts(kovra_asn1_value *obj, void *buffer, int32_t *length_in_out) noexcept {
    return copy_signed_octets(as_structure(certificate, obj), buffer, length_in_out);
}

kovra_asn1_value *kovra_x509pubkeycert_getversion(const kovra_asn1_value *obj) noexcept {
    return signed_part<"version">(obj);
}

kovra_asn1_value *kovra_x509pubkeycert_getserialno(const kovra_asn1_value *obj) noexcept {
    return signed_part<"serialNumber">(obj);
}

kovra_asn1_value *kovra_x509pubkeycert_getinnersignalgo(const kovra_asn1_value *obj) noexcept {
    return signed_part<"signature">(obj);
}

kovra_asn1_value *kovra_x509pubkeycert_getissuer(const kovra_asn1_value *obj) noexcept {
    return signed_part<"issuer">(obj);
}

kovra_asn1_value *kovra_x509pubkeycert_getvalidity(const kovra_asn1_value *obj) noexcept {
    return signed_part<"validity">(obj);
}

kovra_asn1_value *kovra_x509pubkeycert_getsubject(const kovra_asn1_value *obj) noexcept {
    return signed_part<"subject">(obj);
}

kovra_asn1_value *kovra_x509pubkeycert_getpubkey(const kovra_asn1_value *obj) noexcept {
    return signed_part<"subjectPublicKeyInfo">(obj);
}

int32_t kovra_x509pubkeycert_hasissueruid(const kovra_asn1_value *obj) noexcept {
    return signed_part<"issuerUniqueID">(obj) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_x509pubkeycert_getissueruid(const kovra_asn1_value *obj) noexcept {
    return signed_part<"issuerUniqueID">(obj);
}

int32_t kovra_x509pubkeycert_hassubjectuid(const kovra_asn1_value *obj) noexcept {
    return signed_part<"subjectUniqueID">(obj) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_x509pubkeycert_getsubjectuid(const kovra_asn1_value *obj) noexcept {
    return signed_part<"subjectUniqueID">(obj);
}

int32_t kovra_x509pubkeycert_hasexts(const kovra_asn1_value *obj) noexcept {
    return signed_part<"extensions">(obj) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_x509pubkeycert_getexts(const kovra_asn1_value *obj) noexcept {
    return signed_part<"extensions">(obj);
}

kovra_asn1_value *kovra_x509pubkeycert_getsignalgo(const kovra_asn1_value *obj) noexcept {
    return part<certificate, "signatureAlgorithm">(obj);
}

kovra_asn1_value *kovra_x509pubkeycert_getsignvalue(const kovra_asn1_value *obj) noexcept {
    return part<certificate, "signatureValue">(obj);
}

kovra_asn1_value *kovra_x509certpair_getissuedtothisca(const kovra_asn1_value *obj) noexcept {
    return part<certificate_pair, "issuedToThisCA">(obj);
}

kovra_asn1_value *kovra_x509certpair_getissuedbythisca(const kovra_asn1_value *obj) noexcept {
    return part<certificate_pair, "issuedByThisCA">(obj);
}
