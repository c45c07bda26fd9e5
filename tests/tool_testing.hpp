// What the tests of the tool share: it is run as a process, in a directory of the test's own.
#pragma once

#if defined(KOVRA_TOOL_PATH)

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <random>

#include "tests/asn1_testing.hpp"

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#include <windows.h>
#endif

namespace kovra::test {

inline std::string read_file(const std::filesystem::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct ToolResult {
    int code = -1;
    std::string out;
    std::string error;
};

class ToolTest : public testing::Test {
protected:
    void SetUp() override {
        directory_ = std::filesystem::temp_directory_path() / ("kovra-tool-" + std::to_string(std::random_device{}()));
        ASSERT_TRUE(std::filesystem::create_directory(directory_));
    }
    void TearDown() override { std::filesystem::remove_all(directory_); }

    void file(const std::string &name, std::string_view content) const {
        std::ofstream(directory_ / name, std::ios::binary) << content;
    }
    [[nodiscard]] std::filesystem::path path(const std::string &name) const { return directory_ / name; }
    [[nodiscard]] std::string content(const std::string &name) const { return read_file(directory_ / name); }

    // Runs the tool in the test's directory with `input` as standard input. The arguments are UTF-8, separated by
    // blanks.
    [[nodiscard]] ToolResult run(const std::string &arguments, std::string_view input = "") const {
        file("in", input);
#if defined(_WIN32)
        return start(arguments);
#else
        return shell("$T " + arguments + " < in");
#endif
    }

#if !defined(_WIN32)
    // Runs a shell command line in the test's directory, in which $T is the tool. The code is that of the line, unless
    // it writes another one to the file.
    [[nodiscard]] ToolResult shell(const std::string &line) const {
        const std::string command = "cd '" + directory_.string() + "' && rm -f code && T='" KOVRA_TOOL_PATH "' && { " +
                                    line + "; s=$?; test -e code || echo $s > code; } > out 2> err";
        EXPECT_EQ(std::system(command.c_str()), 0);
        return {std::atoi(content("code").c_str()), content("out"), content("err")};
    }
#endif

private:
#if defined(_WIN32)
    [[nodiscard]] HANDLE open(const char *name, DWORD access, DWORD creation) const {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        return CreateFileW(path(name).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, creation,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
    }

    [[nodiscard]] ToolResult start(const std::string &arguments) const {
        const std::string utf8 = "\"" KOVRA_TOOL_PATH "\" " + arguments;
        std::wstring command = std::filesystem::path(std::u8string(utf8.begin(), utf8.end())).wstring();
        STARTUPINFOW startup = {};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdInput = open("in", GENERIC_READ, OPEN_EXISTING);
        startup.hStdOutput = open("out", GENERIC_WRITE, CREATE_ALWAYS);
        startup.hStdError = open("err", GENERIC_WRITE, CREATE_ALWAYS);
        PROCESS_INFORMATION process = {};
        DWORD code = 99;
        EXPECT_NE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, directory_.c_str(),
                                 &startup, &process),
                  0)
            << GetLastError();
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &code);
        for (const HANDLE handle :
             {process.hProcess, process.hThread, startup.hStdInput, startup.hStdOutput, startup.hStdError})
            CloseHandle(handle);
        return {static_cast<int>(code), content("out"), content("err")};
    }
#endif

    std::filesystem::path directory_;
};

// The file that takes everything.
#if defined(_WIN32)
constexpr const char *null_device = "NUL";
#else
constexpr const char *null_device = "/dev/null";
#endif

inline std::string taken(char *text, int64_t length) {
    std::string result(text != nullptr ? text : "", text != nullptr ? static_cast<size_t>(length) : 0);
    kovra_free(text);
    return result;
}

inline std::string pem(std::string_view data, const char *label) {
    int64_t length = 0;
    char *text = kovra_pemencode(data.data(), static_cast<int32_t>(data.size()), label, &length);
    return taken(text, length);
}

// An element in DER.
inline std::string der(int tag, std::string_view content) {
    const size_t length = content.size();
    std::string result(1, static_cast<char>(tag));
    if (length > 0xFF)
        result += octets("82") + static_cast<char>(length >> 8);
    else if (length > 0x7F)
        result += octets("81");
    return result + static_cast<char>(length) + std::string(content);
}

inline std::string oid(const char *dotted) {
    const Value value(KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER, kovra_asn1_oid_new(dotted));
    return octets(encoding(value));
}

// What a terminal or a viewer acts on: control characters, those that turn the direction of writing or break lines or
// are not to be seen, and tags.
constexpr struct {
    uint32_t first;
    uint32_t last;
} harmful[] = {{0x00, 0x1F},     {0x7F, 0x9F},     {0x61C, 0x61C},   {0x200B, 0x200F},
               {0x2028, 0x202E}, {0x2060, 0x206F}, {0xFEFF, 0xFEFF}, {0xE0000, 0x10FFFF}};

inline bool is_harmful(uint32_t code) {
    return std::any_of(std::begin(harmful), std::end(harmful),
                       [code](const auto &range) { return code >= range.first && code <= range.last; });
}

inline std::string utf8(uint32_t code) {
    const auto octet = [](uint32_t value) { return static_cast<char>(value); };
    const auto next = [&](int shift) { return octet(0x80 | (code >> shift & 0x3F)); };
    if (code < 0x80)
        return {octet(code)};
    if (code < 0x800)
        return {octet(0xC0 | code >> 6), next(0)};
    if (code < 0x10000)
        return {octet(0xE0 | code >> 12), next(6), next(0)};
    return {octet(0xF0 | code >> 18), next(12), next(6), next(0)};
}

// The code at an octet of well-formed text, which goes on behind it.
inline uint32_t next_code(const std::string &text, size_t &at) {
    const auto lead = static_cast<unsigned char>(text[at++]);
    uint32_t code = lead < 0x80 ? lead : lead < 0xE0 ? lead & 0x1F : lead < 0xF0 ? lead & 0x0F : lead & 0x07;
    for (; at < text.size() && (text[at] & 0xC0) == 0x80; ++at)
        code = code << 6 | (text[at] & 0x3FU);
    return code;
}

// Text that changes nothing on a terminal but what is to be read there: line feeds and characters.
inline bool is_harmless(const std::string &text) {
    kovra_ustring *characters = kovra_ustring_newutf8(text.data(), static_cast<int32_t>(text.size()));
    bool is_good = characters != nullptr;
    kovra_ustring_free(characters);
    for (size_t at = 0; is_good && at < text.size();) {
        const uint32_t code = next_code(text, at);
        is_good = code == '\n' || !is_harmful(code);
    }
    return is_good;
}

// JSON text with what is harmful in its strings as escapes.
inline std::string harmless_json(const std::string &text) {
    std::string result;
    for (size_t at = 0; at < text.size();) {
        const size_t begin = at;
        const uint32_t code = next_code(text, at);
        char escape[16] = "";
        if (code >= 0x10000)
            std::snprintf(escape, sizeof escape, "\\u%04x\\u%04x", 0xD7C0 + (code >> 10), 0xDC00 + (code & 0x3FF));
        else
            std::snprintf(escape, sizeof escape, "\\u%04x", code);
        result += code != '\n' && is_harmful(code) ? escape : text.substr(begin, at - begin);
    }
    return result;
}

inline std::vector<std::string> split(const std::string &text, const std::string &separator) {
    std::vector<std::string> parts;
    size_t begin = 0;
    for (size_t end; (end = text.find(separator, begin)) != text.npos; begin = end + separator.size())
        parts.push_back(text.substr(begin, end - begin));
    parts.push_back(text.substr(begin));
    return parts;
}

// The text with one blank wherever several stand behind `before`.
inline std::string squeezed(std::string text, const std::string &before = "") {
    for (size_t at = text.find(before + "  "); at != text.npos; at = text.find(before + "  ", at)) {
        at += before.size();
        text.erase(at, text.find_first_not_of(' ', at) - at - 1);
    }
    return text;
}

inline size_t count(const std::string &text, std::string_view part) {
    size_t found = 0;
    for (size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1))
        ++found;
    return found;
}

} // namespace kovra::test

#endif
