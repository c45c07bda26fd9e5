// Owners of what the libraries give, and how they are read and filled.
#pragma once

#include <cstdint>
#include <string>

#include "base/owners.hpp"

namespace kovra::tool {

using Context = Errors;

// A size as the library takes it; 0, for which it has nothing, for one that it does not take.
constexpr int32_t library_size(size_t size) {
    return size <= INT32_MAX ? static_cast<int32_t>(size) : 0;
}

inline std::string to_string(const kovra_data_blob *blob) {
    const auto *octets = reinterpret_cast<const char *>(kovra_data_blob_getdata(blob));
    return octets == nullptr ? std::string()
                             : std::string(octets, static_cast<size_t>(kovra_data_blob_getlength(blob)));
}

} // namespace kovra::tool
