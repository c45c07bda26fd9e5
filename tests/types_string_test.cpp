// OCTET STRING and the character strings, and what BIT STRING shares with them: piecewise reading, objects inside.
#include <filesystem>

#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {
struct StringType {
    uint32_t type;
    int32_t tag;
};
constexpr StringType string_types[] = {{9, 12},  {10, 18}, {11, 19}, {12, 20}, {13, 21}, {14, 22},
                                       {15, 25}, {16, 26}, {17, 27}, {18, 28}, {19, 30}};

Value string(std::string_view text, uint32_t type = 4) {
    return Value(type, kovra_asn1_octetstring_new(text.data(), static_cast<int32_t>(text.size())));
}

TEST(String, CharacterStringsDifferInTheirTagOnly) {
    for (auto [type, tag] : string_types) {
        auto with = [tag = tag](int bits, const char *rest) {
            return std::string(1, static_cast<char>(tag | bits)) + octets(rest);
        };
        auto chain = [type = type](const std::string &in) { return decode(type, in).codes; };
        std::string primitive = with(0, "04 41 00 40 FF"); // no repertoire is checked
        Decoded found = decode(type, primitive);
        EXPECT_EQ(encode(type, found.value.get()).octets, primitive);
        EXPECT_EQ(kovra_asn1_length(type, found.value.get()), 6);
        for (const char *rest : {"80 04 02 41 00 24 80 04 02 40 FF 00 00 00 00", "08 04 02 41 00 04 02 40 FF"})
            EXPECT_EQ(encode(type, decode(type, with(0x20, rest)).value.get()).octets, primitive);
        EXPECT_EQ(chain(with(0x20, "80 0C 01 41 00 00")), Codes({0x1020a}));
        EXPECT_EQ(chain(with(0x20, "03 04 02 41 42")), Codes({0x10203}));
        EXPECT_EQ(chain(with(0, "80 00 00")), Codes({0x10206}));
        EXPECT_EQ(chain(octets("04 01 41")), Codes({0x1020a}));
        for (auto [other, other_tag] : string_types)
            EXPECT_EQ(decode(other, primitive).result, other == type);
    }
    EXPECT_EQ(encode(8, string("A").get()).codes, Codes({0x1026c}));
    EXPECT_EQ(encode_content(8, string("A").get(), 1).octets, "A");
}

// Reads a value in pieces of 3 octets, through the given function.
template <class Get> void expect_pieces(const Value &value, const std::string &expected, Get get) {
    std::string found;
    char buffer[4];
    int32_t count = 0;
    EXPECT_EQ(get(value.get(), 2, buffer, 1, &count, nullptr), 1); // wherever it stands
    for (int32_t mode = 1; get(value.get(), mode, buffer, 3, &count, nullptr) == 1 && count > 0; mode = 2)
        found.append(buffer, static_cast<size_t>(count));
    EXPECT_EQ(found, expected);
    auto expect = [&](int32_t code, kovra_asn1_value *from, int32_t mode, void *to, int32_t size) {
        Errors ctx(kovra_err_ctx_new());
        EXPECT_EQ(get(from, mode, to, size, &count, ctx.get()), code == 0);
        EXPECT_EQ(Codes(ctx.get()), code == 0 ? Codes() : Codes({code}));
    };
    expect(0, value.get(), 1, buffer, 0);
    EXPECT_EQ(count, 0);
    expect(0x10002, nullptr, 1, buffer, 3);
    expect(0x10002, value.get(), 1, nullptr, 3);
    expect(0x10001, decoded(1, "01 01 FF").get(), 1, buffer, 3);
    expect(0x10001, value.get(), 1, buffer, -1);
    for (int32_t mode : {0, 3, -1})
        expect(0x10105, value.get(), mode, buffer, 3);
}

TEST(String, IsReadInPieces) {
    expect_pieces(string("ABCDEFGH"), "ABCDEFGH", kovra_asn1_octetstring_get);
    expect_pieces(decoded(4, "24 80 04 02 41 42 04 02 43 44 00 00"), "ABCD", kovra_asn1_octetstring_get);
    expect_pieces(decoded(3, "03 06 00 41 42 43 44 45"), "ABCDE", kovra_asn1_bitstring_get);
    expect_pieces(decoded(23, "04 04 41 42 43 44"), "ABCD", kovra_asn1_any_getcontent);
    expect_pieces(decoded(23, "30 80 05 00 00 00"), octets("05 00 00 00"), kovra_asn1_any_getcontent);
    expect_pieces(decoded(23, "00 00"), "", kovra_asn1_any_getcontent);
}

// From 5 MiB on, what is not in memory is written in segments.
TEST(String, IsWrittenInSegmentsFromAFileOf5MiB) {
    constexpr size_t limit = segmented_from;
    std::string path = (std::filesystem::path(testing::TempDir()) / "kovra_core_string").string();
    const std::string data = noise(limit);
    for (size_t size : {limit - 1, limit}) {
        Stream file(kovra_stream_new_file(path.c_str(), KOVRA_FILE_READ_WRITE, nullptr));
        ASSERT_EQ(kovra_stream_writen(file.get(), data.data(), static_cast<int32_t>(size), nullptr, nullptr), 1);
        std::string_view expected = std::string_view(data).substr(0, size);
        Value value(4, kovra_asn1_octetstring_newstream(file.get()));
        bool segmented = size == limit;
        EXPECT_EQ(kovra_asn1_octetstring_getlength(value.get()), segmented ? -1 : static_cast<int32_t>(size));
        const std::string header = limit < 0x80 ? std::string(1, '\x27') : octets("83 4F FF FF");
        EXPECT_EQ(kovra_asn1_length(4, value.get()), segmented ? -1 : size_of(header) + 1 + static_cast<int32_t>(size));
        EXPECT_EQ(Blob(kovra_asn1_octetstring_getblob(value.get())) == nullptr, segmented);
        std::string all(size, '\0');
        EXPECT_EQ(kovra_asn1_octetstring_getall(value.get(), all.data()), 1);
        EXPECT_TRUE(all == expected);
        const std::string wanted = segmented ? "\x80" + in_segments(data) : header + std::string(expected);
        std::string encoded = encode(4, value.get()).octets;
        EXPECT_TRUE(encoded == (segmented ? "\x24" : "\x04") + wanted);
        EXPECT_TRUE(encode(9, value.get()).octets == (segmented ? "\x2C" : "\x0C") + wanted);
        Decoded back = decode(4, encoded);
        EXPECT_EQ(kovra_asn1_octetstring_getlength(back.value.get()), static_cast<int32_t>(size)); // in memory now
        EXPECT_EQ(kovra_asn1_octetstring_getall(back.value.get(), all.data()), 1);
        EXPECT_TRUE(all == expected);
    }
    std::filesystem::remove(path);
}

TEST(String, OfAStreamThatKnowsNoSize) {
    const Input input("ABC", Feed::trickle);
    const Value value(4, kovra_asn1_octetstring_newstream(input.stream()));
    EXPECT_EQ(kovra_asn1_octetstring_getlength(value.get()), -2);
    EXPECT_EQ(encode(4, value.get()).codes, Codes({0x10203}));
    EXPECT_EQ(encode(9, value.get()).codes, Codes({0x102ea}));
    EXPECT_EQ(encode_content(4, value.get(), -1).codes.back(), 0x10109) << "it cannot be rewound";
    kovra_asn1_value *out = nullptr;
    EXPECT_EQ(kovra_asn1_octetstring_getobject(value.get(), 2, &out, nullptr), 0);
}

// The content goes to the caller's stream, one behind the other, and is not the value's.
TEST(String, DecodesIntoTheCallersStream) {
    using Decoder = int32_t (*)(kovra_stream *, kovra_stream *, kovra_asn1_value **, int32_t *, kovra_err_ctx *);
    const struct {
        uint32_t type;
        Decoder decoder;
        std::vector<const char *> elements;
        const char *contents;
        std::vector<std::pair<const char *, Codes>> refused;
    } rows[] = {
        {4,
         kovra_asn1_decode_octetstring_ex,
         {"24 80 04 02 41 42 04 01 43 00 00", "04 01 44"},
         "41424344",
         {{"00 00", {0x10219}}, {"0C 00", {0x1020a}}}},
        {3,
         kovra_asn1_decode_bitstring_ex,
         {"23 80 03 02 00 AA 03 02 04 B0 00 00", "03 01 00"},
         "AAB0",
         {{"00 00", {0x10214}}, {"04 00", {0x1020a}}}},
        {23, kovra_asn1_decode_any_ex, {"A0 03 02 01 05", "30 80 05 00 00 00", "00 00"}, "02010505000000", {}},
    };
    const Stream content = memory_stream();
    for (const auto &row : rows)
        for (const Feed feed : {Feed::memory, Feed::trickle}) {
            const auto decoded_into = [&](const char *text, kovra_stream *into) {
                return decode_with(row.type, Input(octets(text), feed),
                                   [&](auto *stream, auto **out, auto *read, auto *c) {
                                       return row.decoder(stream, into, out, read, c);
                                   });
            };
            for (const char *text : row.elements) {
                const Decoded read = decoded_into(text, content.get());
                EXPECT_EQ(read.read, size_of(octets(text)));
                if (row.type == 23 && text == row.elements[0]) {
                    EXPECT_EQ(encoding(read.value), hex(octets(text)));
                }
            }
            for (const auto &[text, codes] : row.refused)
                EXPECT_EQ(decoded_into(text, content.get()).codes, codes);
            EXPECT_EQ(decoded_into(row.elements[0], nullptr).codes, Codes({0x10002}));
            EXPECT_EQ(hex(taken(content)), row.contents);
        }
    const auto content_of = [&](uint32_t type, const char *text, auto decoder) {
        return decode_with(type, Input(octets(text)),
                           [&](auto *stream, auto **out, auto *read, auto *c) {
                               return decoder(stream, content.get(), out, 1, size_of(octets(text)), read, c);
                           })
            .read;
    };
    EXPECT_EQ(content_of(4, "44 45", kovra_asn1_decode_octetstring_content_ex), 2);
    EXPECT_EQ(content_of(3, "04 C0", kovra_asn1_decode_bitstring_content_ex), 2);
    EXPECT_EQ(hex(taken(content)), "4445C0");
}

TEST(String, IsWrittenPieceByPiece) {
    Stream stream = memory_stream();
    EXPECT_EQ(kovra_asn1_encode_octetstring_init(stream.get()), 1);
    EXPECT_EQ(kovra_asn1_encode_octetstring_update(stream.get(), "AB", 2), 1);
    EXPECT_EQ(kovra_asn1_encode_octetstring_update(stream.get(), nullptr, 0), 1);
    EXPECT_EQ(kovra_asn1_encode_octetstring_update(stream.get(), nullptr, 2), 0);
    EXPECT_EQ(kovra_asn1_encode_octetstring_update(stream.get(), "AB", -1), 0);
    EXPECT_EQ(kovra_asn1_encode_octetstring_update(stream.get(), "C", 1), 1);
    EXPECT_EQ(kovra_asn1_encode_octetstring_end(stream.get()), 1);
    std::string encoding = taken(stream);
    EXPECT_EQ(hex(encoding), "248004024142040004014300"
                             "00");
    EXPECT_EQ(hex(encode(4, decode(4, encoding).value.get()).octets), "0403414243");
    EXPECT_EQ(kovra_asn1_encode_octetstring_init(nullptr), 0);
    EXPECT_EQ(kovra_asn1_encode_octetstring_update(nullptr, "A", 1), 0);
    EXPECT_EQ(kovra_asn1_encode_octetstring_end(nullptr), 0);
}

} // namespace
} // namespace kovra::test
