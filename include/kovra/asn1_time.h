#ifndef KOVRA_ASN1_TIME_H
#define KOVRA_ASN1_TIME_H

#include "kovra/asn1_value.h"
#include "kovra/util_time.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_time_new(int32_t year, int32_t month, int32_t day, int32_t hour,
                                                     int32_t minute, int32_t second, int32_t ns) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_utctime_new(int32_t year, int32_t month, int32_t day, int32_t hour,
                                                        int32_t minute, int32_t second) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_gentime_new(int32_t year, int32_t month, int32_t day, int32_t hour,
                                                        int32_t minute, int32_t second, int32_t ns) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_asn1_time_newutctime(const kovra_time *time, uint32_t flags) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_time *kovra_asn1_time_getutctime(const kovra_asn1_value *time) KOVRA_NOTHROW;

KOVRA_C_END

#endif
