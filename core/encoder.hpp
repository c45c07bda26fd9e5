// One encode call: octets are gathered and go to the stream in large pieces.
//
// Every function gives 1, or records why not and gives the result to return.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/failure.hpp"
#include "core/octets.hpp"
#include "core/stream_contents.hpp"
#include "kovra/util_stream.h"

namespace kovra::asn1 {

struct Value;

class Encoder {
public:
    // To a stream; a null stream fails when identifier or content octets are to be written.
    Encoder(kovra_stream *stream, kovra_err_ctx *ctx) : ctx_(ctx), stream_(stream), no_stream_(stream == nullptr) {}
    // To memory: `data` and `size` give the octets.
    explicit Encoder(kovra_err_ctx *ctx) : ctx_(ctx) {}
    ~Encoder();
    Encoder(const Encoder &) = delete;
    Encoder &operator=(const Encoder &) = delete;

    [[nodiscard]] kovra_err_ctx *ctx() const { return ctx_; }
    [[nodiscard]] bool has_stream() const { return !no_stream_; }
    Result fail(Site site, int32_t code, Result result = failure) const {
        report(ctx_, site, code);
        return result;
    }

    // Makes room for `count` octets that are to come, so that they take one allocation.
    Result reserve(Site site, size_t count);
    // The same for a value, which is believed only if all of it is in memory, and where the octets need not all be
    // gathered before they go to the stream. Where there is room already the value is not looked at: for a NULL it may
    // be a handle of any kind.
    Result expect(Site site, size_t count, const Value &value);

    Result put(Site site, const void *octets, size_t count) {
        if (count > capacity_ - size_)
            return put_more(site, octets, count);
        copy_in(octets, count);
        return success;
    }
    Result identifier(Site site, Class tag_class, Form form, int32_t tag);
    Result length(Site site, int32_t length);
    // The two octets 00 00.
    Result end_of_contents(Site site);
    // Copies a whole stream, from its start, and tells how many octets that were. One that goes on behind `most` octets
    // is not gathered to its end.
    Result copy(Site site, kovra_stream *source, int64_t most, int64_t &out_count);

    // Octets put so far.
    [[nodiscard]] int64_t written() const { return flushed_ + static_cast<int64_t>(size_); }

    // While held, what was put stays in memory: `since` gives it.
    void hold() { ++held_; }
    void release() { --held_; }
    [[nodiscard]] const uint8_t *since(int64_t mark) const { return data_ + (mark - flushed_); }

    // Contents in streams that would be written in segments are left where they are and noted.
    void leave_streams() { leaves_streams_ = true; }
    [[nodiscard]] bool leaves_streams() const { return leaves_streams_ && held_ == 0; }
    // Notes a stream in place of the segments that would follow.
    Result note(Site site, kovra_stream *content);
    // The notes, which are the caller's from then on.
    StreamContent *take_notes() {
        StreamContent *notes = notes_;
        notes_ = nullptr;
        return notes;
    }

    // Gives everything to the stream.
    Result flush();
    // For an encoding that begins anew because the stream took nothing of what was gathered: its first octets are now
    // refused with the stream's result, which leaves the entries of where they are. False when some were taken.
    bool refuse_all(Result result);
    [[nodiscard]] const uint8_t *data() const { return data_; }
    [[nodiscard]] size_t size() const { return size_; }

private:
    void copy_in(const void *octets, size_t count);
    Result put_more(Site site, const void *octets, size_t count);

    kovra_err_ctx *ctx_;
    kovra_stream *stream_ = nullptr;
    int64_t flushed_ = 0;
    uint32_t held_ = 0;
    StreamContent *notes_ = nullptr;
    Result refusal_ = success; // of a stream that is known to take nothing
    bool no_stream_ = false;
    bool leaves_streams_ = false;
    // At least as many as a default is written in.
    uint8_t inline_[threshold(512, 32)];
    uint8_t *data_ = inline_;
    size_t size_ = 0;
    size_t capacity_ = sizeof inline_;
};

} // namespace kovra::asn1
