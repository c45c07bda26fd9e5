// What printing and parsing JSON share.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "base/sizes.hpp"
#include "base/thresholds.hpp"
#include "kovra/util_memory.h"

namespace kovra::util {

// Items that are put behind one another; what does not fit for want of memory is dropped and remembered.
template <class Item> class GrowingArray {
    static_assert(std::is_trivially_copyable_v<Item>);

public:
    GrowingArray() = default;
    ~GrowingArray() { kovra_free(items_); }
    GrowingArray(const GrowingArray &) = delete;
    GrowingArray &operator=(const GrowingArray &) = delete;

    [[nodiscard]] bool is_complete() const { return !failed_; }
    [[nodiscard]] size_t size() const { return size_; }
    [[nodiscard]] const Item *data() const { return items_; }
    Item &last() { return items_[size_ - 1]; }

    bool push(const Item &item) {
        if (size_ == capacity_ && !grow(1))
            return false;
        items_[size_++] = item;
        return true;
    }
    void pop() { --size_; }
    void clear() { size_ = 0; }

    void put(const Item *items, size_t count) {
        if (count == 0 || (count > capacity_ - size_ && !grow(count)))
            return;
        std::memcpy(items_ + size_, items, count * sizeof(Item));
        size_ += count;
    }
    void fill(const Item &item, size_t count) {
        if (count > capacity_ - size_ && !grow(count))
            return;
        std::fill_n(items_ + size_, count, item);
        size_ += count;
    }

    // Hands the items over, for kovra_free.
    Item *release() {
        Item *items = items_;
        items_ = nullptr;
        size_ = capacity_ = 0;
        return items;
    }

private:
    bool grow(size_t more) {
        constexpr auto first_capacity = threshold<size_t>(256 / sizeof(Item), 1);
        const size_t capacity =
            std::max(next_capacity(capacity_, std::max(first_capacity, capacity_)), sum(size_, more));
        const size_t size = product(capacity, sizeof(Item));
        auto *grown = failed_ || size > PTRDIFF_MAX
                          ? nullptr
                          : static_cast<Item *>(kovra_realloc(items_, size, "UTIL_JSON", __LINE__));
        if (grown == nullptr) {
            failed_ = true;
            return false;
        }
        items_ = grown;
        capacity_ = capacity;
        return true;
    }

    Item *items_ = nullptr;
    size_t size_ = 0;
    size_t capacity_ = 0;
    bool failed_ = false;
};

// Skips octets that stand in a JSON string as they are: ASCII without controls, quotation marks and backslashes.
inline const uint8_t *skip_plain(const uint8_t *at, const uint8_t *end) {
    while (at != end && *at >= 0x20 && *at < 0x80 && *at != '"' && *at != '\\')
        ++at;
    return at;
}

} // namespace kovra::util
