// INTEGER and ENUMERATED.
#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {
std::string content(const Value &integer) {
    int32_t length = kovra_asn1_integer_getlength(integer.get());
    if (length < 0)
        return "none";
    std::string octets(static_cast<size_t>(length), '\0');
    EXPECT_EQ(kovra_asn1_integer_get(integer.get(), octets.data()), 1);
    return hex(octets);
}

Value integer(std::string_view hex) {
    std::string data = octets(hex);
    return Value(2, kovra_asn1_integer_new(data.data(), size_of(data)));
}

// The content as a decoder keeps it, minimal or not.
Value as_read(std::string_view hex) {
    std::string data = octets(hex);
    return decode_content(2, data, 1, size_of(data)).value;
}

TEST(Integer, OfNumbers) {
    const std::pair<int32_t, const char *> rows[] = {{0, "00"},
                                                     {1, "01"},
                                                     {127, "7F"},
                                                     {128, "0080"},
                                                     {255, "00FF"},
                                                     {256, "0100"},
                                                     {32767, "7FFF"},
                                                     {32768, "008000"},
                                                     {8388607, "7FFFFF"},
                                                     {8388608, "00800000"},
                                                     {16777216, "01000000"},
                                                     {2147483647, "7FFFFFFF"},
                                                     {-1, "FF"},
                                                     {-128, "80"},
                                                     {-129, "FF7F"},
                                                     {-255, "FF01"},
                                                     {-256, "FF00"},
                                                     {-257, "FEFF"},
                                                     {-32768, "8000"},
                                                     {-32769, "FF7FFF"},
                                                     {-8388608, "800000"},
                                                     {-16777216, "FF000000"},
                                                     {-2147483647, "80000001"},
                                                     {-2147483647 - 1, "80000000"}};
    for (auto [number, octets] : rows) {
        Value value(2, kovra_asn1_integer_value(number)), enumerated(7, kovra_asn1_enum_value(number));
        EXPECT_EQ(content(value), octets);
        EXPECT_EQ(content(enumerated), octets);
        EXPECT_EQ(encoding(enumerated).substr(0, 2), "0A");
        int32_t back = -7;
        bool in_range = number >= -2147483647; // the lowest number is refused
        EXPECT_EQ(kovra_asn1_integer_getlong(value.get(), &back), in_range) << number;
        EXPECT_EQ(back, in_range ? number : -7);
        EXPECT_EQ(kovra_asn1_enum_getlong(value.get(), &back), in_range);
        EXPECT_EQ(content(integer(octets)), octets);
        Value copy(2, kovra_asn1_integer_newbigint(BigInteger(kovra_asn1_integer_getbigintger(value.get())).get()));
        EXPECT_EQ(content(copy), octets);
        EXPECT_EQ(kovra_asn1_integer_equals(copy.get(), value.get()), 1);
    }
}

TEST(Integer, OfOctetsIsMinimal) {
    const std::pair<const char *, const char *> rows[] = {
        {"00 00 7F", "7F"},        {"FF FF 80", "80"},
        {"00 80", "0080"},         {"00", "00"},
        {"00 00 00", "00"},        {"FF FF", "FF"},
        {"FF 7F", "FF7F"},         {"FF 00", "FF00"},
        {"00 00 80 00", "008000"}, {"FF FF FF FF FF FF FF FF 00", "FF00"},
        {"00 FF FF", "00FFFF"},    {"01 00 00", "010000"}};
    for (auto [in, out] : rows)
        EXPECT_EQ(content(integer(in)), out);
    const std::pair<const char *, const char *> magnitudes[] = {
        {"FF", "00FF"}, {"00 00 01", "01"},  {"00 00 80", "0080"}, {"00 00 00", "00"}, {"00", "00"},
        {"7F", "7F"},   {"80 00", "008000"}, {"00 7F FF", "7FFF"}, {"00 80", "0080"}};
    for (auto [in, out] : magnitudes) {
        std::string data = octets(in);
        EXPECT_EQ(content(Value(2, kovra_asn1_unsigned_integer_new(data.data(), size_of(data)))), out);
    }
    for (int32_t length : {0, -1, INT32_MIN}) {
        EXPECT_EQ(kovra_asn1_integer_new("x", length), nullptr);
        EXPECT_EQ(kovra_asn1_unsigned_integer_new("x", length), nullptr);
    }
    EXPECT_EQ(kovra_asn1_integer_new(nullptr, 1), nullptr);
    EXPECT_EQ(kovra_asn1_unsigned_integer_new(nullptr, 1), nullptr);
    EXPECT_EQ(kovra_asn1_integer_newbigint(nullptr), nullptr);
    EXPECT_EQ(kovra_asn1_integer_getbigintger(nullptr), nullptr);
}

TEST(Integer, ReadAsALong) {
    const struct {
        const char *octets;
        bool in_range;
        int32_t number;
    } rows[] = {{"00 00 00 00 00 7F", true, 127},
                {"00 7F FF FF FF", true, 2147483647},
                {"00 80 00 00 00", false, 0},
                {"00 FF FF FF FF", false, 0},
                {"01 00 00 00 00", false, 0},
                {"80 00 00 01", true, -2147483647},
                {"80 00 00 00", false, 0},
                {"FF FF FF FF FF 01", true, -255},
                {"FF 7F FF FF FF", false, 0},
                {"FF 00 00 00 00", false, 0},
                {"80 00 00 00 00 00 00 00 00", false, 0},
                {"FF FF FF FF FF FF FF FF FF", true, -1}};
    for (const auto &row : rows) {
        int32_t number = 0;
        EXPECT_EQ(kovra_asn1_integer_getlong(as_read(row.octets).get(), &number), row.in_range) << row.octets;
        EXPECT_EQ(number, row.number) << row.octets;
    }
    EXPECT_EQ(kovra_asn1_integer_getlong(as_read("01").get(), nullptr), 0);
    EXPECT_EQ(kovra_asn1_integer_get(as_read("01").get(), nullptr), 0);
}

TEST(Integer, OrderedByEncoding) {
    const char *ascending[] = {"00", "01", "7F", "80", "FF", "00 01", "00 80", "7F FF", "FF 7F", "01 00 00"};
    std::vector<Value> values;
    values.emplace_back(2, nullptr);
    for (const char *text : ascending)
        values.push_back(as_read(text));
    for (size_t i = 0; i < values.size(); ++i) {
        for (size_t j = 0; j < values.size(); ++j) {
            EXPECT_EQ(kovra_asn1_integer_encodecmp(values[i].get(), values[j].get()), (i > j) - (i < j));
            EXPECT_EQ(kovra_asn1_integer_equals(values[i].get(), values[j].get()), i == j);
        }
    }
}

TEST(Integer, DecodesWhatBerHas) {
    EXPECT_EQ(decode_content(2, octets("05"), 0, -1).codes, Codes({0x1026a})) << "form before length";
    EXPECT_EQ(decode_content(2, octets("05"), 1, -2).codes, Codes({0x10203}));
    Value five = decoded(2, "02 01 05");
    EXPECT_EQ(encode_content(2, five.get(), 1).octets, "\x05");
    for (int32_t length : {0, 2, -1, -2})
        EXPECT_EQ(encode_content(2, five.get(), length).codes, Codes({0x10203}));
    std::string large(70000, '\x55');
    EXPECT_EQ(encode(2, Value(2, kovra_asn1_integer_new(large.data(), size_of(large))).get()).octets,
              octets("02 83 01 11 70") + large);
}

} // namespace
} // namespace kovra::test
