// Finding the items of JSON containers; long ones get an index, made when first asked for.
#pragma once

#include "util/json_document.hpp"

namespace kovra::util {

// The item of a number below the container's count.
const kovra_json *item_at(Container &container, uint32_t number);
// The last member of a name; null when there is none.
const kovra_json *last_member(Container &object, const char *name);

} // namespace kovra::util
