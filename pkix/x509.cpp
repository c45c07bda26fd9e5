// AlgorithmIdentifier, Validity and SubjectPublicKeyInfo (RFC 5280, 4.1).

#include "kovra/asn1_x509.h"

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_X509";

// AlgorithmIdentifier ::= SEQUENCE {
//     algorithm   OBJECT IDENTIFIER,
//     parameters  ANY DEFINED BY algorithm OPTIONAL }
constexpr Component algid_components[] = {
    required("algorithm", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    optional("parameters", KOVRA_ASN1_TYPE_ANY),
};

// Validity ::= SEQUENCE { notBefore Time, notAfter Time }
constexpr Component period_components[] = {
    required("notBefore", KOVRA_ASN1_TYPE_TIME),
    required("notAfter", KOVRA_ASN1_TYPE_TIME),
};

// SubjectPublicKeyInfo ::= SEQUENCE {
//     algorithm         AlgorithmIdentifier,
//     subjectPublicKey  BIT STRING }
constexpr Component spki_components[] = {
    required("algorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("subjectPublicKey", KOVRA_ASN1_TYPE_BIT_STRING),
};

} // namespace

constexpr StructureShape algorithm_identifier = structure(source, algid_components);
constexpr StructureShape validity = structure(source, period_components);
constexpr StructureShape subject_public_key_info = structure(source, spki_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_x509algoid_new(const kovra_asn1_value *algorithm, uint32_t param_type,
                                       const kovra_asn1_value *param_value) noexcept {
    if (algorithm == nullptr || param_type == KOVRA_ASN1_TYPE_END_OF_CONTENTS || param_type >= type_count)
        return nullptr;
    Value *parameters = convert(row(param_type), static_cast<const Value *>(param_value), row(KOVRA_ASN1_TYPE_ANY));
    if (parameters == nullptr)
        return nullptr;
    Structure *record = construct<algorithm_identifier>(algorithm, static_cast<const kovra_asn1_value *>(nullptr));
    if (record != nullptr && store(*record, slot<algorithm_identifier, "parameters">, parameters))
        return record;
    Arena::destroy(parameters->arena);
    if (record != nullptr)
        Arena::destroy(record->arena);
    return nullptr;
}

kovra_asn1_value *kovra_x509algoid_new_without_param(const kovra_asn1_value *algorithm) noexcept {
    return construct<algorithm_identifier>(algorithm, static_cast<const kovra_asn1_value *>(nullptr));
}

int32_t kovra_x509algoid_isnullparam(const kovra_asn1_value *algid) noexcept {
    const auto *parameters = as<Any>(kovra_x509algoid_getparam(algid));
    return parameters != nullptr && parameters->tag_class == Class::universal && parameters->form == Form::primitive &&
                   parameters->tag == tag::null && parameters->length == 0
               ? 1
               : 0;
}

kovra_asn1_value *kovra_x509algoid_getalgo(const kovra_asn1_value *algid) noexcept {
    return part<algorithm_identifier, "algorithm">(algid);
}

kovra_asn1_value *kovra_x509algoid_getparam(const kovra_asn1_value *algid) noexcept {
    return part<algorithm_identifier, "parameters">(algid);
}

int32_t kovra_x509algoid_hasparam(const kovra_asn1_value *algid) noexcept {
    return has_part<algorithm_identifier, "parameters">(algid);
}

kovra_asn1_value *kovra_x509validity_new(const kovra_asn1_value *not_before,
                                         const kovra_asn1_value *not_after) noexcept {
    return construct<validity>(not_before, not_after);
}

kovra_asn1_value *kovra_x509validity_getnotbefore(const kovra_asn1_value *obj) noexcept {
    return part<validity, "notBefore">(obj);
}

kovra_asn1_value *kovra_x509validity_getnotafter(const kovra_asn1_value *obj) noexcept {
    return part<validity, "notAfter">(obj);
}

kovra_asn1_value *kovra_x509subjpubkeyinfo_new(const kovra_asn1_value *algorithm,
                                               const kovra_asn1_value *subject_public_key) noexcept {
    return construct<subject_public_key_info>(algorithm, subject_public_key);
}

kovra_asn1_value *kovra_x509subjpubkeyinfo_getalgo(const kovra_asn1_value *obj) noexcept {
    return part<subject_public_key_info, "algorithm">(obj);
}

kovra_asn1_value *kovra_x509subjpubkeyinfo_getpubkey(const kovra_asn1_value *obj) noexcept {
    return part<subject_public_key_info, "subjectPublicKey">(obj);
}
