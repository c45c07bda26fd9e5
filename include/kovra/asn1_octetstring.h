#ifndef KOVRA_ASN1_OCTETSTRING_H
#define KOVRA_ASN1_OCTETSTRING_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_octetstring_new(const void *data, int32_t length) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_string_new(const void *data, int32_t length) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_octetstring_newstream(kovra_stream *stream) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_octetstring_getlength(const kovra_asn1_value *string) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_string_getlength(const kovra_asn1_value *string) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_octetstring_getall(kovra_asn1_value *string, void *buffer) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_string_get(kovra_asn1_value *string, void *buffer) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_data_blob *kovra_asn1_octetstring_getblob(kovra_asn1_value *string) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_octetstring_get(kovra_asn1_value *string, int32_t mode, void *buffer, int32_t size,
                                                  int32_t *out_count, kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_octetstring_getobject(kovra_asn1_value *string, uint32_t type,
                                                        kovra_asn1_value **out_value, kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_decode_octetstring_ex(kovra_stream *stream, kovra_stream *content_stream,
                                                        kovra_asn1_value **out_string, int32_t *out_read,
                                                        kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_decode_octetstring_content_ex(kovra_stream *stream, kovra_stream *content_stream,
                                                                kovra_asn1_value **out_string, int32_t form,
                                                                int32_t length, int32_t *out_read,
                                                                kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_encode_octetstring_init(kovra_stream *stream) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_encode_octetstring_update(kovra_stream *stream, const void *data,
                                                            int32_t length) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_encode_octetstring_end(kovra_stream *stream) KOVRA_NOTHROW;

KOVRA_C_END

#endif
