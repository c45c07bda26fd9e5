// ESSCertID, ESSCertIDv2 and IssuerSerial (RFC 2634, 5.4.1; RFC 5035, 4): which certificate a signer used.

#include <algorithm>
#include <cstring>

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_tsp.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_TSP";

// IssuerSerial ::= SEQUENCE {
//     issuer        GeneralNames,
//     serialNumber  INTEGER }
constexpr Component serial_components[] = {
    required("issuer", KOVRA_ASN1_TYPE_GENERAL_NAMES),
    required("serialNumber", KOVRA_ASN1_TYPE_INTEGER),
};

// ESSCertID ::= SEQUENCE {
//     certHash      OCTET STRING,
//     issuerSerial  IssuerSerial OPTIONAL }
constexpr Component cert_id_components[] = {
    required("certHash", KOVRA_ASN1_TYPE_OCTET_STRING),
    optional("issuerSerial", KOVRA_ASN1_TYPE_ISSUER_SERIAL),
};

// The content octets of id-sha256, 2.16.840.1.101.3.4.2.1.
constexpr uint8_t sha256[] = {0x60, 0x86, 0x48, 0x01, 0x65, 0x03, 0x04, 0x02, 0x01};

Value *make_sha256(Arena &arena) {
    auto *algorithm = new_record<ObjectIdentifier>(arena);
    Structure *record = algorithm != nullptr ? new_structure(arena, algorithm_identifier) : nullptr;
    if (record == nullptr)
        return nullptr;
    algorithm->octets = {sha256, 0, sizeof sha256};
    record->slots[0] = algorithm;
    return record;
}

// The dotted text tells, whatever the parameters: octets of an unfinished arc at the end are no part of it.
bool is_sha256(const Value &value) {
    const auto *algorithm = as<ObjectIdentifier>(component(algorithm_identifier, &value, 0));
    if (algorithm == nullptr)
        return false;
    const uint8_t *octets = algorithm->octets.data(*algorithm->arena);
    const uint32_t length = algorithm->octets.length;
    return length >= sizeof sha256 && std::memcmp(octets, sha256, sizeof sha256) == 0 &&
           std::all_of(octets + sizeof sha256, octets + length, [](uint8_t octet) { return octet >= 0x80; });
}

constexpr Default default_sha256 = {KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, make_sha256, is_sha256};

// ESSCertIDv2 ::= SEQUENCE {
//     hashAlgorithm  AlgorithmIdentifier DEFAULT {algorithm id-sha256},
//     certHash       OCTET STRING,
//     issuerSerial   IssuerSerial OPTIONAL }
constexpr Component cert_id_v2_components[] = {
    defaulted("hashAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, default_sha256),
    required("certHash", KOVRA_ASN1_TYPE_OCTET_STRING),
    optional("issuerSerial", KOVRA_ASN1_TYPE_ISSUER_SERIAL),
};

} // namespace

constexpr StructureShape issuer_serial = structure(source, serial_components);
constexpr StructureShape ess_cert_id = structure(source, cert_id_components);
constexpr StructureShape ess_cert_id_v2 = structure(source, cert_id_v2_components);
// SEQUENCE OF ESSCertID, SEQUENCE OF ESSCertIDv2
constexpr ListShape ess_cert_ids = {.element = KOVRA_ASN1_TYPE_ESS_CERT_ID};
constexpr ListShape ess_cert_ids_v2 = {.element = KOVRA_ASN1_TYPE_ESS_CERT_ID_V2};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_ess_issuerserial_new(const kovra_asn1_value *issuer, const kovra_asn1_value *number) noexcept {
    return construct<issuer_serial>(issuer, number);
}

kovra_asn1_value *kovra_ess_issuerserial_getissuer(const kovra_asn1_value *obj) noexcept {
    return part<issuer_serial, "issuer">(obj);
}

kovra_asn1_value *kovra_ess_issuerserial_getsn(const kovra_asn1_value *obj) noexcept {
    return part<issuer_serial, "serialNumber">(obj);
}

kovra_asn1_value *kovra_ess_certid_new(const kovra_asn1_value *hash, const kovra_asn1_value *issuer) noexcept {
    return construct<ess_cert_id>(hash, issuer);
}

kovra_asn1_value *kovra_ess_certid_getcerthash(const kovra_asn1_value *obj) noexcept {
    return part<ess_cert_id, "certHash">(obj);
}

kovra_asn1_value *kovra_ess_certid_getissuersn(const kovra_asn1_value *obj) noexcept {
    return part<ess_cert_id, "issuerSerial">(obj);
}

kovra_asn1_value *kovra_ess_certidv2_new(const kovra_asn1_value *algorithm, const kovra_asn1_value *hash,
                                         const kovra_asn1_value *issuer) noexcept {
    return construct<ess_cert_id_v2>(algorithm, hash, issuer);
}

kovra_asn1_value *kovra_ess_certidv2_getcerthashalgo(const kovra_asn1_value *obj) noexcept {
    return part<ess_cert_id_v2, "hashAlgorithm">(obj);
}

kovra_asn1_value *kovra_ess_certidv2_getcerthash(const kovra_asn1_value *obj) noexcept {
    return part<ess_cert_id_v2, "certHash">(obj);
}

kovra_asn1_value *kovra_ess_certidv2_getissuersn(const kovra_asn1_value *obj) noexcept {
    return part<ess_cert_id_v2, "issuerSerial">(obj);
}
