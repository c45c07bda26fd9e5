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

TEST(BitString, DecodesWhatBerHas) {
    EXPECT_EQ(decode_content(3, "", 1, -2).codes, Codes({0x10203}));
    EXPECT_EQ(decode_content(3, octets("03 02 04 F0 00 00"), 0, -1).read, 6);
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

TEST(BitString, ContentOfGivenLengths) {
    Value value = bits(4, "AA F0");
    EXPECT_EQ(hex(encode_content(3, value.get(), 3).octets), "04AAF0");
    EXPECT_EQ(hex(encode_content(3, value.get(), -1).octets), "030304AAF00000");
    for (int32_t length : {0, -2, INT32_MIN})
        EXPECT_EQ(encode_content(3, value.get(), length).codes, Codes({0x10001}));
    for (int32_t length : {1, 2, 4})
        EXPECT_EQ(encode_content(3, value.get(), length).codes, Codes({0x10004}));
    std::string large = noise(20000);
    Value of_segments(3, kovra_asn1_bitstring_new(5, large.data(), 20000));
    large.back() = static_cast<char>(large.back() & 0xE0);
    EXPECT_TRUE(encode_content(3, of_segments.get(), -1).octets == in_segments(large, 5));
}

TEST(BitString, DecodesIntoTheCallersStream) {
    Stream content = memory_stream();
    Errors ctx(kovra_err_ctx_new());
    for (Feed feed : {Feed::memory, Feed::trickle}) {
        Decoded found = decode_with(3, Input(octets("23 80 03 02 00 AA 03 02 04 B0 00 00"), feed),
                                    [&](auto *stream, auto **out, auto *read, auto *c) {
                                        return kovra_asn1_decode_bitstring_ex(stream, content.get(), out, read, c);
                                    });
        EXPECT_EQ(found.read, 12);
        EXPECT_EQ(kovra_asn1_bitstring_getunusedbits(found.value.get()), 4);
        // Bits are told by the stream, from bit 0 on; those behind the end are not set.
        const BitSet set(kovra_asn1_bitstring_getbitset(found.value.get()));
        std::string bits;
        for (int32_t i = 0; i < 14; ++i) {
            bits += kovra_asn1_bitstring_getbit(found.value.get(), i) == 1 ? '1' : '0';
            EXPECT_EQ(kovra_bitset_test(set.get(), i), bits.back() - '0') << i;
        }
        EXPECT_EQ(bits, "10101010101100");
        EXPECT_EQ(kovra_bitset_getsize(set.get()), 12);
        fail_each_allocation([&] { return BitSet(kovra_asn1_bitstring_getbitset(found.value.get())) != nullptr; });
        found = decode_with(3, Input(octets("04 C0"), feed), [&](auto *stream, auto **out, auto *read, auto *c) {
            return kovra_asn1_decode_bitstring_content_ex(stream, content.get(), out, 1, 2, read, c);
        });
        EXPECT_EQ(found.read, 2);
        found.value = Value();
        EXPECT_EQ(hex(taken(content)), "AAB0C0") << "appended, and not the value's";
    }
    auto whole = [&](const char *text) {
        return decode_with(3, Input(octets(text)),
                           [&](auto *stream, auto **out, auto *read, auto *c) {
                               return kovra_asn1_decode_bitstring_ex(stream, content.get(), out, read, c);
                           })
            .codes;
    };
    EXPECT_EQ(whole("00 00"), Codes({0x10214}));
    EXPECT_EQ(whole("04 00"), Codes({0x1020a}));
    kovra_asn1_value *value = nullptr;
    Input input("x");
    EXPECT_EQ(kovra_asn1_decode_bitstring_content_ex(nullptr, content.get(), &value, 1, 1, nullptr, ctx.get()), 0);
    EXPECT_EQ(kovra_asn1_decode_bitstring_content_ex(input.stream(), nullptr, &value, 1, 1, nullptr, ctx.get()), 0);
    EXPECT_EQ(kovra_asn1_decode_bitstring_content_ex(input.stream(), content.get(), nullptr, 1, 1, nullptr, ctx.get()),
              0);
    EXPECT_EQ(Codes(ctx.get()), Codes({0x10002, 0x10002, 0x10002}));
}

} // namespace
} // namespace kovra::test
