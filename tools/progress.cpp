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
    const double share = static_cast<double>(std::min(done, total_)) / static_cast<double>(total_);
    const auto filled = static_cast<size_t>(share * static_cast<double>(width));
    Message bar("\r[");
    for (size_t i = 0; i < width; ++i)
        bar += i < filled ? Harmless("#") : " ";
    const Message percent = decimal(static_cast<uint64_t>(share * 100));
    put_error(bar + "] " + blanks(3 - percent.size()) + percent + "%  " + decimal(files) + " files");
    is_shown_ = true;
}

void Progress::erase() {
    if (is_shown_)
        put_error("\r\x1b[K");
    is_shown_ = false;
}

} // namespace kovra::tool
