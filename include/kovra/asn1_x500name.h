/* Distinguished names (RFC 5280, 4.1.2.4; X.501, clause 9). */
#ifndef KOVRA_ASN1_X500NAME_H
#define KOVRA_ASN1_X500NAME_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_x500name_new(void) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x500name_addrdn(kovra_asn1_value *name, kovra_asn1_value *rdn, int32_t copy) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500name_getdn(const kovra_asn1_value *name) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *
kovra_x500attrtypedistval_new(const kovra_asn1_value *type, const kovra_asn1_value *value,
                              const kovra_asn1_value *primary_distinguished,
                              const kovra_asn1_value *values_with_context) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixattrtypeval_new(const kovra_asn1_value *type,
                                                           const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500attrtypedistval_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500attrtypedistval_getvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500attrtypedistval_getprimedist(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500attrtypedistval_getcontext(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x500attrtypedistval_hascontext(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500dnvalueswithcontextitem_new(const kovra_asn1_value *disting_attr_value,
                                                                       const kovra_asn1_value *contexts) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *
kovra_x500dnvalueswithcontextitem_getdistvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x500dnvalueswithcontextitem_hasdistvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *
kovra_x500dnvalueswithcontextitem_getcontexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500context_new(const kovra_asn1_value *context_type,
                                                       const kovra_asn1_value *context_values,
                                                       const kovra_asn1_value *fallback) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500context_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500context_getvalues(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x500context_getfallback(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x500name_sort(kovra_asn1_value *name) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x500RDN_sort(kovra_asn1_value *rdn) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x500attribute_sort(kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

#endif
