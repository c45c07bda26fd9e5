/** @defgroup asn1_lib Identifier and length octets
 * @ingroup kovra_asn1
 *
 * Identifier and length octets (X.690 clause 8.1).
 *
 * @{ */
#ifndef KOVRA_ASN1_LIB_H
#define KOVRA_ASN1_LIB_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** @name Classes, as the identifier octet's top two bits in place
 * @{ */
#define KOVRA_ASN1_UNIVERSAL 0x00   /**< universal */
#define KOVRA_ASN1_APPLICATION 0x40 /**< application */
#define KOVRA_ASN1_CONTEXT 0x80     /**< context-specific */
#define KOVRA_ASN1_PRIVATE 0xC0     /**< private */
/** @} */

/** @name Forms
 * @{ */
#define KOVRA_ASN1_CONSTRUCTED 0 /**< the content is made of elements */
#define KOVRA_ASN1_PRIMITIVE 1   /**< the content is octets */
/** @} */

/** kovra_asn1_identifier_length returns the number of identifier octets of a tag number, 1 to 6; -2 for a negative one.
 */
KOVRA_ASN1_API int32_t kovra_asn1_identifier_length(int32_t tag) KOVRA_NOTHROW;

/** kovra_asn1_encode_identifier appends the identifier octets, in one write. Any form but 0 is primitive. Codes:
 * 0x10002 for a null stream, 0x10200 for a class that is not one of the four, 0x10201 for a negative tag number. X.690
 * clause 8.1.2. */
KOVRA_ASN1_API int32_t kovra_asn1_encode_identifier(kovra_stream *stream, uint32_t tag_class, int32_t form, int32_t tag,
                                                    int32_t *out_written, kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_identifier reads the identifier octets and stores class, form and tag number. Codes: 0x10002 for a
 * null stream or out pointer (`out_read` may be null); 0x10202 for a tag number above 2,147,483,647; 0x10201 for one
 * below 31 in the long form. Leading octets 80 of a long form are accepted, although X.690 clause 8.1.2.4.2 c forbids
 * them. */
KOVRA_ASN1_API int32_t kovra_asn1_decode_identifier(kovra_stream *stream, uint32_t *out_class, int32_t *out_form,
                                                    int32_t *out_tag, int32_t *out_read,
                                                    kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_length_length returns the number of length octets, 1 to 5; 1 for -1, -2 for any other negative length. */
KOVRA_ASN1_API int32_t kovra_asn1_length_length(int32_t length) KOVRA_NOTHROW;

/** kovra_asn1_encode_length appends the length octets, in one write: the fewest possible, or 80 for -1, which obliges
 * the writer of the content to end it with 00 00. Codes: 0x10002 for a null stream, 0x10203 for a length below -1.
 * X.690 clauses 8.1.3 and 10.1. */
KOVRA_ASN1_API int32_t kovra_asn1_encode_length(kovra_stream *stream, int32_t length, int32_t *out_written,
                                                kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_length reads the length octets and stores the length, -1 for indefinite. Codes: 0x10002 for a null
 * stream or out_length; 0x10203 for the octet FF; 0x10202, the code of tag numbers, for a length above 2,147,483,647.
 * Long forms of any number of octets are accepted where short ones would do. The length is not compared with what the
 * stream holds. X.690 clause 8.1.3. */
KOVRA_ASN1_API int32_t kovra_asn1_decode_length(kovra_stream *stream, int32_t *out_length, int32_t *out_read,
                                                kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_eoc_length reads the second octet of an end-of-contents marker whose first was read as an
 * identifier. Codes: 0x10002 for a null stream, 0x10205 for any octet but 00. X.690 clause 8.1.5. */
KOVRA_ASN1_API int32_t kovra_asn1_decode_eoc_length(kovra_stream *stream, int32_t *out_read,
                                                    kovra_err_ctx *ctx) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
