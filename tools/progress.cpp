#include "progress.hpp"

#include <algorithm>
#include <cstdio>
#include <string>

#include "platform.hpp"

namespace kovra::tool {

Progress::Progress(uint64_t total, bool is_wanted)
    : total_(std::max<uint64_t>(total, 1)), is_wanted_(is_wanted && is_terminal(2)),
      next_(Clock::now() + std::chrono::seconds(1)) {}

void Progress::step(uint64_t done, size_t files) {
    if (!is_wanted_)
        return;
    const Clock::time_point now = Clock::now();
    if (now < next_)
        return;
    next_ = now + std::chrono::milliseconds(100);
    constexpr size_t width = 40;
    const double share = static_cast<double>(std::min(done, total_)) / static_cast<double>(total_);
    const auto filled = static_cast<size_t>(share * static_cast<double>(width));
    std::string bar(filled, '#');
    bar.resize(width, ' ');
    std::fprintf(stderr, "\r[%s] %3d%%  %zu files", bar.c_str(), static_cast<int>(share * 100), files);
    std::fflush(stderr);
    is_shown_ = true;
}

void Progress::erase() {
    if (is_shown_)
        std::fputs("\r\x1b[K", stderr);
    is_shown_ = false;
}

} // namespace kovra::tool
