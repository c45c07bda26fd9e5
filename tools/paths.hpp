// Files named on the command line, and those in directories.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kovra::tool {

struct FoundFile {
    std::string path;     // "-" is standard input
    uint64_t size = 0;    // 0 when it is not known
    bool is_named = true; // else it was found in a directory
};

// The files that paths stand for: a directory for all files in it and in those below it, in the order of their names.
// Symbolic links to files are followed, those to directories only when they are named. Directories that cannot be read
// are told to `fail`, with what the system says.
std::vector<FoundFile> find_files(const std::vector<std::string> &paths,
                                  const std::function<void(std::string_view, std::string_view)> &fail);

} // namespace kovra::tool
