// Calendar times and Unicode strings of the companion.

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "kovra/util.h"

namespace {

std::string take(kovra_data_blob *blob) {
    if (blob == nullptr)
        return "(null)";
    std::string text(reinterpret_cast<const char *>(kovra_data_blob_getdata(blob)),
                     static_cast<size_t>(kovra_data_blob_getlength(blob)));
    kovra_data_blob_free(blob);
    return text;
}

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
    kovra_time *walking = kovra_time_newutctime(1582, 1, 1, 12, 30, 0, 0);
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
    kovra_time_free(walking);
}

TEST(UtilTime, FieldsAreCheckedAndMoved) {
    const struct {
        int32_t year, month, day, hour, minute, second, ns;
        bool is_good;
    } rows[] = {
        {1582, 1, 1, 0, 0, 0, 0, true},   {1581, 12, 31, 0, 0, 0, 0, false}, {10000, 1, 1, 0, 0, 0, 0, false},
        {2000, 2, 29, 0, 0, 0, 0, true},  {1900, 2, 29, 0, 0, 0, 0, false},  {2023, 4, 31, 0, 0, 0, 0, false},
        {2023, 13, 1, 0, 0, 0, 0, false}, {2023, 0, 1, 0, 0, 0, 0, false},   {2023, 1, 0, 0, 0, 0, 0, false},
        {2023, 1, 1, 24, 0, 0, 0, false}, {2023, 1, 1, 0, 60, 0, 0, false},  {2023, 1, 1, 0, 0, 60, 0, true},
        {2023, 1, 1, 0, 0, 61, 0, false}, {2023, 1, 1, 0, 0, 0, -1, false},  {2023, 1, 1, 0, 0, 0, 1000000000, false},
    };
    for (const auto &row : rows) {
        kovra_time *time =
            kovra_time_newutctime(row.year, row.month, row.day, row.hour, row.minute, row.second, row.ns);
        EXPECT_EQ(time != nullptr, row.is_good) << row.year << '-' << row.month << '-' << row.day;
        kovra_time_free(time);
    }
    kovra_time *time = kovra_time_newutctime(2016, 12, 31, 23, 59, 60, 7);
    EXPECT_EQ(kovra_time_isleapsecond(time), 1);
    EXPECT_EQ(kovra_time_addminute(time, 1), 1);
    EXPECT_EQ(fields_of(time), "2017-1-1 0:0:60.7");
    EXPECT_EQ(kovra_time_isleapsecond(time), 0);
    EXPECT_EQ(kovra_time_addminute(time, -1441), 1);
    EXPECT_EQ(fields_of(time), "2016-12-30 23:59:60.7");
    kovra_time *other = kovra_time_dup(time);
    int32_t order = 9;
    EXPECT_EQ(kovra_time_compare(time, other, &order), 1);
    EXPECT_EQ(order, 0);
    EXPECT_EQ(kovra_time_addday(other, 1), 1);
    EXPECT_EQ(kovra_time_compare(time, other, &order), 1);
    EXPECT_EQ(order, -1);
    kovra_time *local = kovra_time_newlocaltime(2016, 12, 31, 23, 59, 60, 0, 1);
    int64_t seconds = 0;
    EXPECT_EQ(kovra_time_isutctime(local), 0);
    EXPECT_EQ(kovra_time_getisdst(local), 1);
    EXPECT_EQ(kovra_time_isleapsecond(local), 0);
    EXPECT_EQ(kovra_time_compare(time, local, &order), 0);
    EXPECT_EQ(kovra_time_tounix(local, &seconds), 0);
    for (kovra_time *each : {time, other, local})
        kovra_time_free(each);
    for (const int64_t unix_time :
         {int64_t{0}, int64_t{-1}, int64_t{1709164800}, int64_t{253402300799}, int64_t{-12244089600}}) {
        kovra_time *made = kovra_time_newunix(unix_time, 5);
        EXPECT_EQ(kovra_time_tounix(made, &seconds), 1);
        EXPECT_EQ(seconds, unix_time);
        kovra_time_free(made);
    }
    EXPECT_EQ(kovra_time_newunix(253402300800, 0), nullptr);
    EXPECT_EQ(kovra_time_newunix(-12244089601, 0), nullptr);
}

void put(std::string &out, uint32_t value, int octets) {
    for (int i = octets - 1; i >= 0; --i)
        out += static_cast<char>(value >> (8 * i));
}

// Every code point in every form.
TEST(UtilUString, EveryCodePointGoesThroughEveryForm) {
    for (uint32_t character = 0; character <= 0x110000; ++character) {
        const bool is_scalar = character < 0xD800 || (character > 0xDFFF && character <= 0x10FFFF);
        std::string utf32;
        put(utf32, character, 4);
        kovra_ustring *text = kovra_ustring_newutf32be(utf32.data(), 4);
        ASSERT_EQ(text != nullptr, is_scalar) << character;
        if (!is_scalar)
            continue;
        const std::string utf8 = take(kovra_ustring_toutf8(text));
        const std::string utf16 = take(kovra_ustring_toutf16be(text));
        kovra_data_blob *bmp = kovra_ustring_tobmp(text);
        ASSERT_EQ(bmp != nullptr, character <= 0xFFFF) << character;
        ASSERT_EQ(take(bmp), character <= 0xFFFF ? utf16 : "(null)");
        kovra_ustring_free(text);
        text = kovra_ustring_newutf8(utf8.data(), static_cast<int32_t>(utf8.size()));
        ASSERT_EQ(take(kovra_ustring_toutf32be(text)), utf32) << character;
        kovra_ustring_free(text);
        text = kovra_ustring_newutf16be(utf16.data(), static_cast<int32_t>(utf16.size()));
        ASSERT_EQ(take(kovra_ustring_toutf8(text)), utf8) << character;
        kovra_ustring_free(text);
    }
}

TEST(UtilUString, IllFormedOctetsAreRefused) {
    const struct {
        std::string octets;
        const char *why;
    } utf8[] = {
        {"\x80", "continuation first"},    {"\xC0\x80", "overlong NUL"},         {"\xC1\xBF", "overlong"},
        {"\xE0\x9F\xBF", "overlong"},      {"\xF0\x8F\xBF\xBF", "overlong"},     {"\xED\xA0\x80", "surrogate"},
        {"\xF4\x90\x80\x80", "too large"}, {"\xF5\x80\x80\x80", "no such lead"}, {"\xE2\x82", "cut off"},
        {"a\xFFz", "no such octet"},       {"\xC3(", "no continuation"},
    };
    for (const auto &[octets, why] : utf8)
        EXPECT_EQ(kovra_ustring_newutf8(octets.data(), static_cast<int32_t>(octets.size())), nullptr) << why;
    EXPECT_EQ(kovra_ustring_newutf32be("abc", 3), nullptr);
    EXPECT_EQ(kovra_ustring_newbmp("\xD8\x00", 2), nullptr);
    EXPECT_EQ(kovra_ustring_newbmp("a", 1), nullptr);
    EXPECT_EQ(kovra_ustring_newutf16be("\xD8\x00\x00\x41", 4), nullptr) << "high surrogate alone";
    EXPECT_EQ(kovra_ustring_newutf16be("\xDC\x00", 2), nullptr) << "low surrogate alone";
    EXPECT_EQ(kovra_ustring_newutf16be("\xD8\x00", 2), nullptr) << "high surrogate at the end";
    EXPECT_EQ(kovra_ustring_newutf8(nullptr, 1), nullptr);
    EXPECT_EQ(kovra_ustring_newutf8("a", -1), nullptr);
    kovra_ustring *empty = kovra_ustring_newutf8(nullptr, 0);
    EXPECT_EQ(take(kovra_ustring_tobmp(empty)), "");
    kovra_ustring_free(empty);
}

} // namespace
