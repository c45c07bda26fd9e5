// A notation for encodings in tables of test data: hexadecimal octets, "text", { } around content whose length octets
// are to be put in front, and @name for what was named before. What is not balanced or not known fails the test.
#pragma once

#include <map>
#include <string>

#include "tests/asn1_testing.hpp"

namespace kovra::test {

class Notation {
public:
    // Rows `let; name; notation` name parts; the others are left for the caller.
    std::vector<std::vector<std::string>> read(const std::string &file) {
        std::vector<std::vector<std::string>> rest;
        for (std::vector<std::string> &row : table(file)) {
            if (row[0] == "let")
                names_[row[1]] = octets_of(row[2]);
            else
                rest.push_back(row);
        }
        return rest;
    }

    std::string octets_of(std::string_view text) const {
        std::vector<std::string> open(1);
        for (size_t at = 0; at < text.size();) {
            if (text[at] == '{') {
                open.emplace_back();
            } else if (text[at] == '}' && open.size() > 1) {
                std::string content = std::move(open.back());
                open.pop_back();
                open.back() += length(content.size()) + content;
            } else if (text[at] == '"') {
                const size_t end = text.find('"', at + 1);
                open.back() += text.substr(at + 1, end - at - 1);
                at = end;
            } else if (text[at] == '@') {
                const size_t end = std::min(text.find_first_of(" {}", at), text.size());
                const auto named = names_.find(std::string(text.substr(at + 1, end - at - 1)));
                EXPECT_NE(named, names_.end()) << text.substr(at);
                if (named != names_.end())
                    open.back() += named->second;
                at = end;
                continue;
            } else {
                const size_t end = std::min(text.find_first_of("{}\"@", at), text.size());
                open.back() += octets(text.substr(at, end - at));
                at = end;
                continue;
            }
            ++at;
        }
        EXPECT_EQ(open.size(), 1u) << text;
        return open[0];
    }

private:
    static std::string length(size_t count) {
        if (count < 0x80)
            return {static_cast<char>(count)};
        std::string digits;
        for (; count != 0; count >>= 8)
            digits.insert(digits.begin(), static_cast<char>(count));
        return static_cast<char>(0x80 + digits.size()) + digits;
    }

    std::map<std::string, std::string> names_;
};

} // namespace kovra::test
