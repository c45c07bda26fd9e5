#include "progress.hpp"

#include "output.hpp"
#include "platform.hpp"
#include <algorithm>

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
    // In whole numbers, which are the same everywhere; no file system holds so much that the products would not fit.
    const uint64_t part = std::min(done, total_);
    const auto filled = static_cast<size_t>(part * width / total_);
    Message bar("\r[");
    for (size_t i = 0; i < width; ++i)
        bar += i < filled ? Harmless("#") : " ";
    const Message percent = decimal(part * 100 / total_);
    put_error(bar + "] " + blanks(3 - percent.size()) + percent + "%  " + decimal(files) + " files");
    is_shown_ = true;
}

void Progress::erase() {
    if (is_shown_)
        put_error("\r\x1b[K");
    is_shown_ = false;
}

} // namespace kovra::tool
