/** @defgroup asn1_json Encodings as JSON
 * @ingroup kovra_asn1
 *
 * Any encoding as JSON, and back, without a schema.
 *
 * One value is one object. "type" names it, exactly and in this case, and most have a "value":
 *
 *      BOOLEAN                       true or false
 *      INTEGER ENUM                  content octets in hexadecimal, at least one; they are written and read as they
 *                                    are, also when fewer would do
 *      OCTETSTRING                   octets in hexadecimal
 *      BITSTRING                     { "unusedbits": number, "value": hexadecimal }; read too: array of booleans
 *      NULL                          no "value"
 *      OID                           dotted text
 *      SEQUENCE SETOF                array of objects; read too: SEQUENCEOF SET
 *      UTF8STRING NUMERICSTRING PRINTABLESTRING IA5STRING VISIBLESTRING
 *      UNIVERSALSTRING BMPSTRING     text; read too: ISO636STRING (VISIBLESTRING)
 *      TELETEXSTRING T61STRING       read: octets of the text; written with "hexencode" and the first name
 *      UTCTIME GENTIME               object of "year" to "second" and "ns", numbers, and "utc"; read too: "isdst"
 *      TAGGEDTYPE                    the object inside; "class" UNIVERSAL, APPLICATION, CONTEXT or PRIVATE, "number",
 *                                    "explicit"; read without "class" as CONTEXT, without "explicit" as true
 *      ANY                           no "value"; "hexencode", the whole element in hexadecimal
 *
 * A string outside its repertoire has "hexencode", the whole element, instead of "value". Another universal tag gives
 * ANY, and so does a tag of another class whose content is not exactly one element, as in an implicit tag or an
 * indefinite length.
 *
 * @{ */
#ifndef KOVRA_ASN1_JSON_H
#define KOVRA_ASN1_JSON_H

#include "kovra/asn1_value.h"
#include "kovra/util_json.h"

KOVRA_C_BEGIN

/** kovra_asn1_tojson returns the description of `length` octets of encoding, a JSON value to be released with
 * kovra_json_free. Null for null octets, unless exactly one element fills them, for an element that is not of its type
 * (such as a refused time), and when memory is short. Neither reading nor releasing recurses with the nesting. */
KOVRA_ASN1_API kovra_json *KOVRA_CALL kovra_asn1_tojson(const void *encoding, int32_t length) KOVRA_NOTHROW;

/** kovra_asn1_encodejson returns a new blob with the DER encoding of a description, released with kovra_data_blob_free.
 * Null for null, an unknown "type", a member that is missing or of another kind, text or octets that the type refuses,
 * and when memory is short. An object with "hexencode" or "base64encode" stands for a ready-made element, whatever
 * else it has; its octets are written as they are. Members of a SET are not sorted. */
KOVRA_ASN1_API kovra_data_blob *KOVRA_CALL kovra_asn1_encodejson(const kovra_json *json) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
