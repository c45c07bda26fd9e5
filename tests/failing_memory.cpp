#include "tests/failing_memory.hpp"

#include <atomic>
#include <cstdlib>

#include "kovra/util_memory.h"

#ifndef _WIN32
#include <malloc.h>
#endif

namespace {

std::atomic<int64_t> live = 0;
thread_local int64_t room = INT64_MAX;
thread_local int64_t asked_for = 0; // while room is short
thread_local bool failed = false;
thread_local bool once = false;
thread_local size_t bound = SIZE_MAX;
thread_local size_t largest = 0;
thread_local int64_t allocated = 0;
thread_local int64_t held = 0;
thread_local int64_t peak = 0;

#ifndef _WIN32
bool is_refused(size_t size) {
    largest = size > largest ? size : largest;
    if (size > bound)
        return true;
    if (room == INT64_MAX)
        return false;
    ++asked_for;
    if (room-- > 0)
        return false;
    room = once ? INT64_MAX : 0;
    return failed = true;
}
#endif

#ifndef _WIN32

// Counts memory that was `before` octets large and has been changed; returns it.
void *counted(void *memory, size_t before) {
    const size_t now = memory != nullptr ? malloc_usable_size(memory) : 0;
    allocated += now > before ? static_cast<int64_t>(now - before) : 0;
    held += static_cast<int64_t>(now) - static_cast<int64_t>(before);
    peak = held > peak ? held : peak;
    return memory;
}

#endif

} // namespace

#ifndef _WIN32

extern "C" void *kovra_malloc(size_t size, const char * /*source*/, int32_t /*line*/) noexcept {
    if (is_refused(size))
        return nullptr;
    ++live;
    return counted(std::malloc(size == 0 ? 1 : size), 0);
}

extern "C" void *kovra_realloc(void *memory, size_t size, const char * /*source*/, int32_t /*line*/) noexcept {
    if (is_refused(size))
        return nullptr;
    live += memory == nullptr ? 1 : 0;
    const size_t before = memory != nullptr ? malloc_usable_size(memory) : 0;
    return counted(std::realloc(memory, size == 0 ? 1 : size), before);
}

extern "C" void kovra_free(void *memory) noexcept {
    live -= memory != nullptr ? 1 : 0;
    held -= memory != nullptr ? static_cast<int64_t>(malloc_usable_size(memory)) : 0;
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

MemoryMeter::MemoryMeter() : allocated_(allocated), held_(held) {
    peak = held;
}

MemoryUse MemoryMeter::use() const {
    return {allocated - allocated_, peak - held_};
}

ScarceMemory::ScarceMemory(int64_t good, bool fails_once) {
    room = good;
    once = fails_once;
    failed = false;
    asked_for = 0;
}

ScarceMemory::~ScarceMemory() {
    room = INT64_MAX;
}

bool ScarceMemory::has_failed() {
    return failed;
}

int64_t ScarceMemory::asked() {
    return asked_for;
}

SmallMemory::SmallMemory(size_t most) {
    bound = most;
    largest = 0;
}

SmallMemory::~SmallMemory() {
    bound = SIZE_MAX;
}

size_t SmallMemory::largest_wanted() {
    return largest;
}

} // namespace kovra::test
