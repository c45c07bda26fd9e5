/** @defgroup asn1_time Times
 * @ingroup kovra_asn1
 *
 * UTCTime (type 21), GeneralizedTime (type 22) and their choice (type 20): one record (X.680 clauses 46 and 47).
 *
 * The text is kept as it was read and written so again. Read are, with YY below 50 in the years 20YY and others in
 * 19YY:
 *
 *      UTCTime          YYMMDDhhmm[ss](Z | +hhmm | -hhmm)
 *      GeneralizedTime  YYYYMMDDhh[mm[ss]][(. | ,)digits][Z | +hhmm | -hhmm]
 *
 * in the primitive form and in the constructed one, of OCTET STRING segments. Years are 1582 to 9999, days those of
 * the month (Gregorian). GeneralizedTime takes hour 24 with minute and second 0, as hour 0 of the same date, and
 * second 60 where there was a leap second. A fraction of seconds has nine digits, more are dropped. A fraction of
 * hours or minutes is read as ten times its value: .05 of an hour is 30 minutes, and what then leaves the range is
 * refused.
 *
 * Codes of decoding: 0x102e5 (identifier), 0x10208 (neither tag, or not that of types 21 and 22), 0x102e7 (length),
 * then those of gathering an OCTET STRING, 0x102ec (refused text). The content of type 20: 0x1026d. Encoding: 0x10002;
 * 0x10208 when the value is not of the type (21 and 22); 0x102e4 (identifier), 0x102ea (empty), 0x10238 (length),
 * 0x102e6 (content). Encoding the content: 0x10002, also for a value that is not of the type; 0x10203 (another
 * length).
 *
 * @{ */
#ifndef KOVRA_ASN1_TIME_H
#define KOVRA_ASN1_TIME_H

#include "kovra/asn1_value.h"
#include "kovra/util_time.h"

KOVRA_C_BEGIN

/** kovra_asn1_time_new returns a new time of a moment in UTC: a UTCTime in the years 1950 to 2049, without the
 * nanoseconds, and a GeneralizedTime in others. Null for a date, time of day or `ns` (0 to 999,999,999; not looked at
 * for a UTCTime) out of range, and when memory is short. A second of 60 is accepted for any minute and written by
 * GeneralizedTime, which can be read again, or copied into a structure, only where there was a leap second; UTCTime
 * writes 59. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_time_new(int32_t year, int32_t month, int32_t day, int32_t hour,
                                                                int32_t minute, int32_t second,
                                                                int32_t ns) KOVRA_NOTHROW;

/** kovra_asn1_utctime_new returns a UTCTime; null outside the years 1950 to 2049 too. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_utctime_new(int32_t year, int32_t month, int32_t day,
                                                                   int32_t hour, int32_t minute,
                                                                   int32_t second) KOVRA_NOTHROW;

/** kovra_asn1_gentime_new returns a GeneralizedTime. The fraction of a second is written without trailing zeros, and
 * left out when it is 0 (X.690 clause 11.7). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_gentime_new(int32_t year, int32_t month, int32_t day,
                                                                   int32_t hour, int32_t minute, int32_t second,
                                                                   int32_t ns) KOVRA_NOTHROW;

/** kovra_asn1_time_newutctime returns a new time of a companion's time, which stays the caller's. The low four bits of
 * `flags` choose UTCTime (0), GeneralizedTime (1) or one by the year (2) with its constructor above; 0x10 takes the
 * nanoseconds over, which are 0 otherwise. Null for null, a time that is not UTC, other flags, and what the
 * constructor refuses. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_time_newutctime(const kovra_time *time,
                                                                       uint32_t flags) KOVRA_NOTHROW;

/** kovra_asn1_time_getutctime returns a new companion's time of the value, released with kovra_time_free; null for null
 * and when memory is short. It is UTC but for a GeneralizedTime without Z or offset, which is local time. A second of
 * 60 that a constructor was given is 60 here, for UTCTime too. */
KOVRA_ASN1_API kovra_time *KOVRA_CALL kovra_asn1_time_getutctime(const kovra_asn1_value *time) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
