#ifndef KOVRA_ASN1_LIB_H
#define KOVRA_ASN1_LIB_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/* Classes, as the identifier octet's top two bits in place. */
#define KOVRA_ASN1_UNIVERSAL 0x00
#define KOVRA_ASN1_APPLICATION 0x40
#define KOVRA_ASN1_CONTEXT 0x80
#define KOVRA_ASN1_PRIVATE 0xC0

/* Forms. */
#define KOVRA_ASN1_CONSTRUCTED 0
#define KOVRA_ASN1_PRIMITIVE 1

KOVRA_ASN1_API int32_t kovra_asn1_identifier_length(int32_t tag) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_encode_identifier(kovra_stream *stream, uint32_t tag_class, int32_t form, int32_t tag,
                                                    int32_t *out_written, kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_decode_identifier(kovra_stream *stream, uint32_t *out_class, int32_t *out_form,
                                                    int32_t *out_tag, int32_t *out_read,
                                                    kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_length_length(int32_t length) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_encode_length(kovra_stream *stream, int32_t length, int32_t *out_written,
                                                kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_decode_length(kovra_stream *stream, int32_t *out_length, int32_t *out_read,
                                                kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_decode_eoc_length(kovra_stream *stream, int32_t *out_read,
                                                    kovra_err_ctx *ctx) KOVRA_NOTHROW;

KOVRA_C_END

#endif
