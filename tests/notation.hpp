// Octets written as nested elements, for tables of test data.
#pragma once

#include <map>
#include <string>

#include "tests/asn1_testing.hpp"

namespace kovra::test {

// The text between quotation marks, with \n \r \t \\ and \xHH for one character, and \{c*5} for five of them.
inline std::string unquoted(const std::string &text) {
    static const std::map<char, char> plain = {{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'\\', '\\'}};
    std::string result;
    for (size_t i = 1; i + 1 < text.size(); ++i) {
        if (text[i] != '\\') {
            result += text[i];
        } else if (text[++i] == 'x') {
            result += octets(text.substr(i + 1, 2));
            i += 2;
        } else if (text[i] == '{') {
            result += std::string(std::stoul(text.substr(i + 3)), text[i + 1]);
            i = text.find('}', i);
        } else {
            result += plain.at(text[i]);
        }
    }
    return result;
}

// Octets of a notation: hexadecimal digits; "text"; {name} for octets that were defined before; behind identifier
// octets (content) for a definite length, <content> for one in five octets, [content] for the indefinite form. The
// length is more or less by the digit in (+1 content) and (-1 content).
class Notation {
public:
    void define(const std::string &name, std::string_view text) { names_[name] = octets(text); }

    [[nodiscard]] std::string octets(std::string_view text) const {
        std::string result = sequence(text);
        EXPECT_TRUE(text.empty()) << "not understood: " << text;
        return result;
    }

private:
    std::string sequence(std::string_view &text) const {
        std::string result;
        while (!text.empty()) {
            const char c = text[0];
            if (c == ')' || c == ']' || c == '>')
                break;
            text.remove_prefix(1);
            if (c == '"') {
                result += text.substr(0, text.find('"'));
                text.remove_prefix(text.find('"') + 1);
            } else if (c == '{') {
                auto found = names_.find(std::string(text.substr(0, text.find('}'))));
                EXPECT_NE(found, names_.end()) << text;
                result += found != names_.end() ? found->second : "";
                text.remove_prefix(text.find('}') + 1);
            } else if (c == '(' || c == '[' || c == '<') {
                result += element_content(c, text);
            } else if (c != ' ') {
                result += test::octets({&c, 1}).empty() ? test::octets({text.data() - 1, 2}) : "?";
                text.remove_prefix(1);
            }
        }
        return result;
    }

    std::string element_content(char bracket, std::string_view &text) const {
        int lie = 0;
        if (text[0] == '+' || text[0] == '-') {
            lie = (text[1] - '0') * (text[0] == '+' ? 1 : -1);
            text.remove_prefix(2);
        }
        std::string content = sequence(text);
        EXPECT_FALSE(text.empty()) << "an element is not closed";
        text.remove_prefix(text.empty() ? 0 : 1);
        const auto length = static_cast<int>(content.size()) + lie;
        std::string header;
        auto add = [&](int octet) { header += static_cast<char>(octet); };
        if (bracket == '[') {
            add(0x80);
            return header + content + std::string(2, '\0');
        }
        if (bracket == '<') {
            add(0x84);
            add(0);
            add(0);
            add(length >> 8);
        } else if (length > 255) {
            add(0x82);
            add(length >> 8);
        } else if (length > 127) {
            add(0x81);
        }
        add(length);
        return header + content;
    }

    std::map<std::string, std::string> names_;
};

// Names that definitions at the head of a table in tests/data give to octets.
inline const Notation &notation(const std::string &file) {
    static std::map<std::string, Notation> known;
    const auto [at, is_new] = known.emplace(file, Notation());
    if (is_new)
        for (const auto &row : table(file))
            if (row[0] == "let")
                at->second.define(row[1], row[2]);
    return at->second;
}

inline std::string noted(std::string_view text, const std::string &file = "structures.txt") {
    return notation(file).octets(text);
}

} // namespace kovra::test
