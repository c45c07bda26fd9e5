// The tables of encodings in tests/data: what decoding gives, and what is written.
#include <set>

#include "tests/notation.hpp"

namespace kovra::test {
namespace {

// Rows of all types: type; encoding, with | where reading ends; what it is written as (= as it was read, - it is
// refused when read, ! when written); the codes of a refusal or of what is noted; the length, where it is announced
// otherwise.
void expect_outcome(const std::string &file, const std::vector<std::string> &row, const std::string &text, Feed feed) {
    const auto type = static_cast<uint32_t>(std::stoul(row[0]));
    const std::string &out = row[2];
    const size_t end = text.find('|');
    const std::string rest = end != text.npos ? noted(text.substr(end + 1), file) : "";
    const std::string data = noted(text.substr(0, end), file) + rest;
    const bool is_read = out != "-", is_written = is_read && out != "!";
    Codes codes;
    std::istringstream numbers(row[3]);
    for (int32_t code; numbers >> std::hex >> code;)
        codes.push_back(code);
    const Decoded decoded = decode(type, data, feed);
    EXPECT_EQ(decoded.result, is_read);
    EXPECT_EQ(decoded.codes, is_written || !is_read ? codes : Codes());
    if (is_read || end != text.npos) {
        EXPECT_EQ(decoded.consumed, data.size() - rest.size());
    }
    if (decoded.result != 1)
        return;
    const Encoded encoded = encode(type, decoded.value.get());
    EXPECT_EQ(encoded.codes, is_written ? Codes() : codes);
    if (!is_written)
        return;
    EXPECT_EQ(hex(encoded.octets), hex(out == "=" ? data.substr(0, decoded.consumed) : noted(out, file)));
    const int32_t length = kovra_asn1_length(type, decoded.value.get());
    EXPECT_TRUE(length == (row[4].empty() ? size_of(encoded.octets) : std::stoi(row[4])) ||
                (length == -1 && encoded.octets[1] == '\x80'))
        << length;
    // A copy is had of what is written as it is read.
    const Value copy(type, kovra_asn1_dupobject(type, decoded.value.get(), nullptr));
    const bool has_value = type != KOVRA_ASN1_TYPE_END_OF_CONTENTS && type != KOVRA_ASN1_TYPE_NULL;
    EXPECT_EQ(static_cast<bool>(copy), has_value && decode(type, encoded.octets).result == 1);
    EXPECT_TRUE(!copy || encode(type, copy.get()).octets == encoded.octets);
}

TEST(Tables, Decodings) {
    std::set<uint32_t> accepted;
    for (const char *file : {"decodings.txt", "structures.txt", "keys_decodings.txt", "messages.txt", "services.txt"}) {
        for (std::vector<std::string> &row : table(file)) {
            if (row[0] == "let")
                continue;
            row.resize(5);
            if (row[2] != "-")
                accepted.insert(static_cast<uint32_t>(std::stoul(row[0])));
            for (const std::string &text : parts_of(row[1])) {
                for (Feed feed : {Feed::memory, Feed::trickle}) {
                    SCOPED_TRACE("type " + row[0] + ": " + text + (feed == Feed::trickle ? ", trickling" : ""));
                    expect_outcome(file, row, text, feed);
                }
            }
        }
    }
    // Every structure that can be read by itself is there.
    for (uint32_t type = KOVRA_ASN1_TYPE_CONTEXT; type < KOVRA_ASN1_TYPE_COUNT; ++type)
        EXPECT_TRUE(accepted.count(type) == 1 || decode(type, "").codes == Codes({0x1026d})) << type;
}

// A time as read: "2012-11-20 08:30:00", then nanoseconds where there are any, then "local" where it is.
std::string moment_of(const Value &value) {
    const Time time(kovra_asn1_time_getutctime(value.get()));
    if (time == nullptr)
        return "-";
    char text[80];
    snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", kovra_time_getyear(time.get()),
             kovra_time_getmonth(time.get()), kovra_time_getday(time.get()), kovra_time_gethour(time.get()),
             kovra_time_getminute(time.get()), kovra_time_getsecond(time.get()));
    const int32_t ns = kovra_time_getns(time.get());
    return text + (ns != 0 ? " " + std::to_string(ns) : "") + (kovra_time_isutctime(time.get()) == 1 ? "" : " local");
}

TEST(Tables, Times) {
    for (const auto &row : table("times.txt"))
        for (size_t i = 1; i < row.size(); ++i) {
            const auto [text, moment] = sides_of(row[i]);
            SCOPED_TRACE(text);
            const bool is_utc = row[0] == "23", is_read = moment != "-";
            const std::string data = std::string{is_utc ? '\x17' : '\x18', static_cast<char>(text.size())} + text;
            const uint32_t type = is_utc ? 21 : 22, other = is_utc ? 22 : 21;
            for (const uint32_t as : {type, 20u}) {
                const Decoded found = decode(as, data);
                EXPECT_EQ(moment_of(found.value), moment);
                EXPECT_EQ(found.codes, is_read ? Codes() : Codes({0x102ec}));
                EXPECT_EQ(encode(as, found.value.get()).octets, is_read ? data : "") << "kept as it was";
                if (is_read) {
                    EXPECT_EQ(encode(other, found.value.get()).codes, Codes({0x10208}));
                }
            }
            EXPECT_EQ(decode(other, data).codes, is_read ? Codes({0x10208}) : Codes({0x102ec}));
        }
}

} // namespace
} // namespace kovra::test
