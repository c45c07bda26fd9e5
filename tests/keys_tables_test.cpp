// The table of decodings of keys, parameters and stores, and what holds for every row of it.
#include <set>

#include "tests/keys_testing.hpp"

namespace kovra::test {
namespace {

struct Row {
    uint32_t type;
    std::string text;
    std::string data;
    size_t end; // of what is read
    std::string written;
    bool is_accepted;
    Codes codes;
};

std::vector<Row> rows() {
    std::vector<Row> made;
    for (std::vector<std::string> fields : table("keys_decodings.txt")) {
        fields.resize(4);
        const std::string &in = fields[1], &out = fields[2];
        Row row = {static_cast<uint32_t>(std::stoul(fields[0])),
                   fields[0] + ": " + in,
                   octets(in),
                   octets(in.substr(0, in.find('|'))).size(),
                   out == "=" ? octets(in) : octets(out),
                   out != "-",
                   {}};
        std::istringstream numbers(fields[3]);
        for (int32_t code; numbers >> std::hex >> code;)
            row.codes.push_back(code);
        if (works(row.type))
            made.push_back(row);
    }
    return made;
}

TEST(KeysTables, Decodings) {
    std::set<uint32_t> accepted;
    for (const Row &row : rows()) {
        for (Feed feed : {Feed::memory, Feed::trickle}) {
            SCOPED_TRACE(row.text + (feed == Feed::trickle ? ", trickling" : ""));
            Decoded decoded = decode(row.type, row.data, feed);
            EXPECT_EQ(decoded.result, row.is_accepted ? 1 : 0);
            EXPECT_EQ(decoded.codes, row.codes);
            EXPECT_EQ(decoded.consumed, row.end);
            if (decoded.result != 1)
                continue;
            accepted.insert(row.type);
            Encoded encoded = encode(row.type, decoded.value.get());
            EXPECT_EQ(hex(encoded.octets), hex(row.written));
            EXPECT_EQ(encoded.codes, Codes());
            int32_t length = kovra_asn1_length(row.type, decoded.value.get());
            EXPECT_TRUE(length == size_of(row.written) || (length == -1 && row.written[1] == '\x80')) << length;
            EXPECT_EQ(encoding(Value(row.type, kovra_asn1_dupobject(row.type, decoded.value.get(), nullptr))),
                      hex(row.written));
        }
    }
    // 56 to 60, 91, 93 to 110, 112 to 120, 144 to 146, 201 to 207.
    EXPECT_EQ(accepted.size(), 5u + 1u + 18u + (works(KOVRA_ASN1_TYPE_PFX) ? 9u : 7u) + 3u + 7u);
}

} // namespace
} // namespace kovra::test
