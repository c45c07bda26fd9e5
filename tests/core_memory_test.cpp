// Allocations that fail, and lengths that are only announced.
#include <functional>

#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {
namespace {

TEST(Memory, EveryAllocationOfConstructorsAndAccessorsMayFail) {
    auto made = [](uint32_t type, kovra_asn1_value *value) { return static_cast<bool>(Value(type, value)); };
    Value integer = decoded(2, "02 09 01 02 03 04 05 06 07 08 09"), bits = decoded(3, "03 02 04 F0");
    Value string = decoded(4, "24 80 04 03 02 01 05 00 00"), time = decoded(22, "18 0B 32303132313132303038 5A");
    Value under_tag = decoded(23, "A0 03 02 01 05"), list = decoded(24, "30 04 05 00 05 00");
    Value long_list = decode(24, octets("30 50") + repeated(octets("05 00"), 40)).value;
    Errors errors(kovra_err_ctx_new());
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
            kovra_err_ctx_clear(errors.get());
            const bool is_done = out && kovra_asn1_encode(out.get(), 24, long_list.get(), nullptr, errors.get()) == 1;
            EXPECT_TRUE(is_done || !out || kovra_err_ctx_getcount(errors.get()) > 0) << "a failure without an entry";
            return is_done;
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

} // namespace
} // namespace kovra::test
