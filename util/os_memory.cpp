#include "util/os_memory.hpp"

#if defined(__linux__)
#include <sys/mman.h>

#include <cstdint>
#endif

namespace kovra::util {

void use_large_pages([[maybe_unused]] void *memory, [[maybe_unused]] size_t size) {
#if defined(__linux__)
    constexpr uintptr_t large_page = uintptr_t{2} * 1024 * 1024;
    const auto begin = (reinterpret_cast<uintptr_t>(memory) + large_page - 1) & ~(large_page - 1);
    const auto end = (reinterpret_cast<uintptr_t>(memory) + size) & ~(large_page - 1);
    if (begin < end)
        madvise(reinterpret_cast<void *>(begin), end - begin, MADV_HUGEPAGE);
#endif
}

} // namespace kovra::util
