#include <gtest/gtest.h>

#include <chrono>

#include "tests/util_handles.hpp"

using namespace kovra;
using namespace kovra::test;

namespace {

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

} // namespace
