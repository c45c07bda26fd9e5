#include <gtest/gtest.h>

#include <string>

#include "tests/failing_memory.hpp"
#include "tests/util_handles.hpp"

using namespace kovra;
using namespace kovra::test;

namespace {


std::string take(kovra_data_blob *blob) {
    if (blob == nullptr)
        return "(null)";
    std::string text(reinterpret_cast<const char *>(kovra_data_blob_getdata(blob)),
                     static_cast<size_t>(kovra_data_blob_getlength(blob)));
    kovra_data_blob_free(blob);
    return text;
}

void put(std::string &out, uint32_t value, int octets) {
    for (int i = octets - 1; i >= 0; --i)
        out += static_cast<char>(value >> (8 * i));
}

TEST(UtilUString, FormsAreThoseOfTheStandard) {
    const struct {
        const char *why;
        std::string utf8, utf16;
    } rows[] = {
        {"nothing", "", ""},
        {"NUL is a character", {"a\0b", 3}, {"\0a\0\0\0b", 6}},
        {"last of one octet", "\x7F", {"\0\x7F", 2}},
        {"first of two", "\xC2\x80", {"\0\x80", 2}},
        {"last of two", "\xDF\xBF", "\x07\xFF"},
        {"first of three", "\xE0\xA0\x80", {"\x08\0", 2}},
        {"before the surrogates", "\xED\x9F\xBF", "\xD7\xFF"},
        {"behind them", "\xEE\x80\x80", {"\xE0\0", 2}},
        {"a noncharacter is a scalar value", "\xEF\xBF\xBF", "\xFF\xFF"},
        {"first pair", "\xF0\x90\x80\x80", {"\xD8\0\xDC\0", 4}},
        {"last character", "\xF4\x8F\xBF\xBF", "\xDB\xFF\xDF\xFF"},
        {"letters and emoji", "z\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", {"\0z\0\xE9\x20\xAC\xD8\x3D\xDE\0", 10}},
    };
    for (const auto &row : rows) {
        const Text from8(kovra_ustring_newutf8(row.utf8.data(), size_of(row.utf8)));
        const Text from16(kovra_ustring_newutf16be(row.utf16.data(), size_of(row.utf16)));
        EXPECT_EQ(take(kovra_ustring_toutf16be(from8.get())), row.utf16) << row.why;
        EXPECT_EQ(take(kovra_ustring_toutf8(from16.get())), row.utf8) << row.why;
    }
}

// Every code point in every form.
TEST(UtilUString, EveryCodePointGoesThroughEveryForm) {
    for (uint32_t character = 0; character <= 0x110000; ++character) {
        const bool is_scalar = character < 0xD800 || (character > 0xDFFF && character <= 0x10FFFF);
        std::string utf32;
        put(utf32, character, 4);
        Text text(kovra_ustring_newutf32be(utf32.data(), 4));
        ASSERT_EQ(text != nullptr, is_scalar) << character;
        if (!is_scalar)
            continue;
        const std::string utf8 = take(kovra_ustring_toutf8(text.get()));
        const std::string utf16 = take(kovra_ustring_toutf16be(text.get()));
        kovra_data_blob *bmp = kovra_ustring_tobmp(text.get());
        ASSERT_EQ(bmp != nullptr, character <= 0xFFFF) << character;
        ASSERT_EQ(take(bmp), character <= 0xFFFF ? utf16 : "(null)");
        text.reset(kovra_ustring_newutf8(utf8.data(), size_of(utf8)));
        ASSERT_EQ(take(kovra_ustring_toutf32be(text.get())), utf32) << character;
        text.reset(kovra_ustring_newutf16be(utf16.data(), size_of(utf16)));
        ASSERT_EQ(take(kovra_ustring_toutf8(text.get())), utf8) << character;
    }
}

TEST(UtilUString, IllFormedOctetsAreRefused) {
    using Make = kovra_ustring *(*)(const void *, int32_t);
    constexpr Make utf8 = kovra_ustring_newutf8, utf32 = kovra_ustring_newutf32be;
    constexpr Make utf16 = kovra_ustring_newutf16be, bmp = kovra_ustring_newbmp;
    const struct {
        const char *why;
        Make make;
        std::string octets;
    } rows[] = {
        {"continuation first", utf8, "\x80"},
        {"overlong NUL", utf8, "\xC0\x80"},
        {"overlong", utf8, "\xC1\xBF"},
        {"overlong", utf8, "\xE0\x9F\xBF"},
        {"overlong", utf8, "\xF0\x8F\xBF\xBF"},
        {"first surrogate", utf8, "\xED\xA0\x80"},
        {"last surrogate", utf8, "\xED\xBF\xBF"},
        {"above the last character", utf8, "\xF4\x90\x80\x80"},
        {"no such lead", utf8, "\xF5\x80\x80\x80"},
        {"no such octet", utf8, "a\xFFz"},
        {"no continuation", utf8, "\xC3("},
        {"cut off", utf8, "\xE2\x82"},
        {"surrogate", utf32, {"\0\0\xD8\0", 4}},
        {"above the last character", utf32, {"\0\x11\0\0", 4}},
        {"more than 21 bits", utf32, {"\x01\0\0\x41", 4}},
        {"three octets", utf32, "abc"},
        {"high surrogate before a letter", utf16, {"\xD8\0\0\x41", 4}},
        {"two high surrogates", utf16, {"\xD8\0\xD8\0", 4}},
        {"low surrogate first", utf16, {"\xDC\0\xD8\0", 4}},
        {"high surrogate at the end", utf16, {"\0\x41\xD8\0", 4}},
        {"odd", utf16, "abc"},
        {"pair of surrogates", bmp, {"\xD8\0\xDC\0", 4}},
        {"odd", bmp, "a"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(row.make(row.octets.data(), size_of(row.octets)), nullptr) << row.why;
    for (const Make make : {utf8, utf32, utf16, bmp}) {
        EXPECT_EQ(make(nullptr, 4), nullptr);
        EXPECT_EQ(make("abcd", -4), nullptr);
        EXPECT_NE(Text(make(nullptr, 0)), nullptr) << "an empty text";
    }
}

// ASCII is stepped over in words: nothing may hide between them.
TEST(UtilUString, EachPositionOfALongTextIsLookedAt) {
    const std::string ascii(40, 'a');
    for (size_t i = 0; i < ascii.size(); ++i) {
        std::string octets = ascii;
        octets[i] = '\xFF';
        EXPECT_EQ(kovra_ustring_newutf8(octets.data(), size_of(octets)), nullptr) << i;
        octets.replace(i, 1, "\xC3\xA9");
        const Text text(kovra_ustring_newutf8(octets.data(), size_of(octets)));
        EXPECT_EQ(take(kovra_ustring_toutf8(text.get())), octets);
    }
}

TEST(UtilUString, WrongHandlesAndScarceMemoryAreRefused) {
    const Blob blob(kovra_data_blob_new("a blob, which is no text", 24));
    for (auto *wrong : {static_cast<kovra_ustring *>(nullptr), reinterpret_cast<kovra_ustring *>(blob.get())}) {
        for (const auto to :
             {kovra_ustring_toutf8, kovra_ustring_toutf32be, kovra_ustring_toutf16be, kovra_ustring_tobmp})
            EXPECT_EQ(to(wrong), nullptr);
        kovra_ustring_free(wrong);
    }
    EXPECT_EQ(text_of(blob.get()), "a blob, which is no text");
    fail_each_allocation([] {
        const Text text(kovra_ustring_newbmp("\x20\xAC", 2));
        const Text copy(kovra_ustring_newutf8("copy", 4));
        const Blob blobs[] = {Blob(kovra_ustring_toutf8(text.get())), Blob(kovra_ustring_toutf32be(text.get())),
                              Blob(kovra_ustring_toutf16be(text.get())), Blob(kovra_ustring_tobmp(text.get()))};
        return copy && blobs[0] && blobs[1] && blobs[2] && blobs[3];
    });
}

} // namespace
