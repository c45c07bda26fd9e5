#include "input.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string_view>

#include "base/thresholds.hpp"
#include "element.hpp"
#include "kovra/asn1.h"
#include "kovra/util.h"
#include "platform.hpp"

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#endif

namespace kovra::tool {

namespace {

std::string_view view(const std::vector<uint8_t> &octets) {
    return {reinterpret_cast<const char *>(octets.data()), octets.size()};
}

bool is_space(uint8_t octet) {
    return octet == ' ' || (octet >= '\t' && octet <= '\r');
}

// Octets that mark a file as BER: control characters but white space. Octets of 80 and above may be UTF-8.
bool is_control(uint8_t octet) {
    return (octet < 0x20 && !is_space(octet)) || octet == 0x7F;
}

// Room is made for a whole file of at most this size. For a directory, some systems tell the largest number there is.
constexpr long largest_trusted_size = 0x7FFFFFFE;

constexpr std::string_view armour = "-----BEGIN ";

// Where the first line of PEM armour begins; npos without one.
size_t find_armour(std::string_view text) {
    size_t at = text.find(armour);
    while (at != 0 && at != std::string_view::npos && text[at - 1] != '\n' && text[at - 1] != '\r' &&
           !(at == 3 && text.starts_with("\xEF\xBB\xBF")))
        at = text.find(armour, at + 1);
    return at;
}

// Copies octets that the library gave, and frees them. False for null.
bool take(void *octets, int32_t length, std::vector<uint8_t> &out) {
    if (octets == nullptr)
        return false;
    const auto *begin = static_cast<const uint8_t *>(octets);
    out.assign(begin, begin + length);
    kovra_free(octets);
    return true;
}

bool from_hex(const std::vector<uint8_t> &text, std::vector<uint8_t> &out) {
    std::string digits;
    for (const uint8_t octet : text) {
        const bool is_digit =
            (octet >= '0' && octet <= '9') || (octet >= 'a' && octet <= 'f') || (octet >= 'A' && octet <= 'F');
        if (is_digit)
            digits += static_cast<char>(octet);
        else if (!is_space(octet) && octet != ':')
            return false;
    }
    int32_t length = 0;
    void *octets = kovra_hexdecode(digits.data(), static_cast<int64_t>(digits.size()), &length);
    return take(octets, length, out) && !out.empty();
}

bool from_base64(const std::vector<uint8_t> &text, std::vector<uint8_t> &out) {
    int32_t length = 0;
    void *octets =
        kovra_base64decode(view(text).data(), static_cast<int64_t>(text.size()), KOVRA_BASE64_IGNORE_SPACE, &length);
    return take(octets, length, out) && !out.empty();
}

// Reads until a control character shows that the input is BER. False when PEM armour comes first, or neither among the
// first octets.
bool begins_as_ber(StandardInput &input, std::vector<uint8_t> &octets) {
    constexpr auto enough = threshold<size_t>(1 << 16, 1);
    size_t seen = 0;
    while (octets.size() < enough && input.read(octets)) {
        const auto control = std::find_if(octets.begin() + static_cast<ptrdiff_t>(seen), octets.end(), is_control);
        if (control != octets.end())
            return find_armour(view(octets).substr(0, static_cast<size_t>(control - octets.begin()))) ==
                   std::string_view::npos;
        seen = octets.size();
    }
    return false;
}

struct Free {
    void operator()(kovra_asn1_decode_any_ctx *ctx) const { kovra_asn1_decode_any_ctx_free(ctx); }
};

} // namespace

std::string read_file(const std::string &path, std::vector<uint8_t> &out) {
    const bool is_standard_input = path == "-";
#if defined(_WIN32)
    if (is_standard_input)
        _setmode(_fileno(stdin), _O_BINARY);
#endif
    errno = 0;
    const auto close = [](FILE *file) { return file != stdin ? std::fclose(file) : 0; };
    const std::unique_ptr<FILE, decltype(close)> file(is_standard_input ? stdin : open_to_read(path), close);
    if (file == nullptr)
        return std::strerror(errno);
    // With room for an octet more than the file has, one call reads it and sees the end. For a pipe, whose size is not
    // known, and a file that has grown meanwhile, the room is doubled.
    constexpr auto first_piece = threshold<size_t>(1 << 16, 1);
    size_t room = first_piece;
    if (!is_standard_input && std::fseek(file.get(), 0, SEEK_END) == 0) {
        if (const long end = std::ftell(file.get()); end > 0 && end < largest_trusted_size)
            room = static_cast<size_t>(end) + 1;
        std::rewind(file.get());
    }
    errno = 0;
    for (size_t size = 0;; room = next_capacity(size, size)) {
        out.resize(room);
        size += std::fread(out.data() + size, 1, out.size() - size, file.get());
        if (size == out.size())
            continue;
        out.resize(size);
        return std::ferror(file.get()) != 0 ? std::strerror(errno) : "";
    }
}

Items::Items(std::vector<uint8_t> file) {
    recognize(std::move(file));
}

Items::Items(StandardInput &input) {
    std::vector<uint8_t> octets;
    if (begins_as_ber(input, octets)) {
        input_ = &input;
        chunk_ = {true, false, "", std::move(octets)};
    } else {
        input.read_all(octets);
        if (!octets.empty() || input.failure().empty())
            recognize(std::move(octets));
    }
}

void Items::recognize(std::vector<uint8_t> file) {
    const size_t begin = find_armour(view(file));
    const auto text_end = begin != std::string_view::npos ? file.begin() + static_cast<ptrdiff_t>(begin) : file.end();
    if (std::any_of(file.begin(), text_end, is_control)) {
        chunk_ = {true, false, "", std::move(file)};
    } else if (begin != std::string_view::npos) {
        text_ = std::move(file);
        chunk_ = next_block();
        ahead_ = next_block();
    } else {
        chunk_.exists = true;
        is_other_text_ = !file.empty() && !from_hex(file, chunk_.octets) && !from_base64(file, chunk_.octets);
        if (is_other_text_)
            chunk_.octets = std::move(file);
    }
}

Items::Chunk Items::next_block() {
    Chunk block;
    const char *label = nullptr;
    int32_t label_length = 0;
    void *data = nullptr;
    int32_t length = 0;
    const int32_t result = kovra_pemnext(view(text_).data(), static_cast<int64_t>(text_.size()), &text_position_,
                                         &label, &label_length, &data, &length);
    if (result == 0)
        return block;
    block.exists = true;
    block.is_bad_armour = result != 1;
    if (label != nullptr)
        block.label.assign(label, static_cast<size_t>(label_length));
    take(data, length, block.octets);
    return block;
}

// Reads until the chunk has `end` octets; false when the input ends before.
bool Items::await_octets(size_t end) {
    while (chunk_.octets.size() < end)
        if (!input_->read(chunk_.octets))
            return false;
    return true;
}

// Reads until the element at the position is complete, which the library's functions for elements in pieces tell. False
// when they do not take it: the caller has to find its end by itself.
bool Items::await_content() {
    const std::vector<uint8_t> &octets = chunk_.octets;
    const std::unique_ptr<kovra_asn1_decode_any_ctx, Free> ctx(kovra_asn1_decode_any_ctx_new());
    size_t taken = position_;
    uint32_t tag_class = 0;
    int32_t form = 0;
    int32_t tag = 0;
    int32_t length = 0;
    int32_t left = 0;
    constexpr int32_t more_input_needed = -100;
    constexpr auto largest_piece = threshold<size_t>(1 << 30, 1);
    const auto piece = [&] { return static_cast<int32_t>(std::min(octets.size() - taken, largest_piece)); };
    for (int32_t result = more_input_needed; result != 1;) {
        if (!await_octets(taken + 1))
            return true;
        const int32_t count = piece();
        result = kovra_asn1_decode_any_identifier_length(ctx.get(), 0, octets.data() + taken, count, &tag_class, &form,
                                                         &tag, &length, &left);
        // These functions read tag numbers of several octets in another way than X.690 writes them.
        if (result == 0 || (octets[position_] & 0x1F) == 0x1F)
            return false;
        taken += static_cast<size_t>(count - left);
    }
    if (length >= 0) {
        const size_t rest_of_marker = octets[position_] == 0 ? 1 : 0;
        await_octets(taken + static_cast<size_t>(length) + rest_of_marker);
        return true;
    }
    while (kovra_asn1_decode_any_isfinish(ctx.get()) == 0) {
        if (!await_octets(taken + 1))
            return true;
        const int32_t count = piece();
        if (kovra_asn1_decode_any_update(ctx.get(), octets.data() + taken, count, &left) != 1)
            return false;
        taken += static_cast<size_t>(count - left);
    }
    return element_end(octets.data(), position_, taken, Tags::all) == taken;
}

void Items::await_element() {
    std::vector<uint8_t> &octets = chunk_.octets;
    // Octets of items that were given are dropped. One is left, since position 0 means that none was given yet.
    constexpr auto worth_dropping = threshold<size_t>(1 << 20, 1);
    if (position_ > worth_dropping && position_ > octets.size() / 2) {
        const size_t dropped = position_ - 1;
        octets.erase(octets.begin(), octets.begin() + static_cast<ptrdiff_t>(dropped));
        origin_ += dropped;
        position_ -= dropped;
    }
    if (await_content())
        return;
    // Each look starts at the beginning of the element: from `many` octets on, one is taken only when twice as many
    // have come, so that the time stays linear.
    constexpr auto many = threshold<size_t>(4096, 1);
    for (size_t more = 1; element_end(octets.data(), position_, octets.size(), Tags::all) == nowhere;) {
        if (!await_octets(octets.size() + more))
            return;
        more = octets.size() - position_ < many ? 1 : octets.size() - position_;
    }
}

bool Items::next(Item &out) {
    if (input_ != nullptr)
        await_element();
    if (position_ != 0 && position_ >= chunk_.octets.size()) {
        chunk_ = std::move(ahead_);
        ahead_ = chunk_.exists ? next_block() : Chunk();
        position_ = 0;
    }
    if (!chunk_.exists)
        return false;
    const std::vector<uint8_t> &octets = chunk_.octets;
    size_t end = element_end(octets.data(), position_, octets.size(), Tags::all);
    // Where no element is, or 00, the rest is one item: nothing tells where the next element would begin.
    if (end == nowhere || octets[position_] == 0) {
        end = octets.size();
        input_ = nullptr;
    }
    // The first item is the only one if no octet follows. When none comes for a while, the item is given without
    // waiting for one, as not the only one.
    const bool may_be_only = count_ == 0 && end == octets.size() && !ahead_.exists;
    const bool has_more = may_be_only && input_ != nullptr && (StandardInput::pauses() || input_->read(chunk_.octets));
    out = {octets.data(), origin_, position_, end, ++count_, false, chunk_.is_bad_armour, chunk_.label};
    // Not 0 for an empty chunk either: position 0 means that none was given yet.
    position_ = std::max<size_t>(end, 1);
    out.is_only = may_be_only && !has_more;
    return true;
}

} // namespace kovra::tool
