// ANY and the lists of it.
#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {

Value any(uint32_t tag_class, int32_t form, int32_t tag, int32_t length, std::string_view hex) {
    std::string content = octets(hex);
    return Value(23, kovra_asn1_any_new(tag_class, form, tag, length, content.data(), size_of(content)));
}

std::string identifier(uint32_t tag_class, int32_t form, int32_t tag) {
    Stream stream = memory_stream();
    EXPECT_EQ(kovra_asn1_encode_identifier(stream.get(), tag_class, form, tag, nullptr, nullptr), 1);
    return taken(stream);
}

// Those of other classes are for the harness.
TEST(Any, TakesTheUniversalTagsItKnows) {
    std::string accepted[2]; // by form
    for (int32_t form : {0, 1})
        for (int32_t tag = 0; tag <= 40; ++tag) {
            const Decoded found = decode(23, identifier(0, form, tag) + '\0');
            accepted[form] += found.result == 1 ? '+' : '.';
            EXPECT_EQ(found.codes, found.result == 1 ? Codes() : Codes({0x10201}));
        }
    //                       0         1         2         3         4
    EXPECT_EQ(accepted[1], "++++++++.++.++....+++++++++++.+..........");
    EXPECT_EQ(accepted[0], "...++..++..++...+++++++++++++.+..........");
}

TEST(Any, New) {
    EXPECT_EQ(encoding(any(0, 1, 5, 0, "")), "0500");
    EXPECT_EQ(kovra_asn1_length(23, any(0, 1, 5, 0, "").get()), 2);
    EXPECT_EQ(encoding(any(0x80, 0, 200, 2, "05 00")), "BF8148020500");
    EXPECT_EQ(encoding(Value(23, kovra_asn1_any_new(0, 1, 5, 0, nullptr, 0))), "0500");
    EXPECT_EQ(encoding(any(0, 0, 16, -1, "05 00 00")), "3080050000");
    EXPECT_EQ(encoding(any(0, 0, 16, -1, "00 00")), "30800000");
    EXPECT_EQ(kovra_asn1_length(23, any(0, 0, 16, -1, "00 00").get()), -1);
    EXPECT_EQ(encoding(any(0, 0, 1, 0, "")), "2100") << "what a decoder refuses can be made";
    EXPECT_FALSE(any(0, 0, 16, -1, "05 00 01"));
    EXPECT_FALSE(any(0, 0, 16, -1, "05 01 00"));
    EXPECT_FALSE(any(0, 0, 16, -1, "00"));
    EXPECT_FALSE(any(0, 0, 16, -1, ""));
    EXPECT_FALSE(any(0x20, 1, 5, 0, ""));
    EXPECT_FALSE(any(0, 1, -1, 0, ""));
    EXPECT_FALSE(any(0, 1, 5, -2, ""));
    EXPECT_EQ(kovra_asn1_any_new(0, 1, 4, 0, "x", -1), nullptr);
    EXPECT_EQ(kovra_asn1_any_new(0, 1, 4, 1, nullptr, 1), nullptr);
    // A length that is not the content's shows when the element is written.
    for (int32_t length : {0, 1, 3, 2147483647}) {
        Value wrong = any(0x80, 1, 0, length, "05 00");
        ASSERT_TRUE(wrong);
        EXPECT_EQ(kovra_asn1_any_getcontentlength(wrong.get()), length);
        EXPECT_EQ(encode(23, wrong.get()).codes, Codes({0x10235}));
        EXPECT_EQ(encode_content(23, wrong.get(), length).codes, Codes({0x10004}));
    }
    EXPECT_EQ(kovra_asn1_length(23, any(0, 1, 4, 0x7fffffff, "").get()), -2);
    EXPECT_EQ(kovra_asn1_length(23, any(0, 1, 4, 0x7fffffff - 6, "").get()), -2) << "a sum of 0x7fffffff";
    EXPECT_EQ(kovra_asn1_length(23, any(0, 1, 4, 0x7fffffff - 7, "").get()), 0x7ffffffe);
    Value element = any(0x80, 1, 0, 2, "05 00");
    EXPECT_EQ(encode_content(23, element.get(), 2).octets, octets("05 00"));
    for (int32_t length : {0, 1, 3, -1, -2})
        EXPECT_EQ(encode_content(23, element.get(), length).codes, Codes({0x10001}));
    EXPECT_EQ(encode_content(23, any(0, 0, 16, -1, "05 00 00 00").get(), -1).octets, octets("05 00 00 00"));
}

TEST(Any, EndOfContentsIsAnElementOfItsOwn) {
    Value marker = decoded(23, "00 00"), null = decoded(23, "05 00");
    EXPECT_EQ(kovra_asn1_any_iseoc(marker.get()), 1);
    EXPECT_EQ(kovra_asn1_any_iseoc(null.get()), 0);
    int32_t form = -7, tag = -7;
    EXPECT_EQ(kovra_asn1_any_isprimitive(marker.get(), &form), 1);
    EXPECT_EQ(kovra_asn1_any_gettagnumber(marker.get(), &tag), 1);
    EXPECT_EQ(form, 1);
    EXPECT_EQ(tag, 0);
    EXPECT_EQ(kovra_asn1_any_getcontentlength(marker.get()), 0);
    EXPECT_EQ(kovra_asn1_length(23, marker.get()), 2);
    EXPECT_EQ(encode_content(23, marker.get(), 0).result, 1);
    EXPECT_EQ(kovra_asn1_any_isprimitive(marker.get(), nullptr), 0);
    EXPECT_EQ(kovra_asn1_any_gettagnumber(marker.get(), nullptr), 0);
    for (auto *get : {kovra_asn1_any_getobject, kovra_asn1_any_contenttoobject}) {
        Errors ctx(kovra_err_ctx_new());
        kovra_asn1_value *out = unwritten();
        EXPECT_EQ(get(marker.get(), 5, &out, ctx.get()), 0);
        EXPECT_EQ(Codes(ctx.get()), Codes({0x10109}));
        EXPECT_EQ(out, nullptr);
    }
}

TEST(Any, IsNoObjectWhenItCannotBeWritten) {
    Errors ctx(kovra_err_ctx_new());
    kovra_asn1_value *out = nullptr;
    EXPECT_EQ(kovra_asn1_any_toobject(any(0, 1, 2, 2, "05").get(), 2, &out, ctx.get()), 0);
    EXPECT_EQ(Codes(ctx.get()), Codes({0x10235, 0x10235}));
    kovra_err_ctx_clear(ctx.get());
    EXPECT_EQ(kovra_asn1_any_toobject(any(0, 0, 16, -1, "05 00 00 00 00 00").get(), 24, &out, ctx.get()), 0);
    EXPECT_EQ(Codes(ctx.get()), Codes({0x1027f}));
}

TEST(Any, OfValues) {
    for (auto [type, text] : {std::pair(9u, "0C 01 41"), {24u, "30 02 05 00"}, {90u, "0D 01 05"}, {23u, "A0 80 00 00"}})
        EXPECT_EQ(encoding(Value(23, kovra_asn1_objecttoany(type, decoded(type, text).get()))), hex(octets(text)));
    EXPECT_EQ(encoding(Value(23, kovra_asn1_objecttoany(5, nullptr))), "0500");
    EXPECT_EQ(kovra_asn1_objecttoany(0, nullptr), nullptr);
    EXPECT_EQ(kovra_asn1_objecttoany(208, decoded(2, "02 01 05").get()), nullptr);
    EXPECT_EQ(kovra_asn1_objecttoany(23, any(0, 0, 1, 0, "").get()), nullptr) << "a refused form";
}

TEST(List, KeepsWhatIsPutInOrder) {
    constexpr int32_t count = 10000;
    kovra_asn1_value *numbers = kovra_asn1_list_new(), *element = nullptr;
    for (int32_t i = 0; i < count; ++i) {
        EXPECT_EQ(kovra_asn1_list_getsize(numbers), i);
        ASSERT_EQ(kovra_asn1_list_put(numbers, kovra_asn1_integer_value(i)), 1);
    }
    for (int32_t i = 0, number = -1; i < count; ++i) {
        ASSERT_EQ(kovra_asn1_list_get(numbers, i, &element), 1);
        ASSERT_EQ(kovra_asn1_integer_getlong(element, &number), 1);
        ASSERT_EQ(number, i);
    }
    for (const int32_t outside : {-1, count, INT32_MAX, INT32_MIN}) {
        element = unwritten();
        EXPECT_EQ(kovra_asn1_list_get(numbers, outside, &element), 0);
        EXPECT_EQ(element, nullptr);
    }
    EXPECT_EQ(kovra_asn1_list_get(numbers, 0, nullptr), 0);
    kovra_asn1_list_free(numbers, 2);
}

TEST(List, OfAnyIsEncodedInOrder) {
    for (auto [type, tag] : {std::pair(24u, "30"), {25u, "30"}, {26u, "31"}, {27u, "31"}}) {
        Value list(type, kovra_asn1_list_new());
        EXPECT_EQ(encoding(list), tag + std::string("00")) << "empty ones are written";
        for (const char *text : {"02 01 05", "02 01 03", "04 00"})
            EXPECT_EQ(kovra_asn1_list_put(list.get(), decoded(23, text).release()), 1);
        EXPECT_EQ(encoding(list), tag + std::string("080201050201030400"));
        EXPECT_EQ(encode_content(type, list.get(), -1).octets, octets("02 01 05 02 01 03 04 00 00 00"));
        EXPECT_EQ(encode_content(type, list.get(), -2).codes, Codes({0x10001}));
        kovra_asn1_value *element = nullptr;
        EXPECT_EQ(kovra_asn1_list_get(list.get(), 1, &element), 1);
        kovra_asn1_value_free(23, element); // borrowed: nothing happens
        EXPECT_EQ(encoding(Value(23, kovra_asn1_dupobject(23, element, nullptr))), "020103");
        // An element of another length than it says.
        EXPECT_EQ(kovra_asn1_list_put(list.get(), any(0, 1, 4, 1, "").release()), 1);
        EXPECT_EQ(encode(type, list.get()).codes, Codes({0x10235, 0x10235}));
        EXPECT_EQ(kovra_asn1_list_put(list.get(), any(0, 1, 4, 0x7fffffff - 7, "").release()), 1);
        EXPECT_EQ(kovra_asn1_length(type, list.get()), -2) << "the sum is too large";
        EXPECT_EQ(encode(type, list.get()).codes, Codes({0x1020b}));
    }
    for (uint32_t type : {24u, 25u, 26u, 27u}) {
        EXPECT_EQ(decode_content(type, octets("05 00"), 1, 2).codes, Codes({0x1026a}));
        EXPECT_EQ(decode_content(type, octets("05 00"), 0, -2).codes, Codes({0x10203}));
        EXPECT_EQ(decode_content(type, octets("05 00 00 00"), 0, -1).read, 4);
        Value list = decode_content(type, octets("05 00 30 80 00 00"), 0, 6).value;
        EXPECT_EQ(kovra_asn1_list_getsize(list.get()), 2);
        EXPECT_EQ(kovra_asn1_length(type, list.get()), -1);
    }
}

} // namespace
} // namespace kovra::test
