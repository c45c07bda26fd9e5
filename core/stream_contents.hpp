// Long contents that stay in the caller's streams when the strings that hold them become parts of other values.
//
// A string whose content is so long that it is written in segments, from a stream that is not in memory, is copied as
// an empty constructed string of indefinite length, with a note beside the octets that tells the stream. Decoding the
// copy finds the note by the offset of the content.
#pragma once

#include <cstdint>

#include "base/thresholds.hpp"
#include "core/arena.hpp"
#include "kovra/util_stream.h"

namespace kovra::asn1 {

// Octets of the segments that contents in streams are written in.
inline constexpr auto segment_octets = threshold<int32_t>(8192, 3);

// One note. They live in blocks of their own, which go from the encoder to the arena of the copy.
struct StreamContent {
    StreamContent *next; // of the next lower offset; null: none
    StreamContent *jump; // one of those behind, or itself: by jumps as far as they lead, any is found in O(log n) steps
    Arena::Block *block;
    kovra_stream *stream;
    uint32_t offset; // of the content octets that stand for those of the stream
    uint32_t number; // of notes behind
    bool is_found;
};

// A new note in front of others, all of lower offsets; null when memory is short.
StreamContent *note_stream_content(StreamContent *others, kovra_stream *stream, uint32_t offset);
void drop_stream_contents(StreamContent *notes);
// Gives the notes to an arena, which frees them.
void link_stream_contents(Arena &arena, StreamContent *notes);
// The stream that stands for the content at an offset; null when there is none. When not all notes of a copy were asked
// for, the decoder read an empty string as something else, and the copy is wrong.
kovra_stream *find_stream_content(StreamContent *notes, uint32_t offset);
bool all_found(const StreamContent *notes);

// A stream that shows what `source` is written as: segments, and the end-of-contents octets. The source stays the
// caller's. Null when memory is short.
kovra_stream *new_segment_stream(kovra_stream *source);

} // namespace kovra::asn1
