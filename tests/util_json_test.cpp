#include <gtest/gtest.h>

#include <bit>
#include <cmath>
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

// Of all magnitudes.
TEST(UtilJson, NumbersAreReadBackTheSame) {
    std::mt19937_64 random;
    const Json array(kovra_json_newarray());
    std::vector<double> numbers;
    for (int i = 0; i < 2000; ++i) {
        const auto bits = std::bit_cast<double>(random());
        numbers.push_back(std::isfinite(bits) && i % 2 == 0 ? bits : static_cast<int32_t>(random()));
        ASSERT_NE(kovra_json_putnumber(array.get(), nullptr, numbers.back()), nullptr);
    }
    for (const int32_t indent : {0, 1, 4}) {
        const Json again = parse(print(array, indent));
        for (size_t i = 0; i < numbers.size(); ++i) {
            double found = 0;
            kovra_json_getnumber(kovra_json_getarrayitem(again.get(), static_cast<int32_t>(i)), &found);
            ASSERT_EQ(std::bit_cast<uint64_t>(found), std::bit_cast<uint64_t>(numbers[i])) << numbers[i];
        }
    }
}

// Both indexes grow with the additions, whichever was asked for first.
TEST(UtilJson, MembersAreFoundByNameAndPlace) {
    const Json object(kovra_json_newobject());
    const auto found = [&](const kovra_json *value) {
        double number = -1;
        return kovra_json_getnumber(value, &number) == 1 ? number : -1;
    };
    const auto name_of = [](int32_t i) { return "m" + std::to_string(i); };
    for (int32_t i = 0; i < 1000; ++i) {
        ASSERT_NE(kovra_json_putnumber(object.get(), name_of(i).c_str(), i), nullptr);
        ASSERT_EQ(found(i % 3 == 0 ? kovra_json_getobjectitem(object.get(), i, nullptr)
                                   : kovra_json_getobjectvalue(object.get(), name_of(i).c_str())),
                  i);
    }
    for (int32_t i = 999; i >= 0; --i)
        ASSERT_EQ(found(kovra_json_getobjectvalue(object.get(), name_of(i).c_str())), i);
    EXPECT_EQ(kovra_json_getobjectvalue(object.get(), "m"), nullptr);
    ASSERT_NE(kovra_json_putnumber(object.get(), "m7", -7), nullptr);
    EXPECT_EQ(found(kovra_json_getobjectvalue(object.get(), "m7")), -7) << "the last of one name counts";
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
