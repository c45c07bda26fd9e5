// The memory of JSON values: nodes of a document lie in its slabs, so that a value costs no allocation of its own and
// releasing a document does not visit its values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "base/handle.hpp"
#include "kovra/util_json.h"

// What every value begins with. A string's octets and a terminating zero follow at once; numbers and containers are
// the larger nodes below.
struct kovra_json {
    uint32_t head;    // magic word with the kind, and whether this is a root, in its last octet
    uint32_t count;   // octets of a string, items of a container, truth of a boolean
    kovra_json *next; // among the items of the same container
    const char *name; // of a member of an object, zero-terminated

    [[nodiscard]] uint8_t kind() const { return head & 0x7F; }
    [[nodiscard]] char *text() { return reinterpret_cast<char *>(this + 1); }
    [[nodiscard]] const char *text() const { return reinterpret_cast<const char *>(this + 1); }
};

namespace kovra::util {

class Document;

// The items of a long container by index, and of an object also by name.
struct ItemIndex {
    struct Slot {
        uint32_t hash;
        uint32_t number; // of the last item of a name, + 1; 0: free
    };

    ItemIndex *next; // of the same document
    const kovra_json **items;
    uint32_t count; // of `items`
    uint32_t capacity;
    Slot *slots;
    size_t slot_count; // a power of two
    uint32_t named;    // items that the slots know
};

struct Number : kovra_json {
    double number;
};

struct Container : kovra_json {
    Document *document;
    kovra_json *first;
    kovra_json *last;
    ItemIndex *index; // null until asked for

    void append(kovra_json *item, const char *item_name) {
        item->name = item_name;
        item->next = nullptr;
        (last != nullptr ? last->next : first) = item;
        last = item;
        ++count;
    }
};

constexpr uint32_t json_magic = magic_word("JSN\0");
constexpr uint32_t json_root = 0x80;
constexpr uint32_t most_json_items = 0x7FFFFFFF;

// Null for whatever is no JSON value.
inline bool is_json(const kovra_json *value) {
    if (value == nullptr)
        return false;
    uint32_t head = 0;
    std::memcpy(&head, static_cast<const void *>(value), sizeof head);
    return (head & ~0xFFU) == json_magic;
}

inline bool is_json(const kovra_json *value, uint8_t kind) {
    return is_json(value) && value->kind() == kind;
}

inline Container *json_container(const kovra_json *value) {
    const bool is = is_json(value, KOVRA_JSON_OBJECT) || is_json(value, KOVRA_JSON_ARRAY);
    return is ? static_cast<Container *>(const_cast<kovra_json *>(value)) : nullptr;
}

inline Container *json_container(const kovra_json *value, uint8_t kind) {
    return is_json(value, kind) ? static_cast<Container *>(const_cast<kovra_json *>(value)) : nullptr;
}

class Document {
public:
    // A document whose first value, its root, can be made without failure when it takes no more than `size` octets.
    static Document *create(size_t size);
    static void destroy(Document *document);
    // The document of a root, which lies right behind it.
    static Document *of_root(kovra_json *root);

    // New values in no container; null when memory is short. The text of a string is the caller's to fill.
    kovra_json *make_string(size_t length);
    kovra_json *make_number(double number);
    kovra_json *make_plain(uint8_t kind, bool truth); // boolean or null
    Container *make_container(uint8_t kind);

    // A copy of a name, shared by the members that have it; null when memory is short.
    const char *intern(const char *name, size_t length);
    // Takes over a root with its document; false when this one lies inside that.
    bool adopt(kovra_json *root);
    // An empty index, released with the document; null when memory is short.
    ItemIndex *make_index();

private:
    struct Slab {
        Slab *next;
    };
    struct Name {
        const char *text;
        size_t length;
    };

    Document *outermost();
    void *allocate(size_t size);
    void *allocate_in_new_slab(size_t size);
    const char *copy_name(const char *name, size_t length);

    Document *owner_ = nullptr;   // one of those that this one lies in; null: not adopted
    Document *adopted_ = nullptr; // the first, the others by sibling_
    Document *sibling_ = nullptr;
    Slab *slabs_ = nullptr;
    ItemIndex *indexes_ = nullptr;
    Name *names_ = nullptr; // those met last, by name_slot()
    uint8_t *next_ = nullptr;
    uint8_t *end_ = nullptr;
    uint32_t slab_size_ = 0; // of the next
    uint32_t name_count_ = 0;
};

} // namespace kovra::util
