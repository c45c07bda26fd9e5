#ifndef KOVRA_UTIL_TIME_H
#define KOVRA_UTIL_TIME_H

#include <stdint.h>

#include "kovra/export.h"

KOVRA_C_BEGIN

typedef struct kovra_time kovra_time;

KOVRA_UTIL_API kovra_time *kovra_time_newutctime(int32_t year, int32_t month, int32_t day, int32_t hour, int32_t minute,
                                                 int32_t second, int32_t ns) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_time *kovra_time_newlocaltime(int32_t year, int32_t month, int32_t day, int32_t hour,
                                                   int32_t minute, int32_t second, int32_t ns,
                                                   int32_t isdst) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_time *kovra_time_newunix(int64_t seconds, int32_t ns) KOVRA_NOTHROW;
KOVRA_UTIL_API kovra_time *kovra_time_dup(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API void kovra_time_free(kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_addminute(kovra_time *time, int32_t minutes) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_addday(kovra_time *time, int32_t days) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_isutctime(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_isleapsecond(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_getyear(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_getmonth(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_getday(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_gethour(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_getminute(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_getsecond(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_getns(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_getisdst(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_compare(const kovra_time *left, const kovra_time *right,
                                          int32_t *out_order) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t kovra_time_tounix(const kovra_time *time, int64_t *out_seconds) KOVRA_NOTHROW;

KOVRA_C_END

#endif
