// 64-bit offsets on 32-bit Unix; must stand before every system header.
#if !defined(_FILE_OFFSET_BITS)
#define _FILE_OFFSET_BITS 64
#endif

#include "util/os_file.hpp"

#include <algorithm>
#include <cstdio>

#include "base/thresholds.hpp"

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

#include "base/sizes.hpp"
#include "kovra/util_memory.h"
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace kovra::util {
namespace {

// One system call moves at most this much, on every system.
constexpr auto largest_transfer = threshold<size_t>(size_t{1} << 30, 7);

} // namespace

#if defined(_WIN32)

namespace {

// The path as UTF-16, released with kovra_free; null when it is not UTF-8 or memory is short.
wchar_t *wide_path(const char *path) {
    const int length = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, path, -1, nullptr, 0);
    if (length <= 0)
        return nullptr;
    auto *wide = static_cast<wchar_t *>(
        kovra_malloc(product(static_cast<size_t>(length), sizeof(wchar_t)), "UTIL_Stream", __LINE__));
    if (wide != nullptr)
        MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, path, -1, wide, length);
    return wide;
}

} // namespace

bool open_file(const char *path, bool reading, bool writing, OsFile &file) {
    const int flags =
        _O_BINARY | _O_NOINHERIT | (writing ? (reading ? _O_RDWR : _O_WRONLY) | _O_CREAT | _O_TRUNC : _O_RDONLY);
    wchar_t *wide = wide_path(path);
    if (wide == nullptr)
        return false;
    file.descriptor = _wsopen(wide, flags, _SH_DENYNO, _S_IREAD | _S_IWRITE);
    kovra_free(wide);
    if (file.descriptor < 0)
        return false;
    struct _stat64 status;
    file.positioned = _fstat64(file.descriptor, &status) == 0 && (status.st_mode & _S_IFMT) == _S_IFREG;
    return true;
}

void close_file(OsFile &file) {
    _close(file.descriptor);
}

int64_t file_size(const OsFile &file) {
    return _filelengthi64(file.descriptor);
}

int64_t read_file(const OsFile &file, int64_t offset, uint8_t *buffer, size_t size) {
    if (file.positioned && _lseeki64(file.descriptor, offset, SEEK_SET) != offset)
        return -1;
    return _read(file.descriptor, buffer, static_cast<unsigned>(std::min(size, largest_transfer)));
}

int64_t write_file(const OsFile &file, int64_t offset, const uint8_t *data, size_t size) {
    if (file.positioned && _lseeki64(file.descriptor, offset, SEEK_SET) != offset)
        return -1;
    return _write(file.descriptor, data, static_cast<unsigned>(std::min(size, largest_transfer)));
}

#else

bool open_file(const char *path, bool reading, bool writing, OsFile &file) {
    const int flags = O_CLOEXEC | (writing ? (reading ? O_RDWR : O_WRONLY) | O_CREAT | O_TRUNC : O_RDONLY);
    do
        file.descriptor = open(path, flags, 0666);
    while (file.descriptor < 0 && errno == EINTR);
    if (file.descriptor < 0)
        return false;
    struct stat status;
    if (fstat(file.descriptor, &status) != 0 || S_ISDIR(status.st_mode)) {
        close(file.descriptor);
        return false;
    }
    file.positioned = S_ISREG(status.st_mode);
    return true;
}

void close_file(OsFile &file) {
    close(file.descriptor);
}

int64_t file_size(const OsFile &file) {
    struct stat status;
    return fstat(file.descriptor, &status) == 0 ? int64_t{status.st_size} : -1;
}

int64_t read_file(const OsFile &file, int64_t offset, uint8_t *buffer, size_t size) {
    const size_t wanted = std::min(size, largest_transfer);
    ssize_t count = 0;
    do
        count =
            file.positioned ? pread(file.descriptor, buffer, wanted, offset) : read(file.descriptor, buffer, wanted);
    while (count < 0 && errno == EINTR);
    return count;
}

int64_t write_file(const OsFile &file, int64_t offset, const uint8_t *data, size_t size) {
    const size_t wanted = std::min(size, largest_transfer);
    ssize_t count = 0;
    do
        count = file.positioned ? pwrite(file.descriptor, data, wanted, offset) : write(file.descriptor, data, wanted);
    while (count < 0 && errno == EINTR);
    return count;
}

#endif

} // namespace kovra::util
