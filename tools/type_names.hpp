// Names of the type identifiers.
#pragma once

#include <cstdint>
#include <string_view>

#include "text.hpp"

namespace kovra::tool {

// The name that `types` lists; empty for a number that is no type.
Harmless type_name(uint32_t type);

// The type of a name, in either case and with hyphens or underscores, or of a decimal number; KOVRA_ASN1_TYPE_COUNT
// when there is none such.
uint32_t find_type(std::string_view text);

} // namespace kovra::tool
