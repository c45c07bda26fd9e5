#include "core/encoder.hpp"

#include <algorithm>
#include <cstring>

#include "base/sizes.hpp"
#include "core/value.hpp"
#include "kovra/util_memory.h"

namespace kovra::asn1 {

namespace {

constexpr char source_name[] = "ASN1_Lib";

// What is gathered before it goes to the stream.
constexpr size_t piece = threshold<size_t>(size_t{256} * 1024, 3);
constexpr int32_t copy_piece = threshold(8192, 3);

} // namespace

Encoder::~Encoder() {
    if (data_ != inline_)
        kovra_free(data_);
    drop_stream_contents(notes_);
}

void Encoder::copy_in(const void *octets, size_t count) {
    if (count != 0)
        std::memcpy(data_ + size_, octets, count);
    size_ += count;
}

Result Encoder::reserve(Site site, size_t count) {
    if (count <= capacity_ - size_)
        return success;
    const size_t capacity = std::max(sum(size_, count), next_capacity(capacity_, capacity_ / 2));
    if (capacity == too_large)
        return fail(site, code::no_memory);
    auto *grown = static_cast<uint8_t *>(data_ == inline_ ? kovra_malloc(capacity, source_name, __LINE__)
                                                          : kovra_realloc(data_, capacity, source_name, __LINE__));
    if (grown == nullptr)
        return fail(site, code::no_memory);
    if (data_ == inline_)
        std::memcpy(grown, inline_, size_);
    data_ = grown;
    capacity_ = capacity;
    return success;
}

Result Encoder::expect(Site site, size_t count, const Value &value) {
    if (refusal_ != success)
        return success;
    if (stream_ != nullptr && held_ == 0)
        count = std::min(count, piece);
    return count <= capacity_ - size_ || value.arena->has_announced() ? success : reserve(site, count);
}

Result Encoder::note(Site site, kovra_stream *content) {
    if (written() > max_length)
        return fail(site, code::length_too_large);
    StreamContent *made = note_stream_content(notes_, content, static_cast<uint32_t>(written()));
    if (made == nullptr)
        return fail(site, code::no_memory);
    notes_ = made;
    return success;
}

Result Encoder::put_more(Site site, const void *octets, size_t count) {
    if (refusal_ != success)
        return refusal_;
    if (stream_ != nullptr && held_ == 0 && sum(size_, count) > piece) {
        if (const Result result = flush(); result != success)
            return result;
        // What is larger than a piece need not be gathered.
        for (const auto *next = static_cast<const uint8_t *>(octets); count > piece; octets = next) {
            if (const Result result = kovra_stream_writen(stream_, next, static_cast<int32_t>(piece), nullptr, ctx_);
                result != success)
                return result;
            flushed_ += static_cast<int64_t>(piece);
            next += piece;
            count -= piece;
        }
    }
    if (const Result result = reserve(site, count); result != success)
        return result;
    copy_in(octets, count);
    return success;
}

Result Encoder::flush() {
    for (size_t done = 0; done < size_;) {
        const size_t count = std::min<size_t>(size_ - done, max_length);
        if (const Result result =
                kovra_stream_writen(stream_, data_ + done, static_cast<int32_t>(count), nullptr, ctx_);
            result != success)
            return result;
        done += count;
    }
    flushed_ += static_cast<int64_t>(size_);
    size_ = 0;
    return success;
}

bool Encoder::refuse_all(Result result) {
    if (flushed_ != 0)
        return false;
    refusal_ = result;
    // With no capacity, every octet that is put comes to `put_more`, which refuses it.
    size_ = capacity_ = 0;
    return true;
}

Result Encoder::identifier(Site site, Class tag_class, Form form, int32_t tag) {
    if (no_stream_)
        return fail(site, code::null_argument);
    if (tag < 0)
        return fail(site, code::bad_tag);
    uint8_t octets[max_identifier_octets];
    return put(site, octets, static_cast<size_t>(put_identifier(octets, tag_class, form, tag)));
}

Result Encoder::length(Site site, int32_t length) {
    if (no_stream_)
        return fail(site, code::null_argument);
    if (length < indefinite)
        return fail(site, code::bad_length);
    uint8_t octets[max_length_octets];
    return put(site, octets, static_cast<size_t>(put_length(octets, length)));
}

Result Encoder::end_of_contents(Site site) {
    static constexpr uint8_t octets[2] = {0, 0};
    return put(site, octets, sizeof octets);
}

Result Encoder::copy(Site site, kovra_stream *source, int64_t most, int64_t &out_count) {
    out_count = 0;
    if (refusal_ != success)
        return refusal_;
    if (stream_ != nullptr && held_ == 0) {
        Result result = flush();
        if (result == success)
            result = kovra_stream_writefromstream(stream_, source, &out_count, ctx_);
        flushed_ += out_count;
        return result;
    }
    if (kovra_stream_ctrl(source, KOVRA_STREAM_REWIND, 0, ctx_) != success)
        return fail(site, code::stream_control);
    while (out_count <= most) {
        int32_t got = 0;
        if (const Result result = reserve(site, copy_piece); result != success)
            return result;
        if (const Result result = kovra_stream_read(source, data_ + size_, copy_piece, &got, ctx_); result != success)
            return result;
        if (got <= 0)
            return success;
        size_ += static_cast<size_t>(got);
        out_count += got;
    }
    return success;
}

} // namespace kovra::asn1
