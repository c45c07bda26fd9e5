#include "fuzz/draw.hpp"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace kovra::fuzz {

void check(bool holds, const char *what, const char *file, int line) {
    if (holds)
        return;
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, what);
    std::abort();
}

Exact::Exact(std::string_view octets) : copy_(new char[octets.size()]), size_(octets.size()) {
    if (size_ != 0)
        std::memcpy(copy_.get(), octets.data(), size_);
}

} // namespace kovra::fuzz
