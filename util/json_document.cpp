#include "util/json_document.hpp"

#include <algorithm>
#include <new>

#include "base/sizes.hpp"
#include "base/thresholds.hpp"
#include "util/os_memory.hpp"

namespace kovra::util {

namespace {

constexpr const char *module = "UTIL_JSON";
constexpr size_t alignment = 8;
constexpr auto first_slab = threshold<uint32_t>(512, 64);
constexpr auto largest_slab = threshold<uint32_t>(32 * 1024 * 1024, 128);
constexpr auto name_slots = threshold<size_t>(64, 2);
// From so many members on, equal names are kept once.
constexpr auto names_shared_from = threshold<uint32_t>(8, 2);

constexpr size_t aligned(size_t size) {
    return rounded_up(size, alignment);
}

// Cheap to compute; the names in descriptions of encodings all have different slots.
size_t name_slot(const char *name, size_t length) {
    const auto octet = [name](size_t i) { return size_t{static_cast<uint8_t>(name[i])}; };
    return length == 0 ? 0 : (length + 2 * octet(0) + 3 * octet(length - 1)) % name_slots;
}

} // namespace

Document *Document::create(size_t size) {
    const size_t whole = sum(aligned(sizeof(Document)), aligned(size));
    void *memory = kovra_malloc(whole, module, __LINE__);
    if (memory == nullptr)
        return nullptr;
    auto *document = new (memory) Document;
    document->next_ = static_cast<uint8_t *>(memory) + aligned(sizeof(Document));
    document->end_ = static_cast<uint8_t *>(memory) + whole;
    document->slab_size_ = first_slab;
    return document;
}

Document *Document::of_root(kovra_json *root) {
    return reinterpret_cast<Document *>(reinterpret_cast<uint8_t *>(root) - aligned(sizeof(Document)));
}

void Document::destroy(Document *document) {
    while (document != nullptr) {
        // Without recursion: the documents inside this one are put in front of those that are still to be destroyed.
        Document *rest = document->sibling_;
        if (Document *first = document->adopted_; first != nullptr) {
            Document *last = first;
            while (last->sibling_ != nullptr)
                last = last->sibling_;
            last->sibling_ = rest;
            rest = first;
        }
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
        // A handle of the root that is used after this is refused, as long as the memory is not used anew.
        std::memset(reinterpret_cast<uint8_t *>(document) + aligned(sizeof(Document)), 0, sizeof(uint32_t));
        kovra_free(document);
        document = rest;
    }
}

void *Document::allocate(size_t size) {
    size = aligned(size);
    if (size > static_cast<size_t>(end_ - next_))
        return allocate_in_new_slab(size);
    void *memory = next_;
    next_ += size;
    return memory;
}

void *Document::allocate_in_new_slab(size_t size) {
    constexpr size_t head = aligned(sizeof(Slab));
    const size_t whole = std::max<size_t>(sum(head, size), slab_size_);
    auto *slab = static_cast<Slab *>(kovra_malloc(whole, module, __LINE__));
    if (slab == nullptr)
        return nullptr;
    use_large_pages(slab, whole);
    slab->next = slabs_;
    slabs_ = slab;
    slab_size_ = std::min(slab_size_ * 2, largest_slab);
    auto *memory = reinterpret_cast<uint8_t *>(slab) + head;
    // Goes on in the slab that has more room left: after a large piece that may be the old one.
    if (whole - head - size > static_cast<size_t>(end_ - next_)) {
        next_ = memory + size;
        end_ = reinterpret_cast<uint8_t *>(slab) + whole;
    }
    return memory;
}

kovra_json *Document::make_string(size_t length) {
    void *memory = length <= most_json_items ? allocate(sum(sizeof(kovra_json), length, 1)) : nullptr;
    if (memory == nullptr)
        return nullptr;
    auto *value =
        new (memory) kovra_json{json_magic | KOVRA_JSON_STRING, static_cast<uint32_t>(length), nullptr, nullptr};
    value->text()[length] = '\0';
    return value;
}

kovra_json *Document::make_number(double number) {
    void *memory = allocate(sizeof(Number));
    return memory != nullptr ? new (memory) Number{{json_magic | KOVRA_JSON_NUMBER, 0, nullptr, nullptr}, number}
                             : nullptr;
}

kovra_json *Document::make_plain(uint8_t kind, bool truth) {
    void *memory = allocate(sizeof(kovra_json));
    return memory != nullptr ? new (memory) kovra_json{json_magic | kind, truth ? 1U : 0U, nullptr, nullptr} : nullptr;
}

Container *Document::make_container(uint8_t kind) {
    void *memory = allocate(sizeof(Container));
    return memory != nullptr ? new (memory)
                                   Container{{json_magic | kind, 0, nullptr, nullptr}, this, nullptr, nullptr, nullptr}
                             : nullptr;
}

const char *Document::copy_name(const char *name, size_t length) {
    auto *copy = static_cast<char *>(allocate(sum(length, 1)));
    if (copy == nullptr)
        return nullptr;
    if (length != 0)
        std::memcpy(copy, name, length);
    copy[length] = '\0';
    return copy;
}

const char *Document::intern(const char *name, size_t length) {
    if (names_ == nullptr) {
        if (++name_count_ < names_shared_from)
            return copy_name(name, length);
        names_ = static_cast<Name *>(allocate(name_slots * sizeof(Name)));
        if (names_ == nullptr)
            return nullptr;
        std::fill_n(names_, name_slots, Name{"", 0});
    }
    Name &slot = names_[name_slot(name, length)];
    if (slot.length == length && std::memcmp(slot.text, name, length) == 0)
        return slot.text;
    const char *copy = copy_name(name, length);
    if (copy != nullptr)
        slot = {copy, length};
    return copy;
}

// Each link that is followed is shortened, so that asking n documents inside one another takes no n^2 steps.
Document *Document::outermost() {
    Document *document = this;
    while (document->owner_ != nullptr) {
        if (document->owner_->owner_ != nullptr)
            document->owner_ = document->owner_->owner_;
        document = document->owner_;
    }
    return document;
}

bool Document::adopt(kovra_json *root) {
    Document *document = of_root(root);
    if (outermost() == document)
        return false;
    document->owner_ = this;
    document->sibling_ = adopted_;
    adopted_ = document;
    root->head &= ~json_root;
    return true;
}

ItemIndex *Document::make_index() {
    void *memory = kovra_malloc(sizeof(ItemIndex), module, __LINE__);
    return memory != nullptr ? indexes_ = new (memory) ItemIndex{indexes_, nullptr, 0, 0, nullptr, 0, 0} : nullptr;
}

} // namespace kovra::util
