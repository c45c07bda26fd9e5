#include "fuzz/memory.hpp"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>

#include "fuzz/draw.hpp"

namespace {

struct Account {
    int64_t limit = INT64_MAX;
    int64_t allocations = 0;
    int64_t blocks = 0;
    int64_t octets = 0;
    int64_t peak = 0;
    int64_t good = INT64_MAX; // allocations before the one that fails
    bool fails_once = false;
};
Account account;

bool is_refused(size_t size) {
    ++account.allocations;
    if (size > static_cast<uint64_t>(account.limit - account.octets))
        return true;
    if (account.good == INT64_MAX || account.good-- > 0)
        return false;
    account.good = account.fails_once ? INT64_MAX : 0;
    return true;
}

// What the account holds of a block; the limit counts what was asked for, where the two differ a little.
int64_t weight(void *memory) {
    return static_cast<int64_t>(malloc_usable_size(memory));
}

void *count_in(void *memory) {
    if (memory == nullptr)
        return nullptr;
    ++account.blocks;
    account.octets += weight(memory);
    account.peak = std::max(account.peak, account.octets);
    return memory;
}

void count_out(void *memory) {
    if (memory == nullptr)
        return;
    --account.blocks;
    account.octets -= weight(memory);
}

} // namespace

extern "C" void *kovra_malloc(size_t size, const char * /*source*/, int32_t /*line*/) noexcept {
    return is_refused(size) ? nullptr : count_in(std::malloc(std::max<size_t>(size, 1)));
}

extern "C" void *kovra_realloc(void *memory, size_t size, const char * /*source*/, int32_t /*line*/) noexcept {
    if (is_refused(size))
        return nullptr;
    count_out(memory);
    return count_in(std::realloc(memory, std::max<size_t>(size, 1)));
}

extern "C" void kovra_free(void *memory) noexcept {
    count_out(memory);
    std::free(memory);
}

namespace kovra::fuzz {

void begin_memory(int64_t limit) {
    account = {};
    account.limit = limit;
}

void end_memory() {
    check(account.blocks == 0, "whatever was allocated was freed");
}

int64_t allocations() {
    return account.allocations;
}

int64_t live_blocks() {
    return account.blocks;
}

int64_t peak_octets() {
    return account.peak;
}

void forget_peak() {
    account.peak = account.octets;
}

void fail_allocation(int64_t good, bool once) {
    account.good = good;
    account.fails_once = once;
}

void fail_no_allocation() {
    account.good = INT64_MAX;
}

} // namespace kovra::fuzz
