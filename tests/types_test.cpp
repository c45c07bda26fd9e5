// ANY, lists of it, INTEGER and strings in files.
#include <filesystem>

#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {

std::string identifier(uint32_t tag_class, int32_t form, int32_t tag) {
    Stream stream = memory_stream();
    EXPECT_EQ(kovra_asn1_encode_identifier(stream.get(), tag_class, form, tag, nullptr, nullptr), 1);
    return taken(stream);
}

// Those of other classes are for the harness.
TEST(Any, TakesTheUniversalTagsItKnows) {
    std::string accepted[2]; // by form
    for (int32_t form : {0, 1})
        for (int32_t tag = 0; tag <= 40; ++tag) {
            const Decoded found = decode(23, identifier(0, form, tag) + '\0');
            accepted[form] += found.result == 1 ? '+' : '.';
            EXPECT_EQ(found.codes, found.result == 1 ? Codes() : Codes({0x10201}));
        }
    //                       0         1         2         3         4
    EXPECT_EQ(accepted[1], "++++++++.++.++....+++++++++++.+..........");
    EXPECT_EQ(accepted[0], "...++..++..++...+++++++++++++.+..........");
}

TEST(List, KeepsWhatIsPutInOrder) {
    constexpr int32_t count = 10000;
    kovra_asn1_value *numbers = kovra_asn1_list_new(), *element = nullptr;
    for (int32_t i = 0; i < count; ++i) {
        EXPECT_EQ(kovra_asn1_list_getsize(numbers), i);
        ASSERT_EQ(kovra_asn1_list_put(numbers, kovra_asn1_integer_value(i)), 1);
    }
    for (int32_t i = 0, number = -1; i < count; ++i) {
        ASSERT_EQ(kovra_asn1_list_get(numbers, i, &element), 1);
        ASSERT_EQ(kovra_asn1_integer_getlong(element, &number), 1);
        ASSERT_EQ(number, i);
    }
    kovra_asn1_list_free(numbers, 2);
}

// The content as a decoder keeps it, minimal or not.
Value as_read(std::string_view hex) {
    std::string data = octets(hex);
    return decode_content(2, data, 1, size_of(data)).value;
}

TEST(Integer, OrderedByEncoding) {
    const char *ascending[] = {"00", "01", "7F", "80", "FF", "00 01", "00 80", "7F FF", "FF 7F", "01 00 00"};
    std::vector<Value> values;
    values.emplace_back(2, nullptr);
    for (const char *text : ascending)
        values.push_back(as_read(text));
    for (size_t i = 0; i < values.size(); ++i) {
        for (size_t j = 0; j < values.size(); ++j) {
            EXPECT_EQ(kovra_asn1_integer_encodecmp(values[i].get(), values[j].get()), (i > j) - (i < j));
            EXPECT_EQ(kovra_asn1_integer_equals(values[i].get(), values[j].get()), i == j);
        }
        // Only integers are compared.
        const Value string = decoded(4, "04 01 41");
        EXPECT_EQ(kovra_asn1_integer_equals(values[i].get(), string.get()), 0);
        EXPECT_EQ(kovra_asn1_integer_encodecmp(string.get(), values[i].get()), i == 0 ? 0 : -1);
    }
}

// From 5 MiB on, what is not in memory is written in segments.
TEST(String, IsWrittenInSegmentsFromAFileOf5MiB) {
    constexpr size_t limit = segmented_from;
    std::string path = (std::filesystem::path(testing::TempDir()) / "kovra_core_string").string();
    const std::string data = noise(limit);
    for (size_t size : {limit - 1, limit}) {
        Stream file(kovra_stream_new_file(path.c_str(), KOVRA_FILE_READ_WRITE, nullptr));
        ASSERT_EQ(kovra_stream_writen(file.get(), data.data(), static_cast<int32_t>(size), nullptr, nullptr), 1);
        std::string_view expected = std::string_view(data).substr(0, size);
        Value value(4, kovra_asn1_octetstring_newstream(file.get()));
        bool segmented = size == limit;
        EXPECT_EQ(kovra_asn1_octetstring_getlength(value.get()), segmented ? -1 : static_cast<int32_t>(size));
        const std::string header = limit < 0x80 ? std::string(1, '\x27') : octets("83 4F FF FF");
        EXPECT_EQ(kovra_asn1_length(4, value.get()), segmented ? -1 : size_of(header) + 1 + static_cast<int32_t>(size));
        EXPECT_EQ(Blob(kovra_asn1_octetstring_getblob(value.get())) == nullptr, segmented);
        std::string all(size, '\0');
        EXPECT_EQ(kovra_asn1_octetstring_getall(value.get(), all.data()), 1);
        EXPECT_TRUE(all == expected);
        const std::string wanted = segmented ? "\x80" + in_segments(data) : header + std::string(expected);
        std::string encoded = encode(4, value.get()).octets;
        EXPECT_TRUE(encoded == (segmented ? "\x24" : "\x04") + wanted);
        EXPECT_TRUE(encode(9, value.get()).octets == (segmented ? "\x2C" : "\x0C") + wanted);
        Decoded back = decode(4, encoded);
        EXPECT_EQ(kovra_asn1_octetstring_getlength(back.value.get()), static_cast<int32_t>(size)); // in memory now
        EXPECT_EQ(kovra_asn1_octetstring_getall(back.value.get(), all.data()), 1);
        EXPECT_TRUE(all == expected);
    }
    std::filesystem::remove(path);
}

} // namespace
} // namespace kovra::test
