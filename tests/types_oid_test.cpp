// OBJECT IDENTIFIER and RELATIVE-OID.
#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {
TEST(Oid, OfText) {
    const struct {
        std::string text;
        const char *encoding; // empty: refused
        const char *stored = nullptr;
    } rows[] = {{"1.2.840.113549", "06062A864886F70D"},
                {"2.999.3", "0603883703"},
                {"1.2", "06012A"},
                {"0.0", "060100"},
                {"0.39", "060127"},
                {"1.39", "06014F"},
                {"2.0", "060150"},
                {"2.40", "060178"},
                {"2.47", "06017F"},
                {"2.48", "06028100"},
                {"1.2.0.127.128.16383.16384", "060A2A007F8100FF7F818000"},
                {"1 2 3", "06022A03", "1.2.3"},
                {"1.2 3", "06022A03", "1.2.3"},
                {"1.2.000", "06022A00"}, // kept as given
                {"01.02.3", "06022A03"},
                {"1.2.000000000000000000000000000001", "06022A01"},
                {"1.2.18446744073709551614", "060B2A81FFFFFFFFFFFFFFFF7E"},
                {"1.2.9223372036854775808", "060B2A81808080808080808000"},
                {"2.18446744073709551534", "060A81FFFFFFFFFFFFFFFF7E"}, // 80 + it is the largest but one
                {"2.18446744073709551614", ""},
                {"1.2.18446744073709551615", ""},
                {"1.2.18446744073709551616", ""},
                {"1.2.184467440737095516150", ""},
                {"1.2.0000000000000000000000000000001", ""}, // 31 digits
                {"0.40", ""},
                {"1.40", ""},
                {"3.1", ""},
                {"1.2.", ""},
                {"1..2", ""},
                {"1 .2", ""},
                {".1.2", ""},
                {" 1.2", ""},
                {"1.2 ", ""},
                {"12", ""},
                {"", ""},
                {"002", ""},
                {"1,2,3", ""},
                {"1.2.-3", ""},
                {"1.+2", ""},
                {"1.2.a3", ""},
                {"1.2.0x3", ""},
                {"1\t2", ""},
                {"4294967297.2", ""},
                {"1.4294967298", ""}};
    for (const auto &row : rows) {
        Value oid(6, kovra_asn1_oid_new(row.text.c_str()));
        EXPECT_EQ(encoding(oid), row.encoding) << row.text;
        if (oid) {
            EXPECT_STREQ(kovra_asn1_oid_getstring(oid.get()), row.stored != nullptr ? row.stored : row.text.c_str());
        }
    }
    EXPECT_EQ(kovra_asn1_oid_new(nullptr), nullptr);
    const std::pair<const char *, const char *> relative[] = {{"5", "0D0105"},
                                                              {"0.300", "0D0300822C"},
                                                              {"3.1", "0D020301"},
                                                              {"1 99", "0D020163"},
                                                              {"", ""},
                                                              {"5.", ""},
                                                              {".5", ""},
                                                              {"5..5", ""},
                                                              {"a", ""},
                                                              {"18446744073709551615", ""}};
    for (auto [text, wanted] : relative)
        EXPECT_EQ(encoding(Value(90, kovra_asn1_relative_oid_new(text))), wanted) << text;
    EXPECT_EQ(kovra_asn1_relative_oid_new(nullptr), nullptr);
    std::string many = "1.2" + repeated(".16384", 100000);
    Value large(6, kovra_asn1_oid_new(many.c_str()));
    EXPECT_TRUE(encode(6, large.get()).octets == octets("06 83 04 93 E1 2A") + repeated(octets("81 80 00"), 100000));
    EXPECT_TRUE(kovra_asn1_oid_getstring(decode(6, encode(6, large.get()).octets).value.get()) == many);
}

TEST(Oid, DecodesWhatBerHas) {
    const struct {
        uint32_t type;
        const char *encoding, *text;
    } texts[] = {{6, "06 03 88 37 03", "2.999.3"},
                 {6, "06 01 27", "0.39"},
                 {6, "06 01 28", "1.0"},
                 {6, "06 01 4F", "1.39"},
                 {6, "06 01 50", "2.0"},
                 {6, "06 02 2A 86", "1.2"},
                 {6, "06 01 86", ""},
                 {6, "06 0B 2A 81 FF FF FF FF FF FF FF FF 7F", "1.2.18446744073709551615"},
                 {6, "06 0A 81 FF FF FF FF FF FF FF FF 7F", "2.18446744073709551535"},
                 {90, "0D 03 00 82 2C", "0.300"},
                 {90, "0D 02 05 86", "5"}};
    for (const auto &row : texts)
        EXPECT_STREQ(kovra_asn1_relative_oid_getstring(decoded(row.type, row.encoding).get()), row.text);
    Value oid = decoded(6, "06 03 2A 03 04");
    for (int32_t length : {0, 2, 4, -1})
        EXPECT_EQ(encode_content(6, oid.get(), length).codes, Codes({0x10203}));
    EXPECT_EQ(hex(encode_content(6, oid.get(), 3).octets), "2A0304");
    EXPECT_EQ(decode_content(90, "\x05", 1, -1).codes, Codes({0x10206}));
}

} // namespace
} // namespace kovra::test
