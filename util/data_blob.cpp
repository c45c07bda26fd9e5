#include "base/handle.hpp"
#include "kovra/util_memory.h"

using namespace kovra;

// The octets follow the record in the same block.
struct kovra_data_blob {
    static constexpr uint32_t magic_of_type = magic_word("BLOB");
    uint32_t magic;
    int32_t length;
};

kovra_data_blob *kovra_data_blob_new(const void *data, int32_t length) noexcept {
    if (length < 0 || (data == nullptr && length > 0))
        return nullptr;
    const auto size = static_cast<size_t>(length);
    auto *blob = make_record<kovra_data_blob>("UTIL_Memory", size);
    if (blob == nullptr)
        return nullptr;
    blob->length = length;
    if (size > 0)
        std::memcpy(blob + 1, data, size);
    return blob;
}

const uint8_t *kovra_data_blob_getdata(const kovra_data_blob *blob) noexcept {
    return is_valid(blob) ? reinterpret_cast<const uint8_t *>(blob + 1) : nullptr;
}

int32_t kovra_data_blob_getlength(const kovra_data_blob *blob) noexcept {
    return is_valid(blob) ? blob->length : 0;
}

void kovra_data_blob_free(kovra_data_blob *blob) noexcept {
    if (is_valid(blob))
        release_record(blob);
}
