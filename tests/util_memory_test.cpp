#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "base/thresholds.hpp"
#include "tests/failing_memory.hpp"
#include "tests/util_handles.hpp"

using namespace kovra;
using namespace kovra::test;

namespace {

struct Entry {
    const char *source = nullptr;
    int32_t line = 0;
    int32_t code = 0;
    const char *message = nullptr;
};

Entry entry_of(const Errors &errors, int32_t index) {
    Entry entry;
    EXPECT_EQ(1, kovra_err_ctx_getentry(errors.get(), index, &entry.source, &entry.line, &entry.code, &entry.message));
    return entry;
}

} // namespace

TEST(UtilMemory, AllocatesAlsoNothingAndFreesNull) {
    void *nothing = kovra_malloc(0, nullptr, 0);
    EXPECT_NE(nullptr, nothing);
    auto *text = static_cast<char *>(kovra_realloc(nothing, 6, nullptr, 0));
    ASSERT_NE(nullptr, text);
    memcpy(text, "grown", 6);
    text = static_cast<char *>(kovra_realloc(text, 100000, nullptr, 0));
    EXPECT_STREQ("grown", text);
    kovra_free(text);
    kovra_free(nullptr);
}

TEST(UtilMemory, BlobsCopyTheirOctets) {
    std::string octets("a\0b", 3);
    const Blob blob(kovra_data_blob_new(octets.data(), 3));
    octets[0] = 'x';
    EXPECT_EQ(std::string("a\0b", 3), text_of(blob.get()));

    const Blob empty(kovra_data_blob_new(nullptr, 0));
    EXPECT_EQ(0, kovra_data_blob_getlength(empty.get()));
    EXPECT_NE(nullptr, kovra_data_blob_getdata(empty.get()));
    EXPECT_EQ(nullptr, kovra_data_blob_new(nullptr, 1));
    EXPECT_EQ(nullptr, kovra_data_blob_new("a", -1));
}

TEST(UtilError, KeepsCopiesOfAllEntriesInOrder) {
    const Errors errors(kovra_err_ctx_new());
    const std::string long_text(100000, 'l');
    constexpr int32_t count = 1000;
    std::vector<std::pair<const char *, std::string>> handed_out;
    const auto source_of = [](int32_t i) { return std::string(static_cast<size_t>(31 + i / 3 % 50), 's'); };
    for (int32_t i = 0; i < count; ++i) {
        // Lengths around the room that the first entries have in the context.
        const std::string source = source_of(i);
        std::string message =
            i % 7 == 0 ? long_text : std::string(static_cast<size_t>(92 + i % 8), 'm') + std::to_string(i);
        kovra_err_ctx_put(errors.get(), source.c_str(), i, -i, message.c_str());
        handed_out.emplace_back(entry_of(errors, i).message, std::move(message));
    }
    ASSERT_EQ(count, kovra_err_ctx_getcount(errors.get()));
    for (int32_t i = 0; i < count; ++i) {
        const Entry entry = entry_of(errors, i);
        EXPECT_EQ(source_of(i), entry.source);
        EXPECT_EQ(i, entry.line);
        EXPECT_EQ(-i, entry.code);
        EXPECT_EQ(handed_out[static_cast<size_t>(i)].first, entry.message) << "texts stay where they were";
        EXPECT_EQ(handed_out[static_cast<size_t>(i)].second, entry.message);
    }
    for (const int32_t outside : {-1, count, INT32_MAX, INT32_MIN})
        EXPECT_EQ(0, kovra_err_ctx_getentry(errors.get(), outside, nullptr, nullptr, nullptr, nullptr));

    kovra_err_ctx_clear(errors.get());
    EXPECT_EQ(0, kovra_err_ctx_getcount(errors.get()));
    kovra_err_ctx_put(errors.get(), nullptr, 7, 8, nullptr);
    EXPECT_STREQ("", entry_of(errors, 0).source);
    EXPECT_STREQ("", entry_of(errors, 0).message);
    EXPECT_EQ(1, kovra_err_ctx_getentry(errors.get(), 0, nullptr, nullptr, nullptr, nullptr));
}

// A text that needs more room than there is: the entry is there with what fits, and those before are as they were.
TEST(UtilError, AnEntryWithoutMemory) {
    const Errors errors(kovra_err_ctx_new());
    const std::string text(100000, 't');
    const bool is_watched = is_memory_watched();
    kovra_err_ctx_put(errors.get(), "first", 1, 2, "text");
    {
        const ScarceMemory scarce(0);
        for (int32_t i = 0; i < 100; ++i)
            kovra_err_ctx_put(errors.get(), "later", 3, 4, text.c_str());
    }
    EXPECT_STREQ("text", entry_of(errors, 0).message);
    // There is room for some entries without memory, but where every threshold is small.
    EXPECT_GE(kovra_err_ctx_getcount(errors.get()), is_tight ? 1 : 2);
    for (int32_t i = 1; i < kovra_err_ctx_getcount(errors.get()); ++i) {
        EXPECT_TRUE(text.starts_with(entry_of(errors, i).message)) << i;
        EXPECT_EQ(is_watched, text != entry_of(errors, i).message) << i;
    }
}
