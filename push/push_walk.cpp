#include "push/push_walk.hpp"

#include <algorithm>

namespace kovra::asn1 {

size_t PushedHeader::take(const uint8_t *octets, size_t count) {
    size_t at = 0;
    while (at < count && state < PushState::content) {
        switch (state) {
        case PushState::identifier:
            take_identifier(octets[at++]);
            break;
        case PushState::tag:
            at += take_tag(octets + at, count - at);
            break;
        case PushState::length:
            take_length(octets[at++]);
            break;
        default:
            at += take_long_length(octets + at, count - at);
        }
    }
    return at;
}

void PushedHeader::take_identifier(uint8_t octet) {
    identifier.tag_class = static_cast<Class>(octet & 0xC0);
    identifier.form = (octet & 0x20) != 0 ? Form::constructed : Form::primitive;
    identifier.tag = octet & 0x1F;
    state = PushState::length;
    if (octet == 0) {
        state = PushState::end_of_contents;
    } else if (identifier.tag == 0x1F) {
        identifier.tag = 0;
        state = PushState::tag;
    }
}

// X.690, 8.1.2.4 ends a tag number with an octet below 80. Here an octet of 80 and above ends it, its low bits belong
// to the number, and it is the first length octet, too: callers know the elements that come out right this way.
size_t PushedHeader::take_tag(const uint8_t *octets, size_t count) {
    for (size_t at = 0; at < count; ++at) {
        identifier.tag = identifier.tag << 7 | (octets[at] & 0x7F);
        if ((octets[at] & 0x80) != 0) {
            state = identifier.tag >= 31 ? PushState::length : PushState::failed;
            return at;
        }
        // Which keeps the next digit within 31 bits.
        if (identifier.tag >= 0x1000000) {
            state = PushState::failed;
            return at + 1;
        }
    }
    return count;
}

void PushedHeader::take_length(uint8_t octet) {
    state = PushState::content;
    if (octet < 0x80) {
        length = octet;
    } else if (octet == 0x80) {
        length = indefinite;
        if (identifier.form == Form::primitive)
            state = PushState::failed;
    } else if (octet == 0xFF) {
        state = PushState::failed;
    } else {
        pending = octet & 0x7F;
        state = PushState::long_length;
    }
}

size_t PushedHeader::take_long_length(const uint8_t *octets, size_t count) {
    const size_t taken = std::min<size_t>(pending, count);
    for (size_t at = 0; at < taken; ++at) {
        if (length >= 0x800000) {
            state = PushState::failed;
            return at + 1;
        }
        length = length << 8 | octets[at];
    }
    pending = static_cast<uint8_t>(pending - taken);
    if (pending == 0)
        state = PushState::content;
    return taken;
}

bool OpenElements::enter(int64_t end) {
    if (end == inner_.end && inner_.indefinite == 0)
        return true;
    if (!outer_.push(inner_))
        return false;
    inner_ = {end, 0};
    return true;
}

size_t PushWalk::take(const uint8_t *octets, size_t count, kovra_stream *content) {
    size_t at = 0;
    while (at < count && !has_ended()) {
        at += header_.state == PushState::content ? take_content(octets + at, count - at, content)
                                                  : step(octets + at, count - at);
        // Octets are still to come, where the element around ends.
        if (position_ == open_.limit())
            fail();
    }
    return at;
}

size_t PushWalk::take_header(const uint8_t *octets, size_t count) {
    size_t at = 0;
    while (at < count && is_outermost())
        at += step(octets + at, count - at);
    return at;
}

void PushWalk::begin_content(Form form, int32_t length) {
    state_ = header_.state = PushState::content;
    identifier_ = header_.identifier = {Class::universal, form, tag::octet_string};
    length_ = header_.length = length;
    enter();
}

bool PushWalk::may_begin(uint8_t octet) const {
    return elements_ == Elements::all || (octet & ~0x20) == tag::octet_string || (octet == 0 && open_.is_indefinite());
}

// Header octets of one element, none of them behind the end of the element around it.
size_t PushWalk::step(const uint8_t *octets, size_t count) {
    if (header_.state == PushState::identifier && !may_begin(octets[0])) {
        fail();
        return 0;
    }
    size_t taken = 1;
    if (header_.state == PushState::end_of_contents) {
        header_.state = octets[0] == 0 ? PushState::complete : PushState::failed;
    } else {
        const auto room = static_cast<uint64_t>(open_.limit() - position_);
        taken = header_.take(octets, static_cast<size_t>(std::min<uint64_t>(count, room)));
    }
    position_ += static_cast<int64_t>(taken);
    if (is_outermost()) {
        state_ = header_.state;
        identifier_ = header_.identifier;
        length_ = header_.length;
    }
    if (header_.state == PushState::failed)
        fail();
    else if (header_.state == PushState::content)
        enter();
    else if (header_.state == PushState::complete)
        end_contents();
    return taken;
}

size_t PushWalk::take_content(const uint8_t *octets, size_t count, kovra_stream *content) {
    const auto taken = static_cast<uint32_t>(std::min<size_t>(remaining_, count));
    if (content != nullptr &&
        kovra_stream_writen(content, octets, static_cast<int32_t>(taken), nullptr, nullptr) != 1) {
        fail();
        return taken;
    }
    remaining_ -= taken;
    position_ += taken;
    if (remaining_ == 0)
        end_element();
    return taken;
}

void PushWalk::enter() {
    if (header_.length == indefinite) {
        open_.enter_indefinite();
        header_ = {};
        return;
    }
    const int64_t end = position_ + header_.length;
    if (end > open_.limit())
        return fail();
    if (header_.length == 0)
        return end_element();
    if (header_.identifier.form == Form::primitive)
        remaining_ = static_cast<uint32_t>(header_.length);
    else if (open_.enter(end))
        header_ = {};
    else
        fail();
}

void PushWalk::end_element() {
    header_ = {};
    open_.leave_ended(position_);
    if (open_.is_none())
        state_ = PushState::complete;
}

// Where no indefinite element is open to be ended, 00 00 is an element like any other.
void PushWalk::end_contents() {
    if (open_.is_indefinite())
        open_.leave_indefinite();
    end_element();
}

} // namespace kovra::asn1
