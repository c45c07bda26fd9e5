// Owning pointers to the companion's handles and memory, and test data.
#pragma once

#include <cstdint>
#include <memory>
#include <random>
#include <string>

#include "kovra/util.h"

namespace kovra::test {

template <auto release> struct Releaser {
    template <class T> void operator()(T *handle) const { release(handle); }
};

using Blob = std::unique_ptr<kovra_data_blob, Releaser<kovra_data_blob_free>>;
using Errors = std::unique_ptr<kovra_err_ctx, Releaser<kovra_err_ctx_free>>;
using Stream = std::unique_ptr<kovra_stream, Releaser<kovra_stream_free>>;
using BigInteger = std::unique_ptr<kovra_biginteger, Releaser<kovra_biginteger_free>>;
using BitSet = std::unique_ptr<kovra_bitset, Releaser<kovra_bitset_free>>;
template <class T> using Memory = std::unique_ptr<T, Releaser<kovra_free>>;

inline std::string text_of(const kovra_data_blob *blob) {
    return {reinterpret_cast<const char *>(kovra_data_blob_getdata(blob)),
            static_cast<size_t>(kovra_data_blob_getlength(blob))};
}

inline int32_t size_of(const std::string &octets) {
    return static_cast<int32_t>(octets.size());
}

// Octets without a pattern, always the same for a size.
inline std::string noise(size_t size) {
    std::mt19937 random(static_cast<uint32_t>(size));
    std::string octets(size, '\0');
    for (char &octet : octets)
        octet = static_cast<char>(random());
    return octets;
}

} // namespace kovra::test
