// The registry and what goes through it: dispatch, codes and texts, BOOLEAN, NULL, end-of-contents.
#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {
struct Row {
    uint32_t type;
    int32_t tag;
    int32_t form;
    int32_t base;
};

const std::vector<Row> &registry() {
    static const std::vector<Row> rows = [] {
        std::vector<Row> read;
        for (const auto &fields : table("registry.txt")) {
            for (const std::string &field : fields) {
                std::istringstream text(field);
                Row row = {};
                text >> row.type >> row.tag >> row.form >> std::hex >> row.base;
                read.push_back(row);
            }
        }
        return read;
    }();
    return rows;
}

struct Entry {
    std::string source;
    int32_t line = 0;
    int32_t code = 0;
    std::string text;
};

template <class Put> Entry entry_of(Put put) {
    Errors ctx(kovra_err_ctx_new());
    put(ctx.get());
    EXPECT_EQ(kovra_err_ctx_getcount(ctx.get()), 1);
    const char *source = "", *text = "";
    Entry entry;
    kovra_err_ctx_getentry(ctx.get(), 0, &source, &entry.line, &entry.code, &text);
    entry.source = source;
    entry.text = text;
    return entry;
}

TEST(Registry, EveryTypeReportsItsCodes) {
    ASSERT_EQ(registry().size(), static_cast<size_t>(KOVRA_ASN1_TYPE_COUNT));
    for (const Row &row : registry()) {
        Entry encoding = entry_of([&](auto *ctx) { kovra_asn1_encode_puterr(ctx, row.type, "me", 12); });
        Entry decoding = entry_of([&](auto *ctx) { kovra_asn1_decode_puterr(ctx, row.type, "me", 34); });
        EXPECT_EQ(&row - registry().data(), row.type);
        EXPECT_EQ(encoding.code, row.base) << row.type;
        EXPECT_EQ(decoding.code, row.base + 1) << row.type;
        EXPECT_EQ(encoding.source + decoding.source, "meme");
        EXPECT_EQ(encoding.line + decoding.line, 46);
    }
    for (uint32_t type : {208u, 0x7fffffffu, 0xffffffffu}) {
        Entry entry = entry_of([&](auto *ctx) { kovra_asn1_decode_puterr(ctx, type, nullptr, 0); });
        EXPECT_EQ(entry.code, 0x1026b);
        EXPECT_EQ(entry.text, "unsupport type");
    }
    kovra_asn1_encode_puterr(nullptr, 1, "me", 1);
}

// A type that is not supported says so in every direction; one that is refuses what is not of its tag and form.
TEST(Registry, EveryTypeChecksIdentifiersOrRefusesAltogether) {
    Value boolean(1, kovra_asn1_boolean_true());
    for (const Row &row : registry()) {
        SCOPED_TRACE(row.type);
        Decoded empty = decode(row.type, "");
        EXPECT_NE(empty.result, 1);
        EXPECT_FALSE(empty.codes.empty());
        if (row.type > 1 && row.type != KOVRA_ASN1_TYPE_NULL) {
            EXPECT_EQ(kovra_asn1_content_length(row.type, boolean.get()), -2);
            EXPECT_EQ(kovra_asn1_length(row.type, nullptr), -2);
            EXPECT_NE(encode(row.type, boolean.get()).result, 1);
        }
        if (empty.codes == Codes({0x1026d})) {
            EXPECT_EQ(encode(row.type, boolean.get()).codes, Codes({0x1026c}));
            continue;
        }
        if (row.tag == 0 || row.form < 0)
            continue;
        std::string identifier(1, static_cast<char>(row.tag | (row.form == 0 ? 0x20 : 0)));
        auto with = [&](int bits) { return std::string(1, static_cast<char>(identifier[0] ^ bits)) + '\0'; };
        // A structure that keeps its encoding reads the element as ANY first, which has an entry of its own.
        bool keeps = decode(row.type, identifier).codes.back() == 0x10236;
        EXPECT_EQ(decode(row.type, with(0x20)).codes, keeps ? Codes({0x10201, 0x10236}) : Codes({0x1026a}));
        EXPECT_EQ(decode(row.type, with(0x80)).codes, Codes({0x1020a})) << "another class";
        EXPECT_EQ(decode(row.type, with(0x21)).codes.back(), keeps ? 0x10236 : 0x1020a) << "tag before form";
        EXPECT_EQ(decode(row.type, with(0x01)).codes.back(), 0x1020a) << "another tag";
        EXPECT_EQ(decode(row.type, identifier + '\xFF').codes,
                  keeps ? Codes({0x10203, 0x102e7, 0x10236}) : Codes({0x10203, 0x102e7}));
    }
}

TEST(Codec, ATypeAbove207IsUnsupported) {
    Value boolean(1, kovra_asn1_boolean_true());
    for (uint32_t type : {208u, 0xffffffffu}) {
        EXPECT_EQ(kovra_asn1_length(type, boolean.get()), -2);
        EXPECT_EQ(kovra_asn1_content_length(type, boolean.get()), -2);
        EXPECT_EQ(decode(type, octets("01 01 FF")).codes, Codes({0x1026b}));
        EXPECT_EQ(decode_content(type, octets("FF"), 1, 1).codes, Codes({0x1026b}));
        EXPECT_EQ(encode(type, boolean.get()).codes, Codes({0x1026b}));
        EXPECT_EQ(encode_content(type, boolean.get(), 1).codes, Codes({0x1026b}));
        for (uint32_t nothing : {type, 0u, 5u})
            kovra_asn1_value_free(nothing, boolean.get()); // does nothing
        EXPECT_EQ(encoding(boolean), "0101FF");
        EXPECT_EQ(kovra_asn1_mem_encode(type, boolean.get()), nullptr);
    }
    EXPECT_STREQ(kovra_asn1_version(), "KOVRA ASN.1 Library 1.2.12,Build on 2012");
}

TEST(Codec, BooleanNullAndEndOfContents) {
    EXPECT_EQ(decode_content(1, octets("07"), 1, 1).codes, Codes());
    EXPECT_EQ(decode_content(1, "", 0, -1).codes, Codes({0x1026a})) << "form before length";
    EXPECT_EQ(decode_content(1, "", 1, -1).codes, Codes({0x10206}));
    EXPECT_EQ(decode_content(5, "", 0, 1).codes, Codes({0x1026a}));
    EXPECT_EQ(decode_content(5, "", 1, -1).codes, Codes({0x10206}));
    EXPECT_EQ(decode_content(5, "", 1, 7).codes, Codes({0x10203}));
    EXPECT_EQ(decode_content(0, "", 0, 0).codes, Codes({0x1026a}));
    EXPECT_EQ(decode_content(0, "", 1, 2).codes, Codes({0x10203}));
    for (uint32_t type : {20u, 23u, 63u, 83u, 176u, 201u})
        EXPECT_EQ(decode_content(type, octets("00"), 1, 1).codes, Codes({0x1026d})) << type;

    Value truth(1, kovra_asn1_boolean_true()), falsehood(1, kovra_asn1_boolean_false());
    EXPECT_EQ(encoding(truth) + encoding(falsehood), "0101FF010100");
    EXPECT_EQ(kovra_asn1_boolean_istrue(truth.get()), 1);
    EXPECT_EQ(kovra_asn1_boolean_istrue(falsehood.get()), 0);
    EXPECT_EQ(kovra_asn1_boolean_istrue(nullptr), 0);
    EXPECT_EQ(kovra_asn1_boolean_istrue(decoded(1, "01 01 80").get()), 1);
    for (auto [type, length] : {std::pair(0u, 2), {1u, 3}, {5u, 2}}) {
        EXPECT_EQ(kovra_asn1_length(type, nullptr), length);
        EXPECT_EQ(kovra_asn1_content_length(type, nullptr), length - 2);
    }
}

// By whom it is refused shows in the text.
TEST(Codec, ContentOfAnotherLengthIsNotEncoded) {
    const Value truth(1, kovra_asn1_boolean_true()), five = decoded(2, "02 01 05");
    const Stream stream = memory_stream();
    for (const auto &[type, value, length, text] : {std::tuple(1u, truth.get(), 2, ""),
                                                    {5u, nullptr, 1, ""},
                                                    {0u, nullptr, 1, "Bad length"},
                                                    {2u, five.get(), 2, "Bad length"}}) {
        const auto put = [&, type = type, value = value, length = length](auto *ctx) {
            kovra_asn1_encode_content(stream.get(), type, value, length, nullptr, ctx);
        };
        EXPECT_EQ(entry_of(put).code, 0x10203);
        EXPECT_EQ(entry_of(put).text, text);
    }
    EXPECT_EQ(encode_content(5, nullptr, 0).result + encode_content(0, nullptr, 0).result, 2);
    EXPECT_EQ(encode(0, nullptr).octets + encode(5, nullptr).octets, octets("00 00 05 00"));
}

TEST(Codec, NullArgumentsAreRefused) {
    const struct {
        uint32_t type;
        const char *sample;
        Codes encode_nowhere, encode_nothing, decode_nowhere;
    } rows[] = {
        {1, "01 01 FF", {0x10002}, {0x10002}, {0x10002, 0x102e5}},
        {2, "02 01 05", {0x10002}, {0x10002}, {0x10002, 0x102e5}},
        {3, "03 01 00", {0x10002}, {0x10203}, {0x10002, 0x102e5}},
        {4, "04 01 41", {0x10002}, {0x10203}, {0x10002, 0x102e5}},
        {6, "06 01 2A", {0x10002}, {0x10002}, {0x10002, 0x102e5}},
        {9, "0C 01 41", {0x10002, 0x102e4}, {0x102ea}, {0x10002, 0x102e5}},
        {21, "17 0B 313231313230303833305A", {0x10002, 0x102e4}, {0x10002}, {0x10002, 0x102e5}},
        {23, "05 00", {0x10002}, {0x10002}, {0x10002}},
    };
    Stream stream = memory_stream();
    Input input("x");
    for (const auto &row : rows) {
        SCOPED_TRACE(row.type);
        Value sample = decoded(row.type, row.sample);
        kovra_asn1_value *value = nullptr;
        Errors ctx(kovra_err_ctx_new());
        auto expect = [&](int32_t result, const Codes &codes) {
            EXPECT_EQ(result, 0);
            EXPECT_EQ(Codes(ctx.get()), codes);
            kovra_err_ctx_clear(ctx.get());
        };
        expect(kovra_asn1_encode(nullptr, row.type, sample.get(), nullptr, ctx.get()), row.encode_nowhere);
        expect(kovra_asn1_encode(stream.get(), row.type, nullptr, nullptr, ctx.get()), row.encode_nothing);
        expect(kovra_asn1_decode(nullptr, row.type, &value, nullptr, ctx.get()), row.decode_nowhere);
        expect(kovra_asn1_encode_content(nullptr, row.type, sample.get(), 1, nullptr, ctx.get()), {0x10002});
        expect(kovra_asn1_encode_content(stream.get(), row.type, nullptr, 1, nullptr, ctx.get()), {0x10002});
        if (row.type == 23)
            continue;
        expect(kovra_asn1_decode_content(nullptr, row.type, &value, 1, 1, nullptr, ctx.get()), {0x10002});
        expect(kovra_asn1_decode_content(input.stream(), row.type, nullptr, 1, 1, nullptr, ctx.get()), {0x10002});
    }
    EXPECT_EQ(taken(stream), "");
    EXPECT_EQ(input.consumed(), 0u);
}

TEST(Codec, WhatAStreamReturnsIsPassedUp) {
    const std::string data = octets("02 02 01 05");
    const Codes chains[] = {{0x10105, 0x102e5}, {0x10105, 0x102e7}, {0x10105}, {0x10105}};
    for (size_t stop = 0; stop < data.size(); ++stop) {
        Decoded decoded = decode(2, Input(data, Feed::trickle, stop, 42));
        EXPECT_EQ(decoded.result, 42);
        EXPECT_EQ(decoded.codes, chains[stop]);
    }
    // But for the content of an element of a list, which gives 0.
    EXPECT_EQ(decode(188, Input(octets("30 03 0C 01 41"), Feed::trickle, 4, 42)).result, 0);
    EXPECT_EQ(decode(188, Input(octets("30 03 0C 01 41"), Feed::trickle, 3, 42)).result, 42);
    // A stream that takes nothing.
    for (auto [type, text, whole, content] : std::initializer_list<std::tuple<uint32_t, const char *, Codes, Codes>>{
             {1, "01 01 FF", {0x10106, 0x102e4}, {0x10106}},
             {9, "0C 01 41", {0x10106, 0x102e4}, {0x10106}},
             {23, "05 00", {0x10106}, {}},
             {24, "30 02 05 00", {0x10106, 0x102e4}, {0x10106, 0x10235}},
             {33, "30 03 06 01 2A", {0x10106, 0x102e4}, {0x10106, 0x102e4, 0x10233}}}) {
        SCOPED_TRACE(type);
        const Value value = decoded(type, text);
        Input input("");
        Errors ctx(kovra_err_ctx_new());
        EXPECT_EQ(kovra_asn1_encode(input.stream(), type, value.get(), nullptr, ctx.get()), 0);
        EXPECT_EQ(Codes(ctx.get()), whole);
        kovra_err_ctx_clear(ctx.get());
        const int32_t length = kovra_asn1_content_length(type, value.get());
        EXPECT_EQ(kovra_asn1_encode_content(input.stream(), type, value.get(), length, nullptr, ctx.get()),
                  content.empty() ? 1 : 0);
        EXPECT_EQ(Codes(ctx.get()), content);
    }
}

TEST(Codec, WholeEncodingsInMemory) {
    kovra_asn1_value *value = nullptr;
    EXPECT_EQ(kovra_asn1_mem_decode("\x05\x00\xFF", 3, 5, &value), 2);
    EXPECT_EQ(kovra_asn1_mem_decode("\x02\x01\x05\x00", 4, 2, &value), 3);
    const Value five(2, value);
    EXPECT_EQ(text_of(Blob(kovra_asn1_mem_encode(2, five.get())).get()), octets("02 01 05"));
    value = nullptr;
    for (const auto &[data, length, type] : {std::tuple((const char *)nullptr, 3, 2u),
                                             {"\x02\x01\x05", 0, 2u},
                                             {"\x02\x01\x05", -3, 2u},
                                             {"\x02\x01\x05", 2, 2u},
                                             {"\x02\x01\x05", 3, 1u},
                                             {"\x02\x01\x05", 3, 208u}})
        EXPECT_EQ(kovra_asn1_mem_decode(data, length, type, &value), -1);
    EXPECT_EQ(value, nullptr);
    EXPECT_EQ(kovra_asn1_mem_decode("\x02\x01\x05", 3, 2, nullptr), -1);
    EXPECT_EQ(kovra_asn1_mem_decode("\x05\x00", 2, 5, nullptr), -1);
    EXPECT_EQ(kovra_asn1_mem_encode(8, five.get()), nullptr);
}

TEST(Codec, WhatIsNotEncodedIsNotCopied) {
    const Value none(2, nullptr), string(8, kovra_asn1_string_new("A", 1));
    for (const auto &[value, codes] : {std::pair(&none, Codes({0x10002})), {&string, Codes({0x1026c, 0x10216})}}) {
        const Errors ctx(kovra_err_ctx_new());
        EXPECT_EQ(kovra_asn1_dupobject(value->type(), value->get(), ctx.get()), nullptr);
        EXPECT_EQ(Codes(ctx.get()), codes);
    }
}

} // namespace
} // namespace kovra::test
