#include "command.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

#include <fcntl.h>
#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

#include "kovra/util.h"

namespace kovra::tool {

namespace {

constexpr size_t largest_input = 0x7FFFFFFF;

bool is_space(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

bool is_text(const std::string &octets) {
    const size_t looked_at = std::min<size_t>(octets.size(), 4096);
    return std::all_of(octets.begin(), octets.begin() + static_cast<ptrdiff_t>(looked_at), [](char character) {
        return is_space(character) ||
               (static_cast<uint8_t>(character) >= 0x20 && static_cast<uint8_t>(character) < 0x7F);
    });
}

bool decode_text(const std::string &text, std::string &out) {
    std::string digits;
    for (const char character : text)
        if (!is_space(character) && character != ':')
            digits += character;
    int32_t length = 0;
    void *octets = kovra_hexdecode(digits.data(), static_cast<int64_t>(digits.size()), &length);
    if (octets == nullptr || length == 0) {
        kovra_free(octets);
        octets = kovra_base64decode(text.data(), static_cast<int64_t>(text.size()), KOVRA_BASE64_IGNORE_SPACE, &length);
    }
    if (octets == nullptr || length == 0) {
        kovra_free(octets);
        return false;
    }
    out.assign(static_cast<const char *>(octets), static_cast<size_t>(length));
    kovra_free(octets);
    return true;
}

// Blocks of PEM text; nothing when there is none.
std::vector<Item> pem_blocks(const std::string &text) {
    std::vector<Item> items;
    if (text.find("-----BEGIN ") == std::string::npos)
        return items;
    int64_t position = 0;
    for (;;) {
        const char *label = nullptr;
        int32_t label_length = 0;
        void *data = nullptr;
        int32_t length = 0;
        if (kovra_pemnext(text.data(), static_cast<int64_t>(text.size()), &position, &label, &label_length, &data,
                          &length) != 1)
            return items;
        items.push_back({std::string(label, static_cast<size_t>(label_length)),
                         std::string(static_cast<const char *>(data), static_cast<size_t>(length))});
        kovra_free(data);
    }
}

std::string escaped(std::string_view text) {
    std::string out;
    for (const char character : text) {
        const auto octet = static_cast<uint8_t>(character);
        out += octet < 0x20 || octet == 0x7F ? '?' : character;
    }
    return out;
}

} // namespace

bool read_file(const std::string &path, std::string &out) {
    const bool is_standard_input = path == "-";
    std::error_code error;
    if (!is_standard_input && std::filesystem::is_directory(std::filesystem::u8path(path), error)) {
        report_file(path, "is a directory");
        return false;
    }
#if defined(_WIN32)
    if (is_standard_input)
        _setmode(_fileno(stdin), _O_BINARY);
    FILE *opened = is_standard_input ? stdin : _wfopen(std::filesystem::u8path(path).c_str(), L"rb");
#else
    FILE *opened = is_standard_input ? stdin : std::fopen(path.c_str(), "rb");
#endif
    if (opened == nullptr) {
        report_file(path, std::strerror(errno));
        return false;
    }
    const auto close = [is_standard_input](FILE *file) {
        if (!is_standard_input)
            std::fclose(file);
    };
    const std::unique_ptr<FILE, decltype(close)> file(opened, close);
    out.clear();
    if (!is_standard_input)
        if (const auto size = std::filesystem::file_size(std::filesystem::u8path(path), error);
            !error && size <= largest_input)
            out.reserve(static_cast<size_t>(size) + 1);
    for (;;) {
        char buffer[1 << 16];
        const size_t got = std::fread(buffer, 1, sizeof buffer, file.get());
        out.append(buffer, got);
        if (out.size() > largest_input) {
            report_file(path, "is larger than 2 GiB");
            return false;
        }
        if (got < sizeof buffer && std::ferror(file.get()) != 0) {
            report_file(path, std::strerror(errno));
            return false;
        }
        if (got == 0)
            return true;
    }
}

bool read_items(const std::string &path, std::vector<Item> &out) {
    std::string octets;
    if (!read_file(path, octets))
        return false;
    out.clear();
    if (is_text(octets)) {
        out = pem_blocks(octets);
        std::string decoded;
        if (out.empty() && decode_text(octets, decoded))
            out.push_back({"", decoded});
    }
    if (out.empty())
        out.push_back({"", std::move(octets)});
    return true;
}

bool Output::open(const std::string &path) {
#if defined(_WIN32)
    if (path.empty()) {
        _setmode(1, _O_BINARY);
        return true;
    }
    file_ = _wopen(std::filesystem::u8path(path).c_str(), _O_WRONLY | _O_CREAT | _O_TRUNC | _O_BINARY, 0666);
#else
    if (path.empty())
        return true;
    file_ = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
#endif
    if (file_ < 0)
        report_file(path, std::strerror(errno));
    return file_ >= 0;
}

void Output::pad(size_t count) {
    static constexpr char blanks[] = "                                                                ";
    for (; count > sizeof blanks - 1; count -= sizeof blanks - 1)
        put(std::string_view(blanks, sizeof blanks - 1));
    put(std::string_view(blanks, count));
}

void Output::put_hex(std::span<const uint8_t> octets) {
    static constexpr char digits[] = "0123456789abcdef";
    char text[512];
    size_t used = 0;
    for (const uint8_t octet : octets) {
        text[used++] = digits[octet >> 4];
        text[used++] = digits[octet & 0x0F];
        if (used == sizeof text) {
            put(std::string_view(text, used));
            used = 0;
        }
    }
    put(std::string_view(text, used));
}

void Output::put_more(std::string_view text) {
    write(std::string_view(buffer_, used_));
    used_ = 0;
    if (text.size() > sizeof buffer_) {
        write(text);
        return;
    }
    text.copy(buffer_, text.size());
    used_ = text.size();
}

void Output::write(std::string_view text) {
    while (!text.empty() && !closed_ && !failed_) {
#if defined(_WIN32)
        const auto written = _write(file_, text.data(), static_cast<unsigned>(std::min<size_t>(text.size(), 1 << 20)));
#else
        const auto written = ::write(file_, text.data(), text.size());
#endif
        if (written > 0)
            text.remove_prefix(static_cast<size_t>(written));
        else if (errno == EPIPE)
            closed_ = true;
        else if (errno != EINTR) {
            report_file("output", std::strerror(errno));
            failed_ = true;
        }
    }
}

Status Output::finish() {
    write(std::string_view(buffer_, used_));
    used_ = 0;
    return failed_ ? Status::io : Status::good;
}

bool Output::is_terminal() const {
#if defined(_WIN32)
    return _isatty(file_) != 0;
#else
    return isatty(file_) != 0;
#endif
}

void report_file(std::string_view file, std::string_view text) {
    const std::string line = "kovra-asn1: " + escaped(file) + ": " + std::string(text) + "\n";
    std::fputs(line.c_str(), stderr);
}

void report(const Options &options, const Trouble &trouble, const std::vector<ChainEntry> &chain) {
    std::string text = "kovra-asn1: " + escaped(trouble.file);
    if (trouble.item != 0)
        text += "[" + std::to_string(trouble.item) + "]";
    text += ": octet " + std::to_string(trouble.octet) + ": " + std::string(trouble.text);
    char code[16];
    if (trouble.code != 0) {
        std::snprintf(code, sizeof code, " (0x%x)", static_cast<unsigned>(trouble.code));
        text += code;
    }
    text += "\n";
    if (!options.quiet) {
        size_t widest = 0;
        for (const ChainEntry &entry : chain)
            widest = std::max(widest, entry.text.size());
        for (const ChainEntry &entry : chain) {
            std::snprintf(code, sizeof code, "  0x%x ", static_cast<unsigned>(entry.code));
            text += code + entry.text + std::string(widest - entry.text.size() + 2, ' ') + entry.source + "\n";
        }
    }
    std::fputs(text.c_str(), stderr);
}

Status for_each_item(const Options &options, const ItemCommand &command) {
    Status status = Status::good;
    std::vector<std::string> files = options.files;
    if (files.empty())
        files.emplace_back("-");
    for (const std::string &file : files) {
        std::vector<Item> items;
        if (!read_items(file, items)) {
            status = worse(status, Status::io);
            continue;
        }
        for (size_t i = 0; i < items.size(); ++i)
            status = worse(status, command(items[i], file, i + 1, items.size()));
    }
    return status;
}

} // namespace kovra::tool
