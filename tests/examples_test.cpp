// Files as other programs write them: whatever is read is written again to the octet, with a schema and without one.
#include <algorithm>
#include <filesystem>
#include <map>

#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {

namespace fs = std::filesystem;
using Json = std::unique_ptr<kovra_json, Releaser<kovra_json_free>>;

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

// What the value of a type is encoded to, after it has been copied; empty when it is refused or leaves octets unread.
std::string through_type(uint32_t type, const std::string &octets) {
    kovra_asn1_value *value = nullptr;
    int32_t read = kovra_asn1_mem_decode(octets.data(), size_of(octets), type, &value);
    kovra_asn1_value *copy = kovra_asn1_dupobject(type, value, nullptr);
    kovra_asn1_value_free(type, value);
    std::string again = text_of(Blob(kovra_asn1_mem_encode(type, copy)).get());
    EXPECT_EQ(kovra_asn1_length(type, copy), again.empty() ? -2 : size_of(again));
    kovra_asn1_value_free(type, copy);
    return read == size_of(octets) ? again : "";
}

// Octets of every block, by label.
std::multimap<std::string, std::string> blocks(const std::string &text) {
    std::multimap<std::string, std::string> found;
    int64_t position = 0;
    const char *label = nullptr;
    int32_t label_length = 0, length = 0, result = 0;
    void *data = nullptr;
    while ((result = kovra_pemnext(text.data(), static_cast<int64_t>(text.size()), &position, &label, &label_length,
                                   &data, &length)) == 1) {
        Memory<void> owner(data);
        found.emplace(std::string(label, static_cast<size_t>(label_length)),
                      std::string(static_cast<const char *>(data), static_cast<size_t>(length)));
    }
    EXPECT_EQ(result, 0) << "malformed block before " << position;
    return found;
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

TEST(Examples, TypedValuesComeBack) {
    struct Row {
        const char *prefix;
        uint32_t type;
        size_t least;
    };
    constexpr Row rows[] = {{"rsa-server", KOVRA_ASN1_TYPE_CERTIFICATE, 1},
                            {"cert-", KOVRA_ASN1_TYPE_CERTIFICATE, 9},
                            {"crl-", KOVRA_ASN1_TYPE_CERTIFICATE_LIST, 3},
                            {"request", KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST, 2}};
    auto paths = examples(".der");
    for (const Row &row : rows) {
        size_t seen = 0;
        for (const fs::path &path : paths) {
            if (path.filename().string().rfind(row.prefix, 0) != 0)
                continue;
            ++seen;
            std::string octets = contents(path);
            EXPECT_EQ(hex(through_type(row.type, octets)), hex(octets)) << path;
            // Cut short or of another type, it is refused.
            EXPECT_EQ(through_type(row.type, octets.substr(0, octets.size() - 1)), "") << path;
            EXPECT_EQ(through_type(KOVRA_ASN1_TYPE_NAME, octets), "") << path;
        }
        EXPECT_GE(seen, row.least) << row.prefix;
    }
}

TEST(Examples, PemHoldsTheOctetsOfDer) {
    for (const char *name : {"rsa-server", "crl-v2", "request-bare", "key-ed25519"}) {
        fs::path base = fs::path(KOVRA_SOURCE_DIR "/examples") / name;
        auto found = blocks(contents(base.string() + ".pem"));
        ASSERT_EQ(found.size(), 1u) << base;
        EXPECT_EQ(hex(found.begin()->second), hex(contents(base.string() + ".der"))) << base;
    }
    EXPECT_EQ(blocks(contents(KOVRA_SOURCE_DIR "/examples/bundle.pem")).count("CERTIFICATE"), 3u);
}

TEST(Examples, CertificatesOfTheSystem) {
    std::string text = contents("/etc/ssl/certs/ca-certificates.crt");
    if (text.empty())
        GTEST_SKIP() << "no certificates are installed";
    auto found = blocks(text);
    EXPECT_GT(found.size(), 0u);
    for (const auto &[label, octets] : found) {
        EXPECT_EQ(label, "CERTIFICATE");
        EXPECT_EQ(hex(through_json(octets)), hex(octets));
        EXPECT_EQ(hex(through_type(KOVRA_ASN1_TYPE_CERTIFICATE, octets)), hex(octets));
    }
}

} // namespace
} // namespace kovra::test
