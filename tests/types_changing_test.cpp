// Contents in streams whose size changes between two questions: whoever made room for the first answer keeps to it.
#include <filesystem>
#include <functional>

#include "tests/changing_stream.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {
namespace {

// The value in a blob or a bit set: its octets, -1 when there is none.
int32_t octets_in_copy(const Value &value) {
    if (value.type() == 4) {
        const Blob blob(kovra_asn1_octetstring_getblob(value.get()));
        return blob != nullptr ? kovra_data_blob_getlength(blob.get()) : -1;
    }
    const BitSet set(kovra_asn1_bitstring_getbitset(value.get()));
    return set != nullptr ? kovra_bitset_getsize(set.get()) / 8 : -1;
}

TEST(ChangingStreams, CopiesHaveTheSizeThatRoomWasMadeFor) {
    const struct {
        std::vector<int64_t> answers;
        int64_t given;
        int32_t expected;
    } rows[] = {
        {{10}, 10, 10},
        {{10}, endless, 10},
        {{10}, 9, -1}, // ends too early
        {{10, 100000}, 100000, -1},
        {{10, 11}, 11, -1},
        {{10, 9}, 9, -1},
        {{1, 100000}, 100000, -1},
        {{10, -1}, 10, -1},
        {{-1, 10}, 10, -1},
    };
    for (const auto &[answers, given, expected] : rows)
        for (auto make : {string_over, bits_over}) {
            Changing changing({10}, given);
            const Value value = make(changing.stream());
            changing.set(answers);
            EXPECT_EQ(octets_in_copy(value), expected)
                << value.type() << ": " << answers[0] << ", " << answers.back() << " of " << given;
        }
}

struct Getters {
    Value (*make)(kovra_stream *);
    int32_t (*length)(const kovra_asn1_value *);
    int32_t (*all)(kovra_asn1_value *, void *);
};
constexpr Getters getters[] = {{string_over, kovra_asn1_octetstring_getlength, kovra_asn1_octetstring_getall},
                               {string_over, kovra_asn1_string_getlength, kovra_asn1_string_get},
                               {bits_over, kovra_asn1_bitstring_getlength, kovra_asn1_bitstring_getall}};

// Into a buffer of the length that was told last, by asking as often as there are answers: does that fill it?
TEST(ChangingStreams, ABufferTakesWhatWasToldLast) {
    const struct {
        std::vector<int64_t> told;
        int64_t then, given;
        bool is_filled;
    } rows[] = {
        {{10}, 10, 10, true},
        {{10}, 100000, 100000, false},
        {{10}, 10, endless, true},
        {{10}, 10, 9, false},
        {{10}, 9, 9, false},
        {{10, 20}, 20, 20, true},
        {{20, 10}, 20, 20, false},
        {{10, 20}, 10, 20, false},
        {{0}, 100000, 100000, false},
        {{10}, -1, 10, false},
        {{10, -1}, 100000, 100000, false}, // no length is told, so what was told before stands
        {{10, INT64_MAX}, 10, 10, true},
    };
    for (const auto &[told, then, given, is_filled] : rows)
        for (const auto &[make, length, all] : getters) {
            SCOPED_TRACE(testing::Message() << told.back() << ", then " << then << " of " << given);
            Changing changing({10}, given);
            const Value value = make(changing.stream());
            int32_t last = 0;
            for (const int64_t answer : told) {
                changing.set({answer});
                const int32_t answered = length(value.get());
                last = answered >= 0 ? answered : last;
            }
            const auto buffer = std::make_unique<char[]>(static_cast<size_t>(last));
            // What the library asks for itself tells the caller nothing.
            changing.set({then});
            octets_in_copy(value);
            kovra_asn1_bitstring_getbit(value.get(), 0);
            kovra_asn1_length(value.type(), value.get());
            EXPECT_EQ(all(value.get(), buffer.get()), is_filled ? 1 : 0);
            EXPECT_TRUE(!is_filled || std::string_view(buffer.get(), static_cast<size_t>(last)) ==
                                          std::string(static_cast<size_t>(last), 'z'));
        }
}

// Who was told no length has made room for what the stream has.
TEST(ChangingStreams, ABufferTakesTheStreamWhereNothingWasTold) {
    for (const auto &[make, length, all] : getters) {
        Changing changing({0x600000, 100}, 100);
        const Value value = make(changing.stream());
        if (value.type() == 4) {
            EXPECT_EQ(length(value.get()), -1);
        }
        std::string buffer(100, '-');
        changing.set({100});
        EXPECT_EQ(all(value.get(), buffer.data()), 1);
        EXPECT_EQ(buffer, std::string(100, 'z'));
    }
}

TEST(ChangingStreams, AFileThatGrowsAndShrinks) {
    const std::string path = (std::filesystem::path(testing::TempDir()) / "kovra_changing_file").string();
    std::ofstream(path, std::ios::binary) << std::string(10, 'z');
    {
        const Stream file(kovra_stream_new_file(path.c_str(), KOVRA_FILE_READ, nullptr));
        const Value value = string_over(file.get());
        const auto buffer = std::make_unique<char[]>(10);
        EXPECT_EQ(kovra_asn1_octetstring_getlength(value.get()), 10);
        for (const uintmax_t size : {30, 10, 3, 0, 10}) {
            std::filesystem::resize_file(path, size);
            EXPECT_EQ(kovra_asn1_octetstring_getall(value.get(), buffer.get()), size == 10 ? 1 : 0) << size;
            EXPECT_EQ(octets_in_copy(value), static_cast<int32_t>(size));
        }
    }
    std::filesystem::remove(path);
}

// What is written has the lengths that it says, or is not written at all.
TEST(ChangingStreams, WhatIsWrittenIsReadAgain) {
    const auto list = [](kovra_stream *stream) {
        Value made(188, kovra_asn1_list_new());
        EXPECT_EQ(kovra_asn1_list_put(made.get(), string_over(stream).release()), 1);
        return made;
    };
    const auto info = [](kovra_stream *stream) {
        const Value oid = decoded(6, "06 01 2A"), algorithm = decoded(33, "30 03 06 01 2A");
        return Value(148, kovra_cmsencryptedcontentinfo_new(oid.get(), algorithm.get(), string_over(stream).get()));
    };
    const auto text = [](kovra_stream *stream) {
        return Value(47, kovra_x500dirstring_new(12, string_over(stream).get()));
    };
    const std::function<Value(kovra_stream *)> makers[] = {string_over, bits_over, list, info, text};
    constexpr int64_t sizes[] = {10, 200, 9000, 0x500000};
    for (const auto &make : makers)
        for (const int64_t first : sizes)
            for (const int64_t second : sizes)
                for (const int64_t given : {int64_t{10}, int64_t{200}, int64_t{9000}}) {
                    // As long as it is made, the stream is so large that it is not copied.
                    Changing changing({0x500000}, given);
                    const Value value = make(changing.stream());
                    ASSERT_TRUE(value);
                    SCOPED_TRACE(testing::Message()
                                 << value.type() << ": " << first << ", " << second << " of " << given);
                    changing.set({first, second});
                    const Encoded written = encode(value.type(), value.get());
                    if (written.result == 1) {
                        EXPECT_EQ(decode(value.type(), written.octets).read, size_of(written.octets));
                    }
                    changing.set({first, second});
                    const Blob blob(kovra_asn1_mem_encode(value.type(), value.get()));
                    if (blob != nullptr) {
                        EXPECT_EQ(decode(value.type(), text_of(blob.get())).read,
                                  kovra_data_blob_getlength(blob.get()));
                    }
                    EXPECT_TRUE(first != 10 || given != 10 || written.result == 1) << "the first answer was right";
                }
}

// A stream that says it has little and goes on for ever is not gathered in memory.
TEST(ChangingStreams, WhatGoesOnForEverIsNotGathered) {
    for (auto make : {string_over, bits_over}) {
        const Changing changing({10}, endless);
        const Value value = make(changing.stream());
        const SmallMemory small(1 << 16);
        EXPECT_EQ(Blob(kovra_asn1_mem_encode(value.type(), value.get())), nullptr);
        Errors ctx(kovra_err_ctx_new());
        EXPECT_EQ(kovra_asn1_dupobject(value.type(), value.get(), ctx.get()), nullptr);
        EXPECT_EQ(Codes(ctx.get())[0], 0x10004);
    }
    const SmallMemory small(1 << 16);
    Changing changing({4}, endless);
    kovra_asn1_value *any = nullptr;
    const Input input(octets("04 04 41 42 43 44"));
    ASSERT_EQ(kovra_asn1_decode_any_ex(input.stream(), changing.stream(), &any, nullptr, nullptr), 1);
    const Value owner(23, any);
    EXPECT_EQ(Blob(kovra_asn1_mem_encode(23, any)), nullptr);
    EXPECT_EQ(kovra_asn1_objecttoany(23, any), nullptr);
    EXPECT_LE(SmallMemory::largest_wanted(), size_t{1} << 16);
}

} // namespace
} // namespace kovra::test
