// One element that arrives in pieces: a walk over it and all elements inside, which keeps no octets and may stop and go
// on anywhere.
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/stack.hpp"
#include "base/thresholds.hpp"
#include "core/octets.hpp"
#include "kovra/util_stream.h"

namespace kovra::asn1 {

enum class PushState : uint8_t {
    identifier,      // before the first identifier octet
    tag,             // within a tag number of several octets
    length,          // before the first length octet
    long_length,     // within a length of several octets
    content,         // within the content
    end_of_contents, // behind the first octet of 00 00
    complete,
    failed,
};

// Identifier and length octets, as far as they have arrived.
struct PushedHeader {
    PushState state = PushState::identifier;
    uint8_t pending = 0; // length octets still to come
    Identifier identifier{};
    int32_t length = 0;

    // Takes octets until the state is `content` or a later one, and gives their number.
    size_t take(const uint8_t *octets, size_t count);

private:
    void take_identifier(uint8_t octet);
    size_t take_tag(const uint8_t *octets, size_t count);
    void take_length(uint8_t octet);
    size_t take_long_length(const uint8_t *octets, size_t count);
};

// The elements that are entered and not left. A definite one that ends with the one around it takes no memory, and
// neither does one of indefinite length.
class OpenElements {
public:
    static constexpr int64_t unlimited = INT64_MAX;

    // Before a record that holds one is released.
    void release() { outer_.clear_memory(); }

    // False when memory is short.
    bool enter(int64_t end);
    void enter_indefinite() { ++inner_.indefinite; }
    void leave_indefinite() { --inner_.indefinite; }
    // Leaves the definite ones that end here.
    void leave_ended(int64_t position) {
        while (inner_.end == position && inner_.indefinite == 0) {
            inner_ = outer_.top();
            outer_.pop();
        }
    }

    [[nodiscard]] bool is_none() const { return inner_.end == unlimited && inner_.indefinite == 0; }
    [[nodiscard]] bool is_indefinite() const { return inner_.indefinite != 0; }
    // Where the innermost definite one ends.
    [[nodiscard]] int64_t limit() const { return inner_.end; }

private:
    // A definite element, and the indefinite ones that are open inside without a further definite one between.
    struct Level {
        int64_t end;
        uint64_t indefinite;
    };

    Level inner_ = {unlimited, 0};
    HeldStack<Level, threshold<size_t>(8, 1)> outer_{"ASN1_Decode"}; // those around it, the outermost first
};

enum class Elements : uint8_t { all, octet_strings };

// The walk. Every octet is looked at once, whatever the pieces. It fails as soon as no continuation can be good: an
// element inside that ends behind the one around it is refused with its length octets.
class PushWalk {
public:
    // With `octet_strings`, the element and all inside must be OCTET STRINGs; 00 00 only stands where it ends one.
    explicit PushWalk(Elements elements) : elements_(elements) {}
    // To be called before the walk goes: the records that hold one have no destructor.
    void release() { open_.release(); }

    // Takes octets until the element ends or fails, and gives their number. Content octets of primitive elements go to
    // the stream, if there is one.
    size_t take(const uint8_t *octets, size_t count, kovra_stream *content);
    // The same up to the element's own content, or the second octet of 00 00.
    size_t take_header(const uint8_t *octets, size_t count);
    // Goes to the content of an OCTET STRING whose header was read elsewhere.
    void begin_content(Form form, int32_t length);

    void fail() { state_ = PushState::failed; }

    [[nodiscard]] PushState state() const { return state_; }
    [[nodiscard]] bool has_ended() const { return state_ == PushState::complete || state_ == PushState::failed; }
    // Of the element itself, once its header was taken.
    [[nodiscard]] const Identifier &identifier() const { return identifier_; }
    [[nodiscard]] int32_t length() const { return length_; }
    // Octets taken.
    [[nodiscard]] int64_t position() const { return position_; }

private:
    [[nodiscard]] bool is_outermost() const { return state_ < PushState::content; }
    [[nodiscard]] bool may_begin(uint8_t octet) const;
    size_t step(const uint8_t *octets, size_t count);
    size_t take_content(const uint8_t *octets, size_t count, kovra_stream *content);
    void enter();
    void end_element();
    void end_contents();

    PushedHeader header_; // of the innermost element
    uint32_t remaining_ = 0;
    Identifier identifier_;
    int32_t length_ = 0;
    int64_t position_ = 0;
    OpenElements open_;
    PushState state_ = PushState::identifier;
    Elements elements_;
};

} // namespace kovra::asn1
