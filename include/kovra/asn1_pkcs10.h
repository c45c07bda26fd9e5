/** @defgroup asn1_pkcs10 Certification requests
 * @ingroup kovra_asn1
 *
 * Certification requests (PKCS #10, RFC 2986). What holds for all structures stands in asn1_x509.h.
 *
 * Attributes of a request (types 43 and 44) have no values with context. The attributes of a CertificationRequestInfo
 * are required, even when there are none: A0 00. Without them decoding gives 0x1020a. The set is written in the order
 * of the list.
 *
 * @{ */
#ifndef KOVRA_ASN1_PKCS10_H
#define KOVRA_ASN1_PKCS10_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_pkcs10certreqinfo_new returns a CertificationRequestInfo, what a request's signature covers: version, an
 * INTEGER, written whatever its value; subject, a Name; subjectPKInfo; attributes, a list of Attributes, which may be
 * empty but not null. Null too when an attribute has values with context. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkcs10certreqinfo_new(const kovra_asn1_value *version, const kovra_asn1_value *subject,
                            const kovra_asn1_value *subject_pk_info, const kovra_asn1_value *attributes) KOVRA_NOTHROW;

/** kovra_pkcs10certreq_create returns a CertificationRequest of a CertificationRequestInfo, the signature's
 * AlgorithmIdentifier and its bits, a BIT STRING. The caller signs, as for kovra_x509pubkeycert_create. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs10certreq_create(const kovra_asn1_value *request_info,
                                                                       const kovra_asn1_value *signature_algorithm,
                                                                       const kovra_asn1_value *signature) KOVRA_NOTHROW;

/** kovra_pkcs10certreq_new decodes a request as kovra_x509pubkeycert_new does a certificate. The label of PEM text is
 * "CERTIFICATE REQUEST" or, where there is no such block, "NEW CERTIFICATE REQUEST". 0x10269 stands for another first
 * octet. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs10certreq_new(const void *data, int32_t length,
                                                                    kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_pkcs10certreq_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs10certreq_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs10certreq_getsubject returns subject, a Name. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs10certreq_getsubject(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs10certreq_getpubkey returns subjectPKInfo, a SubjectPublicKeyInfo. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs10certreq_getpubkey(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs10certreq_getattrs returns attributes, a list of Attributes, which may be empty. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs10certreq_getattrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs10certreq_hasattrs returns 1 for every request, the attributes being required; 0 for null. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs10certreq_hasattrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs10certreq_getsignalgo returns signatureAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs10certreq_getsignalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs10certreq_getsignvalue returns signature, a BIT STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs10certreq_getsignvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkcs10certreq_gettbsocts gives the to-be-signed octets of a request as kovra_x509pubkeycert_gettbsocts those
 * of a certificate. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs10certreq_gettbsocts(kovra_asn1_value *obj, void *buffer,
                                                                 int32_t *length_in_out) KOVRA_NOTHROW;

/** kovra_asn1_pkcs10attributes_sort sorts every Attribute of a list as kovra_x500attribute_sort does, then the list, by
 * encodings. Returns 1; 0 for null and when one cannot be sorted. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_pkcs10attributes_sort(kovra_asn1_value *attributes) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
