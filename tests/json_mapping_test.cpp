// The JSON description of encodings, and encodings of descriptions.
#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {
namespace {

std::string description_of(const std::string &octets) {
    const std::vector<char> exact(octets.begin(), octets.end());
    Json json(kovra_asn1_tojson(exact.data(), size_of(octets)));
    Memory<char> text(kovra_json_print(json.get(), 0, nullptr));
    return text != nullptr ? text.get() : "-";
}

std::string encoding_of(const std::string &text) {
    Json json(kovra_json_parse(text.data(), static_cast<int64_t>(text.size()), nullptr));
    Blob blob(kovra_asn1_encodejson(json.get()));
    return blob != nullptr ? hex(text_of(blob.get())) : "-";
}

TEST(JsonMapping, DescribesAndEncodes) {
    for (const auto &row : table("json.txt")) {
        SCOPED_TRACE(row[1] + " " + row[2]);
        if (row[0] != "<") {
            EXPECT_EQ(description_of(octets(row[1])), row[2]);
            if (row[2] != "-")
                fail_each_allocation([&] { return description_of(octets(row[1])) != "-"; });
        }
        if (row[0] != ">") {
            EXPECT_EQ(encoding_of(row[2]), row[1] == "-" ? "-" : hex(octets(row[1])));
            if (row[1] != "-")
                fail_each_allocation([&] { return encoding_of(row[2]) != "-"; });
        }
    }
}

} // namespace
} // namespace kovra::test
