// Types 168 to 200 over a table of encodings: what is read, what is written again, and the chains of codes.
#include "tests/failing_memory.hpp"
#include "tests/notation.hpp"

namespace kovra::test {
namespace {

struct Row {
    uint32_t type;
    std::string text, in, out;
    bool is_read, is_written;
    Codes codes;
    int32_t length; // 0: that of what is written
};

const std::vector<Row> &rows() {
    static const std::vector<Row> all = [] {
        std::vector<Row> made;
        Notation notation;
        for (std::vector<std::string> &fields : notation.read("services.txt")) {
            fields.resize(5);
            Row row = {
                static_cast<uint32_t>(std::stoul(fields[0])), fields[0] + "; " + fields[1], {}, {}, true, true, {},
                fields[4].empty() ? 0 : std::stoi(fields[4])};
            row.in = notation.octets_of(fields[1]);
            row.is_read = fields[2] != "-";
            row.is_written = row.is_read && fields[2] != "!";
            if (row.is_written)
                row.out = fields[2] == "=" ? row.in : notation.octets_of(fields[2]);
            std::istringstream numbers(fields[3]);
            for (int32_t code; numbers >> std::hex >> code;)
                row.codes.push_back(code);
            EXPECT_EQ(row.codes.empty(), row.is_written) << row.text;
            made.push_back(row);
        }
        return made;
    }();
    return all;
}

TEST(Services, EncodingsAndChains) {
    std::vector<bool> seen(KOVRA_ASN1_TYPE_COUNT);
    for (const Row &row : rows()) {
        for (Feed feed : {Feed::memory, Feed::trickle}) {
            SCOPED_TRACE(row.text + (feed == Feed::trickle ? ", trickling" : ""));
            Decoded decoded = decode(row.type, row.in, feed);
            EXPECT_EQ(decoded.result, row.is_read ? 1 : 0);
            EXPECT_EQ(decoded.codes, row.is_read ? Codes() : row.codes);
            if (decoded.result != 1)
                continue;
            seen[row.type] = true;
            EXPECT_EQ(decoded.consumed, row.in.size());
            EXPECT_EQ(kovra_asn1_length(row.type, decoded.value.get()),
                      row.length != 0 ? row.length : size_of(row.out));
            Encoded encoded = encode(row.type, decoded.value.get());
            EXPECT_EQ(hex(encoded.octets), hex(row.is_written ? row.out : encoded.octets));
            EXPECT_EQ(encoded.codes, row.codes);
            // A copy is had of what is written as it is read.
            Value copy(row.type, kovra_asn1_dupobject(row.type, decoded.value.get(), nullptr));
            Decoded again = decode(row.type, row.out);
            EXPECT_EQ(static_cast<bool>(copy), again.result == 1);
            if (copy) {
                EXPECT_EQ(hex(encode(row.type, copy.get()).octets), hex(row.out));
            }
        }
    }
    for (uint32_t type = KOVRA_ASN1_TYPE_OCSP_CERT_ID; type <= KOVRA_ASN1_TYPE_SIGNING_CERTIFICATE_V2; ++type)
        EXPECT_TRUE(seen[type]) << type;
}

} // namespace
} // namespace kovra::test
