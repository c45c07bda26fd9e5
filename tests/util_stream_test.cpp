#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "util_handles.hpp"

using namespace kovra;
using namespace kovra::test;

namespace {

// What stands behind a stream of callbacks.
struct Backing {
    std::string octets;
    size_t position = 0;
    int32_t piece = INT32_MAX; // at most this much in one call
    bool sized = false;
    bool rewinds = true;
    int32_t result = 1;
    int32_t wrong_count = 0;
    int closed = 0;
};

Backing &backing(void *user) {
    return *static_cast<Backing *>(user);
}

constexpr kovra_stream_callbacks callbacks = {
    [](void *user, void *buffer, int32_t size, int32_t *out_count) -> int32_t {
        Backing &b = backing(user);
        const auto count =
            std::min({static_cast<size_t>(size), static_cast<size_t>(b.piece), b.octets.size() - b.position});
        memcpy(buffer, b.octets.data() + b.position, count);
        b.position += b.result == 1 ? count : 0;
        *out_count = static_cast<int32_t>(count) + b.wrong_count;
        return b.result;
    },
    [](void *user, const void *data, int32_t size, int32_t *out_count) -> int32_t {
        Backing &b = backing(user);
        const int32_t count = std::min(size, b.piece);
        b.octets.append(static_cast<const char *>(data), static_cast<size_t>(count));
        *out_count = count + b.wrong_count;
        return b.result;
    },
    [](void *user, int32_t command, int64_t argument) -> int64_t {
        Backing &b = backing(user);
        if (command == KOVRA_STREAM_SIZE)
            return b.sized ? static_cast<int64_t>(b.octets.size()) : -1;
        if (!b.rewinds || (command != KOVRA_STREAM_REWIND && command != KOVRA_STREAM_SEEK) ||
            argument > static_cast<int64_t>(b.octets.size()))
            return 0;
        b.position = static_cast<size_t>(argument);
        return 1;
    },
    [](void *user) { ++backing(user).closed; }};

// A path of its own, removed at the end. The name is not ASCII.
struct TemporaryFile {
    std::filesystem::path path = std::filesystem::temp_directory_path() /
                                 std::filesystem::path(u8"kovra-strömung-\u6d41" + std::u8string(name_of_process()));
    TemporaryFile() = default;
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;
    ~TemporaryFile() { std::filesystem::remove(path); }

    static std::u8string name_of_process() {
        const std::string number = std::to_string(std::random_device{}());
        return {number.begin(), number.end()};
    }
    [[nodiscard]] std::string name() const {
        const std::u8string name = path.u8string();
        return {name.begin(), name.end()};
    }
    Stream open(int32_t mode) const { return Stream(kovra_stream_new_file(name().c_str(), mode, nullptr)); }
};

struct Kind {
    const char *name;
    int32_t type;
    bool sized;
    // A stream that reads the octets; the other two are there for what stands behind it.
    std::function<Stream(const std::string &, Backing &, TemporaryFile &)> open;
};

Stream open_callbacks(Backing &behind, const std::string &octets, int32_t piece, bool sized) {
    behind.octets = octets;
    behind.piece = piece;
    behind.sized = sized;
    return Stream(kovra_stream_new_callbacks(&callbacks, &behind, nullptr));
}

const std::vector<Kind> kinds = {
    {"growable memory", KOVRA_STREAM_MEMORY, true,
     [](const std::string &octets, Backing &, TemporaryFile &) {
         Stream stream(kovra_stream_new_mem(0, nullptr));
         EXPECT_EQ(1, kovra_stream_writen(stream.get(), octets.data(), size_of(octets), nullptr, nullptr));
         return stream;
     }},
    {"read-only memory", KOVRA_STREAM_MEMORY, true,
     [](const std::string &octets, Backing &behind, TemporaryFile &) {
         behind.octets = octets;
         return Stream(kovra_stream_new_romem(behind.octets.data(), size_of(octets), 0, nullptr));
     }},
    {"file", KOVRA_STREAM_FILE, true,
     [](const std::string &octets, Backing &, TemporaryFile &file) {
         std::ofstream(file.path, std::ios::binary) << octets;
         return file.open(KOVRA_FILE_READ);
     }},
    {"callbacks, one octet a call", KOVRA_STREAM_CALLBACK, false,
     [](const std::string &octets, Backing &behind, TemporaryFile &) {
         return open_callbacks(behind, octets, 1, false);
     }},
    {"callbacks, size known", KOVRA_STREAM_CALLBACK, true,
     [](const std::string &octets, Backing &behind, TemporaryFile &) {
         return open_callbacks(behind, octets, 5000, true);
     }}};

int64_t ask(const Stream &stream, int32_t command, int64_t argument = 0) {
    return kovra_stream_ctrl(stream.get(), command, argument, nullptr);
}

std::string read_all(const Stream &stream) {
    std::string octets;
    char buffer[3000];
    int32_t count = 0;
    while (kovra_stream_read(stream.get(), buffer, sizeof buffer, &count, nullptr) == 1 && count > 0)
        octets.append(buffer, static_cast<size_t>(count));
    return octets;
}

// Exactly one entry, with this code and the module's name; cleared for the next failure.
void expect_failure(const Errors &errors, int32_t code) {
    const char *source = nullptr;
    const char *message = nullptr;
    int32_t recorded = 0;
    ASSERT_EQ(1, kovra_err_ctx_getcount(errors.get()));
    kovra_err_ctx_getentry(errors.get(), 0, &source, nullptr, &recorded, &message);
    EXPECT_STREQ("UTIL_Stream", source);
    EXPECT_EQ(code, recorded);
    EXPECT_STRNE("", message);
    kovra_err_ctx_clear(errors.get());
}

} // namespace

// Random commands on each kind of stream, checked against a string and a position.
TEST(UtilStream, EveryKindReadsLikeAModel) {
    for (const Kind &kind : kinds) {
        for (const size_t size : {0U, 1U, 300U, 8191U, 8192U, 8193U, 60001U}) {
            SCOPED_TRACE(std::string(kind.name) + ", " + std::to_string(size));
            const std::string octets = noise(size);
            Backing behind;
            TemporaryFile file;
            const Stream stream = kind.open(octets, behind, file);
            ASSERT_NE(nullptr, stream);
            EXPECT_EQ(kind.type, kovra_stream_gettype(stream.get()));
            std::mt19937 random(1);
            size_t position = 0;
            std::string buffer(size + 100, '\0');
            for (int step = 0; step < 1000; ++step) {
                const size_t wanted = random() % (step % 3 == 0 ? size + 100 : 20);
                const size_t left = size - position;
                int32_t count = -1;
                switch (random() % 6) {
                case 0:
                    ASSERT_EQ(1, kovra_stream_read(stream.get(), buffer.data(), static_cast<int32_t>(wanted), &count,
                                                   nullptr));
                    ASSERT_LE(static_cast<size_t>(count), std::min(wanted, left));
                    ASSERT_EQ(wanted == 0 || left == 0, count == 0);
                    if (kind.type != KOVRA_STREAM_CALLBACK) {
                        ASSERT_EQ(std::min(wanted, left), static_cast<size_t>(count));
                    }
                    break;
                case 1:
                    ASSERT_EQ(
                        wanted <= left ? 1 : 0,
                        kovra_stream_readn(stream.get(), buffer.data(), static_cast<int32_t>(wanted), &count, nullptr));
                    ASSERT_EQ(wanted <= left ? wanted : 0, static_cast<size_t>(count));
                    if (wanted > left) {
                        position = size;
                        count = 0;
                    }
                    break;
                case 2:
                    ASSERT_EQ(left == 0 ? 1 : 0, ask(stream, KOVRA_STREAM_ALL_CONSUMED));
                    continue;
                case 3:
                    ASSERT_EQ(kind.sized ? static_cast<int64_t>(size) : -1, ask(stream, KOVRA_STREAM_SIZE));
                    continue;
                case 4:
                    // Anywhere, or a little back: what a buffer may still hold.
                    position = step % 2 == 0 ? random() % (size + 1)
                                             : position - random() % (std::min<size_t>(position, 8000) + 1);
                    ASSERT_EQ(1, ask(stream, KOVRA_STREAM_SEEK, static_cast<int64_t>(position)));
                    ASSERT_EQ(0, ask(stream, KOVRA_STREAM_SEEK, static_cast<int64_t>(size) + 1));
                    ASSERT_EQ(0, ask(stream, KOVRA_STREAM_SEEK, -1));
                    continue;
                default:
                    position = 0;
                    ASSERT_EQ(1, ask(stream, KOVRA_STREAM_REWIND));
                    continue;
                }
                ASSERT_EQ(0, memcmp(buffer.data(), octets.data() + position, static_cast<size_t>(count)));
                position += static_cast<size_t>(count);
            }
            // A copy is of all of it, wherever reading is.
            const Stream copy(kovra_stream_new_mem(0, nullptr));
            kovra_stream_writen(copy.get(), "+", 1, nullptr, nullptr);
            int64_t copied = -1;
            EXPECT_EQ(1, kovra_stream_writefromstream(copy.get(), stream.get(), &copied, nullptr));
            EXPECT_EQ(static_cast<int64_t>(size), copied);
            EXPECT_EQ("+" + octets, read_all(copy));
            EXPECT_EQ(1, ask(stream, KOVRA_STREAM_ALL_CONSUMED));
        }
    }
}

TEST(UtilStream, EachFailureLeavesOneEntry) {
    const Errors errors(kovra_err_ctx_new());
    kovra_err_ctx *ctx = errors.get();
    const Stream memory(kovra_stream_new_mem(0, nullptr));
    kovra_stream_writen(memory.get(), "12345", 5, nullptr, nullptr);
    const Stream fixed(kovra_stream_new_romem("12345", 5, 0, nullptr));
    Backing behind{.octets = "12345", .rewinds = false};
    const Stream called(kovra_stream_new_callbacks(&callbacks, &behind, nullptr));
    const kovra_stream_callbacks nothing{};
    const Stream mute(kovra_stream_new_callbacks(&nothing, nullptr, nullptr));
    const TemporaryFile file;
    const Stream writer = file.open(KOVRA_FILE_WRITE);
    kovra_stream_writen(writer.get(), "12345", 5, nullptr, nullptr);
    const Stream reader = file.open(KOVRA_FILE_READ);
    const std::string directory = std::filesystem::temp_directory_path().string();
    char buffer[10] = {};

    using Act = std::function<int64_t(int32_t *)>;
    const auto read = [&](const Stream &stream, int32_t size) -> Act {
        return [&, size](int32_t *n) { return kovra_stream_read(stream.get(), buffer, size, n, ctx); };
    };
    const auto readn = [&](const Stream &stream, int32_t size) -> Act {
        return [&, size](int32_t *n) { return kovra_stream_readn(stream.get(), buffer, size, n, ctx); };
    };
    const auto writen = [&](const Stream &stream, int32_t size) -> Act {
        return [&, size](int32_t *n) { return kovra_stream_writen(stream.get(), buffer, size, n, ctx); };
    };
    const auto copy = [&](const Stream &to, const Stream &from) -> Act {
        return [&](int32_t *) { return kovra_stream_writefromstream(to.get(), from.get(), nullptr, ctx); };
    };
    const auto control = [&](const Stream &stream, int32_t command, int64_t argument = 0) -> Act {
        return [&, command, argument](int32_t *) { return kovra_stream_ctrl(stream.get(), command, argument, ctx); };
    };
    const auto made = [](kovra_stream *stream) { return Stream(stream) != nullptr; };
    const auto opened = [&](const std::string &path, int32_t mode) -> Act {
        return [&, path, mode](int32_t *) { return made(kovra_stream_new_file(path.c_str(), mode, ctx)); };
    };
    const Stream none;

    const struct {
        const char *what;
        int32_t code;
        Act act;
        int64_t result = 0;
    } cases[] = {
        {"read null", 0x10002, read(none, 1)},
        {"read to null", 0x10002, [&](int32_t *n) { return kovra_stream_read(memory.get(), nullptr, 1, n, ctx); }},
        {"writen from null", 0x10002,
         [&](int32_t *n) { return kovra_stream_writen(memory.get(), nullptr, 1, n, ctx); }},
        {"read less than nothing", 0x10001, read(memory, -1)},
        {"readn less than nothing", 0x10001, readn(memory, -1)},
        {"writen less than nothing", 0x10001, writen(memory, -1)},
        {"readn too much, memory", 0x10105, readn(memory, 6)},
        {"readn too much, file", 0x10105, readn(reader, 6)},
        {"readn too much, callbacks", 0x10105, readn(called, 6)},
        {"read a file for writing", 0x10105, read(writer, 1)},
        {"read without callback", 0x10105, read(mute, 1)},
        {"write read-only memory", 0x10106, writen(fixed, 1)},
        {"write a file for reading", 0x10106, writen(reader, 1)},
        {"write without callback", 0x10106, writen(mute, 1)},
        {"copy to itself", 0x10001, copy(memory, memory)},
        {"copy from null", 0x10002, copy(memory, none)},
        {"copy to read-only", 0x10106, copy(fixed, memory)},
        {"copy what cannot rewind", 0x10109, copy(memory, called)},
        {"rewind impossible", 0x10109, control(called, KOVRA_STREAM_REWIND)},
        {"rewind without callback", 0x10109, control(mute, KOVRA_STREAM_REWIND)},
        {"seek impossible", 0x10108, control(called, KOVRA_STREAM_SEEK)},
        {"seek behind the end", 0x10108, control(memory, KOVRA_STREAM_SEEK, INT64_MAX)},
        {"end without callback", 0x10105, control(mute, KOVRA_STREAM_ALL_CONSUMED)},
        {"unknown command", 0x10110, control(memory, 3)},
        {"size of null", 0x10002, control(none, KOVRA_STREAM_SIZE), -1},
        {"new with negative size", 0x10001, [&](int32_t *) { return made(kovra_stream_new_mem(-1, ctx)); }},
        {"new over null", 0x10002, [&](int32_t *) { return made(kovra_stream_new_romem(nullptr, 1, 0, ctx)); }},
        {"new over negative", 0x10001, [&](int32_t *) { return made(kovra_stream_new_romem("", -1, 0, ctx)); }},
        {"no callbacks", 0x10002, [&](int32_t *) { return made(kovra_stream_new_callbacks(nullptr, nullptr, ctx)); }},
        {"no path", 0x10002, [&](int32_t *) { return made(kovra_stream_new_file(nullptr, KOVRA_FILE_READ, ctx)); }},
        {"open in a strange mode", 0x10001, opened("x", 4)},
        {"open what is not there", 0x10107, opened(file.name() + "/no", KOVRA_FILE_READ)},
        {"open a directory", 0x10107, opened(directory, KOVRA_FILE_READ)},
    };
    for (const auto &item : cases) {
        SCOPED_TRACE(item.what);
        int32_t count = 0;
        EXPECT_EQ(item.result, item.act(&count));
        EXPECT_EQ(0, count);
        expect_failure(errors, item.code);
    }
    // Answers that are no failures.
    EXPECT_EQ(-1, kovra_stream_ctrl(mute.get(), KOVRA_STREAM_SIZE, 0, ctx));
    EXPECT_EQ(0, kovra_stream_ctrl(fixed.get(), KOVRA_STREAM_ALL_CONSUMED, 0, ctx));
    EXPECT_EQ(1, kovra_stream_writen(memory.get(), nullptr, 0, nullptr, ctx));
    EXPECT_EQ(0, kovra_err_ctx_getcount(ctx));
}

TEST(UtilStream, ResultsOfCallbacksPassUnchangedAndWrongCountsAreRefused) {
    const Errors errors(kovra_err_ctx_new());
    const Stream memory(kovra_stream_new_romem("abc", 3, 0, nullptr));
    char buffer[4];
    int32_t count = 0;
    Backing behind{.octets = "12345"};
    Stream stream(kovra_stream_new_callbacks(&callbacks, &behind, nullptr));
    EXPECT_EQ(0, ask(stream, KOVRA_STREAM_ALL_CONSUMED)); // one octet is read ahead
    behind.result = -77;
    EXPECT_EQ(-77, kovra_stream_read(stream.get(), buffer, 4, &count, errors.get()));
    expect_failure(errors, 0x10105);
    EXPECT_EQ(-77, kovra_stream_readn(stream.get(), buffer, 4, &count, errors.get()));
    expect_failure(errors, 0x10105);
    EXPECT_EQ(-77, kovra_stream_writen(stream.get(), "x", 1, &count, errors.get()));
    expect_failure(errors, 0x10106);
    EXPECT_EQ(-77, kovra_stream_writefromstream(stream.get(), memory.get(), nullptr, errors.get()));
    expect_failure(errors, 0x10106);
    behind.result = 1;
    EXPECT_EQ(1, kovra_stream_readn(stream.get(), buffer, 4, &count, nullptr));
    EXPECT_EQ("1234", std::string(buffer, 4)) << "failed reads lose no octet";

    for (const int32_t wrong : {-100, 100}) {
        behind.wrong_count = wrong;
        EXPECT_EQ(0, kovra_stream_read(stream.get(), buffer, 4, &count, errors.get()));
        expect_failure(errors, 0x10105);
        EXPECT_EQ(0, kovra_stream_writen(stream.get(), "x", 1, &count, errors.get()));
        expect_failure(errors, 0x10106);
    }
    behind.wrong_count = -1; // none taken: must not be asked for ever
    EXPECT_EQ(0, kovra_stream_writen(stream.get(), "x", 1, &count, errors.get()));
    expect_failure(errors, 0x10106);
    EXPECT_EQ(0, behind.closed);
    stream.reset();
    EXPECT_EQ(1, behind.closed);
}

TEST(UtilStream, CursorAndDetachedBuffer) {
    const Stream stream(kovra_stream_new_mem(INT64_MAX, nullptr)); // a size that nobody has
    const uint8_t *data = nullptr;
    int64_t length = -1;
    std::string expected;
    for (int round = 0; round < 20; ++round) { // doubles its own unread octets, through many growths
        kovra_stream_writen(stream.get(), "xy", 2, nullptr, nullptr);
        ASSERT_EQ(1, kovra_stream_peek(stream.get(), &data, &length));
        ASSERT_EQ(1, kovra_stream_writen(stream.get(), data, static_cast<int32_t>(length), nullptr, nullptr));
        expected += "xy";
        expected += expected;
    }
    EXPECT_EQ(0, kovra_stream_advance(stream.get(), -1));
    EXPECT_EQ(0, kovra_stream_advance(stream.get(), size_of(expected) + 1));
    EXPECT_EQ(1, kovra_stream_advance(stream.get(), 3));
    ASSERT_EQ(1, kovra_stream_peek(stream.get(), &data, &length));
    EXPECT_EQ(expected.substr(3), std::string(reinterpret_cast<const char *>(data), static_cast<size_t>(length)));
    for (const std::string &whole : {expected, std::string()}) {
        const Memory<void> buffer(kovra_memstreamdeatch(stream.get(), &length));
        ASSERT_NE(nullptr, buffer);
        EXPECT_EQ(whole, std::string(static_cast<char *>(buffer.get()), static_cast<size_t>(length)));
    }
    const Stream fixed(kovra_stream_new_romem("abc", 3, 0, nullptr));
    EXPECT_EQ(nullptr, kovra_memstreamdeatch(fixed.get(), &length));
}

TEST(UtilStream, FilesAreEmptiedForWriting) {
    const TemporaryFile file;
    for (const int32_t mode : {KOVRA_FILE_WRITE, KOVRA_FILE_READ_WRITE}) {
        std::ofstream(file.path) << "something longer";
        ASSERT_EQ(1, kovra_stream_writen(file.open(mode).get(), "new", 3, nullptr, nullptr));
        EXPECT_EQ("new", read_all(file.open(KOVRA_FILE_READ)));
    }
}

#if !defined(_WIN32)
TEST(UtilStream, FilesBeyondFourGigabytesAndDevices) {
    const TemporaryFile file;
    file.open(KOVRA_FILE_WRITE);
    constexpr int64_t size = (int64_t{1} << 32) + 12345;
    std::filesystem::resize_file(file.path, static_cast<uintmax_t>(size)); // sparse
    const Stream stream = file.open(KOVRA_FILE_READ);
    char buffer[20] = {'x'};
    int32_t count = 0;
    EXPECT_EQ(size, ask(stream, KOVRA_STREAM_SIZE));
    EXPECT_EQ(1, ask(stream, KOVRA_STREAM_SEEK, size - 10));
    EXPECT_EQ(1, kovra_stream_read(stream.get(), buffer, sizeof buffer, &count, nullptr));
    EXPECT_EQ(10, count);
    EXPECT_EQ('\0', buffer[0]);
    EXPECT_EQ(1, ask(stream, KOVRA_STREAM_ALL_CONSUMED));

    const Stream endless(kovra_stream_new_file("/dev/zero", KOVRA_FILE_READ, nullptr));
    EXPECT_EQ(-1, ask(endless, KOVRA_STREAM_SIZE));
    EXPECT_EQ(1, ask(endless, KOVRA_STREAM_REWIND)) << "nothing was read yet";
    EXPECT_EQ(1, kovra_stream_readn(endless.get(), buffer, sizeof buffer, nullptr, nullptr));
    EXPECT_EQ(0, ask(endless, KOVRA_STREAM_REWIND));
    EXPECT_EQ(0, ask(endless, KOVRA_STREAM_ALL_CONSUMED));
}
#endif
