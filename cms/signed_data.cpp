// SignedData (RFC 5652, 5.1; PKCS #7, RFC 2315, 9.1).

#include "core/any.hpp"
#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_pkcs7.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS7";

// SignedData ::= SEQUENCE {
//     version           INTEGER,
//     digestAlgorithms  SET OF AlgorithmIdentifier,
//     contentInfo       ContentInfo,
//     certificates      [0] IMPLICIT CertificateSet OPTIONAL,
//     crls              [1] IMPLICIT RevocationInfoChoices OPTIONAL,
//     signerInfos       SignerInfos }
// The version is not checked against the other components.
constexpr Component signed_message_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("digestAlgorithms", KOVRA_ASN1_TYPE_DIGEST_ALGORITHM_IDENTIFIERS),
    required("contentInfo", KOVRA_ASN1_TYPE_CONTENT_INFO),
    optional("certificates", KOVRA_ASN1_TYPE_CERTIFICATE_SET, implicit_tag(0)),
    optional("crls", KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICES, implicit_tag(1)),
    required("signerInfos", KOVRA_ASN1_TYPE_SIGNER_INFOS),
};

// In CMS the content is an OCTET STRING, in either form, or detached; in PKCS #7 it is anything.
constexpr int32_t not_an_octet_string = 0x10355;
bool is_octet_string_or_absent(const Structure &record) {
    const auto *content = as<Any>(kovra_pkcs7contentinfo_getcontent(part<pkcs7_signed_data, "contentInfo">(&record)));
    return content == nullptr || (content->tag_class == Class::universal && content->tag == tag::octet_string);
}

} // namespace

constexpr StructureShape pkcs7_signed_data = structure(source, signed_message_components);
constexpr StructureShape cms_signed_data =
    restricted(pkcs7_signed_data, is_octet_string_or_absent, not_an_octet_string);
// DigestAlgorithmIdentifiers ::= SET OF AlgorithmIdentifier
constexpr ListShape digest_algorithms = {.element = KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs7signeddata_new(const kovra_asn1_value *version,
                                            const kovra_asn1_value *digest_algorithms_list,
                                            const kovra_asn1_value *content_info_value,
                                            const kovra_asn1_value *certificates, const kovra_asn1_value *crls,
                                            const kovra_asn1_value *signers) noexcept {
    return construct<pkcs7_signed_data>(version, digest_algorithms_list, content_info_value, certificates, crls,
                                        signers);
}

kovra_asn1_value *kovra_pkcs7signeddata_getversion(const kovra_asn1_value *obj) noexcept {
    return part<pkcs7_signed_data, "version">(obj);
}

kovra_asn1_value *kovra_pkcs7signeddata_getdigestalgos(const kovra_asn1_value *obj) noexcept {
    return part<pkcs7_signed_data, "digestAlgorithms">(obj);
}

kovra_asn1_value *kovra_pkcs7signeddata_getcontentinfo(const kovra_asn1_value *obj) noexcept {
    return part<pkcs7_signed_data, "contentInfo">(obj);
}

kovra_asn1_value *kovra_pkcs7signeddata_getcerts(const kovra_asn1_value *obj) noexcept {
    return part<pkcs7_signed_data, "certificates">(obj);
}

int32_t kovra_pkcs7signeddata_hascerts(const kovra_asn1_value *obj) noexcept {
    return has_part<pkcs7_signed_data, "certificates">(obj);
}

kovra_asn1_value *kovra_pkcs7signeddata_getcrls(const kovra_asn1_value *obj) noexcept {
    return part<pkcs7_signed_data, "crls">(obj);
}

int32_t kovra_pkcs7signeddata_hascrls(const kovra_asn1_value *obj) noexcept {
    return has_part<pkcs7_signed_data, "crls">(obj);
}

kovra_asn1_value *kovra_pkcs7signeddata_getsignerinfos(const kovra_asn1_value *obj) noexcept {
    return part<pkcs7_signed_data, "signerInfos">(obj);
}
