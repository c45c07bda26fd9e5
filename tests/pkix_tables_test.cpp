// Names, certificates, extensions, CRLs and requests: what decoding accepts, what it is written back as, and the chains
// of codes of what it refuses.
#include <set>

#include "tests/pkix_testing.hpp"

namespace kovra::test {
namespace {

struct Row {
    uint32_t type;
    std::string text;
    std::string data;
    bool is_accepted;
    bool is_made_from_fields; // what is written shows the fields, not octets that were kept
    std::string written;
    Codes codes;
};

std::vector<Row> rows() {
    std::vector<Row> made;
    for (std::vector<std::string> fields : table("structures.txt")) {
        if (fields[0] == "let")
            continue;
        fields.resize(4);
        Row row{static_cast<uint32_t>(std::stoul(fields[0])),
                fields[0] + ": " + fields[1],
                noted(fields[1]),
                fields[2] != "-",
                fields[2] != "~",
                "",
                {}};
        if (row.is_accepted)
            row.written = fields[2] == "=" || fields[2] == "~" ? row.data : noted(fields[2]);
        std::istringstream numbers(fields[3]);
        for (int32_t code; numbers >> std::hex >> code;)
            row.codes.push_back(code);
        made.push_back(row);
    }
    return made;
}

bool is_choice(uint32_t type) {
    return type == 47 || type == 52 || type == 63 || type == 71 || type == 83;
}
bool keeps_octets(uint32_t type) {
    return type == 29 || type == 30 || type == 32 || type == 39 || type == 41 || type == 46;
}

TEST(PkixTables, Decodings) {
    std::set<uint32_t> accepted;
    for (const Row &row : rows()) {
        for (Feed feed : {Feed::memory, Feed::trickle}) {
            SCOPED_TRACE(row.text + (feed == Feed::trickle ? ", trickling" : ""));
            Decoded decoded = decode(row.type, row.data, feed);
            EXPECT_EQ(decoded.result, row.is_accepted ? 1 : 0);
            EXPECT_EQ(decoded.codes, row.codes);
            if (decoded.result != 1)
                continue;
            accepted.insert(row.type);
            Encoded encoded = encode(row.type, decoded.value.get());
            EXPECT_EQ(hex(encoded.octets), hex(row.written));
            EXPECT_EQ(encoded.codes, Codes());
            int32_t length = kovra_asn1_length(row.type, decoded.value.get());
            EXPECT_TRUE(length == size_of(row.written) || (length == -1 && row.written[1] == '\x80')) << length;
            Value copy(row.type, kovra_asn1_dupobject(row.type, decoded.value.get(), nullptr));
            EXPECT_EQ(encoding(copy), hex(row.written));
        }
    }
    // All structures of these modules are in the table: 28 to 55, 61 to 89, 92, 135 to 143, 198.
    EXPECT_EQ(accepted.size(), 28u + 29u + 1u + 9u + 1u);
}

// The same faults in every structure that is accepted.
TEST(PkixTables, FormsTagsAndLengths) {
    for (const Row &row : rows()) {
        const uint32_t type = row.type;
        if (!row.is_accepted)
            continue;
        SCOPED_TRACE(row.text);
        EXPECT_EQ(decode_with(type, Input(""),
                              [type](auto *, auto **out, auto *read, auto *ctx) {
                                  return kovra_asn1_decode(nullptr, type, out, read, ctx);
                              })
                      .codes[0],
                  0x10002);
        for (size_t end = 0; end < row.data.size(); ++end) {
            Decoded cut = decode(type, row.data.substr(0, end));
            EXPECT_EQ(cut.result, 0) << end;
            EXPECT_EQ(cut.codes.empty() ? 0 : cut.codes[0], 0x10105) << end;
        }
        const Value value = decode(type, row.data).value;
        EXPECT_EQ(encode_with([&](auto *, auto *written, auto *ctx) {
                      return kovra_asn1_encode(nullptr, type, value.get(), written, ctx);
                  }).codes,
                  Codes({0x10002}));
        EXPECT_EQ(encode(type, nullptr).codes, Codes({0x10002}));
        EXPECT_EQ(kovra_asn1_length(type, nullptr), -2);
        if (is_choice(type)) {
            EXPECT_EQ(decode_content(type, row.data.substr(2), 0, size_of(row.data) - 2).codes, Codes({0x1026d}));
            continue;
        }
        // Refused before anything is read.
        Decoded primitive = decode_content(type, row.data.substr(2), 1, size_of(row.data) - 2);
        EXPECT_EQ(primitive.codes, Codes({0x1026a}));
        EXPECT_EQ(primitive.consumed, 0u);
        EXPECT_EQ(decode_content(type, row.data, 0, -2).codes, Codes({0x10001}));
        EXPECT_EQ(encode_content(type, value.get(), -2).codes, Codes({0x10001}));
        EXPECT_EQ(encode_content(type, nullptr, 0).codes, Codes({0x10002}));
        std::string other = row.data;
        other[0] = static_cast<char>(other[0] ^ 0x01);
        EXPECT_EQ(decode(type, other).codes, Codes({0x1020a}));
        other[0] = static_cast<char>(row.data[0] ^ 0x80);
        EXPECT_EQ(decode(type, other).codes, Codes({0x1020a}));
        other[0] = static_cast<char>(row.data[0] ^ 0x20);
        EXPECT_EQ(decode(type, other).codes, keeps_octets(type) ? Codes({0x10201, 0x10236}) : Codes({0x1026a}));
        // Content, with definite and with indefinite length.
        if (row.data != row.written || !row.is_made_from_fields || row.written[1] == '\x80' || row.written[1] == '\x84')
            continue;
        const size_t header = row.data[1] == '\x82' ? 4 : row.data[1] == '\x81' ? 3 : 2;
        const std::string content = row.data.substr(header), end(2, '\0');
        EXPECT_EQ(kovra_asn1_content_length(type, value.get()), size_of(content));
        EXPECT_EQ(hex(encode_content(type, value.get(), size_of(content)).octets), hex(content));
        EXPECT_EQ(hex(encode_content(type, value.get(), -1).octets), hex(content + end));
        EXPECT_EQ(hex(encode(type, decode_content(type, content, 0, size_of(content)).value.get()).octets),
                  hex(row.data));
        EXPECT_EQ(hex(encode(type, decode_content(type, content + end, 0, -1).value.get()).octets), hex(row.data));
        const std::string indefinite = row.data.substr(0, 1) + '\x80' + content + end;
        EXPECT_EQ(encoding(decode(type, indefinite).value), hex(keeps_octets(type) ? indefinite : row.data));
    }
}

} // namespace
} // namespace kovra::test
