// A bar on the terminal for work that takes longer than a second.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace kovra::tool {

class Progress {
public:
    // `total` is what step() counts up to. Nothing is shown when it is not wanted or standard error is no terminal.
    Progress(uint64_t total, bool is_wanted);
    ~Progress() { erase(); }
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    void step(uint64_t done, size_t files);
    // Makes the line of the terminal free for something else.
    void erase();

private:
    using Clock = std::chrono::steady_clock;

    uint64_t total_;
    bool is_wanted_;
    bool is_shown_ = false;
    Clock::time_point next_;
};

} // namespace kovra::tool
