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
}

TEST(UtilTime, ComparesByFields) {
    // In ascending order, each differing from the one before in another field.
    const Time ascending[] = {
        Time(kovra_time_newutctime(2015, 12, 31, 23, 59, 60, 9)), Time(kovra_time_newutctime(2016, 1, 1, 0, 0, 0, 0)),
        Time(kovra_time_newutctime(2016, 1, 1, 0, 0, 0, 1)),      Time(kovra_time_newutctime(2016, 1, 1, 0, 0, 60, 0)),
        Time(kovra_time_newutctime(2016, 1, 1, 0, 1, 0, 0)),      Time(kovra_time_newutctime(2016, 1, 1, 1, 0, 0, 0)),
        Time(kovra_time_newutctime(2016, 1, 2, 0, 0, 0, 0)),      Time(kovra_time_newutctime(2016, 2, 1, 0, 0, 0, 0)),
    };
    int32_t order = 9;
    for (const Time &left : ascending) {
        for (const Time &right : ascending) {
            ASSERT_EQ(kovra_time_compare(left.get(), right.get(), &order), 1);
            EXPECT_EQ(order, &left < &right ? -1 : &left > &right ? 1 : 0);
        }
    }
}

} // namespace
