// DigestedData (RFC 5652, 7; PKCS #7, RFC 2315, 12).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_pkcs7.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS7";

// DigestedData ::= SEQUENCE {
//     version          INTEGER,
//     digestAlgorithm  AlgorithmIdentifier,
//     contentInfo      ContentInfo,
//     digest           OCTET STRING }
// The constructor takes a DigestedData as contentInfo, and what it makes cannot be encoded. Only a decoded value has a
// ContentInfo.
constexpr Component digested_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("digestAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("contentInfo", KOVRA_ASN1_TYPE_CONTENT_INFO).copy_as(KOVRA_ASN1_TYPE_DIGESTED_DATA),
    required("digest", KOVRA_ASN1_TYPE_OCTET_STRING),
};

} // namespace

constexpr StructureShape digested_data = structure(source, digested_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs7digesteddata_new(const kovra_asn1_value *version, const kovra_asn1_value *digest_algorithm,
                                              const kovra_asn1_value *content_info_value,
                                              const kovra_asn1_value *digest) noexcept {
    return construct<digested_data>(version, digest_algorithm, content_info_value, digest);
}

kovra_asn1_value *kovra_pkcs7digesteddata_getversion(const kovra_asn1_value *obj) noexcept {
    return part<digested_data, "version">(obj);
}

kovra_asn1_value *kovra_pkcs7digesteddata_getdigestalgo(const kovra_asn1_value *obj) noexcept {
    return part<digested_data, "digestAlgorithm">(obj);
}

kovra_asn1_value *kovra_pkcs7digesteddata_getcontentinfo(const kovra_asn1_value *obj) noexcept {
    return part<digested_data, "contentInfo">(obj);
}

kovra_asn1_value *kovra_pkcs7digesteddata_getdigest(const kovra_asn1_value *obj) noexcept {
    return part<digested_data, "digest">(obj);
}
