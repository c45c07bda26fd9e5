// The JSON model, printing and parsing of the companion.

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <string>

#include "kovra/util.h"

namespace {

std::string print(const kovra_json *value, int32_t indent = 0) {
    int64_t length = 0;
    char *text = kovra_json_print(value, indent, &length);
    if (text == nullptr)
        return "(null)";
    std::string printed(text, static_cast<size_t>(length));
    kovra_free(text);
    return printed;
}

kovra_json *parse(const std::string &text, int64_t *offset = nullptr) {
    return kovra_json_parse(text.data(), static_cast<int64_t>(text.size()), offset);
}

TEST(UtilJson, ParsesAndPrintsWhatTheStandardAllows) {
    using std::string_literals::operator""s;
    const struct {
        std::string text;
        std::string printed; // compact; empty: as the text
    } rows[] = {
        {"null", ""},
        {"true", ""},
        {"false", ""},
        {"[]", ""},
        {"{}", ""},
        {"\"\"", ""},
        {" \t\r\n[ 1 , 2 ]\n", "[1,2]"},
        {"{\"b\":1,\"a\":[{},[],null],\"b\":2}", ""},
        {"[0,-1,1.5,1e3,1E-2,-0,9007199254740991,1e308]", "[0,-1,1.5,1000,0.01,-0,9007199254740991,1e+308]"},
        {"\"\\u0041\\u00e9\\u20AC\\ud83d\\uDE00\"", "\"A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\""},
        {"\"\\\"\\\\\\/\\b\\f\\n\\r\\t\\u0000\\u001f\"", "\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0000\\u001f\""},
        {"\"\x7F\xF4\x8F\xBF\xBF\"", ""},
    };
    for (const auto &[text, printed] : rows) {
        kovra_json *value = parse(text);
        ASSERT_NE(value, nullptr) << text;
        EXPECT_EQ(print(value), printed.empty() ? text : printed);
        kovra_json *again = parse(print(value, 3));
        EXPECT_EQ(print(again), print(value)) << "indented text means the same";
        kovra_json_free(again);
        kovra_json_free(value);
    }
}

TEST(UtilJson, RefusesWhatTheStandardDoesNotAllow) {
    using std::string_literals::operator""s;
    const struct {
        std::string text;
        int64_t offset;
    } rows[] = {
        {"", 0},
        {"  ", 2},
        {"nul", 0},
        {"[1,]", 3},
        {"[,1]", 1},
        {"[1 2]", 3},
        {"{\"a\"}", 4},
        {"{a:1}", 1},
        {"{\"a\":1,}", 7},
        {"[1", 2},
        {"{\"a\":", 5},
        {"1 2", 2},
        {"01", 1},
        {"+1", 0},
        {".5", 0},
        {"1.", 2},
        {"1e", 2},
        {"-", 1},
        {"1e999", 5},
        {"\"\n\"", 1},
        {"\"\\x\"", 1},
        {"\"\\ud800\"", 7},
        {"\"\\udc00\"", 7},
        {"\"\\u12g4\"", 3},
        {"\"\xC0\x80\"", 1},
        {"\"\xED\xA0\x80\"", 1},
        {"\"", 1},
        {"NaN", 0},
        {"[1]x", 3},
        {"'a'", 0},
        {"[1]\0"s, 3},
        {"\xEF\xBB\xBF[]", 0},
    };
    for (const auto &[text, offset] : rows) {
        int64_t found = -1;
        kovra_json *value = parse(text, &found);
        EXPECT_EQ(value, nullptr) << text;
        EXPECT_EQ(found, offset) << text;
        kovra_json_free(value);
    }
}

TEST(UtilJson, ModelKeepsOrderAndOwnership) {
    kovra_json *object = kovra_json_newobject();
    kovra_json *array = kovra_json_newarray();
    EXPECT_EQ(kovra_json_addarrayitem(array, kovra_json_newstring("x\0y", 3)), 1);
    EXPECT_EQ(kovra_json_addobjectitem(object, "array", array), 1);
    EXPECT_EQ(kovra_json_addobjectitem(object, "again", array), 0) << "it has an owner";
    EXPECT_EQ(kovra_json_addarrayitem(array, object), 0) << "no cycle";
    EXPECT_EQ(kovra_json_addarrayitem(object, kovra_json_getobjectvalue(object, "array")), 0);
    ASSERT_NE(kovra_json_putnumber(object, "n", 2.5), nullptr);
    EXPECT_EQ(kovra_json_putnumber(object, nullptr, 1), nullptr) << "a member needs a name";
    EXPECT_EQ(kovra_json_putnumber(array, "n", 1), nullptr) << "an item has none";
    EXPECT_EQ(kovra_json_putnumber(object, "n", std::nan("")), nullptr);
    EXPECT_EQ(kovra_json_newnumber(std::numeric_limits<double>::infinity()), nullptr);
    ASSERT_NE(kovra_json_puthex(array, nullptr, "\x00\xAF", 2), nullptr);
    ASSERT_NE(kovra_json_putstring(array, nullptr, "\xFF\x01", 2), nullptr);
    kovra_json_free(array);
    EXPECT_EQ(print(object), "{\"array\":[\"x\\u0000y\",\"00af\",\"\xEF\xBF\xBD\\u0001\"],\"n\":2.5}");
    EXPECT_EQ(kovra_json_getstringlength(kovra_json_getarrayitem(array, 0)), 3);
    const char *name = nullptr;
    EXPECT_EQ(kovra_json_gettype(kovra_json_getobjectitem(object, 1, &name)), KOVRA_JSON_NUMBER);
    EXPECT_STREQ(name, "n");
    EXPECT_EQ(kovra_json_getobjectitem(object, 2, nullptr), nullptr);
    kovra_json_free(object);
}

TEST(UtilJson, LargeContainersAreLinear) {
    constexpr int32_t count = 200000;
    kovra_json *object = kovra_json_newobject();
    kovra_json *array = kovra_json_putarray(object, "array");
    for (int32_t i = 0; i < count; ++i) {
        ASSERT_NE(kovra_json_putnumber(object, ("m" + std::to_string(i)).c_str(), i), nullptr);
        ASSERT_NE(kovra_json_putnumber(array, nullptr, i), nullptr);
        // Looking up between additions is linear too.
        ASSERT_NE(kovra_json_getobjectvalue(object, "m0"), nullptr);
    }
    for (int32_t i = count - 1; i >= 0; --i) {
        double number = -1;
        ASSERT_EQ(kovra_json_getnumber(kovra_json_getobjectvalue(object, ("m" + std::to_string(i)).c_str()), &number),
                  1);
        ASSERT_EQ(number, i);
        ASSERT_EQ(kovra_json_getnumber(kovra_json_getarrayitem(array, i), &number), 1);
        ASSERT_EQ(number, i);
    }
    EXPECT_EQ(kovra_json_getobjectvalue(object, "m"), nullptr);
    ASSERT_NE(kovra_json_putnumber(object, "m7", -7), nullptr);
    double number = 0;
    kovra_json_getnumber(kovra_json_getobjectvalue(object, "m7"), &number);
    EXPECT_EQ(number, -7) << "the last of one name counts";
    kovra_json_free(object);
}

TEST(UtilJson, DepthIsBoundedByMemoryOnly) {
    constexpr size_t depth = 1000000;
    std::string text(depth, '[');
    text += std::string(depth, ']');
    kovra_json *value = parse(text);
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(print(value), text);
    kovra_json_free(value);
    int64_t offset = 0;
    EXPECT_EQ(parse(std::string(depth, '{'), &offset), nullptr);
    EXPECT_EQ(offset, 1);
}

} // namespace
