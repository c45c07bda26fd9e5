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

} // namespace
} // namespace kovra::test
