#include "out_file.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <random>
#include <vector>

#include "base/thresholds.hpp"
#include "platform.hpp"

namespace kovra::tool {

namespace {

namespace fs = std::filesystem;

std::error_code last_error() {
    return {errno, std::generic_category()};
}

// Where the links end, whether there is something or not; empty where links name what is open in some process, or go in
// circles.
fs::path end_of_links(fs::path path) {
    constexpr int most_links = 40;
    for (int i = 0; i < most_links; ++i) {
        std::error_code error;
        const fs::path directory = fs::canonical(path.has_parent_path() ? path.parent_path() : fs::path("."), error);
        if (!error && directory.generic_string().starts_with("/proc/"))
            return {};
        if (!fs::is_symlink(path, error))
            return path;
        const fs::path target = fs::read_symlink(path, error);
        if (error)
            return {};
        path = path.parent_path() / target;
    }
    return {};
}

std::string unused_name() {
    std::random_device random;
    return ".kovra-asn1-" + std::to_string(random()) + std::to_string(random());
}

bool write_all(int file, const char *octets, size_t size) {
    while (size != 0) {
        const long written = write_file(file, octets, size);
        if (written < 0 && errno != EINTR)
            return false;
        octets += std::max(written, 0L);
        size -= static_cast<size_t>(std::max(written, 0L));
    }
    return true;
}

} // namespace

int OutFile::open(const std::string &utf8_path, bool is_private) {
    const fs::path path = native_path(utf8_path);
    is_private_ = is_private;
    file_ = open_to_write(path);
    const bool is_new = file_ < 0;
    if ((is_new && errno != ENOENT) || (!is_new && !is_file(file_)))
        return file_;
    place_ = end_of_links(path);
    if (place_.empty())
        return is_new || empty_file(file_) ? file_ : -1;
    if (!is_new)
        close_file(file_);
    if (!open_aside(place_.parent_path(), is_new && !is_private)) {
        const int reason = errno;
        std::error_code error;
        is_copied_ = true;
        if (is_new || !open_aside(fs::temp_directory_path(error), false)) {
            errno = reason;
            return -1;
        }
    }
    if (!is_new && !is_private)
        is_copied_ = !take_after(file_, place_) || is_copied_;
    return file_;
}

bool OutFile::open_aside(const fs::path &directory, bool is_open_to_all) {
    constexpr int attempts = 16;
    for (int i = 0; i < attempts; ++i) {
        aside_ = directory / unused_name();
        remove_if_ended(&aside_);
        file_ = create_file(aside_, is_open_to_all);
        if (file_ >= 0)
            return true;
        remove_if_ended(nullptr);
        aside_.clear();
        if (errno != EEXIST)
            return false;
    }
    return false;
}

std::error_code OutFile::finish() {
    const int file = file_;
    file_ = -1;
    if (file >= 0 && close_file(file) != 0)
        return last_error();
    if (aside_.empty())
        return {};
    std::error_code error;
    if (!is_copied_)
        fs::rename(aside_, place_, error);
    if (is_copied_ || error)
        return fs::exists(place_) ? copy() : error;
    remove_if_ended(nullptr);
    aside_.clear();
    return {};
}

void OutFile::discard() {
    if (file_ >= 0)
        close_file(file_);
    file_ = -1;
    if (aside_.empty())
        return;
    std::error_code error;
    fs::remove(aside_, error);
    remove_if_ended(nullptr);
    aside_.clear();
}

std::error_code OutFile::copy() const {
    constexpr auto piece = threshold<size_t>(1 << 16, 3);
    std::vector<char> octets(piece);
    FILE *from = open_to_read(utf8_text(aside_));
    if (from == nullptr)
        return last_error();
    const int to = open_to_write(place_);
    bool is_good = to >= 0 && (!is_private_ || make_private(to)) && empty_file(to);
    for (size_t size = 1; is_good && size != 0;) {
        size = std::fread(octets.data(), 1, octets.size(), from);
        is_good = std::ferror(from) == 0 && write_all(to, octets.data(), size);
    }
    const std::error_code error = is_good ? std::error_code() : last_error();
    std::fclose(from);
    return to >= 0 && close_file(to) != 0 && !error ? last_error() : error;
}

} // namespace kovra::tool
