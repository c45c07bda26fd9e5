/** @defgroup asn1_any ANY
 * @ingroup kovra_asn1
 *
 * ANY (type 23): one element of a type not known when it is read. Identifier, length and content octets are kept as
 * they were read.
 *
 * Decoding accepts every tag of the classes application, context and private. Of the universal ones it takes,
 * primitive only: 1, 2, 5, 6, 9, 10, 13; constructed only: 8, 11, 16, 17; both: 3, 4, 7, 12, 18 to 28, 30; and no
 * other. An indefinite length is accepted with either form, as elements up to an end-of-contents marker. The marker
 * itself, where an element may stand, gives a value of length 0 that kovra_asn1_any_iseoc tells apart and that is
 * written as 00 00.
 *
 * Codes of decoding: 0x10002, 0x102e5 (identifier), 0x10205 (00 not followed by 00), 0x10201 (refused tag or form),
 * 0x102e7 (length), 0x10000; one each, whatever the nesting. Encoding: 0x10002, 0x10235 when the content is not as
 * long as stated. Encoding only the content: 0x10002, 0x10001 when content_length is not the element's, 0x10004 when
 * the content is not as long. Decoding only the content: 0x1026d. The whole length of an element of indefinite length
 * is -1.
 *
 * @{ */
#ifndef KOVRA_ASN1_ANY_H
#define KOVRA_ASN1_ANY_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_asn1_any_new returns an element of the given identifier, length and content. `length` may be -1: the content
 * then has to end with 00 00. A definite length is not compared with `content_length` here; encoding refuses the value
 * (0x10235) when they differ. Null for a class or tag number that cannot be encoded, a length below -1, a negative
 * content_length, null content with a positive one, and when memory is short. Tag and form are not checked against
 * those that decoding takes. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_any_new(uint32_t tag_class, int32_t form, int32_t tag,
                                                               int32_t length, const void *content,
                                                               int32_t content_length) KOVRA_NOTHROW;

/** kovra_asn1_any_isprimitive stores the form in `*out_form`, 1 primitive or 0 constructed, and returns 1; 0, with
 * nothing stored, for a null argument. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_any_isprimitive(const kovra_asn1_value *any,
                                                             int32_t *out_form) KOVRA_NOTHROW;

/** kovra_asn1_any_gettagnumber stores the tag number in `*out_tag` and returns 1; 0, with nothing stored, for a null
 * argument. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_any_gettagnumber(const kovra_asn1_value *any,
                                                              int32_t *out_tag) KOVRA_NOTHROW;

/** kovra_asn1_any_getcontentlength returns the length as the element states it, -1 for indefinite; -2 for null. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_any_getcontentlength(const kovra_asn1_value *any) KOVRA_NOTHROW;

/** kovra_asn1_any_iseoc returns 1 when the value stands for an end-of-contents marker, else 0. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_any_iseoc(const kovra_asn1_value *any) KOVRA_NOTHROW;

/** kovra_asn1_any_getcontent reads up to `size` content octets into the buffer, from the start (mode 1) or where the
 * last call stopped (mode 2), and stores their number in `*out_count`: 0 at the end, for a size of 0 and for an
 * end-of-contents marker. The content of an indefinite element includes its final 00 00. Codes: 0x10002 for a null
 * value or buffer, 0x10001 for a negative size, 0x10105 for another mode, 0x10109 when the content cannot be rewound.
 */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_any_getcontent(kovra_asn1_value *any, int32_t mode, void *buffer,
                                                            int32_t size, int32_t *out_count,
                                                            kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_any_getobject reads the content as one whole encoding of the type, as an explicit tag holds one (X.690
 * clause 8.14), and stores the new value. Codes: 0x10002 for a null argument; 0x10109 when the content cannot be
 * rewound, as that of an end-of-contents marker; the type's decode code on top of those of the decoding; 0x1027f when
 * octets are left, which the final 00 00 of an indefinite element always are. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_any_getobject(kovra_asn1_value *any, uint32_t type,
                                                           kovra_asn1_value **out_value,
                                                           kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_any_contenttoobject reads the content as the content of a value of the type, with the element's form and
 * length, as an implicit tag has it. Codes as kovra_asn1_any_getobject. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_any_contenttoobject(kovra_asn1_value *any, uint32_t type,
                                                                 kovra_asn1_value **out_value,
                                                                 kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_any_toobject reads the whole element, identifier included, as a value of the type. Codes: 0x10002;
 * 0x10235 on top of those of writing the element; 0x10204 for an element of more than 0x7FFFFFFF octets; the type's
 * decode code on top of those of the decoding; 0x1027f when octets are left. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_any_toobject(kovra_asn1_value *any, uint32_t type,
                                                          kovra_asn1_value **out_value,
                                                          kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_objecttoany returns a value of the type as an element, a copy. Null for type 0, and for every value that
 * cannot be encoded or whose encoding the element's decoder refuses. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_objecttoany(uint32_t type,
                                                                   const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_asn1_decode_any_ex reads one element and appends its content to `content_stream`, which the element uses
 * without owning it: the stream must outlive the value. One stream may take the content of several elements. Codes as
 * for decoding type 23. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_any_ex(kovra_stream *stream, kovra_stream *content_stream,
                                                           kovra_asn1_value **out_any, int32_t *out_read,
                                                           kovra_err_ctx *ctx) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
