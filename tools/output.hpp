// Where the commands print: standard output or a file, written in large pieces.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace kovra::tool {

class Output {
public:
    Output() : buffer_(std::make_unique<char[]>(capacity)) {}
    ~Output();
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    // Names the file to write, made or emptied when the first octets go out; without one it is standard output.
    void set_path(const std::string &path) { path_ = path; }

    // Room for `size` octets, at most `largest_room`; used(end) says how far it was filled.
    static constexpr size_t largest_room = 4096;
    char *room(size_t size) {
        if (capacity - used_ < size)
            flush();
        return buffer_.get() + used_;
    }
    void used(const char *end) { used_ = static_cast<size_t>(end - buffer_.get()); }

    void put(std::string_view text) {
        if (text.size() > largest_room)
            return put_long(text);
        used_ += text.copy(room(text.size()), text.size());
    }
    void put(char character) {
        *room(1) = character;
        ++used_;
    }
    void put_number(uint64_t number);
    // Blanks, then the number, `width` characters in all.
    void put_right(uint64_t number, size_t width);
    void fill(char character, size_t count);
    void put_hex(const uint8_t *octets, size_t length);

    // Writes what is gathered.
    void flush();
    // Writes the rest and closes the file, which is made even if nothing was printed when it may be empty; otherwise a
    // file of that name stays as it is.
    void finish(bool may_be_empty);

    // Nothing more can be written; the rest is thrown away.
    [[nodiscard]] bool is_over() const { return is_over_; }
    // What went wrong, and where; empty while nothing did. That nobody reads any more is nothing wrong.
    [[nodiscard]] const std::string &failure() const { return failure_; }
    [[nodiscard]] bool is_terminal() const;

private:
    static constexpr size_t capacity = 1 << 16;
    static constexpr int standard_output = 1;

    void put_long(std::string_view text);
    void write(const char *octets, size_t size);
    void open();
    void fail();

    std::unique_ptr<char[]> buffer_;
    size_t used_ = 0;
    std::string path_;
    int file_ = -1;
    bool is_on_terminal_ = false;
    bool is_over_ = false;
    std::string failure_;
};

} // namespace kovra::tool
