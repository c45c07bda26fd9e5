#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <string>

#include "tests/failing_memory.hpp"
#include "tests/util_handles.hpp"

using namespace kovra;
using namespace kovra::test;

namespace {


std::string fields_of(const kovra_time *time) {
    char text[64];
    std::snprintf(text, sizeof text, "%d-%d-%d %d:%d:%d.%d", kovra_time_getyear(time), kovra_time_getmonth(time),
                  kovra_time_getday(time), kovra_time_gethour(time), kovra_time_getminute(time),
                  kovra_time_getsecond(time), kovra_time_getns(time));
    return time != nullptr ? text : "(null)";
}

// Every day of the calendar, against the standard library's.
TEST(UtilTime, DaysAgreeWithTheStandardCalendar) {
    using namespace std::chrono;
    const sys_days first = year{1582} / 1 / 1;
    const sys_days last = year{9999} / 12 / 31;
    const Time held(kovra_time_newutctime(1582, 1, 1, 12, 30, 0, 0));
    kovra_time *walking = held.get();
    for (sys_days day = first; day <= last; day += days{1}) {
        const year_month_day expected{day};
        ASSERT_EQ(kovra_time_getyear(walking), static_cast<int>(expected.year()));
        ASSERT_EQ(kovra_time_getmonth(walking), static_cast<int>(static_cast<unsigned>(expected.month())));
        ASSERT_EQ(kovra_time_getday(walking), static_cast<int>(static_cast<unsigned>(expected.day())));
        int64_t seconds = 0;
        ASSERT_EQ(kovra_time_tounix(walking, &seconds), 1);
        ASSERT_EQ(seconds, day.time_since_epoch().count() * 86400LL + 45000);
        ASSERT_EQ(kovra_time_addday(walking, 1), day == last ? 0 : 1);
    }
    EXPECT_EQ(fields_of(walking), "9999-12-31 12:30:0.0") << "a refused step changes nothing";
}

TEST(UtilTime, FieldsAreChecked) {
    const struct {
        const char *why;
        int32_t year, month, day, hour, minute, second, ns;
        bool is_good;
    } rows[] = {
        {"first year", 1582, 1, 1, 0, 0, 0, 0, true},
        {"before it", 1581, 12, 31, 0, 0, 0, 0, false},
        {"last moment", 9999, 12, 31, 23, 59, 60, 999999999, true},
        {"behind it", 10000, 1, 1, 0, 0, 0, 0, false},
        {"divisible by 400", 2000, 2, 29, 0, 0, 0, 0, true},
        {"divisible by 100", 1900, 2, 29, 0, 0, 0, 0, false},
        {"divisible by 4", 2024, 2, 29, 0, 0, 0, 0, true},
        {"not a leap year", 2023, 2, 29, 0, 0, 0, 0, false},
        {"30 days", 2023, 4, 31, 0, 0, 0, 0, false},
        {"month 13", 2023, 13, 1, 0, 0, 0, 0, false},
        {"month 0", 2023, 0, 1, 0, 0, 0, 0, false},
        {"month below all tables", 2023, INT32_MIN, 1, 0, 0, 0, 0, false},
        {"day 0", 2023, 1, 0, 0, 0, 0, 0, false},
        {"hour 24", 2023, 1, 1, 24, 0, 0, 0, false},
        {"hour -1", 2023, 1, 1, -1, 0, 0, 0, false},
        {"minute 60", 2023, 1, 1, 0, 60, 0, 0, false},
        {"second 60 of any minute", 2023, 1, 1, 0, 0, 60, 0, true},
        {"second 61", 2023, 1, 1, 0, 0, 61, 0, false},
        {"ns below 0", 2023, 1, 1, 0, 0, 0, -1, false},
        {"a whole second of ns", 2023, 1, 1, 0, 0, 0, 1000000000, false},
    };
    for (const auto &row : rows) {
        const Time utc(kovra_time_newutctime(row.year, row.month, row.day, row.hour, row.minute, row.second, row.ns));
        const Time local(
            kovra_time_newlocaltime(row.year, row.month, row.day, row.hour, row.minute, row.second, row.ns, 0));
        EXPECT_EQ(utc != nullptr, row.is_good) << row.why;
        EXPECT_EQ(local != nullptr, row.is_good) << row.why;
    }
}

TEST(UtilTime, MinutesAndDaysAreAdded) {
    const struct {
        const char *why;
        int32_t minutes, days;
        const char *result; // of 2016-12-31 23:59:60.7; null: refused
    } rows[] = {
        {"into the next year, second kept", 1, 0, "2017-1-1 0:0:60.7"},
        {"over a day backwards", -1440, 0, "2016-12-30 23:59:60.7"},
        {"to the hour", -59, 0, "2016-12-31 23:0:60.7"},
        {"over the leap day", 0, -307, "2016-2-28 23:59:60.7"},
        {"most minutes", INT32_MAX, 0, "6100-1-24 2:6:60.7"},
        {"too many minutes backwards", INT32_MIN, 0, nullptr},
        {"last day", 0, 2915730, "9999-12-31 23:59:60.7"},
        {"a day too many", 0, 2915731, nullptr},
        {"first day", 0, -158880, "1582-1-1 23:59:60.7"},
        {"a day too few", 0, -158881, nullptr},
        {"most days", 0, INT32_MAX, nullptr},
        {"fewest days", 0, INT32_MIN, nullptr},
    };
    for (const auto &row : rows) {
        const Time time(kovra_time_newutctime(2016, 12, 31, 23, 59, 60, 7));
        const int32_t moved =
            row.days != 0 ? kovra_time_addday(time.get(), row.days) : kovra_time_addminute(time.get(), row.minutes);
        EXPECT_EQ(moved, row.result != nullptr ? 1 : 0) << row.why;
        EXPECT_EQ(fields_of(time.get()), row.result != nullptr ? row.result : "2016-12-31 23:59:60.7") << row.why;
    }
}

TEST(UtilTime, LeapSecondsAreThoseAnnounced) {
    int32_t count = 0;
    for (int32_t year = 1970; year <= 2030; ++year)
        for (int32_t month = 1; month <= 12; ++month)
            for (int32_t day = 28; day <= 31; ++day)
                count += kovra_time_isleapsecond(Time(kovra_time_newutctime(year, month, day, 23, 59, 60, 0)).get());
    EXPECT_EQ(count, 27) << "TAI-UTC went from 10 s to 37 s";
    const auto is_leap = [](const Time &time) { return kovra_time_isleapsecond(time.get()); };
    EXPECT_EQ(is_leap(Time(kovra_time_newutctime(1972, 6, 30, 23, 59, 60, 0))), 1) << "the first";
    EXPECT_EQ(is_leap(Time(kovra_time_newutctime(2016, 12, 31, 23, 59, 60, 999999999))), 1) << "the last";
    EXPECT_EQ(is_leap(Time(kovra_time_newutctime(2016, 12, 31, 23, 59, 59, 0))), 0) << "the second before";
    EXPECT_EQ(is_leap(Time(kovra_time_newutctime(2016, 12, 31, 22, 59, 60, 0))), 0) << "another hour";
    EXPECT_EQ(is_leap(Time(kovra_time_newlocaltime(2016, 12, 31, 23, 59, 60, 0, 0))), 0) << "not in UTC";
}

TEST(UtilTime, ComparesByFieldsAndCountsAsPosix) {
    // In ascending order, each differing from the one before in another field.
    const Time ascending[] = {
        Time(kovra_time_newutctime(2015, 12, 31, 23, 59, 60, 9)), Time(kovra_time_newutctime(2016, 1, 1, 0, 0, 0, 0)),
        Time(kovra_time_newutctime(2016, 1, 1, 0, 0, 0, 1)),      Time(kovra_time_newutctime(2016, 1, 1, 0, 0, 60, 0)),
        Time(kovra_time_newutctime(2016, 1, 1, 0, 1, 0, 0)),      Time(kovra_time_newutctime(2016, 1, 1, 1, 0, 0, 0)),
        Time(kovra_time_newutctime(2016, 1, 2, 0, 0, 0, 0)),      Time(kovra_time_newutctime(2016, 2, 1, 0, 0, 0, 0)),
    };
    const Time local(kovra_time_newlocaltime(2016, 1, 1, 0, 0, 0, 0, 7));
    int32_t order = 9;
    int64_t seconds = 9;
    for (const Time &left : ascending) {
        for (const Time &right : ascending) {
            ASSERT_EQ(kovra_time_compare(left.get(), right.get(), &order), 1);
            EXPECT_EQ(order, &left < &right ? -1 : &left > &right ? 1 : 0);
        }
        order = 9;
        EXPECT_EQ(kovra_time_compare(left.get(), local.get(), &order), 0) << "UTC and local";
        EXPECT_EQ(order, 9);
    }
    EXPECT_EQ(kovra_time_isutctime(local.get()), 0);
    EXPECT_EQ(kovra_time_getisdst(local.get()), 1);
    EXPECT_EQ(kovra_time_tounix(local.get(), &seconds), 0);
    EXPECT_EQ(kovra_time_tounix(ascending[0].get(), &seconds), 1);
    EXPECT_EQ(seconds, 1451606400) << "as the first second of 2016";
    for (const int64_t posix :
         {int64_t{0}, int64_t{-1}, int64_t{1709164800}, int64_t{253402300799}, int64_t{-12244089600}}) {
        const Time made(kovra_time_newunix(posix, 5));
        EXPECT_EQ(kovra_time_tounix(made.get(), &seconds), 1);
        EXPECT_EQ(seconds, posix);
        EXPECT_EQ(kovra_time_getns(made.get()), 5);
        EXPECT_EQ(kovra_time_isutctime(made.get()), 1);
    }
    for (const int64_t posix : {int64_t{253402300800}, int64_t{-12244089601}, INT64_MAX, INT64_MIN})
        EXPECT_EQ(kovra_time_newunix(posix, 0), nullptr) << "outside the years";
}

TEST(UtilTime, WrongHandlesAndScarceMemoryAreRefused) {
    const Blob blob(kovra_data_blob_new("a blob, which is no time", 24));
    const Time good(kovra_time_newunix(0, 0));
    for (auto *wrong : {static_cast<kovra_time *>(nullptr), reinterpret_cast<kovra_time *>(blob.get())}) {
        int32_t order = 0;
        int64_t seconds = 0;
        EXPECT_EQ(kovra_time_dup(wrong), nullptr);
        EXPECT_EQ(kovra_time_addminute(wrong, 1) + kovra_time_addday(wrong, 1), 0);
        EXPECT_EQ(kovra_time_compare(wrong, good.get(), &order) + kovra_time_compare(good.get(), wrong, &order), 0);
        EXPECT_EQ(kovra_time_tounix(wrong, &seconds) + kovra_time_isutctime(wrong) + kovra_time_isleapsecond(wrong), 0);
        EXPECT_EQ(kovra_time_getyear(wrong) + kovra_time_getisdst(wrong), 0);
        kovra_time_free(wrong);
    }
    EXPECT_EQ(text_of(blob.get()), "a blob, which is no time");
    fail_each_allocation([] {
        const Time time(kovra_time_newutctime(2024, 2, 29, 1, 2, 3, 4));
        const Time copy(kovra_time_dup(time.get()));
        const Time other(kovra_time_newunix(0, 0));
        const Time local(kovra_time_newlocaltime(2024, 2, 29, 1, 2, 3, 4, 1));
        return copy != nullptr && other != nullptr && local != nullptr;
    });
}

} // namespace
