// The commands show and check of kovra-asn1, run as a process.
//
// tests/data/show has what `show` prints for some of the examples. After an intended change it is made again, and read,
// with
//     cd examples; for f in ../tests/data/show/*; do kovra-asn1 show $(basename $f .txt) >$f; done

#include "tests/notation.hpp"
#include "tests/tool_testing.hpp"

#if defined(KOVRA_TOOL_PATH)

#include <algorithm>
#include <map>
#include <random>

namespace {

namespace fs = std::filesystem;
using namespace kovra::test;
using Result = ToolResult;

const fs::path examples = KOVRA_SOURCE_DIR "/examples";

std::string example(const std::string &name) {
    return read_file(examples / name);
}

std::string extension(const char *id, std::string_view value, bool is_critical = false) {
    return der(0x30, oid(id) + (is_critical ? octets("01 01 FF") : "") + der(0x04, value));
}

class Show : public ToolTest {
protected:
    // What is shown of a value, with one blank in front of what stands behind a label.
    [[nodiscard]] std::string shown(const std::string &type, std::string_view input) const {
        const Result result = run("show --quiet --type " + type, input);
        EXPECT_EQ(result.code, 0) << type << result.error;
        return squeezed(result.out, ":");
    }
};

// One row of tests/data/shown.txt, or a line between rows, and what is printed of it.
struct Shown {
    std::string row;
    std::string expected;
};

TEST_F(Show, ValuesAsRecorded) {
    const fs::path path = KOVRA_SOURCE_DIR "/tests/data/shown.txt";
    std::vector<Shown> rows;
    std::ifstream file(path, std::ios::binary);
    for (std::string line; std::getline(file, line);) {
        if (line.find("    ") == 0)
            rows.back().expected += line.substr(4) + "\n";
        else
            rows.push_back({line, ""});
    }
    Notation notation;
    std::map<std::string, std::pair<std::string, std::string>> kinds; // to a type and an element of it
    std::string record;
    for (const auto &[row, expected] : rows) {
        record += row + "\n";
        if (row.empty() || row[0] == '#')
            continue;
        for (size_t at = row.find('{'); at != row.npos; at = row.find('{', at + 1)) {
            const std::string name = row.substr(at + 1, row.find('}', at) - at - 1);
            if (name.find('.') != name.npos)
                notation.define(name, hex(oid(name.c_str())));
        }
        const std::vector<std::string> fields = split(row, "; ");
        if (fields[0] == "let") {
            notation.define(fields[1], fields[2]);
            continue;
        }
        if (fields[0] == "kind") {
            kinds[fields[1]] = {fields[2], fields[3]};
            continue;
        }
        std::vector<std::string> words = split(fields[0], " ");
        const auto kind = kinds.find(words[0]);
        const auto [type, element] = kind != kinds.end() ? kind->second : std::pair(words[0], std::string("{1}"));
        for (size_t i = 1; i < fields.size(); ++i)
            notation.define(std::to_string(i), fields[i]);
        if (words.size() == 1)
            words.emplace_back();
        for (size_t i = 1; i < words.size(); ++i) {
            const std::string id = words[i].substr(0, words[i].find('='));
            const std::string name = words[i].substr(words[i].find('=') + 1);
            if (!id.empty())
                notation.define("oid", hex(oid(id.c_str())));
            std::string text = shown(type, notation.octets(element));
            for (size_t at = 0; words.size() > 2 && (at = text.find(name)) != text.npos;)
                text.replace(at, name.size(), "@");
            EXPECT_EQ(text, expected) << row << id;
            if (!text.empty())
                text.pop_back();
            for (const std::string &line : i == 1 ? split(text, "\n") : std::vector<std::string>())
                record += "    " + line + "\n";
        }
    }
    if (std::getenv("KOVRA_RECORD") != nullptr)
        std::ofstream(path, std::ios::binary) << record;
}

TEST_F(Show, ExamplesAreShownAsRecorded) {
    size_t files = 0;
    for (const auto &entry : fs::directory_iterator(KOVRA_SOURCE_DIR "/tests/data/show")) {
        const std::string name = entry.path().stem().string();
        const Result result = run("show " + (examples / name).string());
        std::string expected = read_file(entry.path());
        expected.replace(2, name.size(), (examples / name).string());
        EXPECT_EQ(result.out, expected) << name;
        EXPECT_EQ(result.code, 0) << result.error;
        ++files;
    }
    EXPECT_EQ(files, 9U);
}

TEST_F(Show, AllOfEveryExampleIsShown) {
    size_t extensions = 0;
    for (const auto &entry : fs::directory_iterator(examples)) {
        const fs::path &path = entry.path();
        if (path.extension() == ".md" || path.extension() == ".c")
            continue;
        const Result result = run("show --full " + path.string());
        EXPECT_EQ(result.code, 0) << path << result.error;
        EXPECT_EQ(result.error, "") << path;
        EXPECT_TRUE(is_harmless(result.out)) << path;
        EXPECT_EQ(result.out.find("... ("), result.out.npos) << path << " --full cuts nothing";
        // Identifiers without a name have no other value than octets; others have none such.
        std::istringstream lines(result.out);
        std::string before;
        for (std::string line; std::getline(lines, line); before = line) {
            EXPECT_NE(line.back(), ' ') << path << line;
            if (line.find("    value: ") == 0) {
                EXPECT_EQ(before.find("  1.3.6.1.4.1.99999."), 0U) << path << before;
                ++extensions;
            }
        }
    }
    EXPECT_GE(extensions, 1U);
}

TEST_F(Show, StandardExtensionsAreDecoded) {
    // What is no value of its type is told, what has no type is shown as octets.
    for (const int last : {9, 14, 15, 16, 17, 18, 19, 20, 21, 23, 24, 27, 28, 29, 30, 31, 32, 33, 35, 36, 37, 46, 54}) {
        const std::string id = "2.5.29." + std::to_string(last);
        const Result result = run("show --type EXTENSION", extension(id.c_str(), octets("9E 00")));
        EXPECT_NE(result.out.find("\n  malformed:                9e00\n"), std::string::npos) << id << result.out;
        EXPECT_EQ(result.error.find("kovra-asn1: -[1] "), 0U) << result.error;
        EXPECT_NE(result.error.find(": octet 1: "), std::string::npos) << result.error;
        EXPECT_EQ(result.code, 1) << id;
    }
    const Result unknown = run("show --type EXTENSION", extension("1.2.3.4", octets("9E 00"), true));
    EXPECT_EQ(unknown.out, "1.2.3.4:                    critical\n  value:                    9e00\n");
    EXPECT_EQ(unknown.code, 0);
}

TEST_F(Show, TypesAreToldOrDetected) {
    const std::string certificate = example("cert-ec.der");
    const std::string crl = example("crl-v1.der");
    const struct {
        const char *name;
        std::string input;
        const char *heading;
    } rows[] = {
        {"DER", certificate, "# f: CERTIFICATE (39)\n"},
        {"no label that is known", pem(certificate, "X"), "# f: CERTIFICATE (39)\n"},
        {"a wrong label", pem(crl, "CERTIFICATE"), "# f: CERTIFICATE_LIST (41)\n"},
        {"a request", example("request.der"), "# f: CERTIFICATION_REQUEST (46)\n"},
        {"a pair", der(0x30, der(0xA0, certificate)), "# f: CERTIFICATE_PAIR (55)\n"},
        {"a key", example("public-ec.der"), "# f: SUBJECT_PUBLIC_KEY_INFO (35)\n"},
        {"a name", der(0x30, der(0x31, der(0x30, oid("2.5.4.3") + octets("0C 01 41")))), "# f: NAME (32)\n"},
        {"anything", octets("30 03 02 01 05"), "# f: ANY (23)\n"},
        {"nothing much", octets("30 00"), "# f: ANY (23)\n"},
        {"several", certificate + crl, "# f[1] CERTIFICATE (39)\n"},
    };
    for (const auto &[name, input, heading] : rows) {
        file("f", input);
        const Result result = run("show f");
        EXPECT_EQ(result.out.find(heading), 0U) << name << result.out.substr(0, 60);
        EXPECT_EQ(result.code, 0) << name << result.error;
    }
    EXPECT_NE(run("show f").out.find("\n# f[2] CERTIFICATE_LIST (41)\nversion:                    1\n"),
              std::string::npos);
    const std::string shown = run("show --quiet", certificate).out;
    EXPECT_EQ(shown.find("version: "), 0U);
    for (const char *type : {"39", "CERTIFICATE", "certificate"})
        EXPECT_EQ(run("show --type " + std::string(type), certificate).out, shown) << type;
    EXPECT_EQ(run("show --type UTF8-string", octets("0C 01 41")).out, "UTF8String                  \"A\"\n");
    EXPECT_EQ(run("show --type null", octets("05 00")).out, "NULL\n");
    for (const char *type : {"9999", "CERT", "-1", "\"\"", "4294967335"}) {
        EXPECT_EQ(run("show --type " + std::string(type), certificate).code, 2) << type;
        EXPECT_EQ(run("check --type " + std::string(type), certificate).code, 2) << type;
    }
}

TEST_F(Show, MalformedInputIsExplained) {
    const std::string certificate = example("cert-ec.der");
    // A cut certificate is still taken for one.
    for (const size_t size : {certificate.size() - 1, size_t{300}, size_t{60}, size_t{20}}) {
        const Result result = run("show", certificate.substr(0, size));
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.error.find("kovra-asn1: -[1]: octet " + std::to_string(size) + ": "), 0U) << result.error;
        EXPECT_NE(result.error.find("(0x10259)\n"), std::string::npos) << result.error;
        EXPECT_EQ(result.code, 1);
    }
    // One is not, where what is there of it is of another shape.
    const std::string begin = octets("30 82 0200 30 82 0100 A0 03 020102 02 01 05 30 00 30 00");
    for (const size_t at : {begin.size(), size_t{4}, size_t{8}, size_t{10}, size_t{13}, size_t{16}, size_t{18}}) {
        std::string other = begin;
        if (at < other.size())
            other[at] = '\x01';
        const bool is_taken = run("show", other).error.find("(0x10259)\n") != std::string::npos;
        EXPECT_EQ(is_taken, at == begin.size()) << at;
    }
    EXPECT_EQ(run("show --type certificate", octets("05 00")).code, 1);
    EXPECT_NE(run("show", pem(octets("05 00"), "CERTIFICATE")).error.find("(0x10259)\n"), std::string::npos);
    // What follows is shown all the same.
    file("a", octets("30 05"));
    file("b", certificate);
    const Result result = run("show --quiet a missing b");
    EXPECT_EQ(result.out.find("version: "), 0U);
    EXPECT_EQ(count(result.error, "\n"), 2U) << result.error;
    EXPECT_EQ(result.code, 3);
    // Structures in structures without end take neither the stack nor quadratic time.
    std::string nested = der(0x30, "");
    for (int i = 0; i < 400; ++i)
        nested =
            der(0x30, extension("2.5.29.9", der(0x30, der(0x30, oid("1.2.840.113549.1.9.14") + der(0x31, nested)))));
    EXPECT_EQ(run("show --type extensions", nested).code, 0);
}

// Each mutation stands in a PEM block of its own.
TEST_F(Show, MutationsAreShownOrRefused) {
    std::mt19937 random(20240301);
    std::string input;
    const std::string originals[] = {example("rsa-server.der"),
                                     example("cert-ca.der"),
                                     example("crl-v2.der"),
                                     example("request.der"),
                                     example("cert-pss.der"),
                                     example("cms-signed-two.der"),
                                     example("cms-enveloped-oaep-ec.der"),
                                     example("ocsp-response.der"),
                                     example("timestamp-reply.der"),
                                     example("store-plain.p12"),
                                     example("key-ec-explicit.der")};
    for (int i = 0; i < 3000; ++i) {
        std::string mutated = originals[random() % std::size(originals)];
        for (size_t changes = 1 + random() % 3; changes > 0; --changes) {
            const auto change = static_cast<char>(random() % 2 == 0 ? random() : 1U << (random() % 8));
            char &octet = mutated[4 + random() % (mutated.size() - 4)];
            octet = static_cast<char>(octet ^ change);
        }
        input += pem(i % 10 == 0 ? mutated.substr(0, random() % mutated.size()) : mutated, "X");
    }
    const Result shown = run("show", input);
    EXPECT_EQ(shown.code, 1);
    EXPECT_TRUE(is_harmless(shown.out));
    EXPECT_GT(count(shown.out, "version: "), 2000U);
    EXPECT_GT(count(shown.error, "kovra-asn1: "), 500U);
    const Result checked = run("check", input);
    EXPECT_EQ(checked.code, 1);
    EXPECT_NE(checked.out.find("  different:        0\n"), std::string::npos) << checked.out;
}

class Check : public ToolTest {
protected:
    // The numbers of the summary in their order.
    [[nodiscard]] static std::vector<int> numbers(const std::string &summary) {
        std::vector<int> result;
        std::istringstream lines(summary);
        for (std::string line; std::getline(lines, line);)
            result.push_back(std::atoi(line.substr(line.find(':') + 1).c_str()));
        return result;
    }
    using Numbers = std::vector<int>;
};

TEST_F(Check, ExamplesComeBackIdentical) {
    const Result result = run("check " + examples.string());
    EXPECT_EQ(result.code, 0) << result.error;
    EXPECT_EQ(result.error, "");
    const Numbers summary = numbers(result.out);
    ASSERT_EQ(summary.size(), 10U) << result.out;
    const auto texts = std::count_if(fs::directory_iterator(examples), fs::directory_iterator(), [](const auto &entry) {
        return entry.path().extension() == ".c" || entry.path().extension() == ".md";
    });
    EXPECT_EQ(summary[0], std::distance(fs::directory_iterator(examples), fs::directory_iterator()));
    EXPECT_EQ(summary[1], texts);
    EXPECT_EQ(summary[3], summary[0] - texts + 2) << "one is a bundle of three";
    EXPECT_EQ(summary[4], summary[3]);
    EXPECT_EQ(summary[5] + summary[6], summary[4]);
    EXPECT_EQ(summary[7], 0);
}

TEST_F(Check, SummaryAddsUp) {
    const std::string certificate = example("cert-ec.der");
    const std::string crl = example("crl-v2.der");
    fs::create_directories(path("d/e"));
    file("d/a.der", certificate + crl);
    file("d/b.pem", pem(certificate, "CERTIFICATE") + "-----BEGIN B-----\n?\n-----END B-----\n" + pem(crl, "X509 CRL"));
    file("d/c.txt", "some words, no element\n");
    file("d/e/cut", certificate.substr(0, 100));
    file("d/e/empty", "");
#if defined(_WIN32)
    // For links stand a copy, and a file that nobody else may open.
    fs::copy_file(path("d/a.der"), path("d/e/link"));
    const HANDLE closed = CreateFileW(path("d/e/nothing").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
#else
    fs::create_symlink(path("d"), path("d/e/up"));
    fs::create_symlink(path("d/a.der"), path("d/e/link"));
    fs::create_symlink(path("d/nowhere"), path("d/e/nothing"));
#endif
    Result result = run("check d");
    if (fs::path::preferred_separator != '/')
        std::replace(result.error.begin(), result.error.end(), '\\', '/');
    EXPECT_EQ(numbers(result.out), (Numbers{7, 1, 1, 9, 6, 6, 0, 3, 3, 0})) << result.out;
    EXPECT_EQ(result.code, 3);
    std::vector<std::string> places;
    std::istringstream lines(result.error);
    for (std::string line; std::getline(lines, line);)
        if (line.find("kovra-asn1: ") == 0)
            places.push_back(line.substr(12, line.find(": ", 12) - 12));
    EXPECT_EQ(places, (std::vector<std::string>{"d/b.pem[2]", "d/e/cut[1]", "d/e/empty[1]", "d/e/nothing"}));
    EXPECT_NE(result.error.find("kovra-asn1: d/e/cut[1]: octet 100: "), std::string::npos) << result.error;
    // Named twice, checked twice; a named text is an element.
    EXPECT_EQ(numbers(run("check d/a.der d/a.der").out), (Numbers{2, 0, 0, 4, 4, 4, 0, 0, 0, 0}));
    EXPECT_EQ(run("check d/c.txt").code, 1);
    EXPECT_EQ(run("check d/a.der").code, 0);
    EXPECT_EQ(run("check", certificate).code, 0);
    const Result quiet = run("check --quiet d");
    EXPECT_EQ(quiet.out, "");
    EXPECT_EQ(count(quiet.error, "\n"), 4U) << quiet.error;
    EXPECT_EQ(run("check d/a.der d/nothing").code, 3);
#if defined(_WIN32)
    CloseHandle(closed);
#endif
}

// A certificate, name and extension in forms that DER does not have.
TEST_F(Check, WhatKeepsItsEncodingComesBackFromBer) {
    const std::string certificate = example("cert-v1.der");
    const std::string indefinite = octets("30 80") + certificate.substr(4) + octets("00 00");
    const std::string name = octets("30 80 31 81 0B 30 09 06 03 550403 0C 02 4142 00 00");
    const std::string extension = octets("30 80 06 03 551D0E 01 01 00 24 80 04 02 04 00 00 00 00 00");
    const struct {
        const char *arguments;
        std::string input;
        Numbers numbers;
    } rows[] = {
        {"check", indefinite, {1, 0, 0, 1, 1, 1, 0, 0, 0, 0}},
        {"check --type 32", name, {1, 0, 0, 1, 1, 1, 0, 0, 0, 0}},
        {"check --type 36", extension, {1, 0, 0, 1, 1, 0, 1, 0, 0, 0}},
        {"check --type 1", octets("01 01 01"), {1, 0, 0, 1, 1, 0, 1, 0, 0, 0}},
        {"check --type 39", name, {1, 0, 0, 1, 0, 0, 0, 1, 1, 0}},
    };
    for (const auto &[arguments, input, expected] : rows)
        EXPECT_EQ(numbers(run(arguments, input).out), expected) << arguments;
    EXPECT_NE(run("show", indefinite).out.find("CERTIFICATE (39)"), std::string::npos);
}

#if !defined(_WIN32)
TEST_F(Check, OutputThatIsFullOrClosedEnds) {
    const std::string crl = example("crl-v2.der");
    file("large", repeated(crl, 2000));
    for (const char *command : {"show large", "check large"}) {
        const Result full = shell("$T " + std::string(command) + " > /dev/full");
        EXPECT_EQ(full.code, 3) << command;
        EXPECT_EQ(full.error, "kovra-asn1: standard output: No space left on device\n") << command;
        const Result closed = shell("{ $T " + std::string(command) + "; echo $? > code; } | head -c 1 > /dev/null");
        EXPECT_EQ(closed.code, 0) << command;
        EXPECT_EQ(closed.error, "") << command;
    }
}

// On a terminal, from the second on: of 100 octets 30 are done when standard input ends.
TEST_F(Check, ProgressTellsTheShareThatIsDone) {
    file("first", der(0x04, repeated("A", 28)));
    file("second", der(0x04, repeated("A", 68)));
    EXPECT_EQ(shell("script -qec \"{ sleep 2.5; printf '\\\\005\\\\000'; } | $T check first - second\" log").code, 0);
    EXPECT_NE(content("out").find("\r[" + repeated("#", 12) + repeated(" ", 28) + "]  30%  "), std::string::npos)
        << content("out");
}
#endif

#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)
// The bits of a string of 256 MiB are more than an int32_t counts.
TEST_F(Show, LongBitStringsAreOctets) {
    if (sizeof(size_t) == 4)
        GTEST_SKIP() << "SKIPPED: the copies of the string do not fit where addresses have 32 bits";
    file("bits", octets("30 84 1000000A 020102 03 84 10000001 00 FF"));
    fs::resize_file(path("bits"), (1U << 28) + 16);
    EXPECT_EQ(run("show --type PKI_STATUS_INFO bits").out, "status:                     rejection\n"
                                                           "failure:                    ff" +
                                                               repeated("0", 62) + "... (268435456 octets)\n");
    EXPECT_NE(run("dump bits").out.find("... (268435456 octets)\n"), std::string::npos);
}
#endif

} // namespace

#endif
