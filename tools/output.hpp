// Where the commands print: standard output or a file, written in large pieces.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include "base/thresholds.hpp"
#include "out_file.hpp"
#include "text.hpp"

namespace kovra::tool {

// Writes to standard error. With Output this is all that prints.
void put_error(Harmless text);

class Output {
public:
    Output() : buffer_(std::make_unique<char[]>(capacity)) {}
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    // Names the file to write, of the kind that OutFile makes; without one it is standard output. It is not touched
    // before the first octets go out.
    void set_path(const std::string &path, bool is_private) {
        path_ = path;
        is_private_ = is_private;
    }

    void put(Harmless text) { put_data(text.view()); }
    // Prints text from outside, escaped; returns the number of its octets that were printed so.
    size_t put(const Outside &text);
    // Octets that are data, not text: as they are, terminal or not.
    void put_data(std::string_view octets) {
        if (octets.size() > capacity - used_)
            return put_long(octets);
        used_ += octets.copy(buffer_.get() + used_, octets.size());
    }
    void put_number(uint64_t number, int base = 10);
    // Blanks, then the number, `width` characters in all.
    void put_right(uint64_t number, size_t width);
    void put_blanks(size_t count);
    // A line feed, and blanks behind it.
    void put_line(size_t blanks) {
        constexpr size_t usual = 32;
        const size_t piece = std::min(blanks, usual);
        put_filled<1 + usual>([=](char *out) {
            *out = '\n';
            std::memset(out + 1, ' ', usual);
            return out + 1 + piece;
        });
        if (blanks > usual)
            put_blanks(blanks - usual);
    }
    void put_hex(const uint8_t *octets, size_t length);

    // Writes what is gathered.
    void flush();
    // Writes the rest and closes the file. One to which nothing was printed is made only if it may be empty. With an
    // output that is not whole, or that could not be written, there is no file, or the one that was there before.
    void finish(bool may_be_empty, bool is_whole);

    // Nothing more can be written; the rest is thrown away.
    [[nodiscard]] bool is_over() const { return is_over_; }
    // What went wrong, empty while nothing did, and where. That nobody reads any more is nothing wrong.
    [[nodiscard]] const std::string &failure() const { return failure_; }
    [[nodiscard]] std::string name() const { return path_.empty() ? "standard output" : path_; }
    [[nodiscard]] bool is_terminal() const;

private:
    static constexpr size_t capacity = threshold<size_t>(1 << 16, 3);
    static constexpr int standard_output = 1;

    // Lets `fill` write at most `size` octets, and return their end: into the buffer, where that has room for so many.
    template <size_t size, class Fill> void put_filled(Fill fill) {
        if constexpr (size <= capacity) {
            if (capacity - used_ < size)
                flush();
            used_ = static_cast<size_t>(fill(buffer_.get() + used_) - buffer_.get());
        } else {
            char octets[size];
            put_data({octets, static_cast<size_t>(fill(octets) - octets)});
        }
    }
    void put_long(std::string_view octets);
    void write(const char *octets, size_t size);
    void open();
    void fail(std::error_code error);

    std::unique_ptr<char[]> buffer_;
    size_t used_ = 0;
    std::string path_;
    bool is_private_ = false;
    OutFile out_file_;
    int file_ = -1;
    bool is_on_terminal_ = false;
    bool is_over_ = false;
    std::string failure_;
};

} // namespace kovra::tool
