// Threads that each have values of their own do not meet, which the thread sanitizer watches.
#include <atomic>
#include <thread>

#include "tests/asn1_testing.hpp"
#include "tests/harness/samples.hpp"

namespace kovra::test {
namespace {

constexpr int thread_count = 8;

TEST(Threads, EachWithValuesOfItsOwn) {
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type)
        samples(type); // made before the threads begin
    std::atomic<int64_t> done = 0, failed = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < thread_count; ++i)
        threads.emplace_back([&, i] {
            for (uint32_t k = 0; k < KOVRA_ASN1_TYPE_COUNT; ++k) {
                // Some at the same type at a time, some at others.
                const uint32_t type = (k + 100 * static_cast<uint32_t>(i / 2)) % KOVRA_ASN1_TYPE_COUNT;
                for (const Sample &sample : samples(type)) {
                    const Errors ctx(kovra_err_ctx_new());
                    kovra_asn1_value *value = nullptr;
                    const int32_t read =
                        kovra_asn1_mem_decode(sample.octets.data(), size_of(sample.octets), type, &value);
                    if (value == nullptr)
                        continue;
                    const Value owner(type, value), copy(type, kovra_asn1_dupobject(type, value, ctx.get()));
                    const Blob once(kovra_asn1_mem_encode(type, value)), twice(kovra_asn1_mem_encode(type, copy.get()));
                    const bool alike = !copy || text_of(once.get()) == text_of(twice.get());
                    ++(read == size_of(sample.octets) && alike ? done : failed);
                    // What fails has texts.
                    Decoded refused = decode(type, sample.octets.substr(0, 1), Feed::trickle);
                    failed += refused.result == 1 ? 1 : 0;
                    kovra_json_free(kovra_asn1_tojson(sample.octets.data(), size_of(sample.octets)));
                }
            }
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(failed, 0);
    EXPECT_GT(done, thread_count * 1000);
}

} // namespace
} // namespace kovra::test
