/** @defgroup asn1_bitstring BIT STRING
 * @ingroup kovra_asn1
 *
 * BIT STRING (type 3; X.690 clauses 8.6 and 11.2).
 *
 * Segments of a constructed encoding may nest; only the last may have unused bits. What a sender put into unused bits
 * is kept and written again. Data octets of unknown length are written as segments of up to 8,192 octets in the
 * indefinite form.
 *
 * Codes of decoding the content: 0x10002; 0x10000; indefinite: 0x10206 (primitive), otherwise 0x10214 on top of those
 * of a segment; 0x10203 for a length below -1, for segments longer than the length and for a primitive value without
 * the octet of unused bits; 0x10207 when that octet is above 7 or not 0 without data, and for unused bits in a segment
 * that is not the last. Codes of a segment, and of decoding the whole: 0x102e5 (identifier), 0x1020a (neither a BIT
 * STRING nor end-of-contents), 0x102e9 (00 followed by another octet; a marker cut short leaves the entry of the
 * stream only), 0x102e7 (length), 0x10214 (end-of-contents instead of a value). Encoding the content: 0x10002; 0x10001
 * for a content length of 0 or below -1; 0x10004 when the data are not as long; for -1 0x10109, 0x102e4, 0x102e6 and
 * 0x102e8. Encoding the whole: 0x10203 when the length cannot be had, 0x102e6 on top of that of the length octets.
 *
 * @{ */
#ifndef KOVRA_ASN1_BITSTRING_H
#define KOVRA_ASN1_BITSTRING_H

#include "kovra/asn1_value.h"
#include "kovra/util_bitset.h"

KOVRA_C_BEGIN

/** kovra_asn1_bitstring_new returns a new BIT STRING of `length` data octets without the last `unused_bits` (0 to 7)
 * bits, which are stored as 0. Null when the length is negative or positive with null data, when unused_bits is out of
 * range, or not 0 with a length of 0, and when memory is short. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_bitstring_new(int32_t unused_bits, const void *data,
                                                                     int32_t length) KOVRA_NOTHROW;

/** kovra_asn1_bitstring_newbits returns a named-bit list: the bits at the positions set, ending with the highest of
 * them (X.690 clause 11.2.2). Null positions give the empty value. Null for a negative count or position, and when
 * memory is short. The first position is read even when the count is 0, and is then the only bit set. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_bitstring_newbits(const int32_t *positions,
                                                                         int32_t count) KOVRA_NOTHROW;

/** kovra_asn1_bitstring_newbitset returns a new BIT STRING of the bits of a set, which stays the caller's; null for
 * null and when memory is short. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_bitstring_newbitset(const kovra_bitset *set) KOVRA_NOTHROW;

/** kovra_asn1_bitstring_getbitset returns a new bit set of the value, released with kovra_bitset_free; null for null,
 * when the data cannot be read or its size changes during the call, when the bits are more than 2,147,483,647 (which
 * 256 MiB of data can hold), and when memory is short. */
KOVRA_ASN1_API kovra_bitset *KOVRA_CALL kovra_asn1_bitstring_getbitset(kovra_asn1_value *bitstring) KOVRA_NOTHROW;

/** kovra_asn1_bitstring_getlength returns the number of data octets, without the octet of unused bits: -1 when the
 * stream behind the value cannot tell, -2 for null and for more than 2,147,483,647. What it told last of data in a
 * stream is kept in mind, as for kovra_asn1_octetstring_getlength. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_bitstring_getlength(const kovra_asn1_value *bitstring) KOVRA_NOTHROW;

/** kovra_asn1_bitstring_getunusedbits returns the number of unused bits in the last data octet, 0 to 7; 0 for null. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_bitstring_getunusedbits(const kovra_asn1_value *bitstring) KOVRA_NOTHROW;

/** kovra_asn1_bitstring_getbit returns 1 when the bit is set, bit 0 being the most significant one of the first octet;
 * 0 when it is clear or outside the value, and for null. Bits from 2,147,483,648 on cannot be
 * asked for. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_bitstring_getbit(kovra_asn1_value *bitstring, int32_t bit) KOVRA_NOTHROW;

/** kovra_asn1_bitstring_getall is kovra_asn1_octetstring_getall for the data octets and
 * kovra_asn1_bitstring_getlength. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_bitstring_getall(kovra_asn1_value *bitstring, void *buffer) KOVRA_NOTHROW;

/** kovra_asn1_bitstring_get is kovra_asn1_octetstring_get for the data octets. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_bitstring_get(kovra_asn1_value *bitstring, int32_t mode, void *buffer,
                                                           int32_t size, int32_t *out_count,
                                                           kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_bitstring_getobject is kovra_asn1_octetstring_getobject for the data octets, such as the public key in a
 * SubjectPublicKeyInfo. Unused bits are not looked at. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_bitstring_getobject(kovra_asn1_value *bitstring, uint32_t type,
                                                                 kovra_asn1_value **out_value,
                                                                 kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_bitstring_ex reads one whole BIT STRING and appends its data octets to `content_stream`, which the
 * value uses without owning it: the stream must outlive the value. Codes as for decoding type 3. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_bitstring_ex(kovra_stream *stream, kovra_stream *content_stream,
                                                                 kovra_asn1_value **out_bitstring, int32_t *out_read,
                                                                 kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_bitstring_content_ex does the same for content octets, with form and length as read before them
 * (-1 for indefinite). Codes as for decoding the content of type 3. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_bitstring_content_ex(kovra_stream *stream,
                                                                         kovra_stream *content_stream,
                                                                         kovra_asn1_value **out_bitstring, int32_t form,
                                                                         int32_t length, int32_t *out_read,
                                                                         kovra_err_ctx *ctx) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
