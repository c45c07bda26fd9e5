#include "core/arena.hpp"

#include <algorithm>
#include <functional>
#include <new>

#include "base/ensure.hpp"
#include "core/value.hpp"
#include "kovra/util_memory.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_Arena";
constexpr size_t smallest_block = threshold<size_t>(1024, 16);
constexpr size_t largest_block = threshold<size_t>(size_t{256} * 1024, 64);

// Null when memory is short, or the size does not fit a size_t.
void *get(size_t size) {
    return size < too_large ? kovra_malloc(size, source, __LINE__) : nullptr;
}

} // namespace

struct Arena::OwnedStream {
    OwnedStream *next;
    kovra_stream *stream;
};

Arena *Arena::create(size_t records, size_t content) {
    const size_t reserve = rounded_up(sum(records, content), alignment);
    void *memory = get(sum(sizeof(Arena), reserve));
    if (memory == nullptr)
        return nullptr;
    auto *arena = new (memory) Arena;
    arena->next_ = static_cast<uint8_t *>(memory) + sizeof(Arena);
    arena->end_ = arena->next_ + reserve;
    arena->next_size_ = std::clamp(records, smallest_block, largest_block);
    return arena;
}

void Arena::destroy(Arena *arena) {
    if (arena != nullptr)
        destroy_all(arena, arena->sibling_);
}

// Releases the arenas of a chain of siblings, up to `until`.
void Arena::destroy_all(Arena *arena, const Arena *until) {
    while (arena != until) {
        // The adopted are put in front of what is still to be released: the chain is the work list.
        Arena *rest = arena->sibling_;
        if (Arena *first = arena->adopted_; first != nullptr) {
            Arena *last = first;
            while (last->sibling_ != nullptr)
                last = last->sibling_;
            last->sibling_ = rest;
            rest = first;
        }
        if (arena->root != nullptr)
            arena->root->kind = Kind::released;
        arena->free_streams(nullptr);
        for (Block *block = arena->blocks_; block != nullptr;) {
            Block *next = block->next;
            kovra_free(block);
            block = next;
        }
        kovra_free(arena->spare_);
        kovra_free(arena);
        arena = rest;
    }
}

Arena::Block *Arena::new_block(size_t size) {
    auto *block = static_cast<Block *>(get(sum(sizeof(Block), size)));
    if (block == nullptr)
        return nullptr;
    block->next = block->previous = nullptr;
    block->note_size(size);
    return block;
}

Arena::Block *Arena::resize_block(Block *block, size_t size) {
    const size_t whole = sum(sizeof(Block), size);
    if (whole == too_large)
        return nullptr;
    auto *resized = static_cast<Block *>(kovra_realloc(block, whole, source, __LINE__));
    if (resized != nullptr)
        resized->note_size(size);
    return resized;
}

void Arena::drop_block(Block *block) {
    kovra_free(block);
}

void Arena::link(Block *block, const void *holder) {
    block->note_holder(holder);
    block->previous = nullptr;
    block->next = blocks_;
    if (blocks_ != nullptr)
        blocks_->previous = block;
    blocks_ = block;
}

Arena::Block *Arena::resize_linked(Block *block, size_t size) {
    Block *resized = resize_block(block, size);
    if (resized == nullptr)
        return nullptr;
    (resized->previous != nullptr ? resized->previous->next : blocks_) = resized;
    if (resized->next != nullptr)
        resized->next->previous = resized;
    return resized;
}

void *Arena::allocate_in_new_block(size_t size) {
    size = rounded_up(size, alignment);
    size_t wanted = std::max(size, rounded_up(next_size_, alignment));
    Block *block = nullptr;
    if (spare_ != nullptr && spare_size_ >= size) {
        block = spare_;
        wanted = spare_size_;
        spare_ = nullptr;
    } else {
        block = new_block(wanted);
        if (block == nullptr)
            return nullptr;
        if (next_size_ < largest_block)
            next_size_ *= 2;
    }
    link(block, block->memory());
    current_ = block;
    next_ = block->memory() + size;
    end_ = block->memory() + wanted;
    return block->memory();
}

bool Arena::own(kovra_stream *stream) {
    void *memory = allocate(sizeof(OwnedStream));
    if (memory == nullptr)
        return false;
    streams_ = new (memory) OwnedStream{streams_, stream};
    return true;
}

void Arena::free_streams(const OwnedStream *until) {
    for (; streams_ != until; streams_ = streams_->next)
        kovra_stream_free(streams_->stream);
}

// Only tight builds remember the size of a block, for this.
bool Arena::is_taken_back(const void *record, const Mark &mark) const {
    const auto lies_in = [record](const uint8_t *begin, const uint8_t *end) {
        const std::less<> before;
        return !before(record, static_cast<const void *>(begin)) && before(record, static_cast<const void *>(end));
    };
    if (lies_in(mark.next, mark.end))
        return true;
    for (Block *block = blocks_; block != mark.blocks; block = block->next)
        if (lies_in(block->memory(), block->memory() + block->size()))
            return true;
    return false;
}

void Arena::reset(const Mark &mark) {
    if constexpr (is_tight)
        for (const Block *block = blocks_; block != mark.blocks; block = block->next)
            ensure(is_taken_back(block->holder(), mark));
    free_streams(mark.streams);
    destroy_all(adopted_, mark.adopted);
    adopted_ = mark.adopted;
    while (blocks_ != mark.blocks) {
        ensure(blocks_ != nullptr);
        Block *block = blocks_;
        blocks_ = block->next;
        if (block == current_ && spare_ == nullptr) {
            spare_ = block;
            spare_size_ = static_cast<size_t>(end_ - block->memory());
        } else {
            kovra_free(block);
        }
    }
    if (blocks_ != nullptr)
        blocks_->previous = nullptr;
    current_ = mark.current;
    next_ = mark.next;
    end_ = mark.end;
}

bool Arena::adopt(Value *value) {
    Arena *arena = value->arena;
    if (!arena->is_root(value) || arena->is_owned())
        return false;
    // What nobody owns holds this one only as the outermost. The links are shortened on the way, so that a chain that
    // grows at its inner end is not walked again and again.
    Arena *outermost = this;
    while (outermost->owner_ != nullptr) {
        if (outermost->owner_->owner_ != nullptr)
            outermost->owner_ = outermost->owner_->owner_;
        outermost = outermost->owner_;
    }
    if (outermost == arena)
        return false;
    arena->owner_ = this;
    arena->sibling_ = adopted_;
    adopted_ = arena;
    outermost->announced_ = outermost->announced_ || arena->announced_;
    return true;
}

void Arena::note_announced() {
    Arena *outermost = this;
    while (outermost->owner_ != nullptr)
        outermost = outermost->owner_;
    outermost->announced_ = true;
}

bool Arena::has_announced() const {
    const Arena *outermost = this;
    while (outermost->owner_ != nullptr)
        outermost = outermost->owner_;
    return outermost->announced_;
}

} // namespace kovra::asn1
