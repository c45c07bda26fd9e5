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

/** @name Tag numbers of the universal class (X.680 clause 8.4)
 *
 * Not to be taken for type identifiers (asn1_types.h), of which many have the same names and other numbers.
 * @{ */
#define KOVRA_ASN1_TAG_END_OF_CONTENTS 0   /**< end-of-contents marker */
#define KOVRA_ASN1_TAG_BOOLEAN 1           /**< BOOLEAN */
#define KOVRA_ASN1_TAG_INTEGER 2           /**< INTEGER */
#define KOVRA_ASN1_TAG_BIT_STRING 3        /**< BIT STRING */
#define KOVRA_ASN1_TAG_OCTET_STRING 4      /**< OCTET STRING */
#define KOVRA_ASN1_TAG_NULL 5              /**< NULL */
#define KOVRA_ASN1_TAG_OBJECT_IDENTIFIER 6 /**< OBJECT IDENTIFIER */
#define KOVRA_ASN1_TAG_OBJECT_DESCRIPTOR 7 /**< ObjectDescriptor */
#define KOVRA_ASN1_TAG_EXTERNAL 8          /**< EXTERNAL and INSTANCE OF */
#define KOVRA_ASN1_TAG_REAL 9              /**< REAL */
#define KOVRA_ASN1_TAG_ENUMERATED 10       /**< ENUMERATED */
#define KOVRA_ASN1_TAG_EMBEDDED_PDV 11     /**< EMBEDDED PDV */
#define KOVRA_ASN1_TAG_UTF8_STRING 12      /**< UTF8String */
#define KOVRA_ASN1_TAG_RELATIVE_OID 13     /**< RELATIVE-OID */
#define KOVRA_ASN1_TAG_SEQUENCE 16         /**< SEQUENCE and SEQUENCE OF */
#define KOVRA_ASN1_TAG_SET 17              /**< SET and SET OF */
#define KOVRA_ASN1_TAG_NUMERIC_STRING 18   /**< NumericString */
#define KOVRA_ASN1_TAG_PRINTABLE_STRING 19 /**< PrintableString */
#define KOVRA_ASN1_TAG_TELETEX_STRING 20   /**< TeletexString */
#define KOVRA_ASN1_TAG_VIDEOTEX_STRING 21  /**< VideotexString */
#define KOVRA_ASN1_TAG_IA5_STRING 22       /**< IA5String */
#define KOVRA_ASN1_TAG_UTC_TIME 23         /**< UTCTime */
#define KOVRA_ASN1_TAG_GENERALIZED_TIME 24 /**< GeneralizedTime */
#define KOVRA_ASN1_TAG_GRAPHIC_STRING 25   /**< GraphicString */
#define KOVRA_ASN1_TAG_VISIBLE_STRING 26   /**< VisibleString */
#define KOVRA_ASN1_TAG_GENERAL_STRING 27   /**< GeneralString */
#define KOVRA_ASN1_TAG_UNIVERSAL_STRING 28 /**< UniversalString */
#define KOVRA_ASN1_TAG_CHARACTER_STRING 29 /**< CHARACTER STRING */
#define KOVRA_ASN1_TAG_BMP_STRING 30       /**< BMPString */
/** @} */

/** kovra_asn1_identifier_length returns the number of identifier octets of a tag number, 1 to 6; -2 for a negative one.
 */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_identifier_length(int32_t tag) KOVRA_NOTHROW;

/** kovra_asn1_encode_identifier appends the identifier octets, in one write. Any form but 0 is primitive. Codes:
 * 0x10002 for a null stream, 0x10200 for a class that is not one of the four, 0x10201 for a negative tag number. X.690
 * clause 8.1.2. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_encode_identifier(kovra_stream *stream, uint32_t tag_class, int32_t form,
                                                               int32_t tag, int32_t *out_written,
                                                               kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_identifier reads the identifier octets and stores class, form and tag number. Codes: 0x10002 for a
 * null stream or out pointer (`out_read` may be null); 0x10202 for a tag number above 2,147,483,647; 0x10201 for one
 * below 31 in the long form. Leading octets 80 of a long form are accepted, although X.690 clause 8.1.2.4.2 c forbids
 * them. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_identifier(kovra_stream *stream, uint32_t *out_class,
                                                               int32_t *out_form, int32_t *out_tag, int32_t *out_read,
                                                               kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_length_length returns the number of length octets, 1 to 5; 1 for -1, -2 for any other negative length. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_length_length(int32_t length) KOVRA_NOTHROW;

/** kovra_asn1_encode_length appends the length octets, in one write: the fewest possible, or 80 for -1, which obliges
 * the writer of the content to end it with 00 00. Codes: 0x10002 for a null stream, 0x10203 for a length below -1.
 * X.690 clauses 8.1.3 and 10.1. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_encode_length(kovra_stream *stream, int32_t length, int32_t *out_written,
                                                           kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_length reads the length octets and stores the length, -1 for indefinite. Codes: 0x10002 for a null
 * stream or out_length; 0x10203 for the octet FF; 0x10202, the code of tag numbers, for a length above 2,147,483,647.
 * Long forms of any number of octets are accepted where short ones would do. The length is not compared with what the
 * stream holds. X.690 clause 8.1.3. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_length(kovra_stream *stream, int32_t *out_length, int32_t *out_read,
                                                           kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_eoc_length reads the second octet of an end-of-contents marker whose first was read as an
 * identifier. Codes: 0x10002 for a null stream, 0x10205 for any octet but 00. X.690 clause 8.1.5. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_eoc_length(kovra_stream *stream, int32_t *out_read,
                                                               kovra_err_ctx *ctx) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
