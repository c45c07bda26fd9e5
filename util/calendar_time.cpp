#include "kovra/util_time.h"

#include <algorithm>
#include <iterator>

#include "base/handle.hpp"

using namespace kovra;

struct kovra_time {
    static constexpr uint32_t magic_of_type = magic_word("TIME");
    uint32_t magic;
    int32_t year;
    int32_t month;
    int32_t day;
    int32_t hour;
    int32_t minute;
    int32_t second;
    int32_t ns;
    bool is_utc;
    bool is_dst;
};

namespace kovra::util {
namespace {

constexpr const char *module = "UTIL_Time";
constexpr int32_t first_year = 1582;
constexpr int32_t last_year = 9999;
constexpr int64_t seconds_a_day = 86400;
constexpr int32_t minutes_a_day = 1440;

bool is_leap_year(int32_t year) {
    return year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
}

int32_t days_of_month(int32_t year, int32_t month) {
    constexpr int32_t days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return days[month - 1] + (month == 2 && is_leap_year(year) ? 1 : 0);
}

// Days since 1970-01-01 in the proleptic Gregorian calendar. Years are counted from March, so that the leap day ends
// one, and in eras of 400 years, all of which have 146,097 days.
int32_t days_since_epoch(int32_t year, int32_t month, int32_t day) {
    const int32_t march_year = month <= 2 ? year - 1 : year;
    const int32_t era = march_year / 400;
    const int32_t year_of_era = march_year % 400;
    const int32_t day_of_year = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    return era * 146097 + year_of_era * 365 + year_of_era / 4 - year_of_era / 100 + day_of_year - 719468;
}

void set_date(kovra_time &time, int32_t days) {
    const int32_t shifted = days + 719468;
    const int32_t era = shifted / 146097;
    const int32_t day_of_era = shifted % 146097;
    const int32_t year_of_era = (day_of_era - day_of_era / 1460 + day_of_era / 36524 - day_of_era / 146096) / 365;
    const int32_t day_of_year = day_of_era - (365 * year_of_era + year_of_era / 4 - year_of_era / 100);
    const int32_t month = (5 * day_of_year + 2) / 153;
    time.day = day_of_year - (153 * month + 2) / 5 + 1;
    time.month = month < 10 ? month + 3 : month - 9;
    time.year = era * 400 + year_of_era + (time.month <= 2 ? 1 : 0);
}

constexpr int32_t first_day = -141714; // 1582-01-01
constexpr int32_t last_day = 2932896;  // 9999-12-31

bool is_in_range(int32_t value, int32_t least, int32_t most) {
    return value >= least && value <= most;
}

kovra_time *make_time(int32_t year, int32_t month, int32_t day, int32_t hour, int32_t minute, int32_t second,
                      int32_t ns) {
    if (!is_in_range(year, first_year, last_year) || !is_in_range(month, 1, 12) ||
        !is_in_range(day, 1, days_of_month(year, month)) || !is_in_range(hour, 0, 23) || !is_in_range(minute, 0, 59) ||
        !is_in_range(second, 0, 60) || !is_in_range(ns, 0, 999999999))
        return nullptr;
    auto *time = make_record<kovra_time>(module);
    if (time == nullptr)
        return nullptr;
    time->year = year;
    time->month = month;
    time->day = day;
    time->hour = hour;
    time->minute = minute;
    time->second = second;
    time->ns = ns;
    return time;
}

// Moves the date and the time of day; false, and nothing changed, when the result is out of range.
bool move(kovra_time &time, int64_t days, int64_t minutes) {
    const int64_t day = days_since_epoch(time.year, time.month, time.day) + days;
    int64_t minute_of_day = int64_t{time.hour} * 60 + time.minute + minutes;
    int64_t carried = minute_of_day / minutes_a_day;
    minute_of_day %= minutes_a_day;
    if (minute_of_day < 0) {
        minute_of_day += minutes_a_day;
        --carried;
    }
    if (day + carried < first_day || day + carried > last_day)
        return false;
    set_date(time, static_cast<int32_t>(day + carried));
    time.hour = static_cast<int32_t>(minute_of_day / 60);
    time.minute = static_cast<int32_t>(minute_of_day % 60);
    return true;
}

// The days whose last minute had 61 seconds, as year x 10000 + month x 100 + day (IERS Bulletin C).
constexpr int32_t leap_days[] = {
    19720630, 19721231, 19731231, 19741231, 19751231, 19761231, 19771231, 19781231, 19791231,
    19810630, 19820630, 19830630, 19850630, 19871231, 19891231, 19901231, 19920630, 19930630,
    19940630, 19951231, 19970630, 19981231, 20051231, 20081231, 20120630, 20150630, 20161231,
};

int32_t field(const kovra_time *time, int32_t kovra_time::*member) {
    return is_valid(time) ? time->*member : 0;
}

} // namespace
} // namespace kovra::util

using namespace kovra::util;

kovra_time *kovra_time_newutctime(int32_t year, int32_t month, int32_t day, int32_t hour, int32_t minute,
                                  int32_t second, int32_t ns) noexcept {
    kovra_time *time = make_time(year, month, day, hour, minute, second, ns);
    if (time != nullptr)
        time->is_utc = true;
    return time;
}

kovra_time *kovra_time_newlocaltime(int32_t year, int32_t month, int32_t day, int32_t hour, int32_t minute,
                                    int32_t second, int32_t ns, int32_t isdst) noexcept {
    kovra_time *time = make_time(year, month, day, hour, minute, second, ns);
    if (time != nullptr)
        time->is_dst = isdst != 0;
    return time;
}

kovra_time *kovra_time_newunix(int64_t seconds, int32_t ns) noexcept {
    int64_t days = seconds / seconds_a_day;
    int64_t second_of_day = seconds % seconds_a_day;
    if (second_of_day < 0) {
        second_of_day += seconds_a_day;
        --days;
    }
    if (days < first_day || days > last_day || !is_in_range(ns, 0, 999999999))
        return nullptr;
    auto *time = make_record<kovra_time>(module);
    if (time == nullptr)
        return nullptr;
    set_date(*time, static_cast<int32_t>(days));
    time->hour = static_cast<int32_t>(second_of_day / 3600);
    time->minute = static_cast<int32_t>(second_of_day / 60 % 60);
    time->second = static_cast<int32_t>(second_of_day % 60);
    time->ns = ns;
    time->is_utc = true;
    return time;
}

kovra_time *kovra_time_dup(const kovra_time *time) noexcept {
    if (!is_valid(time))
        return nullptr;
    auto *copy = make_record<kovra_time>(module);
    if (copy != nullptr)
        *copy = *time;
    return copy;
}

void kovra_time_free(kovra_time *time) noexcept {
    if (is_valid(time))
        release_record(time);
}

int32_t kovra_time_addminute(kovra_time *time, int32_t minutes) noexcept {
    return is_valid(time) && move(*time, 0, minutes) ? 1 : 0;
}

int32_t kovra_time_addday(kovra_time *time, int32_t days) noexcept {
    return is_valid(time) && move(*time, days, 0) ? 1 : 0;
}

int32_t kovra_time_isutctime(const kovra_time *time) noexcept {
    return is_valid(time) && time->is_utc ? 1 : 0;
}

int32_t kovra_time_isleapsecond(const kovra_time *time) noexcept {
    if (!is_valid(time) || !time->is_utc || time->hour != 23 || time->minute != 59 || time->second != 60)
        return 0;
    return std::binary_search(std::begin(leap_days), std::end(leap_days),
                              time->year * 10000 + time->month * 100 + time->day)
               ? 1
               : 0;
}

int32_t kovra_time_getyear(const kovra_time *time) noexcept {
    return field(time, &kovra_time::year);
}
int32_t kovra_time_getmonth(const kovra_time *time) noexcept {
    return field(time, &kovra_time::month);
}
int32_t kovra_time_getday(const kovra_time *time) noexcept {
    return field(time, &kovra_time::day);
}
int32_t kovra_time_gethour(const kovra_time *time) noexcept {
    return field(time, &kovra_time::hour);
}
int32_t kovra_time_getminute(const kovra_time *time) noexcept {
    return field(time, &kovra_time::minute);
}
int32_t kovra_time_getsecond(const kovra_time *time) noexcept {
    return field(time, &kovra_time::second);
}
int32_t kovra_time_getns(const kovra_time *time) noexcept {
    return field(time, &kovra_time::ns);
}
int32_t kovra_time_getisdst(const kovra_time *time) noexcept {
    return is_valid(time) && time->is_dst ? 1 : 0;
}

int32_t kovra_time_compare(const kovra_time *left, const kovra_time *right, int32_t *out_order) noexcept {
    if (!is_valid(left) || !is_valid(right) || out_order == nullptr || left->is_utc != right->is_utc)
        return 0;
    *out_order = 0;
    constexpr int32_t kovra_time::*members[] = {&kovra_time::year, &kovra_time::month,  &kovra_time::day,
                                                &kovra_time::hour, &kovra_time::minute, &kovra_time::second,
                                                &kovra_time::ns};
    for (const auto member : members)
        if (left->*member != right->*member) {
            *out_order = left->*member < right->*member ? -1 : 1;
            break;
        }
    return 1;
}

int32_t kovra_time_tounix(const kovra_time *time, int64_t *out_seconds) noexcept {
    if (!is_valid(time) || !time->is_utc || out_seconds == nullptr)
        return 0;
    *out_seconds = days_since_epoch(time->year, time->month, time->day) * seconds_a_day + int64_t{time->hour} * 3600 +
                   int64_t{time->minute} * 60 + time->second;
    return 1;
}
