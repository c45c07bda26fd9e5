/** @defgroup asn1_tsp Time stamps
 * @ingroup kovra_asn1
 *
 * Time stamps (RFC 3161) and the attributes that name a signing certificate (RFC 2634, RFC 5035).
 *
 * What holds for all structures stands in asn1_x509.h. Nothing is hashed, signed or verified here, and no version,
 * status, accuracy or policy is judged. A time-stamp token is a ContentInfo (type 111): the TSTInfo (type 192) is the
 * content of the SignedData in it, and the signing-certificate attributes (types 199 and 200) are among the attributes
 * of the signer.
 *
 * A MessageImprint (type 186) is a DigestInfo (type 57) with codes of its own; either may be passed for the other. Type
 * 188 is a list of UTF8Strings that may not be empty when it is read (0x1020c), 196 and 197 are lists of ESSCertIDs and
 * of ESSCertIDv2s, 198 is one of PolicyInformations. Types 199 and 200 record the same codes. Optional components come
 * in the order of the definition; what begins none of those that may still come is 0x1020a.
 *
 * @{ */
#ifndef KOVRA_ASN1_TSP_H
#define KOVRA_ASN1_TSP_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_tsp_messageimprint_new returns a MessageImprint (RFC 3161, 2.4.1): hashAlgorithm, an AlgorithmIdentifier;
 * hashedMessage, an OCTET STRING, whose length is not compared with the algorithm's. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_messageimprint_new(
    const kovra_asn1_value *hash_algorithm, const kovra_asn1_value *hashed_message) KOVRA_NOTHROW;

/** kovra_tsp_messageimprint_gethashalgo returns hashAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_messageimprint_gethashalgo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_tsp_messageimprint_gethashedmessage returns hashedMessage, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_messageimprint_gethashedmessage(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_tsp_timestampreq_new returns a TimeStampReq (RFC 3161, 2.4.1): version, an INTEGER; messageImprint;
 * reqPolicy, an OBJECT IDENTIFIER, or null; nonce, an INTEGER, or null; certReq, a BOOLEAN, null for FALSE;
 * extensions, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_timestampreq_new(
    const kovra_asn1_value *version, const kovra_asn1_value *message_imprint, const kovra_asn1_value *req_policy,
    const kovra_asn1_value *nonce, const kovra_asn1_value *cert_req, const kovra_asn1_value *extensions) KOVRA_NOTHROW;

/** kovra_tsp_timestampreq_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_timestampreq_getversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_tsp_timestampreq_getmessageimprint returns messageImprint, a MessageImprint. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_timestampreq_getmessageimprint(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_tsp_timestampreq_getpolicy returns reqPolicy, an OBJECT IDENTIFIER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_timestampreq_getpolicy(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_timestampreq_getnonce returns nonce, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_timestampreq_getnonce(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_timestampreq_getcertreq returns certReq, a BOOLEAN, FALSE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_timestampreq_getcertreq(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_tsp_timestampreq_getexts returns extensions, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_timestampreq_getexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** @name PKIStatus (RFC 3161, 2.4.2)
 * @{ */
#define KOVRA_ASN1_PKI_STATUS_GRANTED 0                 /**< granted */
#define KOVRA_ASN1_PKI_STATUS_GRANTED_WITH_MODS 1       /**< grantedWithMods */
#define KOVRA_ASN1_PKI_STATUS_REJECTION 2               /**< rejection */
#define KOVRA_ASN1_PKI_STATUS_WAITING 3                 /**< waiting */
#define KOVRA_ASN1_PKI_STATUS_REVOCATION_WARNING 4      /**< revocationWarning */
#define KOVRA_ASN1_PKI_STATUS_REVOCATION_NOTIFICATION 5 /**< revocationNotification */
/** @} */

/** kovra_tsp_pkistatusinfo_new returns a PKIStatusInfo (RFC 3161, 2.4.2): status, an INTEGER; statusString, a list of
 * UTF8Strings (type 188), or null; failInfo, a BIT STRING, or null. Null for a statusString without elements, which
 * cannot be read back. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_tsp_pkistatusinfo_new(const kovra_asn1_value *status, const kovra_asn1_value *status_string,
                            const kovra_asn1_value *fail_info) KOVRA_NOTHROW;

/** kovra_tsp_pkistatusinfo_getstatus returns status, an INTEGER: 0 for granted, 1 for granted with modifications. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_pkistatusinfo_getstatus(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_tsp_pkistatusinfo_getstatusstring returns statusString, a list of UTF8Strings, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_pkistatusinfo_getstatusstring(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_tsp_pkistatusinfo_getfailinfo returns failInfo, a BIT STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_pkistatusinfo_getfailinfo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_tsp_timestampresp_new returns a TimeStampResp (RFC 3161, 2.4.2): status, a PKIStatusInfo; timeStampToken, a
 * ContentInfo, or null. What is in the token is not looked at. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_tsp_timestampresp_new(const kovra_asn1_value *status, const kovra_asn1_value *time_stamp_token) KOVRA_NOTHROW;

/** kovra_tsp_timestampresp_getstatus returns status, a PKIStatusInfo. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_timestampresp_getstatus(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_tsp_timestampresp_gettoken returns timeStampToken, a ContentInfo, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_timestampresp_gettoken(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_accuracy_new returns an Accuracy (RFC 3161, 2.4.2) of seconds, millis and micros, INTEGERs of any size
 * and sign; any may be null, or all. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_accuracy_new(const kovra_asn1_value *seconds,
                                                                   const kovra_asn1_value *millis,
                                                                   const kovra_asn1_value *micros) KOVRA_NOTHROW;

/** kovra_tsp_accuracy_getseconds returns seconds, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_accuracy_getseconds(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_accuracy_getmillis returns millis, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_accuracy_getmillis(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_accuracy_getmicros returns micros, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_accuracy_getmicros(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_tstinfo_new returns a TSTInfo (RFC 3161, 2.4.2): version, an INTEGER; policy, an OBJECT IDENTIFIER;
 * messageImprint; serialNumber, an INTEGER; genTime, a GeneralizedTime; accuracy, or null; ordering, a BOOLEAN, null
 * for FALSE; nonce, an INTEGER, or null; tsa, or null; extensions, or null. TSA IS COPIED AS AN INTEGER: a
 * GeneralName gives null, and an INTEGER is stored as a name that nothing can write. A TSTInfo with a tsa is had by
 * decoding one. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_tstinfo_new(
    const kovra_asn1_value *version, const kovra_asn1_value *policy, const kovra_asn1_value *message_imprint,
    const kovra_asn1_value *serial_number, const kovra_asn1_value *gen_time, const kovra_asn1_value *accuracy,
    const kovra_asn1_value *ordering, const kovra_asn1_value *nonce, const kovra_asn1_value *tsa,
    const kovra_asn1_value *extensions) KOVRA_NOTHROW;

/** kovra_tsp_tstinfo_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_tstinfo_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_tstinfo_getpolicy returns policy, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_tstinfo_getpolicy(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_tstinfo_getmessageimprint returns messageImprint, a MessageImprint. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_tstinfo_getmessageimprint(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_tsp_tstinfo_getsn returns serialNumber, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_tstinfo_getsn(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_tstinfo_getgentime returns genTime, a GeneralizedTime. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_tstinfo_getgentime(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_tstinfo_getaccuracy returns accuracy, an Accuracy, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_tstinfo_getaccuracy(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_tstinfo_getordering returns ordering, a BOOLEAN, FALSE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_tstinfo_getordering(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_tstinfo_getnonce returns nonce, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_tstinfo_getnonce(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_tstinfo_gettsaname returns tsa, a GeneralName, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_tstinfo_gettsaname(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_tsp_tstinfo_getexts returns extensions, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_tsp_tstinfo_getexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ess_issuerserial_new returns an IssuerSerial (RFC 5035, 4): issuer, GeneralNames; serialNumber, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_ess_issuerserial_new(const kovra_asn1_value *issuer, const kovra_asn1_value *serial_number) KOVRA_NOTHROW;

/** kovra_ess_issuerserial_getissuer returns issuer, a list of GeneralNames. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ess_issuerserial_getissuer(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ess_issuerserial_getsn returns serialNumber, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ess_issuerserial_getsn(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ess_certid_new returns an ESSCertID (RFC 5035, 4): certHash, an OCTET STRING, SHA-1 by definition;
 * issuerSerial, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ess_certid_new(const kovra_asn1_value *cert_hash,
                                                                 const kovra_asn1_value *issuer_serial) KOVRA_NOTHROW;

/** kovra_ess_certid_getcerthash returns certHash, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ess_certid_getcerthash(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ess_certid_getissuersn returns issuerSerial, an IssuerSerial, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ess_certid_getissuersn(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ess_certidv2_new returns an ESSCertIDv2 (RFC 5035, 4): hashAlgorithm, an AlgorithmIdentifier, null for
 * SHA-256 without parameters; certHash, an OCTET STRING; issuerSerial, or null. SHA-256 IS NOT WRITTEN WHATEVER ITS
 * PARAMETERS: one with NULL parameters comes back without. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ess_certidv2_new(const kovra_asn1_value *hash_algorithm,
                                                                   const kovra_asn1_value *cert_hash,
                                                                   const kovra_asn1_value *issuer_serial) KOVRA_NOTHROW;

/** kovra_ess_certidv2_getcerthashalgo returns hashAlgorithm, an AlgorithmIdentifier, SHA-256 without parameters by
 * default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ess_certidv2_getcerthashalgo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ess_certidv2_getcerthash returns certHash, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ess_certidv2_getcerthash(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ess_certidv2_getissuersn returns issuerSerial, an IssuerSerial, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ess_certidv2_getissuersn(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_ess_signingcertificate_new returns a SigningCertificate (RFC 2634, 5.4): certs, a list of ESSCertIDs (type
 * 196); policies, a list of PolicyInformations (type 198), or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_ess_signingcertificate_new(const kovra_asn1_value *certs, const kovra_asn1_value *policies) KOVRA_NOTHROW;

/** kovra_ess_signingcertificatev2_new returns a SigningCertificateV2 (RFC 5035, 3): certs, a list of ESSCertIDv2s
 * (type 197); policies, a list of PolicyInformations (type 198), or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_ess_signingcertificatev2_new(const kovra_asn1_value *certs, const kovra_asn1_value *policies) KOVRA_NOTHROW;

/** kovra_ess_signingcertificate_getcerts returns certs of a SigningCertificate or a SigningCertificateV2, a list of
 * ESSCertIDs or of ESSCertIDv2s. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ess_signingcertificate_getcerts(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_ess_signingcertificate_getpolicies returns policies of a SigningCertificate or a SigningCertificateV2, a list
 * of PolicyInformations, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_ess_signingcertificate_getpolicies(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
