// Every size from which on the libraries or the tool go another way: first capacities, buffers, how many at once.
//
// In a tight build all of them are as small as they can be, so that the smallest input takes every way and meets the
// border between two ways; nothing that a caller can see depends on them, unless a comment at the threshold says so.
// Tests that count with the real sizes ask `is_tight`.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kovra {

#ifdef KOVRA_TIGHT
inline constexpr bool is_tight = true;
#else
inline constexpr bool is_tight = false;
#endif

template <class T> constexpr T threshold(T real, T tight) {
    return is_tight ? tight : real;
}

// The capacity that follows one that is used up: `more` above it; in a tight build 1 above it as long as it is small.
constexpr size_t next_capacity(size_t capacity, size_t more) {
    constexpr size_t small = threshold<size_t>(0, 64);
    if (capacity < small)
        more = 1;
    return more < SIZE_MAX - capacity ? capacity + more : SIZE_MAX;
}

} // namespace kovra
