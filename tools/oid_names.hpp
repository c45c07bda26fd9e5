// Names of the object identifiers that are usual in public-key infrastructure.
#pragma once

#include <string_view>

#include "text.hpp"

namespace kovra::tool {

// The name of a dotted identifier; empty when it is not a usual one.
Harmless oid_name(std::string_view dotted);

} // namespace kovra::tool
