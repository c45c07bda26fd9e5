#include "platform.hpp"

#include <algorithm>
#include <cerrno>

#include "base/thresholds.hpp"

#include <fcntl.h>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

#include <shellapi.h>
#else
#include <csignal>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace kovra::tool {

namespace fs = std::filesystem;

fs::path native_path(const std::string &utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

std::string utf8_text(const fs::path &path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

#if defined(_WIN32)

namespace {

constexpr DWORD escapes = 0x0004; // ENABLE_VIRTUAL_TERMINAL_PROCESSING, which older headers do not have

std::string utf8_of(const wchar_t *wide) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<size_t>(std::max(size, 1)), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), size, nullptr, nullptr);
    text.pop_back();
    return text;
}

// The number of octets at the end of the text that are the beginning of a character in UTF-8.
size_t unfinished(std::string_view text) {
    for (size_t count = 1; count <= std::min<size_t>(3, text.size()); ++count) {
        const auto octet = static_cast<unsigned char>(text[text.size() - count]);
        if (octet < 0x80)
            return 0;
        if (octet >= 0xC0)
            return count < (octet >= 0xF0 ? 4U : octet >= 0xE0 ? 3U : 2U) ? count : 0;
    }
    return 0;
}

} // namespace

std::vector<std::string> utf8_arguments(int argc, char **argv) {
    int count = 0;
    wchar_t **wide = CommandLineToArgvW(GetCommandLineW(), &count);
    if (wide == nullptr)
        return {argv, argv + argc};
    std::vector<std::string> arguments(static_cast<size_t>(count));
    std::transform(wide, wide + count, arguments.begin(), utf8_of);
    LocalFree(wide);
    return arguments;
}

FILE *open_to_read(const std::string &utf8_path) {
    return _wfopen(native_path(utf8_path).c_str(), L"rb");
}

int open_to_write(const fs::path &path) {
    return _wopen(path.c_str(), _O_WRONLY | _O_BINARY | _O_NOINHERIT);
}

int create_file(const fs::path &path, bool) {
    return _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}

long write_file(int file, const char *octets, size_t size) {
    return _write(file, octets, static_cast<unsigned>(size));
}

int close_file(int file) {
    return _close(file);
}

bool empty_file(int file) {
    return _chsize_s(file, 0) == 0;
}

bool make_private(int) {
    return true;
}

bool take_after(int, const fs::path &) {
    return true;
}

void remove_if_ended(const fs::path *) {}

bool is_file(int file) {
    struct _stat status {};
    return _fstat(file, &status) == 0 && (status.st_mode & _S_IFMT) == _S_IFREG;
}

bool is_terminal(int file) {
    // _isatty alone also answers yes for devices that are no console, such as NUL.
    DWORD mode = 0;
    return _isatty(file) != 0 && GetConsoleMode(reinterpret_cast<HANDLE>(_get_osfhandle(file)), &mode) != 0;
}

Terminal::Terminal() {
    for (const int file : {1, 2}) {
        _setmode(file, _O_BINARY);
        if (!is_terminal(file))
            continue;
        const auto console = reinterpret_cast<HANDLE>(_get_osfhandle(file));
        DWORD mode = 0;
        if (code_page_ == 0)
            code_page_ = GetConsoleOutputCP();
        SetConsoleOutputCP(CP_UTF8);
        if (GetConsoleMode(console, &mode) == 0 || SetConsoleMode(console, mode | escapes) == 0)
            takes_escapes_ = false;
    }
}

Terminal::~Terminal() {
    if (code_page_ != 0)
        SetConsoleOutputCP(code_page_);
}

long write_to_terminal(const char *octets, size_t size) {
    static std::string begun; // octets of a character that the last piece did not end
    constexpr auto largest_piece = threshold<size_t>(8192, 1);
    const size_t taken = std::min(size, largest_piece);
    std::string text = begun + std::string(octets, taken);
    begun = text.substr(text.size() - unfinished(text));
    text.resize(text.size() - begun.size());
    std::wstring wide(text.size(), L'\0');
    const int count = MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), wide.data(),
                                          static_cast<int>(wide.size()));
    const auto console = reinterpret_cast<HANDLE>(_get_osfhandle(1));
    for (DWORD done = 0, written = 0; done < static_cast<DWORD>(count); done += written)
        if (WriteConsoleW(console, wide.data() + done, static_cast<DWORD>(count) - done, &written, nullptr) == 0 ||
            written == 0) {
            errno = EIO;
            return -1;
        }
    return static_cast<long>(taken);
}

#else

std::vector<std::string> utf8_arguments(int argc, char **argv) {
    return {argv, argv + argc};
}

FILE *open_to_read(const std::string &utf8_path) {
    return std::fopen(utf8_path.c_str(), "rb");
}

int open_to_write(const fs::path &path) {
    return ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
}

int create_file(const fs::path &path, bool is_open_to_all) {
    return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, is_open_to_all ? 0666 : 0600);
}

long write_file(int file, const char *octets, size_t size) {
    return static_cast<long>(::write(file, octets, size));
}

int close_file(int file) {
    return ::close(file);
}

bool empty_file(int file) {
    return ::ftruncate(file, 0) == 0;
}

bool make_private(int file) {
    return ::fchmod(file, 0600) == 0;
}

bool take_after(int file, const fs::path &path) {
    struct stat old {};
    struct stat fresh {};
    return ::stat(path.c_str(), &old) == 0 && ::fstat(file, &fresh) == 0 && old.st_nlink == 1 &&
           old.st_uid == fresh.st_uid && old.st_gid == fresh.st_gid && ::fchmod(file, old.st_mode & 0777) == 0;
}

namespace {

constexpr int ending_signals[] = {SIGHUP, SIGINT, SIGTERM};
const char *volatile unfinished_file = nullptr;

extern "C" void remove_and_end(int signal) {
    if (const char *path = unfinished_file; path != nullptr)
        ::unlink(path);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

} // namespace

void remove_if_ended(const fs::path *path) {
    unfinished_file = path != nullptr ? path->c_str() : nullptr;
    for (const int signal : ending_signals)
        if (path != nullptr && std::signal(signal, remove_and_end) == SIG_IGN)
            std::signal(signal, SIG_IGN);
}

bool is_file(int file) {
    struct stat status {};
    return ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

bool is_terminal(int file) {
    return ::isatty(file) != 0;
}

Terminal::Terminal() = default;
Terminal::~Terminal() = default;

long write_to_terminal(const char *octets, size_t size) {
    return static_cast<long>(::write(1, octets, size));
}

#endif

} // namespace kovra::tool
