// BIT STRING.
#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {
namespace {
Value bits(int32_t unused, std::string_view hex) {
    std::string data = octets(hex);
    return Value(3, kovra_asn1_bitstring_new(unused, data.data(), size_of(data)));
}

std::string data_of(const Value &bitstring) {
    std::string data(static_cast<size_t>(kovra_asn1_bitstring_getlength(bitstring.get())), '\0');
    EXPECT_EQ(kovra_asn1_bitstring_getall(bitstring.get(), data.data()), 1);
    return hex(data);
}

TEST(BitString, New) {
    EXPECT_EQ(encoding(bits(3, "FF")), "030203F8");
    EXPECT_EQ(encoding(bits(7, "12 34 FF")), "030407123480");
    EXPECT_EQ(encoding(bits(0, "")), "030100");
    EXPECT_EQ(encoding(Value(3, kovra_asn1_bitstring_new(0, nullptr, 0))), "030100");
    for (auto [unused, data, length] :
         {std::tuple(1, (const char *)nullptr, 0), {0, nullptr, 1}, {8, "x", 1}, {-1, "x", 1}, {0, "x", -1}})
        EXPECT_EQ(kovra_asn1_bitstring_new(unused, data, length), nullptr);
    int32_t nine = 9;
    EXPECT_EQ(encoding(Value(3, kovra_asn1_bitstring_newbits(nullptr, 5))), "030100");
    EXPECT_EQ(encoding(Value(3, kovra_asn1_bitstring_newbits(&nine, 0))), "0303060040"); // read even so
    EXPECT_EQ(kovra_asn1_bitstring_newbits(&nine, -1), nullptr);
    EXPECT_EQ(kovra_asn1_bitstring_newbitset(nullptr), nullptr);
    // Through a bit set and back.
    for (const char *text : {"030100", "03020284", "03020780", "0303060040", "03020001"}) {
        BitSet set(kovra_asn1_bitstring_getbitset(decoded(3, text).get()));
        EXPECT_EQ(encoding(Value(3, kovra_asn1_bitstring_newbitset(set.get()))), text);
    }
}

TEST(BitString, Bits) {
    Value value = decoded(3, "03 03 04 A1 FF"); // the four unused bits are ones
    EXPECT_EQ(kovra_asn1_bitstring_getlength(value.get()), 2);
    EXPECT_EQ(kovra_asn1_bitstring_getunusedbits(value.get()), 4);
    std::string found;
    for (int32_t bit = 0; bit < 20; ++bit)
        found += kovra_asn1_bitstring_getbit(value.get(), bit) == 1 ? '1' : '0';
    EXPECT_EQ(found, "10100001111100000000");
    for (int32_t bit : {-1, INT32_MIN, INT32_MAX})
        EXPECT_EQ(kovra_asn1_bitstring_getbit(value.get(), bit), 0);
    EXPECT_EQ(kovra_asn1_bitstring_getbit(decoded(3, "03 01 00").get(), 0), 0);
    EXPECT_EQ(data_of(value), "A1FF");
    EXPECT_EQ(kovra_asn1_content_length(3, value.get()), 3);
}

// Bits are told by the stream, from bit 0 on; those behind the end are not set.
TEST(BitString, BitsInTheCallersStream) {
    const Stream content = memory_stream();
    const Decoded found = decode_with(3, Input(octets("23 80 03 02 00 AA 03 02 04 B0 00 00")),
                                      [&](auto *stream, auto **out, auto *read, auto *c) {
                                          return kovra_asn1_decode_bitstring_ex(stream, content.get(), out, read, c);
                                      });
    EXPECT_EQ(kovra_asn1_bitstring_getunusedbits(found.value.get()), 4);
    const BitSet set(kovra_asn1_bitstring_getbitset(found.value.get()));
    std::string bits;
    for (int32_t i = 0; i < 14; ++i) {
        bits += kovra_asn1_bitstring_getbit(found.value.get(), i) == 1 ? '1' : '0';
        EXPECT_EQ(kovra_bitset_test(set.get(), i), bits.back() - '0') << i;
    }
    EXPECT_EQ(bits, "10101010101100");
    EXPECT_EQ(kovra_bitset_getsize(set.get()), 12);
    for (const bool fails_once : {false, true})
        fail_each_allocation([&] { return BitSet(kovra_asn1_bitstring_getbitset(found.value.get())) != nullptr; },
                             fails_once);
}

} // namespace
} // namespace kovra::test
