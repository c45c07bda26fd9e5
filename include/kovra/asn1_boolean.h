#ifndef KOVRA_ASN1_BOOLEAN_H
#define KOVRA_ASN1_BOOLEAN_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_boolean_true(void) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_boolean_false(void) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_boolean_istrue(const kovra_asn1_value *value) KOVRA_NOTHROW;

KOVRA_C_END

#endif
