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

TEST(Services, ContentsAloneAndInTheIndefiniteForm) {
    for (const Row &row : rows()) {
        if (!row.is_written || row.length != 0 || row.type == KOVRA_ASN1_TYPE_OCSP_CERT_STATUS ||
            row.type == KOVRA_ASN1_TYPE_OCSP_RESPONDER_ID)
            continue;
        SCOPED_TRACE(row.text);
        Value value = decode(row.type, row.in).value;
        const int32_t length = kovra_asn1_content_length(row.type, value.get());
        const std::string content = encode_content(row.type, value.get(), length).octets;
        EXPECT_EQ(hex(row.out.substr(row.out.size() - static_cast<size_t>(length))), hex(content));
        const std::string open = encode_content(row.type, value.get(), -1).octets;
        EXPECT_EQ(hex(open), hex(content) + "0000");
        EXPECT_EQ(decode_content(row.type, content, 1, length).codes, Codes({0x1026a}));
        Decoded again = decode_content(row.type, open, 0, -1);
        EXPECT_EQ(again.result, decode(row.type, row.out).result);
        if (again.result == 1) {
            EXPECT_EQ(hex(encode_content(row.type, again.value.get(), length).octets), hex(content));
        }
    }
}

// Cut anywhere it is refused, changed anywhere it is refused or read as something that can be handled, and where the
// octets come from makes no difference.
TEST(Services, EveryTruncationAndEveryChangedOctet) {
    for (const Row &row : rows()) {
        if (!row.is_read)
            continue;
        for (size_t at = 0; at < row.in.size(); ++at) {
            Decoded cut = decode(row.type, row.in.substr(0, at));
            EXPECT_NE(cut.result, 1) << row.text << " cut at " << at;
            EXPECT_FALSE(cut.codes.empty()) << row.text << " cut at " << at;
            for (int flip : {0x01, 0x20, 0x7F, 0x80, 0xFF}) {
                std::string changed = row.in;
                changed[at] = static_cast<char>(changed[at] ^ flip);
                Decoded memory = decode(row.type, changed), trickle = decode(row.type, changed, Feed::trickle);
                EXPECT_EQ(memory.result, trickle.result) << hex(changed);
                EXPECT_EQ(memory.codes, trickle.codes) << hex(changed);
                if (memory.result == 1) {
                    EXPECT_EQ(encode(row.type, memory.value.get()).octets,
                              encode(row.type, trickle.value.get()).octets);
                }
            }
        }
    }
}

TEST(Services, EveryAllocationMayFail) {
    for (const Row &row : rows()) {
        SCOPED_TRACE(row.text);
        fail_each_allocation([&] {
            kovra_asn1_value *value = nullptr;
            if (kovra_asn1_mem_decode(row.in.data(), size_of(row.in), row.type, &value) < 0)
                return !row.is_read;
            Value owner(row.type, value), copy(row.type, kovra_asn1_dupobject(row.type, value, nullptr));
            std::string written = text_of(Blob(kovra_asn1_mem_encode(row.type, value)).get());
            EXPECT_TRUE(written.empty() || written == row.out) << hex(written);
            return !row.is_written || (written == row.out && (copy || row.in != row.out));
        });
        if (HasFatalFailure())
            return;
    }
}

} // namespace
} // namespace kovra::test
