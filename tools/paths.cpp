#include "paths.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform.hpp"

namespace kovra::tool {

namespace {

namespace fs = std::filesystem;

class Walk {
public:
    explicit Walk(const std::function<void(std::string_view, std::string_view)> &fail) : fail_(fail) {}

    void named(const std::string &path) {
        std::error_code error;
        if (path != "-" && fs::is_directory(native_path(path), error))
            directory(native_path(path));
        else
            file(native_path(path), true);
    }

    std::vector<FoundFile> files;

private:
    void file(const fs::path &path, bool is_named) {
        std::error_code error;
        const auto size = fs::file_size(path, error);
        files.push_back({utf8_text(path), error ? 0 : size, is_named});
    }

    // Recurses as deep as directories nest, which the longest possible path limits.
    // NOLINTNEXTLINE(misc-no-recursion)
    void directory(const fs::path &path) {
        std::error_code error;
        std::vector<fs::directory_entry> entries;
        for (fs::directory_iterator entry(path, error), end; !error && entry != end; entry.increment(error))
            entries.push_back(*entry);
        if (error)
            fail_(utf8_text(path), error.message());
        std::sort(entries.begin(), entries.end());
        for (const fs::directory_entry &entry : entries) {
            const bool is_link = entry.is_symlink(error);
            const fs::file_status status = entry.status(error);
            if (fs::is_directory(status) && !is_link)
                directory(entry.path());
            else if (fs::is_regular_file(status) || !fs::exists(status))
                file(entry.path(), false); // reading a link to nothing reports it
        }
    }

    const std::function<void(std::string_view, std::string_view)> &fail_;
};

} // namespace

std::vector<FoundFile> find_files(const std::vector<std::string> &paths,
                                  const std::function<void(std::string_view, std::string_view)> &fail) {
    Walk walk(fail);
    for (const std::string &path : paths)
        walk.named(path);
    return std::move(walk.files);
}

} // namespace kovra::tool
