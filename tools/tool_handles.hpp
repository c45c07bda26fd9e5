// Owners of what the libraries give.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "kovra/asn1_codec.h"
#include "kovra/util.h"

namespace kovra::tool {

template <class T, void (*release)(T *)> struct Release {
    void operator()(T *handle) const { release(handle); }
};
using Blob = std::unique_ptr<kovra_data_blob, Release<kovra_data_blob, kovra_data_blob_free>>;
using Context = std::unique_ptr<kovra_err_ctx, Release<kovra_err_ctx, kovra_err_ctx_free>>;
using Stream = std::unique_ptr<kovra_stream, Release<kovra_stream, kovra_stream_free>>;
using Time = std::unique_ptr<kovra_time, Release<kovra_time, kovra_time_free>>;

class Value {
public:
    explicit Value(uint32_t type) : type_(type) {}
    Value(const Value &) = delete;
    Value &operator=(const Value &) = delete;
    ~Value() { kovra_asn1_value_free(type_, handle_); }

    [[nodiscard]] kovra_asn1_value *get() const { return handle_; }
    kovra_asn1_value **place() { return &handle_; }

private:
    uint32_t type_;
    kovra_asn1_value *handle_ = nullptr;
};

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
