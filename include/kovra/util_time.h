/** @defgroup util_time Calendar times
 * @ingroup kovra_util
 *
 * Calendar times of the proleptic Gregorian calendar, years 1582 to 9999, in UTC or local. The time zone of the process
 * is never asked: a local time is its fields. All functions take null, or a handle of another kind, for an absent time.
 *
 * @{ */
#ifndef KOVRA_UTIL_TIME_H
#define KOVRA_UTIL_TIME_H

#include <stdint.h>

#include "kovra/export.h"

KOVRA_C_BEGIN

/** A calendar time. */
typedef struct kovra_time kovra_time;

/** kovra_time_newutctime returns a UTC time for kovra_time_free: month 1 to 12, a day that the month has, hour 0 to
 * 23, minute 0 to 59, second 0 to 60 (60 for any minute: see kovra_time_isleapsecond), ns 0 to 999,999,999. Null
 * when a field is out of range or memory is short. */
KOVRA_UTIL_API kovra_time *KOVRA_CALL kovra_time_newutctime(int32_t year, int32_t month, int32_t day, int32_t hour,
                                                            int32_t minute, int32_t second, int32_t ns) KOVRA_NOTHROW;

/** kovra_time_newlocaltime returns a local time with the same ranges; isdst (0 or not) is kept and means nothing
 * here. */
KOVRA_UTIL_API kovra_time *KOVRA_CALL kovra_time_newlocaltime(int32_t year, int32_t month, int32_t day, int32_t hour,
                                                              int32_t minute, int32_t second, int32_t ns,
                                                              int32_t isdst) KOVRA_NOTHROW;

/** kovra_time_newunix returns the UTC time that many seconds after 1970-01-01 00:00:00, leap seconds not counted
 * (POSIX), with ns nanoseconds more. Null outside the years 1582 to 9999, for a bad ns and when memory is short. */
KOVRA_UTIL_API kovra_time *KOVRA_CALL kovra_time_newunix(int64_t seconds, int32_t ns) KOVRA_NOTHROW;

/** kovra_time_dup returns a copy for kovra_time_free; null for null and when memory is short. */
KOVRA_UTIL_API kovra_time *KOVRA_CALL kovra_time_dup(const kovra_time *time) KOVRA_NOTHROW;

/** kovra_time_free releases a time; null is ignored. */
KOVRA_UTIL_API void KOVRA_CALL kovra_time_free(kovra_time *time) KOVRA_NOTHROW;

/** kovra_time_addminute adds minutes of either sign and returns 1. Returns 0, the time unchanged, for null and when
 * the result lies outside the years 1582 to 9999. Seconds stay as they are, 60 too. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_addminute(kovra_time *time, int32_t minutes) KOVRA_NOTHROW;

/** kovra_time_addday adds days in the same way. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_addday(kovra_time *time, int32_t days) KOVRA_NOTHROW;

/** kovra_time_isutctime returns 1 for a UTC time; 0 for a local one and for null. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_isutctime(const kovra_time *time) KOVRA_NOTHROW;

/** kovra_time_isleapsecond returns 1 when the time is one of the 27 leap seconds announced for 1972-06-30 to
 * 2016-12-31, in UTC at 23:59:60; else 0. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_isleapsecond(const kovra_time *time) KOVRA_NOTHROW;

/** @{ */
/** kovra_time_getyear and the getters below return a field; 0 for null. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_getyear(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_getmonth(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_getday(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_gethour(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_getminute(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_getsecond(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_getns(const kovra_time *time) KOVRA_NOTHROW;
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_getisdst(const kovra_time *time) KOVRA_NOTHROW;
/** @} */

/** kovra_time_compare stores -1, 0 or 1 as the fields of `left` come before, equal or come behind those of `right`
 * and returns 1; 0 for a null argument and when one is UTC and the other local. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_compare(const kovra_time *left, const kovra_time *right,
                                                     int32_t *out_order) KOVRA_NOTHROW;

/** kovra_time_tounix stores the seconds since 1970-01-01 00:00:00 (POSIX; second 60 counts as the second behind it)
 * and returns 1; 0 for a local time and a null argument. */
KOVRA_UTIL_API int32_t KOVRA_CALL kovra_time_tounix(const kovra_time *time, int64_t *out_seconds) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
