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

// Files are in binary mode. Null, -1 and false: what is wrong is in errno.
FILE *open_to_read(const std::string &utf8_path);
// Opens what is there, whatever it is, and leaves it as it is.
int open_to_write(const std::filesystem::path &path);
// Makes a file that is not there yet, for its owner alone unless it is open to all that the user lets in.
int create_file(const std::filesystem::path &path, bool is_open_to_all);
long write_file(int file, const char *octets, size_t size);
int close_file(int file);
bool empty_file(int file);
// Takes the rights of all others away, where the system knows such.
bool make_private(int file);
// Gives the file the mode of the one at the path. False when it would not be the same to all who know that one: it has
// other names, or another owner or group.
bool take_after(int file, const std::filesystem::path &path);
// The file is removed when a signal ends the tool, until the call with null. The path has to live so long.
void remove_if_ended(const std::filesystem::path *path);

bool is_file(int file); // else it is a device, a pipe ...
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
