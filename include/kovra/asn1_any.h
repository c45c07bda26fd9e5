#ifndef KOVRA_ASN1_ANY_H
#define KOVRA_ASN1_ANY_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_any_new(uint32_t tag_class, int32_t form, int32_t tag, int32_t length,
                                                    const void *content, int32_t content_length) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_any_isprimitive(const kovra_asn1_value *any, int32_t *out_form) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_any_gettagnumber(const kovra_asn1_value *any, int32_t *out_tag) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_any_getcontentlength(const kovra_asn1_value *any) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_any_iseoc(const kovra_asn1_value *any) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_any_getcontent(kovra_asn1_value *any, int32_t mode, void *buffer, int32_t size,
                                                 int32_t *out_count, kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_any_getobject(kovra_asn1_value *any, uint32_t type, kovra_asn1_value **out_value,
                                                kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_any_contenttoobject(kovra_asn1_value *any, uint32_t type,
                                                      kovra_asn1_value **out_value, kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_any_toobject(kovra_asn1_value *any, uint32_t type, kovra_asn1_value **out_value,
                                               kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_objecttoany(uint32_t type, const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_decode_any_ex(kovra_stream *stream, kovra_stream *content_stream,
                                                kovra_asn1_value **out_any, int32_t *out_read,
                                                kovra_err_ctx *ctx) KOVRA_NOTHROW;

KOVRA_C_END

#endif
