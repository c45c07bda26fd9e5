/** @defgroup asn1_attribute Attributes
 * @ingroup kovra_asn1
 *
 * Attributes and the attribute values that have structures of their own (X.501, clause 8; X.520; PKCS #9).
 *
 * What holds for all structures stands in asn1_x509.h. Types 42 and 43 are one record; an Attribute with values with
 * context is refused as type 43 with 0x1027d, in both directions. An S/MIME capability (type 53) is made and read with
 * the functions of AlgorithmIdentifier.
 *
 * A DirectoryString (type 47) and a PKCS #9 string (type 52) hold one of several character strings as its universal tag
 * number and its octets, which are not checked against the tag. Decoding: 0x10285 and 0x1028f when the tag is not one
 * of them, 0x10219 on top of what reading the octets recorded. The content alone cannot be decoded (0x1026d).
 *
 * @{ */
#ifndef KOVRA_ASN1_ATTRIBUTE_H
#define KOVRA_ASN1_ATTRIBUTE_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_x500attribute_new returns an Attribute of an OBJECT IDENTIFIER and a list of ANY, without values with context,
 * which only decoding gives. WHEN `values` CANNOT BE COPIED, BECAUSE IT IS NO LIST OF ANY OR MEMORY IS SHORT, THE
 * FUNCTION RELEASES THE CALLER'S `type` and returns null: the caller must not use or release `type` then. In every
 * other case, null arguments and a `type` that cannot be copied included, `type` stays the caller's. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500attribute_new(kovra_asn1_value *type,
                                                                    const kovra_asn1_value *values) KOVRA_NOTHROW;

/** kovra_x500attribute_gettype returns type, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500attribute_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x500attribute_getvalue returns values, a list of ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500attribute_getvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x500attribute_getcontext returns valuesWithContext, a list of type 136, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500attribute_getcontext(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x500attribute_hascontext tells whether there are values with context. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x500attribute_hascontext(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x500attrvalueswithcontextitem_getvalue returns value of an item of type 136, an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500attrvalueswithcontextitem_getvalue(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x500attrvalueswithcontextitem_getcontexts returns contextList of an item of type 136, a list of Contexts
 * (asn1_x500name.h). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500attrvalueswithcontextitem_getcontexts(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x500dirstring_new returns a DirectoryString of a universal tag number, 12, 19, 20, 28 or 30, and an OCTET
 * STRING of the octets. Null for another tag. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500dirstring_new(int32_t tag,
                                                                    const kovra_asn1_value *string) KOVRA_NOTHROW;

/** kovra_pkcs9string_new returns a PKCS #9 string, which may have the tag 22 (IA5String) as well. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs9string_new(int32_t tag,
                                                                  const kovra_asn1_value *string) KOVRA_NOTHROW;

/** kovra_x500dirstring_gettype stores the universal tag number and returns 1; 0, with nothing stored, for a null
 * argument. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x500dirstring_gettype(const kovra_asn1_value *value,
                                                              int32_t *out_tag) KOVRA_NOTHROW;

/** kovra_pkcs9string_gettype is kovra_x500dirstring_gettype. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkcs9string_gettype(const kovra_asn1_value *value,
                                                            int32_t *out_tag) KOVRA_NOTHROW;

/** kovra_x500dirstring_getstring returns the octets, an OCTET STRING whatever the tag. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500dirstring_getstring(const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_pkcs9string_getstring is kovra_x500dirstring_getstring. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkcs9string_getstring(const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_x500uuidpair_new returns a UUID pair (type 48) of twice 16 octets. Decoding refuses octet strings of another
 * length with 0x1020b. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500uuidpair_new(const void *issuer_uuid,
                                                                   const void *subject_uuid) KOVRA_NOTHROW;

/** kovra_x500uuidpair_getissueruuid copies issuerUUID into a buffer of 16 octets and returns 1; 0 for a null argument.
 */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x500uuidpair_getissueruuid(const kovra_asn1_value *pair,
                                                                   void *out) KOVRA_NOTHROW;

/** kovra_x500uuidpair_getsubjectuuid copies subjectUUID in the same way. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x500uuidpair_getsubjectuuid(const kovra_asn1_value *pair,
                                                                    void *out) KOVRA_NOTHROW;

/** kovra_x500telexnum_new returns a TelexNumber (X.520) of three PrintableStrings: telexNumber, countryCode,
 * answerback.
 */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500telexnum_new(const kovra_asn1_value *number,
                                                                   const kovra_asn1_value *country_code,
                                                                   const kovra_asn1_value *answerback) KOVRA_NOTHROW;

/** kovra_x500telexnum_gettelexnum returns telexNumber, a PrintableString. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500telexnum_gettelexnum(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x500telexnum_getcoutrycode returns countryCode, a PrintableString. (The name is spelled so.) */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500telexnum_getcoutrycode(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x500telexnum_getanswerback returns answerback, a PrintableString. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500telexnum_getanswerback(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x500nameandoptuid_new returns a NameAndOptionalUID (X.520) of a Name and a BIT STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500nameandoptuid_new(const kovra_asn1_value *dn,
                                                                        const kovra_asn1_value *uid) KOVRA_NOTHROW;

/** kovra_x500nameandoptuid_getname returns dn, a Name. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500nameandoptuid_getname(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x500nameandoptuid_getuid returns uid, a BIT STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500nameandoptuid_getuid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
