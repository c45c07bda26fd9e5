// The file that kovra-asn1 writes with --out: whole, or as if the tool had not been run.

#include "tests/tool_testing.hpp"

#if defined(KOVRA_TOOL_PATH)

#if !defined(_WIN32)
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

namespace fs = std::filesystem;
using namespace kovra::test;
using Result = ToolResult;

class ToolOut : public ToolTest {
protected:
    void SetUp() override {
        ToolTest::SetUp();
        file("good", octets("02 01 05"));
        file("large", repeated(octets("02 01 05"), 20000));
        file("bad", octets("05 01"));
        good = run("json good").out;
    }
    void TearDown() override {
        for (const auto &entry : fs::recursive_directory_iterator(path("")))
            EXPECT_EQ(entry.path().filename().string().find(".kovra-asn1-"), std::string::npos) << "left behind";
        ToolTest::TearDown();
    }

#if !defined(_WIN32)
    [[nodiscard]] struct stat status(const std::string &name) const {
        struct stat result {};
        EXPECT_EQ(::stat(path(name).c_str(), &result), 0) << name;
        return result;
    }
    [[nodiscard]] unsigned mode(const std::string &name) const {
        return status(name).st_mode & 07777U;
    }
#endif

    std::string good;
};

TEST_F(ToolOut, IsReplacedOnlyByWholeOutput) {
    const struct {
        const char *arguments;
        int code;
        const char *content; // null: what standard output gets without --out
    } rows[] = {
        {"json good", 0, nullptr},
        {"json large", 0, nullptr}, // several buffers
        {"json bad", 1, "old"},
        {"json missing", 3, "old"},
        {"json bad good missing", 3, nullptr}, // what can be read is worked on all the same
        {"dump good bad", 1, nullptr},
        {"check bad", 1, nullptr},
        {"check good --quiet", 0, ""},
        {"json good --indent x", 2, "old"},
    };
    for (const auto &[arguments, code, expected] : rows) {
        const std::string printed = expected != nullptr ? expected : run(arguments).out;
        for (const bool exists : {true, false}) {
            fs::remove(path("there"));
            if (exists)
                file("there", "old");
            const Result result = run(std::string(arguments) + " --out there");
            EXPECT_EQ(result.code, code) << arguments;
            EXPECT_EQ(result.out, "");
            if (exists || printed != "old")
                EXPECT_TRUE(content("there") == printed) << arguments << exists;
            else
                EXPECT_FALSE(fs::exists(path("there"))) << arguments;
        }
    }
    // What is read may be what is written.
    file("there", run("json good").out);
    EXPECT_EQ(run("der there --out there").code, 0);
    EXPECT_EQ(content("there"), octets("02 01 05"));
    const Result missing = run("json good --out missing/there");
    EXPECT_EQ(missing.code, 3);
    EXPECT_EQ(missing.error, "kovra-asn1: missing/there: No such file or directory\n");
    EXPECT_EQ(run(std::string("json good --out ") + null_device).code, 0);
}

#if defined(_WIN32)
TEST_F(ToolOut, Modes) {
    GTEST_SKIP() << "SKIPPED: modes, links and full devices are POSIX; they are tested on Linux, 64 and 32 bit";
}
#else
TEST_F(ToolOut, OfSecretsIsForItsOwnerAlone) {
    const std::string show = "umask 0; $T show " KOVRA_SOURCE_DIR "/examples/key-rsa.der --out there";
    EXPECT_EQ(shell(show).code, 0);
    EXPECT_EQ(mode("there"), 0666U);
    for (const unsigned existing : {0644U, 0666U, 0600U, 0200U, 0755U}) {
        ::chmod(path("there").c_str(), existing);
        EXPECT_EQ(shell(show).code, 0);
        EXPECT_EQ(mode("there"), existing) << "of a file that is there the mode stays";
        fs::create_hard_link(path("there"), path("also"));
        EXPECT_EQ(shell(show + " --secrets").code, 0);
        EXPECT_EQ(mode("there"), 0600U);
        EXPECT_EQ(content("also").find("private exponent:           0x"), std::string::npos);
        fs::remove(path("also"));
    }
    fs::remove(path("there"));
    fs::create_symlink("there", path("link"));
    EXPECT_EQ(shell(show + " --secrets --out link").code, 2); // --out twice
    EXPECT_EQ(shell("umask 0; $T show " KOVRA_SOURCE_DIR "/examples/key-rsa.der --secrets --out link").code, 0);
    EXPECT_EQ(mode("there"), 0600U);
    EXPECT_TRUE(fs::is_symlink(path("link")));
    // While it is written, too; nothing stands in its place then.
    fs::copy_file(KOVRA_SOURCE_DIR "/examples/key-rsa.der", path("key"));
    file("there", "old");
    EXPECT_EQ(shell("umask 0; { cat key; for i in $(seq 200); do f=$(ls -A | grep '^.kovra-asn1-') && stat -c %a $f > "
                    "mode && cp there before && break; sleep 0.05; done; } | $T show --secrets --out there")
                  .code,
              0);
    EXPECT_EQ(content("mode"), "600\n");
    EXPECT_EQ(content("before"), "old");
    EXPECT_EQ(mode("there"), 0600U);
}

TEST_F(ToolOut, ThatFailsOrIsEndedLeavesNothing) {
    for (const bool exists : {true, false}) {
        fs::remove(path("there"));
        if (exists)
            file("there", "old");
        const auto stays = [&] { return exists ? content("there") == "old" : !fs::exists(path("there")); };
        // Blocks of 512 octets, so that the limit is met midway.
        const Result full = shell("(trap '' XFSZ; ulimit -f 20; $T json large --out there)");
        EXPECT_EQ(full.code, 3);
        EXPECT_EQ(full.error, "kovra-asn1: there: File too large\n");
        EXPECT_TRUE(stays());
        for (const char *signal : {"INT", "TERM", "HUP"}) {
            const Result ended =
                shell("{ cat good; for i in $(seq 200); do ls -A | grep -q '^.kovra-asn1-' && break; sleep 0.05; done; "
                      "kill -s " +
                      std::string(signal) + " $(cat id); } | T=$T sh -c 'echo $$ > id; exec $T json --out there'");
            EXPECT_GT(ended.code, 128) << signal;
            EXPECT_TRUE(stays()) << signal;
        }
#if !defined(__SANITIZE_ADDRESS__)
        // No memory for the second of two.
        fs::resize_file(path("bad"), 1U << 30);
        const Result little = shell("(ulimit -v 600000; $T json large bad --out there)");
        EXPECT_EQ(little.code, 3);
        EXPECT_EQ(little.error, "kovra-asn1: memory is short\n");
        EXPECT_TRUE(stays());
#endif
    }
}

TEST_F(ToolOut, ThatIsNoFileIsWrittenDirectly) {
    const Result full = run("json large --out /dev/full");
    EXPECT_EQ(full.code, 3);
    EXPECT_EQ(full.error, "kovra-asn1: /dev/full: No space left on device\n");
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_EQ(shell("mkfifo pipe; cat pipe > got & $T json good --out pipe; wait; test -p pipe").code, 0);
    EXPECT_EQ(content("got"), good);
    EXPECT_EQ(shell("$T json good --out /dev/stdout | cat; echo end").out, good + "end\n");
    EXPECT_EQ(shell("echo before; $T json good --out /dev/stdout").out, good) << "it is emptied, and no other file";
    fs::create_directory(path("directory"));
    EXPECT_EQ(run("json good --out directory").error, "kovra-asn1: directory: Is a directory\n");
}

TEST_F(ToolOut, IsTheFileThatItsNameLeadsTo) {
    fs::create_directory(path("below"));
    fs::create_symlink("below/second", path("first"));
    fs::create_symlink("../third", path("below/second"));
    for (int i = 0; i < 2; ++i) { // made, then replaced
        EXPECT_EQ(run("json good --out first").code, 0);
        EXPECT_EQ(content("third"), good);
        EXPECT_TRUE(fs::is_symlink(path("first")) && fs::is_symlink(path("below/second")));
        file("third", "old");
    }
    fs::create_symlink("circle", path("circle"));
    EXPECT_EQ(run("json good --out circle").error, "kovra-asn1: circle: Too many levels of symbolic links\n");
    // A file of other names stays the same file.
    file("name", "old");
    fs::create_hard_link(path("name"), path("other"));
    EXPECT_EQ(run("json large --out name").code, 0);
    EXPECT_TRUE(content("other") == run("json large").out);
    EXPECT_EQ(status("name").st_ino, status("other").st_ino);
}

// Rights mean nothing to a privileged user: the tool is run as another.
TEST_F(ToolOut, NeedsTheRightToWriteThere) {
    const std::string user = ::geteuid() == 0 ? "setpriv --reuid=65534 --regid=65534 --clear-groups " : "";
    ::chmod(path("").c_str(), 0755);
    if (shell(user + "$T version").code != 0)
        GTEST_SKIP() << "SKIPPED: run as root, without another user who may run the tool";
    fs::create_directory(path("closed"));
    file("closed/open", "old");
    file("closed/closed", "old");
    ::chmod(path("closed/open").c_str(), 0666);
    ::chmod(path("closed/closed").c_str(), 0444);
    ::chmod(path("closed").c_str(), 0555);
    const auto inode = status("closed/open").st_ino;
    const Result fresh = shell(user + "$T json good --out closed/new");
    EXPECT_EQ(fresh.code, 3);
    EXPECT_EQ(fresh.error, "kovra-asn1: closed/new: Permission denied\n");
    EXPECT_EQ(shell(user + "$T json good --out closed/closed").error, "kovra-asn1: closed/closed: Permission denied\n");
    EXPECT_EQ(content("closed/closed"), "old");
    // No file can be made beside it, but it can be written.
    EXPECT_EQ(shell(user + "$T json bad --out closed/open").code, 1);
    EXPECT_EQ(content("closed/open"), "old");
    EXPECT_EQ(shell(user + "$T json large --out closed/open").error, "");
    EXPECT_TRUE(content("closed/open") == run("json large").out);
    EXPECT_EQ(status("closed/open").st_ino, inode);
    // One that belongs to somebody else cannot be made private.
    if (!user.empty()) {
        EXPECT_EQ(shell(user + "$T show good --secrets --out closed/open").error,
                  "kovra-asn1: closed/open: Operation not permitted\n");
    }
    ::chmod(path("closed").c_str(), 0755);
}
#endif

} // namespace

#endif
