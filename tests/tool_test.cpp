// The tool as a user meets it: the built program over files and pipes.

#include <gtest/gtest.h>

#if defined(KOVRA_TOOL_PATH) && defined(__unix__)

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "kovra/asn1.h"
#include "kovra/util.h"

namespace {

namespace fs = std::filesystem;

std::string read_file(const fs::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string from_hex(const std::string &hex) {
    int32_t length = 0;
    void *octets = kovra_hexdecode(hex.data(), static_cast<int64_t>(hex.size()), &length);
    std::string text(static_cast<const char *>(octets), static_cast<size_t>(length));
    kovra_free(octets);
    return text;
}

class Tool : public testing::Test {
protected:
    void SetUp() override {
        folder_ = fs::temp_directory_path() / ("kovra-tool-" + std::to_string(::getpid()) + "-" +
                                               testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::create_directories(folder_);
    }
    void TearDown() override { fs::remove_all(folder_); }

    std::string put(const std::string &name, const std::string &content) {
        std::ofstream(folder_ / name, std::ios::binary) << content;
        return (folder_ / name).string();
    }

    // Runs `kovra-asn1 arguments` through the shell in the folder; what it wrote is in `out` and `err`.
    int run(const std::string &arguments) {
        const std::string command =
            "cd '" + folder_.string() + "' && { '" KOVRA_TOOL_PATH "' " + arguments + "; } >out.txt 2>err.txt";
        const int status = std::system(command.c_str());
        out = read_file(folder_ / "out.txt");
        err = read_file(folder_ / "err.txt");
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    fs::path folder_;
    std::string out;
    std::string err;
};

std::vector<fs::path> examples() {
    std::vector<fs::path> found;
    for (const auto &entry : fs::directory_iterator(KOVRA_SOURCE_DIR "/examples"))
        if (entry.path().extension() == ".der" || entry.path().extension() == ".pem")
            found.push_back(entry.path());
    return found;
}

TEST_F(Tool, JsonAndDerAreInverse) {
    std::vector<std::string> inputs = {
        from_hex("3000"),
        from_hex("3180310002010500"
                 "00"),
        from_hex("0101FF02010504024142050006032A0304"),
        from_hex("A003020107800107A1800500"
                 "0000"),
        from_hex("7F8148023000DF1F00"),
        from_hex("1E0200411C04000000411303414243"),
        from_hex("170D3132313132303038333030305A180F32303132313132303038333030305A"),
    };
    for (const auto &path : examples())
        if (path.extension() == ".der")
            inputs.push_back(read_file(path));
    for (const std::string &input : inputs) {
        put("in.der", input);
        for (const char *form : {"", "--compact", "--indent 7"}) {
            ASSERT_EQ(run(std::string("json in.der --out j.json ") + form), 0) << err;
            ASSERT_EQ(run("der j.json --out back.der"), 0) << err;
            const std::string back = read_file(folder_ / "back.der");
            if (back == input)
                continue;
            // BER comes back as DER, which then stays.
            EXPECT_NE(input.find('\x80'), std::string::npos);
            put("in2.der", back);
            ASSERT_EQ(run("json in2.der --out j2.json"), 0);
            ASSERT_EQ(run("der j2.json --out back2.der"), 0);
            EXPECT_EQ(read_file(folder_ / "back2.der"), back);
        }
    }
}

// What is printed on the way is what the library's tree prints.
TEST_F(Tool, JsonIsTheLibrarysDescription) {
    std::vector<std::string> inputs = {from_hex("30803080A0030201070000A0800500000000"
                                                "00"),
                                       from_hex("3100"), from_hex("3013170D3233303233313030303030305A1303412A42"),
                                       from_hex("8003020105"), from_hex("24800401410000")};
    for (const auto &path : examples())
        if (path.extension() == ".der")
            inputs.push_back(read_file(path));
    for (const std::string &input : inputs) {
        put("in.der", input);
        const int status = run("json in.der");
        kovra_json *json = kovra_asn1_tojson(input.data(), static_cast<int32_t>(input.size()));
        EXPECT_EQ(status, json != nullptr ? 0 : 1);
        if (json != nullptr) {
            char *text = kovra_json_print(json, 2, nullptr);
            EXPECT_EQ(out, std::string(text) + "\n");
            kovra_free(text);
        }
        kovra_json_free(json);
    }
}

TEST_F(Tool, RecognisesFormsByContent) {
    const std::string octets = from_hex("3003020105");
    put("a.pem", "text before\n-----BEGIN ONE-----\nMAMCAQU=\n-----END ONE-----\n-----BEGIN "
                 "TWO-----\r\nBQA=\r\n-----END TWO-----");
    put("b.txt", "MAMC\n AQU=\n");
    put("c.bin", "30:03:02 0105\n");
    put("d.pem", octets);
    const std::string tree = "       0  2        3  SEQUENCE\n       2  2        1    INTEGER 5\n";
    EXPECT_EQ(run("dump a.pem"), 0);
    EXPECT_EQ(out, "# a.pem[1] ONE\n" + tree + "# a.pem[2] TWO\n       0  2        0  NULL\n");
    for (const char *name : {"b.txt", "c.bin", "d.pem"}) {
        EXPECT_EQ(run(std::string("dump ") + name), 0) << err;
        EXPECT_EQ(out, tree) << name;
        EXPECT_EQ(run(std::string("dump < ") + name), 0) << err;
        EXPECT_EQ(out, tree) << name;
    }
    EXPECT_EQ(run("dump d.pem b.txt"), 0);
    EXPECT_EQ(out, "# d.pem[1] \n" + tree + "# b.txt[1] \n" + tree);
}

TEST_F(Tool, TellsTroubleInOneLineAndWithItsExitCode) {
    put("good.der", from_hex("0500"));
    put("bad.der", from_hex("30030205"));
    put("eoc.der", from_hex("30020000"));
    put("two.pem", "-----BEGIN A-----\nBQA=\n-----END A-----\n-----BEGIN B-----\nBQ==\n-----END B-----\n");
    const struct {
        const char *arguments;
        int status;
        const char *message;
    } rows[] = {
        {"dump bad.der good.der", 1, "kovra-asn1: bad.der: octet 0: the octets end within an element\n"},
        {"json eoc.der", 1, "kovra-asn1: eoc.der: octet 2: end-of-contents where a value should stand\n"},
        {"dump two.pem", 1, "kovra-asn1: two.pem[2]: octet 0: the octets end within an element\n"},
        {"dump none.der bad.der", 3, "kovra-asn1: none.der: No such file or directory\n"},
        {"dump .", 3, "kovra-asn1: .: is a directory\n"},
        {"der good.der", 1, "kovra-asn1: good.der: octet 0: not JSON\n"},
        {"dump good.der > /dev/full", 3, "kovra-asn1: output: No space left on device\n"},
    };
    for (const auto &[arguments, status, message] : rows) {
        EXPECT_EQ(run(arguments), status) << arguments;
        EXPECT_NE(err.find(message), std::string::npos) << arguments << ": " << err;
    }
    for (const char *arguments : {"", "bogus", "dump --color pink good.der", "types good.der"})
        EXPECT_EQ(run(arguments), 2) << arguments;
    for (const char *arguments : {"--help", "dump --help", "types", "version"})
        EXPECT_EQ(run(arguments), 0) << arguments;
    EXPECT_NE(out.find(kovra_asn1_version()), std::string::npos);
    // A reader that goes away ends the output quietly.
    std::string nulls;
    for (int i = 0; i < 30000; ++i)
        nulls += from_hex("0500");
    put("long.der", from_hex("3082EA60") + nulls);
    EXPECT_EQ(run("dump long.der | head -n 1"), 0);
    EXPECT_EQ(err, "");
}

TEST_F(Tool, DumpShowsValuesSafely) {
    const struct {
        const char *hex;
        const char *line;
    } rows[] = {
        {"0206800000000001", "INTEGER -140737488355327"},
        {"0209010000000000000000", "INTEGER 010000000000000000"},
        {"0C051B5B306D22", "UTF8String \"\\x1b[0m\\\"\""},
        {"0C03E2808E", "UTF8String \"\xE2\x80\x8E\""},
        {"0C03E280AE", "UTF8String \"\\xe2\\x80\\xae\""},
        {"0C02C29B", "UTF8String \"\\xc2\\x9b\""},
        {"1303FF4180", "PrintableString \"\\xffA\\x80\""},
        {"1E0400E9D800", "BMPString 00e9d800"},
        {"1E0200E9", "BMPString \"\xC3\xA9\""},
        {"0603550403", "OBJECT IDENTIFIER 2.5.4.3 (commonName)"},
        {"0603808001", "OBJECT IDENTIFIER 808001"},
        {"040430020500",
         "OCTET STRING (encapsulates)\n       2  2        2    SEQUENCE\n       4  2        0      NULL"},
        {"030500300205"
         "00",
         "BIT STRING (encapsulates, 0 unused bits)\n       3  2        2    SEQUENCE"},
        {"03020780", "BIT STRING (1 bits) 80"},
        {"8203666F6F", "[2] \"foo\""},
        {"170B3132313132303038333 05A", "UTCTime \"1211200830Z\" (2012-11-20 08:30:00 UTC)"},
        {"30800000", "SEQUENCE\n       2  2        0  end-of-contents"},
    };
    for (const auto &[hex, line] : rows) {
        std::string digits;
        for (const char *digit = hex; *digit != '\0'; ++digit)
            if (*digit != ' ')
                digits += *digit;
        put("in.der", from_hex(digits));
        EXPECT_EQ(run("dump in.der"), 0) << err;
        EXPECT_NE(out.find(line), std::string::npos) << hex << ":\n" << out;
    }
    put("null.der", from_hex("0500"));
    EXPECT_EQ(run("dump --color always null.der"), 0);
    EXPECT_NE(out.find("\x1b[36mNULL\x1b[0m"), std::string::npos);
}

TEST_F(Tool, DepthOfAMillionIsLinear) {
    constexpr int depth = 1000000;
    std::string opening;
    for (int i = 0; i < depth; ++i)
        opening += "\x30\x80";
    put("open.der", opening);
    EXPECT_EQ(run("dump open.der --out /dev/null"), 1);
    EXPECT_EQ(run("json open.der --out /dev/null"), 1);
    put("deep.der", opening + std::string(2 * depth, '\0'));
    EXPECT_EQ(run("dump deep.der --out /dev/null"), 0) << err;
    EXPECT_EQ(run("json --compact deep.der --out j.json"), 0) << err;
    EXPECT_EQ(run("der j.json --out deep2.der"), 0) << err;
    EXPECT_GT(fs::file_size(folder_ / "deep2.der"), static_cast<uintmax_t>(2 * depth));
}

} // namespace

#endif
