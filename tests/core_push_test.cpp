// Elements that arrive in pieces: whatever the pieces, what comes out is what decoding the whole gives.
#include <algorithm>
#include <filesystem>
#include <functional>

#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"
#include "tests/small_stack.hpp"

namespace kovra::test {
namespace {

namespace fs = std::filesystem;

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

std::string contents(const fs::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Every encoding there is: the files, and the tables of good and bad ones.
std::vector<std::string> samples() {
    std::vector<std::string> found;
    for (const auto &entry : fs::directory_iterator(KOVRA_SOURCE_DIR "/examples"))
        for (const char *extension : {".der", ".ber", ".p12"})
            if (entry.path().extension() == extension)
                found.push_back(contents(entry.path()));
    for (const auto &row : table("decodings.txt"))
        for (const std::string &encoding : parts_of(row[1]))
            found.push_back(octets(encoding));
    return found;
}

struct Row {
    const char *hex;
    size_t end;
    const char *why;
};
constexpr Row rows[] = {
    {"04 03 61 62 63", 5, "primitive"},
    {"04 03 61 62 63 FF", 5, "an octet is left"},
    {"05 00", 2, "complete with the length"},
    {"30 00 00", 2, "likewise"},
    {"00 00", 2, "end-of-contents"},
    {"00 01", refused, "not quite"},
    {"04 80", refused, "primitive of indefinite length"},
    {"30 80 05 00 00 00", 6, "indefinite"},
    {"30 80 30 80 05 00 00 00 00 00 00", 10, "twice"},
    {"04 FF", refused, "no length"},
    {"04 84 80 00 00", waiting, "the fault is in the fourth octet"},
    {"04 84 80 00 00 00", refused, "2^31"},
    {"04 84 7F FF FF FF", waiting, "2^31 - 1"},
    {"04 85 00 00 00 00 01 41", 8, "leading zeros"},
    {"04 81 00", 3, "0 in the long form"},
    {"2E 00", 2, "a universal tag that ANY refuses"},
    {"30 02 04 01", refused, "too long for the one around"},
    {"30 02 30 80", refused, "no place for its end"},
    {"30 03 05 00 04", refused, "ends within a header"},
    {"30 04 30 80 00 00", 6, "indefinite in definite"},
    {"30 04 30 81 80 00", refused, "too long with the length octets"},
    {"30 80 04 FF", refused, "the fault is inside"},
    {"30 02 04 FF", refused, "and in definite content too"},
    {"30 02 00 00", 4, "a marker that ends nothing"},
    {"30 03 00 00 00", refused, "half a marker"},
    {"30 80 00 01", refused, "no marker"},
    {"30 80 30 02 00 00 00 00", 8, "only the last marker ends the element"},
    {"30 08 30 80 30 04 00 00 00 00", refused, "nor do markers in a definite one end what is around it"},
    // Tag numbers of several octets: an octet of 80 and above ends them and is the first length octet.
    {"9F 01 81 02 41 42", 6, "tag 129, length 2"},
    {"9F 1F 05 82 00 01 41", 7, "a number of three octets"},
    {"BF 01 80 05 00 00 00", 7, "tag 128, indefinite"},
    {"9F 01 80", refused, "tag 128, indefinite and primitive"},
    {"9F 9F", waiting, "31 length octets"},
    {"9F 81 1F 00", refused, "1 is too small, and X.690 would have read 159"},
    {"9F 1E 01", waiting, "X.690 would have refused 30"},
    {"9F 08 00 00 00", refused, "2^24 would go on"},
    {"9F 07 7F 7F 7F 81 00", 7, "the largest that may go on"},
    {"9F 07 7F 7F 7F FF", refused, "FF ends the number and is no length"},
    {"30 06 9F 01 81 02 41 42", 8, "inside, too"},
    {"30 04 9F 22 01 41", refused, "X.690 would have read tag 34, length 1"},
};

TEST(Push, Table) {
    for (const Row &row : rows) {
        SCOPED_TRACE(std::string(row.hex) + ": " + row.why);
        std::string data = octets(row.hex);
        std::vector<std::function<size_t(size_t)>> ways = {all, one};
        for (size_t cut = 1; cut < data.size(); ++cut)
            ways.push_back(cut_at(cut));
        for (const auto &way : ways)
            EXPECT_EQ(feed_any(AnyCtx(kovra_asn1_decode_any_ctx_new()).get(), data, way), row.end);
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

// The complete element is the one that was given.
void expect_element(const kovra_asn1_decode_any_ctx *ctx, const Decoded &whole, const std::string &data) {
    kovra_asn1_value *value = nullptr;
    ASSERT_EQ(kovra_asn1_decode_any_ctx_toobject(ctx, 23, &value, nullptr), 1);
    Value element(23, value);
    EXPECT_EQ(encode(23, value).octets, data.substr(0, whole.consumed));
    EXPECT_EQ(kovra_asn1_any_getcontentlength(value), kovra_asn1_any_getcontentlength(whole.value.get()));
    EXPECT_EQ(kovra_asn1_decode_any_ctx_iseoc(ctx), kovra_asn1_any_iseoc(whole.value.get()));
}

void expect_header(const Decoded &whole, const std::string &data, size_t header) {
    int32_t form = -7, tag = -7, found_form = -7, found_tag = -7, found_length = -7, left = -7;
    uint32_t found_class = 7;
    kovra_asn1_any_isprimitive(whole.value.get(), &form);
    kovra_asn1_any_gettagnumber(whole.value.get(), &tag);
    int32_t length = kovra_asn1_any_getcontentlength(whole.value.get());
    for (size_t cut = 0; cut < header; ++cut) {
        AnyCtx ctx(kovra_asn1_decode_any_ctx_new());
        auto read = [&](int32_t fresh, size_t begin, size_t end) {
            left = -7;
            return kovra_asn1_decode_any_identifier_length(ctx.get(), fresh, data.data() + begin,
                                                           static_cast<int32_t>(end - begin), &found_class, &found_form,
                                                           &found_tag, &found_length, &left);
        };
        EXPECT_EQ(read(1, 0, cut), -100);
        EXPECT_EQ(left, 0);
        EXPECT_EQ(read(0, cut, data.size()), 1);
        EXPECT_EQ(left, static_cast<int32_t>(data.size() - header));
        EXPECT_EQ(found_class, static_cast<uint8_t>(data[0]) & 0xC0u);
        EXPECT_EQ(found_form, form);
        EXPECT_EQ(found_tag, tag);
        EXPECT_EQ(found_length, length);
        EXPECT_EQ(read(0, header, data.size()), 0) << "the header is there already";
        auto rest = static_cast<int32_t>(data.size() - header);
        EXPECT_EQ(kovra_asn1_decode_any_update(ctx.get(), data.data() + header, rest, &left), 1);
        expect_element(ctx.get(), whole, data);
    }
}

TEST(Push, SamplesInAllPieces) {
    size_t compared = 0;
    for (const std::string &sample : samples()) {
        size_t end = decode_all(sample);
        if (end == unlike)
            continue;
        SCOPED_TRACE(hex(sample.substr(0, 40)));
        std::string data = sample + "\xFF\x01\x02";
        Decoded whole = decode(23, data);
        AnyCtx first(kovra_asn1_decode_any_ctx_new());
        size_t found = feed_any(first.get(), data, all);
        std::vector<std::function<size_t(size_t)>> ways = {one};
        constexpr size_t short_sample = 3000;
        if (data.size() < short_sample)
            for (size_t cut = 1; cut < data.size(); ++cut)
                ways.push_back(cut_at(cut));
        for (uint32_t seed = 1; seed <= 20; ++seed)
            ways.push_back(random_pieces(seed, size_t{seed} * 7));
        for (const auto &way : ways) {
            AnyCtx ctx(kovra_asn1_decode_any_ctx_new());
            ASSERT_EQ(feed_any(ctx.get(), data, way), found);
            if (found <= data.size())
                expect_element(ctx.get(), whole, data);
        }
        if (end > sample.size())
            continue;
        ++compared;
        ASSERT_EQ(found, end);
        size_t content = kovra_asn1_any_getcontentlength(whole.value.get()) < 0
                             ? 2
                             : end - static_cast<size_t>(kovra_asn1_any_getcontentlength(whole.value.get()));
        if (kovra_asn1_any_iseoc(whole.value.get()) == 0)
            expect_header(whole, data, content);
    }
    EXPECT_GT(compared, 100u);
}

TEST(Push, ObjectsOfTypes) {
    std::string certificate = contents(KOVRA_SOURCE_DIR "/examples/rsa-server.der");
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
    for (uint32_t type : {2u, 41u, 208u}) {
        EXPECT_EQ(to(type, &value), 0);
        Codes found(errors.get());
        kovra_err_ctx_clear(errors.get());
        EXPECT_EQ(kovra_asn1_any_toobject(decode(23, certificate).value.get(), type, &value, errors.get()), 0);
        EXPECT_EQ(found, Codes(errors.get())) << type;
    }
    EXPECT_EQ(kovra_asn1_decode_any_ctx_toobject(nullptr, 39, &value, nullptr), 0);
    // What only these contexts take is refused here.
    for (auto [hex, codes] :
         {std::pair("2E 00", Codes({0x10201, 0x10236})), {"9F 01 81 02 41 42", Codes({0x10201, 0x102e5, 0x10236})}}) {
        ctx.reset(kovra_asn1_decode_any_ctx_new());
        EXPECT_LT(feed_any(ctx.get(), octets(hex), all), waiting);
        EXPECT_EQ(to(23, &value), 0);
        EXPECT_EQ(Codes(errors.get()), codes);
    }
    ctx.reset(kovra_asn1_decode_any_ctx_new());
    EXPECT_EQ(feed_any(ctx.get(), octets("00 00"), all), 2u);
    EXPECT_EQ(kovra_asn1_decode_any_ctx_iseoc(ctx.get()), 1);
    EXPECT_EQ(to(0, &value), 1);
}

TEST(Push, IdentifierLengthAlone) {
    AnyCtx ctx(kovra_asn1_decode_any_ctx_new());
    uint32_t tag_class = 7;
    int32_t form = 7, tag = 7, length = 7, left = 7;
    auto read = [&](int32_t fresh, const char *hex) {
        std::string data = octets(hex);
        return kovra_asn1_decode_any_identifier_length(ctx.get(), fresh, data.data(), size_of(data), &tag_class, &form,
                                                       &tag, &length, &left);
    };
    EXPECT_EQ(read(1, "30 82 01"), -100);
    EXPECT_EQ(left, 0);
    EXPECT_EQ(tag, 7);
    EXPECT_EQ(read(1, "00"), 0) << "not fresh any more";
    EXPECT_EQ(read(0, "00 02"), 1);
    EXPECT_EQ(std::tuple(tag_class, form, tag, length, left), std::tuple(0u, 0, 16, 256, 1));
    ctx.reset(kovra_asn1_decode_any_ctx_new());
    EXPECT_EQ(read(1, "05 00"), 1);
    EXPECT_EQ(kovra_asn1_decode_any_isfinish(ctx.get()), 1);
    ctx.reset(kovra_asn1_decode_any_ctx_new());
    EXPECT_EQ(read(0, "9F 01 81"), -100);
    EXPECT_EQ(read(0, "02 FF"), 1);
    EXPECT_EQ(std::tuple(tag_class, form, tag, length, left), std::tuple(0x80u, 1, 129, 2, 1));
    ctx.reset(kovra_asn1_decode_any_ctx_new());
    EXPECT_EQ(read(1, "04 80"), 0);
    EXPECT_EQ(read(0, "04"), 0);
    ctx.reset(kovra_asn1_decode_any_ctx_new());
    EXPECT_EQ(read(1, "00 00"), 1) << "the second octet is left";
    EXPECT_EQ(std::tuple(tag_class, form, tag, length, left), std::tuple(0u, 1, 0, 0, 1));
    EXPECT_EQ(read(0, "00"), 0);
    EXPECT_EQ(kovra_asn1_decode_any_isfinish(ctx.get()), 0);
    EXPECT_EQ(kovra_asn1_decode_any_update(ctx.get(), "", 1, &left), 1);
    EXPECT_EQ(kovra_asn1_decode_any_ctx_iseoc(ctx.get()), 1);
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

TEST(PushOctetString, SamplesInAllPieces) {
    std::vector<std::string> strings = {octets("04 82 03 E8") + noise(1000),
                                        octets("24 80 24 82 03 EA 04 82 03 E6") + noise(998) +
                                            octets("04 00 24 80 24 00 04 03 61 62 63 00 00 00 00")};
    for (const auto &row : table("decodings.txt"))
        for (const std::string &encoding : parts_of(row[1]))
            strings.push_back(octets(encoding));
    Stream out = memory_stream();
    for (const std::string &sample : strings) {
        SCOPED_TRACE(hex(sample.substr(0, 40)));
        std::string data = sample + "\xFF";
        Content expected = string_of(decode(4, data));
        std::vector<std::function<size_t(size_t)>> ways = {all, one, random_pieces(1, 5), random_pieces(2, 300)};
        for (size_t cut = 1; cut < data.size(); ++cut)
            ways.push_back(cut_at(cut));
        for (const auto &way : ways) {
            StringCtx ctx(kovra_asn1_decode_octetstring_ctx_new());
            size_t found = feed_string(ctx.get(), data, way, out.get());
            ASSERT_EQ(found <= data.size() ? found : waiting, expected.end);
            std::string content = taken(out);
            if (found <= data.size()) {
                ASSERT_EQ(hex(content), hex(expected.octets));
                StringCtx counting(kovra_asn1_decode_octetstring_ctx_new());
                ASSERT_EQ(feed_string(counting.get(), data, way, nullptr), found);
            }
        }
    }
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

// A nest of that many elements, each of which holds the next, and `behind` after it.
std::string definite_nest(std::string_view lead, size_t depth, std::string_view behind) {
    std::string headers, tails;
    size_t length = 0;
    for (size_t i = 0; i < depth; ++i) {
        tails += behind;
        length += behind.size();
        for (int shift = 0; shift < 32; shift += 8)
            headers += static_cast<char>(length >> shift);
        headers += '\x84';
        headers += lead;
        length += 6;
    }
    std::reverse(headers.begin(), headers.end());
    return headers + tails;
}

TEST(Push, DeepNestsOnASmallStack) {
    constexpr size_t depth = 1000000;
    const std::pair<const char *, std::string> nests[] = {
        {"30 80", repeated(octets("30 80"), depth) + std::string(2 * depth, '\0')},
        {"24 80", repeated(octets("24 80"), depth) + std::string(2 * depth, '\0')},
        {"24 84", definite_nest("\x24", depth, "")},
        {"A0 84", definite_nest("\xA0", depth, "")},
        {"A0 84 .. 05 00", definite_nest("\xA0", depth, octets("05 00"))},
        {"24 84 .. 04 00", definite_nest("\x24", depth, octets("04 00"))}};
    run_on_small_stack([&] {
        for (const auto &[name, data] : nests) {
            SCOPED_TRACE(name);
            AnyCtx ctx(kovra_asn1_decode_any_ctx_new());
            EXPECT_EQ(feed_any(ctx.get(), data, random_pieces(1, 100000)), data.size());
            if (name[0] == '2') {
                StringCtx string(kovra_asn1_decode_octetstring_ctx_new());
                EXPECT_EQ(feed_string(string.get(), data, random_pieces(2, 100000), nullptr), data.size());
            }
            // Left in the middle.
            AnyCtx half(kovra_asn1_decode_any_ctx_new());
            EXPECT_EQ(feed_any(half.get(), std::string_view(data).substr(0, data.size() / 2), all), waiting);
        }
    });
}

TEST(Push, EveryAllocationMayFail) {
    std::string element = definite_nest("\xA0", 30, octets("05 00")) + std::string(5, '\0');
    std::string string = definite_nest("\x24", 30, octets("04 01 61"));
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

TEST(Push, BadArguments) {
    AnyCtx any(kovra_asn1_decode_any_ctx_new());
    StringCtx string(kovra_asn1_decode_octetstring_ctx_new());
    Value other = decoded(2, "02 01 05");
    uint32_t tag_class = 0;
    int32_t out = -7;
    for (void *handle : {static_cast<void *>(nullptr), static_cast<void *>(string.get()), other.get()}) {
        auto *ctx = static_cast<kovra_asn1_decode_any_ctx *>(handle);
        kovra_asn1_value *value = nullptr;
        EXPECT_EQ(kovra_asn1_decode_any_update(ctx, "", 0, &out), 0);
        EXPECT_EQ(kovra_asn1_decode_any_identifier_length(ctx, 0, "", 0, &tag_class, &out, &out, &out, &out), 0);
        EXPECT_EQ(kovra_asn1_decode_any_isfinish(ctx), 0);
        EXPECT_EQ(kovra_asn1_decode_any_ctx_iseoc(ctx), 0);
        EXPECT_EQ(kovra_asn1_decode_any_ctx_toobject(ctx, 23, &value, nullptr), 0);
        kovra_asn1_decode_any_ctx_free(ctx);
    }
    for (void *handle : {static_cast<void *>(nullptr), static_cast<void *>(any.get()), other.get()}) {
        auto *ctx = static_cast<kovra_asn1_decode_octetstring_ctx *>(handle);
        EXPECT_EQ(kovra_asn1_decode_octetstring_update(ctx, "", 0, nullptr, &out), 0);
        EXPECT_EQ(kovra_asn1_decode_octetstring_content_update(ctx, "", 0, nullptr, &out), 0);
        EXPECT_EQ(kovra_asn1_decode_octetstring_ctx_setstate(ctx, 1, 0), 0);
        EXPECT_EQ(kovra_asn1_decode_octetstring_ctx_getencodelength(ctx), -2);
        EXPECT_EQ(kovra_asn1_decode_octetstring_ctx_isfinish(ctx), 0);
        kovra_asn1_decode_octetstring_ctx_free(ctx);
    }
    for (auto [data, length, place] : {std::tuple("x", -1, &out), {nullptr, 1, &out}, {"\4", 1, nullptr}}) {
        EXPECT_EQ(kovra_asn1_decode_any_update(any.get(), data, length, place), 0);
        EXPECT_EQ(kovra_asn1_decode_octetstring_update(string.get(), data, length, nullptr, place), 0);
        EXPECT_EQ(
            kovra_asn1_decode_any_identifier_length(any.get(), 1, data, length, &tag_class, &out, &out, &out, place),
            0);
    }
    EXPECT_EQ(kovra_asn1_decode_any_identifier_length(any.get(), 1, "", 0, nullptr, &out, &out, &out, &out), 0);
    EXPECT_EQ(kovra_asn1_decode_any_identifier_length(any.get(), 1, "", 0, &tag_class, nullptr, &out, &out, &out), 0);
    EXPECT_EQ(kovra_asn1_decode_any_identifier_length(any.get(), 1, "", 0, &tag_class, &out, nullptr, &out, &out), 0);
    EXPECT_EQ(kovra_asn1_decode_any_identifier_length(any.get(), 1, "", 0, &tag_class, &out, &out, nullptr, &out), 0);
    EXPECT_EQ(out, -7);
    EXPECT_EQ(kovra_asn1_decode_any_update(any.get(), nullptr, 0, &out), 1);
    EXPECT_EQ(out, 0);
    EXPECT_EQ(feed_any(any.get(), octets("04 01 61"), one), 3u) << "nothing was changed";
    EXPECT_EQ(feed_string(string.get(), octets("04 01 61"), one, nullptr), 3u);
}

// The example in the header is a part of the program that is run.
TEST(Push, HeaderShowsTheExample) {
    std::ifstream header(KOVRA_SOURCE_DIR "/include/kovra/asn1_decode.h");
    std::string example, line;
    while (std::getline(header, line))
        if (line.rfind(" *     ", 0) == 0)
            example += line.substr(7) + "\n";
    EXPECT_GT(example.size(), 500u);
    EXPECT_NE(contents(KOVRA_SOURCE_DIR "/examples/pieces.c").find(example), std::string::npos);
}

} // namespace
} // namespace kovra::test
