// Owners of what the libraries give: each releases what it holds when it ends.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "kovra/asn1_codec.h"
#include "kovra/asn1_decode.h"
#include "kovra/util.h"

namespace kovra {

template <auto release> struct Releaser {
    template <class T> void operator()(T *handle) const { release(handle); }
};

using AnyCtx = std::unique_ptr<kovra_asn1_decode_any_ctx, Releaser<kovra_asn1_decode_any_ctx_free>>;
using BigInteger = std::unique_ptr<kovra_biginteger, Releaser<kovra_biginteger_free>>;
using BitSet = std::unique_ptr<kovra_bitset, Releaser<kovra_bitset_free>>;
using Blob = std::unique_ptr<kovra_data_blob, Releaser<kovra_data_blob_free>>;
using Errors = std::unique_ptr<kovra_err_ctx, Releaser<kovra_err_ctx_free>>;
using Json = std::unique_ptr<kovra_json, Releaser<kovra_json_free>>;
using Stream = std::unique_ptr<kovra_stream, Releaser<kovra_stream_free>>;
using StringCtx = std::unique_ptr<kovra_asn1_decode_octetstring_ctx, Releaser<kovra_asn1_decode_octetstring_ctx_free>>;
using Text = std::unique_ptr<kovra_ustring, Releaser<kovra_ustring_free>>;
using Time = std::unique_ptr<kovra_time, Releaser<kovra_time_free>>;
template <class T> using Memory = std::unique_ptr<T, Releaser<kovra_free>>;

// A value and the type that it is released as.
class Value {
public:
    Value() = default;
    explicit Value(uint32_t type) : type_(type) {}
    Value(uint32_t type, kovra_asn1_value *handle) : type_(type), handle_(handle) {}
    Value(Value &&other) noexcept : type_(other.type_), handle_(other.release()) {}
    Value &operator=(Value &&other) noexcept {
        std::swap(type_, other.type_);
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~Value() { kovra_asn1_value_free(type_, handle_); }

    [[nodiscard]] kovra_asn1_value *get() const { return handle_; }
    [[nodiscard]] uint32_t type() const { return type_; }
    explicit operator bool() const { return handle_ != nullptr; }
    // Where a function stores a value; there is none before.
    kovra_asn1_value **place() { return &handle_; }
    kovra_asn1_value *release() { return std::exchange(handle_, nullptr); }

private:
    uint32_t type_ = 0;
    kovra_asn1_value *handle_ = nullptr;
};

} // namespace kovra
