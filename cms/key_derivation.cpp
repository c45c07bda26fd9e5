// KeySpecificInfo and OtherInfo: what Diffie-Hellman key agreement derives keys from (RFC 2631, 2.1.2).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_CMS";

// KeySpecificInfo ::= SEQUENCE {
//     algorithm  OBJECT IDENTIFIER,
//     counter    OCTET STRING }
// Its records are ResponseBytes of OCSP.
constexpr Component key_info_components[] = {
    required("algorithm", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("counter", KOVRA_ASN1_TYPE_OCTET_STRING),
};

// OtherInfo ::= SEQUENCE {
//     keyInfo      KeySpecificInfo,
//     partyAInfo   [0] EXPLICIT OCTET STRING OPTIONAL,
//     suppPubInfo  [2] EXPLICIT OCTET STRING }
constexpr Component other_components[] = {
    required("keyInfo", KOVRA_ASN1_TYPE_KEY_SPECIFIC_INFO),
    optional("partyAInfo", KOVRA_ASN1_TYPE_OCTET_STRING, explicit_tag(0)),
    required("suppPubInfo", KOVRA_ASN1_TYPE_OCTET_STRING, explicit_tag(2)),
};

} // namespace

constexpr StructureShape key_specific_info = alike(source, key_info_components, ocsp_response_bytes);
constexpr StructureShape dh_other_info = structure(source, other_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_dhkeyspecinfo_new(const kovra_asn1_value *algorithm, const kovra_asn1_value *counter) noexcept {
    return construct<key_specific_info>(algorithm, counter);
}

kovra_asn1_value *kovra_dhkeyspecinfo_getalgo(const kovra_asn1_value *obj) noexcept {
    return part<key_specific_info, "algorithm">(obj);
}

kovra_asn1_value *kovra_dhkeyspecinfo_getcount(const kovra_asn1_value *obj) noexcept {
    return part<key_specific_info, "counter">(obj);
}

kovra_asn1_value *kovra_dhotherinfo_new(const kovra_asn1_value *key_spec, const kovra_asn1_value *party_a_info,
                                        const kovra_asn1_value *supp_pub_info) noexcept {
    return construct<dh_other_info>(key_spec, party_a_info, supp_pub_info);
}

kovra_asn1_value *kovra_dhotherinfo_getkeyspec(const kovra_asn1_value *obj) noexcept {
    return part<dh_other_info, "keyInfo">(obj);
}

kovra_asn1_value *kovra_dhotherinfo_getpartyainfo(const kovra_asn1_value *obj) noexcept {
    return part<dh_other_info, "partyAInfo">(obj);
}

int32_t kovra_dhotherinfo_haspartyainfo(const kovra_asn1_value *obj) noexcept {
    return has_part<dh_other_info, "partyAInfo">(obj);
}

kovra_asn1_value *kovra_dhotherinfo_getsupppubinfo(const kovra_asn1_value *obj) noexcept {
    return part<dh_other_info, "suppPubInfo">(obj);
}
