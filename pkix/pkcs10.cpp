// CertificationRequest (RFC 2986).

#include "kovra/asn1_pkcs10.h"

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_types.h"
#include "kovra/asn1_x500name.h"
#include "pkix/signed.hpp"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS10";
Site here(int32_t line = __builtin_LINE()) {
    return {source, line};
}

// CertificationRequestInfo ::= SEQUENCE {
//     version        INTEGER,
//     subject        Name,
//     subjectPKInfo  SubjectPublicKeyInfo,
//     attributes     [0] IMPLICIT SET OF Attribute }
// The attributes are required, even when there are none.
constexpr Component info_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("subject", KOVRA_ASN1_TYPE_NAME),
    required("subjectPKInfo", KOVRA_ASN1_TYPE_SUBJECT_PUBLIC_KEY_INFO),
    required("attributes", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(0)).missing_at_end(),
};

// CertificationRequest ::= SEQUENCE {
//     certificationRequestInfo  CertificationRequestInfo,
//     signatureAlgorithm        AlgorithmIdentifier,
//     signature                 BIT STRING }
constexpr Component request_components[] = {
    required("certificationRequestInfo", KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST_INFO),
    required("signatureAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("signature", KOVRA_ASN1_TYPE_BIT_STRING),
};

constexpr Armour armour = {KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST, "CERTIFICATE REQUEST", "NEW CERTIFICATE REQUEST"};

} // namespace

constexpr ListShape pkcs10_attributes = {.element = KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTE};
constexpr StructureShape certification_request_info = structure(source, info_components);
constexpr StructureShape certification_request = signed_structure(source, request_components);

namespace {

// A component of the signed part.
template <Name name> Value *signed_part(const kovra_asn1_value *obj) {
    return part<certification_request_info, name>(part<certification_request, "certificationRequestInfo">(obj));
}

} // namespace

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs10certreqinfo_new(const kovra_asn1_value *version, const kovra_asn1_value *subject,
                                              const kovra_asn1_value *subject_pk_info,
                                              const kovra_asn1_value *attributes) noexcept {
    return construct<certification_request_info>(version, subject, subject_pk_info, attributes);
}

kovra_asn1_value *kovra_pkcs10certreq_create(const kovra_asn1_value *request_info,
                                             const kovra_asn1_value *signature_algorithm,
                                             const kovra_asn1_value *signature) noexcept {
    return with_encoding(construct<certification_request>(request_info, signature_algorithm, signature),
                         KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST);
}

kovra_asn1_value *kovra_pkcs10certreq_new(const void *data, int32_t length, kovra_err_ctx *ctx) noexcept {
    return load(here(), armour, data, length, ctx);
}

int32_t kovra_pkcs10certreq_gettbsocts(kovra_asn1_value *obj, void *buffer, int32_t *length_in_out) noexcept {
    return copy_signed_octets(as_structure(certification_request, obj), buffer, length_in_out);
}

kovra_asn1_value *kovra_pkcs10certreq_getversion(const kovra_asn1_value *obj) noexcept {
    return signed_part<"version">(obj);
}

kovra_asn1_value *kovra_pkcs10certreq_getsubject(const kovra_asn1_value *obj) noexcept {
    return signed_part<"subject">(obj);
}

kovra_asn1_value *kovra_pkcs10certreq_getpubkey(const kovra_asn1_value *obj) noexcept {
    return signed_part<"subjectPKInfo">(obj);
}

kovra_asn1_value *kovra_pkcs10certreq_getattrs(const kovra_asn1_value *obj) noexcept {
    return signed_part<"attributes">(obj);
}

int32_t kovra_pkcs10certreq_hasattrs(const kovra_asn1_value *obj) noexcept {
    return signed_part<"attributes">(obj) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_pkcs10certreq_getsignalgo(const kovra_asn1_value *obj) noexcept {
    return part<certification_request, "signatureAlgorithm">(obj);
}

kovra_asn1_value *kovra_pkcs10certreq_getsignvalue(const kovra_asn1_value *obj) noexcept {
    return part<certification_request, "signature">(obj);
}

int32_t kovra_asn1_pkcs10attributes_sort(kovra_asn1_value *attributes) noexcept {
    auto *list = as<List>(attributes);
    if (list == nullptr)
        return 0;
    for (uint32_t i = 0; i < list->count; ++i)
        if (const Result result = kovra_x500attribute_sort(list_element(*list, i)); result != success)
            return result;
    return sort_list(list, row(KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTE));
}
