#include "tests/failing_memory.hpp"

#include <atomic>
#include <cstdlib>

#include "kovra/util_memory.h"

namespace {

std::atomic<int64_t> live = 0;
thread_local int64_t room = INT64_MAX;
thread_local bool failed = false;
thread_local bool once = false;

#ifndef _WIN32
bool is_refused() {
    if (room == INT64_MAX || room-- > 0)
        return false;
    room = once ? INT64_MAX : 0;
    return failed = true;
}
#endif

} // namespace

#ifndef _WIN32

extern "C" void *kovra_malloc(size_t size, const char * /*source*/, int32_t /*line*/) noexcept {
    if (is_refused())
        return nullptr;
    ++live;
    return std::malloc(size == 0 ? 1 : size);
}

extern "C" void *kovra_realloc(void *memory, size_t size, const char * /*source*/, int32_t /*line*/) noexcept {
    if (is_refused())
        return nullptr;
    live += memory == nullptr ? 1 : 0;
    return std::realloc(memory, size == 0 ? 1 : size);
}

extern "C" void kovra_free(void *memory) noexcept {
    live -= memory != nullptr ? 1 : 0;
    std::free(memory);
}

#endif

namespace kovra::test {

int64_t live_blocks() {
    return live;
}

bool is_memory_watched() {
#ifdef _WIN32
    return false;
#else
    return true;
#endif
}

ScarceMemory::ScarceMemory(int64_t good, bool fails_once) {
    room = good;
    once = fails_once;
    failed = false;
}

ScarceMemory::~ScarceMemory() {
    room = INT64_MAX;
}

bool ScarceMemory::has_failed() {
    return failed;
}

} // namespace kovra::test
