// INTEGER and ENUMERATED.
#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {
// The content as a decoder keeps it, minimal or not.
Value as_read(std::string_view hex) {
    std::string data = octets(hex);
    return decode_content(2, data, 1, size_of(data)).value;
}

TEST(Integer, IsNotMadeOfNothing) {
    for (int32_t length : {0, -1, INT32_MIN}) {
        EXPECT_EQ(kovra_asn1_integer_new("x", length), nullptr);
        EXPECT_EQ(kovra_asn1_unsigned_integer_new("x", length), nullptr);
    }
    EXPECT_EQ(kovra_asn1_integer_new(nullptr, 1), nullptr);
    EXPECT_EQ(kovra_asn1_unsigned_integer_new(nullptr, 1), nullptr);
    EXPECT_EQ(kovra_asn1_integer_newbigint(nullptr), nullptr);
    EXPECT_EQ(kovra_asn1_integer_getbigintger(nullptr), nullptr);
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
