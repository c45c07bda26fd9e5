// Contents at the end of what may be read, numbers of all signs and forms, and the largest tags and lengths.
#include <algorithm>
#include <utility>

#include "core/stream_contents.hpp"
#include "kovra/asn1_any.h"
#include "kovra/asn1_json.h"
#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"
#include "tests/harness/functions.hpp"
#include "tests/harness/samples.hpp"

#ifndef _WIN32
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace kovra::test {
namespace {

#ifndef _WIN32

// Pages and, behind them, one that nobody may touch.
class Page {
public:
    Page() {
        void *memory = mmap(nullptr, 2 * size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        EXPECT_NE(memory, MAP_FAILED);
        EXPECT_EQ(mprotect(static_cast<char *>(memory) + size_, size_, PROT_NONE), 0);
        begin_ = static_cast<char *>(memory);
    }
    ~Page() { munmap(begin_, 2 * size_); }
    Page(const Page &) = delete;
    Page &operator=(const Page &) = delete;

    // The octets, where the page ends.
    const char *end_with(std::string_view data) {
        char *place = begin_ + size_ - data.size();
        std::memcpy(place, data.data(), data.size());
        return place;
    }

private:
    size_t size_ = 16 * static_cast<size_t>(sysconf(_SC_PAGESIZE));
    char *begin_ = nullptr;
};

// Functions that make something of octets, texts and numbers: those that take nothing else.
bool is_maker(const Export &row) {
    const auto is_plain = [](const Parameter &one) {
        return one.form != Form::other && one.form != Form::room &&
               (one.form != Form::handle || one.kind == HandleKind::context);
    };
    return row.result.form != Form::nothing && row.name != "kovra_stream_new_file" &&
           std::all_of(row.parameters.begin(), row.parameters.end(), is_plain);
}

// Calls with the text in each place where it can stand, and its length behind it; the first of the other numbers is
// `first`, and each behind it `number`. What is made is read by everything that reads one, and released.
void make_of(const Export &row, Page &page, const std::string &text, int32_t first, int32_t number) {
    std::vector<Word> words(row.parameters.size());
    int64_t places[16] = {};
    for (size_t i = 0; i < words.size(); ++i) {
        const Form form = row.parameters[i].form;
        const Parameter next = i + 1 < words.size() ? row.parameters[i + 1] : Parameter{Form::nothing};
        if (form == Form::octets || form == Form::text) {
            const bool has_length = next.form == Form::integer && (form == Form::octets || next.size > 4);
            words[i].pointer = const_cast<char *>(page.end_with(has_length           ? text
                                                                : form == Form::text ? text + '\0'
                                                                                     : text + std::string(16, '\1')));
            if (has_length)
                words[++i].integer = size_of(text);
        } else if (form == Form::integer || form == Form::natural) {
            words[i].integer = std::exchange(first, number);
        } else if (form == Form::positions) {
            static const int32_t positions[4096] = {3, 70}; // as many as any of the numbers
            words[i].pointer = const_cast<int32_t *>(positions);
        } else if (form == Form::place || form == Form::place_of_handle || form == Form::place_of_memory) {
            words[i].pointer = &places[i];
        }
    }
    const Word result = row.call(words.data());
    if (row.result.is_handle(HandleKind::value) && result.pointer != nullptr)
        read_everything(static_cast<Handle>(result.pointer));
    release_given(row, words.data(), result);
}

TEST(Edges, NothingIsReadBehindTheOctetsAndEveryAllocationMayFail) {
    const std::string texts[] = {"",
                                 "a",
                                 std::string("a\0b", 3),
                                 std::string(1, '\0'),
                                 "QUJD",
                                 "41424",
                                 "QUI=",
                                 "1.2.840",
                                 "\xE2\x82",
                                 "\xF0\x9F\x98",
                                 "\xD8\x3D",
                                 "[1,2",
                                 "\"\\ud83d",
                                 "123",
                                 "{\"a\":tru",
                                 "\"open",
                                 std::string(2, '\0'),
                                 "-1e"};
    Page page;
    size_t makers = 0;
    read_everything(pool()[0].value.get()); // what it keeps for later is no leak
    for (const Export &row : exports()) {
        if (!is_maker(row))
            continue;
        ++makers;
        for (const std::string &text : texts)
            for (const int32_t number : {0, 1, 3})
                for (const int32_t first : {number, 2024}) {
                    SCOPED_TRACE(std::string(row.name) + " " + hex(text));
                    const int64_t before = live_blocks();
                    make_of(row, page, text, first, number);
                    EXPECT_EQ(live_blocks(), before);
                    for (const bool fails_once : {false, true})
                        fail_each_allocation(
                            [&] {
                                make_of(row, page, text, first, number);
                                return true;
                            },
                            fails_once);
                }
    }
    EXPECT_GT(makers, 60u);
}

// The samples as well: whole and cut, each a decode of its own.
TEST(Edges, NothingIsReadBehindAnEncoding) {
    Page page;
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type)
        for (const Sample &sample : samples(type))
            for (size_t end = sample.what == "long" ? sample.octets.size() : 0; end <= sample.octets.size(); ++end) {
                const char *data = page.end_with(std::string_view(sample.octets).substr(0, end));
                kovra_asn1_value *out = nullptr;
                const int32_t read = kovra_asn1_mem_decode(data, static_cast<int32_t>(end), type, &out);
                const Value value(type, out);
                EXPECT_TRUE(end == sample.octets.size() || read <= 0) << type << ' ' << sample.what << ' ' << end;
            }
}

#endif

// Calls look(octets) with all contents of one and two octets, and longer ones of the octets at which something changes.
template <class Look> void for_each_integer(Look look) {
    std::string content(1, '\0');
    for (int first = 0; first < 256; ++first) {
        look(std::string(1, static_cast<char>(first)));
        for (int second = 0; second < 256; ++second)
            look(std::string{static_cast<char>(first), static_cast<char>(second)});
    }
    constexpr char edges[] = {0x00, 0x01, 0x7F, '\x80', '\xFF'};
    for (const size_t length : {3, 4, 5, 8, 9, 17})
        for (int pattern = 0; pattern < 625; ++pattern) {
            // The first two, one in the middle and the last.
            std::string octets(length, edges[pattern % 5]);
            octets[0] = edges[pattern / 125];
            octets[1] = edges[pattern / 25 % 5];
            octets[length - 1] = edges[pattern / 5 % 5];
            look(octets);
        }
}

TEST(Edges, IntegersOfAllSignsAndForms) {
    for_each_integer([](const std::string &octets) {
        SCOPED_TRACE(hex(octets));
        const auto at = [&](size_t i) { return static_cast<uint8_t>(octets[i]); };
        size_t redundant = 0;
        while (redundant + 1 < octets.size() && (at(redundant) == 0x00 || at(redundant) == 0xFF) &&
               (at(redundant) ^ (at(redundant + 1) >= 0x80 ? 0xFF : 0x00)) == 0)
            ++redundant;
        const std::string minimal = octets.substr(redundant);
        int64_t number = at(0) >= 0x80 ? -1 : 0;
        for (const char octet : minimal)
            number = static_cast<int64_t>(static_cast<uint64_t>(number) << 8 | static_cast<uint8_t>(octet));
        const bool is_small = minimal.size() <= 4 && number != INT32_MIN;
        for (const uint32_t type : {KOVRA_ASN1_TYPE_INTEGER, KOVRA_ASN1_TYPE_ENUMERATED}) {
            const int tag = type == KOVRA_ASN1_TYPE_INTEGER ? 2 : 10;
            const Value made(type, kovra_asn1_integer_new(octets.data(), size_of(octets)));
            EXPECT_EQ(hex(encode(type, made.get()).octets), hex(element(tag, minimal)));
            // What is read is kept as it is.
            const Decoded read = decode(type, element(tag, octets));
            ASSERT_EQ(read.result, 1);
            EXPECT_EQ(read.codes.size(), redundant != 0 ? 1u : 0u);
            EXPECT_EQ(hex(encode(type, read.value.get()).octets), hex(element(tag, octets)));
            EXPECT_EQ(kovra_asn1_integer_equals(made.get(), read.value.get()), redundant == 0 ? 1 : 0);
            for (const Value *value : {&made, &read.value}) {
                int32_t small = 0;
                EXPECT_EQ(kovra_asn1_integer_getlong(value->get(), &small), is_small ? 1 : 0);
                EXPECT_EQ(small, is_small ? number : 0);
                const BigInteger big(kovra_asn1_integer_getbigintger(value->get()));
                const Value back(type, kovra_asn1_integer_newbigint(big.get()));
                EXPECT_EQ(hex(encode(type, back.get()).octets), hex(element(tag, minimal)));
            }
        }
        // The same octets as a magnitude.
        const size_t zeros = std::min(octets.find_first_not_of('\0'), octets.size() - 1);
        const std::string magnitude = (at(zeros) >= 0x80 ? std::string(1, '\0') : "") + octets.substr(zeros);
        const Value magnitude_made(2, kovra_asn1_unsigned_integer_new(octets.data(), size_of(octets)));
        EXPECT_EQ(encoding(magnitude_made), hex(element(2, magnitude)));
    });
}

// An arc in the fewest octets that fits 64 bits is read; what is behind the last whole one does not matter.
TEST(Edges, ObjectIdentifiersOfAllForms) {
    for_each_integer([](const std::string &octets) {
        bool is_good = true;
        for (size_t begin = 0, at = 0; at < octets.size(); ++at) {
            if (octets[at] < 0)
                continue;
            // Ten octets hold 70 bits.
            const size_t count = at + 1 - begin;
            const bool fits = count < 10 || (count == 10 && static_cast<uint8_t>(octets[begin]) <= 0x81);
            is_good = is_good && fits && static_cast<uint8_t>(octets[begin]) != 0x80;
            begin = at + 1;
        }
        for (const auto &[type, tag] : {std::pair(KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER, 6), std::pair(90, 13)}) {
            const Decoded read = decode(static_cast<uint32_t>(type), element(tag, octets));
            EXPECT_EQ(read.result, is_good ? 1 : 0) << type << ' ' << hex(octets);
        }
    });
}

// A string in segments is as long as it turns out to be.
TEST(Edges, SegmentsHaveNoSize) {
    const Stream source(kovra_stream_new_romem("ABC", 3, 0, nullptr)), segments(core::new_segment_stream(source.get()));
    EXPECT_EQ(kovra_stream_ctrl(segments.get(), KOVRA_STREAM_SIZE, 0, nullptr), -1);
    char room[8] = {};
    EXPECT_EQ(kovra_stream_readn(segments.get(), room, 7, nullptr, nullptr), 1);
    EXPECT_EQ(hex({room, 7}), "04034142430000");
}

// Every tag number with one bit, and its neighbours, in each class and form.
TEST(Edges, TagsOfEverySize) {
    std::vector<int32_t> tags = {INT32_MAX};
    for (int bit = 0; bit < 31; ++bit)
        for (const int64_t tag : {(int64_t{1} << bit) - 1, int64_t{1} << bit, (int64_t{1} << bit) + 1})
            tags.push_back(static_cast<int32_t>(tag));
    for (const int32_t tag : tags)
        for (const uint32_t tag_class : {0x40U, 0x80U, 0xC0U})
            for (const int32_t form : {0, 1}) {
                SCOPED_TRACE(std::to_string(tag_class) + " " + std::to_string(tag));
                const std::string content = octets("04 01 41");
                const Value made(
                    23, kovra_asn1_any_new(tag_class, form, tag, size_of(content), content.data(), size_of(content)));
                const std::string data = encode(23, made.get()).octets;
                std::string identifier(1, static_cast<char>(tag_class | (form == 0 ? 0x20U : 0U) |
                                                            static_cast<uint32_t>(std::min(tag, 31))));
                for (int shift = 28; shift >= 0 && tag >= 31; shift -= 7)
                    if (tag >> shift != 0)
                        identifier += static_cast<char>((tag >> shift & 0x7F) | (shift != 0 ? 0x80 : 0));
                ASSERT_EQ(hex(data), hex(identifier + '\x03' + content));
                const Decoded read = decode(23, data);
                ASSERT_EQ(read.result, 1) << read.codes;
                int32_t found = -1;
                EXPECT_EQ(kovra_asn1_any_gettagnumber(read.value.get(), &found), 1);
                EXPECT_EQ(found, tag);
                const Json json(kovra_asn1_tojson(data.data(), size_of(data)));
                const Blob back(kovra_asn1_encodejson(json.get()));
                ASSERT_NE(back, nullptr);
                EXPECT_EQ(hex(text_of(back.get())), hex(data));
            }
    for (const char *identifier : {"9F 1E", "9F 00", "9F 80 1E", "9F 88 80 80 80 00", "9F FF FF FF FF 7F",
                                   "9F 90 80 80 80 80 00", "9F 81 80 80 80 80 80 00"})
        EXPECT_EQ(decode(23, octets(identifier) + octets("01 00")).result, 0) << identifier;
}

// Lengths around the largest that there is, announced and given, of every type.
TEST(Edges, LengthsOfEverySize) {
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type) {
        SCOPED_TRACE(type);
        const std::string &data = minimal_sample(type);
        const std::string content = data.substr(2);
        for (const char *length : {"84 7F FF FF FF", "84 80 00 00 00", "84 FF FF FF FF", "85 01 00 00 00 00",
                                   "88 FF FF FF FF FF FF FF FF", "FE 01", "FF"}) {
            for (const Feed feed : {Feed::memory, Feed::trickle}) {
                const Decoded read = decode(type, data.substr(0, 1) + octets(length) + content, feed);
                EXPECT_EQ(read.result, 0) << length;
                EXPECT_FALSE(read.codes.empty()) << length;
            }
        }
        for (const int32_t length : {INT32_MAX, INT32_MAX - 1, -2, INT32_MIN})
            for (const int32_t form : {0, 1})
                EXPECT_NE(decode_content(type, content, form, length).result, 1) << length;
    }
}

// An element whose header and content are one piece of more octets than a length can tell is not read as a whole.
TEST(Edges, WholesBeyondTheLargestLength) {
    const std::string data = octets("04 84 7F FF FF FF");
    auto *any = core::new_root<core::Any>();
    any->arena->octets = reinterpret_cast<const uint8_t *>(data.data());
    any->header = {nullptr, 0, 6};
    any->tag = 4;
    any->form = core::Form::primitive;
    any->length = INT32_MAX;
    any->content.octets = {nullptr, 6, INT32_MAX};
    const Value owner(23, any);
    const Errors ctx(kovra_err_ctx_new());
    kovra_asn1_value *out = unwritten();
    EXPECT_EQ(kovra_asn1_any_toobject(any, 1, &out, ctx.get()), 0);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(Codes(ctx.get()), Codes({0x10204}));
}

} // namespace
} // namespace kovra::test
