// Every code and its text, as docs/errors.md has them for callers.
#include <map>

#include "core/messages.hpp"
#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {

TEST(Codes, HaveTheDocumentedTextsAndNoOthersHaveAny) {
    using Texts = std::map<int32_t, std::string>;
    Texts texts[3]; // of the codec, general ones, those of streams
    std::ifstream file(KOVRA_SOURCE_DIR "/docs/errors.md");
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with("| 0x10"))
            continue;
        std::string text = line.substr(12, line.find(" |", 12) - 12);
        for (size_t at; (at = text.find("&nbsp;")) != text.npos;)
            text.replace(at, 6, " ");
        const int32_t code = std::stoi(line.substr(2, 7), nullptr, 16);
        texts[code >= 0x10200 ? 0 : code < 0x10100 ? 1 : 2][code] = text;
    }
    EXPECT_EQ(texts[0].size(), 468u);
    const auto expect_text = [](Texts &all, int32_t code, const char *text) {
        EXPECT_EQ(text, all.count(code) != 0 ? all[code] : "") << std::hex << code;
    };
    for (int32_t code = 0xFF00; code < 0x10500; ++code) {
        expect_text(texts[0], code, kovra::asn1::message(code));
        expect_text(texts[1], code, kovra_igetGeneralError(code));
        expect_text(texts[2], code, kovra_igetStreamError(code));
    }
}

} // namespace
} // namespace kovra::test
