/** @defgroup asn1_oid OBJECT IDENTIFIER
 * @ingroup kovra_asn1
 *
 * OBJECT IDENTIFIER (type 6) and RELATIVE-OID (type 90): one record (X.690 clauses 8.19 and 8.20). Arcs have 64 bits.
 *
 * Decoding keeps the content octets as they are. Octets of an unfinished last arc are kept, but not in the text;
 * content of nothing else has an empty text. Codes of decoding the content: 0x10002, 0x1026a (constructed), 0x10206
 * (indefinite), 0x10203 (empty), 0x10000, 0x102eb for an arc that begins with 80 or needs more than 64 bits. Encoding
 * the content: 0x10002, 0x10203 (another length).
 *
 * @{ */
#ifndef KOVRA_ASN1_OID_H
#define KOVRA_ASN1_OID_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_asn1_oid_new returns a new OBJECT IDENTIFIER of dotted text such as "1.2.840.113549". Arcs end with a full
 * stop or a blank; the stored text has full stops, and leading zeros as given. Null for fewer than 3 characters or two
 * arcs, a first arc above 2, a second above 39 under 0 and 1, an empty arc or one of more than 30 digits, an arc from
 * 18,446,744,073,709,551,615 on, any other character, and when memory is short. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_oid_new(const char *text) KOVRA_NOTHROW;

/** kovra_asn1_relative_oid_new returns a new RELATIVE-OID of text by the same rules, with one arc or more and without
 * limits on the first two. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_relative_oid_new(const char *text) KOVRA_NOTHROW;

/** kovra_asn1_oid_getstring returns the dotted text, zero-terminated and borrowed; null for null. */
KOVRA_ASN1_API const char *KOVRA_CALL kovra_asn1_oid_getstring(const kovra_asn1_value *oid) KOVRA_NOTHROW;

/** kovra_asn1_relative_oid_getstring is kovra_asn1_oid_getstring. */
KOVRA_ASN1_API const char *KOVRA_CALL kovra_asn1_relative_oid_getstring(const kovra_asn1_value *oid) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
