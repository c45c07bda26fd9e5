#include "util/json_index.hpp"

#include <algorithm>

#include "base/sizes.hpp"
#include "base/thresholds.hpp"

namespace kovra::util {

namespace {

constexpr const char *module = "UTIL_JSON";
// Shorter containers are searched from the beginning.
constexpr auto indexed_from = threshold<uint32_t>(16, 1);
constexpr auto first_slots = threshold<size_t>(64, 2);
// Slots for each name in a new table; when names have come until only two are left for each, a new table is made.
constexpr auto slots_for_name = threshold<size_t>(4, 2);

// The address of the document is mixed in: whoever writes a text does not know it and cannot make names collide.
uint32_t hash_of(const char *name, const Document *document) {
    uint64_t hash = 0x9E3779B97F4A7C15U ^ reinterpret_cast<uintptr_t>(document);
    for (; *name != '\0'; ++name) {
        hash = (hash ^ static_cast<uint8_t>(*name)) * 0x100000001B3U;
        hash ^= hash >> 29;
    }
    return static_cast<uint32_t>(hash ^ hash >> 32);
}

// Brings the table of items up to date; false when memory is short.
bool index_items(Container &container) {
    if (container.index == nullptr && (container.index = container.document->make_index()) == nullptr)
        return false;
    ItemIndex &index = *container.index;
    if (index.capacity < container.count) {
        const size_t capacity = std::max<size_t>(container.count, next_capacity(index.capacity, index.capacity));
        if (capacity > UINT32_MAX)
            return false;
        auto *items = static_cast<const kovra_json **>(
            kovra_realloc(index.items, product(capacity, sizeof(void *)), module, __LINE__));
        if (items == nullptr)
            return false;
        index.items = items;
        index.capacity = static_cast<uint32_t>(capacity);
    }
    const kovra_json *item = index.count == 0 ? container.first : index.items[index.count - 1]->next;
    for (; item != nullptr; item = item->next)
        index.items[index.count++] = item;
    return true;
}

// The slot that has a name, or the free one where it would stand.
ItemIndex::Slot &slot_of(const ItemIndex &index, const char *name, uint32_t hash) {
    const size_t mask = index.slot_count - 1;
    size_t at = hash & mask;
    for (; index.slots[at].number != 0; at = (at + 1) & mask)
        if (index.slots[at].hash == hash && std::strcmp(index.items[index.slots[at].number - 1]->name, name) == 0)
            break;
    return index.slots[at];
}

// Brings the slots up to date; false when memory is short.
bool index_names(Container &object) {
    if (object.index != nullptr && object.index->named == object.count)
        return true;
    if (!index_items(object))
        return false;
    ItemIndex &index = *object.index;
    if (index.slot_count / 2 < object.count) {
        size_t count = first_slots;
        while (count / slots_for_name < object.count && count != too_large)
            count = product(count, 2);
        auto *slots = static_cast<ItemIndex::Slot *>(
            kovra_realloc(index.slots, product(count, sizeof(ItemIndex::Slot)), module, __LINE__));
        if (slots == nullptr)
            return false;
        std::fill_n(slots, count, ItemIndex::Slot{0, 0});
        index.slots = slots;
        index.slot_count = count;
        index.named = 0;
    }
    for (; index.named != index.count; ++index.named) {
        const char *name = index.items[index.named]->name;
        const uint32_t hash = hash_of(name, object.document);
        slot_of(index, name, hash) = {hash, index.named + 1};
    }
    return true;
}

} // namespace

const kovra_json *item_at(Container &container, uint32_t number) {
    const bool is_indexed = container.index != nullptr && number < container.index->count;
    if (is_indexed || (container.count > indexed_from && index_items(container)))
        return container.index->items[number];
    const kovra_json *item = container.first;
    for (uint32_t i = 0; i < number; ++i)
        item = item->next;
    return item;
}

const kovra_json *last_member(Container &object, const char *name) {
    if (object.count > indexed_from && index_names(object)) {
        const uint32_t number = slot_of(*object.index, name, hash_of(name, object.document)).number;
        return number != 0 ? object.index->items[number - 1] : nullptr;
    }
    const kovra_json *found = nullptr;
    for (const kovra_json *item = object.first; item != nullptr; item = item->next)
        if (std::strcmp(item->name, name) == 0)
            found = item;
    return found;
}

} // namespace kovra::util
