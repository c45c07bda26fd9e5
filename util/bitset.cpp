#include "kovra/util_bitset.h"

#include <algorithm>

#include "base/handle.hpp"
#include "base/thresholds.hpp"

using namespace kovra;

struct kovra_bitset {
    static constexpr uint32_t magic_of_type = magic_word("BITS");
    uint32_t magic;
    int32_t size;    // in bits; the bits behind it in the last octet are 0
    size_t capacity; // in octets
    uint8_t *octets;
};

namespace kovra::util {
namespace {

constexpr const char *module = "UTIL_BitSet";
constexpr auto smallest_capacity = threshold<size_t>(16, 1);

size_t octets_for(int32_t bits) {
    return (static_cast<size_t>(bits) + 7) / 8;
}

uint8_t mask_of(int32_t bit) {
    return static_cast<uint8_t>(0x80 >> (bit % 8));
}

bool reserve(kovra_bitset &set, size_t needed) {
    if (needed <= set.capacity)
        return true;
    const size_t capacity = std::max({needed, next_capacity(set.capacity, set.capacity), smallest_capacity});
    void *grown = kovra_realloc(set.octets, capacity, module, __LINE__);
    if (grown == nullptr)
        return false;
    set.octets = static_cast<uint8_t *>(grown);
    std::memset(set.octets + set.capacity, 0, capacity - set.capacity);
    set.capacity = capacity;
    return true;
}

// Makes the bit part of the set, with all before it. Octets behind the size are 0 already.
bool cover(kovra_bitset *set, int32_t bit) {
    if (!is_valid(set) || bit < 0 || bit == INT32_MAX)
        return false;
    if (bit >= set->size) {
        if (!reserve(*set, octets_for(bit + 1)))
            return false;
        set->size = bit + 1;
    }
    return true;
}

} // namespace
} // namespace kovra::util

using namespace kovra::util;

kovra_bitset *kovra_bitset_empty() noexcept {
    return make_record<kovra_bitset>(module);
}

kovra_bitset *kovra_bitset_new(int32_t unused_bits, const void *data, int32_t length) noexcept {
    if (length < 0 || (data == nullptr && length > 0) || unused_bits < 0 || unused_bits > 7 ||
        (length == 0 && unused_bits > 0))
        return nullptr;
    const int64_t bits = int64_t{length} * 8 - unused_bits;
    if (bits > INT32_MAX)
        return nullptr;
    kovra_bitset *set = kovra_bitset_empty();
    if (set == nullptr || length == 0)
        return set;
    const auto octets = static_cast<size_t>(length);
    if (!reserve(*set, octets)) {
        release_record(set);
        return nullptr;
    }
    std::memcpy(set->octets, data, octets);
    set->octets[octets - 1] = static_cast<uint8_t>(set->octets[octets - 1] & (0xFF << unused_bits));
    set->size = static_cast<int32_t>(bits);
    return set;
}

int32_t kovra_bitset_set(kovra_bitset *set, int32_t bit) noexcept {
    if (!cover(set, bit))
        return 0;
    set->octets[bit / 8] |= mask_of(bit);
    return 1;
}

int32_t kovra_bitset_clear(kovra_bitset *set, int32_t bit) noexcept {
    if (!cover(set, bit))
        return 0;
    set->octets[bit / 8] &= static_cast<uint8_t>(~mask_of(bit));
    return 1;
}

int32_t kovra_bitset_test(const kovra_bitset *set, int32_t bit) noexcept {
    if (!is_valid(set) || bit < 0 || bit >= set->size)
        return 0;
    return (set->octets[bit / 8] & mask_of(bit)) != 0 ? 1 : 0;
}

int32_t kovra_bitset_getsize(const kovra_bitset *set) noexcept {
    return is_valid(set) ? set->size : 0;
}

kovra_data_blob *kovra_bitset_getdata(const kovra_bitset *set, int32_t *out_unused_bits) noexcept {
    if (out_unused_bits != nullptr)
        *out_unused_bits = 0;
    if (!is_valid(set))
        return nullptr;
    const size_t octets = octets_for(set->size);
    kovra_data_blob *blob = kovra_data_blob_new(set->octets, static_cast<int32_t>(octets));
    if (blob != nullptr && out_unused_bits != nullptr)
        *out_unused_bits = static_cast<int32_t>(octets * 8 - static_cast<size_t>(set->size));
    return blob;
}

void kovra_bitset_free(kovra_bitset *set) noexcept {
    if (!is_valid(set))
        return;
    kovra_free(set->octets);
    release_record(set);
}
