/** @defgroup asn1_x509 Certificates and CRLs
 * @ingroup kovra_asn1
 *
 * Algorithm identifiers, validity, public keys, certificates and CRLs (RFC 5280; X.509).
 *
 * What holds for every structure, here and in asn1_x500name.h, asn1_attribute.h, asn1_extension.h and asn1_pkcs10.h:
 *
 * A constructor takes one argument for each component, in the order of the ASN.1 definition, each a value of the
 * component's type, and copies it, but for long contents in streams (kovra_asn1_octetstring_newstream). It returns null
 * for a null argument of a required component, for an argument of another kind, and when memory is short. Null leaves
 * an OPTIONAL component out and stands for the default of a DEFAULT one.
 *
 * A getter gives the component, borrowed; null for null, for a value of another kind, and for a component that is
 * absent. A DEFAULT component is never absent. A `has` function tells with 1 or 0 whether an OPTIONAL component is
 * there.
 *
 * A DEFAULT component that equals its default is not written; one that was encoded all the same is accepted. Nothing is
 * required of a version, nor does it decide what else may be there. Under an implicit tag, SEQUENCE and SET are written
 * and read constructed; strings are read in either form.
 *
 * Certificates, CRLs, requests (types 39, 41, 46) and names (29, 30, 32) keep the exact octets they were decoded from
 * and write these again wherever they stand, BER lengths included; a signed object keeps those of its to-be-signed part
 * too. One that was built keeps what is written first. KEPT OCTETS ARE NEVER REFRESHED: a later change of the order, by
 * sorting, does not show. Other structures keep their components and write lengths in DER.
 *
 * Codes of decoding content: 0x10002; 0x1026a (primitive); 0x10001 (a length below -1); 0x10000; then for each
 * component. One that is required, has no tag and stands first or behind a required one is decoded whole: the decode
 * code of its type on top of what that recorded, 0x1020a for another tag included. Of all others the identifier is read
 * first: 0x102e5 when it cannot be read, 0x1020a alone when it begins no component that may stand there, form included,
 * 0x102e7 (length), then the decode code of the component's type on top of what the content recorded. 0x1020b when a
 * component ends behind the declared length, or the last one not at its end; 0x102e9 when there is no end-of-contents
 * at the end of indefinite length (0x1020a when something else begins there and the last component is absent, or the
 * structure is a TBSCertificate or a TBSCertList). Decoding the whole of a type that keeps its encoding: 0x10002; the
 * entries of reading the element with 0x10236 on top, 0x1020a for anything but a constructed SEQUENCE, then those of
 * the content, which sees no octets behind the element (0x10105).
 *
 * Codes of encoding content: 0x10002; 0x10001 (content_length below -1); for each component 0x102ea (the length of a
 * tagged one cannot be had), 0x102e4, 0x102e6, or the encode code of the component's type on top of what it recorded;
 * 0x102e8 (the final 00 00). Encoding the whole when the content length cannot be had: 0x102ea for types that keep
 * their encoding, 0x1020b for others.
 *
 * @{ */
#ifndef KOVRA_ASN1_X509_H
#define KOVRA_ASN1_X509_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_x509algoid_new returns an AlgorithmIdentifier (RFC 5280, 4.1.1.2) with parameters that are given as a type
 * identifier and a value of that type, not as ANY; algorithm is an OBJECT IDENTIFIER. For type 5 (NULL), which has no
 * record, the value is null. Null for type 0 and when the value cannot be encoded or read back as ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509algoid_new(const kovra_asn1_value *algorithm, uint32_t param_type,
                                                                 const kovra_asn1_value *param_value) KOVRA_NOTHROW;

/** kovra_x509algoid_new_without_param returns an AlgorithmIdentifier whose parameters are absent, which is not the same
 * as NULL. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509algoid_new_without_param(const kovra_asn1_value *algorithm)
    KOVRA_NOTHROW;

/** kovra_x509algoid_isnullparam returns 1 when the parameters are a NULL without content; 0 when they are something
 * else or absent. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509algoid_isnullparam(const kovra_asn1_value *algid) KOVRA_NOTHROW;

/** kovra_x509algoid_getalgo returns algorithm, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509algoid_getalgo(const kovra_asn1_value *algid) KOVRA_NOTHROW;

/** kovra_x509algoid_getparam returns parameters, an ANY, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509algoid_getparam(const kovra_asn1_value *algid) KOVRA_NOTHROW;

/** kovra_x509algoid_hasparam tells whether there are parameters, NULL included. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509algoid_hasparam(const kovra_asn1_value *algid) KOVRA_NOTHROW;

/** kovra_x509validity_new returns a Validity (RFC 5280, 4.1.2.5) of two times (type 20), which are not compared. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509validity_new(const kovra_asn1_value *not_before,
                                                                   const kovra_asn1_value *not_after) KOVRA_NOTHROW;

/** kovra_x509validity_getnotbefore returns notBefore, a time. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509validity_getnotbefore(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509validity_getnotafter returns notAfter, a time. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509validity_getnotafter(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509subjpubkeyinfo_new returns a SubjectPublicKeyInfo (RFC 5280, 4.1.2.7) of an AlgorithmIdentifier and a BIT
 * STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509subjpubkeyinfo_new(
    const kovra_asn1_value *algorithm, const kovra_asn1_value *subject_public_key) KOVRA_NOTHROW;

/** kovra_x509subjpubkeyinfo_getalgo returns algorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509subjpubkeyinfo_getalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509subjpubkeyinfo_getpubkey returns subjectPublicKey, a BIT STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509subjpubkeyinfo_getpubkey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509TBSCertificate_new returns a TBSCertificate (RFC 5280, 4.1.2), what a certificate's signature covers:
 * version, an INTEGER that is one less than the version it stands for, null for 0; serialNumber, an INTEGER; signature,
 * an AlgorithmIdentifier; issuer, a Name; validity; subject, a Name; subjectPublicKeyInfo; and, where null leaves them
 * out, issuerUniqueID and subjectUniqueID, BIT STRINGs, and extensions, a list of Extensions. The version is not raised
 * for what needs it. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509TBSCertificate_new(
    const kovra_asn1_value *version, const kovra_asn1_value *serial_number, const kovra_asn1_value *signature,
    const kovra_asn1_value *issuer, const kovra_asn1_value *validity_period, const kovra_asn1_value *subject,
    const kovra_asn1_value *subject_public_key, const kovra_asn1_value *issuer_unique_id,
    const kovra_asn1_value *subject_unique_id, const kovra_asn1_value *extensions) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_create returns a Certificate of a TBSCertificate and the signature bits, a BIT STRING.
 * signatureAlgorithm is a copy of the TBSCertificate's signature. Nothing is signed here: the caller signs the encoding
 * of the TBSCertificate (type 38), which stays what the certificate's to-be-signed octets are. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_x509pubkeycert_create(const kovra_asn1_value *tbs_value, const kovra_asn1_value *signature_value) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_new decodes a certificate from `length` octets, told apart by the first: 30 is DER or BER, the
 * letter M base64 text, which may have white space, a hyphen PEM text with the label CERTIFICATE. All octets must be
 * taken up; those in front of a PEM block and behind it are not looked at. Codes: 0x10002 for null data; 0x10001 for a
 * length below 1; 0x10259 for another first octet, blanks and byte order marks included; 0x10111 when the base64 text
 * and 0x10116 when the PEM text cannot be read; those of decoding type 39; 0x1020b when octets are left. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_new(const void *data, int32_t length,
                                                                     kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_x509certpair_new returns a CertificatePair of cross certificates (X.509, 11.2); either may be null, not both.
 */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509certpair_new(
    const kovra_asn1_value *issued_to_this_ca, const kovra_asn1_value *issued_by_this_ca) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_getversion returns the version, an INTEGER; 0 where the certificate has none, for version 1. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_getserialno returns serialNumber, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_getserialno(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_getinnersignalgo returns signature of the TBSCertificate, an AlgorithmIdentifier. Decoding does
 * not compare it with the outer one. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_getinnersignalgo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509pubkeycert_getissuer returns issuer, a Name. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_getissuer(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_getvalidity returns validity. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_getvalidity(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_getsubject returns subject, a Name. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_getsubject(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_getpubkey returns subjectPublicKeyInfo. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_getpubkey(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_hasissueruid tells whether there is an issuerUniqueID. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509pubkeycert_hasissueruid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_getissueruid returns issuerUniqueID, a BIT STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_getissueruid(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509pubkeycert_hassubjectuid tells whether there is a subjectUniqueID. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509pubkeycert_hassubjectuid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_getsubjectuid returns subjectUniqueID, a BIT STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_getsubjectuid(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509pubkeycert_hasexts tells whether there are extensions. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509pubkeycert_hasexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_getexts returns extensions, a list of Extensions (asn1_extension.h), or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_getexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_getsignalgo returns signatureAlgorithm, which stands outside the signed part. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_getsignalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509pubkeycert_getsignvalue returns signatureValue, a BIT STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509pubkeycert_getsignvalue(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509certpair_getissuedtothisca returns issuedToThisCA, a Certificate, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509certpair_getissuedtothisca(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509certpair_getissuedbythisca returns issuedByThisCA, a Certificate, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509certpair_getissuedbythisca(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509pubkeycert_gettbsocts copies the to-be-signed octets, exactly as they were received, into a buffer of
 * `*length_in_out` octets, stores their number there and returns 1. With a null buffer it stores the number only, and
 * returns 1; with one that is too small it stores the number, copies nothing and returns 0. 0 also for a null
 * certificate or place and when memory is short, with nothing stored. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509pubkeycert_gettbsocts(kovra_asn1_value *obj, void *buffer,
                                                                  int32_t *length_in_out) KOVRA_NOTHROW;

/** kovra_x509TBSCertList_new returns a TBSCertList (RFC 5280, 5.1.2), what a CRL's signature covers: version, an
 * INTEGER, null leaving it out; signature, an AlgorithmIdentifier; issuer, a Name; thisUpdate, a time; nextUpdate, a
 * time or null; revokedCertificates, a list of entries (type 92) or null; crlExtensions, a list of Extensions or null.
 * The list is copied when copy_revoked is not 0. WITH copy_revoked 0 THE LIST ITSELF IS TAKEN OVER, once the function
 * succeeds; when it returns null the list is still the caller's. An empty list is written as an empty SEQUENCE. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509TBSCertList_new(
    const kovra_asn1_value *version, const kovra_asn1_value *signature, const kovra_asn1_value *issuer,
    const kovra_asn1_value *this_update, const kovra_asn1_value *next_update, kovra_asn1_value *revoked_list,
    int32_t copy_revoked, const kovra_asn1_value *crl_extensions) KOVRA_NOTHROW;

/** @name Reasons of a revocation, CRLReason (RFC 5280, 5.3.1)
 * @{ */
#define KOVRA_ASN1_CRL_REASON_UNSPECIFIED 0            /**< unspecified */
#define KOVRA_ASN1_CRL_REASON_KEY_COMPROMISE 1         /**< keyCompromise */
#define KOVRA_ASN1_CRL_REASON_CA_COMPROMISE 2          /**< cACompromise */
#define KOVRA_ASN1_CRL_REASON_AFFILIATION_CHANGED 3    /**< affiliationChanged */
#define KOVRA_ASN1_CRL_REASON_SUPERSEDED 4             /**< superseded */
#define KOVRA_ASN1_CRL_REASON_CESSATION_OF_OPERATION 5 /**< cessationOfOperation */
#define KOVRA_ASN1_CRL_REASON_CERTIFICATE_HOLD 6       /**< certificateHold */
#define KOVRA_ASN1_CRL_REASON_REMOVE_FROM_CRL 8        /**< removeFromCRL */
#define KOVRA_ASN1_CRL_REASON_PRIVILEGE_WITHDRAWN 9    /**< privilegeWithdrawn */
#define KOVRA_ASN1_CRL_REASON_AA_COMPROMISE 10         /**< aACompromise */
/** @} */

/** kovra_x509revcertinfo_new returns an entry of a CRL (RFC 5280, 5.1.2.6): userCertificate, an INTEGER;
 * revocationDate, a time; crlEntryExtensions, a list of Extensions or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_x509revcertinfo_new(const kovra_asn1_value *user_certificate, const kovra_asn1_value *revocation_date,
                          const kovra_asn1_value *crl_entry_extensions) KOVRA_NOTHROW;

/** kovra_x509crl_create returns a CertificateList of a TBSCertList and the signature bits, as
 * kovra_x509pubkeycert_create does a certificate. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509crl_create(const kovra_asn1_value *tbs_value,
                                                                 const kovra_asn1_value *signature_value) KOVRA_NOTHROW;

/** kovra_x509crl_new decodes a CRL as kovra_x509pubkeycert_new does a certificate. The label of PEM text is "X509 CRL"
 * or, where there is no such block, "CRL". 0x10261 stands for another first octet. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509crl_new(const void *data, int32_t length,
                                                              kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_x509crl_hasversion tells whether there is a version. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509crl_hasversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_getversion returns version, an INTEGER, or null: no version is not version 0. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509crl_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_getinnersignalgo returns signature of the TBSCertList, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509crl_getinnersignalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_getissuer returns issuer, a Name. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509crl_getissuer(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_getthisupdate returns thisUpdate, a time. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509crl_getthisupdate(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_hasnextupdate tells whether there is a nextUpdate. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509crl_hasnextupdate(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_getnextupdate returns nextUpdate, a time, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509crl_getnextupdate(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_hasrevcerts tells whether there is a revokedCertificates, which may be empty. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509crl_hasrevcerts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_getrevcerts returns revokedCertificates, a list of entries (type 92), or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509crl_getrevcerts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_hasexts tells whether there are crlExtensions. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509crl_hasexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_getexts returns crlExtensions, a list of Extensions, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509crl_getexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_getsignalgo returns signatureAlgorithm, which stands outside the signed part. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509crl_getsignalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_getsignvalue returns signatureValue, a BIT STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509crl_getsignvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509crl_gettbsocts gives the to-be-signed octets of a CRL as kovra_x509pubkeycert_gettbsocts those of a
 * certificate. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509crl_gettbsocts(kovra_asn1_value *obj, void *buffer,
                                                           int32_t *length_in_out) KOVRA_NOTHROW;

/** kovra_x509revcertinfo_getserilano returns userCertificate, the serial number, an INTEGER. (The name is spelled so.)
 */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509revcertinfo_getserilano(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509revcertinfo_getrevdate returns revocationDate, a time. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509revcertinfo_getrevdate(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509revcertinfo_hasexts tells whether there are crlEntryExtensions. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509revcertinfo_hasexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509revcertinfo_getexts returns crlEntryExtensions, a list of Extensions, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509revcertinfo_getexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
