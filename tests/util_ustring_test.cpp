#include <gtest/gtest.h>

#include <string>

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

} // namespace
