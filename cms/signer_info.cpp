// SignerInfo (RFC 5652, 5.3).

#include "core/descriptors.hpp"
#include "core/list.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// SignerInfo ::= SEQUENCE {
//     version             INTEGER,
//     sid                 SignerIdentifier,
//     digestAlgorithm     AlgorithmIdentifier,
//     signedAttrs         [0] IMPLICIT SET OF Attribute OPTIONAL,
//     signatureAlgorithm  AlgorithmIdentifier,
//     signature           OCTET STRING,
//     unsignedAttrs       [1] IMPLICIT SET OF Attribute OPTIONAL }
namespace signer {
enum Slot : uint8_t {
    version,
    identifier,
    digest_algorithm,
    signed_attributes,
    signature_algorithm,
    signature,
    unsigned_attributes,
};
constexpr Component components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("sid", KOVRA_ASN1_TYPE_SIGNER_IDENTIFIER),
    required("digestAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    optional("signedAttrs", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(0)),
    required("signatureAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("signature", KOVRA_ASN1_TYPE_OCTET_STRING),
    optional("unsignedAttrs", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(1)),
};
static_assert(is_sound(components));
} // namespace signer

} // namespace

constexpr Structure signer_info = structure(source, signer::components);
// SignerInfos ::= SET OF SignerInfo
constexpr ListShape signer_infos = {KOVRA_ASN1_TYPE_SIGNER_INFO};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmssignerinfo_new(const kovra_asn1_value *version, const kovra_asn1_value *sid,
                                          const kovra_asn1_value *digest_algorithm,
                                          const kovra_asn1_value *signed_attrs,
                                          const kovra_asn1_value *signature_algorithm,
                                          const kovra_asn1_value *signature,
                                          const kovra_asn1_value *unsigned_attrs) noexcept {
    return construct(signer_info, version, sid, digest_algorithm, signed_attrs, signature_algorithm, signature,
                     unsigned_attrs);
}

kovra_asn1_value *kovra_cmssignerinfo_getversion(const kovra_asn1_value *obj) noexcept {
    return component(signer_info, obj, signer::version);
}

kovra_asn1_value *kovra_cmssignerinfo_getsid(const kovra_asn1_value *obj) noexcept {
    return component(signer_info, obj, signer::identifier);
}

kovra_asn1_value *kovra_cmssignerinfo_getdigestalgo(const kovra_asn1_value *obj) noexcept {
    return component(signer_info, obj, signer::digest_algorithm);
}

kovra_asn1_value *kovra_cmssignerinfo_getsignattrs(const kovra_asn1_value *obj) noexcept {
    return component(signer_info, obj, signer::signed_attributes);
}

int32_t kovra_cmssignerinfo_hassignattrs(const kovra_asn1_value *obj) noexcept {
    return component(signer_info, obj, signer::signed_attributes) != nullptr ? 1 : 0;
}

kovra_asn1_value *kovra_cmssignerinfo_getsignalgo(const kovra_asn1_value *obj) noexcept {
    return component(signer_info, obj, signer::signature_algorithm);
}

kovra_asn1_value *kovra_cmssignerinfo_getsignature(const kovra_asn1_value *obj) noexcept {
    return component(signer_info, obj, signer::signature);
}

kovra_asn1_value *kovra_cmssignerinfo_getunsignattrs(const kovra_asn1_value *obj) noexcept {
    return component(signer_info, obj, signer::unsigned_attributes);
}

int32_t kovra_cmssignerinfo_hasunsignattrs(const kovra_asn1_value *obj) noexcept {
    return component(signer_info, obj, signer::unsigned_attributes) != nullptr ? 1 : 0;
}
