// Time and memory grow as the input does, and not before its octets are there.
#include <ctime>
#include <filesystem>
#include <functional>

#include "core/list.hpp"
#include "tests/changing_stream.hpp"
#include "tests/failing_memory.hpp"
#include "tests/harness/samples.hpp"

namespace kovra::test {
namespace {

using Handle = kovra_asn1_value *;

constexpr int64_t allowance = int64_t{64} * 1024;
constexpr int64_t memory_factor = 8; // of an input, to decode it
constexpr int64_t time_slack = CLOCKS_PER_SEC / 20;

// Something of which there can be any number in a value of a type.
struct Growth {
    std::string what;
    uint32_t type;
    std::function<std::string(size_t)> make;
    bool is_described = true; // in JSON, which has indefinite lengths and open strings in other words
};

// Indefinite and definite lengths in turn.
std::string nested_in_turn(size_t depth) {
    std::string begun;
    for (size_t left = depth; left-- > 0;)
        begun += "\x30\x80\x30\x84" + in_four_octets(10 * left);
    return begun + std::string(2 * depth, '\0');
}

std::vector<Growth> growths() {
    std::vector<Growth> found = {
        {"nested sequences", 23, [](size_t n) { return nested_open('\x30', n, ""); }},
        {"nested definite sequences", 23, [](size_t n) { return nested_with_lengths('\x30', n, ""); }},
        {"nested definite tags", 23, [](size_t n) { return nested_with_lengths('\xA0', n, octets("05 00")); }},
        {"nested definite strings", 4, [](size_t n) { return nested_with_lengths('\x24', n, "\x04\x01x"); }},
        {"nested in turn", 23, nested_in_turn},
        {"nested tags", 23, [](size_t n) { return nested_open('\xA0', n, ""); }, false},
        {"nested strings", 4, [](size_t n) { return nested_open('\x24', n, "\x04\x01x"); }, false},
        {"nested bit strings", 3, [](size_t n) { return nested_open('\x23', n, octets("03 02 00 78")); }, false},
        {"segments", 4, [](size_t n) { return open_element(0x24, repeated("\x04\x01x", n)); }, false},
        {"segments of bits", 3, [](size_t n) { return open_element(0x23, repeated(octets("03 02 00 78"), n)); }, false},
        {"octets of a string", 4, [](size_t n) { return element(0x04, std::string(n, 'x')); }},
        {"octets of an integer", 2, [](size_t n) { return element(0x02, std::string(n, '\x11')); }},
        {"arcs", 6, [](size_t n) { return element(0x06, "*" + repeated("\x86\x48", n)); }},
        {"arcs of a relative one", 90, [](size_t n) { return element(0x0D, repeated("\x86\x48", n)); }, false},
        {"elements in indefinite form", 24, [](size_t n) { return open_element(0x30, repeated(octets("05 00"), n)); }},
    };
    // The lists, and a certificate and a CRL with long ones in them.
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type) {
        const core::Type &row = core::row(type);
        if (!is_list(row))
            continue;
        const uint32_t member = static_cast<const core::ListShape *>(row.shape)->element;
        found.push_back({"elements of type " + std::to_string(type), type, [&row, member](size_t n) {
                             return element(row.usual_identifier, repeated(minimal_sample(member), n));
                         }});
    }
    const auto many = [](uint32_t type, size_t n) { return element(0x30, repeated(minimal_sample(type), n)); };
    const std::string algorithm = octets("30 03 06 01 2A"), signature = algorithm + octets("03 02 00 AB");
    const std::string time = octets("17 0D 3132303130313030303030305A"), no_name = octets("30 00");
    found.push_back({"names", KOVRA_ASN1_TYPE_NAME,
                     [=](size_t n) { return many(KOVRA_ASN1_TYPE_RELATIVE_DISTINGUISHED_NAME, n); }});
    found.push_back({"extensions", KOVRA_ASN1_TYPE_CERTIFICATE, [=](size_t n) {
                         const std::string names = no_name + element(0x30, time + time) + no_name;
                         return element(0x30, element(0x30, octets("A0 03 02 01 02 02 01 01") + algorithm + names +
                                                                element(0x30, signature) +
                                                                element(0xA3, many(KOVRA_ASN1_TYPE_EXTENSION, n))) +
                                                  signature);
                     }});
    found.push_back({"revoked entries", KOVRA_ASN1_TYPE_CERTIFICATE_LIST, [=](size_t n) {
                         return element(0x30, element(0x30, octets("02 01 01") + algorithm + no_name + time +
                                                                many(KOVRA_ASN1_TYPE_REVOKED_CERTIFICATE, n)) +
                                                  signature);
                     }});
    return found;
}

void look_at(Handle list) {
    for (int32_t i = 0, count = kovra_asn1_list_getsize(list); i < count; ++i) {
        Handle element = nullptr;
        EXPECT_EQ(kovra_asn1_list_get(list, i, &element), 1);
    }
}

// Decodes the octets and does with the value what there is to do. Returns how often a stream was asked for octets.
int64_t use(const Growth &growth, const std::string &data) {
    const Value value = decode(growth.type, data).value;
    EXPECT_TRUE(value);
    look_at(value.get());
    look_at(kovra_x509pubkeycert_getexts(value.get()));
    look_at(kovra_x509crl_getrevcerts(value.get()));
    if (growth.type == KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER) {
        EXPECT_NE(kovra_asn1_oid_getstring(value.get()), nullptr);
    }
    const Encoded written = encode(growth.type, value.get());
    EXPECT_EQ(written.result == 1, is_written_as_read(core::row(growth.type)) || written.result == 1);
    const Value copy(growth.type, kovra_asn1_dupobject(growth.type, value.get(), nullptr));
    EXPECT_TRUE(copy || !is_written_as_read(core::row(growth.type)));
    if (growth.is_described) {
        const Json json(kovra_asn1_tojson(data.data(), size_of(data)));
        EXPECT_NE(json, nullptr);
        EXPECT_NE(Blob(kovra_asn1_encodejson(json.get())), nullptr);
    }
    const Input input(data, Feed::trickle);
    EXPECT_EQ(decode(growth.type, input).result, 1);
    return input.reads();
}

struct Cost {
    int64_t allocated, peak, time;
    int64_t reads = 0;
};

// Counts from its beginning.
class CostMeter {
public:
    [[nodiscard]] Cost cost() const { return {memory_.use().allocated, memory_.use().peak, std::clock() - begin_}; }

private:
    MemoryMeter memory_;
    std::clock_t begin_ = std::clock();
};

// What `cost` says of n, 2n and 8n. Arrays that grow make steps; four times as much would be quadratic.
template <class CostOf> Cost expect_linear(size_t n, CostOf cost) {
    const Cost one = cost(n), two = cost(2 * n), eight = cost(8 * n);
    EXPECT_LT(two.allocated, one.allocated * 5 / 2 + allowance);
    EXPECT_LT(eight.allocated, one.allocated * 10 + allowance);
    EXPECT_LT(two.peak, one.peak * 5 / 2 + allowance);
    EXPECT_LT(eight.time, one.time * 24 + time_slack);
    return eight;
}

Cost cost_of(const Growth &growth, size_t n) {
    const std::string data = growth.make(n);
    const CostMeter meter;
    const int64_t reads = use(growth, data);
    Cost found = meter.cost();
    found.reads = reads;
    return found;
}

TEST(Linear, MemoryAndTimeGrowAsTheInputDoes) {
    for (const Growth &growth : growths()) {
        SCOPED_TRACE(growth.what);
        constexpr size_t n = 2000;
        const Cost eight = expect_linear(n, [&](size_t count) { return cost_of(growth, count); });
        EXPECT_LE(eight.reads, static_cast<int64_t>(growth.make(8 * n).size()) + 1);
    }
}

// Texts of JSON, of which there can be any number of something.
TEST(Linear, TextsOfJson) {
    const std::pair<const char *, std::function<std::string(size_t)>> texts[] = {
        {"depth", [](size_t n) { return std::string(n, '[') + std::string(n, ']'); }},
        {"depth of objects", [](size_t n) { return repeated("{\"a\":", n) + "1" + std::string(n, '}'); }},
        {"items", [](size_t n) { return "[" + repeated("1,", n) + "2]"; }},
        {"members",
         [](size_t n) {
             std::string text = "{";
             for (size_t i = 0; i < n; ++i)
                 text += "\"m" + std::to_string(i) + "\":null,";
             return text + "\"m\":0}";
         }},
        {"members of one name", [](size_t n) { return "{" + repeated("\"a\":0,", n) + "\"a\":1}"; }},
        {"characters", [](size_t n) { return "\"" + repeated("\\u00e9x", n) + "\""; }},
    };
    for (const auto &[what, make] : texts) {
        SCOPED_TRACE(what);
        const auto cost = [&, &make = make](size_t n) {
            const std::string text = make(n);
            const CostMeter meter;
            const Json json(kovra_json_parse(text.data(), size_of(text), nullptr));
            EXPECT_NE(json, nullptr);
            // Each is looked up, and one more is put.
            for (size_t i = 0; i < n; ++i) {
                kovra_json_getarrayitem(json.get(), static_cast<int32_t>(i));
                kovra_json_getobjectvalue(json.get(), ("m" + std::to_string(i)).c_str());
                kovra_json_getobjectitem(json.get(), static_cast<int32_t>(i), nullptr);
            }
            const Memory<char> printed(kovra_json_print(json.get(), 0, nullptr));
            EXPECT_NE(printed, nullptr);
            return meter.cost();
        };
        expect_linear(4000, cost);
    }
}

TEST(Linear, DecimalTextOfLargeNumbers) {
    if (is_tight)
        GTEST_SKIP() << "products of many digits are not made by transforms there";
    const auto cost = [](size_t n) {
        const std::string text = repeated("1234567", n / 7);
        const CostMeter meter;
        const BigInteger number(kovra_biginteger_newdecimal(text.c_str()));
        const Memory<char> again(kovra_biginteger_todecimal(number.get()));
        EXPECT_TRUE(again.get() == text);
        return meter.cost();
    };
    expect_linear(100000, cost);
}

// A list that grows by elements that are put in it, values that are adopted by values, and what gives them back.
TEST(Linear, ValuesThatGrow) {
    const auto cost = [](size_t n) {
        const CostMeter meter;
        const Value flat(24, kovra_asn1_list_new());
        Value deep(24, kovra_asn1_list_new());
        for (size_t i = 0; i < n; ++i) {
            EXPECT_EQ(kovra_asn1_list_put(flat.get(), kovra_asn1_any_new(0, 1, 5, 0, nullptr, 0)), 1);
            Value around(24, kovra_asn1_list_new());
            EXPECT_EQ(kovra_asn1_list_put(around.get(), deep.release()), 1);
            deep = std::move(around);
        }
        Handle innermost = deep.get();
        for (size_t i = 0; i < n; ++i) {
            const Handle inner = kovra_asn1_list_new();
            EXPECT_EQ(kovra_asn1_list_put(innermost, inner), 1);
            innermost = inner;
        }
        // Looked at while it grows.
        const Json object(kovra_json_newobject()), array(kovra_json_newarray());
        for (size_t i = 0; i < n; ++i) {
            const std::string name = "m" + std::to_string(i);
            EXPECT_NE(kovra_json_putnumber(object.get(), name.c_str(), 1), nullptr);
            EXPECT_NE(kovra_json_getobjectvalue(object.get(), name.c_str()), nullptr);
            EXPECT_NE(kovra_json_putnull(array.get(), nullptr), nullptr);
            EXPECT_NE(kovra_json_getarrayitem(array.get(), static_cast<int32_t>(i)), nullptr);
        }
        return meter.cost();
    };
    expect_linear(2000, cost);
}

// What decoding holds at its peak, whatever comes of it.
int64_t peak_of_decoding(uint32_t type, const std::string &data, Feed feed = Feed::memory) {
    const Input input(data, feed);
    const MemoryMeter meter;
    Handle out = nullptr;
    kovra_asn1_decode(input.stream(), type, &out, nullptr, nullptr);
    kovra_asn1_value_free(type, type == 0 || type == 5 ? nullptr : out);
    return meter.use().peak;
}

TEST(Linear, AnnouncedLengthsTakeNoMemory) {
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type) {
        for (int identifier = 0; identifier < 256; ++identifier) {
            const std::string data = std::string(1, static_cast<char>(identifier)) + octets("84 7F FF FF FF 00");
            ASSERT_LT(peak_of_decoding(type, data), allowance) << type << ": " << hex(data);
        }
        for (const Sample &sample : samples(type)) {
            // Within what has begun: the element that the octets end in goes on for 2 GiB.
            std::string begun;
            for (size_t at = 0; at + 1 < sample.octets.size() && (sample.octets[at] & 0x20) != 0; at += 2) {
                begun += sample.octets.substr(at, 1) + '\x80';
                if (static_cast<uint8_t>(sample.octets[at + 1]) >= 0x80)
                    break;
                const std::string data = begun + sample.octets.substr(at + 2, 1) + octets("84 7F FF FF FF 00");
                ASSERT_LT(peak_of_decoding(type, data), allowance) << type << ": " << hex(data);
                ASSERT_LT(peak_of_decoding(type, data, Feed::trickle), allowance) << type << ": " << hex(data);
            }
        }
        // The content alone, of a length that is only announced.
        const std::string content = minimal_sample(type).substr(2);
        for (const int32_t form : {0, 1}) {
            for (const Feed feed : {Feed::memory, Feed::trickle}) {
                const Input input(content, feed);
                const MemoryMeter meter;
                Handle out = nullptr;
                kovra_asn1_decode_content(input.stream(), type, &out, form, INT32_MAX, nullptr, nullptr);
                EXPECT_LT(meter.use().peak, allowance) << type;
                EXPECT_EQ(out, nullptr) << type;
            }
        }
    }
}

TEST(Linear, AnnouncedLengthsTakeNoMemoryWhenWritten) {
    // What claims a size and has no octets.
    Changing large({0x7FFFFFF0}, 0), bits({0x0FFFFFF0}, 0), octets({segmented_from - 1}, 0);
    const auto any = [] { return Value(23, kovra_asn1_any_new(0, 1, 4, 0x7FFFFF00, "x", 1)); };
    Value list(24, kovra_asn1_list_new()), list_of_list(24, kovra_asn1_list_new());
    EXPECT_EQ(kovra_asn1_list_put(list.get(), any().release()), 1);
    EXPECT_EQ(kovra_asn1_list_put(list_of_list.get(), list.release()), 1);
    const Value values[] = {any(), bits_over(large.stream()), bits_over(bits.stream()), std::move(list_of_list),
                            string_over(octets.stream())};
    for (const Value &value : values) {
        SCOPED_TRACE(value.type());
        const MemoryMeter meter;
        EXPECT_EQ(Blob(kovra_asn1_mem_encode(value.type(), value.get())), nullptr);
        EXPECT_EQ(encode(value.type(), value.get()).result, 0);
        EXPECT_FALSE(Value(value.type(), kovra_asn1_dupobject(value.type(), value.get(), nullptr)));
        EXPECT_FALSE(Value(23, kovra_asn1_objecttoany(value.type(), value.get())));
        EXPECT_EQ(kovra_asn1_octetstring_getblob(value.get()), nullptr);
        EXPECT_EQ(kovra_asn1_bitstring_getbitset(value.get()), nullptr);
        EXPECT_LT(meter.use().peak, allowance);
    }
    // More bits than a set can have are refused before they are read.
    const int64_t reads = large.reads();
    EXPECT_EQ(kovra_asn1_bitstring_getbitset(values[1].get()), nullptr);
    EXPECT_EQ(large.reads(), reads);
}

// The other octets are written into one buffer of their size; the blob is a copy.
TEST(Linear, WhatIsInMemoryIsWrittenAtOnce) {
    const std::string data = noise(1000);
    const Value list(24, kovra_asn1_list_new());
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(kovra_asn1_list_put(list.get(), kovra_asn1_any_new(0, 1, 4, 1000, data.data(), 1000)), 1);
    const MemoryMeter meter;
    const Blob blob(kovra_asn1_mem_encode(24, list.get()));
    // Large blocks are whole pages to some allocators.
    constexpr int64_t page = 4096;
    EXPECT_LE(meter.use().allocated, 2 * (int64_t{kovra_data_blob_getlength(blob.get())} + page));
}

// Strings whose contents stay in streams, in a value that is copied.
TEST(Linear, ContentsInStreams) {
    const Changing claim({segmented_from}, 0);
    const Value string = string_over(claim.stream());
    const Value type = decoded(6, "06 01 2A");
    const auto cost = [&](size_t n) {
        const Value list(24, kovra_asn1_list_new());
        for (size_t i = 0; i < n; ++i)
            EXPECT_EQ(kovra_asn1_list_put(list.get(), kovra_asn1_objecttoany(4, string.get())), 1);
        const CostMeter meter;
        const Value attribute(42, kovra_x500attribute_new(type.get(), list.get()));
        look_at(kovra_x500attribute_getvalue(attribute.get()));
        EXPECT_EQ(kovra_asn1_list_getsize(kovra_x500attribute_getvalue(attribute.get())), static_cast<int32_t>(n));
        return meter.cost();
    };
    expect_linear(4000, cost);
    EXPECT_EQ(claim.reads(), 0);
}

// Each sample, and much of all there can be much of.
TEST(Linear, SamplesTakeAFewTimesTheInput) {
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type)
        for (const Sample &sample : samples(type))
            for (const Feed feed : {Feed::memory, Feed::trickle})
                EXPECT_LE(peak_of_decoding(type, sample.octets, feed),
                          memory_factor * size_of(sample.octets) + allowance)
                    << type << ' ' << sample.what;
    for (const Growth &growth : growths()) {
        const std::string data = growth.make(20000);
        for (const Feed feed : {Feed::memory, Feed::trickle})
            EXPECT_LE(peak_of_decoding(growth.type, data, feed), memory_factor * size_of(data) + allowance)
                << growth.what;
    }
}

// Every file of the examples, read as everything that it can be read as.
TEST(Linear, DecodingTakesAFewTimesTheInput) {
    size_t read = 0;
    for (const auto &entry : std::filesystem::directory_iterator(KOVRA_SOURCE_DIR "/examples")) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".der" && extension != ".ber" && extension != ".p12")
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string data{std::istreambuf_iterator<char>(file), {}};
        for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type) {
            EXPECT_LE(peak_of_decoding(type, data), memory_factor * size_of(data) + allowance)
                << entry.path() << " as type " << type;
            read += decode(type, data).result == 1 ? 1 : 0;
        }
    }
    EXPECT_GT(read, 200u);
}

} // namespace
} // namespace kovra::test
