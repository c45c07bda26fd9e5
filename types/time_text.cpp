#include "types/time_text.hpp"

#include <cstdio>

namespace kovra::asn1 {

namespace {

constexpr int32_t first_year = 1582;
constexpr int32_t last_year = 9999;

bool is_digit(char character) {
    return character >= '0' && character <= '9';
}
int32_t digit(char character) {
    return character - '0';
}
int32_t two_digits(const char *text) {
    return digit(text[0]) * 10 + digit(text[1]);
}

uint32_t count_digits(const char *text, uint32_t length) {
    uint32_t count = 0;
    while (count < length && is_digit(text[count]))
        ++count;
    return count;
}

bool is_date(int32_t year, int32_t month, int32_t day) {
    constexpr int32_t days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < first_year || year > last_year || month < 1 || month > 12 || day < 1)
        return false;
    const bool is_leap_year = year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
    return day <= days[month - 1] + (month == 2 && is_leap_year ? 1 : 0);
}

// Behind the sign of an offset stand four digits and nothing else.
bool read_offset(const char *text, uint32_t length, int32_t &minutes_to_add) {
    if (length != 5 || (text[0] != '+' && text[0] != '-') || count_digits(text + 1, 4) != 4)
        return false;
    const int32_t hours = two_digits(text + 1);
    const int32_t minutes = two_digits(text + 3);
    if (hours > 23 || minutes > 59)
        return false;
    minutes_to_add = (hours * 60 + minutes) * (text[0] == '-' ? 1 : -1);
    return true;
}

// The first `places` digits of a fraction, as if all were there.
int32_t scaled_fraction(const char *digits, uint32_t count, uint32_t places) {
    int32_t value = 0;
    for (uint32_t i = 0; i < places; ++i)
        value = value * 10 + (i < count ? digit(digits[i]) : 0);
    return value;
}

// Fractions of hours and minutes come out ten times too large; minutes and seconds of 60 and more are refused by the
// caller.
void apply_fraction(const char *digits, uint32_t count, uint32_t leading, TimeFields &out) {
    constexpr int32_t unit = 10000;
    if (leading == 14) {
        out.ns = scaled_fraction(digits, count, 9);
        return;
    }
    const int32_t sixtieths = scaled_fraction(digits, count, 5) * 60;
    if (leading == 12) {
        out.second = sixtieths / unit;
        return;
    }
    out.minute = sixtieths / unit;
    out.second = sixtieths % unit * 60 / unit;
}

// Hour 24 is hour 0 of the same date, where a next day exists.
bool has_next_day(const TimeFields &fields) {
    kovra_time *midnight = kovra_time_newutctime(fields.year, fields.month, fields.day, 0, 0, 0, 0);
    const bool has = midnight != nullptr && kovra_time_addday(midnight, 1) == 1;
    kovra_time_free(midnight);
    return has;
}

bool is_leap_second(const TimeFields &fields) {
    kovra_time *time =
        kovra_time_newutctime(fields.year, fields.month, fields.day, fields.hour, fields.minute, fields.second, 0);
    const bool is = time != nullptr && kovra_time_isleapsecond(time) == 1;
    kovra_time_free(time);
    return is;
}

} // namespace

bool read_utc_time(const char *text, uint32_t length, TimeFields &out) {
    if (length < 11 || count_digits(text, 10) != 10)
        return false;
    const int32_t year = two_digits(text);
    out.year = year + (year < 50 ? 2000 : 1900);
    out.month = two_digits(text + 2);
    out.day = two_digits(text + 4);
    out.hour = two_digits(text + 6);
    out.minute = two_digits(text + 8);
    if (!is_date(out.year, out.month, out.day) || out.hour > 23 || out.minute > 59)
        return false;
    text += 10;
    length -= 10;
    if (length >= 2 && count_digits(text, 2) == 2) {
        out.second = two_digits(text);
        text += 2;
        length -= 2;
    }
    if (out.second > 59)
        return false;
    return (length == 1 && text[0] == 'Z') || read_offset(text, length, out.minutes_to_add);
}

bool read_generalized_time(const char *text, uint32_t length, TimeFields &out) {
    const uint32_t leading = count_digits(text, length);
    if (leading != 10 && leading != 12 && leading != 14)
        return false;
    out.year = two_digits(text) * 100 + two_digits(text + 2);
    out.month = two_digits(text + 4);
    out.day = two_digits(text + 6);
    out.hour = two_digits(text + 8);
    out.minute = leading >= 12 ? two_digits(text + 10) : 0;
    out.second = leading == 14 ? two_digits(text + 12) : 0;
    if (!is_date(out.year, out.month, out.day) || out.hour > 24 || out.minute > 59 || out.second > 60)
        return false;
    if (out.hour == 24) {
        if (out.minute != 0 || out.second != 0 || !has_next_day(out))
            return false;
        out.hour = 0;
    }
    if (out.second == 60 && !is_leap_second(out))
        return false;
    text += leading;
    length -= leading;
    if (length != 0 && (text[0] == '.' || text[0] == ',')) {
        const uint32_t count = count_digits(text + 1, length - 1);
        if (count == 0)
            return false;
        apply_fraction(text + 1, count, leading, out);
        text += 1 + count;
        length -= 1 + count;
    }
    out.is_local = length == 0;
    return out.is_local || (length == 1 && text[0] == 'Z') || read_offset(text, length, out.minutes_to_add);
}

bool is_certain(const TimeFields &fields) {
    return fields.minutes_to_add == 0 && fields.minute <= 59 && fields.second <= 59;
}

kovra_time *time_of(const TimeFields &fields) {
    kovra_time *time = fields.is_local ? kovra_time_newlocaltime(fields.year, fields.month, fields.day, fields.hour,
                                                                 fields.minute, fields.second, fields.ns, 0)
                                       : kovra_time_newutctime(fields.year, fields.month, fields.day, fields.hour,
                                                               fields.minute, fields.second, fields.ns);
    if (time != nullptr && fields.minutes_to_add != 0 && kovra_time_addminute(time, fields.minutes_to_add) != 1) {
        kovra_time_free(time);
        return nullptr;
    }
    return time;
}

uint32_t write_utc_time(const kovra_time *time, char (&out)[longest_time_text]) {
    const int32_t year = kovra_time_getyear(time);
    if (year < 1901 || year > 2049)
        return 0;
    // Constructors refuse years before 1950, which would print as a negative number here.
    const int32_t short_year = year >= 1950 && year <= 1999 ? year - 1900 : year - 2000;
    // The form has no leap seconds.
    const int32_t second = kovra_time_getsecond(time);
    return static_cast<uint32_t>(std::snprintf(
        out, sizeof out, "%02d%02d%02d%02d%02d%02dZ", short_year, kovra_time_getmonth(time), kovra_time_getday(time),
        kovra_time_gethour(time), kovra_time_getminute(time), second == 60 ? 59 : second));
}

uint32_t write_generalized_time(const kovra_time *time, char (&out)[longest_time_text]) {
    int length = std::snprintf(out, sizeof out, "%04d%02d%02d%02d%02d%02d", kovra_time_getyear(time),
                               kovra_time_getmonth(time), kovra_time_getday(time), kovra_time_gethour(time),
                               kovra_time_getminute(time), kovra_time_getsecond(time));
    if (int32_t rest = kovra_time_getns(time); rest != 0) {
        out[length++] = '.';
        for (int32_t unit = 100000000; rest != 0; rest %= unit, unit /= 10)
            out[length++] = static_cast<char>('0' + rest / unit);
    }
    out[length++] = 'Z';
    out[length] = '\0';
    return static_cast<uint32_t>(length);
}

} // namespace kovra::asn1
