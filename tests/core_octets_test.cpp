// Identifier and length octets.
#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {

constexpr uint32_t classes[] = {KOVRA_ASN1_UNIVERSAL, KOVRA_ASN1_APPLICATION, KOVRA_ASN1_CONTEXT, KOVRA_ASN1_PRIVATE};

struct Tag {
    int32_t number;
    const char *universal_primitive;
};
constexpr Tag tags[] = {{0, "00"},
                        {1, "01"},
                        {30, "1E"},
                        {31, "1F 1F"},
                        {32, "1F 20"},
                        {127, "1F 7F"},
                        {128, "1F 81 00"},
                        {16383, "1F FF 7F"},
                        {16384, "1F 81 80 00"},
                        {2097151, "1F FF FF 7F"},
                        {2097152, "1F 81 80 80 00"},
                        {268435455, "1F FF FF FF 7F"},
                        {268435456, "1F 81 80 80 80 00"},
                        {2147483646, "1F 87 FF FF FF 7E"},
                        {2147483647, "1F 87 FF FF FF 7F"}};

struct Length {
    int32_t length;
    const char *octets;
};
constexpr Length lengths[] = {{0, "00"},
                              {1, "01"},
                              {127, "7F"},
                              {128, "81 80"},
                              {255, "81 FF"},
                              {256, "82 01 00"},
                              {65535, "82 FF FF"},
                              {65536, "83 01 00 00"},
                              {16777215, "83 FF FF FF"},
                              {16777216, "84 01 00 00 00"},
                              {2147483646, "84 7F FF FF FE"},
                              {2147483647, "84 7F FF FF FF"},
                              {-1, "80"}};

struct Identifier {
    int32_t result = 0;
    uint32_t tag_class = 1;
    int32_t form = 7;
    int32_t tag = -7;
    int32_t read = -7;
    Codes codes;
};

Identifier decode_identifier(const Input &input) {
    Identifier found;
    Errors ctx(kovra_err_ctx_new());
    found.result =
        kovra_asn1_decode_identifier(input.stream(), &found.tag_class, &found.form, &found.tag, &found.read, ctx.get());
    found.codes = ctx.get();
    return found;
}

TEST(Identifier, EveryClassFormAndTagIsWrittenInTheFewestOctetsAndReadBack) {
    for (const Tag &tag : tags) {
        for (uint32_t tag_class : classes) {
            for (int32_t form : {0, 1}) {
                std::string expected = octets(tag.universal_primitive);
                expected[0] = static_cast<char>(static_cast<uint32_t>(expected[0]) | tag_class | (form ? 0u : 0x20u));
                Encoded encoded = encode_with([&](auto *stream, auto *written, auto *ctx) {
                    return kovra_asn1_encode_identifier(stream, tag_class, form, tag.number, written, ctx);
                });
                EXPECT_EQ(hex(encoded.octets), hex(expected)) << tag.number;
                EXPECT_EQ(kovra_asn1_identifier_length(tag.number), size_of(expected));
                for (Feed feed : {Feed::memory, Feed::trickle}) {
                    Input input(expected + "x", feed);
                    Identifier found = decode_identifier(input);
                    EXPECT_EQ(found.result, 1);
                    EXPECT_EQ(found.tag_class, tag_class);
                    EXPECT_EQ(found.form, form);
                    EXPECT_EQ(found.tag, tag.number);
                    EXPECT_EQ(found.read, size_of(expected));
                    EXPECT_EQ(input.consumed(), expected.size());
                }
            }
        }
    }
    for (int32_t form : {2, -1, 0x20}) // any form but 0 is primitive
        EXPECT_EQ(encode_with([=](auto *stream, auto *written, auto *ctx) {
                      return kovra_asn1_encode_identifier(stream, 0x80, form, 1, written, ctx);
                  }).octets,
                  octets("81"));
}

TEST(Length, EveryLengthIsWrittenInTheFewestOctetsAndReadBack) {
    for (const Length &length : lengths) {
        std::string expected = octets(length.octets);
        Encoded encoded = encode_with([&](auto *stream, auto *written, auto *ctx) {
            return kovra_asn1_encode_length(stream, length.length, written, ctx);
        });
        EXPECT_EQ(hex(encoded.octets), hex(expected));
        EXPECT_EQ(kovra_asn1_length_length(length.length), size_of(expected));
        int32_t found = -7, read = -7;
        Input input(expected + "x");
        EXPECT_EQ(kovra_asn1_decode_length(input.stream(), &found, &read, nullptr), 1);
        EXPECT_EQ(found, length.length);
        EXPECT_EQ(read, size_of(expected));
    }
}

TEST(Octets, BadArgumentsAreRefusedWithOneEntry) {
    Errors ctx(kovra_err_ctx_new());
    Stream stream = memory_stream();
    Input input("\x05");
    uint32_t tag_class;
    int32_t form, tag;
    kovra_stream *in = input.stream(), *out = stream.get();
    kovra_err_ctx *c = ctx.get();
    auto expect = [&](int32_t result, int32_t code) {
        EXPECT_EQ(result, 0);
        EXPECT_EQ(Codes(c), Codes({code}));
        kovra_err_ctx_clear(c);
    };
    expect(kovra_asn1_encode_identifier(nullptr, 0x20, 1, -1, nullptr, c), 0x10002);
    expect(kovra_asn1_encode_identifier(out, 0x20, 1, -1, nullptr, c), 0x10200);
    expect(kovra_asn1_encode_identifier(out, 0x100, 1, 1, nullptr, c), 0x10200);
    expect(kovra_asn1_encode_identifier(out, 0x01, 1, 1, nullptr, c), 0x10200);
    expect(kovra_asn1_encode_identifier(out, 0x40, 1, -1, nullptr, c), 0x10201);
    expect(kovra_asn1_encode_identifier(out, 0x40, 1, INT32_MIN, nullptr, c), 0x10201);
    expect(kovra_asn1_encode_length(nullptr, -2, nullptr, c), 0x10002);
    expect(kovra_asn1_encode_length(out, -2, nullptr, c), 0x10203);
    expect(kovra_asn1_encode_length(out, INT32_MIN, nullptr, c), 0x10203);
    expect(kovra_asn1_decode_identifier(nullptr, &tag_class, &form, &tag, nullptr, c), 0x10002);
    expect(kovra_asn1_decode_identifier(in, nullptr, &form, &tag, nullptr, c), 0x10002);
    expect(kovra_asn1_decode_identifier(in, &tag_class, nullptr, &tag, nullptr, c), 0x10002);
    expect(kovra_asn1_decode_identifier(in, &tag_class, &form, nullptr, nullptr, c), 0x10002);
    expect(kovra_asn1_decode_length(nullptr, &form, nullptr, c), 0x10002);
    expect(kovra_asn1_decode_length(in, nullptr, nullptr, c), 0x10002);
    expect(kovra_asn1_decode_eoc_length(nullptr, nullptr, c), 0x10002);
    EXPECT_EQ(taken(stream), "");
    EXPECT_EQ(input.consumed(), 0u);
    for (int32_t negative : {-1, -2, INT32_MIN})
        EXPECT_EQ(kovra_asn1_identifier_length(negative), -2);
    for (int32_t negative : {-2, -3, INT32_MIN})
        EXPECT_EQ(kovra_asn1_length_length(negative), -2);
}

TEST(Octets, TheSecondOctetOfEndOfContentsIsZero) {
    for (auto [in, code] : {std::pair("00", 0), {"01", 0x10205}, {"80", 0x10205}, {"", 0x10105}}) {
        Errors ctx(kovra_err_ctx_new());
        Input input(octets(in));
        int32_t read = -7;
        EXPECT_EQ(kovra_asn1_decode_eoc_length(input.stream(), &read, ctx.get()), code == 0);
        EXPECT_EQ(Codes(ctx.get()), code == 0 ? Codes() : Codes({code}));
        EXPECT_EQ(read, code == 0 ? 1 : -7);
    }
}

} // namespace
} // namespace kovra::test
