// What the commands of kovra-asn1 share.
//
// The tool uses the public headers only, as any program does, and works on large files with little memory: it walks
// over the octets and prints while it walks. Some of what the library does is therefore here once more: headers are
// read in place (element.cpp), JSON is printed without a tree (json.cpp), types have their names (types.cpp), and what
// an element may be is told by patterns before anything is decoded (detect.cpp). Tests compare these with the library.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "input.hpp"
#include "kovra/asn1_types.h"
#include "output.hpp"

namespace kovra::tool {

// Exit codes; of several inputs the worst counts.
enum class Status : int { good = 0, malformed = 1, usage = 2, io = 3 };

struct Options {
    std::vector<std::string> files; // "-" is standard input
    bool is_colored = false;
    bool is_quiet = false;
    bool is_full = false;                  // dump: long values are not cut
    bool has_secrets = false;              // show: private keys are printed
    int32_t indent = 2;                    // json: blanks a level, 0 for one line
    uint32_t type = KOVRA_ASN1_TYPE_COUNT; // show, check: what the elements are; the count of types when not told
};

// What is wrong with an input: where, and why, from the innermost cause outward.
struct Trouble {
    struct Cause {
        int32_t code; // 0: found by the tool, not by the library; there is one cause then
        std::string text;
        std::string source;
    };
    size_t octet = 0;
    std::vector<Cause> chain;
};

// Where in the input an element was refused.
struct Refusal {
    const uint8_t *octets = nullptr;
    size_t begin = 0;
    size_t limit = 0;      // the element has to end there at the latest
    bool is_whole = false; // and not before
};

// Lets the library decode the element as each of the types in turn, and tells how the first that fails does; where none
// does the element stands where none may.
Trouble explain(const Refusal &refusal, std::initializer_list<uint32_t> types);

// The octets of a PEM block cannot be read.
Trouble bad_armour();

// There is no memory for what stands at the octet.
Trouble no_memory(size_t octet);

// Where an item stands.
struct Place {
    Message file;
    size_t number = 0; // from 1 on

    [[nodiscard]] Message text() const { return file + "[" + decimal(number) + "]"; } // as in "file[2]"
};

// One run of the tool.
class Session {
public:
    Options options;
    Output out;

    [[nodiscard]] Status status() const { return status_; }

    // Prints what is wrong to standard error, behind what was printed so far: a line "kovra-asn1: place: octet N: text
    // (code)" with the outermost text and code, and the chain below it.
    void report(const Message &place, const Trouble &trouble);
    // Prints that a file cannot be read or written.
    void report_file(std::string_view file, std::string_view reason);
    // Something is missing in the output for want of memory.
    [[nodiscard]] bool is_incomplete() const { return is_incomplete_; }

    // Calls the function with every item of every file until the output is over, and where it stands. Files that cannot
    // be read and malformed PEM blocks are reported on the way. Items of a pipe are given as they come, with what was
    // printed before them written out.
    using ForItem = std::function<void(const Item &, const Place &)>;
    void for_each_item(const ForItem &function);
    // The same for whole files.
    void for_each_file(const std::function<void(std::vector<uint8_t> &&, const Message &)> &function);

private:
    void for_each_of(Items items, const std::string &file, const ForItem &function);

    Status status_ = Status::good;
    bool is_incomplete_ = false;
    size_t origin_ = 0; // of the item at hand
};

struct Command {
    const char *name;
    const char *help;
    bool takes_files;
    void (*run)(Session &);
};

void dump(Session &session);
void show(Session &session);
void json(Session &session);
void der(Session &session);
void check(Session &session);
void types(Session &session);
void version(Session &session);

} // namespace kovra::tool
