// Files as other programs write them: whatever is read is written again to the octet, with a schema and without one.
#include <algorithm>
#include <filesystem>

#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {

namespace fs = std::filesystem;

std::string contents(const fs::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<fs::path> examples(std::string_view extension) {
    std::vector<fs::path> paths;
    for (const auto &entry : fs::directory_iterator(KOVRA_SOURCE_DIR "/examples"))
        if (entry.path().extension() == extension)
            paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    return paths;
}

// What the description of the octets is encoded to; empty when either direction refuses.
std::string through_json(const std::string &octets) {
    Json json(kovra_asn1_tojson(octets.data(), size_of(octets)));
    return text_of(Blob(kovra_asn1_encodejson(json.get())).get());
}

// The elements that octets consist of, whole.
std::vector<std::string> elements(std::string_view octets) {
    std::vector<std::string> found;
    while (!octets.empty()) {
        Decoded any = decode(KOVRA_ASN1_TYPE_ANY, octets);
        if (any.result != 1)
            return {};
        found.emplace_back(octets.substr(0, any.consumed));
        octets.remove_prefix(any.consumed);
    }
    return found;
}

std::string content_of(const std::string &element) {
    Input input(element);
    uint32_t tag_class = 0;
    int32_t form = 0, tag = 0, length = 0;
    kovra_asn1_decode_identifier(input.stream(), &tag_class, &form, &tag, nullptr, nullptr);
    kovra_asn1_decode_length(input.stream(), &length, nullptr, nullptr);
    bool is_bits = tag_class == KOVRA_ASN1_UNIVERSAL && tag == 3;
    return element.substr(input.consumed() + (is_bits ? 1 : 0));
}

std::string at(std::string octets, const std::string &way) {
    std::istringstream numbers(way);
    for (size_t number; numbers >> number;) {
        std::vector<std::string> inner = elements(content_of(octets));
        EXPECT_LT(number, inner.size());
        octets = number < inner.size() ? inner[number] : "";
    }
    return octets;
}

TEST(Examples, DerComesBackFromJson) {
    auto paths = examples(".der");
    EXPECT_GT(paths.size(), 50u);
    for (const fs::path &path : examples(".p12"))
        paths.push_back(path);
    for (const fs::path &path : paths) {
        std::string octets = contents(path);
        EXPECT_EQ(hex(through_json(octets)), hex(octets)) << path;
    }
}

TEST(Examples, BerBecomesStableThroughJson) {
    auto paths = examples(".ber");
    EXPECT_FALSE(paths.empty());
    for (const fs::path &path : paths) {
        std::string octets = contents(path), once = through_json(octets);
        EXPECT_NE(once, "") << path;
        EXPECT_NE(once, octets) << path << " is not of indefinite length";
        EXPECT_EQ(hex(through_json(once)), hex(once)) << path;
    }
}

// Every structure in them is read as its type; of BER the structure is kept, and its form where that is signed.
TEST(Examples, EveryStructureComesBack) {
    for (const auto &row : table("examples.txt")) {
        const std::string whole = contents(fs::path(KOVRA_SOURCE_DIR "/examples") / row[0]);
        for (size_t i = 1; i < row.size(); ++i) {
            SCOPED_TRACE(row[0] + ": " + row[i]);
            const auto type = static_cast<uint32_t>(std::stoul(row[i]));
            const size_t way = row[i].find(" at ");
            const std::string data = way != row[i].npos ? at(whole, row[i].substr(way + 4)) : whole;
            for (Feed feed : {Feed::memory, Feed::trickle}) {
                const Decoded decoded = decode(type, data, feed);
                EXPECT_EQ(decoded.codes, Codes());
                EXPECT_EQ(decoded.consumed, data.size());
                const std::string written = encode(type, decoded.value.get()).octets;
                EXPECT_EQ(hex(encode(type, decode(type, written).value.get()).octets), hex(written));
                EXPECT_TRUE(written == data || row[0].ends_with(".ber")) << hex(written);
            }
        }
    }
}

TEST(Examples, PemHoldsTheOctetsOfDer) {
    for (const char *name : {"rsa-server", "crl-v2", "request-bare", "key-ed25519"}) {
        const std::string base = std::string(KOVRA_SOURCE_DIR "/examples/") + name, text = contents(base + ".pem");
        int64_t position = 0;
        void *data = nullptr;
        int32_t length = 0;
        ASSERT_EQ(kovra_pemnext(text.data(), size_of(text), &position, nullptr, nullptr, &data, &length), 1) << base;
        const Memory<void> owner(data);
        EXPECT_EQ(std::string(static_cast<char *>(data), static_cast<size_t>(length)), contents(base + ".der")) << base;
    }
}

} // namespace
} // namespace kovra::test
