/** @defgroup asn1_pkcs12 Stores of keys and certificates (PKCS 12)
 * @ingroup kovra_asn1
 *
 * Stores of keys and certificates (PKCS #12, RFC 7292). What holds for all structures stands in asn1_x509.h.
 *
 * A PFX holds a ContentInfo of data or signed data, whose octets are an AuthenticatedSafe (type 114), a list
 * (asn1_list.h) of ContentInfos; the octets of each of these, decrypted by the caller, are SafeContents (type 116), a
 * list of SafeBags. The value of a bag is an ANY, which kovra_asn1_any_toobject gives as what bagId says: a
 * PrivateKeyInfo (103), an EncryptedPrivateKeyInfo (104), a CertBag (117), a CRLBag (118), a SecretBag (119) or
 * SafeContents (116). Both lists may be empty. Neither versions nor identifiers are checked, and no MAC is computed. An
 * end-of-contents marker is not a value: decoding one gives 0x1020a, and constructors return null.
 *
 * @{ */
#ifndef KOVRA_ASN1_PKCS12_H
#define KOVRA_ASN1_PKCS12_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_pkcs12pfx_new returns a PFX (RFC 7292, 4): version, an INTEGER; authSafe, a ContentInfo; macData, a MacData,
 * or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12pfx_new(const kovra_asn1_value *version,
                                                                const kovra_asn1_value *auth_safe,
                                                                const kovra_asn1_value *mac) KOVRA_NOTHROW;

/** kovra_pkcs12pfx_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12pfx_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12pfx_getauthsafe returns authSafe, a ContentInfo. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12pfx_getauthsafe(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12pfx_hasmacdata returns 1 when macData is there, else 0. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs12pfx_hasmacdata(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12pfx_getmacdata returns macData, a MacData, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12pfx_getmacdata(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12macdata_new returns a MacData (RFC 7292, 4): mac, a DigestInfo; macSalt, an OCTET STRING; iterations,
 * an INTEGER, null for 1. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12macdata_new(const kovra_asn1_value *digest,
                                                                    const kovra_asn1_value *mac_salt,
                                                                    const kovra_asn1_value *iterations) KOVRA_NOTHROW;

/** kovra_pkcs12macdata_getmac returns mac, a DigestInfo. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12macdata_getmac(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12macdata_getmacsalt returns macSalt, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12macdata_getmacsalt(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12macdata_getiterations returns iterations, an INTEGER, 1 by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12macdata_getiterations(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs12safebag_new returns a SafeBag (RFC 7292, 4.2): bagId, an OBJECT IDENTIFIER; bagValue, an ANY;
 * bagAttributes, a list of Attributes, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkcs12safebag_new(const kovra_asn1_value *bag_id, const kovra_asn1_value *bag_value,
                        const kovra_asn1_value *bag_attributes) KOVRA_NOTHROW;

/** kovra_pkcs12safebag_getbagid returns bagId, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12safebag_getbagid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12safebag_getbagvalue returns bagValue, an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12safebag_getbagvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12safebag_hasbagattributes returns 1 when bagAttributes is there, else 0. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs12safebag_hasbagattributes(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12safebag_getbagattributes returns bagAttributes, a list of Attributes, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12safebag_getbagattributes(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs12certbag_new returns a CertBag (RFC 7292, 4.2.3): certId, an OBJECT IDENTIFIER; certValue, an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12certbag_new(const kovra_asn1_value *cert_id,
                                                                    const kovra_asn1_value *cert_value) KOVRA_NOTHROW;

/** kovra_pkcs12certbag_getcertid returns certId, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12certbag_getcertid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12certbag_getcertvalue returns certValue, an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12certbag_getcertvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12crlbag_new returns a CRLBag (RFC 7292, 4.2.4): crlId, an OBJECT IDENTIFIER; crlValue, an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12crlbag_new(const kovra_asn1_value *crl_id,
                                                                   const kovra_asn1_value *crl_value) KOVRA_NOTHROW;

/** kovra_pkcs12crlbag_getcrlid returns crlId, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12crlbag_getcrlid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12crlbag_getcrlvalue returns crlValue, an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12crlbag_getcrlvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12secretbag_new returns a SecretBag (RFC 7292, 4.2.5): secretTypeId, an OBJECT IDENTIFIER; secretValue,
 * an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkcs12secretbag_new(const kovra_asn1_value *secret_type_id, const kovra_asn1_value *secret_value) KOVRA_NOTHROW;

/** kovra_pkcs12secretbag_getsecrettypeid returns secretTypeId, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12secretbag_getsecrettypeid(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs12secretbag_getsecretvalue returns secretValue, an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12secretbag_getsecretvalue(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs12pbeparams_new returns pkcs-12PbeParams (RFC 7292, C): salt, an OCTET STRING of any length; iterations,
 * an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12pbeparams_new(const kovra_asn1_value *salt,
                                                                      const kovra_asn1_value *iterations) KOVRA_NOTHROW;

/** kovra_pkcs12pbeparams_getsalt returns salt, an OCTET STRING of any length. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12pbeparams_getsalt(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs12pbeparams_getiterations returns iterations, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs12pbeparams_getiterations(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
