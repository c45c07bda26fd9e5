// Messages and their parts where the tables of encodings and of parts do not tell all.
#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {

TEST(CmsStructures, IrregularOnes) {
    // A DigestedData is made of a DigestedData, and then of no use.
    std::vector<Value> parts;
    for (auto [type, text] : {std::pair(2u, "02 01 03"),
                              {33u, "30 03 06 01 2A"},
                              {111u, "30 03 06 01 2A"},
                              {121u, "30 12 02 01 00 30 03 06 01 2A 30 03 06 01 2A 04 03 01 02 03"},
                              {4u, "04 02 AB CD"}})
        parts.push_back(decoded(type, text));
    auto make = [&](size_t content) {
        return Value(121,
                     kovra_pkcs7digesteddata_new(parts[0].get(), parts[1].get(), parts[content].get(), parts[4].get()));
    };
    EXPECT_FALSE(make(2));
    Value digested = make(3);
    EXPECT_EQ(hex(encode(121, kovra_pkcs7digesteddata_getcontentinfo(digested.get())).octets), encoding(parts[3]));
    EXPECT_EQ(encode(121, digested.get()).codes, Codes({0x1020b}));
    EXPECT_EQ(kovra_asn1_dupobject(121, digested.get(), nullptr), nullptr);

    // A PasswordRecipientInfo with a key derivation algorithm becomes no RecipientInfo: that is written under an
    // implicit tag and read under an explicit one.
    for (const kovra_asn1_value *derivation : {static_cast<kovra_asn1_value *>(nullptr), parts[1].get()}) {
        const Value info(160,
                         kovra_cmspwdrecipientinfo_new(parts[0].get(), derivation, parts[1].get(), parts[4].get()));
        EXPECT_EQ(encoding(info),
                  derivation != nullptr ? "3011020103A00306012A300306012A0402ABCD" : "300C020103300306012A0402ABCD");
        EXPECT_EQ(static_cast<bool>(Value(162, kovra_cmsrecipientinfo_newpwri(info.get()))), derivation == nullptr);
    }

    // The two formats of others differ in their codes only.
    const Value other_certificate = decoded(127, "30 05 06 01 2A 05 00");
    EXPECT_EQ(kovra_asn1_content_length(128, other_certificate.get()), 5);
    EXPECT_EQ(encoding(Value(130, kovra_cmsrevinfochoice_newotherrevinfo(other_certificate.get()))), "A10506012A0500");

    // So do a KeySpecificInfo and a ResponseBytes.
    for (const auto &[type, other] : {std::pair(166u, 174u), {174u, 166u}}) {
        const Value value = decoded(type, "30 06 06 01 2A 04 01 4B");
        EXPECT_EQ(kovra_asn1_length(other, value.get()), 8);
        EXPECT_EQ(hex(encode(other, value.get()).octets), encoding(value));
        const Value info(167, kovra_dhotherinfo_new(value.get(), nullptr, parts[4].get()));
        EXPECT_EQ(encoding(info), "300E300606012A04014BA2040402ABCD");
    }

    // Any content is PKCS #7, only an OCTET STRING is CMS; lengths do not tell.
    Value any_content = decoded(133, "30 10 02 01 01 31 00 30 07 06 01 2A A0 02 30 00 31 00");
    EXPECT_EQ(kovra_asn1_length(134, any_content.get()), 18);
    EXPECT_EQ(encode(134, any_content.get()).codes, Codes({0x10355}));
    EXPECT_EQ(encode_content(134, any_content.get(), 16).codes, Codes({0x10355}));
    EXPECT_EQ(encode(133, any_content.get()).result, 1);

    // An element that lies about its length is found out when it is written; each alternative has its code.
    for (int n : {0, 1, 2}) {
        Value choice = decode(129, std::string(1, static_cast<char>(0xA0 + n)) + octets("02 05 00")).value;
        kovra_asn1_value *lie = kovra_asn1_any_new(0, 1, 4, 5, "abc", 3);
        EXPECT_EQ(kovra_asn1_list_put(kovra_cmscertchoice_getx509pubkeycert(choice.get()), lie), 1);
        EXPECT_EQ(encode(129, choice.get()).codes, Codes({0x10235, 0x10235, 0x10343 + 2 * n}));
    }

    // A set of many is built when it is asked for; what is wrong with the last is told as of the only one.
    std::string set,
        certificate = octets("30 42 30 37 02 01 01 30 03 06 01 2A 30 00 30 1E 17 0D 3132303130313030303030305A"
                             "17 0D 3132303130313030303030305A 30 00 30 09 30 03 06 01 2A 03 02 00 AB"
                             "30 03 06 01 2A 03 02 00 AB");
    for (int i = 0; i < 100; ++i)
        set += certificate;
    auto of_length = [](const std::string &content) {
        Stream header = memory_stream();
        kovra_asn1_encode_length(header.get(), size_of(content), nullptr, nullptr);
        return "1" + taken(header) + content;
    };
    Decoded many = decode(131, of_length(set));
    kovra_asn1_value *last = nullptr;
    ASSERT_EQ(kovra_asn1_list_get(many.value.get(), 99, &last), 1);
    EXPECT_EQ(hex(encode(39, kovra_cmscertchoice_getx509pubkeycert(last)).octets), hex(certificate));
    EXPECT_EQ(encoding(many.value), hex(of_length(set)));
    EXPECT_EQ(decode(131, of_length(set + octets("A1 00"))).codes, Codes({0x1020c, 0x10346}));
    EXPECT_EQ(decode(131, of_length(set + octets("A4 00"))).codes, Codes({0x1020a}));
}

} // namespace
} // namespace kovra::test
