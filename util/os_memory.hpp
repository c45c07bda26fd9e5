// What an operating system can be told about memory.
#pragma once

#include <cstddef>

namespace kovra::util {

// The memory, which comes from kovra_malloc, will soon be used from its begin to its end: it may be given in large
// pages, which takes less time than in small ones. Of use for several megabytes; does nothing where there is no way.
void use_large_pages(void *memory, size_t size);

} // namespace kovra::util
