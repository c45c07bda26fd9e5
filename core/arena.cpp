#include "core/arena.hpp"

#include <new>

#include "core/value.hpp"
#include "kovra/util_memory.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_Arena";
constexpr size_t smallest_block = 1024;
constexpr size_t largest_block = size_t{256} * 1024;

} // namespace

struct Arena::OwnedStream {
    OwnedStream *next;
    kovra_stream *stream;
};

Arena *Arena::create(size_t reserve) {
    if (reserve > SIZE_MAX - sizeof(Arena) - alignment)
        return nullptr;
    reserve = (reserve + alignment - 1) & ~(alignment - 1);
    void *memory = kovra_malloc(sizeof(Arena) + reserve, source, __LINE__);
    if (memory == nullptr)
        return nullptr;
    auto *arena = new (memory) Arena;
    arena->next_ = static_cast<uint8_t *>(memory) + sizeof(Arena);
    arena->end_ = arena->next_ + reserve;
    arena->next_size_ = reserve < smallest_block ? smallest_block : reserve;
    return arena;
}

void Arena::destroy(Arena *arena) {
    while (arena != nullptr) {
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
    if (size > SIZE_MAX - sizeof(Block))
        return nullptr;
    auto *block = static_cast<Block *>(kovra_malloc(sizeof(Block) + size, source, __LINE__));
    if (block != nullptr)
        *block = {nullptr, nullptr};
    return block;
}

Arena::Block *Arena::resize_block(Block *block, size_t size) {
    if (size > SIZE_MAX - sizeof(Block))
        return nullptr;
    return static_cast<Block *>(kovra_realloc(block, sizeof(Block) + size, source, __LINE__));
}

void Arena::drop_block(Block *block) {
    kovra_free(block);
}

void Arena::link(Block *block) {
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
    size_t wanted = next_size_;
    if (size > wanted)
        wanted = size;
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
    link(block);
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

void Arena::reset(const Mark &mark) {
    free_streams(mark.streams);
    while (blocks_ != mark.blocks) {
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
    return true;
}

} // namespace kovra::asn1
