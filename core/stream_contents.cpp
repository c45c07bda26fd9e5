#include "core/stream_contents.hpp"

#include <algorithm>
#include <cstring>
#include <new>

#include "base/ensure.hpp"
#include "core/failure.hpp"
#include "core/octets.hpp"
#include "kovra/util_memory.h"

namespace kovra::asn1 {

StreamContent *note_stream_content(StreamContent *others, kovra_stream *stream, uint32_t offset) {
    ensure(others == nullptr || others->offset < offset);
    Arena::Block *block = Arena::new_block(sizeof(StreamContent));
    if (block == nullptr)
        return nullptr;
    auto *made = new (block->memory()) StreamContent{others, nullptr, block, stream, offset, 0, false};
    made->jump = made;
    if (others == nullptr)
        return made;
    made->number = others->number + 1;
    // Two jumps of one length in a row become one that is as long as both: the lengths are those of full binary trees.
    const StreamContent *first = others->jump;
    const bool are_alike = others->number - first->number == first->number - first->jump->number;
    made->jump = are_alike ? first->jump : others;
    return made;
}

void drop_stream_contents(StreamContent *notes) {
    while (notes != nullptr) {
        StreamContent *next = notes->next;
        Arena::drop_block(notes->block);
        notes = next;
    }
}

void link_stream_contents(Arena &arena, StreamContent *notes) {
    if (notes != nullptr)
        arena.note_announced();
    for (; notes != nullptr; notes = notes->next)
        arena.link(notes->block, nullptr);
}

kovra_stream *find_stream_content(StreamContent *notes, uint32_t offset) {
    while (notes != nullptr && notes->offset > offset)
        notes = notes->jump != notes && notes->jump->offset >= offset ? notes->jump : notes->next;
    if (notes == nullptr || notes->offset != offset)
        return nullptr;
    notes->is_found = true;
    return notes->stream;
}

bool all_found(const StreamContent *notes) {
    while (notes != nullptr && notes->is_found)
        notes = notes->next;
    return notes == nullptr;
}

namespace {

// One segment at a time; behind the last, the end-of-contents octets.
struct Segments {
    kovra_stream *source;
    int32_t given;
    int32_t filled;
    bool ended;
    uint8_t octets[1 + max_length_octets + segment_octets];
};

Result fill(Segments &segments) {
    uint8_t content[segment_octets];
    int32_t got = 0;
    const Result result = kovra_stream_read(segments.source, content, segment_octets, &got, nullptr);
    if (result != success)
        return result;
    segments.given = 0;
    segments.ended = got <= 0;
    segments.octets[0] = segments.ended ? uint8_t{0} : uint8_t{tag::octet_string};
    segments.filled = 1 + put_length(segments.octets + 1, std::max(got, 0));
    std::memcpy(segments.octets + segments.filled, content, static_cast<size_t>(std::max(got, 0)));
    segments.filled += std::max(got, 0);
    return success;
}

int32_t read_segments(void *user, void *buffer, int32_t size, int32_t *out_count) {
    Segments &segments = *static_cast<Segments *>(user);
    *out_count = 0;
    if (segments.given == segments.filled && !segments.ended)
        if (const Result result = fill(segments); result != success)
            return result;
    *out_count = std::min(size, segments.filled - segments.given);
    std::memcpy(buffer, segments.octets + segments.given, static_cast<size_t>(*out_count));
    segments.given += *out_count;
    return success;
}

int64_t control_segments(void *user, int32_t command, int64_t) {
    Segments &segments = *static_cast<Segments *>(user);
    if (command == KOVRA_STREAM_SIZE)
        return -1;
    if (command != KOVRA_STREAM_REWIND)
        return 0;
    segments.given = segments.filled = 0;
    segments.ended = false;
    return kovra_stream_ctrl(segments.source, KOVRA_STREAM_REWIND, 0, nullptr);
}

} // namespace

kovra_stream *new_segment_stream(kovra_stream *source) {
    auto *segments = static_cast<Segments *>(kovra_malloc(sizeof(Segments), "ASN1_Any", __LINE__));
    if (segments == nullptr)
        return nullptr;
    segments->source = source;
    segments->given = segments->filled = 0;
    segments->ended = false;
    const kovra_stream_callbacks callbacks = {read_segments, nullptr, control_segments, kovra_free};
    kovra_stream *stream = kovra_stream_new_callbacks(&callbacks, segments, nullptr);
    if (stream == nullptr)
        kovra_free(segments);
    return stream;
}

} // namespace kovra::asn1
