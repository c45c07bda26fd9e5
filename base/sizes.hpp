// Sizes that are computed from other sizes: how much to allocate. What does not fit is `too_large`: every size
// computed from it is too large, too, and no allocator has that much.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kovra {

inline constexpr size_t too_large = SIZE_MAX;

constexpr size_t sum(size_t a, size_t b) {
    return b < too_large - a ? a + b : too_large;
}

template <class... More> constexpr size_t sum(size_t a, size_t b, size_t c, More... more) {
    return sum(sum(a, b), c, more...);
}

constexpr size_t product(size_t a, size_t b) {
    if (a == too_large || b == too_large)
        return too_large;
    return a == 0 || b <= too_large / a ? a * b : too_large;
}

// The next multiple of `step`, a power of two.
constexpr size_t rounded_up(size_t size, size_t step) {
    return size <= too_large - step ? (size + step - 1) & ~(step - 1) : too_large;
}

} // namespace kovra
