#ifndef KOVRA_ASN1_LIST_H
#define KOVRA_ASN1_LIST_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_list_new(void) KOVRA_NOTHROW;
KOVRA_ASN1_API void kovra_asn1_list_free(kovra_asn1_value *list, uint32_t type) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_list_put(kovra_asn1_value *list, kovra_asn1_value *element) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_list_get(kovra_asn1_value *list, int32_t index,
                                           kovra_asn1_value **out_element) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_list_getsize(const kovra_asn1_value *list) KOVRA_NOTHROW;

KOVRA_C_END

#endif
