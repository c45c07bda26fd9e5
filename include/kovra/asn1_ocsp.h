/** @defgroup asn1_ocsp Certificate status (OCSP)
 * @ingroup kovra_asn1
 *
 * Requests and responses of the online certificate status protocol (RFC 6960).
 *
 * What holds for all structures stands in asn1_x509.h. Nothing is signed or verified here, and no status, reason,
 * response type or version is judged: they are numbers and identifiers for the caller. Lists (types 170 and 180, certs)
 * are those of asn1_list.h, of Requests (169), SingleResponses (179) and Certificates (39).
 *
 * A BasicOCSPResponse (type 182) keeps the exact octets of its tbsResponseData, those that were read or those that were
 * written first: they are what the signature covers, and what is written. Nothing else here is kept but what keeps its
 * encoding by itself (names, certificates).
 *
 * What can be read and cannot be written, outside of kept octets:
 *   - a CertStatus of revoked: 0x1020a, 0x10397, and what its holders add. It has a length.
 *   - a ResponderID by key is written as A2, the length of the bare hash, the hash; the OCTET STRING around the hash is
 *     left out, counted by lengths all the same, and wanted when it is read.
 *   - singleExtensions of a SingleResponse are written under [0], where nextUpdate is read; they are read under [1].
 *   - crlTime of a CrlID is written under [1], where crlNum is read; it is read under [2].
 * As constructors copy by writing and reading, what cannot be read back gives null where it is an argument: a revoked
 * CertStatus, a ResponderID by key (unless its hash happens to be an encoded OCTET STRING), a list that holds a
 * SingleResponse with a revoked status or with extensions.
 *
 * Types 176 and 178 are choices: see GeneralName in asn1_extension.h for how they fail. Both types 177 and 178 record
 * 0x10397 and 0x10398, type 175 records 0xaf and 0xb0, without text. In certs a certificate that fails leaves 0x10258
 * or 0x10259 once, and anything but a constructed SEQUENCE behind [0] is 0x1020a.
 *
 * @{ */
#ifndef KOVRA_ASN1_OCSP_H
#define KOVRA_ASN1_OCSP_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_ocsp_certid_new returns a CertID (4.1.1): hashAlgorithm, an AlgorithmIdentifier; issuerNameHash and
 * issuerKeyHash, OCTET STRINGs; serialNumber, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_certid_new(const kovra_asn1_value *hash_algorithm,
                                                                  const kovra_asn1_value *issuer_name_hash,
                                                                  const kovra_asn1_value *issuer_key_hash,
                                                                  const kovra_asn1_value *serial_number) KOVRA_NOTHROW;

/** kovra_ocsp_certid_gethashalgo returns hashAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_certid_gethashalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_certid_getissuernamehash returns issuerNameHash, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_certid_getissuernamehash(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_certid_getissuerkeyhash returns issuerKeyHash, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_certid_getissuerkeyhash(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_certid_getsn returns serialNumber, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_certid_getsn(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_request_new returns a Request (4.1.1), one of those in an OCSPRequest: reqCert, a CertID;
 * singleRequestExtensions, Extensions, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_request_new(
    const kovra_asn1_value *req_cert, const kovra_asn1_value *single_request_extensions) KOVRA_NOTHROW;

/** kovra_ocsp_request_getcertid returns reqCert, a CertID. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_request_getcertid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_request_getexts returns singleRequestExtensions, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_request_getexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_tbsrequest_new returns a TBSRequest (4.1.1): version, an INTEGER, null for 0; requestorName, a
 * GeneralName, or null; requestList (type 170); requestExtensions, or null. An empty list is taken. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_tbsrequest_new(
    const kovra_asn1_value *version, const kovra_asn1_value *requestor_name, const kovra_asn1_value *request_list,
    const kovra_asn1_value *request_extensions) KOVRA_NOTHROW;

/** kovra_ocsp_tbsrequest_getversion returns version, an INTEGER, 0 by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_tbsrequest_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_tbsrequest_getname returns requestorName, a GeneralName, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_tbsrequest_getname(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_tbsrequest_getreqlist returns requestList, a list of Requests. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_tbsrequest_getreqlist(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_tbsrequest_getexts returns requestExtensions, or null; the nonce is one of them. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_tbsrequest_getexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_signature_new returns the Signature of a request (4.1.1): signatureAlgorithm, an AlgorithmIdentifier;
 * signature, a BIT STRING; certs, a list of Certificates, each of which is copied, or null. An empty list is kept and
 * written. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_signature_new(const kovra_asn1_value *signature_algorithm,
                                                                     const kovra_asn1_value *signature,
                                                                     const kovra_asn1_value *certs) KOVRA_NOTHROW;

/** kovra_ocsp_signature_getsignalgo returns signatureAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_signature_getsignalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_signature_getsignature returns signature, a BIT STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_signature_getsignature(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_signature_getcerts returns certs, a list of Certificates, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_signature_getcerts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_ocsprequest_new returns an OCSPRequest (4.1.1): tbsRequest; optionalSignature, a Signature, or null. The
 * octets that are signed are the encoding of the TBSRequest (type 171); those of a request that was received are not
 * kept, and encoding it again gives DER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_ocsprequest_new(
    const kovra_asn1_value *tbs_request, const kovra_asn1_value *optional_signature) KOVRA_NOTHROW;

/** kovra_ocsp_ocsprequest_gettbs returns tbsRequest. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_ocsprequest_gettbs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_ocsprequest_getsignature returns optionalSignature, a Signature, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_ocsprequest_getsignature(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_responsebytes_new returns ResponseBytes (4.2.1): responseType, an OBJECT IDENTIFIER; response, an OCTET
 * STRING, for id-pkix-ocsp-basic the encoding of a BasicOCSPResponse. Neither is compared with the other. A
 * KeySpecificInfo (type 166) is a ResponseBytes with codes of its own; either may be passed for the other. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_ocsp_responsebytes_new(const kovra_asn1_value *response_type, const kovra_asn1_value *response) KOVRA_NOTHROW;

/** kovra_ocsp_responsebytes_gettype returns responseType, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_responsebytes_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_responsebytes_getresponse returns response, an OCTET STRING; kovra_asn1_octetstring_getobject gives the
 * BasicOCSPResponse in it. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_responsebytes_getresponse(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** @name OCSPResponseStatus (4.2.1)
 * @{ */
#define KOVRA_ASN1_OCSP_STATUS_SUCCESSFUL 0        /**< successful */
#define KOVRA_ASN1_OCSP_STATUS_MALFORMED_REQUEST 1 /**< malformedRequest */
#define KOVRA_ASN1_OCSP_STATUS_INTERNAL_ERROR 2    /**< internalError */
#define KOVRA_ASN1_OCSP_STATUS_TRY_LATER 3         /**< tryLater */
#define KOVRA_ASN1_OCSP_STATUS_SIG_REQUIRED 5      /**< sigRequired */
#define KOVRA_ASN1_OCSP_STATUS_UNAUTHORIZED 6      /**< unauthorized */
/** @} */

/** kovra_ocsp_ocspresponse_new returns an OCSPResponse (4.2.1): responseStatus, an ENUMERATED; responseBytes, or null.
 */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_ocspresponse_new(
    const kovra_asn1_value *response_status, const kovra_asn1_value *response_bytes) KOVRA_NOTHROW;

/** kovra_ocsp_ocspresponse_getstatus returns responseStatus, an ENUMERATED: 0 for successful. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_ocspresponse_getstatus(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_ocspresponse_getresponse returns responseBytes, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_ocspresponse_getresponse(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** @name Alternatives of ResponderID
 * @{ */
#define KOVRA_ASN1_OCSP_RESPONDER_ID_BY_NAME 1 /**< byName */
#define KOVRA_ASN1_OCSP_RESPONDER_ID_BY_KEY 2  /**< byKey */
/** @} */

/** kovra_ocsp_responderid_newname returns a ResponderID (4.2.1) of a Name. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_responderid_newname(const kovra_asn1_value *name) KOVRA_NOTHROW;

/** kovra_ocsp_responderid_newkeyhash returns a ResponderID of the hash of the responder's key, an OCTET STRING. It is
 * written bare, as told above, so no ResponseData takes it; a response with one is built from octets. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_responderid_newkeyhash(const kovra_asn1_value *key_hash)
    KOVRA_NOTHROW;

/** kovra_ocsp_responderid_gettype returns which alternative it is, 1 for byName, 2 for byKey; 0 for null and for a
 * value of another kind. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_ocsp_responderid_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_responderid_getname returns the Name; null for byKey. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_responderid_getname(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_responderid_getkeyhash returns the hash of the key, an OCTET STRING; null for byName. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_responderid_getkeyhash(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_revokedinfo_new returns a RevokedInfo (4.2.1): revocationTime, a GeneralizedTime; revocationReason, an
 * ENUMERATED, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_revokedinfo_new(
    const kovra_asn1_value *revocation_time, const kovra_asn1_value *revocation_reason) KOVRA_NOTHROW;

/** kovra_ocsp_revokedinfo_gettime returns revocationTime, a GeneralizedTime. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_revokedinfo_gettime(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_revokedinfo_getreason returns revocationReason, an ENUMERATED, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_revokedinfo_getreason(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** @name Alternatives of CertStatus
 * @{ */
#define KOVRA_ASN1_OCSP_CERT_STATUS_GOOD 0    /**< good */
#define KOVRA_ASN1_OCSP_CERT_STATUS_REVOKED 1 /**< revoked */
#define KOVRA_ASN1_OCSP_CERT_STATUS_UNKNOWN 2 /**< unknown */
/** @} */

/** kovra_ocsp_certstatus_newgood returns a CertStatus (4.2.1) of good. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_certstatus_newgood(void) KOVRA_NOTHROW;

/** kovra_ocsp_certstatus_newrevoked returns a CertStatus of a RevokedInfo. It cannot be written, as told above, so no
 * SingleResponse takes it. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_certstatus_newrevoked(const kovra_asn1_value *revoked_info)
    KOVRA_NOTHROW;

/** kovra_ocsp_certstatus_newunknown returns a CertStatus of unknown. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_certstatus_newunknown(void) KOVRA_NOTHROW;

/** kovra_ocsp_certstatus_gettype returns which alternative it is: 0 for good, 1 for revoked, 2 for unknown. NULL AND
 * VALUES OF ANOTHER KIND GIVE 0, TOO: look at the handle before believing a 0. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_ocsp_certstatus_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_certstatus_getrevoked returns the RevokedInfo; null for good and unknown. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_certstatus_getrevoked(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_singleresponse_new returns a SingleResponse (4.2.1): certID; certStatus; thisUpdate, a GeneralizedTime;
 * nextUpdate, a GeneralizedTime, or null; singleExtensions, or null. Null for a certStatus of revoked, which cannot
 * be copied. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_singleresponse_new(
    const kovra_asn1_value *cert_id, const kovra_asn1_value *cert_status, const kovra_asn1_value *this_update,
    const kovra_asn1_value *next_update, const kovra_asn1_value *single_extensions) KOVRA_NOTHROW;

/** kovra_ocsp_singleresponse_getcertid returns certID, a CertID. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_singleresponse_getcertid(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_singleresponse_getcertstatus returns certStatus, a CertStatus. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_singleresponse_getcertstatus(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_singleresponse_getthisupdate returns thisUpdate, a GeneralizedTime. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_singleresponse_getthisupdate(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_singleresponse_getnextupdate returns nextUpdate, a GeneralizedTime, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_singleresponse_getnextupdate(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_singleresponse_getexts returns singleExtensions, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_singleresponse_getexts(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_responsedata_new returns a ResponseData (4.2.1): version, an INTEGER, null for 0; responderID;
 * producedAt, a GeneralizedTime; responses (type 180); responseExtensions, or null. Null when a response or the
 * responderID cannot be written or read back, as told above. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_responsedata_new(
    const kovra_asn1_value *version, const kovra_asn1_value *responder_id, const kovra_asn1_value *produced_at,
    const kovra_asn1_value *responses, const kovra_asn1_value *response_extensions) KOVRA_NOTHROW;

/** kovra_ocsp_responsedata_getversion returns version, an INTEGER, 0 by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_responsedata_getversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_responsedata_getrespid returns responderID, a ResponderID. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_responsedata_getrespid(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_responsedata_getproducedat returns producedAt, a GeneralizedTime. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_responsedata_getproducedat(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_responsedata_getresponses returns responses, a list of SingleResponses. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_responsedata_getresponses(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_responsedata_getexts returns responseExtensions, or null; the nonce is one of them. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_responsedata_getexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_basicocspresponse_new returns a BasicOCSPResponse (4.2.1): tbsResponseData; signatureAlgorithm, an
 * AlgorithmIdentifier; signature, a BIT STRING; certs, a list of Certificates, each of which is copied, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_ocsp_basicocspresponse_new(const kovra_asn1_value *tbs_response_data, const kovra_asn1_value *signature_algorithm,
                                 const kovra_asn1_value *signature, const kovra_asn1_value *certs) KOVRA_NOTHROW;

/** kovra_ocsp_basicocspresponse_gettbs returns tbsResponseData. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_basicocspresponse_gettbs(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_basicocspresponse_getsignalgo returns signatureAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_basicocspresponse_getsignalgo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_basicocspresponse_getsignature returns signature, a BIT STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_basicocspresponse_getsignature(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_basicocspresponse_getcerts returns certs, a list of Certificates, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_basicocspresponse_getcerts(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ocsp_basicocspresponse_gettbsocts gives the exact octets of tbsResponseData: those that were read, whether
 * DER or not, or, for a response that was built, its encoding, which is made and kept at the first call. With a null
 * buffer the length is stored and 1 returned; a buffer that is shorter, by *length_in_out, gets nothing, and the
 * length is stored and 0 returned; otherwise octets and length are stored and 1 returned. 0 for a null response or
 * length place, and when the octets cannot be had. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_ocsp_basicocspresponse_gettbsocts(kovra_asn1_value *obj, void *buffer,
                                                                          int32_t *length_in_out) KOVRA_NOTHROW;

/** kovra_ocsp_crlid_new returns a CrlID (4.4.2): crlUrl, an IA5String; crlNum, an INTEGER; crlTime, a GeneralizedTime;
 * any may be null, or all. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_crlid_new(const kovra_asn1_value *crl_url,
                                                                 const kovra_asn1_value *crl_num,
                                                                 const kovra_asn1_value *crl_time) KOVRA_NOTHROW;

/** kovra_ocsp_crlid_geturl returns crlUrl, an IA5String, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_crlid_geturl(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_crlid_getnum returns crlNum, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_crlid_getnum(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ocsp_crlid_gettime returns crlTime, a GeneralizedTime, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ocsp_crlid_gettime(const kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
