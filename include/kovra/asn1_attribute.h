/* Attributes and the attribute values that have structures of their own (X.501, clause 8; X.520; PKCS #9). */
#ifndef KOVRA_ASN1_ATTRIBUTE_H
#define KOVRA_ASN1_ATTRIBUTE_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_x500attribute_new(kovra_asn1_value *type,
                                                         const kovra_asn1_value *values) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500attribute_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500attribute_getvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500attribute_getcontext(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x500attribute_hascontext(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *
kovra_x500attrvalueswithcontextitem_getvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *
kovra_x500attrvalueswithcontextitem_getcontexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500dirstring_new(int32_t tag, const kovra_asn1_value *string) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkcs9string_new(int32_t tag, const kovra_asn1_value *string) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x500dirstring_gettype(const kovra_asn1_value *value, int32_t *out_tag) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_pkcs9string_gettype(const kovra_asn1_value *value, int32_t *out_tag) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500dirstring_getstring(const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkcs9string_getstring(const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500uuidpair_new(const void *issuer_uuid,
                                                        const void *subject_uuid) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x500uuidpair_getissueruuid(const kovra_asn1_value *pair, void *out) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x500uuidpair_getsubjectuuid(const kovra_asn1_value *pair, void *out) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500telexnum_new(const kovra_asn1_value *number,
                                                        const kovra_asn1_value *country_code,
                                                        const kovra_asn1_value *answerback) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500telexnum_gettelexnum(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500telexnum_getcoutrycode(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500telexnum_getanswerback(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500nameandoptuid_new(const kovra_asn1_value *dn,
                                                             const kovra_asn1_value *uid) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500nameandoptuid_getname(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500nameandoptuid_getuid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

#endif
