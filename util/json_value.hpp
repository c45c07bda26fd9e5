// The JSON model: nodes in slabs of a document, so that a value costs no allocation of its own.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kovra/util_json.h"
#include "util/handle.hpp"

namespace kovra::util {

class Document;

// The items of a long container by index, and of an object also by name; made when first asked for.
struct ItemIndex;

} // namespace kovra::util

struct kovra_json {
    static constexpr uint32_t magic_of_type = kovra::util::magic_word("JSON");
    uint32_t magic;
    uint8_t kind;
    kovra::util::Document *document;
    kovra_json *next; // among the items of the same container
    const char *name; // of a member of an object; zero-terminated, one copy for each name of a document
    union {
        double number;
        const char *text;  // zero-terminated
        kovra_json *first; // item of a container
        bool truth;
    };
    uint32_t count; // octets of a string, items of a container
};

namespace kovra::util {

// A container is larger than its node.
struct Container : kovra_json {
    kovra_json *last;
    ItemIndex *index;
};

inline bool is_container(const kovra_json *value) {
    return is_valid(value) && (value->kind == KOVRA_JSON_OBJECT || value->kind == KOVRA_JSON_ARRAY);
}

class Document {
public:
    // A document with an empty root; null when memory is short.
    static kovra_json *make_root(uint8_t kind, size_t extra);
    static void destroy(Document *document);

    // A new value that is not yet in a container; null when memory is short.
    kovra_json *make(uint8_t kind);
    // A zero-terminated copy; null when memory is short.
    char *reserve_text(size_t length);
    const char *copy_text(const char *text, size_t length);
    // The one copy of a name that the document has.
    const char *intern(const char *name);
    // Takes over a root that no other document has, unless it holds this one.
    bool adopt(kovra_json *root);
    [[nodiscard]] bool is_free_root(const kovra_json *value) const { return value == root_ && owner_ == nullptr; }

    // Memory that grows, for indexes; released with the document.
    ItemIndex *new_index();

private:
    struct Slab {
        Slab *next;
    };
    struct Name {
        const char *text;
        uint32_t hash;
    };
    static constexpr uint32_t name_slots = 64;

    void *allocate(size_t size);
    void *allocate_in_new_slab(size_t size);

    Document *owner_ = nullptr;
    Document *adopted_ = nullptr;
    Document *sibling_ = nullptr;
    kovra_json *root_ = nullptr;
    Slab *slabs_ = nullptr;
    ItemIndex *indexes_ = nullptr;
    uint8_t *next_ = nullptr;
    uint8_t *end_ = nullptr;
    size_t next_size_ = 0;
    Name names_[name_slots] = {}; // those met last, by hash
};

// Puts a value at the end of a container.
void append(Container &container, kovra_json *value);

// A zero-terminated text that grows.
class TextBuffer {
public:
    TextBuffer() = default;
    ~TextBuffer() { kovra_free(data_); }
    TextBuffer(const TextBuffer &) = delete;
    TextBuffer &operator=(const TextBuffer &) = delete;

    // What does not fit is dropped and remembered.
    void put(const char *text, size_t length);
    void put(char character) { put(&character, 1); }
    void fill(char character, size_t count);
    [[nodiscard]] bool is_complete() const { return !failed_; }
    [[nodiscard]] const char *data() const { return data_; }
    [[nodiscard]] size_t size() const { return size_; }
    void clear() { size_ = 0; }
    // Hands the text over; null when it is not complete.
    char *release(int64_t *out_length);

private:
    bool reserve(size_t more);

    char *data_ = nullptr;
    size_t size_ = 0;
    size_t capacity_ = 0;
    bool failed_ = false;
};

// Containers that are open while a document is walked.
class OpenContainers {
public:
    struct Level {
        Container *container;
        const kovra_json *next; // item to come
    };

    OpenContainers() = default;
    ~OpenContainers() { kovra_free(levels_); }
    OpenContainers(const OpenContainers &) = delete;
    OpenContainers &operator=(const OpenContainers &) = delete;

    bool push(const Level &level);
    void pop() { --count_; }
    [[nodiscard]] size_t size() const { return count_; }
    Level &top() { return levels_[count_ - 1]; }

private:
    Level *levels_ = nullptr;
    size_t count_ = 0;
    size_t capacity_ = 0;
};

} // namespace kovra::util
