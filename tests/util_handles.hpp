// What the tests of both libraries share: octets of handles, and test data.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <string_view>

#include "base/owners.hpp"

namespace kovra::test {

inline std::string text_of(const kovra_data_blob *blob) {
    return {reinterpret_cast<const char *>(kovra_data_blob_getdata(blob)),
            static_cast<size_t>(kovra_data_blob_getlength(blob))};
}

inline int32_t size_of(const std::string &octets) {
    return static_cast<int32_t>(octets.size());
}

// A copy that ends where its memory ends, so that reading behind it shows.
class Exact {
public:
    explicit Exact(std::string_view octets) : copy_(new char[octets.size()]), size_(octets.size()) {
        std::copy(octets.begin(), octets.end(), copy_.get());
    }
    [[nodiscard]] const char *begin() const { return copy_.get(); }
    [[nodiscard]] int32_t length() const { return static_cast<int32_t>(size_); }

private:
    std::unique_ptr<char[]> copy_;
    size_t size_;
};

// Octets without a pattern, always the same for a size.
inline std::string noise(size_t size) {
    std::mt19937 random(static_cast<uint32_t>(size));
    std::string octets(size, '\0');
    for (char &octet : octets)
        octet = static_cast<char>(random());
    return octets;
}

} // namespace kovra::test
