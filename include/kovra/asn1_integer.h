#ifndef KOVRA_ASN1_INTEGER_H
#define KOVRA_ASN1_INTEGER_H

#include "kovra/asn1_value.h"
#include "kovra/util_biginteger.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_integer_value(int32_t number) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_enum_value(int32_t number) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_integer_new(const void *octets, int32_t length) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_unsigned_integer_new(const void *magnitude, int32_t length) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_integer_newbigint(const kovra_biginteger *number) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_biginteger *kovra_asn1_integer_getbigintger(const kovra_asn1_value *integer) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_integer_get(const kovra_asn1_value *integer, void *buffer) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_integer_getlength(const kovra_asn1_value *integer) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_integer_getlong(const kovra_asn1_value *integer, int32_t *out_number) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_enum_getlong(const kovra_asn1_value *integer, int32_t *out_number) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_integer_equals(const kovra_asn1_value *left,
                                                 const kovra_asn1_value *right) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_asn1_integer_encodecmp(const kovra_asn1_value *left,
                                                    const kovra_asn1_value *right) KOVRA_NOTHROW;

KOVRA_C_END

#endif
