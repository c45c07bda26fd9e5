// One decode call: where the octets come from, the arena that the records go to, and who hears of failures.
//
// Reading functions give 1, or report why not and give the result to return. Offsets count from the first octet of the
// call; records refer to octets by offset, so the octets may move while more of them arrive from a stream.
//
// The words of reading:
//   look     see the next octet if it is there; nothing moves
//   enter    step over an identifier and its length if they are the expected ones, the length is definite, and all of
//            the content is there; else nothing moves
//   header   the same for any identifier
//   take     make a record of primitive content that is all there; else nothing moves
//   read, decode  go on with care: ask the stream for octets, report what is wrong
//   plain    (a door of a type) behind the usual identifier and a definite length, all content being there
//   behind   (a door of a type) behind any identifier that the value can begin with, and a length
//   window   octets from an end on are out of reach
//   scratch  records go to an arena of its own for a while
// look, enter, header and take do the usual case or nothing: trying them first and then reading with care does the same
// as reading with care at once.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "base/ensure.hpp"
#include "core/arena.hpp"
#include "core/failure.hpp"
#include "core/octets.hpp"
#include "core/value.hpp"

namespace kovra::asn1 {

struct Type;

// An element whose identifier and length octets were read.
struct Element {
    static constexpr uint32_t no_start = UINT32_MAX;

    Form form;
    int32_t length;            // indefinite: up to its end-of-contents octets
    uint32_t start = no_start; // offset of its identifier, when that is the type's own
};

class Decoder {
public:
    // Over octets in memory.
    Decoder(const void *data, uint32_t length, kovra_err_ctx *ctx)
        : ctx_(ctx), base_(static_cast<const uint8_t *>(data)), size_(length) {}
    // Over a stream from its read position: in place when the stream shows its octets, else read as lengths announce
    // them. A null stream fails when the first octet is wanted.
    Decoder(kovra_stream *stream, kovra_err_ctx *ctx);
    // Over the octets of an arena that is to receive further records, from one of them on; behind them there is
    // nothing to read.
    Decoder(Arena &arena, uint32_t position)
        : ctx_(nullptr), base_(arena.octets), size_(arena.octets_length), position_(std::min(position, size_)),
          arena_(&arena) {
        ensure(position <= size_);
    }
    ~Decoder();
    Decoder(const Decoder &) = delete;
    Decoder &operator=(const Decoder &) = delete;

    // Runs decode(value) with an arena of its own for what it makes, which holds a copy of the octets in the end. About
    // `octets` of them are expected, and `records` octets of records.
    template <class Decode> Result into_own_arena(size_t octets, size_t records, Decode decode, Value *&out) {
        if (!begin_arena(octets, records))
            return failure;
        Value *value = nullptr;
        const Result result = decode(value);
        return end_arena(result, value, out);
    }
    // The octets in memory that the decoder reads become the arena's without a copy when the decode succeeds.
    void take_over(Arena::Block *block) { pulled_ = block; }
    // Contents that are in streams, from the encoding whose octets are read. They become the arena's when the decode
    // succeeds.
    void place_streams(StreamContent *notes) { notes_ = notes; }
    // Steps a stream that shows its octets over those that were read.
    void advance_stream();

    [[nodiscard]] uint32_t position() const { return position_; }
    void rewind(uint32_t position) {
        ensure(position <= size_);
        position_ = position;
    }
    [[nodiscard]] const uint8_t *at(uint32_t offset) const { return base_ + offset; }
    // The octets from the position on, and how many there are.
    [[nodiscard]] const uint8_t *next() const { return base_ + position_; }
    [[nodiscard]] uint32_t reach() const {
        ensure(position_ <= size_);
        return size_ - position_;
    }
    [[nodiscard]] Arena &arena() const { return *arena_; }
    [[nodiscard]] kovra_err_ctx *ctx() const { return ctx_; }
    [[nodiscard]] bool has_stream() const { return !no_stream_; }

    Result octet(Site site, uint8_t &out) {
        if (position_ == size_ && !pull(1))
            return short_read(site);
        out = base_[position_++];
        return success;
    }
    // The next octet, if it is there already, and a step over it.
    [[nodiscard]] bool look(uint8_t &out) const {
        if (position_ == size_)
            return false;
        out = base_[position_];
        return true;
    }
    void step() { step_over(1); }
    // Steps over octets that are there.
    void step_over(uint32_t count) {
        ensure(count <= reach());
        position_ += count;
    }
    // Steps over a header that has one identifier octet and a definite length, if it and all of the content are there;
    // false, and nothing done, otherwise. Nearly every element is like that.
    bool header(uint8_t &identifier, uint32_t &length) {
        constexpr uint32_t long_form = 0x80;
        const uint32_t left = reach();
        const uint8_t *octets = base_ + position_;
        if (left < 2 || (octets[0] & 0x1F) == 0x1F)
            return false;
        uint32_t header_octets = 2;
        uint32_t announced = octets[1];
        if (announced >= long_form) {
            const uint32_t count = announced - long_form;
            if (count - 1 > 2 || left < header_octets + count)
                return false;
            announced = 0;
            for (uint32_t i = 0; i < count; ++i)
                announced = announced << 8 | octets[header_octets++];
        }
        if (announced > left - header_octets)
            return false;
        identifier = octets[0];
        length = announced;
        position_ += header_octets;
        return true;
    }
    // The same for one identifier.
    bool enter(uint8_t identifier, uint32_t &length) {
        const uint32_t left = reach();
        const uint8_t *octets = base_ + position_;
        if (left < 2 || octets[0] != identifier)
            return false;
        if (octets[1] >= 0x80)
            return enter_long(length);
        if (octets[1] > left - 2)
            return false;
        length = octets[1];
        position_ += 2;
        return true;
    }
    // Steps over `count` octets of content.
    Result skip(Site site, uint32_t count) {
        if (count > reach() && !pull(count))
            return short_read(site);
        position_ += count;
        return success;
    }
    [[nodiscard]] Octets octets_from(uint32_t offset) const { return {nullptr, offset, position_ - offset}; }

    Result fail(Site site, int32_t code, Result result = failure) const {
        report(ctx_, site, code);
        return result;
    }
    // Adds an entry that succeeds: the decode goes on.
    void warn(Site site, int32_t code) const { report(ctx_, site, code); }

    // Primitive content of at least one octet that is all there goes into a new record, made in the room that the
    // arena has left; null, and nothing done, when it is anything else.
    template <class T> T *take(const Element &element, Octets &octets) {
        const auto length = static_cast<uint32_t>(element.length);
        if (element.form != Form::primitive || length - 1 >= reach() || !has_source_and_place_)
            return nullptr;
        auto *record = static_cast<T *>(arena_->allocate_in_place(sizeof(T)));
        if (record == nullptr)
            return nullptr;
        std::memset(static_cast<void *>(record), 0, sizeof(T));
        record->kind = T::own_kind;
        record->arena = arena_;
        octets = {nullptr, position_, length};
        position_ += length;
        return record;
    }

    // Are there a stream to read from and a place for the value? Content decoders ask this first.
    [[nodiscard]] bool has_source_and_place() const { return has_source_and_place_; }
    void lack_place() { has_source_and_place_ = false; }

    // Values are only being checked: nobody will see them.
    [[nodiscard]] bool checking() const { return checking_; }

    // While it lives, octets from `end` on, which are there, are out of reach.
    class Window {
    public:
        Window(Decoder &decoder, uint32_t end) : decoder_(decoder), size_(decoder.size_), stream_(decoder.stream_) {
            ensure(end <= size_ && decoder.position_ <= end);
            decoder.size_ = end;
            decoder.stream_ = nullptr;
        }
        ~Window() {
            decoder_.size_ = size_;
            decoder_.stream_ = stream_;
        }
        Window(const Window &) = delete;
        Window &operator=(const Window &) = delete;
        // Has all been read? Octets that are kept are those of what was read.
        [[nodiscard]] bool is_used_up() const { return decoder_.position_ == decoder_.size_; }

    private:
        Decoder &decoder_;
        uint32_t size_;
        kovra_stream *stream_;
    };

    // While it lives, records go to an arena of its own, which `clear` empties and which ends with it. Scratch areas
    // nest; none knows of another's memory, and what is linked to an arena around it stays.
    class Scratch {
    public:
        // Begins, unless memory is short: then nothing changes. Values that are only checked need not be complete.
        Scratch(Decoder &decoder, bool only_checking);
        ~Scratch();
        Scratch(const Scratch &) = delete;
        Scratch &operator=(const Scratch &) = delete;
        [[nodiscard]] bool has_begun() const { return own_ != nullptr; }
        void clear() { own_->reset(begin_); }

    private:
        Decoder &decoder_;
        Arena *outer_;
        bool checking_;
        Arena *own_;
        Arena::Mark begin_{};
    };

private:
    bool enter_long(uint32_t &length);
    bool pull(uint32_t count);
    Result short_read(Site site);
    bool begin_arena(size_t octets, size_t records);
    Result end_arena(Result result, Value *value, Value *&out);
    bool keep_octets();

    kovra_err_ctx *ctx_;
    const uint8_t *base_ = nullptr;
    uint32_t size_ = 0; // octets there so far
    uint32_t position_ = 0;
    Arena *arena_ = nullptr;
    kovra_stream *stream_ = nullptr; // where more octets come from
    kovra_stream *shown_ = nullptr;  // the stream whose octets are read in place
    Arena::Block *pulled_ = nullptr; // holds the octets that came from `stream_`
    size_t pulled_capacity_ = 0;
    StreamContent *notes_ = nullptr;
    Result stream_result_ = success; // of the stream's last failed read
    bool no_stream_ = false;
    bool has_source_and_place_ = true;
    bool checking_ = false;
};

// Reads identifier octets, each by source.octet(site, octet). Non-minimal tag numbers are accepted; tag numbers below
// 31 in the long form, and those of 2^31 and more, are not.
template <class Source> Result read_identifier(Source &source, Site site, Identifier &out) {
    uint8_t octet = 0;
    if (const Result result = source.octet(site, octet); result != success)
        return result;
    out = identifier_of(octet);
    if (out.tag != 0x1F)
        return success;
    uint32_t value = 0;
    for (;;) {
        if (const Result result = source.octet(site, octet); result != success)
            return result;
        value |= octet & 0x7FU;
        if ((octet & 0x80) == 0)
            break;
        if (value >= 0x1000000)
            return source.fail(site, code::tag_too_large);
        value <<= 7;
    }
    if (value < 31)
        return source.fail(site, code::bad_tag);
    out.tag = static_cast<int32_t>(value);
    return success;
}

// Reads length octets. Non-minimal forms are accepted; a length of 2^31 and more is not.
template <class Source> Result read_length(Source &source, Site site, int32_t &out) {
    uint8_t octet = 0;
    if (const Result result = source.octet(site, octet); result != success)
        return result;
    if ((octet & 0x80) == 0) {
        out = octet;
        return success;
    }
    if (octet == 0x80) {
        out = indefinite;
        return success;
    }
    if (octet == 0xFF)
        return source.fail(site, code::bad_length);
    uint32_t value = 0;
    for (int count = octet & 0x7F; count > 0; --count) {
        if (value >= 0x800000)
            return source.fail(site, code::tag_too_large);
        if (const Result result = source.octet(site, octet); result != success)
            return result;
        value = value << 8 | octet;
    }
    out = static_cast<int32_t>(value);
    return success;
}

// Reads what follows an identifier of end-of-contents.
template <class Source> Result read_end_of_contents_length(Source &source, Site site) {
    uint8_t octet = 0;
    if (const Result result = source.octet(site, octet); result != success)
        return result;
    return octet == 0 ? success : source.fail(site, code::bad_end_of_contents);
}

// The same on a decoder, with the entry that every caller adds on failure: it names the caller.
Result decode_long_identifier(Decoder &decoder, Site site, Identifier &out);
Result decode_long_length(Decoder &decoder, Site site, int32_t &out);
Result decode_end_of_contents_length(Decoder &decoder, Site site);

// What nearly every element has, one octet of each, is read in place.
inline Result decode_identifier(Decoder &decoder, Site site, Identifier &out) {
    uint8_t octet = 0;
    if (!decoder.look(octet) || (octet & 0x1F) == 0x1F)
        return decode_long_identifier(decoder, site, out);
    decoder.step();
    out = identifier_of(octet);
    return success;
}

inline Result decode_length(Decoder &decoder, Site site, int32_t &out) {
    uint8_t octet = 0;
    if (!decoder.look(octet) || octet >= 0x80)
        return decode_long_length(decoder, site, out);
    decoder.step();
    out = octet;
    return success;
}

} // namespace kovra::asn1
