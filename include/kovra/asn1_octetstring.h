/** @defgroup asn1_octetstring OCTET STRING and character strings
 * @ingroup kovra_asn1
 *
 * OCTET STRING (type 4) and the character strings (types 8 to 19): one record (X.690 clauses 8.7 and 8.23).
 *
 * A character string is its octets, of any values; only the JSON mapping looks at repertoires. All types read the
 * primitive form and the constructed one, whose segments are always OCTET STRINGs and may nest. Type 8 has no tag of
 * its own: it is read and written under an implicit tag only, whole it is refused (0x1026c, 0x1026d).
 *
 * Codes of decoding the content: 0x10002; 0x10000; 0x10206 (primitive and indefinite); 0x10203 for segments longer
 * than the length; those of a segment: 0x102e5 (identifier), 0x1020a (neither an OCTET STRING nor end-of-contents, and
 * end-of-contents where the length is definite), 0x102e9 (a marker cut short; a second octet that is not 00 fails
 * without an entry), 0x102e7 (length). Decoding the whole: those, and 0x10219 for end-of-contents instead of a value
 * of type 4; types 9 to 19: 0x102e5, 0x1020a (another class or tag), 0x102e7.
 *
 * Codes of encoding the content: 0x10002; 0x10001 for a length below -1; 0x10004 when the stream holds another number
 * of octets; for -1 0x10109, 0x102e4, 0x102e8. Encoding the whole, when the length cannot be had: 0x10203 for type 4,
 * 0x102ea for types 9 to 19; 0x102e6 on top of the entry of the length octets, 0x102e4 (types 9 to 19) on that of the
 * identifier octets.
 *
 * @{ */
#ifndef KOVRA_ASN1_OCTETSTRING_H
#define KOVRA_ASN1_OCTETSTRING_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_asn1_octetstring_new returns a new string with a copy of the octets; null data with length 0 is the empty
 * string. Null for a negative length, null data with a positive one, and when memory is short. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_octetstring_new(const void *data, int32_t length) KOVRA_NOTHROW;

/** kovra_asn1_string_new is kovra_asn1_octetstring_new, for character strings. No repertoire is checked. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_string_new(const void *data, int32_t length) KOVRA_NOTHROW;

/** kovra_asn1_octetstring_newstream returns a new string whose octets are all octets of a stream, from its start. The
 * stream stays the caller's and must outlive the value. Null for null and when memory is short.
 *
 * Contents of 5,242,880 octets and more that are not in a memory stream are not copied when the value becomes a part of
 * another: what a constructor, or kovra_asn1_objecttoany, makes of it refers to the same stream, which must outlive
 * that too, and shares its read position. kovra_asn1_dupobject does copy them. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_octetstring_newstream(kovra_stream *stream) KOVRA_NOTHROW;

/** kovra_asn1_octetstring_getlength returns the number of octets: -1 for 5,242,880 and more in a stream that is not a
 * memory stream, which are then encoded with indefinite length; -2 for null and when the stream cannot tell. The value
 * of octets in a stream, whose size may change, keeps in mind what it told last; -1 and -2 do not count. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_octetstring_getlength(const kovra_asn1_value *string) KOVRA_NOTHROW;

/** kovra_asn1_string_getlength is kovra_asn1_octetstring_getlength. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_string_getlength(const kovra_asn1_value *string) KOVRA_NOTHROW;

/** kovra_asn1_octetstring_getall copies all octets into a buffer that the caller made as long as
 * kovra_asn1_octetstring_getlength told last, and returns 1. It never writes more than that; 0 when a stream has
 * another size by now, cannot tell its size or fails, which may leave some octets in the buffer, and for a null
 * argument. Where no length was told, as for 5,242,880 octets and more in a file, the buffer must hold as many octets
 * as the stream has at this call: use kovra_asn1_octetstring_get, which is given the size, for a stream that may
 * grow. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_octetstring_getall(kovra_asn1_value *string, void *buffer) KOVRA_NOTHROW;

/** kovra_asn1_string_get is kovra_asn1_octetstring_getall. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_string_get(kovra_asn1_value *string, void *buffer) KOVRA_NOTHROW;

/** kovra_asn1_octetstring_getblob returns a new blob with the octets, released with kovra_data_blob_free; null for
 * null, when the length is -1 or -2, when the size of a stream changes during the call, and when memory is short. */
KOVRA_ASN1_API kovra_data_blob *KOVRA_CALL kovra_asn1_octetstring_getblob(kovra_asn1_value *string) KOVRA_NOTHROW;

/** kovra_asn1_octetstring_get reads up to `size` octets into the buffer, from the start (mode 1) or where the last call
 * stopped (mode 2), and stores their number in `*out_count`, 0 at the end. Codes: 0x10002 for a null value or buffer,
 * 0x10001 for a negative size, 0x10105 for another mode, 0x10109 when the stream cannot be rewound. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_octetstring_get(kovra_asn1_value *string, int32_t mode, void *buffer,
                                                             int32_t size, int32_t *out_count,
                                                             kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_octetstring_getobject reads the octets as one whole encoding of the type, as in the value of an
 * extension, and stores the new value. Codes: 0x10002 for a null value or place; 0x10109; the type's decode code on
 * top of those of the decoding; 0x1027f when octets are left. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_octetstring_getobject(kovra_asn1_value *string, uint32_t type,
                                                                   kovra_asn1_value **out_value,
                                                                   kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_octetstring_ex reads one whole OCTET STRING and appends its octets to `content_stream`, which the
 * value uses without owning it: the stream must outlive the value. Codes as for decoding type 4. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_octetstring_ex(kovra_stream *stream, kovra_stream *content_stream,
                                                                   kovra_asn1_value **out_string, int32_t *out_read,
                                                                   kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_decode_octetstring_content_ex does the same for content octets, with form and length as read before them
 * (-1 for indefinite). Codes as for decoding the content of type 4. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_decode_octetstring_content_ex(kovra_stream *stream,
                                                                           kovra_stream *content_stream,
                                                                           kovra_asn1_value **out_string, int32_t form,
                                                                           int32_t length, int32_t *out_read,
                                                                           kovra_err_ctx *ctx) KOVRA_NOTHROW;

/** kovra_asn1_encode_octetstring_init begins an OCTET STRING of unknown length on a stream: writes 24 80. Returns 1, or
 * 0 when writing fails. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_encode_octetstring_init(kovra_stream *stream) KOVRA_NOTHROW;

/** kovra_asn1_encode_octetstring_update writes the next octets of it as one primitive OCTET STRING. Returns 1, or 0 for
 * null data with a positive length, a negative length, and when writing fails or memory is short. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_encode_octetstring_update(kovra_stream *stream, const void *data,
                                                                       int32_t length) KOVRA_NOTHROW;

/** kovra_asn1_encode_octetstring_end ends it: writes 00 00. Returns 1, or 0 when writing fails. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_encode_octetstring_end(kovra_stream *stream) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
