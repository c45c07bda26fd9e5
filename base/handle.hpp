// The magic word that begins every record behind a handle, and the making and releasing of such records.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <type_traits>

#include "base/sizes.hpp"
#include "kovra/util_memory.h"

namespace kovra {

// Four letters as one word, so that a record is recognised in a memory dump.
constexpr uint32_t magic_word(const char (&letters)[5]) {
    uint32_t word = 0;
    for (int i = 0; i < 4; ++i)
        word = word << 8 | static_cast<uint8_t>(letters[i]);
    return word;
}

// True for a non-null handle whose record begins with the word of its type. The word is copied out rather than read
// through the type: a wrong handle points to a record of another one.
template <class Record> bool is_valid(const Record *record) {
    if (record == nullptr)
        return false;
    uint32_t word = 0;
    std::memcpy(&word, static_cast<const void *>(record), sizeof word);
    return word == Record::magic_of_type;
}

// A new record with its magic word set and `extra` octets behind it, or null.
template <class Record> Record *make_record(const char *source, size_t extra = 0, int32_t line = __builtin_LINE()) {
    static_assert(std::is_trivially_destructible_v<Record>);
    void *memory = kovra_malloc(sum(sizeof(Record), extra), source, line);
    if (memory == nullptr)
        return nullptr;
    auto *record = new (memory) Record{};
    record->magic = Record::magic_of_type;
    return record;
}

// The word is wiped first: a released handle is refused as long as its memory is not used again.
template <class Record> void release_record(Record *record) {
    record->magic = 0;
    kovra_free(record);
}

} // namespace kovra
