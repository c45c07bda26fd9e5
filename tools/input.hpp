// What the commands read: a file of any form, one element at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "standard_input.hpp"

namespace kovra::tool {

// Reads a file whole, "-" being standard input. What the system says when that fails; empty when it does not.
std::string read_file(const std::string &path, std::vector<uint8_t> &out);

// One element, or what cannot be told apart into elements.
struct Item {
    const uint8_t *octets = nullptr; // the decoded block or file; positions count from here
    size_t origin = 0;               // octets of the input that stood before these and were dropped
    size_t begin = 0;
    size_t end = 0;
    size_t number = 0; // in the file, from 1 on
    bool is_only = true;
    bool is_bad_armour = false; // a PEM block that is malformed: there are no octets
    std::string label;          // of the PEM block
};

// The items of a file. Its form is told by its content: octets with control characters are BER; text is PEM when it has
// a block, else hexadecimal (blanks and colons allowed) when it is nothing else, else base64 when it is that.
class Items {
public:
    explicit Items(std::vector<uint8_t> file);
    // Items of an input that arrives in pieces. One of BER is given as soon as it is complete, and dropped behind that;
    // other forms are read to their end first.
    explicit Items(StandardInput &input);

    // The next item, valid until the next call; false behind the last one.
    bool next(Item &out);

    // The file is text of none of these forms. In a directory it is passed over; where it is named it is malformed.
    [[nodiscard]] bool is_other_text() const { return is_other_text_; }

private:
    // A decoded block, or the whole file.
    struct Chunk {
        bool exists = false;
        bool is_bad_armour = false;
        std::string label;
        std::vector<uint8_t> octets;
    };

    void recognize(std::vector<uint8_t> file);
    Chunk next_block();
    void await_element();
    bool await_content();
    bool await_octets(size_t end);

    StandardInput *input_ = nullptr; // where more of the chunk comes from
    std::vector<uint8_t> text_;      // of PEM
    int64_t text_position_ = 0;
    Chunk chunk_;
    Chunk ahead_;
    size_t origin_ = 0;   // octets that were dropped in front of the chunk
    size_t position_ = 0; // in the chunk
    size_t count_ = 0;
    bool is_other_text_ = false;
};

} // namespace kovra::tool
