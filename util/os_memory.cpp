#include "util/os_memory.hpp"

#if defined(__linux__)
#include <sys/mman.h>

#include <cstdint>

#include "base/thresholds.hpp"
#endif

namespace kovra::util {

void use_large_pages([[maybe_unused]] void *memory, [[maybe_unused]] size_t size) {
#if defined(__linux__)
    constexpr auto large_page = threshold<size_t>(2 * 1024 * 1024, 4096);
    const size_t before = (0 - reinterpret_cast<uintptr_t>(memory)) % large_page;
    if (size >= before + large_page)
        madvise(static_cast<uint8_t *>(memory) + before, (size - before) / large_page * large_page, MADV_HUGEPAGE);
#endif
}

} // namespace kovra::util
