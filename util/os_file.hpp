// Files of the operating system with 64-bit offsets, by UTF-8 path.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kovra::util {

struct OsFile {
    int descriptor;
    // False for a pipe or a terminal: offsets are ignored there, and the size is unknown.
    bool positioned;
};

// Opens for reading, or creates or empties for writing. False when that fails, and for a directory.
bool open_file(const char *path, bool reading, bool writing, OsFile &file);
void close_file(OsFile &file);

// The present size; -1 on failure.
int64_t file_size(const OsFile &file);

// The number of octets moved, which may be fewer than asked (0 when reading: the end), or -1 on failure.
int64_t read_file(const OsFile &file, int64_t offset, uint8_t *buffer, size_t size);
int64_t write_file(const OsFile &file, int64_t offset, const uint8_t *data, size_t size);

} // namespace kovra::util
