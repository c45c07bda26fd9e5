// The descriptions in JSON of the values of every type: there and back, cut, and where memory is short.
#include "kovra/asn1_json.h"
#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"
#include "tests/harness/samples.hpp"

namespace kovra::test {
namespace {


std::string printed(const Json &json) {
    int64_t length = 0;
    const Memory<char> text(kovra_json_print(json.get(), 0, &length));
    return text != nullptr ? std::string(text.get(), static_cast<size_t>(length)) : "";
}

Json described(const std::string &data) {
    // A block of its own, which ends where the octets end.
    const std::unique_ptr<char[]> copy(new char[data.size()]);
    std::memcpy(copy.get(), data.data(), data.size());
    return Json(kovra_asn1_tojson(copy.get(), size_of(data)));
}

std::string encoded(const Json &json) {
    const Blob blob(kovra_asn1_encodejson(json.get()));
    return blob != nullptr ? text_of(blob.get()) : "";
}

// All samples that have a description, with it.
template <class Look> size_t for_each_described(Look look) {
    size_t count = 0;
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT && !testing::Test::HasFailure(); ++type)
        for (const Sample &sample : samples(type))
            if (const Json json = described(sample.octets); json != nullptr) {
                SCOPED_TRACE("type " + std::to_string(type) + ", " + sample.what + ": " +
                             hex(sample.octets.substr(0, 200)));
                ++count;
                look(sample, json);
            }
    return count;
}

TEST(Descriptions, OfWhatTheyEncode) {
    const size_t count = for_each_described([](const Sample &sample, const Json &json) {
        const std::string text = printed(json), der = encoded(json);
        ASSERT_FALSE(der.empty());
        if (sample.what == "minimal" || sample.what == "full" || sample.what == "long") {
            EXPECT_EQ(hex(der), hex(sample.octets));
        }
        const Json again = described(der);
        EXPECT_EQ(hex(encoded(again)), hex(der));
        if (der == sample.octets) {
            EXPECT_EQ(printed(again), text);
        }
        // Under a tag, which stands around it or in the place of its own identifier.
        for (const bool is_explicit : {true, false}) {
            const std::string tagged =
                "{\"type\":\"TAGGEDTYPE\",\"number\":5,\"explicit\":" + std::string(is_explicit ? "true" : "false") +
                ",\"value\":" + text + "}";
            const Json wrapped(kovra_json_parse(tagged.data(), size_of(tagged), nullptr));
            if (is_explicit) {
                EXPECT_EQ(hex(encoded(wrapped)), hex(element(0xA5, der)));
            } else if ((der[0] & 0xDF) < 0x1F) {
                EXPECT_EQ(hex(encoded(wrapped)),
                          hex(std::string(1, static_cast<char>(0x85 | (der[0] & 0x20))) + der.substr(1)));
            }
        }
        int64_t offset = 0;
        const Json parsed(kovra_json_parse(text.data(), size_of(text), &offset));
        EXPECT_EQ(printed(parsed), text);
        EXPECT_EQ(hex(encoded(parsed)), hex(der));
    });
    EXPECT_GT(count, 1000u);
}

TEST(Descriptions, OfWholeElementsOnly) {
    for_each_described([](const Sample &sample, const Json &) {
        for (size_t end = 0; end < sample.octets.size() && sample.what != "long"; ++end)
            EXPECT_EQ(described(sample.octets.substr(0, end)), nullptr) << "cut at " << end;
        EXPECT_EQ(described(sample.octets + "\x05"), nullptr);
        EXPECT_EQ(described(sample.octets + std::string(2, '\0')), nullptr);
    });
}

TEST(Descriptions, EveryAllocationMayFail) {
    for_each_described([](const Sample &sample, const Json &whole) {
        if (sample.what != "minimal" && sample.what != "full")
            return;
        const std::string text = printed(whole);
        for (const bool fails_once : {false, true})
            fail_each_allocation(
                [&] {
                    const Json json(kovra_asn1_tojson(sample.octets.data(), size_of(sample.octets)));
                    const Json parsed(kovra_json_parse(text.data(), size_of(text), nullptr));
                    const Blob der(kovra_asn1_encodejson(parsed.get()));
                    const Memory<char> again(kovra_json_print(parsed.get(), 1, nullptr));
                    return json != nullptr && der != nullptr && again != nullptr;
                },
                fails_once);
    });
}

} // namespace
} // namespace kovra::test
