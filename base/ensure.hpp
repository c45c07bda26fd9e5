// Conditions that the libraries rely on and no caller can break. A tight build aborts where one does not hold; other
// builds do not check.
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
