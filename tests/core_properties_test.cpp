// What holds for all primitive types alike, over every row of the table of decodings and what comes of changing it.
#include <chrono>
#include <functional>

#include "tests/asn1_testing.hpp"
#include "tests/small_stack.hpp"

namespace kovra::test {
namespace {

constexpr uint32_t primitive_types[] = {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14,
                                        15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 90};

struct Sample {
    uint32_t type;
    std::string data;
};

const std::vector<Sample> &samples() {
    static const std::vector<Sample> all = [] {
        std::vector<Sample> found;
        for (const auto &row : table("decodings.txt"))
            for (const std::string &encoding : parts_of(row[1]))
                found.push_back({static_cast<uint32_t>(std::stoul(row[0])), octets(encoding)});
        for (const auto &row : table("times.txt"))
            for (size_t i = 1; i < row.size(); ++i) {
                const std::string text = sides_of(row[i]).first;
                found.push_back(
                    {20, std::string{static_cast<char>(std::stoi(row[0])), static_cast<char>(text.size())} + text});
            }
        return found;
    }();
    return all;
}

// Decodes from memory, which ends where the octets end, and from a trickle, and expects one outcome.
Decoded decode_both_ways(uint32_t type, const std::string &data) {
    Decoded memory = decode(type, data), trickle = decode(type, data, Feed::trickle);
    EXPECT_EQ(memory.result, trickle.result) << type << ": " << hex(data);
    EXPECT_EQ(memory.codes, trickle.codes) << type << ": " << hex(data);
    EXPECT_EQ(memory.consumed, trickle.consumed) << type << ": " << hex(data);
    if (memory.result == 1) {
        EXPECT_EQ(encode(type, memory.value.get()).octets, encode(type, trickle.value.get()).octets);
    }
    return memory;
}

// What was accepted is written, and that is accepted, gives the same again, and is as long as announced.
void expect_round_trip(const Decoded &decoded, uint32_t type) {
    Encoded first = encode(type, decoded.value.get());
    ASSERT_EQ(first.result, 1);
    Decoded again = decode(type, first.octets);
    ASSERT_EQ(again.result, 1) << type << ": " << hex(first.octets);
    EXPECT_EQ(again.consumed, first.octets.size());
    EXPECT_EQ(encode(type, again.value.get()).octets, first.octets);
    int32_t length = kovra_asn1_length(type, decoded.value.get());
    if (length != -1) {
        EXPECT_EQ(length, size_of(first.octets));
    }
    Value copy(type, kovra_asn1_dupobject(type, decoded.value.get(), nullptr));
    EXPECT_EQ(encode(type, copy.get()).octets, type == 0 || type == 5 ? "" : first.octets);
}

TEST(Properties, EveryTypeReadsEverySampleAlikeFromAnyStream) {
    for (const Sample &sample : samples()) {
        for (uint32_t type : primitive_types) {
            Decoded decoded = decode_both_ways(type, sample.data);
            if (decoded.result == 1 && type != 0 && type != 5) {
                expect_round_trip(decoded, type);
            }
        }
    }
}

TEST(Properties, EveryTruncationAndEveryChangedOctetIsReadAlikeFromAnyStream) {
    for (const Sample &sample : samples()) {
        size_t whole = decode(sample.type, sample.data).result == 1 ? decode(sample.type, sample.data).consumed : 0;
        for (size_t at = 0; at < sample.data.size(); ++at) {
            Decoded cut = decode_both_ways(sample.type, sample.data.substr(0, at));
            EXPECT_TRUE(at >= whole || cut.result != 1) << sample.type << ": " << hex(sample.data) << " cut at " << at;
            for (int flip : {0x01, 0x02, 0x20, 0x7F, 0x80, 0xFF}) {
                std::string changed = sample.data;
                changed[at] = static_cast<char>(changed[at] ^ flip);
                Decoded decoded = decode_both_ways(sample.type, changed);
                if (decoded.result == 1 && sample.type != 0 && sample.type != 5) {
                    expect_round_trip(decoded, sample.type);
                }
            }
        }
    }
}

TEST(Properties, OnlyIntegersAreCompared) {
    const Value left = decoded(2, "02 01 05"), right(2, kovra_asn1_integer_value(5));
    EXPECT_EQ(kovra_asn1_integer_equals(left.get(), right.get()), 1);
    for (const Value &other : {decoded(1, "01 01 FF"), decoded(4, "04 01 41"), decoded(6, "06 01 2A")}) {
        EXPECT_EQ(kovra_asn1_integer_equals(left.get(), other.get()), 0);
        EXPECT_EQ(kovra_asn1_integer_equals(other.get(), left.get()), 0);
        EXPECT_EQ(kovra_asn1_integer_equals(other.get(), other.get()), 0);
    }
    const Value string = decoded(4, "04 01 41");
    EXPECT_EQ(kovra_asn1_integer_encodecmp(string.get(), left.get()), -1);
    EXPECT_EQ(kovra_asn1_integer_encodecmp(left.get(), string.get()), 1);
}

// Runs on a thread with a small stack, and says how many seconds it took.
template <class Work> double on_a_small_stack(Work work) {
    auto start = std::chrono::steady_clock::now();
    run_on_small_stack(work);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// `depth` elements of one identifier around each other, of definite length.
std::string nested(char identifier, size_t depth, std::string_view innermost) {
    std::string reversed(innermost.rbegin(), innermost.rend());
    for (size_t i = 0; i < depth; ++i) {
        Stream header = memory_stream();
        kovra_asn1_encode_length(header.get(), size_of(reversed), nullptr, nullptr);
        std::string length = taken(header);
        reversed.append(length.rbegin(), length.rend());
        reversed += identifier;
    }
    return {reversed.rbegin(), reversed.rend()};
}

TEST(Properties, AMillionLevelsTakeLinearTimeAndNoStack) {
    constexpr size_t depth = 1000000;
    const struct {
        const char *name;
        std::vector<uint32_t> types;
        std::string data;
        bool kept;    // written back as it was
        int32_t code; // of the octets without their end
    } rows[] = {
        {"30 80", {23, 24}, repeated("\x30\x80", depth) + std::string(2 * depth, '\0'), true, 0x102e5},
        {"A0 80", {23}, repeated("\xA0\x80", depth) + std::string(2 * depth, '\0'), true, 0x102e5},
        {"30 length", {23, 24, 26}, nested('\x30', depth, ""), true, 0},
        {"24 80", {4, 23}, repeated("\x24\x80", depth) + "\x04\x01x" + std::string(2 * depth, '\0'), false, 0x102e5},
        {"24 length", {4, 23}, nested('\x24', depth, "\x04\x01x"), false, 0},
        {"23 80",
         {3, 23},
         repeated("\x23\x80", depth) + octets("03 02 00 78") + std::string(2 * depth, '\0'),
         false,
         0x102e5},
        {"23 length", {3, 23}, nested('\x23', depth, octets("03 02 00 78")), false, 0},
    };
    for (const auto &row : rows) {
        for (uint32_t type : row.types) {
            SCOPED_TRACE(std::string(row.name) + " as type " + std::to_string(type));
            double seconds = on_a_small_stack([&] {
                Decoded decoded = decode(type, row.data);
                if (type == 26) {
                    EXPECT_EQ(decoded.codes, Codes({0x1020a}));
                    return;
                }
                EXPECT_EQ(decoded.result, 1);
                EXPECT_EQ(decoded.consumed, row.data.size());
                std::string encoded = encode(type, decoded.value.get()).octets;
                if (type == 23) {
                    EXPECT_TRUE(encoded == row.data);
                } else if (type != 24) {
                    EXPECT_EQ(hex(encoded), type == 4 ? "040178" : "03020078");
                }
                EXPECT_FALSE(decode(type, row.data.substr(0, row.data.size() - 1)).codes.empty());
            });
            EXPECT_LT(seconds, 20); // quadratic would be hours
        }
    }
    double seconds = on_a_small_stack([&] { // opened and never closed
        EXPECT_EQ(decode(23, rows[0].data.substr(0, 2 * depth)).codes, Codes({0x10105, 0x102e5}));
        EXPECT_EQ(decode(4, rows[3].data.substr(0, 2 * depth), Feed::trickle).codes, Codes({0x10105, 0x102e5}));
        EXPECT_EQ(decode(3, rows[5].data.substr(0, 2 * depth)).codes.size(), depth + 2) << "one entry a level";
    });
    EXPECT_LT(seconds, 20);
}

} // namespace
} // namespace kovra::test
