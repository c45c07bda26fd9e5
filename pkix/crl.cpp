// CertificateList (RFC 5280, 5.1).

#include "core/list.hpp"
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

// TBSCertList ::= SEQUENCE {
//     version              INTEGER OPTIONAL,
//     signature            AlgorithmIdentifier,
//     issuer               Name,
//     thisUpdate           Time,
//     nextUpdate           Time OPTIONAL,
//     revokedCertificates  SEQUENCE OF RevokedCertificate OPTIONAL,
//     crlExtensions        [0] EXPLICIT Extensions OPTIONAL }
// The version is written whatever its value and whatever follows it.
constexpr Component tbs_components[] = {
    optional("version", KOVRA_ASN1_TYPE_INTEGER),
    required("signature", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("issuer", KOVRA_ASN1_TYPE_NAME),
    required("thisUpdate", KOVRA_ASN1_TYPE_TIME),
    optional("nextUpdate", KOVRA_ASN1_TYPE_TIME),
    optional("revokedCertificates", KOVRA_ASN1_TYPE_REVOKED_CERTIFICATES),
    optional("crlExtensions", KOVRA_ASN1_TYPE_EXTENSIONS, explicit_tag(0)),
};

// RevokedCertificate ::= SEQUENCE {
//     userCertificate     INTEGER,
//     revocationDate      Time,
//     crlEntryExtensions  Extensions OPTIONAL }
constexpr Component revoked_components[] = {
    required("userCertificate", KOVRA_ASN1_TYPE_INTEGER),
    required("revocationDate", KOVRA_ASN1_TYPE_TIME),
    optional("crlEntryExtensions", KOVRA_ASN1_TYPE_EXTENSIONS),
};

// CertificateList ::= SEQUENCE {
//     tbsCertList         TBSCertList,
//     signatureAlgorithm  AlgorithmIdentifier,
//     signatureValue      BIT STRING }
constexpr Component certificate_list_components[] = {
    required("tbsCertList", KOVRA_ASN1_TYPE_TBS_CERT_LIST),
    required("signatureAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("signatureValue", KOVRA_ASN1_TYPE_BIT_STRING),
};

constexpr Armour armour = {KOVRA_ASN1_TYPE_CERTIFICATE_LIST, "X509 CRL", "CRL"};

} // namespace

constexpr StructureShape tbs_cert_list = structure_with_tested_end(source, tbs_components);
constexpr StructureShape revoked_certificate = structure(source, revoked_components);
constexpr ListShape revoked_certificates = {.element = KOVRA_ASN1_TYPE_REVOKED_CERTIFICATE};
constexpr StructureShape certificate_list = signed_structure(source, certificate_list_components);

namespace {

// A component of the signed part.
template <Name name> Value *signed_part(const kovra_asn1_value *obj) {
    return part<tbs_cert_list, name>(part<certificate_list, "tbsCertList">(obj));
}

} // namespace

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_x509TBSCertList_new(const kovra_asn1_value *version, const kovra_asn1_value *signature,
                                            const kovra_asn1_value *issuer, const kovra_asn1_value *this_update,
                                            const kovra_asn1_value *next_update, kovra_asn1_value *revoked_list,
                                            int32_t copy_revoked, const kovra_asn1_value *crl_extensions) noexcept {
    const bool is_taken_over = revoked_list != nullptr && copy_revoked == 0;
    const kovra_asn1_value *copied = is_taken_over ? nullptr : revoked_list;
    Structure *record =
        construct<tbs_cert_list>(version, signature, issuer, this_update, next_update, copied, crl_extensions);
    if (record == nullptr || !is_taken_over)
        return record;
    if (auto *list = as<List>(revoked_list);
        list != nullptr && store(*record, slot<tbs_cert_list, "revokedCertificates">, list))
        return record;
    Arena::destroy(record->arena);
    return nullptr;
}

kovra_asn1_value *kovra_x509revcertinfo_new(const kovra_asn1_value *user_certificate,
                                            const kovra_asn1_value *revocation_date,
                                            const kovra_asn1_value *crl_entry_extensions) noexcept {
    return construct<revoked_certificate>(user_certificate, revocation_date, crl_entry_extensions);
}

kovra_asn1_value *kovra_x509crl_create(const kovra_asn1_value *tbs_value,
                                       const kovra_asn1_value *signature_value) noexcept {
    return with_encoding(
        construct<certificate_list>(tbs_value, part<tbs_cert_list, "signature">(tbs_value), signature_value),
        KOVRA_ASN1_TYPE_CERTIFICATE_LIST);
}

kovra_asn1_value *kovra_x509crl_new(const void *data, int32_t length, kovra_err_ctx *ctx) noexcept {
    return load(here(), armour, data, length, ctx);
}

int32_t kovra_x509crl_gettbsocts(kovra_asn1_value *obj, void *buffer, int32_t *length_in_out) noexcept {
    return copy_signed_octets(as_structure(certificate_list, obj), buffer, length_in_out);
}

int32_t kovra_x509crl_hasversion(const kovra_asn1_value *obj) noexcept {
    return signed_part<"version">(obj) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_x509crl_getversion(const kovra_asn1_value *obj) noexcept {
    return signed_part<"version">(obj);
}

kovra_asn1_value *kovra_x509crl_getinnersignalgo(const kovra_asn1_value *obj) noexcept {
    return signed_part<"signature">(obj);
}

kovra_asn1_value *kovra_x509crl_getissuer(const kovra_asn1_value *obj) noexcept {
    return signed_part<"issuer">(obj);
}

kovra_asn1_value *kovra_x509crl_getthisupdate(const kovra_asn1_value *obj) noexcept {
    return signed_part<"thisUpdate">(obj);
}

int32_t kovra_x509crl_hasnextupdate(const kovra_asn1_value *obj) noexcept {
    return signed_part<"nextUpdate">(obj) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_x509crl_getnextupdate(const kovra_asn1_value *obj) noexcept {
    return signed_part<"nextUpdate">(obj);
}

int32_t kovra_x509crl_hasrevcerts(const kovra_asn1_value *obj) noexcept {
    return signed_part<"revokedCertificates">(obj) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_x509crl_getrevcerts(const kovra_asn1_value *obj) noexcept {
    return signed_part<"revokedCertificates">(obj);
}

int32_t kovra_x509crl_hasexts(const kovra_asn1_value *obj) noexcept {
    return signed_part<"crlExtensions">(obj) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_x509crl_getexts(const kovra_asn1_value *obj) noexcept {
    return signed_part<"crlExtensions">(obj);
}

kovra_asn1_value *kovra_x509crl_getsignalgo(const kovra_asn1_value *obj) noexcept {
    return part<certificate_list, "signatureAlgorithm">(obj);
}

kovra_asn1_value *kovra_x509crl_getsignvalue(const kovra_asn1_value *obj) noexcept {
    return part<certificate_list, "signatureValue">(obj);
}

kovra_asn1_value *kovra_x509revcertinfo_getserilano(const kovra_asn1_value *obj) noexcept {
    return part<revoked_certificate, "userCertificate">(obj);
}

kovra_asn1_value *kovra_x509revcertinfo_getrevdate(const kovra_asn1_value *obj) noexcept {
    return part<revoked_certificate, "revocationDate">(obj);
}

int32_t kovra_x509revcertinfo_hasexts(const kovra_asn1_value *obj) noexcept {
    return has_part<revoked_certificate, "crlEntryExtensions">(obj);
}

kovra_asn1_value *kovra_x509revcertinfo_getexts(const kovra_asn1_value *obj) noexcept {
    return part<revoked_certificate, "crlEntryExtensions">(obj);
}
