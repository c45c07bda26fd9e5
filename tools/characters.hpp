// Characters of any origin.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace kovra::tool {

struct Character {
    uint32_t code = 0;
    size_t size = 0; // in octets of UTF-8; 0 where no well-formed character begins
};

// The character that begins with the first of `length` octets, of which there is at least one.
Character character_at(const uint8_t *octets, size_t length);

// Neither a control character nor one that a terminal or a viewer acts on, as by turning the direction of writing.
bool is_harmless(uint32_t code);

// Converts a character string of the universal tag to UTF-8. Octets of TeletexString are taken for ISO 8859-1, which is
// what they are in practice. False when a BMPString or a UniversalString has other octets than characters; whether the
// octets of other strings are of their character set is not looked at.
bool to_utf8(uint32_t tag, const uint8_t *octets, size_t length, std::string &out);

} // namespace kovra::tool
