// Allocations that fail, and lengths that are only announced.
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
#include <sys/resource.h>
#endif

#include <functional>

#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {
namespace {

// Decodes, and copies the value in all ways there are; whether everything succeeded.
bool decode_and_copy(uint32_t type, const std::string &data, Feed feed) {
    Input input(data, feed);
    Errors ctx(kovra_err_ctx_new());
    if (input.stream() == nullptr || ctx == nullptr)
        return false;
    kovra_asn1_value *out = nullptr;
    int32_t result = kovra_asn1_decode(input.stream(), type, &out, nullptr, ctx.get());
    Value value(type, out);
    if (result != 1) {
        EXPECT_EQ(out, nullptr);
        if (ScarceMemory::has_failed()) {
            EXPECT_EQ(Codes(ctx.get()).empty() ? 0 : Codes(ctx.get())[0], 0x10000) << type << ": " << hex(data);
        }
        return false;
    }
    if (type == 0 || type == 5)
        return true;
    Blob encoding(kovra_asn1_mem_encode(type, value.get()));
    Value copy(type, kovra_asn1_dupobject(type, value.get(), nullptr));
    Value element(23, kovra_asn1_objecttoany(type, value.get()));
    kovra_asn1_value *whole = nullptr;
    bool again = element && kovra_asn1_any_toobject(element.get(), type, &whole, ctx.get()) == 1;
    Value back(type, whole);
    EXPECT_EQ(again, static_cast<bool>(back));
    bool is_marker = type == 23 && kovra_asn1_any_iseoc(value.get()) == 1;
    return encoding != nullptr && copy && ((element && again) || is_marker || type == 90 || type == 25 || type == 27);
}

TEST(Memory, EveryAllocationOfDecodingAndEncodingMayFail) {
    for (const auto &row : table("decodings.txt")) {
        auto type = static_cast<uint32_t>(std::stoul(row[0]));
        std::string data = octets(row[1]);
        SCOPED_TRACE("type " + row[0] + ": " + row[1]);
        for (Feed feed : {Feed::memory, Feed::trickle}) {
            bool is_good = row[2] != "-";
            fail_each_allocation([&] { return decode_and_copy(type, data, feed) || !is_good; });
            if (testing::Test::HasFatalFailure())
                return;
        }
    }
}

TEST(Memory, EveryAllocationOfConstructorsAndAccessorsMayFail) {
    auto made = [](uint32_t type, kovra_asn1_value *value) { return static_cast<bool>(Value(type, value)); };
    Value integer = decoded(2, "02 09 01 02 03 04 05 06 07 08 09"), bits = decoded(3, "03 02 04 F0");
    Value string = decoded(4, "24 80 04 03 02 01 05 00 00"), time = decoded(22, "18 0B 32303132313132303038 5A");
    Value under_tag = decoded(23, "A0 03 02 01 05"), list = decoded(24, "30 04 05 00 05 00");
    BigInteger number(kovra_asn1_integer_getbigintger(integer.get()));
    BitSet set(kovra_asn1_bitstring_getbitset(bits.get()));
    std::unique_ptr<kovra_time, Releaser<kovra_time_free>> moment(kovra_asn1_time_getutctime(time.get()));
    const int32_t positions[] = {3, 70};
    const std::string large = noise(100000);
    Input file(large, Feed::trickle);
    auto object = [&](auto get, const Value &holder) {
        kovra_asn1_value *out = nullptr;
        return get(holder.get(), 2, &out, nullptr) == 1 && made(2, out);
    };
    const std::function<bool()> actions[] = {
        [&] { return made(1, kovra_asn1_boolean_true()) && made(1, kovra_asn1_boolean_false()); },
        [&] { return made(2, kovra_asn1_integer_value(-70000)); },
        [&] { return made(2, kovra_asn1_integer_new(large.data(), 300)); },
        [&] { return made(2, kovra_asn1_unsigned_integer_new("\xFF", 1)); },
        [&] { return made(2, kovra_asn1_integer_newbigint(number.get())); },
        [&] { return BigInteger(kovra_asn1_integer_getbigintger(integer.get())) != nullptr; },
        [&] { return made(3, kovra_asn1_bitstring_new(3, large.data(), size_of(large))); },
        [&] { return made(3, kovra_asn1_bitstring_newbits(positions, 2)); },
        [&] { return made(3, kovra_asn1_bitstring_newbitset(set.get())); },
        [&] { return BitSet(kovra_asn1_bitstring_getbitset(bits.get())) != nullptr; },
        [&] { return made(4, kovra_asn1_octetstring_new(large.data(), size_of(large))); },
        [&] { return made(4, kovra_asn1_octetstring_newstream(file.stream())); },
        [&] { return Blob(kovra_asn1_octetstring_getblob(string.get())) != nullptr; },
        [&] { return object(kovra_asn1_octetstring_getobject, string); },
        [&] { return made(6, kovra_asn1_oid_new("1.2.840.113549.1.1.11")); },
        [&] { return made(90, kovra_asn1_relative_oid_new("5.300")); },
        [&] { return made(20, kovra_asn1_time_new(2060, 1, 1, 0, 0, 0, 5)); },
        [&] { return made(21, kovra_asn1_utctime_new(2012, 1, 1, 0, 0, 0)); },
        [&] { return made(22, kovra_asn1_time_newutctime(moment.get(), 0x11)); },
        [&] {
            return std::unique_ptr<kovra_time, Releaser<kovra_time_free>>(kovra_asn1_time_getutctime(time.get())) !=
                   nullptr;
        },
        [&] { return made(23, kovra_asn1_any_new(0x80, 1, 500, size_of(large), large.data(), size_of(large))); },
        [&] { return object(kovra_asn1_any_getobject, under_tag); },
        [&] { return !object(kovra_asn1_any_contenttoobject, under_tag); },
        [&] {
            Value many(24, kovra_asn1_list_new());
            for (int i = 0; many && i < 200; ++i) {
                Value element(23, kovra_asn1_any_new(0, 1, 5, 0, nullptr, 0));
                if (!element || kovra_asn1_list_put(many.get(), element.get()) != 1)
                    return false; // the element is still ours
                element.release();
            }
            return static_cast<bool>(many);
        },
        [&] {
            kovra_asn1_value *element = nullptr;
            return kovra_asn1_list_get(list.get(), 1, &element) == 1 && element != nullptr;
        },
        [&] {
            Stream out(kovra_stream_new_mem(0, nullptr));
            return kovra_asn1_encode_octetstring_init(out.get()) == 1 &&
                   kovra_asn1_encode_octetstring_update(out.get(), large.data(), size_of(large)) == 1 &&
                   kovra_asn1_encode_octetstring_end(out.get()) == 1 &&
                   kovra_asn1_encode_content(out.get(), 3, bits.get(), -1, nullptr, nullptr) == 1;
        },
        [&] {
            Input in(octets("24 80 04 01 41 00 00 23 03 03 01 00 A0 80 00 00"));
            Stream content(kovra_stream_new_mem(0, nullptr));
            kovra_asn1_value *values[3] = {};
            bool done =
                kovra_asn1_decode_octetstring_ex(in.stream(), content.get(), &values[0], nullptr, nullptr) == 1 &&
                kovra_asn1_decode_bitstring_ex(in.stream(), content.get(), &values[1], nullptr, nullptr) == 1 &&
                kovra_asn1_decode_any_ex(in.stream(), content.get(), &values[2], nullptr, nullptr) == 1;
            kovra_asn1_value_free(4, values[0]);
            kovra_asn1_value_free(3, values[1]);
            kovra_asn1_value_free(23, values[2]);
            return done;
        },
    };
    int index = 0;
    for (const auto &action : actions) {
        SCOPED_TRACE(index++);
        fail_each_allocation(action);
    }
}

// Six octets that announce 2 GiB fail because the octets are missing, also where there is no room for them.
TEST(Memory, AnnouncedLengthsAllocateNothing) {
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
    rlimit usual = {};
    ASSERT_EQ(getrlimit(RLIMIT_AS, &usual), 0);
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    rlimit tight = usual;
    tight.rlim_cur = static_cast<rlim_t>(pages) * 4096 + (16u << 20);
    ASSERT_EQ(setrlimit(RLIMIT_AS, &tight), 0);
#endif
    for (int tag = 1; tag < 31; ++tag) {
        for (int bits : {0x00, 0x20, 0x80, 0xA0}) {
            std::string data = std::string(1, static_cast<char>(tag | bits)) + octets("84 7F FF FF FF 00");
            for (uint32_t type : {1u, 2u, 3u, 4u, 6u, 7u, 9u, 14u, 19u, 20u, 21u, 22u, 23u, 24u, 25u, 26u, 27u, 90u}) {
                for (Feed feed : {Feed::memory, Feed::trickle}) {
                    Codes codes = decode(type, data, feed).codes;
                    ASSERT_FALSE(codes.empty());
                    EXPECT_NE(codes[0], 0x10000) << type << ": " << hex(data);
                }
            }
        }
    }
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
    setrlimit(RLIMIT_AS, &usual);
#endif
}

} // namespace
} // namespace kovra::test
