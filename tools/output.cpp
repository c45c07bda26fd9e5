#include "output.hpp"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>

#include "platform.hpp"

#include <fcntl.h>
#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace kovra::tool {

namespace {

#if defined(_WIN32)
int close_file(int file) {
    return _close(file);
}
long write_file(int file, const char *octets, size_t size) {
    return _write(file, octets, static_cast<unsigned>(size));
}
void set_binary(int file) {
    _setmode(file, _O_BINARY);
}
#else
int close_file(int file) {
    return ::close(file);
}
long write_file(int file, const char *octets, size_t size) {
    return static_cast<long>(::write(file, octets, size));
}
void set_binary(int) {}
#endif

constexpr size_t number_digits = 20;

} // namespace

Output::~Output() {
    if (file_ > standard_output)
        close_file(file_);
}

void Output::put_number(uint64_t number) {
    char *out = room(number_digits);
    used(std::to_chars(out, out + number_digits, number).ptr);
}

void Output::put_right(uint64_t number, size_t width) {
    char digits[number_digits];
    const auto count = static_cast<size_t>(std::to_chars(digits, digits + number_digits, number).ptr - digits);
    const size_t blanks = width > count ? width - count : 0;
    char *out = room(blanks + count);
    std::memset(out, ' ', blanks);
    std::memcpy(out + blanks, digits, count);
    used(out + blanks + count);
}

void Output::fill(char character, size_t count) {
    for (size_t piece = 0; count != 0; count -= piece) {
        piece = std::min(count, largest_room);
        char *out = room(piece);
        std::memset(out, character, piece);
        used(out + piece);
    }
}

void Output::put_hex(const uint8_t *octets, size_t length) {
    static constexpr char digits[] = "0123456789abcdef";
    for (size_t piece = 0; length != 0; length -= piece, octets += piece) {
        piece = std::min(length, largest_room / 2);
        char *out = room(piece * 2);
        for (size_t i = 0; i < piece; ++i) {
            *out++ = digits[octets[i] >> 4];
            *out++ = digits[octets[i] & 0x0F];
        }
        used(out);
    }
}

void Output::put_long(std::string_view text) {
    flush();
    write(text.data(), text.size());
}

void Output::flush() {
    write(buffer_.get(), used_);
    used_ = 0;
}

void Output::finish(bool may_be_empty) {
    flush();
    if (file_ < 0 && may_be_empty)
        open();
    if (file_ > standard_output) {
        if (close_file(file_) != 0 && failure_.empty())
            fail();
        file_ = standard_output;
    }
}

void Output::open() {
    if (is_over_)
        return;
    file_ = path_.empty() ? standard_output : open_to_write(path_);
    if (file_ < 0)
        fail();
    else
        set_binary(file_);
    is_on_terminal_ = file_ >= 0 && is_terminal();
}

void Output::write(const char *octets, size_t size) {
    if (size != 0 && file_ < 0)
        open();
    // The largest piece that every system takes at once.
    constexpr size_t largest_piece = 1 << 30;
    while (size != 0 && !is_over_) {
        const size_t piece = std::min(size, largest_piece);
        const long written = is_on_terminal_ ? write_to_terminal(octets, piece) : write_file(file_, octets, piece);
        if (written >= 0) {
            octets += written;
            size -= static_cast<size_t>(written);
        } else if (errno != EINTR) {
            fail();
        }
    }
}

void Output::fail() {
    is_over_ = true;
#if defined(_WIN32)
    // A pipe that nobody reads any more reports this.
    const bool is_closed_pipe = errno == EPIPE || errno == EINVAL;
#else
    const bool is_closed_pipe = errno == EPIPE;
#endif
    if (!is_closed_pipe)
        failure_ = (path_.empty() ? "standard output" : path_) + ": " + std::strerror(errno);
}

bool Output::is_terminal() const {
    return path_.empty() && tool::is_terminal(standard_output);
}

} // namespace kovra::tool
