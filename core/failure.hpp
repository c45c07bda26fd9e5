// Reporting what went wrong, and where: an entry in the caller's chain.
#pragma once

#include <cstdint>

#include "core/codes.hpp"
#include "kovra/util_error.h"

namespace kovra::asn1 {

// Result of an operation that can fail: 1, or 0, or a stream's own result passed up unchanged.
using Result = int32_t;
inline constexpr Result success = 1;
inline constexpr Result failure = 0;

// Where an entry comes from. Each module has a `here()` that names it and takes the line of its call.
struct Site {
    const char *source;
    int32_t line;
};

// Reports a code with the text that belongs to it: the codec's, or the companion's for general and stream codes.
[[gnu::cold]] void report(kovra_err_ctx *ctx, Site site, int32_t code);

// Reports a code with the text that the companion's general lookup gives for it, whatever the code.
[[gnu::cold]] void report_general(kovra_err_ctx *ctx, Site site, int32_t code);

} // namespace kovra::asn1
