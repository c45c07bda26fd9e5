/** @defgroup asn1_decode Elements that arrive in pieces
 * @ingroup kovra_asn1
 *
 * Decoding an element that arrives in pieces, as from a socket, and passing on the content of an OCTET STRING without
 * holding it.
 *
 * A context takes one element, in pieces of any size, and is in one of eight states: 0 before the first identifier
 * octet, 1 within a tag number of several octets, 2 before the first length octet, 3 within a length of several
 * octets, 4 in the content, 5 behind the first octet of an end-of-contents marker, 6 complete, 7 failed. An element
 * whose length is 0 is complete with its length octets. Complete and failed are final. How the octets were cut into
 * pieces changes nothing, every octet is looked at once, and elements may nest as deep as memory allows; nothing
 * recurses.
 *
 *     static kovra_asn1_value *receive_certificate(FILE *from, kovra_err_ctx *errors) {
 *         kovra_asn1_decode_any_ctx *ctx = kovra_asn1_decode_any_ctx_new();
 *         kovra_asn1_value *certificate = NULL;
 *         char piece[512];
 *         int32_t left = 0;
 *         while (!kovra_asn1_decode_any_isfinish(ctx)) {
 *             size_t count = fread(piece, 1, sizeof piece, from);
 *             if (count == 0 || kovra_asn1_decode_any_update(ctx, piece, (int32_t)count, &left) != 1)
 *                 break;
 *         }
 *         kovra_asn1_decode_any_ctx_toobject(ctx, KOVRA_ASN1_TYPE_CERTIFICATE, &certificate, errors);
 *         kovra_asn1_decode_any_ctx_free(ctx);
 *         return certificate;
 *     }
 *
 * The elements inside a constructed one are walked over, definite ones too. That makes these contexts stricter than
 * kovra_asn1_decode with type 23, which does not look into definite content: an element inside that is malformed, or
 * reaches over the end of the one around it, is failure, and so is a primitive element of indefinite length. They are
 * more lenient in another respect: universal tags are taken whatever their number and form, and refused when the
 * element is made an object.
 *
 * Tag numbers of several octets are read differently, too. An octet below 80 continues the number; the first octet of
 * 80 and above ends it, and is read again as the first length octet. 1F 01 82 01 00 has tag number 130 and length 256.
 * An element with such a tag, or with one inside, is mostly refused, or ends elsewhere than by X.690 (clause 8.1.2.4).
 *
 * Nothing is recorded in an error context but by kovra_asn1_decode_any_ctx_toobject. A handle of another kind is
 * refused like null. A context is for one thread at a time.
 *
 * @{ */
#ifndef KOVRA_ASN1_DECODE_H
#define KOVRA_ASN1_DECODE_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** The open-element context: any element, kept as it arrives until it is complete. Memory grows with the octets that
 * have come, not with an announced length; an element of more than 2,147,483,647 octets in all is failure. */
typedef struct kovra_asn1_decode_any_ctx kovra_asn1_decode_any_ctx;

/** kovra_asn1_decode_any_ctx_new returns a new context in state 0, or null when memory is short. */
KOVRA_ASN1_API kovra_asn1_decode_any_ctx *KOVRA_CALL kovra_asn1_decode_any_ctx_new(void) KOVRA_NOTHROW;

/** kovra_asn1_decode_any_update takes the next `length` octets, stores in `*out_left` how many of them stand behind the
 * end of the element and were not taken, and returns 1. A complete context takes none. 0, with nothing stored, for null
 * `ctx` or `out_left`, a negative length, null data with a positive one, and when the context is in state 7 or gets
 * there, as it does when memory is short. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_any_update(kovra_asn1_decode_any_ctx *ctx, const void *data,
                                                               int32_t length, int32_t *out_left) KOVRA_NOTHROW;

/** kovra_asn1_decode_any_isfinish returns 1 when the element is complete (state 6), else 0, also for null. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_any_isfinish(const kovra_asn1_decode_any_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_any_ctx_iseoc returns 1 when the element is complete and was an end-of-contents marker, 00 00,
 * else 0. Within definite content such a marker is an element like others. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_any_ctx_iseoc(const kovra_asn1_decode_any_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_any_identifier_length takes octets until the identifier and length octets are there, stores class,
 * form, tag number and length (-1 for indefinite), and in `*out_left` the octets not taken, and returns 1; the content
 * is for kovra_asn1_decode_any_update. When they are not there yet it returns -100, with `*out_left` 0 and nothing else
 * stored, and wants the next piece. With `fresh` not 0 the context must be in state 0, otherwise in a state below 4; 0
 * when it is not, for a null place or `ctx`, a negative length, null data with a positive one, and when the context
 * gets to state 7. Of an end-of-contents marker only the first octet is taken, and described as class 0, form 1, tag 0,
 * length 0. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_any_identifier_length(kovra_asn1_decode_any_ctx *ctx, int32_t fresh,
                                                                          const void *data, int32_t length,
                                                                          uint32_t *out_class, int32_t *out_form,
                                                                          int32_t *out_tag, int32_t *out_length,
                                                                          int32_t *out_left) KOVRA_NOTHROW;

/** kovra_asn1_decode_any_ctx_toobject reads the complete element as a value of the type and stores it; the context
 * stays as it is and may be asked again, and the value does not need it. Codes, in `ctx_err`: 0x10002 for null `ctx` or
 * place; 0x10001 when the element is not complete, and for a handle of another kind; then those of
 * kovra_asn1_any_toobject. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_any_ctx_toobject(const kovra_asn1_decode_any_ctx *ctx,
                                                                     uint32_t type, kovra_asn1_value **out_value,
                                                                     kovra_err_ctx *ctx_err) KOVRA_NOTHROW;

/** kovra_asn1_decode_any_ctx_free releases a context. Null is ignored. */
KOVRA_ASN1_API void KOVRA_CALL kovra_asn1_decode_any_ctx_free(kovra_asn1_decode_any_ctx *ctx) KOVRA_NOTHROW;

/** The OCTET STRING context (X.690 clause 8.7): primitive, or constructed of segments, which are OCTET STRINGs and may
 * be constructed themselves. What it takes is what kovra_asn1_decode takes as type 4. Content octets are passed on as
 * they arrive and none are kept, so that the content of a segmented string may have any size. */
typedef struct kovra_asn1_decode_octetstring_ctx kovra_asn1_decode_octetstring_ctx;

/** kovra_asn1_decode_octetstring_ctx_new returns a new context in state 0, or null when memory is short. */
KOVRA_ASN1_API kovra_asn1_decode_octetstring_ctx *KOVRA_CALL kovra_asn1_decode_octetstring_ctx_new(void) KOVRA_NOTHROW;

/** kovra_asn1_decode_octetstring_update takes the next `length` octets of a whole element, appends the content octets
 * among them to `out_stream` (null: they are only counted), stores in `*out_left` how many octets stand behind the
 * element, and returns 1. 0, with nothing stored, as kovra_asn1_decode_any_update, and when the stream cannot be
 * written; octets that came before the fault have then been written. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_octetstring_update(kovra_asn1_decode_octetstring_ctx *ctx,
                                                                       const void *data, int32_t length,
                                                                       kovra_stream *out_stream,
                                                                       int32_t *out_left) KOVRA_NOTHROW;

/** kovra_asn1_decode_octetstring_content_update does the same for a context that is in the content, by
 * kovra_asn1_decode_octetstring_ctx_setstate or because the header was taken; 0 in a state below 4. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_octetstring_content_update(kovra_asn1_decode_octetstring_ctx *ctx,
                                                                               const void *data, int32_t length,
                                                                               kovra_stream *out_stream,
                                                                               int32_t *out_left) KOVRA_NOTHROW;

/** kovra_asn1_decode_octetstring_ctx_setstate puts a new context at the content of an element whose identifier and
 * length octets were read elsewhere, which may have had an implicit tag: `form` as the identifier said and the length,
 * -1 for indefinite. Returns 1; 0, with nothing changed, for null, a context that is not in state 0, a length below -1
 * and a primitive element of indefinite length. Short memory: 0, and state 7. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_octetstring_ctx_setstate(kovra_asn1_decode_octetstring_ctx *ctx,
                                                                             int32_t form,
                                                                             int32_t content_length) KOVRA_NOTHROW;

/** kovra_asn1_decode_octetstring_ctx_getencodelength returns how many octets of the encoding were taken so far, header
 * octets included that the context was given; -2 for null. */
KOVRA_ASN1_API int64_t KOVRA_CALL
kovra_asn1_decode_octetstring_ctx_getencodelength(const kovra_asn1_decode_octetstring_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_octetstring_ctx_isfinish returns 1 when the element is complete (state 6), else 0, also for null.
 */
KOVRA_ASN1_API int32_t KOVRA_CALL
kovra_asn1_decode_octetstring_ctx_isfinish(const kovra_asn1_decode_octetstring_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_octetstring_ctx_free releases a context. Null is ignored. */
KOVRA_ASN1_API void KOVRA_CALL kovra_asn1_decode_octetstring_ctx_free(kovra_asn1_decode_octetstring_ctx *ctx)
    KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
