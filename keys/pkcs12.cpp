// Personal information exchange: stores of keys and certificates (PKCS #12, RFC 7292).

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_any.h"
#include "kovra/asn1_pkcs12.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS12";

// INTEGER 1
constexpr uint8_t one[] = {0x02, 0x01, 0x01};
constexpr const Default &default_iterations = default_encoding<KOVRA_ASN1_TYPE_INTEGER, one>;

// PFX ::= SEQUENCE {
//     version   INTEGER,
//     authSafe  ContentInfo,
//     macData   MacData OPTIONAL }
constexpr Component store_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("authSafe", KOVRA_ASN1_TYPE_CONTENT_INFO),
    optional("macData", KOVRA_ASN1_TYPE_MAC_DATA),
};

// MacData ::= SEQUENCE {
//     mac         DigestInfo,
//     macSalt     OCTET STRING,
//     iterations  INTEGER DEFAULT 1 }
constexpr Component mac_components[] = {
    required("mac", KOVRA_ASN1_TYPE_DIGEST_INFO),
    required("macSalt", KOVRA_ASN1_TYPE_OCTET_STRING),
    defaulted("iterations", KOVRA_ASN1_TYPE_INTEGER, default_iterations),
};

// SafeBag ::= SEQUENCE {
//     bagId          OBJECT IDENTIFIER,
//     bagValue       [0] EXPLICIT ANY DEFINED BY bagId,
//     bagAttributes  SET OF Attribute OPTIONAL }
constexpr Component bag_components[] = {
    required("bagId", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("bagValue", KOVRA_ASN1_TYPE_ANY, explicit_tag(0)),
    optional("bagAttributes", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES),
};

// CertBag ::= SEQUENCE {
//     certId     OBJECT IDENTIFIER,
//     certValue  [0] EXPLICIT ANY DEFINED BY certId }
constexpr Component cert_components[] = {
    required("certId", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("certValue", KOVRA_ASN1_TYPE_ANY, explicit_tag(0)),
};

// CRLBag ::= SEQUENCE {
//     crlId     OBJECT IDENTIFIER,
//     crlValue  [0] EXPLICIT ANY DEFINED BY crlId }
constexpr Component crl_components[] = {
    required("crlId", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("crlValue", KOVRA_ASN1_TYPE_ANY, explicit_tag(0)),
};

// SecretBag ::= SEQUENCE {
//     secretTypeId  OBJECT IDENTIFIER,
//     secretValue   [0] EXPLICIT ANY DEFINED BY secretTypeId }
constexpr Component secret_components[] = {
    required("secretTypeId", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("secretValue", KOVRA_ASN1_TYPE_ANY, explicit_tag(0)),
};

// pkcs-12PbeParams ::= SEQUENCE {
//     salt        OCTET STRING,
//     iterations  INTEGER }
constexpr Component pbe_components[] = {
    required("salt", KOVRA_ASN1_TYPE_OCTET_STRING),
    required("iterations", KOVRA_ASN1_TYPE_INTEGER),
};

} // namespace

constexpr StructureShape pfx = structure(source, store_components);
constexpr StructureShape mac_data = structure(source, mac_components);
constexpr StructureShape safe_bag = structure(source, bag_components);
constexpr StructureShape cert_bag = structure(source, cert_components);
constexpr StructureShape crl_bag = structure(source, crl_components);
constexpr StructureShape secret_bag = structure(source, secret_components);
constexpr StructureShape pkcs12_pbe_params = structure(source, pbe_components);
// AuthenticatedSafe ::= SEQUENCE OF ContentInfo
constexpr ListShape authenticated_safe = {.element = KOVRA_ASN1_TYPE_CONTENT_INFO};
// SafeContents ::= SEQUENCE OF SafeBag
constexpr ListShape safe_contents = {.element = KOVRA_ASN1_TYPE_SAFE_BAG};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs12pfx_new(const kovra_asn1_value *version, const kovra_asn1_value *auth_safe,
                                      const kovra_asn1_value *mac) noexcept {
    return construct<pfx>(version, auth_safe, mac);
}

kovra_asn1_value *kovra_pkcs12pfx_getversion(const kovra_asn1_value *obj) noexcept {
    return part<pfx, "version">(obj);
}

kovra_asn1_value *kovra_pkcs12pfx_getauthsafe(const kovra_asn1_value *obj) noexcept {
    return part<pfx, "authSafe">(obj);
}

int32_t kovra_pkcs12pfx_hasmacdata(const kovra_asn1_value *obj) noexcept {
    return has_part<pfx, "macData">(obj);
}

kovra_asn1_value *kovra_pkcs12pfx_getmacdata(const kovra_asn1_value *obj) noexcept {
    return part<pfx, "macData">(obj);
}

kovra_asn1_value *kovra_pkcs12macdata_new(const kovra_asn1_value *digest, const kovra_asn1_value *mac_salt,
                                          const kovra_asn1_value *iterations) noexcept {
    return construct<mac_data>(digest, mac_salt, iterations);
}

kovra_asn1_value *kovra_pkcs12macdata_getmac(const kovra_asn1_value *obj) noexcept {
    return part<mac_data, "mac">(obj);
}

kovra_asn1_value *kovra_pkcs12macdata_getmacsalt(const kovra_asn1_value *obj) noexcept {
    return part<mac_data, "macSalt">(obj);
}

kovra_asn1_value *kovra_pkcs12macdata_getiterations(const kovra_asn1_value *obj) noexcept {
    return part<mac_data, "iterations">(obj);
}

kovra_asn1_value *kovra_pkcs12safebag_new(const kovra_asn1_value *bag_id, const kovra_asn1_value *bag_value,
                                          const kovra_asn1_value *bag_attributes) noexcept {
    if (kovra_asn1_any_iseoc(bag_value) == 1)
        return nullptr;
    return construct<safe_bag>(bag_id, bag_value, bag_attributes);
}

kovra_asn1_value *kovra_pkcs12safebag_getbagid(const kovra_asn1_value *obj) noexcept {
    return part<safe_bag, "bagId">(obj);
}

kovra_asn1_value *kovra_pkcs12safebag_getbagvalue(const kovra_asn1_value *obj) noexcept {
    return part<safe_bag, "bagValue">(obj);
}

int32_t kovra_pkcs12safebag_hasbagattributes(const kovra_asn1_value *obj) noexcept {
    return has_part<safe_bag, "bagAttributes">(obj);
}

kovra_asn1_value *kovra_pkcs12safebag_getbagattributes(const kovra_asn1_value *obj) noexcept {
    return part<safe_bag, "bagAttributes">(obj);
}

kovra_asn1_value *kovra_pkcs12certbag_new(const kovra_asn1_value *cert_id,
                                          const kovra_asn1_value *cert_value) noexcept {
    if (kovra_asn1_any_iseoc(cert_value) == 1)
        return nullptr;
    return construct<cert_bag>(cert_id, cert_value);
}

kovra_asn1_value *kovra_pkcs12certbag_getcertid(const kovra_asn1_value *obj) noexcept {
    return part<cert_bag, "certId">(obj);
}

kovra_asn1_value *kovra_pkcs12certbag_getcertvalue(const kovra_asn1_value *obj) noexcept {
    return part<cert_bag, "certValue">(obj);
}

kovra_asn1_value *kovra_pkcs12crlbag_new(const kovra_asn1_value *crl_id, const kovra_asn1_value *crl_value) noexcept {
    if (kovra_asn1_any_iseoc(crl_value) == 1)
        return nullptr;
    return construct<crl_bag>(crl_id, crl_value);
}

kovra_asn1_value *kovra_pkcs12crlbag_getcrlid(const kovra_asn1_value *obj) noexcept {
    return part<crl_bag, "crlId">(obj);
}

kovra_asn1_value *kovra_pkcs12crlbag_getcrlvalue(const kovra_asn1_value *obj) noexcept {
    return part<crl_bag, "crlValue">(obj);
}

kovra_asn1_value *kovra_pkcs12secretbag_new(const kovra_asn1_value *secret_type_id,
                                            const kovra_asn1_value *secret_value) noexcept {
    if (kovra_asn1_any_iseoc(secret_value) == 1)
        return nullptr;
    return construct<secret_bag>(secret_type_id, secret_value);
}

kovra_asn1_value *kovra_pkcs12secretbag_getsecrettypeid(const kovra_asn1_value *obj) noexcept {
    return part<secret_bag, "secretTypeId">(obj);
}

kovra_asn1_value *kovra_pkcs12secretbag_getsecretvalue(const kovra_asn1_value *obj) noexcept {
    return part<secret_bag, "secretValue">(obj);
}

kovra_asn1_value *kovra_pkcs12pbeparams_new(const kovra_asn1_value *salt, const kovra_asn1_value *iterations) noexcept {
    return construct<pkcs12_pbe_params>(salt, iterations);
}

kovra_asn1_value *kovra_pkcs12pbeparams_getsalt(const kovra_asn1_value *obj) noexcept {
    return part<pkcs12_pbe_params, "salt">(obj);
}

kovra_asn1_value *kovra_pkcs12pbeparams_getiterations(const kovra_asn1_value *obj) noexcept {
    return part<pkcs12_pbe_params, "iterations">(obj);
}
