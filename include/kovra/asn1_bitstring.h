#ifndef KOVRA_ASN1_BITSTRING_H
#define KOVRA_ASN1_BITSTRING_H

#include "kovra/asn1_value.h"
#include "kovra/util_bitset.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_bitstring_new(int32_t unused_bits, const void *data,
                                                          int32_t length) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_bitstring_newbits(const int32_t *positions, int32_t count) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_bitstring_newbitset(const kovra_bitset *set) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_bitset *kovra_asn1_bitstring_getbitset(kovra_asn1_value *bitstring) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_bitstring_getlength(const kovra_asn1_value *bitstring) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_bitstring_getunusedbits(const kovra_asn1_value *bitstring) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_bitstring_getbit(kovra_asn1_value *bitstring, int32_t bit) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_bitstring_getall(kovra_asn1_value *bitstring, void *buffer) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_bitstring_get(kovra_asn1_value *bitstring, int32_t mode, void *buffer, int32_t size,
                                                int32_t *out_count, kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_bitstring_getobject(kovra_asn1_value *bitstring, uint32_t type,
                                                      kovra_asn1_value **out_value, kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_decode_bitstring_ex(kovra_stream *stream, kovra_stream *content_stream,
                                                      kovra_asn1_value **out_bitstring, int32_t *out_read,
                                                      kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_decode_bitstring_content_ex(kovra_stream *stream, kovra_stream *content_stream,
                                                              kovra_asn1_value **out_bitstring, int32_t form,
                                                              int32_t length, int32_t *out_read,
                                                              kovra_err_ctx *ctx) KOVRA_NOTHROW;

KOVRA_C_END

#endif
