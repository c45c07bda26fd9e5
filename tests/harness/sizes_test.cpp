// Sizes near the largest that there is: nothing that is computed from them wraps. In 32 bits the lengths of contents
// come as near; the contents are pages that nobody reads or writes.
#include <functional>

#include "base/handle.hpp"
#include "base/sizes.hpp"
#include "core/content.hpp"
#include "core/encoder.hpp"
#include "kovra/asn1_any.h"
#include "kovra/asn1_bitstring.h"
#include "kovra/asn1_codec.h"
#include "kovra/asn1_octetstring.h"
#include "kovra/asn1_oid.h"
#include "kovra/asn1_types.h"
#include "kovra/util.h"
#include "tests/failing_memory.hpp"
#include "tests/util_handles.hpp"
#include "util/json_text.hpp"

#ifndef _WIN32
#include <sys/mman.h>
#endif

namespace kovra::test {
namespace {

namespace core = kovra::asn1;

constexpr size_t edge = SIZE_MAX - 100;

// What is computed is right or too large, and stays so.
constexpr bool sums_are_right() {
    for (size_t a = edge; a != 0; ++a)
        for (size_t b = 0; b < 110; ++b)
            if (sum(a, b) != (b < SIZE_MAX - a ? a + b : too_large) || sum(b, a) != sum(a, b) ||
                sum(a, b, 1) < sum(a, b))
                return false;
    return sum(too_large, 0) == too_large && sum(0, 0, 0) == 0 && sum(1, 2, 3, 4) == 10;
}
constexpr bool products_are_right() {
    for (size_t a : {size_t{0}, size_t{1}, size_t{2}, size_t{3}, size_t{20}, SIZE_MAX / 2, SIZE_MAX / 3, edge})
        for (size_t b : {size_t{0}, size_t{1}, size_t{2}, size_t{3}, SIZE_MAX / 20, SIZE_MAX / 2, SIZE_MAX / 3 + 1}) {
            const size_t found = product(a, b);
            if (found != too_large && a != 0 && (found / a != b || found % a != 0))
                return false;
            if (found == too_large && (a == 0 || b < SIZE_MAX / a))
                return false;
        }
    return product(too_large, 0) == too_large && product(0, too_large) == too_large &&
           product(1, too_large) == too_large;
}
constexpr bool roundings_are_right() {
    for (size_t step : {size_t{1}, size_t{8}, size_t{16}})
        for (size_t size = edge; size != 0; ++size) {
            const size_t found = rounded_up(size, step);
            if (found < size || (found != too_large && (found % step != 0 || found - size >= step)))
                return false;
        }
    return rounded_up(0, 8) == 0 && rounded_up(1, 8) == 8 && rounded_up(too_large, 8) == too_large;
}
static_assert(sums_are_right());
static_assert(products_are_right());
static_assert(roundings_are_right());

constexpr size_t little = size_t{1} << 20;

struct Handle {
    static constexpr uint32_t magic_of_type = magic_word("TEST");
    uint32_t magic;
};

// Asks for memory of sizes near the largest. Each is refused, without or with a question for at least as much, and what
// was had before is had still.
TEST(Sizes, TheLargestAreRefused) {
    if (!is_memory_watched())
        GTEST_SKIP();
    core::Arena *arena = core::Arena::create(64);
    core::Arena::Block *block = core::Arena::new_block(8);
    core::Encoder encoder(static_cast<kovra_err_ctx *>(nullptr));
    ASSERT_EQ(encoder.put({"", 0}, "octets", 6), core::success);
    util::GrowingArray<uint64_t> array;
    ASSERT_TRUE(array.push(7));
    const std::pair<const char *, std::function<bool(size_t)>> askers[] = {
        {"allocate", [&](size_t size) { return arena->allocate(size) != nullptr; }},
        {"allocate_in_place", [&](size_t size) { return arena->allocate_in_place(size) != nullptr; }},
        {"create", [](size_t size) { return core::Arena::create(size) != nullptr; }},
        {"new_block", [](size_t size) { return core::Arena::new_block(size) != nullptr; }},
        {"resize_block", [&](size_t size) { return core::Arena::resize_block(block, size) != nullptr; }},
        {"new_root", [](size_t size) { return core::new_root<core::String>(size) != nullptr; }},
        {"make_record", [](size_t size) { return make_record<Handle>("", size) != nullptr; }},
        {"reserve",
         [&](size_t size) {
             return encoder.reserve({"", 0}, size) == core::success;
         }},
        {"fill",
         [&](size_t size) {
             util::GrowingArray<uint64_t> filled;
             filled.push(1);
             filled.fill(0, size);
             return filled.is_complete();
         }},
    };
    for (const auto &[what, asks] : askers)
        for (const size_t begin : {edge, SIZE_MAX / 8 - 8, SIZE_MAX / 4 - 8, SIZE_MAX / 2 - 8})
            for (size_t size = begin; size - begin < 16 || (begin == edge && size != 0); ++size) {
                const SmallMemory small(little);
                EXPECT_FALSE(asks(size)) << what << " " << size;
                const size_t wanted = SmallMemory::largest_wanted();
                EXPECT_TRUE(wanted <= little || wanted >= size) << what << " " << size << " asked for " << wanted;
            }
    EXPECT_NE(arena->allocate(8), nullptr);
    EXPECT_EQ(std::string_view(reinterpret_cast<const char *>(encoder.data()), encoder.size()), "octets");
    core::Arena::drop_block(block);
    core::Arena::destroy(arena);
}

#ifndef _WIN32

// As many octets as a length can tell, none of which takes memory.
class Pages {
public:
    Pages() {
        void *memory = mmap(nullptr, INT32_MAX, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        begin_ = memory != MAP_FAILED ? static_cast<const uint8_t *>(memory) : nullptr;
    }
    ~Pages() {
        if (begin_ != nullptr)
            munmap(const_cast<uint8_t *>(begin_), INT32_MAX);
    }
    Pages(const Pages &) = delete;
    [[nodiscard]] const uint8_t *begin() const { return begin_; }

private:
    const uint8_t *begin_ = nullptr;
};

// A value whose content is so many octets of pages.
template <class T> core::Arena *over_pages(const Pages &pages, uint32_t length, core::Octets T::*octets) {
    T *record = core::new_root<T>();
    (record->*octets) = {pages.begin(), 0, length};
    return record->arena;
}

// What every call over a huge content asks for is at least what it is going to write, or what no allocator gives, or it
// does not ask: it fails.
TEST(Sizes, OfHugeContents) {
    const Pages pages;
    if (pages.begin() == nullptr)
        GTEST_SKIP() << "no room for 2 GiB of pages";
    const uint8_t *data = pages.begin();
    const auto *text = reinterpret_cast<const char *>(data);
    using Call = std::function<bool(int32_t)>;
    using Needed = std::function<uint64_t(uint64_t)>;
    const auto had = [](void *memory) {
        kovra_free(memory);
        return memory != nullptr;
    };
    const auto released = [](uint32_t type, kovra_asn1_value *value) {
        kovra_asn1_value_free(type, value);
        return value != nullptr;
    };
    const auto over_string = [&](int32_t n, auto use) {
        core::String *string = core::new_root<core::String>();
        string->content.octets = {data, 0, static_cast<uint32_t>(n)};
        const bool done = use(string);
        core::Arena::destroy(string->arena);
        return done;
    };
    const Needed all = [](uint64_t n) { return n; };
    const Needed twice = [](uint64_t n) { return 2 * n; };
    const auto digits = [](uint64_t n) { return (n + 2) / 3 * 4; };
    const std::tuple<const char *, Call, Needed> calls[] = {
        {"hexencode", [&](int32_t n) { return had(kovra_hexencode(data, n, KOVRA_HEX_LOWER, nullptr)); }, twice},
        {"hexdecode", [&](int32_t n) { return had(kovra_hexdecode(text, int64_t{n} / 2 * 2, nullptr)); },
         [](uint64_t n) { return n / 2; }},
        {"base64encode", [&](int32_t n) { return had(kovra_base64encode(data, n, 0, nullptr)); }, digits},
        {"base64encode in lines of 1", [&](int32_t n) { return had(kovra_base64encode(data, n, 1, nullptr)); },
         [&](uint64_t n) { return 2 * digits(n); }},
        {"base64encode in lines of 3", [&](int32_t n) { return had(kovra_base64encode(data, n, 3, nullptr)); },
         [&](uint64_t n) { return digits(n) / 3 * 4; }},
        {"base64decode", [&](int32_t n) { return had(kovra_base64decode(text, n, KOVRA_BASE64_STRICT, nullptr)); },
         [](uint64_t n) { return n / 4 * 3; }},
        {"pemencode", [&](int32_t n) { return had(kovra_pemencode(data, n, "X", nullptr)); },
         [&](uint64_t n) { return digits(n) + digits(n) / 64; }},
        {"blob", [&](int32_t n) { return Blob(kovra_data_blob_new(data, n)) != nullptr; }, all},
        {"big integer", [&](int32_t n) { return BigInteger(kovra_biginteger_newdata(data, n)) != nullptr; }, all},
        {"bit set", [&](int32_t n) { return BitSet(kovra_bitset_new(0, data, n / 8)) != nullptr; },
         [](uint64_t n) { return n / 8; }},
        {"a bit", [](int32_t n) { return kovra_bitset_set(BitSet(kovra_bitset_empty()).get(), n - 1) == 1; },
         [](uint64_t n) { return n / 8; }},
        {"bits", [&](int32_t n) { return released(3, kovra_asn1_bitstring_newbits(&n, 1)); },
         [](uint64_t n) { return n / 8; }},
        {"JSON string",
         [&](int32_t n) {
             kovra_json *json = kovra_json_newstring(data, n);
             kovra_json_free(json);
             return json != nullptr;
         },
         all},
        {"JSON hex",
         [&](int32_t n) {
             kovra_json *array = kovra_json_newarray();
             const bool put = kovra_json_puthex(array, nullptr, data, n) != nullptr;
             kovra_json_free(array);
             return put;
         },
         twice},
        {"octet string", [&](int32_t n) { return released(4, kovra_asn1_octetstring_new(data, n)); }, all},
        {"bit string", [&](int32_t n) { return released(3, kovra_asn1_bitstring_new(0, data, n)); }, all},
        {"any", [&](int32_t n) { return released(23, kovra_asn1_any_new(0x80, 1, 500, n, data, n)); }, all},
        {"memory stream",
         [&](int32_t n) {
             const Stream stream(kovra_stream_new_mem(INT64_MAX, nullptr));
             EXPECT_EQ(kovra_stream_writen(stream.get(), data, 1000, nullptr, nullptr), 1);
             return kovra_stream_writen(stream.get(), data, n, nullptr, nullptr) == 1;
         },
         all},
        {"blob of a string",
         [&](int32_t n) {
             return over_string(n,
                                [](auto *string) { return Blob(kovra_asn1_octetstring_getblob(string)) != nullptr; });
         },
         all},
        {"encoding",
         [&](int32_t n) {
             return over_string(n, [](auto *string) { return Blob(kovra_asn1_mem_encode(4, string)) != nullptr; });
         },
         all},
        {"copy",
         [&](int32_t n) {
             return over_string(n, [&](auto *string) { return released(4, kovra_asn1_dupobject(4, string, nullptr)); });
         },
         all},
        {"text of an object identifier",
         [&](int32_t n) {
             core::Arena *arena = over_pages(pages, static_cast<uint32_t>(n), &core::ObjectIdentifier::octets);
             const bool made = kovra_asn1_oid_getstring(arena->root) != nullptr;
             core::Arena::destroy(arena);
             return made;
         },
         twice},
    };
    // Where the octets, with a header, two, four or eight thirds for each, come to what 32 bits hold; the text of
    // 0x3FFFFFFA would be nothing when it is rounded up.
    for (const int32_t n : {0x20000000, 0x3FFFFFF9, 0x3FFFFFFA, 0x3FFFFFFB, 0x3FFFFFFF, 0x40000000, 0x5FFFFFFD,
                            0x60000000, 0x7FFFFFF0, 0x7FFFFFF7, 0x7FFFFFF8, 0x7FFFFFFE, 0x7FFFFFFF})
        for (const auto &[what, call, needed] : calls) {
            const int64_t before = live_blocks();
            {
                const SmallMemory small(little);
                EXPECT_FALSE(call(n)) << what << " " << n;
                const size_t wanted = SmallMemory::largest_wanted();
                EXPECT_TRUE(wanted <= little || wanted == too_large || wanted >= needed(static_cast<uint64_t>(n)))
                    << what << " " << n << " asked for " << wanted;
            }
            EXPECT_EQ(live_blocks(), before) << what << " " << n;
        }
}

#endif

} // namespace
} // namespace kovra::test
