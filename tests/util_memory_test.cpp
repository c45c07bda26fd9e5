#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "util_handles.hpp"

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

// Every function that takes a handle, given null and a handle of another kind.
TEST(UtilMemory, HandlesOfAnotherKindAreRefused) {
    const Blob blob(kovra_data_blob_new("12345678", 8));
    const Errors errors(kovra_err_ctx_new());
    for (void *wrong :
         {static_cast<void *>(nullptr), static_cast<void *>(blob.get()), static_cast<void *>(errors.get())}) {
        if (wrong != blob.get()) {
            auto *other = static_cast<kovra_data_blob *>(wrong);
            EXPECT_EQ(nullptr, kovra_data_blob_getdata(other));
            EXPECT_EQ(0, kovra_data_blob_getlength(other));
            kovra_data_blob_free(other);
        }
        if (wrong != errors.get()) {
            auto *other = static_cast<kovra_err_ctx *>(wrong);
            kovra_err_ctx_put(other, "source", 1, 2, "text");
            EXPECT_EQ(0, kovra_err_ctx_getcount(other));
            EXPECT_EQ(0, kovra_err_ctx_getentry(other, 0, nullptr, nullptr, nullptr, nullptr));
            kovra_err_ctx_clear(other);
            kovra_err_ctx_free(other);
        }
        auto *number = static_cast<kovra_biginteger *>(wrong);
        const BigInteger one(kovra_biginteger_newhex("1"));
        int32_t order = 0;
        EXPECT_EQ(0, kovra_biginteger_compare(number, one.get(), &order));
        EXPECT_EQ(0, kovra_biginteger_compare(one.get(), number, &order));
        EXPECT_EQ(nullptr, kovra_biginteger_getdata(number));
        EXPECT_EQ(nullptr, kovra_biginteger_dup(number));
        EXPECT_EQ(nullptr, kovra_biginteger_todecimal(number));
        EXPECT_EQ(nullptr, kovra_biginteger_tohex(number));
        kovra_biginteger_free(number);

        auto *set = static_cast<kovra_bitset *>(wrong);
        EXPECT_EQ(0, kovra_bitset_set(set, 0));
        EXPECT_EQ(0, kovra_bitset_clear(set, 0));
        EXPECT_EQ(0, kovra_bitset_test(set, 0));
        EXPECT_EQ(0, kovra_bitset_getsize(set));
        EXPECT_EQ(nullptr, kovra_bitset_getdata(set, nullptr));
        kovra_bitset_free(set);

        auto *stream = static_cast<kovra_stream *>(wrong);
        const Stream good(kovra_stream_new_mem(0, nullptr));
        const uint8_t *data = nullptr;
        int64_t length = 0;
        char octet = 0;
        EXPECT_EQ(0, kovra_stream_gettype(stream));
        EXPECT_EQ(0, kovra_stream_read(stream, &octet, 1, nullptr, nullptr));
        EXPECT_EQ(0, kovra_stream_readn(stream, &octet, 1, nullptr, nullptr));
        EXPECT_EQ(0, kovra_stream_writen(stream, &octet, 1, nullptr, nullptr));
        EXPECT_EQ(0, kovra_stream_writefromstream(stream, good.get(), nullptr, nullptr));
        EXPECT_EQ(0, kovra_stream_writefromstream(good.get(), stream, nullptr, nullptr));
        EXPECT_EQ(-1, kovra_stream_ctrl(stream, KOVRA_STREAM_SIZE, 0, nullptr));
        EXPECT_EQ(0, kovra_stream_ctrl(stream, KOVRA_STREAM_ALL_CONSUMED, 0, nullptr));
        EXPECT_EQ(0, kovra_stream_peek(stream, &data, &length));
        EXPECT_EQ(0, kovra_stream_advance(stream, 0));
        EXPECT_EQ(nullptr, kovra_memstreamdeatch(stream, nullptr));
        kovra_stream_free(stream);
    }
    EXPECT_EQ("12345678", text_of(blob.get()));
    EXPECT_EQ(0, kovra_err_ctx_getcount(errors.get()));
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

TEST(UtilError, TextsExistForExactlyTheCodesOfEachLookup) {
    for (int32_t code = 0xFF00; code < 0x10300; ++code) {
        const bool general = code == 0x10000 || code == 0x10001 || code == 0x10002 || code == 0x10004;
        const bool stream = (code >= 0x10105 && code <= 0x10107) || code == 0x10108 || code == 0x10109 ||
                            code == 0x10110 || code == 0x10111 || code == 0x10114 || code == 0x10116;
        EXPECT_EQ(general, *kovra_igetGeneralError(code) != '\0') << std::hex << code;
        EXPECT_EQ(stream, *kovra_igetStreamError(code) != '\0') << std::hex << code;
    }
    EXPECT_STREQ("", kovra_igetGeneralError(-1));
    EXPECT_STREQ("", kovra_igetStreamError(-1));
}
