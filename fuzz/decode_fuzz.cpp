// Decoding any type: the first octet chooses it. Memory and a stream of single octets show the same, what was accepted
// is written and read again, memory that fails leaves nothing behind, and none is taken in advance.
#include "fuzz/fuzzing.hpp"
#include "fuzz/memory.hpp"

namespace kovra::fuzz {

namespace {

// More would be memory for octets that have not come: an element of two octets takes a record, a longer one less.
constexpr int64_t most_memory(size_t octets) {
    return 128 * static_cast<int64_t>(octets) + 65536;
}

void check_round_trip(const Decoded &decoded, uint32_t type) {
    const std::string first = encode(type, decoded.value.get());
    Value again(type, nullptr);
    check(kovra_asn1_mem_decode(first.data(), size_of(first), type, again.place()) == size_of(first),
          "what was encoded is decoded, all of it");
    check(encode(type, again.get()) == first, "what was encoded is encoded so again");
    const Value copy(type, kovra_asn1_dupobject(type, decoded.value.get(), nullptr));
    check(copy.get() != nullptr && encode(type, copy.get()) == first, "a copy is encoded like its original");
}

// One allocation of a decode fails, another one for each input.
void check_failing_memory(const Exact &octets, uint32_t type, int64_t count) {
    const int64_t before = live_blocks();
    const Stream stream(kovra_stream_new_romem(octets.data(), octets.length(), 0, nullptr));
    const int64_t held = live_blocks();
    int64_t sum = 0;
    for (const char octet : octets.view())
        sum += static_cast<uint8_t>(octet);
    fail_allocation(sum % (count + 1), sum % 2 == 0);
    kovra_asn1_value *value = nullptr;
    const int32_t result = kovra_asn1_decode(stream.get(), type, &value, nullptr, nullptr);
    fail_no_allocation();
    check(result == 1 || value == nullptr, "nothing comes out of a failure");
    kovra_asn1_value_free(type, value);
    check(live_blocks() == held && held > before, "a decode that fails leaves nothing behind");
}

void run(Draw input) {
    const uint32_t type = input.octet() % KOVRA_ASN1_TYPE_COUNT;
    const Exact octets(input.rest());
    const Decoded memory = decode_from_memory(octets, type);
    check(peak_octets() <= most_memory(octets.size()), "memory is no more than the octets ask for");
    const int64_t count = allocations();
    const Decoded trickle = decode_from_trickle(octets, type);
    check(memory.result == trickle.result, "streams of either kind have the same result");
    check(memory.entries == trickle.entries, "streams of either kind leave the same entries");
    // What keeps its octets gathers them before it looks at them.
    check(memory.taken == trickle.taken || (memory.result != 1 && memory.taken < trickle.taken),
          "streams of either kind are read as far");
    if (memory.result == 1 && has_record(type)) {
        if (comes_back(type))
            check_round_trip(memory, type);
        check(encode(type, memory.value.get()) == encode(type, trickle.value.get()),
              "values from streams of either kind are encoded alike");
    }
    check_failing_memory(octets, type, count);
}

} // namespace

size_t elements_begin(const uint8_t * /*data*/, size_t /*size*/) {
    return 1;
}

} // namespace kovra::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    kovra::fuzz::begin_memory(int64_t{1} << 30);
    kovra::fuzz::run({data, size});
    kovra::fuzz::end_memory();
    return 0;
}
