// Allocations of constructors that fail; what is made of values is for the harness.
#include <functional>

#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {
namespace {

TEST(Memory, EveryAllocationOfConstructorsAndAccessorsMayFail) {
    auto made = [](uint32_t type, kovra_asn1_value *value) { return static_cast<bool>(Value(type, value)); };
    Value integer = decoded(2, "02 09 01 02 03 04 05 06 07 08 09"), bits = decoded(3, "03 02 04 F0");
    Value time = decoded(22, "18 0B 32303132313132303038 5A");
    BigInteger number(kovra_asn1_integer_getbigintger(integer.get()));
    BitSet set(kovra_asn1_bitstring_getbitset(bits.get()));
    Time moment(kovra_asn1_time_getutctime(time.get()));
    const int32_t positions[] = {3, 70};
    const std::string large = noise(100000);
    Input file(large, Feed::trickle);
    const std::function<bool()> actions[] = {
        [&] { return made(1, kovra_asn1_boolean_true()) && made(1, kovra_asn1_boolean_false()); },
        [&] { return made(2, kovra_asn1_integer_value(-70000)); },
        [&] { return made(2, kovra_asn1_integer_new(large.data(), 300)); },
        [&] { return made(2, kovra_asn1_unsigned_integer_new("\xFF", 1)); },
        [&] { return made(2, kovra_asn1_integer_newbigint(number.get())); },
        [&] { return made(3, kovra_asn1_bitstring_new(3, large.data(), size_of(large))); },
        [&] { return made(3, kovra_asn1_bitstring_newbits(positions, 2)); },
        [&] { return made(3, kovra_asn1_bitstring_newbitset(set.get())); },
        [&] { return made(4, kovra_asn1_octetstring_new(large.data(), size_of(large))); },
        [&] { return made(4, kovra_asn1_octetstring_newstream(file.stream())); },
        [&] { return made(6, kovra_asn1_oid_new("1.2.840.113549.1.1.11")); },
        [&] { return made(90, kovra_asn1_relative_oid_new("5.300")); },
        [&] { return made(20, kovra_asn1_time_new(2060, 1, 1, 0, 0, 0, 5)); },
        [&] { return made(21, kovra_asn1_utctime_new(2012, 1, 1, 0, 0, 0)); },
        [&] { return made(22, kovra_asn1_time_newutctime(moment.get(), 0x11)); },
        [&] { return made(23, kovra_asn1_any_new(0x80, 1, 500, size_of(large), large.data(), size_of(large))); },
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
