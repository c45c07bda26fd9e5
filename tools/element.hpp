// Headers of BER elements, read in place, with the limits of kovra/asn1_lib.h.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kovra::tool {

struct Header {
    uint8_t lead = 0; // the first identifier octet
    bool is_indefinite = false;
    uint32_t tag = 0;
    uint32_t size = 0;   // of the identifier and length octets
    uint32_t length = 0; // of the content; 0 when it is indefinite

    [[nodiscard]] uint8_t tag_class() const { return lead & 0xC0; }
    [[nodiscard]] bool is_universal() const { return tag_class() == 0; }
    [[nodiscard]] bool is_constructed() const { return (lead & 0x20) != 0; }
    [[nodiscard]] bool is_end_of_contents() const { return lead == 0; }
};

inline constexpr size_t nowhere = SIZE_MAX;

// Reads the header at `position` of the octets before `end`. False when there is none such; whether the content of a
// definite length ends before `end` is checked too.
bool read_header(const uint8_t *octets, size_t position, size_t end, Header &out);

// Does the library's open type take the tag in this form?
bool is_possible(const Header &header);

// Which elements a walk passes over.
enum class Tags : uint8_t { all, possible };

// The position behind the element at `position`, `nowhere` when it does not end before `end`. Only elements of
// indefinite length are looked into.
size_t element_end(const uint8_t *octets, size_t position, size_t end, Tags tags);

} // namespace kovra::tool
