#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "tests/failing_memory.hpp"
#include "tests/small_stack.hpp"
#include "tests/util_handles.hpp"

using namespace kovra;
using namespace kovra::test;

namespace {


std::string print(const Json &value, int32_t indent = 0) {
    int64_t length = 0;
    const Memory<char> text(kovra_json_print(value.get(), indent, &length));
    return text != nullptr ? std::string(text.get(), static_cast<size_t>(length)) : "(null)";
}

// The text ends where its memory does, so that a sanitizer sees every octet too many that is read.
Json parse(const std::string &text, int64_t *offset = nullptr) {
    const std::vector<char> exact(text.begin(), text.end());
    return Json(kovra_json_parse(exact.empty() ? "" : exact.data(), static_cast<int64_t>(exact.size()), offset));
}

TEST(UtilJson, ParsesAndPrintsWhatTheStandardAllows) {
    const struct {
        const char *why;
        std::string text;
        std::string printed; // compact; empty: as the text
    } rows[] = {
        {"any value is a text", "null", ""},
        {"true", "true", ""},
        {"false", "false", ""},
        {"empty array", "[]", ""},
        {"empty object", "{}", ""},
        {"empty string", "\"\"", ""},
        {"empty name", "{\"\":0}", ""},
        {"all white space", " \t\r\n[ 1 , 2 ]\n", "[1,2]"},
        {"white space everywhere", " { \"a\" : [ ] , \"b\" : { } } ", "{\"a\":[],\"b\":{}}"},
        {"order and duplicates are kept", "{\"b\":1,\"a\":[{},[],null],\"b\":2}", ""},
        {"whole numbers without exponent", "[0,-1,1e3,1E+2,9007199254740991,-9007199254740991]",
         "[0,-1,1000,100,9007199254740991,-9007199254740991]"},
        {"shortest that reads the same", "[0.1,1.50,1E-2,1e308,5e-324,1e22,0.30000000000000004]",
         "[0.1,1.5,0.01,1e+308,5e-324,1e+22,0.30000000000000004]"},
        {"negative zero", "-0", "-0"},
        {"too small is zero", "[1e-999,-0.0000000001e-400,1e-99999999999999999999,0e999,0.0e99999999999999999999]",
         "[0,-0,0,0,0]"},
        {"too small without exponent", "0." + std::string(400, '0') + "1", "0"},
        {"large exponent that is made up for", "0." + std::string(400, '0') + "1e+401", "1"},
        {"small exponent that is made up for", "1" + std::string(400, '0') + "e-399", "10"},
        {"escapes of code units", "\"\\u0041\\u00e9\\u20AC\\ud83d\\uDE00\"",
         "\"A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\""},
        {"all escapes", "\"\\\"\\\\\\/\\b\\f\\n\\r\\t\\u0000\\u001f\"", "\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0000\\u001f\""},
        {"escapes amid text", "\"a\\u0062c\\/d\xC3\xA9\"", "\"abc/d\xC3\xA9\""},
        {"DEL and the last character", "\"\x7F\xF4\x8F\xBF\xBF\"", ""},
        {"escaped name", "{\"\\u0061\\n\":1}", "{\"a\\n\":1}"},
    };
    for (const auto &row : rows) {
        const Json value = parse(row.text);
        ASSERT_NE(value, nullptr) << row.why;
        EXPECT_EQ(print(value), row.printed.empty() ? row.text : row.printed) << row.why;
        EXPECT_EQ(print(parse(print(value, 3))), print(value)) << row.why << ", indented";
    }
}

TEST(UtilJson, RefusesWhatTheStandardDoesNotAllow) {
    const struct {
        const char *why;
        std::string text;
        int64_t offset;
    } rows[] = {
        {"no value", "", 0},
        {"white space only", "  ", 2},
        {"byte order mark", "\xEF\xBB\xBF[]", 0},
        {"cut literal", "nul", 3},
        {"other literal", "trve", 2},
        {"upper case", "TRUE", 0},
        {"not a number", "NaN", 0},
        {"infinity", "-Infinity", 1},
        {"comma at the end", "[1,]", 3},
        {"comma first", "[,1]", 1},
        {"no comma", "[1 2]", 3},
        {"wrong closing", "[1}", 2},
        {"open array", "[1", 2},
        {"closing alone", "]", 0},
        {"member without value", "{\"a\"}", 4},
        {"name without quotes", "{a:1}", 1},
        {"name that is a number", "{1:1}", 1},
        {"comma behind a member", "{\"a\":1,}", 7},
        {"no colon", "{\"a\" 1}", 5},
        {"open object", "{\"a\":", 5},
        {"NUL in a name", "{\"a\\u0000\":1}", 1},
        {"two values", "1 2", 2},
        {"text behind", "[1]x", 3},
        {"NUL behind", {"[1]\0", 4}, 3},
        {"comment", "[/**/]", 1},
        {"leading zero", "01", 1},
        {"plus", "+1", 0},
        {"no digit before the point", ".5", 0},
        {"no digit behind the point", "1.", 2},
        {"no digit in the exponent", "1e", 2},
        {"no digit behind the sign", "1e+", 3},
        {"minus alone", "-", 1},
        {"hexadecimal", "0x1", 1},
        {"beyond a double", "1e999", 5},
        {"beyond a double, long", std::string(400, '9'), 400},
        {"beyond a double with a small exponent", "1" + std::string(400, '0') + "e-9", 404},
        {"open string", "\"a", 2},
        {"single quotes", "'a'", 0},
        {"line end in a string", "\"\n\"", 1},
        {"NUL in a string", {"\"\0\"", 3}, 1},
        {"unknown escape", "\"\\x\"", 2},
        {"NUL as escape", {"\"\\\0\"", 4}, 2},
        {"escape cut off", "\"\\", 2},
        {"short code", "\"\\u12", 5},
        {"no hexadecimal digit", "\"\\u12g4\"", 5},
        {"high surrogate alone", "\"\\ud800\"", 1},
        {"high surrogate before a letter", "\"\\ud800\\u0041\"", 1},
        {"high surrogate before an escape", "\"\\ud800\\n\"", 8},
        {"low surrogate alone", "\"a\\udc00\"", 2},
        {"overlong UTF-8", "\"\xC0\x80\"", 1},
        {"surrogate in UTF-8", "\"\xED\xA0\x80\"", 1},
        {"UTF-8 cut off", "\"ab\xE2\x82", 3},
    };
    for (const auto &row : rows) {
        int64_t found = -1;
        EXPECT_EQ(parse(row.text, &found), nullptr) << row.why;
        EXPECT_EQ(found, row.offset) << row.why;
    }
    EXPECT_EQ(kovra_json_parse(nullptr, 0, nullptr), nullptr);
    EXPECT_EQ(kovra_json_parse("1", -1, nullptr), nullptr);
}

class Random {
public:
    uint32_t below(uint32_t bound) { return static_cast<uint32_t>(engine_() % bound); }
    // Of all magnitudes.
    double number() {
        const uint64_t bits = uint64_t{engine_()} << 32 | engine_();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        return std::isfinite(number) && below(2) == 0 ? number : static_cast<int32_t>(engine_());
    }
    std::string text() { return "\xE2\x82\xAC" + std::string(below(40), static_cast<char>(below(0x80))); }

private:
    std::mt19937 engine_;
};

// Puts a random value into a container, made in it or adopted.
void put_random(Random &random, kovra_json *container, int depth) {
    const bool is_object = kovra_json_gettype(container) == KOVRA_JSON_OBJECT;
    const std::string name = std::string(random.below(4), 'n') + std::to_string(random.below(20));
    const char *member = is_object ? name.c_str() : nullptr;
    const std::string text = random.text();
    const auto adopted = [&](kovra_json *value) {
        EXPECT_EQ(is_object ? kovra_json_addobjectitem(container, member, value)
                            : kovra_json_addarrayitem(container, value),
                  1);
        return value;
    };
    kovra_json *value = nullptr;
    switch (random.below(depth > 0 ? 9 : 5)) {
    case 0:
        value = kovra_json_putnumber(container, member, random.number());
        break;
    case 1:
        value = kovra_json_putstring(container, member, text.data(), size_of(text));
        break;
    case 2:
        value = kovra_json_putboolean(container, member, static_cast<int32_t>(random.below(2)));
        break;
    case 3:
        value = kovra_json_putnull(container, member);
        break;
    case 4:
        value = adopted(kovra_json_newstring(text.data(), size_of(text)));
        break;
    case 5:
        value = adopted(kovra_json_newobject());
        break;
    case 6:
        value = adopted(kovra_json_newarray());
        break;
    case 7:
        value = kovra_json_putobject(container, member);
        break;
    default:
        value = kovra_json_putarray(container, member);
    }
    ASSERT_NE(value, nullptr);
    if (kovra_json_gettype(value) == KOVRA_JSON_OBJECT || kovra_json_gettype(value) == KOVRA_JSON_ARRAY)
        for (uint32_t i = random.below(30); i > 0; --i)
            put_random(random, value, depth - 1);
}

void expect_same(const kovra_json *left, const kovra_json *right) {
    ASSERT_EQ(kovra_json_gettype(left), kovra_json_gettype(right));
    ASSERT_EQ(kovra_json_getstringlength(left), kovra_json_getstringlength(right));
    ASSERT_STREQ(kovra_json_getstring(left), kovra_json_getstring(right));
    double numbers[2] = {};
    ASSERT_EQ(kovra_json_getnumber(left, &numbers[0]), kovra_json_getnumber(right, &numbers[1]));
    ASSERT_EQ(std::bit_cast<uint64_t>(numbers[0]), std::bit_cast<uint64_t>(numbers[1])) << numbers[0];
    ASSERT_EQ(kovra_json_istrue(left), kovra_json_istrue(right));
    ASSERT_EQ(kovra_json_getarraysize(left), kovra_json_getarraysize(right));
    for (int32_t i = 0; i < kovra_json_getarraysize(left); ++i)
        expect_same(kovra_json_getarrayitem(left, i), kovra_json_getarrayitem(right, i));
    ASSERT_EQ(kovra_json_getobjectsize(left), kovra_json_getobjectsize(right));
    for (int32_t i = 0; i < kovra_json_getobjectsize(left); ++i) {
        const char *names[2] = {};
        expect_same(kovra_json_getobjectitem(left, i, &names[0]), kovra_json_getobjectitem(right, i, &names[1]));
        ASSERT_STREQ(names[0], names[1]);
        expect_same(kovra_json_getobjectvalue(left, names[0]), kovra_json_getobjectvalue(right, names[0]));
    }
}

TEST(UtilJson, WhatWasPrintedIsReadBackTheSame) {
    Random random;
    for (int i = 0; i < 40; ++i) {
        const Json root(i % 2 == 0 ? kovra_json_newobject() : kovra_json_newarray());
        for (int k = 0; k < 20; ++k)
            put_random(random, root.get(), 2);
        for (const int32_t indent : {0, 1, 4})
            expect_same(root.get(), parse(print(root, indent)).get());
    }
}

TEST(UtilJson, ModelKeepsOrderAndOwnership) {
    const Json object(kovra_json_newobject());
    kovra_json *array = kovra_json_newarray();
    EXPECT_EQ(kovra_json_addarrayitem(array, kovra_json_newstring("x\0y", 3)), 1);
    EXPECT_EQ(kovra_json_addobjectitem(object.get(), nullptr, array), 0) << "a member needs a name";
    EXPECT_EQ(kovra_json_addarrayitem(object.get(), array), 0) << "an object is no array";
    EXPECT_EQ(kovra_json_addarrayitem(array, array), 0) << "no cycle";
    EXPECT_EQ(kovra_json_addobjectitem(object.get(), "array", array), 1);
    EXPECT_EQ(kovra_json_addobjectitem(object.get(), "again", array), 0) << "it has an owner";
    EXPECT_EQ(kovra_json_addarrayitem(array, object.get()), 0) << "no cycle";
    EXPECT_EQ(kovra_json_addarrayitem(kovra_json_putarray(array, nullptr), object.get()), 0) << "no longer cycle";
    kovra_json *number = kovra_json_putnumber(object.get(), "n", 2.5);
    EXPECT_EQ(kovra_json_addarrayitem(array, number), 0) << "it was made in its place";
    EXPECT_EQ(kovra_json_putnumber(object.get(), nullptr, 1), nullptr) << "a member needs a name";
    EXPECT_EQ(kovra_json_putnumber(array, "n", 1), nullptr) << "an item has none";
    EXPECT_EQ(kovra_json_putnumber(number, nullptr, 1), nullptr) << "not a container";
    EXPECT_EQ(kovra_json_putnumber(object.get(), "n", std::nan("")), nullptr);
    EXPECT_EQ(kovra_json_newnumber(std::numeric_limits<double>::infinity()), nullptr);
    EXPECT_EQ(kovra_json_putstring(object.get(), "n", nullptr, -1), nullptr);
    EXPECT_EQ(kovra_json_newstring("text", -2), nullptr);
    EXPECT_EQ(kovra_json_puthex(object.get(), "n", "", -1), nullptr);
    ASSERT_NE(kovra_json_puthex(array, nullptr, "\x00\xAF", 2), nullptr);
    ASSERT_NE(kovra_json_putstring(array, nullptr, "\xFF\x01\xE2\x82", 4), nullptr);
    for (kovra_json *inside : {array, number})
        kovra_json_free(inside);
    EXPECT_EQ(print(object), "{\"array\":[\"x\\u0000y\",[],\"00af\","
                             "\"\xEF\xBF\xBD\\u0001\xEF\xBF\xBD\xEF\xBF\xBD\"],\"n\":2.5}");
    EXPECT_EQ(print(object, 2), "{\n  \"array\": [\n    \"x\\u0000y\",\n    [],\n    \"00af\",\n"
                                "    \"\xEF\xBF\xBD\\u0001\xEF\xBF\xBD\xEF\xBF\xBD\"\n  ],\n  \"n\": 2.5\n}");
    EXPECT_EQ(kovra_json_print(object.get(), -1, nullptr), nullptr);
    EXPECT_EQ(kovra_json_getstringlength(kovra_json_getarrayitem(array, 0)), 3);
    const char *name = nullptr;
    EXPECT_EQ(kovra_json_getobjectitem(object.get(), 1, &name), number);
    EXPECT_STREQ(name, "n");
    for (const int32_t outside : {-1, 2, INT32_MAX})
        EXPECT_EQ(kovra_json_getobjectitem(object.get(), outside, nullptr), nullptr);
}

TEST(UtilJson, WrongHandlesAreRefused) {
    const Blob blob(kovra_data_blob_new("a blob, which is no JSON", 24));
    const Json array(kovra_json_newarray());
    for (auto *wrong : {static_cast<kovra_json *>(nullptr), reinterpret_cast<kovra_json *>(blob.get())}) {
        double number = 0;
        EXPECT_EQ(kovra_json_addarrayitem(array.get(), wrong) + kovra_json_addarrayitem(wrong, array.get()), 0);
        EXPECT_EQ(kovra_json_putnull(wrong, nullptr), nullptr);
        EXPECT_EQ(kovra_json_gettype(wrong) + kovra_json_istrue(wrong) + kovra_json_getnumber(wrong, &number), 0);
        EXPECT_EQ(kovra_json_getstring(wrong), nullptr);
        EXPECT_EQ(kovra_json_getarrayitem(wrong, 0), nullptr);
        EXPECT_EQ(kovra_json_getobjectvalue(wrong, "name"), nullptr);
        EXPECT_EQ(kovra_json_print(wrong, 0, nullptr), nullptr);
        kovra_json_free(wrong);
    }
    EXPECT_EQ(text_of(blob.get()), "a blob, which is no JSON");
    EXPECT_EQ(print(array), "[]");
}

TEST(UtilJson, LargeContainersAreLinear) {
    constexpr int32_t count = 100000;
    const Json object(kovra_json_newobject());
    kovra_json *array = kovra_json_putarray(object.get(), "array");
    const auto name_of = [](int32_t i) { return "m" + std::to_string(i); };
    const auto number_of = [](const kovra_json *value) {
        double number = -1;
        return kovra_json_getnumber(value, &number) == 1 ? number : -1;
    };
    // Both indexes grow with the additions, whichever was asked for first.
    for (int32_t i = 0; i < count; ++i) {
        ASSERT_NE(kovra_json_putnumber(object.get(), name_of(i).c_str(), i), nullptr);
        ASSERT_NE(kovra_json_putnumber(array, nullptr, i), nullptr);
        if (i % 3 == 0) {
            ASSERT_EQ(number_of(kovra_json_getobjectitem(object.get(), i + 1, nullptr)), i);
        }
        ASSERT_EQ(number_of(kovra_json_getobjectvalue(object.get(), name_of(i).c_str())), i);
    }
    for (int32_t i = count - 1; i >= 0; --i) {
        ASSERT_EQ(number_of(kovra_json_getobjectvalue(object.get(), name_of(i).c_str())), i);
        ASSERT_EQ(number_of(kovra_json_getarrayitem(array, i)), i);
    }
    EXPECT_EQ(kovra_json_getobjectvalue(object.get(), "m"), nullptr);
    ASSERT_NE(kovra_json_putnumber(object.get(), "m7", -7), nullptr);
    EXPECT_EQ(number_of(kovra_json_getobjectvalue(object.get(), "m7")), -7) << "the last of one name counts";
}

TEST(UtilJson, DepthIsBoundedByMemoryOnly) {
    constexpr size_t depth = 1000000;
    run_on_small_stack([] {
        const std::string text = std::string(depth, '[') + std::string(depth, ']');
        const Json value = parse(text);
        ASSERT_NE(value, nullptr);
        EXPECT_TRUE(print(value) == text);
        int64_t offset = 0;
        EXPECT_EQ(parse(std::string(depth, '['), &offset), nullptr);
        EXPECT_EQ(offset, int64_t{depth});

        // Indentation does not grow with the depth for ever.
        constexpr size_t levels = 10000;
        const Json indented = parse(std::string(levels, '[') + std::string(levels, ']'));
        EXPECT_LE(print(indented, 1).size(), 2 * levels * 66);

        // Each in a document of its own, put together from the outside and from the inside.
        Json outer(kovra_json_newarray());
        kovra_json *deepest = outer.get();
        for (size_t i = 0; i < depth / 4; ++i) {
            kovra_json *inner = kovra_json_newarray();
            ASSERT_EQ(kovra_json_addarrayitem(deepest, inner), 1);
            deepest = inner;
            Json around(kovra_json_newarray());
            ASSERT_EQ(kovra_json_addarrayitem(around.get(), outer.release()), 1);
            outer = std::move(around);
        }
        EXPECT_EQ(kovra_json_addarrayitem(deepest, outer.get()), 0) << "no cycle, however long";
        EXPECT_EQ(print(outer).size(), depth + 2);
    });
}

TEST(UtilJson, EveryAllocationMayFail) {
    std::string text =
        "{\"long\":\"" + std::string(3000, 'x') + "\\n\",\"deep\":" + std::string(200, '[') + std::string(200, ']');
    for (int i = 0; i < 100; ++i)
        text += ",\"m" + std::to_string(i) + "\":{\"a\":" + std::to_string(i) + ",\"b\":\"text\"}";
    text += '}';
    fail_each_allocation([&] {
        const Json root(kovra_json_parse(text.data(), static_cast<int64_t>(text.size()), nullptr));
        if (root == nullptr)
            return false;
        // Finding needs an index, and does without when there is no memory for one.
        const char *name = nullptr;
        EXPECT_NE(kovra_json_getobjectvalue(root.get(), "m99"), nullptr);
        EXPECT_NE(kovra_json_getobjectitem(root.get(), 101, &name), nullptr);
        EXPECT_STREQ(name, "m99");
        Json added(kovra_json_newstring("added", -1));
        if (kovra_json_addobjectitem(root.get(), "n", added.get()) == 0)
            return false;
        kovra_json *owned = added.release();
        EXPECT_EQ(kovra_json_getobjectvalue(root.get(), "n"), owned);
        const bool is_put = kovra_json_puthex(root.get(), "hex", text.data(), 2000) != nullptr;
        EXPECT_EQ(kovra_json_getobjectsize(root.get()), is_put ? 104 : 103);
        const Memory<char> printed(kovra_json_print(root.get(), 2, nullptr));
        return is_put && printed != nullptr;
    });
}

} // namespace
