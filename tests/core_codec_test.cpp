// The registry and what goes through it: dispatch, codes and texts, and what streams return.
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
    for (uint32_t type : {uint32_t{KOVRA_ASN1_TYPE_COUNT}, 0x7fffffffu, 0xffffffffu}) {
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
}

} // namespace
} // namespace kovra::test
