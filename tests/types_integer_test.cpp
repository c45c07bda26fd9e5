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
    for (const auto make : {kovra_asn1_integer_new, kovra_asn1_unsigned_integer_new}) {
        for (const int32_t length : {0, -1, INT32_MIN})
            EXPECT_EQ(make("x", length), nullptr);
        EXPECT_EQ(make(nullptr, 1), nullptr);
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
        // Only integers are compared.
        const Value string = decoded(4, "04 01 41");
        EXPECT_EQ(kovra_asn1_integer_equals(values[i].get(), string.get()), 0);
        EXPECT_EQ(kovra_asn1_integer_encodecmp(string.get(), values[i].get()), i == 0 ? 0 : -1);
    }
}

} // namespace
} // namespace kovra::test
