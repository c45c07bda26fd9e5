// What the commands of kovra-asn1 share: where octets come from, where text goes, and how trouble is told.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kovra::tool {

// Exit codes; with several inputs the worst counts.
enum class Status : int { good = 0, malformed = 1, usage = 2, io = 3 };
inline Status worse(Status left, Status right) {
    return left > right ? left : right;
}

// One thing to look at: a PEM block, or all octets of a file.
struct Item {
    std::string label; // of a PEM block; empty for others
    std::string octets;
};

// Reads a file ("-": standard input) and recognises its form by its content: PEM, base64, hexadecimal, or BER itself.
// False, with a message written, when it cannot be read.
bool read_items(const std::string &path, std::vector<Item> &out);
// The octets as they are.
bool read_file(const std::string &path, std::string &out);

// Standard output or a file, written in large pieces. A closed pipe ends the output quietly.
class Output {
public:
    // False when the file cannot be opened.
    bool open(const std::string &path);
    void put(std::string_view text) {
        if (text.size() > sizeof buffer_ - used_)
            return put_more(text);
        text.copy(buffer_ + used_, text.size());
        used_ += text.size();
    }
    void put(char character) { put(std::string_view(&character, 1)); }
    void pad(size_t count);
    void put_hex(std::span<const uint8_t> octets);
    // Writes what is gathered; good unless the output failed other than by a closed pipe.
    Status finish();
    [[nodiscard]] bool is_closed() const { return closed_; }
    [[nodiscard]] bool is_terminal() const;

private:
    void put_more(std::string_view text);
    void write(std::string_view text);

    char buffer_[1 << 16];
    size_t used_ = 0;
    int file_ = 1;
    bool closed_ = false; // nobody reads any more
    bool failed_ = false;
};

struct Options {
    std::vector<std::string> files;
    std::string out;
    std::string color = "auto";
    std::string pem_label;
    int indent = 2;
    bool quiet = false;
};

// Writes `kovra-asn1: file[item]: octet N: text (code)` and the chain below it, from the innermost cause outwards.
struct Trouble {
    std::string_view file;
    size_t item = 0; // from 1 on; 0: the file has only one
    size_t octet = 0;
    std::string_view text;
    int32_t code = 0; // 0: none
};
struct ChainEntry {
    int32_t code;
    std::string text;
    std::string source;
};
void report(const Options &options, const Trouble &trouble, const std::vector<ChainEntry> &chain = {});
// The same for trouble with files: no octet, no code.
void report_file(std::string_view file, std::string_view text);

// Runs over every item of every file and gives the worst status.
using ItemCommand = std::function<Status(const Item &item, std::string_view file, size_t number, size_t count)>;
Status for_each_item(const Options &options, const ItemCommand &command);

// The commands.
Status dump(const Options &options, Output &out);
Status json(const Options &options, Output &out);
Status der(const Options &options, Output &out);
Status types(const Options &options, Output &out);
Status version(const Options &options, Output &out);

} // namespace kovra::tool
