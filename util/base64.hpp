// Base64 written into room that the caller has.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kovra::util {

// Characters of the base64 text of that many octets; with a line length above 0 each line ends with a line feed.
// `too_large` when they are too many.
size_t base64_length(size_t octets, size_t line_length);

// Writes exactly base64_length characters and gives the place behind them.
char *write_base64(char *to, const uint8_t *octets, size_t count, size_t line_length);

} // namespace kovra::util
