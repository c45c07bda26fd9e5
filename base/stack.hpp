// An array that grows at its end, in memory of kovra_realloc.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "base/sizes.hpp"
#include "base/thresholds.hpp"
#include "kovra/util_memory.h"

namespace kovra {

// Has room for `first` items, then for twice as many each time. It has no destructor, so that a record behind a handle
// can hold one: clear_memory() is to be called before that is released. Everyone else uses a Stack.
template <class Item, size_t first> class HeldStack {
    static_assert(std::is_trivially_copyable_v<Item>);

public:
    // The source is named to the allocator.
    explicit constexpr HeldStack(const char *source) : source_(source) {}

    [[nodiscard]] size_t size() const { return size_; }
    [[nodiscard]] const Item *data() const { return items_; }
    [[nodiscard]] Item &top() { return items_[size_ - 1]; }
    Item &operator[](size_t index) { return items_[index]; }

    // False when memory is short; then nothing has changed.
    bool push(const Item &item) {
        if (size_ == capacity_ && !make_room(1))
            return false;
        items_[size_++] = item;
        return true;
    }
    void pop() { --size_; }
    void clear() { size_ = 0; }

    [[nodiscard]] bool has_room(size_t count) const { return count <= capacity_ - size_; }
    // Makes room for `count` more items. False when memory is short; then nothing has changed.
    bool make_room(size_t count) {
        const size_t capacity = std::max(next_capacity(capacity_, std::max(first, capacity_)), sum(size_, count));
        const size_t octets = product(capacity, sizeof(Item));
        // No object is larger than that.
        if (octets > PTRDIFF_MAX)
            return false;
        void *grown = kovra_realloc(items_, octets, source_, __LINE__);
        if (grown == nullptr)
            return false;
        items_ = static_cast<Item *>(grown);
        capacity_ = capacity;
        return true;
    }
    // Adds `count` items, for which there is room, and gives the place where they are to be written.
    Item *add(size_t count) {
        Item *place = items_ + size_;
        size_ += count;
        return place;
    }

    // Hands the items over, to be released with kovra_free.
    Item *take() {
        Item *items = items_;
        items_ = nullptr;
        size_ = capacity_ = 0;
        return items;
    }
    void clear_memory() { kovra_free(take()); }

private:
    Item *items_ = nullptr;
    size_t size_ = 0;
    size_t capacity_ = 0;
    const char *source_;
};

template <class Item, size_t first> class Stack : public HeldStack<Item, first> {
public:
    using HeldStack<Item, first>::HeldStack;
    ~Stack() { this->clear_memory(); }
    Stack(const Stack &) = delete;
    Stack &operator=(const Stack &) = delete;
};

} // namespace kovra
