#include "util/json_value.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>

namespace kovra::util {

namespace {

constexpr const char *module = "UTIL_JSON";
constexpr size_t alignment = alignof(std::max_align_t) < 8 ? alignof(std::max_align_t) : 8;
constexpr size_t first_slab = 1024;
constexpr size_t largest_slab = size_t{1024} * 1024;
constexpr uint32_t most_items = 0x7FFFFFFF;

// Objects of more members are looked up by hash, arrays of more items by a table.
constexpr uint32_t indexed_from = 16;

// Mixed with the address of the document, which no author of a text knows.
uint32_t hash_of(const char *text, size_t length, uintptr_t salt) {
    uint64_t hash = 0x9E3779B97F4A7C15U ^ salt;
    for (size_t i = 0; i < length; ++i) {
        hash = (hash ^ static_cast<uint8_t>(text[i])) * 0x100000001B3U;
        hash ^= hash >> 29;
    }
    return static_cast<uint32_t>(hash ^ hash >> 32);
}

} // namespace

struct ItemIndex {
    ItemIndex *next; // of the same document
    const kovra_json **items;
    uint32_t count; // items that are in the tables
    uint32_t capacity;
    uint32_t *slots;     // number of an item + 1, by hash of its name; 0: none
    uint32_t slot_count; // a power of two
};

kovra_json *Document::make_root(uint8_t kind, size_t extra) {
    const size_t size = sizeof(Document) + sizeof(Container) + 2 * alignment + extra;
    void *memory = kovra_malloc(size, module, __LINE__);
    if (memory == nullptr)
        return nullptr;
    auto *document = new (memory) Document;
    document->next_ = static_cast<uint8_t *>(memory) + ((sizeof(Document) + alignment - 1) & ~(alignment - 1));
    document->end_ = static_cast<uint8_t *>(memory) + size;
    document->next_size_ = first_slab;
    document->root_ = document->make(kind);
    return document->root_;
}

void Document::destroy(Document *document) {
    while (document != nullptr) {
        // The adopted go in front of what is left to do.
        Document *rest = document->sibling_;
        if (Document *first = document->adopted_; first != nullptr) {
            Document *last = first;
            while (last->sibling_ != nullptr)
                last = last->sibling_;
            last->sibling_ = rest;
            rest = first;
        }
        document->root_->magic = 0;
        for (Slab *slab = document->slabs_; slab != nullptr;) {
            Slab *next = slab->next;
            kovra_free(slab);
            slab = next;
        }
        for (ItemIndex *index = document->indexes_; index != nullptr;) {
            ItemIndex *next = index->next;
            kovra_free(index->items);
            kovra_free(index->slots);
            kovra_free(index);
            index = next;
        }
        kovra_free(document);
        document = rest;
    }
}

void *Document::allocate(size_t size) {
    size = (size + alignment - 1) & ~(alignment - 1);
    if (size > static_cast<size_t>(end_ - next_))
        return allocate_in_new_slab(size);
    void *memory = next_;
    next_ += size;
    return memory;
}

void *Document::allocate_in_new_slab(size_t size) {
    constexpr size_t head = (sizeof(Slab) + alignment - 1) & ~(alignment - 1);
    const size_t room = std::max(size, next_size_);
    if (room > SIZE_MAX - head)
        return nullptr;
    auto *slab = static_cast<Slab *>(kovra_malloc(head + room, module, __LINE__));
    if (slab == nullptr)
        return nullptr;
    slab->next = slabs_;
    slabs_ = slab;
    next_size_ = std::min(next_size_ * 2, largest_slab);
    auto *memory = reinterpret_cast<uint8_t *>(slab) + head;
    // A large piece leaves the rest of the current slab in use.
    if (room - size > static_cast<size_t>(end_ - next_)) {
        next_ = memory + size;
        end_ = memory + room;
    }
    return memory;
}

kovra_json *Document::make(uint8_t kind) {
    const bool holds_items = kind == KOVRA_JSON_OBJECT || kind == KOVRA_JSON_ARRAY;
    const size_t size = holds_items ? sizeof(Container) : sizeof(kovra_json);
    auto *value = static_cast<kovra_json *>(allocate(size));
    if (value == nullptr)
        return nullptr;
    std::memset(static_cast<void *>(value), 0, size);
    value->magic = kovra_json::magic_of_type;
    value->kind = kind;
    value->document = this;
    return value;
}

char *Document::reserve_text(size_t length) {
    auto *text = static_cast<char *>(allocate(length + 1));
    if (text != nullptr)
        text[length] = '\0';
    return text;
}

const char *Document::copy_text(const char *text, size_t length) {
    char *copy = reserve_text(length);
    if (copy != nullptr && length != 0)
        std::memcpy(copy, text, length);
    return copy;
}

const char *Document::intern(const char *name) {
    const size_t length = std::strlen(name);
    const uint32_t hash = hash_of(name, length, reinterpret_cast<uintptr_t>(this));
    Name &slot = names_[hash % name_slots];
    if (slot.text != nullptr && slot.hash == hash && std::strcmp(slot.text, name) == 0)
        return slot.text;
    const char *copy = copy_text(name, length);
    if (copy != nullptr)
        slot = {copy, hash};
    return copy;
}

bool Document::adopt(kovra_json *root) {
    Document *document = root->document;
    if (!document->is_free_root(root))
        return false;
    for (const Document *holder = this; holder != nullptr; holder = holder->owner_)
        if (holder == document)
            return false;
    document->owner_ = this;
    document->sibling_ = adopted_;
    adopted_ = document;
    return true;
}

ItemIndex *Document::new_index() {
    auto *index = static_cast<ItemIndex *>(kovra_malloc(sizeof(ItemIndex), module, __LINE__));
    if (index == nullptr)
        return nullptr;
    *index = {indexes_, nullptr, 0, 0, nullptr, 0};
    indexes_ = index;
    return index;
}

void append(Container &container, kovra_json *value) {
    value->next = nullptr;
    (container.last != nullptr ? container.last->next : container.first) = value;
    container.last = value;
    ++container.count;
}

namespace {

// Brings the table of items up to date; false when memory is short.
bool index_items(Container &container) {
    if (container.index == nullptr && (container.index = container.document->new_index()) == nullptr)
        return false;
    ItemIndex &index = *container.index;
    if (index.capacity < container.count) {
        const size_t capacity = std::max<size_t>(container.count, size_t{index.capacity} * 2);
        auto *items =
            static_cast<const kovra_json **>(kovra_realloc(index.items, capacity * sizeof(void *), module, __LINE__));
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

// The slot of a name: the one that has it, or the free one where it would stand.
uint32_t &slot_of(const Container &container, const char *name) {
    const ItemIndex &index = *container.index;
    const uint32_t mask = index.slot_count - 1;
    uint32_t at = hash_of(name, std::strlen(name), reinterpret_cast<uintptr_t>(container.document)) & mask;
    while (index.slots[at] != 0 && std::strcmp(index.items[index.slots[at] - 1]->name, name) != 0)
        at = (at + 1) & mask;
    return index.slots[at];
}

bool index_names(Container &container) {
    const uint32_t done = container.index != nullptr && container.index->slots != nullptr ? container.index->count : 0;
    if (done == container.count)
        return true;
    if (!index_items(container))
        return false;
    ItemIndex &index = *container.index;
    uint32_t from = done;
    if (index.slot_count / 2 < container.count) {
        uint32_t slots = 64;
        while (slots / 4 < container.count)
            slots *= 2;
        auto *table =
            static_cast<uint32_t *>(kovra_realloc(index.slots, size_t{slots} * sizeof(uint32_t), module, __LINE__));
        if (table == nullptr)
            return false;
        std::fill_n(table, slots, 0U);
        index.slots = table;
        index.slot_count = slots;
        from = 0;
    }
    // The last of several members of one name counts.
    for (uint32_t i = from; i < index.count; ++i)
        slot_of(container, index.items[i]->name) = i + 1;
    return true;
}

Container *container_of(const kovra_json *value, uint8_t kind) {
    return is_valid(value) && value->kind == kind ? static_cast<Container *>(const_cast<kovra_json *>(value)) : nullptr;
}

const kovra_json *item_at(const kovra_json *value, uint8_t kind, int32_t number) {
    Container *container = container_of(value, kind);
    if (container == nullptr || number < 0 || static_cast<uint32_t>(number) >= container->count)
        return nullptr;
    const auto wanted = static_cast<uint32_t>(number);
    if (container->count > indexed_from &&
        ((container->index != nullptr && wanted < container->index->count) || index_items(*container)))
        return container->index->items[wanted];
    const kovra_json *item = container->first;
    for (uint32_t i = 0; i < wanted; ++i)
        item = item->next;
    return item;
}

// A new item at the end of a container of the document, with its name if it is an object's.
kovra_json *put(kovra_json *value, const char *name, uint8_t kind) {
    if (!is_container(value) || (value->kind == KOVRA_JSON_OBJECT) != (name != nullptr) || value->count == most_items)
        return nullptr;
    Document &document = *value->document;
    const char *interned = name != nullptr ? document.intern(name) : nullptr;
    if (name != nullptr && interned == nullptr)
        return nullptr;
    kovra_json *item = document.make(kind);
    if (item == nullptr)
        return nullptr;
    item->name = interned;
    return item;
}

kovra_json *appended(kovra_json *container, kovra_json *item) {
    append(*static_cast<Container *>(container), item);
    return item;
}

bool set_text(kovra_json &value, const void *utf8, int32_t length) {
    const auto *text = static_cast<const char *>(utf8);
    if (length < -1 || (text == nullptr && length != 0))
        return false;
    const size_t octets = length == -1 ? std::strlen(text) : static_cast<size_t>(length);
    if (octets > most_items)
        return false;
    value.text = value.document->copy_text(text, octets);
    value.count = static_cast<uint32_t>(octets);
    return value.text != nullptr;
}

int32_t add(kovra_json *container, const char *name, kovra_json *value) {
    if (!is_container(container) || !is_valid(value) || container->count == most_items ||
        (container->kind == KOVRA_JSON_OBJECT) != (name != nullptr))
        return 0;
    const char *interned = name != nullptr ? container->document->intern(name) : nullptr;
    if ((name != nullptr && interned == nullptr) || !container->document->adopt(value))
        return 0;
    value->name = interned;
    append(*static_cast<Container *>(container), value);
    return 1;
}

} // namespace

void TextBuffer::put(const char *text, size_t length) {
    if (length == 0 || (length > capacity_ - size_ && !reserve(length)))
        return;
    std::memcpy(data_ + size_, text, length);
    size_ += length;
}

void TextBuffer::fill(char character, size_t count) {
    if (count == 0 || (count > capacity_ - size_ && !reserve(count)))
        return;
    std::memset(data_ + size_, character, count);
    size_ += count;
}

bool TextBuffer::reserve(size_t more) {
    if (failed_ || more > SIZE_MAX / 4 || capacity_ > SIZE_MAX / 4) {
        failed_ = true;
        return false;
    }
    const size_t capacity = std::max<size_t>({256, capacity_ * 2, size_ + more});
    auto *grown = static_cast<char *>(kovra_realloc(data_, capacity, module, __LINE__));
    if (grown == nullptr) {
        failed_ = true;
        return false;
    }
    data_ = grown;
    capacity_ = capacity;
    return true;
}

char *TextBuffer::release(int64_t *out_length) {
    put('\0');
    if (failed_)
        return nullptr;
    if (out_length != nullptr)
        *out_length = static_cast<int64_t>(size_ - 1);
    char *text = data_;
    data_ = nullptr;
    return text;
}

bool OpenContainers::push(const Level &level) {
    if (count_ == capacity_) {
        const size_t capacity = capacity_ == 0 ? 32 : capacity_ * 2;
        auto *grown = static_cast<Level *>(kovra_realloc(levels_, capacity * sizeof(Level), module, __LINE__));
        if (grown == nullptr)
            return false;
        levels_ = grown;
        capacity_ = capacity;
    }
    levels_[count_++] = level;
    return true;
}

} // namespace kovra::util

using namespace kovra::util;

kovra_json *kovra_json_newstring(const void *utf8, int32_t length) noexcept {
    if (length < -1 || (utf8 == nullptr && length != 0))
        return nullptr;
    const size_t octets = length == -1 ? std::strlen(static_cast<const char *>(utf8)) : static_cast<size_t>(length);
    kovra_json *value = Document::make_root(KOVRA_JSON_STRING, octets + 1);
    if (value == nullptr || set_text(*value, utf8, length))
        return value;
    Document::destroy(value->document);
    return nullptr;
}

kovra_json *kovra_json_newnumber(double number) noexcept {
    kovra_json *value = std::isfinite(number) ? Document::make_root(KOVRA_JSON_NUMBER, 0) : nullptr;
    if (value != nullptr)
        value->number = number;
    return value;
}

kovra_json *kovra_json_newboolean(int32_t truth) noexcept {
    kovra_json *value = Document::make_root(KOVRA_JSON_BOOLEAN, 0);
    if (value != nullptr)
        value->truth = truth != 0;
    return value;
}

kovra_json *kovra_json_newnull(void) noexcept {
    return Document::make_root(KOVRA_JSON_NULL, 0);
}

kovra_json *kovra_json_newobject(void) noexcept {
    return Document::make_root(KOVRA_JSON_OBJECT, 0);
}

kovra_json *kovra_json_newarray(void) noexcept {
    return Document::make_root(KOVRA_JSON_ARRAY, 0);
}

void kovra_json_free(kovra_json *value) noexcept {
    if (is_valid(value) && value->document->is_free_root(value))
        Document::destroy(value->document);
}

int32_t kovra_json_addobjectitem(kovra_json *object, const char *name, kovra_json *value) noexcept {
    return name != nullptr ? add(object, name, value) : 0;
}

int32_t kovra_json_addarrayitem(kovra_json *array, kovra_json *value) noexcept {
    return add(array, nullptr, value);
}

kovra_json *kovra_json_putstring(kovra_json *container, const char *name, const void *utf8, int32_t length) noexcept {
    kovra_json *item = put(container, name, KOVRA_JSON_STRING);
    return item != nullptr && set_text(*item, utf8, length) ? appended(container, item) : nullptr;
}

kovra_json *kovra_json_putnumber(kovra_json *container, const char *name, double number) noexcept {
    kovra_json *item = std::isfinite(number) ? put(container, name, KOVRA_JSON_NUMBER) : nullptr;
    if (item == nullptr)
        return nullptr;
    item->number = number;
    return appended(container, item);
}

kovra_json *kovra_json_putboolean(kovra_json *container, const char *name, int32_t truth) noexcept {
    kovra_json *item = put(container, name, KOVRA_JSON_BOOLEAN);
    if (item == nullptr)
        return nullptr;
    item->truth = truth != 0;
    return appended(container, item);
}

kovra_json *kovra_json_putnull(kovra_json *container, const char *name) noexcept {
    kovra_json *item = put(container, name, KOVRA_JSON_NULL);
    return item != nullptr ? appended(container, item) : nullptr;
}

kovra_json *kovra_json_putobject(kovra_json *container, const char *name) noexcept {
    kovra_json *item = put(container, name, KOVRA_JSON_OBJECT);
    return item != nullptr ? appended(container, item) : nullptr;
}

kovra_json *kovra_json_putarray(kovra_json *container, const char *name) noexcept {
    kovra_json *item = put(container, name, KOVRA_JSON_ARRAY);
    return item != nullptr ? appended(container, item) : nullptr;
}

kovra_json *kovra_json_puthex(kovra_json *container, const char *name, const void *octets, int32_t length) noexcept {
    static constexpr char digits[] = "0123456789abcdef";
    if (length < 0 || static_cast<uint32_t>(length) > most_items / 2 || (octets == nullptr && length > 0))
        return nullptr;
    kovra_json *item = put(container, name, KOVRA_JSON_STRING);
    if (item == nullptr)
        return nullptr;
    const auto count = static_cast<uint32_t>(length);
    char *text = item->document->reserve_text(size_t{count} * 2);
    if (text == nullptr)
        return nullptr;
    const auto *from = static_cast<const uint8_t *>(octets);
    for (uint32_t i = 0; i < count; ++i) {
        text[2 * i] = digits[from[i] >> 4];
        text[2 * i + 1] = digits[from[i] & 0x0F];
    }
    item->text = text;
    item->count = count * 2;
    return appended(container, item);
}

int32_t kovra_json_gettype(const kovra_json *value) noexcept {
    return is_valid(value) ? value->kind : 0;
}

const char *kovra_json_getstring(const kovra_json *value) noexcept {
    return is_valid(value) && value->kind == KOVRA_JSON_STRING ? value->text : nullptr;
}

int32_t kovra_json_getstringlength(const kovra_json *value) noexcept {
    return kovra_json_getstring(value) != nullptr ? static_cast<int32_t>(value->count) : 0;
}

int32_t kovra_json_getnumber(const kovra_json *value, double *out_number) noexcept {
    if (!is_valid(value) || value->kind != KOVRA_JSON_NUMBER || out_number == nullptr)
        return 0;
    *out_number = value->number;
    return 1;
}

int32_t kovra_json_istrue(const kovra_json *value) noexcept {
    return is_valid(value) && value->kind == KOVRA_JSON_BOOLEAN && value->truth ? 1 : 0;
}

int32_t kovra_json_getobjectsize(const kovra_json *object) noexcept {
    const Container *container = container_of(object, KOVRA_JSON_OBJECT);
    return container != nullptr ? static_cast<int32_t>(container->count) : 0;
}

kovra_json *kovra_json_getobjectvalue(const kovra_json *object, const char *name) noexcept {
    Container *container = container_of(object, KOVRA_JSON_OBJECT);
    if (container == nullptr || name == nullptr)
        return nullptr;
    if (container->count > indexed_from && index_names(*container)) {
        const uint32_t number = slot_of(*container, name);
        return number != 0 ? const_cast<kovra_json *>(container->index->items[number - 1]) : nullptr;
    }
    kovra_json *found = nullptr;
    for (kovra_json *item = container->first; item != nullptr; item = item->next)
        if (std::strcmp(item->name, name) == 0)
            found = item;
    return found;
}

kovra_json *kovra_json_getobjectitem(const kovra_json *object, int32_t index, const char **out_name) noexcept {
    const kovra_json *item = item_at(object, KOVRA_JSON_OBJECT, index);
    if (out_name != nullptr)
        *out_name = item != nullptr ? item->name : nullptr;
    return const_cast<kovra_json *>(item);
}

int32_t kovra_json_getarraysize(const kovra_json *array) noexcept {
    const Container *container = container_of(array, KOVRA_JSON_ARRAY);
    return container != nullptr ? static_cast<int32_t>(container->count) : 0;
}

kovra_json *kovra_json_getarrayitem(const kovra_json *array, int32_t index) noexcept {
    return const_cast<kovra_json *>(item_at(array, KOVRA_JSON_ARRAY, index));
}
