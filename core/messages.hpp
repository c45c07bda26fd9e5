// The texts of the codec's codes.
#pragma once

#include <cstdint>

namespace kovra::asn1 {

// The text of a codec code; the empty text for any other number.
const char *message(int32_t error);

} // namespace kovra::asn1
