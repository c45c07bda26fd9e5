// Constructors and types of messages, keys and services that do otherwise than their tables say, as is documented.
#include "tests/failing_memory.hpp"
#include "tests/notation.hpp"

namespace kovra::test {
namespace {

Value value_of(uint32_t type, std::string_view text) {
    return decode(type, noted(text, "services.txt")).value;
}
std::string encoding_of(uint32_t type, const kovra_asn1_value *value) {
    return hex(encode(type, value).octets);
}

TEST(Irregular, WhatCouldNotBeEncodedIsNotMade) {
    const Value zero = decoded(2, "02 01 00"), first = decoded(2, "02 01 01"), second = decoded(2, "02 01 02");
    const Value others = decoded(145, "30 0B 30 09 02 01 07 02 01 08 02 01 09"), empty(145, kovra_asn1_list_new());
    const auto key = [&](const Value &version, const Value &other_primes) {
        const kovra_asn1_value *n = first.get();
        return Value(99, kovra_pkcs1rsaprivatekey_new(version.get(), n, n, n, n, n, n, n, n, other_primes.get()));
    };
    EXPECT_TRUE(key(zero, Value()) && key(first, others));
    EXPECT_FALSE(key(zero, others) || key(first, Value()) || key(second, others) || key(first, empty));
    const Value salt_of_7 = decoded(4, "04 07 01020304050607");
    EXPECT_EQ(kovra_pkcs5pbeparam_new(salt_of_7.get(), first.get()), nullptr);
}

TEST(Irregular, DigestedDataIsMadeOfDigestedData) {
    const Value number = decoded(2, "02 01 03"), algorithm = decoded(33, "30 03 06 01 2A"),
                digest = decoded(4, "04 00"), info = decoded(111, "30 03 06 01 2A"),
                inner = decoded(121, "30 12 02 01 00 30 03 06 01 2A 30 03 06 01 2A 04 03 01 02 03");
    const auto make = [&](const Value &content) {
        return Value(121, kovra_pkcs7digesteddata_new(number.get(), algorithm.get(), content.get(), digest.get()));
    };
    EXPECT_FALSE(make(info));
    const Value made = make(inner);
    EXPECT_EQ(encoding_of(121, kovra_pkcs7digesteddata_getcontentinfo(made.get())), encoding(inner));
    EXPECT_EQ(encode(121, made.get()).codes, Codes({0x1020b}));
    EXPECT_EQ(kovra_asn1_dupobject(121, made.get(), nullptr), nullptr);
    // A PasswordRecipientInfo with a key derivation algorithm becomes no RecipientInfo: that is written under an
    // implicit tag and read under an explicit one.
    for (const Value *derivation : std::initializer_list<const Value *>{&algorithm, nullptr}) {
        const Value password(160, kovra_cmspwdrecipientinfo_new(number.get(), derivation ? derivation->get() : nullptr,
                                                                algorithm.get(), digest.get()));
        EXPECT_EQ(encoding(password), derivation ? "300F020103A00306012A300306012A0400" : "300A020103300306012A0400");
        EXPECT_EQ(static_cast<bool>(Value(162, kovra_cmsrecipientinfo_newpwri(password.get()))), !derivation);
    }
}

// Any content is PKCS #7, only an OCTET STRING is CMS; lengths do not tell. And an element that lies about its length
// is found out when it is written; each alternative has its code.
TEST(Irregular, FoundOutWhenWritten) {
    const Value any_content = decoded(133, "30 10 02 01 01 31 00 30 07 06 01 2A A0 02 30 00 31 00");
    EXPECT_EQ(kovra_asn1_length(134, any_content.get()), 18);
    EXPECT_EQ(encode(134, any_content.get()).codes, Codes({0x10355}));
    EXPECT_EQ(encode(133, any_content.get()).result, 1);
    for (int n : {0, 1, 2}) {
        const Value choice = decode(129, std::string(1, static_cast<char>(0xA0 + n)) + octets("02 05 00")).value;
        kovra_asn1_value *lie = kovra_asn1_any_new(0, 1, 4, 5, "abc", 3);
        EXPECT_EQ(kovra_asn1_list_put(kovra_cmscertchoice_getx509pubkeycert(choice.get()), lie), 1);
        EXPECT_EQ(encode(129, choice.get()).codes, Codes({0x10235, 0x10235, 0x10343 + 2 * n}));
    }
}

// They differ in their codes only.
TEST(Irregular, TypesOfOneStructure) {
    for (const auto &[type, other, text] : {std::tuple(127u, 128u, "30 05 06 01 2A 05 00"),
                                            {166u, 174u, "30 06 06 01 2A 04 01 4B"},
                                            {57u, 186u, "30 08 30 03 06 01 2A 04 01 4B"},
                                            {33u, 68u, "30 05 06 01 2A 05 00"}}) {
        EXPECT_EQ(hex(encode(other, decoded(type, text).get()).octets), hex(octets(text))) << type;
        EXPECT_EQ(hex(encode(type, decoded(other, text).get()).octets), hex(octets(text))) << other;
    }
    const Value bytes = decoded(174, "30 06 06 01 2A 04 01 4B"), key = decoded(4, "04 02 AB CD");
    EXPECT_EQ(encoding(Value(167, kovra_dhotherinfo_new(bytes.get(), nullptr, key.get()))),
              "300E300606012A04014BA2040402ABCD");
}

TEST(Irregular, AuthorityOfATimeStampIsCopiedAsAnInteger) {
    const Value number = value_of(2, "02 01 07"), policy = value_of(6, "{oid}"), imprint = value_of(186, "{imp}");
    const Value time = value_of(22, "{time}"), name = value_of(63, "{gname}"), digest = value_of(57, "{imp}");
    const Value yes = value_of(1, "01 01 FF"), accuracy = value_of(191, "30(02 01 01)"), exts = value_of(37, "{exts}");
    const auto make = [&](const Value &print, const kovra_asn1_value *tsa) {
        return Value(192, kovra_tsp_tstinfo_new(number.get(), policy.get(), print.get(), number.get(), time.get(),
                                                accuracy.get(), yes.get(), number.get(), tsa, exts.get()));
    };
    EXPECT_FALSE(make(imprint, name.get()));
    const Value odd = make(imprint, number.get());
    EXPECT_EQ(encoding_of(2, kovra_tsp_tstinfo_gettsaname(odd.get())), "020107");
    EXPECT_EQ(kovra_asn1_length(192, odd.get()), -2);
    EXPECT_EQ(encode(192, odd.get()).codes, Codes({0x1020b}));
    // A DigestInfo is as good as a MessageImprint.
    const Value info = make(digest, nullptr);
    EXPECT_EQ(
        encoding(info),
        hex(noted("30(02 01 07 {oid} {imp} 02 01 07 {time} 30(02 01 01) 01 01 FF 02 01 07 A1(30(06 01 2A 04 00)))",
                  "services.txt")));
    fail_each_allocation([&] { return static_cast<bool>(make(imprint, nullptr)); });
}

TEST(Irregular, DefaultsOfCertificateIds) {
    const Value hash = value_of(4, "{oct}"), with_null = value_of(33, "30(06 09 60 86 48 01 65 03 04 02 01 05 00)");
    const Value built(195, kovra_ess_certidv2_new(nullptr, hash.get(), nullptr)), read = value_of(195, "30({oct})");
    for (const Value *id : {&built, &read}) {
        EXPECT_EQ(encoding_of(33, kovra_ess_certidv2_getcerthashalgo(id->get())), "300B0609608648016503040201");
        EXPECT_EQ(encoding(*id), "300304014B");
    }
    // Parameters are held, and lost when it is written.
    const Value held(195, kovra_ess_certidv2_new(with_null.get(), hash.get(), nullptr));
    EXPECT_EQ(kovra_x509algoid_isnullparam(kovra_ess_certidv2_getcerthashalgo(held.get())), 1);
    EXPECT_EQ(encoding(held), "300304014B");
}

// What these are written as is not what is read, so that there are no copies; what is signed is kept as it is.
TEST(Irregular, AnswersAboutCertificates) {
    const Value revoked = value_of(178, "{revd}"), key = value_of(176, "A2(04 03 61 62 63)"),
                id = value_of(168, "{id}");
    const Value time = value_of(22, "{time}"), none = value_of(180, "30()");
    EXPECT_EQ(kovra_ocsp_singleresponse_new(id.get(), revoked.get(), time.get(), nullptr, nullptr), nullptr);
    EXPECT_EQ(kovra_ocsp_responsedata_new(nullptr, key.get(), time.get(), none.get(), nullptr), nullptr);
    EXPECT_EQ(hex(encode_content(176, key.get(), 5).octets), "616263");
    EXPECT_EQ(encode_content(178, revoked.get(), 22).codes, Codes({0x1020a, 0x10397}));
    const std::string tbs = noted("30 80 A2 80 04 01 4B 00 00 {time} 30(30({id} {revd} {time})) 00 00", "services.txt");
    const Value read = decode(182, octets("30 80") + tbs + noted("{alg} {bits} 00 00", "services.txt")).value;
    int32_t length = -7;
    EXPECT_EQ(kovra_ocsp_basicocspresponse_gettbsocts(read.get(), nullptr, &length), 1);
    ASSERT_EQ(length, size_of(tbs));
    std::string buffer(tbs.size(), '\0');
    --length;
    EXPECT_EQ(kovra_ocsp_basicocspresponse_gettbsocts(read.get(), buffer.data(), &length), 0) << "one octet short";
    EXPECT_EQ(length, size_of(tbs));
    EXPECT_EQ(kovra_ocsp_basicocspresponse_gettbsocts(read.get(), buffer.data(), &length), 1);
    EXPECT_EQ(hex(buffer), hex(tbs));
    EXPECT_TRUE(Value(182, kovra_asn1_dupobject(182, read.get(), nullptr)));
}

} // namespace
} // namespace kovra::test
