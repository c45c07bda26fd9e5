// Keys and stores as other programs write them: every structure in them is read as its type, and comes back.
#include "tests/keys_testing.hpp"

namespace kovra::test {
namespace {

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

struct Example {
    std::string text;
    uint32_t type;
    std::string data;
};

std::vector<Example> examples() {
    std::vector<Example> found;
    for (const auto &row : table("keys_examples.txt")) {
        std::ifstream file(KOVRA_SOURCE_DIR "/examples/" + row[0], std::ios::binary);
        std::string octets{std::istreambuf_iterator<char>(file), {}};
        std::string text = row[0] + " at " + row[1] + " as " + row[2];
        EXPECT_FALSE(octets.empty()) << text;
        auto type = static_cast<uint32_t>(std::stoul(row[2]));
        if (works(type))
            found.push_back({text, type, at(octets, row[1])});
    }
    return found;
}

TEST(KeysExamples, EveryStructureComesBack) {
    for (const Example &example : examples()) {
        SCOPED_TRACE(example.text);
        for (Feed feed : {Feed::memory, Feed::trickle}) {
            Decoded decoded = decode(example.type, example.data, feed);
            EXPECT_EQ(decoded.codes, Codes());
            EXPECT_EQ(decoded.consumed, example.data.size());
            EXPECT_EQ(encoding(decoded.value), hex(example.data));
        }
    }
}

} // namespace
} // namespace kovra::test
