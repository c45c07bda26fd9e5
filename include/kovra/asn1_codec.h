/** @defgroup asn1_codec Encoding and decoding by type
 * @ingroup kovra_asn1
 *
 * The entry points by type identifier: free, length, encode, decode.
 *
 * @{ */
#ifndef KOVRA_ASN1_CODEC_H
#define KOVRA_ASN1_CODEC_H

#include "kovra/asn1_types.h"
#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_asn1_value_free releases a value and all that it owns. Null, a type above 207, a value borrowed from another
 * one and types 0 and 5, which have no record, are ignored. The record is released by its real kind, whatever the type
 * says; only the elements of a list are released as the type's elements. */
KOVRA_ASN1_API void KOVRA_CALL kovra_asn1_value_free(uint32_t type, kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_asn1_content_length returns the number of content octets that encoding the value writes: -1 when they are
 * written with indefinite length, -2 for a null value, a value of the wrong kind, a type above 207 or not supported,
 * and a sum above 2,147,483,647. BOOLEAN, NULL and end-of-contents answer 1, 0 and 0 for null too. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_content_length(uint32_t type, const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_asn1_length returns the number of octets of the whole encoding, identifier and length octets included; -1 and
 * -2 as kovra_asn1_content_length. A total that leaves the 32-bit range gives -1, not -2: when the content and its
 * length octets together would reach 2,147,483,647, or the identifier octets would take the total above it. BOOLEAN,
 * NULL and end-of-contents answer 3, 2 and 2 for null too. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_length(uint32_t type, const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_asn1_encode appends the whole encoding of a value to a stream and stores its length in `*out_written`. Codes:
 * 0x1026b for a type above 207; 0x10002 for a null stream, then for a null value (types 0 and 5 need none); 0x1020b
 * when the content length cannot be computed; 0x102e4 and 0x102e6 on top of the entry of the identifier octets and of
 * the length octets; then those of the content, with nothing on top. (The types of asn1_octetstring.h,
 * asn1_bitstring.h, asn1_time.h and asn1_any.h state their own.) Octets are gathered before the stream gets them. One
 * that refuses an encoding of up to 262,144 octets leaves its own entry and those of a failure at the first octet, the
 * identifier mostly, also when it took some; of a longer encoding, which it gets in pieces, it leaves its own entry and
 * those of the component where the refused piece was full, none for the last piece. After a failure the stream may hold
 * a part of the encoding. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_encode(kovra_stream *stream, uint32_t type, const kovra_asn1_value *value,
                                                    int32_t *out_written, kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode reads one whole encoding from a stream as a value of the type, stores it in `*out_value` and the
 * octets consumed in `*out_read`; what follows in the stream is left there. Types 0 and 5 have no record and store
 * none. Codes: 0x1026b for a type above 207; 0x102e5 on top of the entry of the identifier octets, which is 0x10002 for
 * a null stream; 0x1020a for another class or tag than the type's, then 0x1026a for the other form; 0x102e7 on top of
 * the entry of the length octets; then those of the content, with nothing on top. The two codes on top are two above
 * those named after their step; callers match on them. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode(kovra_stream *stream, uint32_t type, kovra_asn1_value **out_value,
                                                    int32_t *out_read, kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_encode_content appends only the content octets. `content_length` is what kovra_asn1_content_length gave
 * for the value: with -1 the octets end with 00 00. Codes: 0x1026b for a type above 207; 0x10002 for a null stream or
 * value; then the type's own, for another content_length 0x10203 (BOOLEAN, INTEGER, NULL, object identifiers, times),
 * 0x10001 or 0x10004 (strings, ANY). */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_encode_content(kovra_stream *stream, uint32_t type,
                                                            const kovra_asn1_value *value, int32_t content_length,
                                                            int32_t *out_written, kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_content reads content octets whose identifier and length octets were read before: `form` as the
 * identifier said, `length` in octets or -1 for indefinite, which takes the 00 00 too. This is how implicit tags are
 * read (X.690 clause 8.14). Codes: 0x1026b for a type above 207; 0x10002 for a null stream or place; then the type's
 * own, in general 0x1026a for a wrong form, 0x10206 for an indefinite length, 0x10203 for a wrong length. Choices and
 * types that are only read whole (20, 23, 63 ...) refuse with 0x1026d. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_content(kovra_stream *stream, uint32_t type,
                                                            kovra_asn1_value **out_value, int32_t form, int32_t length,
                                                            int32_t *out_read, kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_encode_puterr appends the type's encode code with its text to the error context, as a caller does who
 * wraps a failed encoding; 0x1026b for a type above 207. `sourcefile` and `line` say who. A code outside 0x10200 to
 * 0x103D3 has an empty text (types 0, 49, 159, 175). */
KOVRA_ASN1_API void KOVRA_CALL kovra_asn1_encode_puterr(kovra_err_ctx *ctx, uint32_t type, const char *sourcefile,
                                                        int32_t line) KOVRA_NOTHROW;

/** kovra_asn1_decode_puterr appends the type's decode code, one above its encode code, as kovra_asn1_encode_puterr
 * does. From type 152 on most of these codes carry the text of encoding the neighbouring type. */
KOVRA_ASN1_API void KOVRA_CALL kovra_asn1_decode_puterr(kovra_err_ctx *ctx, uint32_t type, const char *sourcefile,
                                                        int32_t line) KOVRA_NOTHROW;

/** kovra_asn1_mem_encode returns a new blob with the whole encoding of a value, released with kovra_data_blob_free, or
 * null on any failure. */
KOVRA_ASN1_API kovra_data_blob *KOVRA_CALL kovra_asn1_mem_encode(uint32_t type,
                                                                 const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_asn1_mem_decode reads a value of the type from the start of `length` octets, stores it in `*out_value` and
 * returns the number of octets consumed; octets behind it are not looked at. -1 for null data or place, a length below
 * 1, and any failure. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_mem_decode(const void *data, int32_t length, uint32_t type,
                                                        kovra_asn1_value **out_value) KOVRA_NOTHROW;

/** kovra_asn1_dupobject returns a deep copy, made by encoding and decoding, or null. Codes: 0x10002 for a null value;
 * the type's encode or decode code on top of the entries of a failure; 0x1027f when the decoder leaves octets unread.
 * Of types 0 and 5, which have no record, nothing is copied: null without an entry. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_dupobject(uint32_t type, const kovra_asn1_value *value,
                                                                 kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_version returns the constant text "KOVRA ASN.1 Library 1.2.12,Build on 2012". */
KOVRA_ASN1_API const char *KOVRA_CALL kovra_asn1_version(void) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
