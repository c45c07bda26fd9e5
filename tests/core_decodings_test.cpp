// The table of what decoding gives, for every row of it through both kinds of streams.
#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {

TEST(Decodings, AreAsTheTableSays) {
    for (std::vector<std::string> row : table("decodings.txt")) {
        row.resize(4);
        auto type = static_cast<uint32_t>(std::stoul(row[0]));
        const std::string &in = row[1], &out = row[2];
        std::string data = octets(in);
        Codes codes;
        std::istringstream numbers(row[3]);
        for (int32_t code; numbers >> std::hex >> code;)
            codes.push_back(code);
        for (Feed feed : {Feed::memory, Feed::trickle}) {
            SCOPED_TRACE("type " + row[0] + ": " + in + (feed == Feed::trickle ? ", trickling" : ""));
            Decoded decoded = decode(type, data, feed);
            EXPECT_EQ(decoded.result, out == "-" ? 0 : 1);
            EXPECT_EQ(decoded.codes, codes);
            if (size_t end = in.find('|'); end != in.npos) {
                EXPECT_EQ(decoded.consumed, octets(in.substr(0, end)).size());
            }
            if (decoded.result != 1)
                continue;
            Encoded encoded = encode(type, decoded.value.get());
            EXPECT_EQ(hex(encoded.octets), out == "=" ? hex(data.substr(0, decoded.consumed)) : hex(octets(out)));
            EXPECT_EQ(encoded.codes, Codes());
            int32_t length = kovra_asn1_length(type, decoded.value.get());
            EXPECT_TRUE(length == size_of(encoded.octets) || (length == -1 && encoded.octets[1] == '\x80')) << length;
        }
    }
}

} // namespace
} // namespace kovra::test
