// The memory of one value: its records, the octets they refer to, and the values it has taken over.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "base/sizes.hpp"
#include "base/thresholds.hpp"
#include "kovra/util_stream.h"

namespace kovra::asn1 {

struct StreamContent;
struct Value;

// What a tight build remembers of a block, to see that it does not go before the record that refers to it.
class BlockNotes {
public:
    void note_size(size_t size) { size_ = size; }
    void note_holder(const void *holder) { holder_ = holder; }
    [[nodiscard]] size_t size() const { return size_; }
    [[nodiscard]] const void *holder() const { return holder_; }

private:
    const void *holder_;
    size_t size_;
};
class NoBlockNotes {
public:
    void note_size(size_t) {}
    void note_holder(const void *) {}
    [[nodiscard]] size_t size() const { return 0; }
    [[nodiscard]] const void *holder() const { return nullptr; }
};

class Arena {
public:
    // A piece of memory of its own in an arena, for what grows or is large.
    struct Block : std::conditional_t<is_tight, BlockNotes, NoBlockNotes> {
        Block *next;
        Block *previous;
        [[nodiscard]] uint8_t *memory() { return reinterpret_cast<uint8_t *>(this + 1); }
    };

    // Makes an arena of which `records` octets and `content` octets need no further allocation; when that is not
    // enough, the next allocation is a little larger than the room for records was. Null when memory is short.
    static Arena *create(size_t records, size_t content = 0);

    // Releases the arena, everything in it and every arena it has adopted, without recursion.
    static void destroy(Arena *arena);

    // Memory for a record, aligned for pointers and not cleared; null when memory is short.
    void *allocate(size_t size) {
        void *memory = allocate_in_place(size);
        return memory != nullptr ? memory : allocate_in_new_block(size);
    }

    // The same from the room that is left in the current piece; null when that is too little.
    void *allocate_in_place(size_t size) {
        // The room is a multiple of the alignment: a size that fits still fits when it is rounded up.
        if (size > static_cast<size_t>(end_ - next_))
            return nullptr;
        void *memory = next_;
        next_ += (size + alignment - 1) & ~(alignment - 1);
        return memory;
    }

    // A block that is not yet the arena's: resize it, then link it, or drop it. Null when memory is short.
    static Block *new_block(size_t size);
    static Block *resize_block(Block *block, size_t size);
    static void drop_block(Block *block);
    // The block is the arena's from now on. `holder` is the arena's record that refers to it; null: the arena itself.
    void link(Block *block, const void *holder);
    // A linked block grown in place in the chain; null (and nothing changed) when memory is short.
    Block *resize_linked(Block *block, size_t size);

    // Everything that came to the arena after a mark can be taken back at once: records, blocks, streams and what was
    // adopted. Nothing older may refer to it: a block that is taken back goes together with its holder.
    struct OwnedStream;
    struct Mark {
        Block *blocks;
        Block *current;
        uint8_t *next;
        uint8_t *end;
        OwnedStream *streams;
        Arena *adopted;
    };
    [[nodiscard]] Mark mark() const { return {blocks_, current_, next_, end_, streams_, adopted_}; }
    void reset(const Mark &mark);

    // Takes over a stream, which is freed with the arena; false when memory is short.
    bool own(kovra_stream *stream);

    // Takes over a value that is the root of its own arena; false when it is not its own, or holds this arena.
    bool adopt(Value *value);

    // Some length in the arena is only announced: a stream told it, and the octets may not come.
    void note_announced();
    // Is there such a length in the arena, or in the one it belongs to? Then nothing is allocated in advance for the
    // length that a value tells.
    [[nodiscard]] bool has_announced() const;

    [[nodiscard]] bool is_root(const Value *value) const { return root == value; }
    [[nodiscard]] bool is_owned() const { return owner_ != nullptr; }

    // The octets that the records' offsets count from.
    const uint8_t *octets = nullptr;
    uint32_t octets_length = 0;
    // The caller's streams that hold contents of the arena's values (core/stream_contents.hpp).
    StreamContent *stream_contents = nullptr;
    // The value that the arena was made for; releasing it releases the arena.
    Value *root = nullptr;

private:
    static constexpr size_t alignment = alignof(std::max_align_t) < 8 ? alignof(std::max_align_t) : 8;

    void *allocate_in_new_block(size_t size);
    void free_streams(const OwnedStream *until);
    [[nodiscard]] bool is_taken_back(const void *record, const Mark &mark) const;
    static void destroy_all(Arena *first, const Arena *until);

    uint8_t *next_ = nullptr;
    uint8_t *end_ = nullptr;
    Block *blocks_ = nullptr;
    Block *current_ = nullptr; // the block that records are being put into; null while it is the arena's first memory
    Block *spare_ = nullptr; // kept by reset, so that a scratch area near the end of a block costs no allocation a time
    OwnedStream *streams_ = nullptr;
    size_t next_size_ = 0;
    size_t spare_size_ = 0;
    bool announced_ = false; // of the outermost, for all within
    Arena *owner_ = nullptr;
    Arena *adopted_ = nullptr; // first of the adopted
    Arena *sibling_ = nullptr; // next among the adopted of the same owner
};

} // namespace kovra::asn1
