#include "core/decoder.hpp"

#include <algorithm>
#include <cstring>

#include "core/stream_contents.hpp"

namespace kovra::asn1 {

namespace {

Site here(int32_t line = __builtin_LINE()) {
    return {"ASN1_Lib", line};
}

// Arenas of up to this many octets of encoding hold their copy in the same allocation as their records.
constexpr size_t one_allocation = threshold<size_t>(16384, 64);
// What is set aside for records at most.
constexpr size_t most_records = threshold<size_t>(too_large, 16);

} // namespace

Decoder::Decoder(kovra_stream *stream, kovra_err_ctx *ctx)
    : ctx_(ctx), no_stream_(stream == nullptr), has_source_and_place_(stream != nullptr) {
    int64_t length = 0;
    if (stream == nullptr)
        return;
    if (kovra_stream_peek(stream, &base_, &length) == success) {
        shown_ = stream;
        size_ = static_cast<uint32_t>(std::min<int64_t>(length, max_length));
    } else {
        stream_ = stream;
    }
}

Decoder::~Decoder() {
    Arena::drop_block(pulled_);
    drop_stream_contents(notes_);
}

bool Decoder::enter_long(uint32_t &length) {
    // Nearly all lengths of the long form have one octet or two.
    const uint32_t left = reach();
    const uint8_t *octets = next();
    const uint32_t header_octets = octets[1] - 0x80U + 2;
    if (header_octets - 3 > 1 || left < header_octets) {
        uint8_t identifier = 0;
        return header(identifier, length);
    }
    const uint32_t announced = header_octets == 3 ? octets[2] : uint32_t{octets[2]} << 8 | octets[3];
    if (announced > left - header_octets)
        return false;
    length = announced;
    position_ += header_octets;
    return true;
}

void Decoder::advance_stream() {
    if (shown_ != nullptr)
        kovra_stream_advance(shown_, position_);
}

// Gets octets from the stream until `count` unread ones are there. Memory grows with what arrives, not with what was
// announced.
bool Decoder::pull(uint32_t count) {
    constexpr size_t first_capacity = threshold<size_t>(256, 1);
    if (stream_ == nullptr)
        return false;
    while (reach() < count) {
        const uint32_t missing = count - reach();
        if (size_ == pulled_capacity_) {
            const size_t capacity = std::max(first_capacity, next_capacity(pulled_capacity_, pulled_capacity_));
            Arena::Block *block =
                pulled_ == nullptr ? Arena::new_block(capacity) : Arena::resize_block(pulled_, capacity);
            if (block == nullptr) {
                report(ctx_, here(), code::no_memory);
                stream_result_ = failure;
                stream_ = nullptr;
                return false;
            }
            pulled_ = block;
            pulled_capacity_ = capacity;
            base_ = block->memory();
            if (arena_ != nullptr)
                arena_->octets = base_;
        }
        const auto room =
            std::min<size_t>({missing, pulled_capacity_ - size_, static_cast<size_t>(max_length - size_)});
        int32_t got = 0;
        const Result result =
            room == 0 ? success
                      : kovra_stream_read(stream_, pulled_->memory() + size_, static_cast<int32_t>(room), &got, ctx_);
        if (result != success) {
            stream_result_ = result;
            stream_ = nullptr;
            return false;
        }
        if (got <= 0)
            return false;
        size_ += static_cast<uint32_t>(got);
    }
    return true;
}

// A stream's own failure has left its entry already.
Result Decoder::short_read(Site site) {
    if (no_stream_)
        return fail(site, code::null_argument);
    position_ = size_;
    if (stream_result_ != success)
        return stream_result_;
    // What a stream reports when it ends too soon, reported here for octets that are read in place.
    return fail({"UTIL_Stream", site.line}, code::stream_read);
}

// The octets that were read become the arena's.
bool Decoder::keep_octets() {
    if (pulled_ != nullptr) {
        arena_->link(pulled_, nullptr);
        arena_->octets = pulled_->memory();
        pulled_ = nullptr;
    } else if (position_ != 0) {
        auto *copy = static_cast<uint8_t *>(arena_->allocate(position_));
        if (copy == nullptr)
            return false;
        std::memcpy(copy, base_, position_);
        arena_->octets = copy;
    }
    arena_->octets_length = position_;
    return true;
}

bool Decoder::begin_arena(size_t octets, size_t records) {
    arena_ = Arena::create(std::min(records, most_records), octets <= one_allocation ? octets : 0);
    if (arena_ == nullptr) {
        fail(here(), code::no_memory);
        return false;
    }
    arena_->octets = base_;
    arena_->stream_contents = notes_;
    return true;
}

Result Decoder::end_arena(Result result, Value *value, Value *&out) {
    Arena *arena = arena_;
    if (result == success && value != nullptr) {
        arena->root = value;
        if (keep_octets()) {
            link_stream_contents(*arena, notes_);
            notes_ = nullptr;
            out = value;
            arena_ = nullptr;
            return success;
        }
        result = fail(here(), code::no_memory);
    }
    Arena::destroy(arena);
    arena_ = nullptr;
    return result;
}

Decoder::Scratch::Scratch(Decoder &decoder, bool only_checking)
    : decoder_(decoder), outer_(decoder.arena_), checking_(decoder.checking_) {
    constexpr size_t records = threshold<size_t>(4096, 16);
    own_ = Arena::create(records);
    if (own_ == nullptr)
        return;
    own_->octets = decoder.base_;
    own_->octets_length = decoder.size_;
    own_->stream_contents = outer_->stream_contents;
    begin_ = own_->mark();
    decoder.arena_ = own_;
    decoder.checking_ = checking_ || only_checking;
}

Decoder::Scratch::~Scratch() {
    if (own_ == nullptr)
        return;
    decoder_.arena_ = outer_;
    // Octets from a stream may have moved meanwhile.
    outer_->octets = decoder_.base_;
    decoder_.checking_ = checking_;
    Arena::destroy(own_);
}

Result decode_long_identifier(Decoder &decoder, Site site, Identifier &out) {
    const Result result = read_identifier(decoder, here(), out);
    return result == success ? success : decoder.fail(site, code::read_identifier, result);
}

Result decode_long_length(Decoder &decoder, Site site, int32_t &out) {
    const Result result = read_length(decoder, here(), out);
    return result == success ? success : decoder.fail(site, code::read_length, result);
}

Result decode_end_of_contents_length(Decoder &decoder, Site site) {
    const Result result = read_end_of_contents_length(decoder, here());
    return result == success ? success : decoder.fail(site, code::read_end_of_contents, result);
}

} // namespace kovra::asn1
