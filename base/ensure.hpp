// What the libraries' own reasoning rests on. A tight build ends where it does not hold; others do not look.
#pragma once

#include <cstdlib>

#include "base/thresholds.hpp"

namespace kovra {

inline void ensure([[maybe_unused]] bool holds) {
    if constexpr (is_tight)
        if (!holds)
            std::abort();
}

} // namespace kovra
