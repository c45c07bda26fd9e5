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

TEST(String, OctetStringDecodesWhatBerHas) {
    EXPECT_EQ(decode_content(4, octets("04 01 41 00 00"), 0, -1).read, 5);
    EXPECT_EQ(decode_content(8, "ABC", 1, 3).read, 3);
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
        EXPECT_EQ(chain(with(0, "02 41")), Codes({0x10105}));
        EXPECT_EQ(chain(with(0, "")), Codes({0x10105, 0x102e7}));
        EXPECT_EQ(chain(with(0x80, "01 41")), Codes({0x1020a}));
        EXPECT_EQ(chain(octets("04 01 41")), Codes({0x1020a}));
        EXPECT_EQ(chain(octets("00 00")), Codes({0x1020a}));
        EXPECT_EQ(chain(""), Codes({0x10105, 0x102e5}));
        for (auto [other, other_tag] : string_types)
            EXPECT_EQ(decode(other, primitive).result, other == type);
    }
    EXPECT_EQ(encode(8, string("A").get()).codes, Codes({0x1026c}));
    EXPECT_EQ(encode_content(8, string("A").get(), 1).octets, "A");
}

TEST(String, NewAndRead) {
    EXPECT_EQ(encoding(Value(4, kovra_asn1_octetstring_new(nullptr, 0))), "0400");
    EXPECT_EQ(encoding(Value(12, kovra_asn1_string_new("AB", 2))), "14024142");
    EXPECT_EQ(kovra_asn1_octetstring_new(nullptr, 3), nullptr);
    EXPECT_EQ(kovra_asn1_octetstring_new("x", -1), nullptr);
    EXPECT_EQ(kovra_asn1_string_new("x", -1), nullptr);
    EXPECT_EQ(kovra_asn1_octetstring_newstream(nullptr), nullptr);
    char buffer[8] = "-------";
    for (const std::string text : {"", "A", "\0B\xFF"}) {
        Value made = string(text), read = Value(4, decode(4, encode(4, made.get()).octets).value.release());
        for (const Value *value : {&made, &read}) {
            EXPECT_EQ(kovra_asn1_octetstring_getlength(value->get()), size_of(text));
            EXPECT_EQ(kovra_asn1_string_getlength(value->get()), size_of(text));
            EXPECT_EQ(kovra_asn1_octetstring_getall(value->get(), buffer), 1);
            EXPECT_EQ(std::string(buffer, text.size()), text);
            EXPECT_EQ(text_of(Blob(kovra_asn1_octetstring_getblob(value->get())).get()), text);
        }
    }
    EXPECT_EQ(kovra_asn1_string_get(string("A").get(), nullptr), 0);
}

TEST(String, ContentOfGivenLengths) {
    Value value = string("ABC");
    EXPECT_EQ(encode_content(4, value.get(), 3).octets, "ABC");
    EXPECT_EQ(hex(encode_content(9, value.get(), -1).octets), "04034142430000");
    EXPECT_EQ(hex(encode_content(4, string("").get(), -1).octets), "0000");
    std::string large = noise(10000);
    EXPECT_TRUE(encode_content(4, string(large).get(), -1).octets == in_segments(large));
    for (int32_t length : {-2, INT32_MIN})
        EXPECT_EQ(encode_content(4, value.get(), length).codes, Codes({0x10001}));
    for (int32_t length : {0, 2, 4, INT32_MAX})
        EXPECT_EQ(encode_content(4, value.get(), length).codes, Codes({0x10004}));
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

// An object within the content, which all of it has to be.
TEST(String, HoldsAnObjectWhereverItsContentIs) {
    const std::string path = (std::filesystem::path(testing::TempDir()) / "kovra_object_string").string();
    auto expect = [](kovra_asn1_value *holder, const std::string &expected, const Codes &codes) {
        Errors ctx(kovra_err_ctx_new());
        kovra_asn1_value *out = nullptr;
        EXPECT_EQ(kovra_asn1_octetstring_getobject(holder, 2, &out, ctx.get()), expected.empty() ? 0 : 1);
        EXPECT_EQ(encoding(Value(2, out)), expected);
        EXPECT_EQ(Codes(ctx.get()), codes);
    };
    for (const char *more : {"", "00"}) {
        const std::string content = octets(std::string("02 01 05") + more);
        const Codes codes = *more == '\0' ? Codes() : Codes({0x1027f});
        const std::string expected = *more == '\0' ? "020105" : "";
        Stream file(kovra_stream_new_file(path.c_str(), KOVRA_FILE_READ_WRITE, nullptr));
        ASSERT_EQ(kovra_stream_writen(file.get(), content.data(), size_of(content), nullptr, nullptr), 1);
        expect(string(content).get(), expected, codes);
        const Value from_file(4, kovra_asn1_octetstring_newstream(file.get()));
        expect(from_file.get(), expected, codes);
        expect(from_file.get(), expected, codes);
    }
    std::filesystem::remove(path);
    const Input once(octets("02 01 05"), Feed::trickle);
    expect(Value(4, kovra_asn1_octetstring_newstream(once.stream())).get(), "", Codes({0x10109}));
    expect(string(octets("04 00")).get(), "", Codes({0x1020a, 0x10210}));
    expect(nullptr, "", Codes({0x10002}));
    expect(decoded(1, "01 01 FF").get(), "", Codes({0x10001}));
    EXPECT_EQ(kovra_asn1_octetstring_getobject(string("").get(), 2, nullptr, nullptr), 0);
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
    Input input("ABC", Feed::trickle);
    Value value(4, kovra_asn1_octetstring_newstream(input.stream()));
    char buffer[3];
    int32_t count = 0;
    EXPECT_EQ(kovra_asn1_octetstring_getlength(value.get()), -2);
    EXPECT_EQ(kovra_asn1_octetstring_getall(value.get(), buffer), 0);
    EXPECT_EQ(kovra_asn1_octetstring_getblob(value.get()), nullptr);
    EXPECT_EQ(encode(4, value.get()).codes, Codes({0x10203}));
    EXPECT_EQ(encode(9, value.get()).codes, Codes({0x102ea}));
    EXPECT_EQ(encode_content(4, value.get(), -1).codes.back(), 0x10109); // it cannot be rewound
    EXPECT_EQ(kovra_asn1_octetstring_get(value.get(), 2, buffer, 3, &count, nullptr), 1);
    EXPECT_EQ(std::string(buffer, static_cast<size_t>(count)), "A");
    Errors ctx(kovra_err_ctx_new());
    EXPECT_NE(kovra_asn1_octetstring_get(value.get(), 1, buffer, 3, &count, ctx.get()), 1);
    EXPECT_EQ(Codes(ctx.get()).back(), 0x10109);
}

TEST(String, DecodesIntoTheCallersStream) {
    Stream content = memory_stream();
    for (Feed feed : {Feed::memory, Feed::trickle}) {
        auto whole = [&](const char *text) {
            return decode_with(4, Input(octets(text), feed), [&](auto *stream, auto **out, auto *read, auto *c) {
                return kovra_asn1_decode_octetstring_ex(stream, content.get(), out, read, c);
            });
        };
        Decoded first = whole("24 80 04 02 41 42 04 01 43 00 00");
        EXPECT_EQ(first.read, 11);
        EXPECT_EQ(kovra_asn1_octetstring_getlength(first.value.get()), 3);
        Decoded second = decode_with(4, Input("DE", feed), [&](auto *stream, auto **out, auto *read, auto *c) {
            return kovra_asn1_decode_octetstring_content_ex(stream, content.get(), out, 1, 2, read, c);
        });
        EXPECT_EQ(kovra_asn1_octetstring_getlength(first.value.get()), 5) << "one stream";
        EXPECT_EQ(whole("00 00").codes, Codes({0x10219}));
        EXPECT_EQ(whole("0C 00").codes, Codes({0x1020a}));
        first.value = Value();
        second.value = Value();
        EXPECT_EQ(taken(content), "ABCDE");
    }
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
