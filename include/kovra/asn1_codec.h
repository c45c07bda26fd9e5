#ifndef KOVRA_ASN1_CODEC_H
#define KOVRA_ASN1_CODEC_H

#include "kovra/asn1_types.h"
#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API void kovra_asn1_value_free(uint32_t type, kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_content_length(uint32_t type, const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_length(uint32_t type, const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_encode(kovra_stream *stream, uint32_t type, const kovra_asn1_value *value,
                                         int32_t *out_written, kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_decode(kovra_stream *stream, uint32_t type, kovra_asn1_value **out_value,
                                         int32_t *out_read, kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_encode_content(kovra_stream *stream, uint32_t type, const kovra_asn1_value *value,
                                                 int32_t content_length, int32_t *out_written,
                                                 kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_decode_content(kovra_stream *stream, uint32_t type, kovra_asn1_value **out_value,
                                                 int32_t form, int32_t length, int32_t *out_read,
                                                 kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API void kovra_asn1_encode_puterr(kovra_err_ctx *ctx, uint32_t type, const char *sourcefile,
                                             int32_t line) KOVRA_NOTHROW;
KOVRA_ASN1_API void kovra_asn1_decode_puterr(kovra_err_ctx *ctx, uint32_t type, const char *sourcefile,
                                             int32_t line) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_data_blob *kovra_asn1_mem_encode(uint32_t type, const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_mem_decode(const void *data, int32_t length, uint32_t type,
                                             kovra_asn1_value **out_value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_dupobject(uint32_t type, const kovra_asn1_value *value,
                                                      kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API const char *kovra_asn1_version(void) KOVRA_NOTHROW;

KOVRA_C_END

#endif
