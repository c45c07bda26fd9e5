// OBJECT IDENTIFIER and RELATIVE-OID.
#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {
TEST(Oid, OfText) {
    EXPECT_EQ(kovra_asn1_oid_new(nullptr), nullptr);
    EXPECT_EQ(kovra_asn1_relative_oid_new(nullptr), nullptr);
    std::string many = "1.2" + repeated(".16384", 100000);
    Value large(6, kovra_asn1_oid_new(many.c_str()));
    EXPECT_TRUE(encode(6, large.get()).octets == octets("06 83 04 93 E1 2A") + repeated(octets("81 80 00"), 100000));
    EXPECT_TRUE(kovra_asn1_oid_getstring(decode(6, encode(6, large.get()).octets).value.get()) == many);
}

TEST(Oid, DecodesWhatBerHas) {
    Value oid = decoded(6, "06 03 2A 03 04");
    for (int32_t length : {0, 2, 4, -1})
        EXPECT_EQ(encode_content(6, oid.get(), length).codes, Codes({0x10203}));
    EXPECT_EQ(hex(encode_content(6, oid.get(), 3).octets), "2A0304");
    EXPECT_EQ(decode_content(90, "\x05", 1, -1).codes, Codes({0x10206}));
}

} // namespace
} // namespace kovra::test
