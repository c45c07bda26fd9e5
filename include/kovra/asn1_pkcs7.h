/** @defgroup asn1_pkcs7 ContentInfo and SignedData
 * @ingroup kovra_asn1
 *
 * ContentInfo, SignedData and DigestedData: messages as PKCS #7 (RFC 2315) and CMS (RFC 5652) have them in common. The
 * parts of a SignedData, and the other messages, stand in asn1_cms.h; what holds for all structures in asn1_x509.h.
 *
 * Nothing is hashed, signed, encrypted or decrypted here: the functions take messages apart and put them together.
 *
 * SignedData has two types over one record, which these functions serve alike. Type 133 takes any content. Type 134
 * takes an OCTET STRING, primitive or constructed, or no content; other content is refused in both directions with
 * 0x10355 ("decode cms encapsulated content info fail"). The whole and content lengths of type 134 are those of 133.
 *
 * A certificate or CRL in a set keeps its exact octets. An ANY does, BER lengths included; what else is in BER is
 * written in DER, but sets are never put in order.
 *
 * @{ */
#ifndef KOVRA_ASN1_PKCS7_H
#define KOVRA_ASN1_PKCS7_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_pkcs7contentinfo_new returns a ContentInfo (type 111; RFC 5652, 3) of an OBJECT IDENTIFIER and the content, an
 * ANY, which null leaves out. kovra_asn1_objecttoany makes the ANY of a SignedData and the like. That the content is of
 * the type that the OBJECT IDENTIFIER names is not looked at. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7contentinfo_new(const kovra_asn1_value *content_type,
                                                                       const kovra_asn1_value *content) KOVRA_NOTHROW;

/** kovra_pkcs7contentinfo_getcontenttype returns contentType, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7contentinfo_getcontenttype(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs7contentinfo_getcontent returns content, an ANY, or null when absent; kovra_asn1_any_toobject reads it as
 * the type that it is of. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7contentinfo_getcontent(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs7contentinfo_hascontent tells whether there is content; detached signatures have none. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs7contentinfo_hascontent(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs7signeddata_new returns a SignedData (types 133 and 134; RFC 5652, 5.1) of version, an INTEGER;
 * digestAlgorithms, a list of AlgorithmIdentifiers (type 126); contentInfo (type 111); and, where null leaves them out,
 * certificates (type 131) and crls (type 132); signerInfos (type 125). A list may be empty: empty certificates are
 * written as A0 00. The version is not raised for what needs it. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7signeddata_new(const kovra_asn1_value *version,
                                                                      const kovra_asn1_value *digest_algorithms_list,
                                                                      const kovra_asn1_value *content_info_value,
                                                                      const kovra_asn1_value *certificates,
                                                                      const kovra_asn1_value *crls,
                                                                      const kovra_asn1_value *signers) KOVRA_NOTHROW;

/** kovra_pkcs7signeddata_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7signeddata_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs7signeddata_getdigestalgos returns digestAlgorithms, a list of AlgorithmIdentifiers. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7signeddata_getdigestalgos(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs7signeddata_getcontentinfo returns contentInfo, a ContentInfo. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7signeddata_getcontentinfo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs7signeddata_getcerts returns certificates, a list of CertificateChoices, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7signeddata_getcerts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs7signeddata_hascerts tells whether there are certificates, be it an empty set. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs7signeddata_hascerts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs7signeddata_getcrls returns crls, a list of RevocationInfoChoices, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7signeddata_getcrls(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs7signeddata_hascrls tells whether there are crls, be it an empty set. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs7signeddata_hascrls(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs7signeddata_getsignerinfos returns signerInfos, a list of SignerInfos. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7signeddata_getsignerinfos(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs7digesteddata_new returns a DigestedData (type 121; RFC 5652, 7) of an INTEGER, an AlgorithmIdentifier, A
 * SECOND DIGESTEDDATA and an OCTET STRING. contentInfo is copied as type 121: a ContentInfo gives null, and a
 * DigestedData is stored, but what holds it cannot be encoded (0x1020b) nor copied. A DigestedData that can be encoded
 * comes from decoding only. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7digesteddata_new(const kovra_asn1_value *version,
                                                                        const kovra_asn1_value *digest_algorithm,
                                                                        const kovra_asn1_value *content_info_value,
                                                                        const kovra_asn1_value *digest) KOVRA_NOTHROW;

/** kovra_pkcs7digesteddata_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7digesteddata_getversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs7digesteddata_getdigestalgo returns digestAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7digesteddata_getdigestalgo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs7digesteddata_getcontentinfo returns contentInfo: a ContentInfo after decoding, a DigestedData after
 * construction. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7digesteddata_getcontentinfo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkcs7digesteddata_getdigest returns digest, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs7digesteddata_getdigest(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
