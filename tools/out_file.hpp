// The file of --out. What stood there stays until the output is whole.
#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace kovra::tool {

// The octets go to a file aside in the same directory, which takes the place of the named one at the end. It is removed
// when it comes to no end: when it is discarded, by the destructor, and, but on Windows, when the user ends the tool.
//
// - Symbolic links are followed. Devices, pipes and what else is no file are written directly.
// - A file that is there has to be writable, and leaves its mode to the new one. Where it has other names or another
//   owner, stands in a directory that takes no new file, or cannot be replaced, the octets are copied into it at the
//   end.
// - A private file is for its owner alone from the moment that it is made, whatever stood there. On Windows it has the
//   rights that its directory hands down, like any other.
class OutFile {
public:
    OutFile() = default;
    OutFile(const OutFile &) = delete;
    OutFile &operator=(const OutFile &) = delete;
    ~OutFile() { discard(); }

    // Opens what is to be written; -1 with errno set when that cannot be.
    int open(const std::string &utf8_path, bool is_private);
    // Closes it and puts it in its place.
    std::error_code finish();
    // Closes and removes what has no place yet.
    void discard();

private:
    bool open_aside(const std::filesystem::path &directory, bool is_open_to_all);
    [[nodiscard]] std::error_code copy() const;

    int file_ = -1;
    bool is_private_ = false;
    bool is_copied_ = false;
    std::filesystem::path place_;
    std::filesystem::path aside_; // empty when the octets go to their place directly
};

} // namespace kovra::tool
