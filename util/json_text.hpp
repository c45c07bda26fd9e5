// What printing and parsing JSON share.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "base/stack.hpp"
#include "base/thresholds.hpp"

namespace kovra::util {

// The first room of what grows while JSON is read and printed.
template <class Item> inline constexpr auto first_json_items = threshold<size_t>(256 / sizeof(Item), 1);

// Items that are put behind one another. What finds no memory is left out, and is_complete() tells.
template <class Item> class GrowingArray {
    static_assert(std::is_trivially_copyable_v<Item>);

public:
    [[nodiscard]] bool is_complete() const { return !failed_; }
    [[nodiscard]] size_t size() const { return items_.size(); }
    [[nodiscard]] const Item *data() const { return items_.data(); }

    bool push(const Item &item) {
        if (!has_room(1))
            return false;
        *items_.add(1) = item;
        return true;
    }
    void clear() { items_.clear(); }

    void put(const Item *items, size_t count) {
        if (count != 0 && has_room(count))
            std::memcpy(items_.add(count), items, count * sizeof(Item));
    }
    void fill(const Item &item, size_t count) {
        if (has_room(count))
            std::fill_n(items_.add(count), count, item);
    }

    // Hands the items over, to be released with kovra_free.
    Item *release() { return items_.take(); }

private:
    bool has_room(size_t count) {
        if (items_.has_room(count))
            return true;
        failed_ = failed_ || !items_.make_room(count);
        return !failed_;
    }

    Stack<Item, first_json_items<Item>> items_{"UTIL_JSON"};
    bool failed_ = false;
};

// Skips octets that stand in a JSON string as they are: ASCII without controls, quotation marks and backslashes.
inline const uint8_t *skip_plain(const uint8_t *at, const uint8_t *end) {
    while (at != end && *at >= 0x20 && *at < 0x80 && *at != '"' && *at != '\\')
        ++at;
    return at;
}

} // namespace kovra::util
