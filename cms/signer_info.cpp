// SignerInfo (RFC 5652, 5.3).

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
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
constexpr Component signer_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("sid", KOVRA_ASN1_TYPE_SIGNER_IDENTIFIER),
    required("digestAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    optional("signedAttrs", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(0)),
    required("signatureAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER),
    required("signature", KOVRA_ASN1_TYPE_OCTET_STRING),
    optional("unsignedAttrs", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, implicit_tag(1)),
};

} // namespace

constexpr StructureShape signer_info = structure(source, signer_components);
// SignerInfos ::= SET OF SignerInfo
constexpr ListShape signer_infos = {.element = KOVRA_ASN1_TYPE_SIGNER_INFO};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_cmssignerinfo_new(const kovra_asn1_value *version, const kovra_asn1_value *sid,
                                          const kovra_asn1_value *digest_algorithm,
                                          const kovra_asn1_value *signed_attrs,
                                          const kovra_asn1_value *signature_algorithm,
                                          const kovra_asn1_value *signature,
                                          const kovra_asn1_value *unsigned_attrs) noexcept {
    return construct<signer_info>(version, sid, digest_algorithm, signed_attrs, signature_algorithm, signature,
                                  unsigned_attrs);
}

kovra_asn1_value *kovra_cmssignerinfo_getversion(const kovra_asn1_value *obj) noexcept {
    return part<signer_info, "version">(obj);
}

kovra_asn1_value *kovra_cmssignerinfo_getsid(const kovra_asn1_value *obj) noexcept {
    return part<signer_info, "sid">(obj);
}

kovra_asn1_value *kovra_cmssignerinfo_getdigestalgo(const kovra_asn1_value *obj) noexcept {
    return part<signer_info, "digestAlgorithm">(obj);
}

kovra_asn1_value *kovra_cmssignerinfo_getsignattrs(const kovra_asn1_value *obj) noexcept {
    return part<signer_info, "signedAttrs">(obj);
}

int32_t kovra_cmssignerinfo_hassignattrs(const kovra_asn1_value *obj) noexcept {
    return has_part<signer_info, "signedAttrs">(obj);
}

kovra_asn1_value *kovra_cmssignerinfo_getsignalgo(const kovra_asn1_value *obj) noexcept {
    return part<signer_info, "signatureAlgorithm">(obj);
}

kovra_asn1_value *kovra_cmssignerinfo_getsignature(const kovra_asn1_value *obj) noexcept {
    return part<signer_info, "signature">(obj);
}

kovra_asn1_value *kovra_cmssignerinfo_getunsignattrs(const kovra_asn1_value *obj) noexcept {
    return part<signer_info, "unsignedAttrs">(obj);
}

int32_t kovra_cmssignerinfo_hasunsignattrs(const kovra_asn1_value *obj) noexcept {
    return has_part<signer_info, "unsignedAttrs">(obj);
}
