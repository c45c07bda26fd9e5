/* Certification requests (RFC 2986). */
#ifndef KOVRA_ASN1_PKCS10_H
#define KOVRA_ASN1_PKCS10_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_pkcs10certreqinfo_new(const kovra_asn1_value *version,
                                                             const kovra_asn1_value *subject,
                                                             const kovra_asn1_value *subject_pk_info,
                                                             const kovra_asn1_value *attributes) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkcs10certreq_create(const kovra_asn1_value *request_info,
                                                            const kovra_asn1_value *signature_algorithm,
                                                            const kovra_asn1_value *signature) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkcs10certreq_new(const void *data, int32_t length,
                                                         kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkcs10certreq_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkcs10certreq_getsubject(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkcs10certreq_getpubkey(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkcs10certreq_getattrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_pkcs10certreq_hasattrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkcs10certreq_getsignalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkcs10certreq_getsignvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_pkcs10certreq_gettbsocts(kovra_asn1_value *obj, void *buffer,
                                                      int32_t *length_in_out) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_pkcs10attributes_sort(kovra_asn1_value *attributes) KOVRA_NOTHROW;

KOVRA_C_END

#endif
