// Identifier and length octets.
#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {

// Numbers around those that one octet more is for, of so many bits an octet.
std::vector<int32_t> edges_of(int bits) {
    std::vector<int32_t> found = {0, 1, 30, 31, 32, 0x7FFFFFFE, 0x7FFFFFFF};
    for (int shift = bits; shift < 31; shift += bits)
        for (const int32_t more : {-1, 0})
            found.push_back((1 << shift) + more);
    return found;
}

// The digits of a number to the base of so many bits, the highest first.
std::string digits(int32_t number, int bits) {
    std::string found;
    for (; number != 0 || found.empty(); number >>= bits)
        found.insert(found.begin(), static_cast<char>(number & ((1 << bits) - 1)));
    return found;
}

TEST(Identifier, EveryClassFormAndTagIsWrittenInTheFewestOctetsAndReadBack) {
    for (const int32_t tag : edges_of(7))
        for (const uint32_t tag_class : {0x00U, 0x40U, 0x80U, 0xC0U})
            for (const int32_t form : {0, 1, 2, -1}) { // any but 0 is primitive
                std::string expected = tag < 31 ? "" : digits(tag, 7);
                for (size_t i = 0; i + 1 < expected.size(); ++i)
                    expected[i] = static_cast<char>(expected[i] | 0x80);
                const uint32_t first = tag_class | (form == 0 ? 0x20U : 0U) | static_cast<uint32_t>(std::min(tag, 31));
                expected.insert(expected.begin(), static_cast<char>(first));
                const Encoded encoded = encode_with([=](auto *stream, auto *written, auto *ctx) {
                    return kovra_asn1_encode_identifier(stream, tag_class, form, tag, written, ctx);
                });
                EXPECT_EQ(hex(encoded.octets), hex(expected)) << tag;
                EXPECT_EQ(kovra_asn1_identifier_length(tag), size_of(expected));
                for (const Feed feed : {Feed::memory, Feed::trickle}) {
                    const Input input(expected + "x", feed);
                    uint32_t found_class = 1;
                    int32_t found_form = 7, found_tag = -7, read = -7;
                    EXPECT_EQ(kovra_asn1_decode_identifier(input.stream(), &found_class, &found_form, &found_tag, &read,
                                                           nullptr),
                              1);
                    EXPECT_EQ(std::tuple(found_class, found_form, found_tag, read),
                              std::tuple(tag_class, form == 0 ? 0 : 1, tag, size_of(expected)));
                    EXPECT_EQ(input.consumed(), expected.size());
                }
            }
}

TEST(Length, EveryLengthIsWrittenInTheFewestOctetsAndReadBack) {
    std::vector<int32_t> lengths = edges_of(8);
    lengths.insert(lengths.end(), {-1, 127, 128});
    for (const int32_t length : lengths) {
        std::string expected = length < 0 ? "\x80" : digits(length, 8);
        if (length > 127)
            expected.insert(expected.begin(), static_cast<char>(0x80 + expected.size()));
        const Encoded encoded = encode_with([=](auto *stream, auto *written, auto *ctx) {
            return kovra_asn1_encode_length(stream, length, written, ctx);
        });
        EXPECT_EQ(hex(encoded.octets), hex(expected));
        EXPECT_EQ(kovra_asn1_length_length(length), size_of(expected));
        int32_t found = -7, read = -7;
        const Input input(expected + "x");
        EXPECT_EQ(kovra_asn1_decode_length(input.stream(), &found, &read, nullptr), 1);
        EXPECT_EQ(std::pair(found, read), std::pair(length, size_of(expected)));
    }
}

} // namespace
} // namespace kovra::test
