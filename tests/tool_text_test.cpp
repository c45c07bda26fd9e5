// What kovra-asn1 prints of text from outside: nothing that a terminal acts on, whichever way it came.

#include "tests/tool_testing.hpp"

#if defined(KOVRA_TOOL_PATH)

namespace {

using namespace kovra::test;
using Result = ToolResult;

constexpr std::string_view ill_formed[] = {"\xFF", "\x9B", "\xC0\x80", "\xED\xA0\x80", "\xE2\x80", "\xF5\x80\x80\x80"};

// Letters of several scripts, and a mark, a symbol and characters of four octets: all to be printed as they are.
constexpr std::string_view letters = "A\xC3\xA9\xD0\x96\xCE\xA9\xD7\x90\xD8\xB9\xE0\xA4\x95\xE6\xBC\xA2\xED\x95\x9C"
                                     "e\xCC\x81\xE2\x82\xAC\xF0\x9F\x94\x91\xF0\xA0\x80\x80";

// Each control character and each end of a range of others, but for the codes before `first`.
std::string harmful_text(uint32_t first) {
    std::string text;
    for (const auto &range : harmful)
        for (uint32_t code = range.first; code <= range.last; code = range.first < 0x100 ? code + 1 : range.last) {
            if (code >= first && code != '/')
                text += utf8(code);
            if (code == range.last)
                break;
        }
    return text;
}

class ToolText : public ToolTest {
protected:
    // Runs the tool, which has to print nothing that is harmful, and, unless it does not repeat the text, the letters.
    Result run_unharmed(const std::string &arguments, std::string_view input = "", bool repeats = true) const {
        Result result = run(arguments, input);
        EXPECT_TRUE(is_harmless(result.out)) << result.out;
        EXPECT_TRUE(is_harmless(result.error)) << result.error;
        EXPECT_TRUE(!repeats || (result.out + result.error).find(letters) != std::string::npos)
            << result.out << result.error;
        return result;
    }
};

TEST_F(ToolText, OfStringsIsHarmless) {
    std::string text = harmful_text(0) + std::string(letters);
    const std::string common_name = oid("2.5.4.3");
    const auto name = [&](int tag, const std::string &value) {
        return der(0x30, der(0x31, der(0x30, common_name + der(tag, value))));
    };
    std::string wide;
    for (size_t at = 0; at < text.size();) {
        const uint32_t code = next_code(text, at);
        for (const int shift : {24, 16, 8, 0})
            wide += static_cast<char>(code >> shift);
    }
    // JSON has no word for what is ill-formed, and hexadecimal digits instead.
    for (const std::string &input : {name(12, text), name(28, wide)})
        for (const char *style : {"", "--compact", "--indent 1"}) {
            const Result json = run_unharmed(std::string("json ") + style, input);
            EXPECT_EQ(run("der", json.out).out, input) << "the same in meaning";
            EXPECT_EQ(run(std::string("json --out there ") + style, input).code, 0);
            EXPECT_EQ(content("there"), json.out);
        }
    for (const std::string_view octets : ill_formed)
        text += octets;
    text += letters;
    for (const std::string &input : {name(12, text), name(28, wide)})
        for (const char *command : {"show", "show --full", "dump --full"})
            EXPECT_EQ(run_unharmed(command, input).code, 0);
    // As the text of general names, of qualifiers, of data, and where it is no name.
    const std::string general = der(0x30, der(0x81, text) + der(0x82, text) + der(0x86, text));
    EXPECT_EQ(count(run_unharmed("show --type GENERAL_NAMES", general).out, letters), 6U);
    for (const int tag : {18, 19, 22, 23, 24, 26})
        run_unharmed("dump --full", der(tag, text));
}

TEST_F(ToolText, OfLabelsAndOptionsIsHarmless) {
    std::string text = harmful_text(1) + std::string(letters);
#if !defined(_WIN32)
    for (const std::string_view octets : ill_formed)
        text += octets;
#else
    text = harmful_text(0x7F) + std::string(letters);
#endif
    std::string label = text;
    std::erase_if(label, [](char c) { return c == '\n' || c == '\r'; });
    const std::string block = "-----BEGIN " + label + "-----\nBQA=\n-----END " + label + "-----\n";
    const Result dumped = run_unharmed("dump", block + block);
    EXPECT_EQ(count(dumped.out, "\n"), 4U) << dumped.out;
#if defined(_WIN32)
    const std::string quote = "\"";
#else
    const std::string quote = "'";
    std::erase(text, '\'');
#endif
    const struct {
        const char *option;
        bool repeats; // its value in the error
    } rows[] = {{"show --type ", false},   {"dump --color ", true}, {"json --indent ", true},          {"", false},
                {"dump --unknown=", true}, {"types ", true},        {"json --compact --indent ", true}};
    for (const auto &[option, repeats] : rows) {
        const Result refused = run_unharmed(option + quote + text + quote, "", repeats);
        EXPECT_EQ(refused.code, 2) << option;
        EXPECT_EQ(refused.out, "");
        EXPECT_LE(count(refused.error, "\n"), 2U) << "a value takes no line of its own: " << refused.error;
    }
}

#if !defined(_WIN32)
TEST_F(ToolText, OfFileNamesIsHarmless) {
    // A name has 255 octets at most.
    std::string text = harmful_text(1);
    for (const std::string_view octets : ill_formed)
        text += octets;
    const std::string names[] = {text.substr(0, 95) + std::string(letters), std::string(letters) + text.substr(95)};
    for (const std::string &name : names) {
        ASSERT_LE(name.size(), 255U);
        const std::string quoted = "'" + name + "'";
        for (const char *command : {"dump ", "show ", "json ", "der ", "check "}) {
            SCOPED_TRACE(command);
            // Missing; malformed; and of several elements, one of them malformed inside.
            const Result missing = run_unharmed(command + quoted);
            EXPECT_EQ(missing.code, 3);
            EXPECT_EQ(count(missing.error, "\n"), 1U) << missing.error;
            file(name, octets("30 05 02 05 01"));
            EXPECT_EQ(run_unharmed(command + quoted).code, 1);
            file(name, octets("05 00 30 03 02 01 05 A0 80"));
            EXPECT_EQ(run_unharmed(command + quoted).code, 1);
            std::filesystem::remove(path(name));
        }
        file("good", octets("05 00"));
        EXPECT_EQ(run_unharmed("json good --out missing/" + quoted).code, 3);
        EXPECT_EQ(run_unharmed("json good --out /dev/full/" + quoted).code, 3);
        // Met in a directory, as a file, as a link to nothing and as a directory.
        std::filesystem::create_directories(path("below") / name);
        for (const std::string &place : {"below/" + name + "/bad", "below/" + name + "/" + name})
            file(place, octets("30 05 02 05 01"));
        std::filesystem::create_symlink("nowhere", path("below") / name / ("x" + name.substr(1)));
        const Result checked = run_unharmed("check below");
        EXPECT_EQ(checked.code, 3);
        EXPECT_EQ(count(checked.error, "kovra-asn1: below/"), 3U);
        std::filesystem::remove_all(path("below"));
    }
}

TEST_F(ToolText, OfFileNamesIsEscapedAsInC) {
    const struct {
        std::string name;
        const char *printed;
    } rows[] = {
        {"a\nkovra-asn1: b", R"(a\nkovra-asn1: b)"},
        {"\x1B[31m\x7F\t\r", R"(\x1b[31m\x7f\t\r)"},
        {utf8(0x9B) + utf8(0x85) + utf8(0x202E) + utf8(0xE0001), R"(\u{9b}\u{85}\u{202e}\u{e0001})"},
        {"\xFF\x9B" + utf8(0xE9), "\\xff\\x9b\xC3\xA9"},
        {R"(back\slash "quoted")", R"(back\slash "quoted")"},
    };
    for (const auto &[name, printed] : rows)
        EXPECT_EQ(run("dump '" + name + "'").error,
                  std::string("kovra-asn1: ") + printed + ": No such file or directory\n");
}
#endif

} // namespace

#endif
