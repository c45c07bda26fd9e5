// The allocator of the tests: it stands in for the libraries' own, counts what is alive and fails on demand.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>

namespace kovra::test {

// Blocks that were allocated and not yet freed.
int64_t live_blocks();

// What this thread asked for: octets in all, where growing counts as what is added, and the most it held at one time.
struct MemoryUse {
    int64_t allocated;
    int64_t peak;
};

// Counts from its beginning.
class MemoryMeter {
public:
    MemoryMeter();
    [[nodiscard]] MemoryUse use() const;

private:
    int64_t allocated_;
    int64_t held_;
};

// False where the libraries cannot be given another allocator, which is so for a DLL.
bool is_memory_watched();

// While it lives, allocations of this thread fail from the one behind the first `good` on, or only that one.
class ScarceMemory {
public:
    explicit ScarceMemory(int64_t good, bool fails_once = false);
    ~ScarceMemory();
    ScarceMemory(const ScarceMemory &) = delete;
    ScarceMemory &operator=(const ScarceMemory &) = delete;
    static bool has_failed();
    // How many allocations there were.
    static int64_t asked();
};

// While it lives, this thread is given no block of more than `most` octets, however much there is: what needs a huge
// one can be seen to ask for it, or not to ask.
class SmallMemory {
public:
    explicit SmallMemory(size_t most);
    ~SmallMemory();
    SmallMemory(const SmallMemory &) = delete;
    SmallMemory &operator=(const SmallMemory &) = delete;
    // The octets of the largest block that was asked for, given or not.
    static size_t largest_wanted();
};

// Runs `action` with room for no allocation, one, two ... until it needs no more; each run must leave nothing behind.
// `action` returns whether it succeeded, which it must as soon as nothing fails.
template <class Action> void fail_each_allocation(Action action, bool fails_once = false) {
    if (!is_memory_watched())
        return;
    for (int64_t good = 0;; ++good) {
        const int64_t before = live_blocks();
        bool is_done = false;
        bool has_failed = false;
        {
            const ScarceMemory scarce(good, fails_once);
            is_done = action();
            has_failed = ScarceMemory::has_failed();
        }
        ASSERT_EQ(live_blocks(), before) << "leak with room for " << good << " allocations";
        if (!has_failed) {
            ASSERT_TRUE(is_done);
            return;
        }
    }
}

} // namespace kovra::test
