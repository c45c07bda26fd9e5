#ifndef KOVRA_ASN1_OID_H
#define KOVRA_ASN1_OID_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_oid_new(const char *text) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_relative_oid_new(const char *text) KOVRA_NOTHROW;
KOVRA_ASN1_API const char *kovra_asn1_oid_getstring(const kovra_asn1_value *oid) KOVRA_NOTHROW;
KOVRA_ASN1_API const char *kovra_asn1_relative_oid_getstring(const kovra_asn1_value *oid) KOVRA_NOTHROW;

KOVRA_C_END

#endif
