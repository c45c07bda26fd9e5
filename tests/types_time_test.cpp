// UTCTime, GeneralizedTime and their choice.
#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {
std::string encoding_of(int32_t tag, std::string_view text) {
    return std::string{static_cast<char>(tag), static_cast<char>(text.size())} + std::string(text);
}

// The text of a value and its tag, as in "U:121120083000Z".
std::string text_of(const Value &value) {
    std::string encoded = encode(20, value.get()).octets;
    return encoded.empty() ? "" : (encoded[0] == 23 ? "U:" : "G:") + encoded.substr(2);
}

// A time as read: "2012-11-20 08:30:00", then nanoseconds where there are any, then "local" where it is.
std::string moment_of(const Value &value) {
    kovra_time *time = kovra_asn1_time_getutctime(value.get());
    if (time == nullptr)
        return "-";
    char text[80];
    int length = snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", kovra_time_getyear(time),
                          kovra_time_getmonth(time), kovra_time_getday(time), kovra_time_gethour(time),
                          kovra_time_getminute(time), kovra_time_getsecond(time));
    std::string result(text, static_cast<size_t>(length));
    if (kovra_time_getns(time) != 0)
        result += " " + std::to_string(kovra_time_getns(time));
    if (kovra_time_isutctime(time) != 1)
        result += " local";
    kovra_time_free(time);
    return result;
}

TEST(Time, IsWritten) {
    using Fields = std::array<int32_t, 7>;
    const struct {
        Fields at;
        const char *by_year, *utc, *general; // empty: refused
    } rows[] = {
        {{2049, 12, 31, 23, 59, 59, 0}, "U:491231235959Z", "U:491231235959Z", "G:20491231235959Z"},
        {{2050, 1, 1, 0, 0, 0, 0}, "G:20500101000000Z", "", "G:20500101000000Z"},
        {{1950, 1, 1, 0, 0, 0, 0}, "U:500101000000Z", "U:500101000000Z", "G:19500101000000Z"},
        {{1949, 12, 31, 23, 59, 59, 1}, "G:19491231235959.000000001Z", "", "G:19491231235959.000000001Z"},
        {{2012, 11, 20, 8, 30, 0, 250000000}, "U:121120083000Z", "U:121120083000Z", "G:20121120083000.25Z"},
        {{2012, 11, 20, 8, 30, 0, 123}, "U:121120083000Z", "U:121120083000Z", "G:20121120083000.000000123Z"},
        {{2012, 11, 20, 8, 30, 0, 999999999}, "U:121120083000Z", "U:121120083000Z", "G:20121120083000.999999999Z"},
        {{2016, 12, 31, 23, 59, 60, 500000000}, "U:161231235959Z", "U:161231235959Z", "G:20161231235960.5Z"},
        {{2000, 2, 29, 0, 0, 0, 0}, "U:000229000000Z", "U:000229000000Z", "G:20000229000000Z"},
        {{1900, 2, 29, 0, 0, 0, 0}, "", "", ""},
        {{2013, 2, 29, 0, 0, 0, 0}, "", "", ""},
        {{2013, 13, 1, 0, 0, 0, 0}, "", "", ""},
        {{2013, 4, 31, 0, 0, 0, 0}, "", "", ""},
        {{2013, 4, 1, 24, 0, 0, 0}, "", "", ""},
        {{2013, 4, 1, 0, 60, 0, 0}, "", "", ""},
        {{2013, 4, 1, 0, 0, 61, 0}, "", "", ""},
        {{2013, 4, 1, 0, 0, -1, 0}, "", "", ""}};
    for (const auto &row : rows) {
        const auto [year, month, day, hour, minute, second, ns] = row.at;
        SCOPED_TRACE(row.general);
        EXPECT_EQ(text_of(Value(20, kovra_asn1_time_new(year, month, day, hour, minute, second, ns))), row.by_year);
        EXPECT_EQ(text_of(Value(21, kovra_asn1_utctime_new(year, month, day, hour, minute, second))), row.utc);
        EXPECT_EQ(text_of(Value(22, kovra_asn1_gentime_new(year, month, day, hour, minute, second, ns))), row.general);
        kovra_time *time = kovra_time_newutctime(year, month, day, hour, minute, second, ns);
        auto of_time = [&](uint32_t flags) { return text_of(Value(20, kovra_asn1_time_newutctime(time, flags))); };
        std::string whole_second = row.general;
        if (size_t dot = whole_second.find('.'); dot != std::string::npos)
            whole_second.replace(dot, std::string::npos, "Z");
        EXPECT_EQ(of_time(0x00), row.utc);
        EXPECT_EQ(of_time(0x11), row.general);
        EXPECT_EQ(of_time(0x01), whole_second);
        EXPECT_EQ(of_time(0x12), row.by_year);
        for (uint32_t flags : {0x03u, 0x0fu, 0x13u})
            EXPECT_EQ(of_time(flags), "");
        kovra_time_free(time);
    }
    kovra_time *local = kovra_time_newlocaltime(2012, 11, 20, 8, 30, 0, 0, 0);
    EXPECT_EQ(kovra_asn1_time_newutctime(local, 0), nullptr);
    kovra_time_free(local);
    EXPECT_EQ(kovra_asn1_time_newutctime(nullptr, 0), nullptr);
    EXPECT_EQ(kovra_asn1_time_getutctime(nullptr), nullptr);
    EXPECT_EQ(kovra_asn1_gentime_new(2013, 4, 1, 0, 0, 0, 1000000000), nullptr);
    EXPECT_EQ(kovra_asn1_gentime_new(2013, 4, 1, 0, 0, 0, -1), nullptr);
}

TEST(Time, IsRead) {
    for (const auto &row : table("times.txt")) {
        const std::string &text = row[1], &moment = row[2];
        SCOPED_TRACE(text);
        bool utc = row[0] == "23", refused = moment == "-";
        std::string data = encoding_of(utc ? 23 : 24, text);
        uint32_t type = utc ? 21 : 22, other = utc ? 22 : 21;
        for (uint32_t as : {type, 20u}) {
            Decoded found = decode(as, data);
            EXPECT_EQ(moment_of(found.value), moment);
            EXPECT_EQ(found.codes, refused ? Codes({0x102ec}) : Codes());
            if (found.result == 1) {
                EXPECT_EQ(encode(as, found.value.get()).octets, data) << "kept as it was";
                EXPECT_EQ(encode(other, found.value.get()).codes, Codes({0x10208}));
                EXPECT_EQ(encode_content(other, found.value.get(), size_of(text)).codes, Codes({0x10002}));
                EXPECT_EQ(encode_content(20, found.value.get(), size_of(text)).octets, text);
            }
        }
        EXPECT_EQ(decode(other, data).codes, refused ? Codes({0x102ec}) : Codes({0x10208}));
    }
}

TEST(Time, DecodesWhatBerHas) {
    std::string with_zero = encoding_of(24, std::string_view("2012112008Z\0", 12));
    EXPECT_EQ(decode(22, with_zero).codes, Codes({0x102ec})) << "the text is counted";
    EXPECT_EQ(decode_content(21, "1211200830Z", 1, 11).codes, Codes());
    EXPECT_EQ(decode_content(22, "1211200830Z", 1, 11).codes, Codes({0x102ec}));
    Value time = decoded(21, "17 0B 31323131323030383330 5A");
    EXPECT_EQ(kovra_asn1_content_length(20, time.get()), 11);
    for (int32_t length : {0, 10, 12, -1})
        EXPECT_EQ(encode_content(21, time.get(), length).codes, Codes({0x10203}));
}

} // namespace
} // namespace kovra::test
