// Reading and writing the texts of UTCTime and GeneralizedTime (X.680, clauses 46 and 47).
#pragma once

#include <cstdint>

#include "kovra/util_time.h"

namespace kovra::asn1 {

// What a text says. The fields are those written; the offset is still to be taken off.
struct TimeFields {
    int32_t year = 0;
    int32_t month = 0;
    int32_t day = 0;
    int32_t hour = 0;
    int32_t minute = 0;
    int32_t second = 0;
    int32_t ns = 0;
    int32_t minutes_to_add = 0; // to get UTC
    bool is_local = false;
};

// True when the text has one of the accepted forms. Whether the calendar has such a time is for `time_of` to say.
bool read_utc_time(const char *text, uint32_t length, TimeFields &out);
bool read_generalized_time(const char *text, uint32_t length, TimeFields &out);

// Is the time certainly one of the calendar? If not, `time_of` must be asked.
bool is_certain(const TimeFields &fields);

// The calendar time, for kovra_time_free; null when there is none such or memory is short.
kovra_time *time_of(const TimeFields &fields);

// The longest text written, with its terminating zero.
inline constexpr uint32_t longest_time_text = 36;

// Write the text of a time value, zero-terminated, and give its length; 0 when the year has no place in it.
uint32_t write_utc_time(const kovra_time *time, char (&out)[longest_time_text]);
uint32_t write_generalized_time(const kovra_time *time, char (&out)[longest_time_text]);

} // namespace kovra::asn1
