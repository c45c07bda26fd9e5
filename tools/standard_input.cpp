#include "standard_input.hpp"

#include <cerrno>
#include <cstring>
#include <utility>

#include "base/thresholds.hpp"
#include "platform.hpp"

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#else
#include <poll.h>
#include <unistd.h>
#endif

namespace kovra::tool {

namespace {

constexpr int standard_input = 0;

#if defined(_WIN32)
auto read_input(uint8_t *octets, size_t size) {
    return _read(standard_input, octets, static_cast<unsigned>(size));
}
#else
auto read_input(uint8_t *octets, size_t size) {
    return ::read(standard_input, octets, size);
}
#endif

} // namespace

StandardInput::StandardInput(std::function<void()> before_reading) : before_reading_(std::move(before_reading)) {
#if defined(_WIN32)
    _setmode(standard_input, _O_BINARY);
#endif
}

bool StandardInput::arrives_in_pieces() {
    return !is_file(standard_input);
}

bool StandardInput::read(std::vector<uint8_t> &octets) {
    constexpr auto largest_piece = threshold<size_t>(1 << 16, 3);
    before_reading_();
    const size_t size = octets.size();
    octets.resize(size + largest_piece);
    for (;;) {
        const auto count = read_input(octets.data() + size, largest_piece);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            failure_ = std::strerror(errno);
        octets.resize(size + (count > 0 ? static_cast<size_t>(count) : 0));
        return count > 0;
    }
}

void StandardInput::read_all(std::vector<uint8_t> &octets) {
    while (read(octets)) {
    }
}

bool StandardInput::pauses() {
#if defined(_WIN32)
    return false;
#else
    constexpr int milliseconds = 500;
    pollfd input = {standard_input, POLLIN, 0};
    return poll(&input, 1, milliseconds) == 0;
#endif
}

} // namespace kovra::tool
