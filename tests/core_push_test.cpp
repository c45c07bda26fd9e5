// Elements that arrive in pieces: whatever the pieces, what comes out is what decoding the whole gives.
#include <algorithm>
#include <functional>

#include "tests/failing_memory.hpp"
#include "tests/pkix_testing.hpp"

namespace kovra::test {
namespace {

constexpr size_t waiting = SIZE_MAX; // for more octets
constexpr size_t refused = SIZE_MAX - 1;

// Gives the octets in pieces: `next(at)` says where the piece that begins at `at` ends. The number of octets that were
// taken when the element ended, or how else it went. What follows the end, and what follows a refusal, changes nothing.
template <class Update, class IsFinished>
size_t feed(std::string_view data, const std::function<size_t(size_t)> &next, Update update, IsFinished is_finished) {
    for (size_t at = 0; at < data.size();) {
        size_t count = std::min(next(at), data.size()) - at;
        int32_t left = -7;
        // In memory of its own, so that reading over the end shows.
        std::unique_ptr<char[]> piece(new char[count]);
        std::memcpy(piece.get(), data.data() + at, count);
        if (update(piece.get(), static_cast<int32_t>(count), &left) != 1) {
            EXPECT_EQ(left, -7);
            EXPECT_FALSE(is_finished());
            EXPECT_EQ(update(piece.get(), 0, &left), 0);
            return refused;
        }
        at += count - static_cast<size_t>(left);
        if (is_finished()) {
            int32_t again = -7;
            EXPECT_EQ(update("xyz", 3, &again), 1);
            EXPECT_EQ(again, 3);
            return at;
        }
        EXPECT_EQ(left, 0);
    }
    return waiting;
}

size_t feed_any(kovra_asn1_decode_any_ctx *ctx, std::string_view data, const std::function<size_t(size_t)> &next) {
    return feed(
        data, next,
        [&](const void *piece, int32_t count, int32_t *left) {
            return kovra_asn1_decode_any_update(ctx, piece, count, left);
        },
        [&] { return kovra_asn1_decode_any_isfinish(ctx) == 1; });
}

size_t feed_string(kovra_asn1_decode_octetstring_ctx *ctx, std::string_view data,
                   const std::function<size_t(size_t)> &next, kovra_stream *out) {
    size_t end = feed(
        data, next,
        [&](const void *piece, int32_t count, int32_t *left) {
            return kovra_asn1_decode_octetstring_update(ctx, piece, count, out, left);
        },
        [&] { return kovra_asn1_decode_octetstring_ctx_isfinish(ctx) == 1; });
    if (end != refused) {
        EXPECT_EQ(kovra_asn1_decode_octetstring_ctx_getencodelength(ctx),
                  static_cast<int64_t>(std::min(end, data.size())));
    }
    return end;
}

size_t all(size_t) {
    return SIZE_MAX;
}
size_t one(size_t at) {
    return at + 1;
}
std::function<size_t(size_t)> cut_at(size_t cut) {
    return [cut](size_t at) { return at < cut ? cut : SIZE_MAX; };
}
std::function<size_t(size_t)> random_pieces(uint32_t seed, size_t largest) {
    return [random = std::mt19937(seed), largest](size_t at) mutable { return at + 1 + random() % largest; };
}

// What decoding the whole says when it looks at every element inside, too: the octets of the element, `waiting` when
// there is none. `unlike` when the contexts have rules of their own: for tag numbers of several octets and for
// universal tags that ANY does not take.
constexpr size_t unlike = SIZE_MAX - 2;

size_t decode_all(std::string_view data) {
    if (!data.empty() && (data[0] & 0x1F) == 0x1F)
        return unlike;
    Decoded whole = decode(23, data);
    if (whole.result != 1)
        return whole.codes == Codes({0x10201}) ? unlike : waiting;
    if ((data[0] & 0x20) == 0)
        return kovra_asn1_any_getcontentlength(whole.value.get()) < 0 ? waiting : whole.consumed;
    std::string content(whole.consumed, '\0');
    int32_t count = 0;
    EXPECT_EQ(kovra_asn1_any_getcontent(whole.value.get(), 1, content.data(), size_of(content), &count, nullptr), 1);
    std::string_view rest(content.data(), static_cast<size_t>(count));
    while (!rest.empty()) {
        size_t end = decode_all(rest);
        if (end > rest.size())
            return end;
        rest.remove_prefix(end);
    }
    return whole.consumed;
}

// All strings of that many octets, of those given.
template <class Action> void for_all_strings(std::string_view alphabet, size_t size, Action action) {
    std::vector<size_t> digits(size, 0);
    std::string text(size, alphabet[0]);
    for (size_t i = 0; i < size;) {
        action(text);
        for (i = 0; i < size && ++digits[i] == alphabet.size(); ++i)
            text[i] = alphabet[digits[i] = 0];
        if (i < size)
            text[i] = alphabet[digits[i]];
    }
}

TEST(Push, Table) {
    for (const auto &row : table("pieces.txt")) {
        const auto [text, expected] = sides_of(row[0]);
        SCOPED_TRACE(text);
        const std::string data = octets(text);
        const size_t end = expected == "refused" ? refused : expected == "waiting" ? waiting : std::stoul(expected);
        for (size_t cut = 0; cut <= data.size(); ++cut)
            EXPECT_EQ(feed_any(AnyCtx(kovra_asn1_decode_any_ctx_new()).get(), data, cut == 0 ? one : cut_at(cut)), end);
    }
}

TEST(Push, AllShortStringsAsTheWholeDecode) {
    size_t good = 0;
    for_all_strings(octets("00 01 02 04 30 80 81"), 6, [&](const std::string &data) {
        size_t expected = decode_all(data);
        if (expected == unlike)
            return;
        AnyCtx at_once(kovra_asn1_decode_any_ctx_new()), by_octet(kovra_asn1_decode_any_ctx_new());
        size_t found = feed_any(at_once.get(), data, all);
        ASSERT_EQ(feed_any(by_octet.get(), data, one), found) << hex(data);
        ASSERT_EQ(found <= data.size() ? found : waiting, expected) << hex(data);
        good += found <= data.size();
    });
    EXPECT_GT(good, 10000u);
}

TEST(Push, ObjectsOfTypes) {
    const std::string certificate = example("rsa-server.der");
    AnyCtx ctx(kovra_asn1_decode_any_ctx_new());
    Errors errors(kovra_err_ctx_new());
    auto to = [&](uint32_t type, kovra_asn1_value **out) {
        kovra_err_ctx_clear(errors.get());
        return kovra_asn1_decode_any_ctx_toobject(ctx.get(), type, out, errors.get());
    };
    kovra_asn1_value *value = unwritten();
    EXPECT_EQ(to(39, &value), 0);
    EXPECT_EQ(value, nullptr);
    EXPECT_EQ(Codes(errors.get()), Codes({0x10001})) << "not complete";
    EXPECT_EQ(feed_any(ctx.get(), certificate, random_pieces(1, 100)), certificate.size());
    EXPECT_EQ(to(39, nullptr), 0);
    EXPECT_EQ(Codes(errors.get()), Codes({0x10002}));
    for (int again = 0; again < 2; ++again) {
        ASSERT_EQ(to(39, &value), 1);
        EXPECT_EQ(encode(39, Value(39, value).get()).octets, certificate);
    }
    // A failure leaves what the open type's leaves.
    for (uint32_t type : {2u, 41u, uint32_t{KOVRA_ASN1_TYPE_COUNT}}) {
        EXPECT_EQ(to(type, &value), 0);
        Codes found(errors.get());
        kovra_err_ctx_clear(errors.get());
        EXPECT_EQ(kovra_asn1_any_toobject(decode(23, certificate).value.get(), type, &value, errors.get()), 0);
        EXPECT_EQ(found, Codes(errors.get())) << type;
    }
    EXPECT_EQ(kovra_asn1_decode_any_ctx_toobject(nullptr, 39, &value, nullptr), 0);
    // What only these contexts take is refused here.
    ctx.reset(kovra_asn1_decode_any_ctx_new());
    EXPECT_EQ(feed_any(ctx.get(), octets("9F 01 81 02 41 42"), all), 6u);
    EXPECT_EQ(to(23, &value), 0);
    EXPECT_EQ(Codes(errors.get()), Codes({0x10201, 0x102e5, 0x10236}));
    ctx.reset(kovra_asn1_decode_any_ctx_new());
    EXPECT_EQ(feed_any(ctx.get(), octets("00 00"), all), 2u);
    EXPECT_EQ(kovra_asn1_decode_any_ctx_iseoc(ctx.get()), 1);
    EXPECT_EQ(to(0, &value), 1);
}

// What the whole decode makes of an OCTET STRING.
struct Content {
    size_t end = waiting;
    std::string octets;
};
Content string_of(Decoded whole) {
    if (whole.result != 1)
        return {};
    std::string content(static_cast<size_t>(kovra_asn1_octetstring_getlength(whole.value.get())), '\0');
    kovra_asn1_octetstring_getall(whole.value.get(), content.data());
    return {whole.consumed, content};
}

TEST(PushOctetString, AllShortStringsAsTheWholeDecode) {
    size_t good = 0;
    Stream out = memory_stream();
    for_all_strings(octets("00 01 02 04 05 24 80"), 7, [&](const std::string &data) {
        if (data[0] != 4 && data[0] != 0x24 && data.substr(1) != std::string(6, '\0'))
            return; // refused whatever follows
        Content expected = string_of(decode(4, data));
        for (size_t (*way)(size_t) : {all, one}) {
            StringCtx ctx(kovra_asn1_decode_octetstring_ctx_new());
            size_t found = feed_string(ctx.get(), data, way, out.get());
            std::string content = taken(out);
            ASSERT_EQ(found <= data.size() ? found : waiting, expected.end) << hex(data);
            if (found <= data.size()) {
                ASSERT_EQ(hex(content), hex(expected.octets)) << hex(data);
                ++good;
            }
        }
    });
    EXPECT_GT(good, 10000u);
}

TEST(PushOctetString, ContentAlone) {
    Stream out = memory_stream();
    for (auto [content, form, length] : {std::tuple("61 62 63", 1, 3),
                                         {"", 1, 0},
                                         {"", 0, 0},
                                         {"04 01 61 24 80 04 01 62 00 00", 0, 10},
                                         {"04 01 61 00 00", 0, -1},
                                         {"00 00", 0, -1},
                                         {"00 00", 0, 2},
                                         {"04 02 61", 0, 3},
                                         {"05 00 00 00", 0, -1}}) {
        SCOPED_TRACE(content);
        std::string data = octets(content) + "\xFF";
        Content expected = string_of(decode_content(4, data, form, length));
        for (size_t step = 1; step <= data.size(); ++step) {
            StringCtx ctx(kovra_asn1_decode_octetstring_ctx_new());
            int32_t left = -7;
            EXPECT_EQ(kovra_asn1_decode_octetstring_content_update(ctx.get(), "", 0, nullptr, &left), 0);
            ASSERT_EQ(kovra_asn1_decode_octetstring_ctx_setstate(ctx.get(), form, length), 1);
            EXPECT_EQ(kovra_asn1_decode_octetstring_ctx_setstate(ctx.get(), form, length), 0);
            EXPECT_EQ(kovra_asn1_decode_octetstring_ctx_isfinish(ctx.get()), length == 0 ? 1 : 0);
            size_t found = feed(
                data, [&](size_t at) { return at + step; },
                [&](const void *piece, int32_t count, int32_t *rest) {
                    return kovra_asn1_decode_octetstring_content_update(ctx.get(), piece, count, out.get(), rest);
                },
                [&] { return kovra_asn1_decode_octetstring_ctx_isfinish(ctx.get()) == 1; });
            std::string written = taken(out);
            EXPECT_EQ(found <= data.size() ? found : waiting, expected.end);
            if (found <= data.size()) {
                EXPECT_EQ(hex(written), hex(expected.octets));
                EXPECT_EQ(kovra_asn1_decode_octetstring_ctx_getencodelength(ctx.get()), static_cast<int64_t>(found));
            }
        }
    }
    StringCtx ctx(kovra_asn1_decode_octetstring_ctx_new());
    EXPECT_EQ(kovra_asn1_decode_octetstring_ctx_setstate(ctx.get(), 1, -1), 0);
    EXPECT_EQ(kovra_asn1_decode_octetstring_ctx_setstate(ctx.get(), 0, -2), 0);
    EXPECT_EQ(feed_string(ctx.get(), octets("04 01 61"), all, nullptr), 3u) << "nothing was changed";
}

// More octets than a length can tell pass through, and none of them is kept.
TEST(PushOctetString, ContentOfAnySize) {
    StringCtx ctx(kovra_asn1_decode_octetstring_ctx_new());
    const int64_t before = live_blocks();
    std::string piece = octets("04 84 00 0F FF FA") + std::string((1 << 20) - 6, 'x');
    int32_t left = -7;
    ASSERT_EQ(kovra_asn1_decode_octetstring_ctx_setstate(ctx.get(), 0, -1), 1);
    constexpr int64_t pieces = 4200;
    for (int64_t i = 0; i < pieces; ++i)
        ASSERT_EQ(kovra_asn1_decode_octetstring_content_update(ctx.get(), piece.data(), size_of(piece), nullptr, &left),
                  1);
    ASSERT_EQ(kovra_asn1_decode_octetstring_content_update(ctx.get(), "\0\0", 2, nullptr, &left), 1);
    EXPECT_EQ(kovra_asn1_decode_octetstring_ctx_isfinish(ctx.get()), 1);
    EXPECT_EQ(kovra_asn1_decode_octetstring_ctx_getencodelength(ctx.get()), pieces * size_of(piece) + 2);
    EXPECT_EQ(live_blocks(), before);
}

TEST(PushOctetString, StreamThatCannotBeWritten) {
    Stream out(kovra_stream_new_romem("", 0, 0, nullptr));
    StringCtx ctx(kovra_asn1_decode_octetstring_ctx_new());
    EXPECT_EQ(feed_string(ctx.get(), octets("24 80 04 00 04 01 61 00 00"), one, out.get()), refused);
}

TEST(Push, EveryAllocationMayFail) {
    std::string element = repeated(octets("A0 80"), 30) + std::string(65, '\0');
    std::string string = repeated(octets("24 80"), 30) + octets("04 01 61") + std::string(60, '\0');
    fail_each_allocation([&] {
        AnyCtx ctx(kovra_asn1_decode_any_ctx_new());
        size_t end = ctx ? feed_any(ctx.get(), element, random_pieces(1, 50)) : refused;
        kovra_asn1_value *value = nullptr;
        int32_t result = kovra_asn1_decode_any_ctx_toobject(ctx.get(), 23, &value, nullptr);
        Value owner(23, value);
        EXPECT_EQ(result == 1, value != nullptr);
        return end == element.size() - 5 && result == 1;
    });
    fail_each_allocation([&] {
        Stream out(kovra_stream_new_mem(0, nullptr));
        StringCtx ctx(kovra_asn1_decode_octetstring_ctx_new());
        return out && ctx && feed_string(ctx.get(), string, all, out.get()) == string.size();
    });
    fail_each_allocation([] {
        StringCtx ctx(kovra_asn1_decode_octetstring_ctx_new());
        return kovra_asn1_decode_octetstring_ctx_setstate(ctx.get(), 0, 5) == 1;
    });
}

// The example in the header is a part of the program that is run.
TEST(Push, HeaderShowsTheExample) {
    std::ifstream header(KOVRA_SOURCE_DIR "/include/kovra/asn1_decode.h");
    std::string shown, line;
    while (std::getline(header, line))
        if (line.rfind(" *     ", 0) == 0)
            shown += line.substr(7) + "\n";
    EXPECT_GT(shown.size(), 500u);
    EXPECT_NE(example("pieces.c").find(shown), std::string::npos);
}

} // namespace
} // namespace kovra::test
