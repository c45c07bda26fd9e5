#include "output.hpp"

#include <cerrno>
#include <charconv>
#include <cstdio>

#include "platform.hpp"

namespace kovra::tool {

namespace {

constexpr size_t number_digits = 20;

// A plain string cannot be printed: only Outside, which escapes it, can.
template <class Text>
concept printable = requires(Output &out, Text text) {
    out.put(text);
};
static_assert(printable<Harmless> && printable<Outside> && printable<Message>);
static_assert(!printable<std::string> && !printable<std::string_view>);

} // namespace

void put_error(Harmless text) {
    // A failure is ignored: there is nowhere left to report it.
    static_cast<void>(std::fwrite(text.view().data(), 1, text.size(), stderr));
}

size_t Output::put(const Outside &text) {
    Pieces pieces(text);
    for (Harmless piece; pieces.next(piece);)
        put(piece);
    return pieces.taken();
}

void Output::put_number(uint64_t number, int base) {
    put_filled<number_digits>([=](char *out) { return std::to_chars(out, out + number_digits, number, base).ptr; });
}

void Output::put_right(uint64_t number, size_t width) {
    char digits[number_digits];
    const auto size = static_cast<size_t>(std::to_chars(digits, digits + number_digits, number).ptr - digits);
    put_blanks(width > size ? width - size : 0);
    put_data({digits, size});
}

void Output::put_blanks(size_t count) {
    constexpr size_t piece = 32;
    for (; count >= piece; count -= piece)
        put("                                ");
    if (count != 0)
        put_filled<piece>([=](char *out) {
            std::memset(out, ' ', piece);
            return out + count;
        });
}

void Output::put_hex(const uint8_t *octets, size_t length) {
    static constexpr char digits[] = "0123456789abcdef";
    constexpr auto most = threshold<size_t>(2048, 1);
    for (size_t piece = 0; length != 0; length -= piece, octets += piece) {
        piece = std::min(length, most);
        put_filled<2 * most>([=](char *out) {
            for (size_t i = 0; i < piece; ++i) {
                *out++ = digits[octets[i] >> 4];
                *out++ = digits[octets[i] & 0x0F];
            }
            return out;
        });
    }
}

void Output::put_long(std::string_view octets) {
    flush();
    if (octets.size() < capacity)
        used_ = octets.copy(buffer_.get(), octets.size());
    else
        write(octets.data(), octets.size());
}

void Output::flush() {
    write(buffer_.get(), used_);
    used_ = 0;
}

void Output::finish(bool may_be_empty, bool is_whole) {
    flush();
    if (file_ < 0 && may_be_empty && is_whole)
        open();
    if (!path_.empty() && file_ >= 0 && is_whole && !is_over_)
        if (const std::error_code error = out_file_.finish())
            fail(error);
    out_file_.discard();
    file_ = standard_output;
}

void Output::open() {
    if (is_over_)
        return;
    file_ = path_.empty() ? standard_output : out_file_.open(path_, is_private_);
    if (file_ < 0)
        fail({errno, std::generic_category()});
    is_on_terminal_ = file_ >= 0 && is_terminal();
}

void Output::write(const char *octets, size_t size) {
    if (size != 0 && file_ < 0)
        open();
    // The largest piece that every system takes at once.
    constexpr auto largest_piece = threshold<size_t>(1 << 30, 2);
    while (size != 0 && !is_over_) {
        const size_t piece = std::min(size, largest_piece);
        const long written = is_on_terminal_ ? write_to_terminal(octets, piece) : write_file(file_, octets, piece);
        if (written >= 0) {
            octets += written;
            size -= static_cast<size_t>(written);
        } else if (errno != EINTR) {
            fail({errno, std::generic_category()});
        }
    }
}

void Output::fail(std::error_code error) {
    is_over_ = true;
#if defined(_WIN32)
    // Writing to a closed pipe may give either.
    const bool is_closed_pipe = error.value() == EPIPE || error.value() == EINVAL;
#else
    const bool is_closed_pipe = error.value() == EPIPE;
#endif
    if (!is_closed_pipe)
        failure_ = error.message();
}

bool Output::is_terminal() const {
    return path_.empty() && tool::is_terminal(standard_output);
}

} // namespace kovra::tool
