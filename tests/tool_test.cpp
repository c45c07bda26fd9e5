// The tool kovra-asn1, run as a process.

#include "base/thresholds.hpp"
#include "tests/tool_testing.hpp"

#if defined(KOVRA_TOOL_PATH)

#include <chrono>
#include <map>
#include <random>

namespace {

namespace fs = std::filesystem;
using namespace kovra::test;
using Result = ToolResult;

class Tool : public ToolTest {
protected:
    // What `der` makes of what `json` prints.
    [[nodiscard]] std::string there_and_back(std::string_view input, const std::string &style) const {
        const Result json = run("json " + style, input);
        const Result der = run("der", json.out);
        EXPECT_EQ(json.code, 0) << json.error;
        EXPECT_EQ(der.code, 0) << der.error;
        return der.out;
    }
};

std::string base64(std::string_view data) {
    int64_t length = 0;
    char *text = kovra_base64encode(data.data(), static_cast<int32_t>(data.size()), 64, &length);
    return taken(text, length);
}

// What the library prints for an element, made harmless; nothing when it has no description.
std::string description(std::string_view element, int32_t indent) {
    kovra_json *value = kovra_asn1_tojson(element.data(), static_cast<int32_t>(element.size()));
    int64_t length = 0;
    char *printed = kovra_json_print(value, indent, &length);
    const std::string text = taken(printed, length);
    kovra_json_free(value);
    return text.empty() ? text : harmless_json(text) + "\n";
}

// A SEQUENCE whose length takes two octets, whatever it is.
std::string sequence(std::string_view content) {
    const size_t length = content.size();
    return octets("3082") + static_cast<char>(length >> 8) + static_cast<char>(length) + std::string(content);
}

// Elements in DER, of every kind that the description tells apart.
constexpr std::string_view elements[] = {
    "01 01 FF",
    "01 01 00",
    "02 01 05",
    "02 02 00 7F",
    "02 09 FF0102030405060708",
    "03 03 05 7FE0",
    "03 01 00",
    "04 00",
    "04 03 414243",
    "05 00",
    "06 09 2A864886F70D01010B",
    "06 08 69 85C69DB0B6C51A", // an arc of 49 bits
    "0A 01 07",
    "0C 08 22 C3A9 F09F9880 5C", // a quotation mark, characters of two and four octets, a backslash
    "0C 03 61 0A 00",
    "0C 02 C328", // ill-formed
    "12 04 31322033",
    "13 03 412042",
    "13 01 40", // outside its repertoire
    "14 03 E04142",
    "16 04 41407E7F",
    "17 0D 3236303232383132333435365A",
    "17 0D 3236303232383132333435365A",
    "18 0F 32303234303232393233353935395A", // a leap day
    "18 13 32303234303232393233353935392E3132355A",
    "1A 04 41405C22",
    "1B 01 41",
    "1C 08 00000041 000303B1",
    "1C 04 0011FFFF", // no character
    "1E 04 0041 0431",
    "1E 02 D800", // half a pair
    "0D 01 03",
    "30 00",
    "31 00",
    "30 05 30 03 02 01 01",
    "A0 03 02 01 07",
    "80 01 07",
    "A2 06 02 01 01 02 01 02", // two elements inside: no explicit tag
    "A0 00",
    "7F 20 02 05 00",
    "FF 87 FF FF FF 7F 02 05 00", // the largest tag number
};

// The same and more in BER.
constexpr std::string_view ber_elements[] = {
    "01 01 01",
    "30 80 02 01 05 00 00",
    "A0 80 02 01 05 00 00",
    "24 80 04 01 41 24 03 04 01 42 00 00",
    "23 08 03 02 00 41 03 02 04 50",
    "2C 05 04 03 C3A9 41",
    "17 11 3236303232383132333435362B30313330", // with an offset
    "17 0B 323630323238313233345A",
    "18 0A 32303234303232393233",
    "30 80 31 80 A1 80 00 00 00 00 00 00",
    "30 84 00 00 00 02 05 00",
    "7F 80 20 02 05 00",
};

std::string all_elements() {
    std::string all;
    for (const std::string_view element : elements)
        all += octets(element);
    return all;
}

TEST_F(Tool, JsonAndDerAreInverse) {
    const std::string all = all_elements();
    for (const char *style : {"", "--compact", "--indent 5"})
        EXPECT_EQ(there_and_back(all, style), all) << style;
    const std::string nested = sequence(all + all) + sequence(sequence(all + all));
    EXPECT_EQ(there_and_back(nested, ""), nested);
}

TEST_F(Tool, JsonIsWhatTheLibraryPrints) {
    for (const int32_t indent : {0, 2, 16}) {
        std::string expected;
        std::string input;
        for (const auto &list : {std::vector(std::begin(elements), std::end(elements)),
                                 std::vector(std::begin(ber_elements), std::end(ber_elements))})
            for (const std::string_view element : list) {
                // Deep enough to be at the end of the indentation, too.
                for (const size_t depth : {0, 1, 40, 100}) {
                    std::string wrapped = octets(element);
                    for (size_t i = 0; i < depth; ++i)
                        wrapped = sequence(wrapped);
                    input += wrapped;
                    expected += description(wrapped, indent);
                }
            }
        const Result result = run("json --indent " + std::to_string(indent), input);
        EXPECT_EQ(result.code, 0) << result.error;
        EXPECT_TRUE(result.out == expected) << indent;
    }
}

// Each mutation stands in a PEM block of its own: those without a description are reported, the others printed.
TEST_F(Tool, MutationsAreJudgedAsByTheLibrary) {
    std::mt19937 random(20240229);
    const std::string nested = all_elements() + octets(ber_elements[1]) + octets(ber_elements[3]);
    std::string input;
    std::string expected;
    long refused = 0;
    for (int i = 0; i < 4000; ++i) {
        std::string mutated = i % 4 == 0 ? sequence(nested) : octets(elements[random() % std::size(elements)]);
        if (i % 4 == 1)
            mutated = octets(ber_elements[random() % std::size(ber_elements)]);
        for (size_t count = 1 + random() % 2; count > 0; --count) {
            const auto change = static_cast<char>(random() % 3 == 0 ? random() : 1U << (random() % 8));
            char &octet = mutated[random() % mutated.size()];
            octet = static_cast<char>(octet ^ change);
        }
        mutated = sequence(mutated);
        input += pem(mutated, "DATA");
        const std::string text = description(mutated, 2);
        expected += text;
        refused += text.empty() ? 1 : 0;
    }
    const Result result = run("json --quiet", input);
    EXPECT_TRUE(result.out == expected);
    EXPECT_EQ(std::count(result.error.begin(), result.error.end(), '\n'), refused);
    EXPECT_EQ(result.code, 1);
    const Result dumped = run("dump", input);
    EXPECT_LE(dumped.code, 1);
}

TEST_F(Tool, ExamplesComeBackIdentical) {
    for (const auto &entry : fs::directory_iterator(KOVRA_SOURCE_DIR "/examples")) {
        const fs::path &path = entry.path();
        if (path.extension() == ".md" || path.extension() == ".c")
            continue;
        EXPECT_EQ(run("dump " + path.string()).code, 0) << path;
        const Result json = run("json " + path.string());
        EXPECT_EQ(json.code, 0) << path << json.error;
        // BER becomes the DER of the same value, which becomes itself.
        const std::string der = run("der", json.out).out;
        EXPECT_EQ(there_and_back(der, "--compact"), der) << path;
        const std::string original = read_file(path);
        const bool is_der = path.extension() == ".der" && original.find(octets("30 80")) != 0;
        EXPECT_TRUE(!is_der || der == original) << path;
    }
}

TEST_F(Tool, FormsAreRecognisedByTheirContent) {
    const std::string element = sequence(octets("0C 04 54657374 02 01 05"));
    const std::string expected = description(element, 2);
    const struct {
        const char *name;
        std::string input;
    } forms[] = {
        {"octets", element},
        {"PEM", "some words\r\n" + pem(element, "ANY LABEL")},
        {"PEM after a byte order mark", "\xEF\xBB\xBF" + pem(element, "X")},
        {"base64", base64(element)},
        {"base64 on one line", base64(element).substr(0, base64(element).find('\n'))},
        {"hexadecimal", "30820009 0C0454657374020105\n"},
        {"hexadecimal with colons", "30:82:00:09:0c:04\n54:65:73:74:02:01:05"},
    };
    for (const auto &[name, input] : forms) {
        const Result result = run("json", input);
        EXPECT_EQ(result.out, expected) << name;
        EXPECT_EQ(result.code, 0) << name << result.error;
    }
    // A message that has PEM inside is not PEM.
    const std::string holding = octets("04 82 00") + static_cast<char>(pem(element, "X").size()) + pem(element, "X");
    EXPECT_EQ(run("json", holding).out, description(holding, 2));
}

TEST_F(Tool, EveryItemIsShown) {
    const std::string one = octets("02 01 01");
    const std::string two = octets("30 80 05 00 00 00");
    file("a", pem(one, "FIRST") + "between\n" + pem(one + two, "SECOND"));
    file("b", one + two);
    const Result dumped = run("dump a b");
    EXPECT_EQ(dumped.code, 0);
    for (const char *heading :
         {"# a[1] FIRST\n", "# a[2] SECOND\n", "# a[3] SECOND\n", "# b[1]\n     0", "# b[2]\n     3"})
        EXPECT_NE(dumped.out.find(heading), std::string::npos) << heading;
    EXPECT_EQ(run("dump", one).out.find('#'), std::string::npos);
    EXPECT_EQ(run("json a b").out,
              repeated(description(one, 2), 2) + description(two, 2) + description(one, 2) + description(two, 2));
    // A block that is damaged takes nothing with it.
    const Result damaged = run("json", pem(one, "A") + "-----BEGIN B-----\n?\n-----END B-----\n" + pem(two, "C"));
    EXPECT_EQ(damaged.out, description(one, 2) + description(two, 2));
    EXPECT_EQ(damaged.error.find("kovra-asn1: -[2]: octet 0: "), 0U) << damaged.error;
    EXPECT_EQ(damaged.code, 1);
}

#if defined(_WIN32)
TEST_F(Tool, Pipes) {
    GTEST_SKIP() << "SKIPPED: pipes and full devices need a POSIX shell; they are tested on Linux, 64 and 32 bit";
}
#else
TEST_F(Tool, PipesAreReadLikeFiles) {
    const std::string two = octets("02 01 05 30 80 05 00 00 00");
    const std::string inputs[] = {
        "",
        octets("02 01 05"),
        two,
        two + octets("00 00 02 01"),
        two + octets("00 05"),
        two + octets("04 05 00"),                              // cut short
        octets("30 04 04 05 00 00 05 00"),                     // malformed inside
        octets("30 80 04 80 00 00 00 00 05 00"),               // primitive and indefinite
        octets("5F 37 04 01 02 03 04 05 00"),                  // tag numbers of several octets
        octets("30 80 BF 81 00 02 05 00 00 00 05 00"),         // also inside
        octets("30 30") + repeated("A", 48) + octets("05 00"), // for long like text
        pem(two, "TWO"),
        base64(two),
        octets("04 82 00 40") + pem(octets("05 00"), "X"),
        repeated(octets("30 82 04 00") + repeated(octets("05 00"), 512),
                 kovra::is_tight ? 30 : 3000), // items are dropped on the way
    };
    for (const std::string &input : inputs) {
        SCOPED_TRACE(hex(input.substr(0, 20)));
        for (const char *command : {"dump", "json"}) {
            const Result expected = run(command, input);
            for (const char *writer : {"cat in", "dd if=in bs=1 2> dd"}) {
                if (input.size() > 1000 && writer[0] == 'd')
                    continue;
                const Result found = shell(std::string(writer) + " | $T " + command);
                EXPECT_EQ(found.out, expected.out);
                EXPECT_EQ(found.error, expected.error);
                EXPECT_EQ(found.code, expected.code);
            }
        }
    }
}

// The writer goes on until it sees its elements shown, or gives up.
TEST_F(Tool, PipesThatDoNotEndAreShownAsTheyCome) {
    const auto see = [](const std::string &text) {
        return "for i in $(seq 600); do grep -q '" + text + "' out && echo seen >> seen && break; sleep 0.05; done";
    };
    file("first", octets("02 01 05"));
    file("second", octets("30 80 05 00"));
    file("third", octets("00 00"));
    const std::string line = "{ cat first; " + see("INTEGER") + "; cat second third; " + see("end-of-contents");
    EXPECT_EQ(shell(line + "; } | $T dump").code, 0);
    EXPECT_EQ(content("seen"), "seen\nseen\n");
    // Nothing can follow what is no element; who writes on is told by a closed pipe.
    for (const char *begin : {"\\000", "\\004\\200"})
        EXPECT_EQ(shell(std::string("{ printf '") + begin + "'; cat /dev/zero; } | $T dump").code, 1) << begin;
    EXPECT_EQ(shell("while cat first; do :; done 2> cat | $T dump | head -n 2 | tail -n 1").out,
              "     0   2      1  INTEGER                        5\n");
#if !defined(__SANITIZE_ADDRESS__)
    // What was shown is forgotten.
    file("large", octets("04 83 100000") + repeated("A", 1 << 20));
    const Result little =
        shell("for i in $(seq 400); do cat large; done | (ulimit -v 100000; $T dump --quiet | tail -n 1)");
    EXPECT_EQ(little.out.find("418383819   5   1048576  OCTET STRING "), 0U) << little.out;
    EXPECT_EQ(little.error, "");
#endif
}

#endif

TEST_F(Tool, DumpPrintsColumnsAndValues) {
    const struct {
        std::string_view input;
        std::string expected;
    } rows[] = {
        {"02 02 FF7F", "     0   2      2  INTEGER                        -129\n"},
        {"02 01 80", "     0   2      1  INTEGER                        -128\n"},
        {"02 08 7FFFFFFFFFFFFFFF", "     0   2      8  INTEGER                        9223372036854775807\n"},
        {"02 09 00FFFFFFFFFFFFFFFF", "     0   2      9  INTEGER                        0x00ffffffffffffffff\n"},
        {"06 03 550403", "     0   2      3  OBJECT IDENTIFIER              2.5.4.3 commonName\n"},
        {"17 0D 3530303232383132333435365A",
         "     0   2     13  UTCTime                        1950-02-28 12:34:56 UTC\n"},
        {"17 11 3236303232383132333435362B30313330",
         "     0   2     17  UTCTime                        2026-02-28 11:04:56 UTC\n"},
        {"18 12 32303234303232393233353935392E31325A",
         "     0   2     18  GeneralizedTime                2024-02-29 23:59:59.12 UTC\n"},
        {"17 01 5A", "     0   2      1  UTCTime                        \"Z\" (not a time)\n"},
        {"04 04 30 02 05 00", "     0   2      4  OCTET STRING                   contains an element\n"
                              "     2   2      2    SEQUENCE\n"
                              "     4   2      0      NULL\n"},
        {"04 04 30 02 05 01", "     0   2      4  OCTET STRING                   30020501\n"},
        {"03 03 00 05 00", "     0   2      3  BIT STRING                     contains an element\n"
                           "     3   2      0    NULL\n"},
        {"03 03 01 05 00", "     0   2      3  BIT STRING                     (unused bits: 1) 0500\n"},
        {"24 80 04 01 00 00 00", "     0   2  indef  OCTET STRING (constructed)\n"
                                 "     2   2      1    OCTET STRING                 00\n"
                                 "     5   2      0  end-of-contents\n"},
        {"7F 21 03 5F 1F 00", "     0   3      3  [APPLICATION 33]\n"
                              "     3   3      0    [APPLICATION 31]\n"},
        // What a terminal would act on: escape, delete, an 8-bit control sequence, a turn of direction; ill-formed.
        {"0C 0C 1B 7F 0A C29B E280AE 22 C3A9 FF",
         R"(     0   2     12  UTF8String                     "\x1b\x7f\n\u{9b}\u{202e}\"é\xff")"
         "\n"},
        {"1E 04 001B 0431", "     0   2      4  BMPString                      \"\\x1bб\"\n"},
    };
    for (const auto &[input, expected] : rows)
        EXPECT_EQ(run("dump", octets(input)).out, expected) << input;
    // Long values are cut: octets behind the 48th, text behind the 128th.
    const struct {
        int tag;
        std::string before;
        char octet;
        std::string printed;
        std::string quote;
        size_t most;
    } cuts[] = {{4, "", '\xAB', "ab", "", 48}, {3, octets("00"), '\xAB', "ab", "", 48}, {12, "", 'A', "A", "\"", 128}};
    for (const auto &[tag, before, octet, printed, quote, most] : cuts)
        for (const size_t length : {most, most + 1}) {
            const std::string input = der(tag, before + std::string(length, octet));
            const std::string end = length > most ? "... (" + std::to_string(length) + " octets)\n" : "\n";
            const std::string cut = " " + quote + repeated(printed, most) + quote + end;
            const std::string full = " " + quote + repeated(printed, length) + quote + "\n";
            EXPECT_NE(run("dump", input).out.find(cut), std::string::npos) << tag << run("dump", input).out;
            EXPECT_NE(run("dump --full", input).out.find(full), std::string::npos) << tag;
        }
    EXPECT_EQ(run("dump --color always", octets("30 00")).out.find('\x1B'), 19U);
    EXPECT_EQ(run("dump --color auto", octets("30 00")).out.find('\x1B'), std::string::npos);
}

// Each universal tag with the content 41.
TEST_F(Tool, DumpNamesTagsAndTellsTextFromOctets) {
    const std::string expected =
        R"(BOOLEAN TRUE (not FF)|INTEGER 65|BIT STRING 41|OCTET STRING 41|NULL 41|OBJECT IDENTIFIER 1.25|)"
        R"(ObjectDescriptor "A"|EXTERNAL 41|REAL 41|ENUMERATED 65|EMBEDDED PDV 41|UTF8String "A"|)"
        R"(RELATIVE-OID 65|TIME "A"|[UNIVERSAL 15] 41|SEQUENCE 41|SET 41|NumericString "A"|)"
        R"(PrintableString "A"|TeletexString "A"|VideotexString "A"|IA5String "A"|UTCTime "A" (not a time)|)"
        R"(GeneralizedTime "A" (not a time)|GraphicString "A"|VisibleString "A"|GeneralString "A"|)"
        R"(UniversalString 41 (not characters)|CHARACTER STRING 41|BMPString 41 (not characters)|DATE "A"|)"
        R"(TIME-OF-DAY "A"|DATE-TIME "A"|DURATION "A"|OID-IRI "A"|RELATIVE-OID-IRI 41|[UNIVERSAL 37] 41)";
    std::string input;
    for (int tag = 1; tag <= 37; ++tag)
        input += (tag < 31 ? std::string() : octets("1F")) + static_cast<char>(tag) + octets("01 41");
    std::istringstream lines(run("dump --quiet", input).out);
    std::string line;
    for (const std::string &text : split(expected, "|")) {
        ASSERT_TRUE(std::getline(lines, line));
        EXPECT_EQ(squeezed(line.substr(19)), text);
    }
    // In a string, what begins like an element that is often there and is one.
    std::string leads;
    for (int lead = 1; lead < 256; ++lead)
        leads += (lead & 0x1F) != 0x1F ? std::string(1, static_cast<char>(lead)) : "";
    input.clear();
    for (const char lead : leads)
        input += octets("04 02") + lead + '\0';
    lines = std::istringstream(run("dump --quiet", input).out);
    std::string opened;
    for (size_t i = 0; std::getline(lines, line);)
        if (line.find("OCTET STRING") == 19)
            opened += line.find("contains an element", ++i) != line.npos ? leads.substr(i - 1, 1) : "";
    EXPECT_EQ(opened, octets("01 02 03 04 05 06 0A 0C 13 16 17 18 1E 30 31"));
    for (const char *inside :
         {"04 01 05", "04 02 0501", "04 03 050000", "04 04 3002 0501", "04 06 3004 0000 0500", "04 02 3080",
          "04 04 05000500", "03 03 01 0500", "03 01 00", "03 02 00 05", "84 02 0500", "24 04 0402 0500"})
        EXPECT_EQ(run("dump", octets(inside)).out.find("contains an element\n") != std::string::npos, inside[0] == '2')
            << inside;
}

TEST_F(Tool, FailuresAreToldInOneForm) {
    file("bad", octets("30 0F 17 0D 3939303233303132303030305A"));
    const Result result = run("json bad");
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.error, "kovra-asn1: bad[1]: octet 17: decode utctime fail (0x1023b)\n"
                            "  0x102ec encode other name forms fail  ASN1_Time\n"
                            "  0x1023b decode utctime fail           kovra-asn1\n");
    const struct {
        std::string_view input;
        const char *place; // and code, of dump
        const char *code;
    } rows[] = {
        {"", "octet 0", "(0x102e5)"},
        {"30 05 02 05 01", "octet 5", "(0x10105)"},                   // cut off
        {"30 04 02 03 01 02 02 01 05", "octet 6", "(0x10105)"},       // reaches beyond the element it stands in
        {"30 03 02 01 05 30 04 00 00 05 00", "octet 7", "(0x1020a)"}, // end-of-contents in a definite length
        {"1F 05 00", "octet 2", "(0x102e5)"},                         // a low tag number in the long form
        {"30 FF", "octet 2", "(0x102e7)"},
        {"30 80 02 01 05", "octet 5", "(0x102e5)"}, // no end-of-contents
    };
    for (const auto &[input, place, code] : rows)
        for (const char *command : {"dump", "json"}) {
            const Result refused = run(std::string(command) + " --quiet", octets(input));
            EXPECT_EQ(refused.code, 1) << input;
            EXPECT_NE(refused.error.find(std::string(": ") + place + ": "), std::string::npos)
                << input << refused.error;
            EXPECT_NE(refused.error.find(code), std::string::npos) << input << refused.error;
            EXPECT_EQ(std::count(refused.error.begin(), refused.error.end(), '\n'), 1) << refused.error;
        }
    for (const char *text : {"", "{", "[]", "{\"type\":\"INTEGER\"}", "{\"type\":\"NULL\"} x"}) {
        const Result refused = run("der", text);
        EXPECT_EQ(refused.code, 1) << text;
        EXPECT_EQ(refused.error.find("kovra-asn1: -["), 0U) << text << refused.error;
    }
}

TEST_F(Tool, ExitCodesTellTheWorst) {
    file("good", octets("05 00"));
    file("bad", octets("05 01"));
    const struct {
        const char *arguments;
        int code;
    } rows[] = {
        {"dump good", 0},
        {"json good good", 0},
        {"json bad good", 1},
        {"json good missing bad", 3},
        {"dump .", 3},
        {"types", 0},
        {"version", 0},
        {"--help", 0},
        {"", 2},
        {"nothing", 2},
        {"json --indent x", 2},
        {"json --indent 2 --compact good", 2},
        {"dump --colour x", 2},
        {"types good", 2},
        {"json good --out missing/out", 3},
    };
    for (const auto &[arguments, code] : rows)
        EXPECT_EQ(run(arguments).code, code) << arguments;
    EXPECT_EQ(run("json bad missing good --quiet").out, description(octets("05 00"), 2));
    EXPECT_EQ(run("json --compact good --out there").out, "");
    EXPECT_EQ(content("there"), description(octets("05 00"), 0));
    // What fails does not empty a file.
    EXPECT_EQ(run("json bad --out there").code, 1);
    EXPECT_EQ(content("there"), description(octets("05 00"), 0));
}

#if !defined(_WIN32)
TEST_F(Tool, OutputThatIsFullOrClosedEnds) {
    const std::string large = repeated(octets("30 03 02 01 05"), 100000);
    file("large", large);
    for (const char *command : {"dump", "json", "types", "version"}) {
        const std::string arguments = std::string(command) + (command[0] == 'd' || command[0] == 'j' ? " large" : "");
        const Result full = shell("$T " + arguments + " > /dev/full");
        EXPECT_EQ(full.code, 3) << command;
        EXPECT_EQ(full.error, "kovra-asn1: standard output: No space left on device\n") << command;
        const Result closed = shell("{ $T " + arguments + "; echo $? > code; } | head -c 1 > /dev/null");
        EXPECT_EQ(closed.code, 0) << command;
        EXPECT_EQ(closed.error, "") << command;
    }
}

#endif

// Names are UTF-8 wherever they stand; on Windows the system's own are UTF-16.
TEST_F(Tool, NamesNeedNotBeAscii) {
    const std::string name = "str\xC3\xB6mung-\xE6\xB5\x81-\xF0\x9F\x94\x91";
    const fs::path native(std::u8string(name.begin(), name.end()));
    fs::create_directory(path("") / native);
    std::ofstream(path("") / native / native, std::ios::binary) << octets("0C 03 0D0A1A") << octets("05 01");
    const Result result = run("json " + name + "/" + name + " --out " + name + "2");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.error.find("kovra-asn1: " + name + "/" + name + "[2]: octet 7: "), 0U) << result.error;
    const std::string written = read_file(path("") / fs::path(std::u8string(native.u8string()) + u8"2"));
    EXPECT_EQ(written, description(octets("0C 03 0D0A1A"), 2)) << "line ends are not translated";
    const Result checked = run("check " + name);
    EXPECT_EQ(checked.code, 1);
    EXPECT_NE(checked.error.find(name), std::string::npos) << checked.error;
}

TEST_F(Tool, DeepNestsTakeLinearTime) {
    // A tight build writes three octets at a time.
    constexpr size_t depth = kovra::is_tight ? 5000 : 1000000;
    constexpr int strings = kovra::is_tight ? 500 : 20000;
    const auto begin = std::chrono::steady_clock::now();
    for (const char *level : {"30 80", "A0 80", "24 80"}) {
        const std::string input = repeated(octets(level), depth) + repeated(octets("00 00"), depth);
        EXPECT_EQ(run(std::string("dump --out ") + null_device, input).code, 0) << level;
        EXPECT_EQ(run("json --compact", input).out, description(input, 0)) << level;
    }
    // Of definite length, with an OCTET STRING at every other level.
    std::string reversed;
    for (int i = 0; i < strings; ++i) {
        const size_t length = reversed.size();
        reversed += static_cast<char>(length);
        reversed += static_cast<char>(length >> 8);
        reversed += static_cast<char>(length >> 16);
        reversed += octets(i % 2 == 0 ? "83 04" : "83 30");
    }
    const std::string input(reversed.rbegin(), reversed.rend());
    const Result dumped = run("dump", input);
    EXPECT_EQ(dumped.code, 0) << dumped.error;
    EXPECT_EQ(std::count(dumped.out.begin(), dumped.out.end(), '\n'), strings);
    EXPECT_EQ(run("json --compact", input).out, description(input, 0));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(120));
}

// The names are those of the header, tags and forms those of the library.
TEST_F(Tool, TypesListsEveryRow) {
    std::map<std::string, std::string> names = {{"167", "OTHER_INFO"}}; // the tool's own name
    std::ifstream header(KOVRA_SOURCE_DIR "/include/kovra/asn1_types.h");
    for (std::string word, number; header >> word;)
        if (word.find("KOVRA_ASN1_TYPE_") == 0 && header >> number)
            names.emplace(number, word.substr(16));
    std::string expected = "type  tag  form         name\n";
    for (const auto &row : table("registry.txt"))
        for (const std::string &field : row) {
            std::string number, tag, form;
            char line[100];
            std::istringstream(field) >> number >> tag >> form;
            form = form == "1" ? "primitive" : form == "0" ? "constructed" : "either";
            std::snprintf(line, sizeof line, "%4s%5s  %-13s%s\n", number.c_str(), tag.c_str(), form.c_str(),
                          names[number].c_str());
            expected += line;
        }
    EXPECT_EQ(run("types").out, expected);
    EXPECT_EQ(run("version").out, std::string(kovra_asn1_version()) + "\n");
    const Result help = run("--help-all");
    for (const char *option : {"--out", "--type", "--secrets", "--full", "--indent", "--compact"})
        EXPECT_NE(help.out.find(option), std::string::npos) << option;
}

} // namespace

#endif
