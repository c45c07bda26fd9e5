#include <cstring>
#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "util_handles.hpp"

using namespace kovra;
using namespace kovra::test;

namespace {

using Result = std::optional<std::string>;

// Copied to memory of exactly that size, so that reading beyond it is seen.
template <class Decode> Result decoded(const std::string &text, Decode decode) {
    const std::vector<char> exact(text.begin(), text.end());
    int32_t length = -1;
    const Memory<void> octets(decode(exact.data(), static_cast<int64_t>(exact.size()), &length));
    if (octets == nullptr) {
        EXPECT_EQ(0, length);
        return std::nullopt;
    }
    return std::string(static_cast<const char *>(octets.get()), static_cast<size_t>(length));
}

Result from_hex(const std::string &text) {
    return decoded(text, kovra_hexdecode);
}

Result from_base64(const std::string &text, int32_t mode) {
    return decoded(
        text, [&](const char *t, int64_t length, int32_t *out) { return kovra_base64decode(t, length, mode, out); });
}

Result from_pem(const std::string &text, const char *label) {
    return decoded(text,
                   [&](const char *t, int64_t length, int32_t *out) { return kovra_pemdecode(t, length, label, out); });
}

template <class Encode, class Parameter>
std::string encoded(Encode encode, const std::string &octets, Parameter parameter) {
    int64_t length = -1;
    const Memory<char> text(encode(octets.data(), size_of(octets), parameter, &length));
    if (text == nullptr)
        return "(null)";
    EXPECT_EQ(static_cast<size_t>(length), strlen(text.get()));
    return text.get();
}

} // namespace

TEST(UtilCoding, Base64Vectors) {
    // RFC 4648, section 10, and the two last characters of the alphabet.
    const char *rows[][2] = {{"", ""},
                             {"f", "Zg=="},
                             {"fo", "Zm8="},
                             {"foo", "Zm9v"},
                             {"foob", "Zm9vYg=="},
                             {"fooba", "Zm9vYmE="},
                             {"foobar", "Zm9vYmFy"},
                             {"\xFB\xEF\xFF", "++//"}};
    for (const auto &[octets, text] : rows) {
        EXPECT_EQ(text, encoded(kovra_base64encode, octets, 0));
        EXPECT_EQ(octets, from_base64(text, KOVRA_BASE64_STRICT));
        EXPECT_EQ(octets, from_base64(text, KOVRA_BASE64_IGNORE_SPACE));
        EXPECT_EQ(std::nullopt, from_base64(text, 3));
        // White space anywhere is for mode 2 only.
        for (size_t at = 0; at <= strlen(text); ++at) {
            std::string spaced = text;
            spaced.insert(at, " \t\r\n\v\f");
            EXPECT_EQ(octets, from_base64(spaced, KOVRA_BASE64_IGNORE_SPACE)) << spaced;
            EXPECT_EQ(std::nullopt, from_base64(spaced, KOVRA_BASE64_STRICT)) << spaced;
        }
    }
}

TEST(UtilCoding, EveryLengthComesBackInEveryArmour) {
    for (size_t size = 0; size < 200; ++size) {
        const std::string octets = noise(size);
        ASSERT_EQ(octets, from_hex(encoded(kovra_hexencode, octets, KOVRA_HEX_UPPER)));
        for (const int32_t line : {1, 3, 64, 76})
            ASSERT_EQ(octets, from_base64(encoded(kovra_base64encode, octets, line), KOVRA_BASE64_IGNORE_SPACE));
        const std::string pem = encoded(kovra_pemencode, octets, "X509 CRL");
        ASSERT_EQ(octets, from_pem(pem, "X509 CRL"));
        for (size_t cut = 0; cut + 1 < pem.size(); cut += 7)
            ASSERT_EQ(std::nullopt, from_pem(pem.substr(0, cut), "X509 CRL")) << cut;
    }
}

TEST(UtilCoding, PemBlocksOneByOne) {
    const std::string text =
        "intro\n-----BEGIN A-----\nZm9v\n-----END A-----\n-----BEGIN BB-----\nZm9v!\n-----END BB-----\n"
        "-----BEGIN C-----\nZm9v\n-----BEGIN D-----\n-----END D-----\n-----BEGIN E-----\n";
    const struct {
        int32_t result;
        const char *label;
        const char *octets;
    } expected[] = {{1, "A", "foo"}, {-1, "BB", nullptr}, {-1, "C", nullptr},
                    {1, "D", ""},    {-1, "E", nullptr},  {0, "", nullptr}};
    int64_t position = 0;
    for (const auto &row : expected) {
        const char *label = nullptr;
        int32_t label_length = -1;
        void *data = nullptr;
        int32_t length = -1;
        EXPECT_EQ(row.result,
                  kovra_pemnext(text.data(), size_of(text), &position, &label, &label_length, &data, &length));
        const Memory<void> octets(data);
        EXPECT_EQ(row.label, std::string(label == nullptr ? "" : label, static_cast<size_t>(label_length)));
        EXPECT_EQ(row.octets != nullptr, data != nullptr);
        if (data != nullptr) {
            EXPECT_EQ(row.octets, std::string(static_cast<const char *>(data), static_cast<size_t>(length)));
        }
    }
    EXPECT_EQ(size_of(text), position);

    // What is asked for without a place, or outside, finds nothing, and the places say so.
    char mark = 0;
    for (int64_t at : {int64_t{-1}, int64_t{size_of(text)} + 1, int64_t{size_of(text)}}) {
        void *data = &mark;
        int32_t length = 7, label_length = 7;
        const char *label = "label";
        EXPECT_EQ(0, kovra_pemnext(text.data(), size_of(text), &at, &label, &label_length, &data, &length));
        EXPECT_EQ(std::tuple(nullptr, 0, nullptr, 0), std::tuple(data, length, label, label_length));
    }
    position = 0;
    EXPECT_EQ(0, kovra_pemnext(text.data(), size_of(text), &position, nullptr, nullptr, nullptr, nullptr));
}

// Would take hours if each block were searched for its end anew.
TEST(UtilCoding, PemWithoutEndsIsReadOnce) {
    std::string text;
    for (int i = 0; i < 200000; ++i)
        text += "-----BEGIN " + std::to_string(i) + "-----\n";
    int64_t position = 0;
    int32_t blocks = 0;
    void *data = nullptr;
    int32_t length = 0;
    while (kovra_pemnext(text.data(), size_of(text), &position, nullptr, nullptr, &data, &length) == -1)
        ++blocks;
    EXPECT_EQ(200000, blocks);
    EXPECT_EQ(std::nullopt, from_pem(text, "T"));
}
