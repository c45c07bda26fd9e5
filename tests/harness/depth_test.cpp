// Elements a million levels deep, as every type and in every open type, on a stack that has room for no recursion.
#include "kovra/asn1_decode.h"
#include "kovra/asn1_json.h"
#include "tests/asn1_testing.hpp"
#include "tests/harness/samples.hpp"
#include "tests/small_stack.hpp"

namespace kovra::test {
namespace {

struct Nest {
    const char *name;
    std::string octets;
};

std::vector<Nest> nests(size_t depth) {
    return {
        {"30 80", nested_open('\x30', depth, "")},
        {"A0 80", nested_open('\xA0', depth, "")},
        {"24 80", nested_open('\x24', depth, "\x04\x01x")},
        {"23 80", nested_open('\x23', depth, octets("03 02 00 78"))},
        {"30 length", nested_with_lengths('\x30', depth, "")},
        {"31 length", nested_with_lengths('\x31', depth, octets("05 00"))},
        {"A0 length", nested_with_lengths('\xA0', depth, octets("05 00"))},
        {"24 length", nested_with_lengths('\x24', depth, "\x04\x01x")},
        {"30 80 and no end", repeated("\x30\x80", depth)},
        {"A0 80 and no end", repeated("\xA0\x80", depth)},
        {"24 80 and no end", repeated("\x24\x80", depth)},
    };
}

constexpr size_t million = 1000000;

// Everything that there is to do with the octets, whatever comes of it. Returns whether they were read.
bool use(uint32_t type, const std::string &data) {
    const Stream stream(kovra_stream_new_romem(data.data(), size_of(data), 0, nullptr));
    kovra_asn1_value *out = nullptr;
    // Without a context: entries for each of the levels are another matter.
    const bool is_read = kovra_asn1_decode(stream.get(), type, &out, nullptr, nullptr) == 1;
    const Value value(type, out);
    if (!value)
        return is_read;
    const int32_t length = kovra_asn1_length(type, out);
    const Blob encoding(kovra_asn1_mem_encode(type, out));
    const Value copy(type, kovra_asn1_dupobject(type, out, nullptr));
    if (encoding != nullptr) {
        EXPECT_TRUE(length == kovra_data_blob_getlength(encoding.get()) || length < 0 ||
                    !is_as_long_as_measured(core::row(type)));
        EXPECT_TRUE(copy || !is_written_as_read(core::row(type)));
    }
    return true;
}

TEST(Depth, OfEveryType) {
    for (const Nest &nest : nests(million)) {
        SCOPED_TRACE(nest.name);
        run_on_small_stack([&] {
            size_t read = 0;
            for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type)
                read += use(type, nest.octets) ? 1 : 0;
            EXPECT_EQ(read > 0, std::string_view(nest.name).ends_with("end") == 0);
        });
    }
}

// Types that share a choice or a list of open types are many: each has one nest of its turn.
TEST(Depth, OfEveryOpenType) {
    const std::vector<Nest> all = nests(million / 10);
    size_t turn = 0, read = 0;
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type) {
        SCOPED_TRACE(type);
        if (with_open_type(type, octets("DF 1F 00")).empty())
            continue;
        for (const std::string &data : with_open_type(type, all[turn++ % all.size()].octets))
            run_on_small_stack([&] { read += use(type, data) ? 1 : 0; });
    }
    EXPECT_GT(read, 20u);
}

// Values that were put into each other, and are released with the outermost.
TEST(Depth, OfValuesPutIntoEachOther) {
    run_on_small_stack([] {
        Value outer(24, kovra_asn1_list_new());
        for (size_t i = 0; i < million / 5; ++i) {
            Value around(24, kovra_asn1_list_new());
            ASSERT_EQ(kovra_asn1_list_put(around.get(), outer.get()), 1);
            outer.release();
            outer = std::move(around);
        }
        EXPECT_EQ(kovra_asn1_length(24, outer.get()), -2); // lists are no open types
    });
}

TEST(Depth, OfDescriptionsAndPieces) {
    for (const Nest &nest : nests(million)) {
        SCOPED_TRACE(nest.name);
        run_on_small_stack([&] {
            const Json json(kovra_asn1_tojson(nest.octets.data(), size_of(nest.octets)));
            const bool is_whole = !std::string_view(nest.name).ends_with("end");
            EXPECT_EQ(json != nullptr, is_whole);
            EXPECT_EQ(Blob(kovra_asn1_encodejson(json.get())) != nullptr, is_whole);
            const AnyCtx pushed(kovra_asn1_decode_any_ctx_new());
            const StringCtx string(kovra_asn1_decode_octetstring_ctx_new());
            const bool is_string = nest.octets[0] == '\x24';
            constexpr size_t piece = 4093;
            for (size_t at = 0; at < nest.octets.size(); at += piece) {
                const std::string rest = nest.octets.substr(at, piece);
                int32_t left = 0;
                ASSERT_EQ(kovra_asn1_decode_any_update(pushed.get(), rest.data(), size_of(rest), &left), 1);
                ASSERT_EQ(left, 0);
                ASSERT_EQ(
                    kovra_asn1_decode_octetstring_update(string.get(), rest.data(), size_of(rest), nullptr, &left),
                    is_string ? 1 : 0);
            }
            EXPECT_EQ(kovra_asn1_decode_octetstring_ctx_isfinish(string.get()), is_string && is_whole ? 1 : 0);
            EXPECT_EQ(kovra_asn1_decode_any_isfinish(pushed.get()), is_whole ? 1 : 0);
        });
    }
}

} // namespace
} // namespace kovra::test
