// What the systems do differently: paths and arguments are UTF-8 in the tool, and so is what a terminal gets.
#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kovra::tool {

std::filesystem::path native_path(const std::string &utf8);
std::string utf8_text(const std::filesystem::path &path);

// The arguments of the program, its name first.
std::vector<std::string> utf8_arguments(int argc, char **argv);

// Both are in binary mode; null and -1 with errno set when the file cannot be opened.
FILE *open_to_read(const std::string &utf8_path);
int open_to_write(const std::string &utf8_path);

bool is_terminal(int file);

// While it lives the terminal takes UTF-8 and, where it can, escape sequences. Line ends are the same on all systems.
class Terminal {
public:
    Terminal();
    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    [[nodiscard]] bool takes_escapes() const { return takes_escapes_; }

private:
    [[maybe_unused]] unsigned code_page_ = 0; // to be restored; 0 where there is none
    bool takes_escapes_ = true;
};

// Writes text to standard output, which is a terminal. Pieces may end within a character. A negative result is an
// error, in errno; otherwise it is the number of octets taken.
long write_to_terminal(const char *octets, size_t size);

} // namespace kovra::tool
