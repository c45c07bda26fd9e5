// The allocator stands alone in its file: a program that defines these three names replaces it, in the static library
// too, and no compiler can have inlined it elsewhere.
#include <cstdlib>

#include "kovra/util_memory.h"

void *kovra_malloc(size_t size, const char * /*source*/, int32_t /*line*/) noexcept {
    return std::malloc(size == 0 ? 1 : size);
}

void *kovra_realloc(void *memory, size_t size, const char * /*source*/, int32_t /*line*/) noexcept {
    return std::realloc(memory, size == 0 ? 1 : size);
}

void kovra_free(void *memory) noexcept {
    std::free(memory);
}
