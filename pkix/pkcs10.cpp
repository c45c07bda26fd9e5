// CertificationRequest (RFC 2986).

#include "kovra/asn1_pkcs10.h"

#include "core/descriptors.hpp"
#include "core/list.hpp"
#include "core/structure.hpp"
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
namespace info {
enum Slot : uint8_t { version, subject, subject_pk_info, attributes };
constexpr Component components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("subject", KOVRA_ASN1_TYPE_NAME),
    required("subjectPKInfo", KOVRA_ASN1_TYPE_SUBJECT_PUBLIC_KEY_INFO),
    required("attributes", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(0)).only_within_content(),
};
} // namespace info

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

constexpr ListShape pkcs10_attributes = {KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTE};
constexpr Structure certification_request_info = structure(source, info::components);
constexpr Structure certification_request = signed_structure(source, request_components);

namespace {

Value *info_component(const kovra_asn1_value *obj, uint8_t slot) {
    return component(certification_request_info, component(certification_request, obj, signed_object::to_be_signed),
                     slot);
}

} // namespace

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs10certreqinfo_new(const kovra_asn1_value *version, const kovra_asn1_value *subject,
                                              const kovra_asn1_value *subject_pk_info,
                                              const kovra_asn1_value *attributes) noexcept {
    return construct(certification_request_info, version, subject, subject_pk_info, attributes);
}

kovra_asn1_value *kovra_pkcs10certreq_create(const kovra_asn1_value *request_info,
                                             const kovra_asn1_value *signature_algorithm,
                                             const kovra_asn1_value *signature) noexcept {
    return assemble(certification_request, KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST, request_info, signature_algorithm,
                    signature);
}

kovra_asn1_value *kovra_pkcs10certreq_new(const void *data, int32_t length, kovra_err_ctx *ctx) noexcept {
    return load(here(), armour, data, length, ctx);
}

int32_t kovra_pkcs10certreq_gettbsocts(kovra_asn1_value *obj, void *buffer, int32_t *length_in_out) noexcept {
    return copy_signed_octets(as_record(certification_request, obj), buffer, length_in_out);
}

kovra_asn1_value *kovra_pkcs10certreq_getversion(const kovra_asn1_value *obj) noexcept {
    return info_component(obj, info::version);
}

kovra_asn1_value *kovra_pkcs10certreq_getsubject(const kovra_asn1_value *obj) noexcept {
    return info_component(obj, info::subject);
}

kovra_asn1_value *kovra_pkcs10certreq_getpubkey(const kovra_asn1_value *obj) noexcept {
    return info_component(obj, info::subject_pk_info);
}

kovra_asn1_value *kovra_pkcs10certreq_getattrs(const kovra_asn1_value *obj) noexcept {
    return info_component(obj, info::attributes);
}

int32_t kovra_pkcs10certreq_hasattrs(const kovra_asn1_value *obj) noexcept {
    return info_component(obj, info::attributes) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_pkcs10certreq_getsignalgo(const kovra_asn1_value *obj) noexcept {
    return component(certification_request, obj, signed_object::signature_algorithm);
}

kovra_asn1_value *kovra_pkcs10certreq_getsignvalue(const kovra_asn1_value *obj) noexcept {
    return component(certification_request, obj, signed_object::signature_value);
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
