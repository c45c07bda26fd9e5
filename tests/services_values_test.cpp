// Functions of OCSP, time stamps and signing-certificate attributes that do more than fill and give components.

#include "tests/failing_memory.hpp"
#include "tests/notation.hpp"

namespace kovra::test {
namespace {

using Getter = kovra_asn1_value *(*)(const kovra_asn1_value *);

std::string octets_of(std::string_view text) {
    return noted(text, "services.txt");
}

Value value_of(uint32_t type, std::string_view text) {
    return decode(type, octets_of(text)).value;
}

std::string encoding_of(uint32_t type, const kovra_asn1_value *value) {
    return hex(encode(type, value).octets);
}

TEST(ServiceValues, DefaultsAreHeld) {
    const Value tbs = value_of(171, "{tbsreq}"), data = value_of(181, "{data}");
    const Value request = value_of(187, "30(02 01 01 {imp})"), token = value_of(192, "30({stamp})");
    EXPECT_EQ(encoding_of(2, kovra_ocsp_tbsrequest_getversion(tbs.get())), "020100");
    EXPECT_EQ(encoding_of(2, kovra_ocsp_responsedata_getversion(data.get())), "020100");
    EXPECT_EQ(encoding_of(1, kovra_tsp_timestampreq_getcertreq(request.get())), "010100");
    EXPECT_EQ(encoding_of(1, kovra_tsp_tstinfo_getordering(token.get())), "010100");
    const Value hash = value_of(4, "{oct}"), with_null = value_of(33, "30(06 09 60 86 48 01 65 03 04 02 01 05 00)");
    const Value built(195, kovra_ess_certidv2_new(nullptr, hash.get(), nullptr)), read = value_of(195, "30({oct})");
    for (const Value *id : {&built, &read}) {
        const kovra_asn1_value *algorithm = kovra_ess_certidv2_getcerthashalgo(id->get());
        EXPECT_EQ(encoding_of(33, algorithm), "300B0609608648016503040201");
        EXPECT_STREQ(kovra_asn1_oid_getstring(kovra_x509algoid_getalgo(algorithm)), "2.16.840.1.101.3.4.2.1");
        EXPECT_EQ(kovra_x509algoid_hasparam(algorithm), 0);
        EXPECT_EQ(encoding(*id), "300304014B");
    }
    // Parameters are held, and lost when it is written.
    const Value held(195, kovra_ess_certidv2_new(with_null.get(), hash.get(), nullptr));
    EXPECT_EQ(kovra_x509algoid_isnullparam(kovra_ess_certidv2_getcerthashalgo(held.get())), 1);
    EXPECT_EQ(encoding(held), "300304014B");
}

TEST(ServiceValues, ChoicesThatAreNotReadAsWritten) {
    const Value good(178, kovra_ocsp_certstatus_newgood()), unknown(178, kovra_ocsp_certstatus_newunknown());
    const Value revoked = value_of(178, "{revd}");
    const Value key = value_of(176, "A2(04 03 61 62 63)");
    EXPECT_EQ(encoding(good) + encoding(unknown), "80008200");
    // What these two are written as is not what is read, so copies are not to be had.
    for (const Value *value : {&revoked, &key}) {
        Errors ctx(kovra_err_ctx_new());
        EXPECT_EQ(kovra_asn1_dupobject(value->type(), value->get(), ctx.get()), nullptr);
        EXPECT_FALSE(Codes(ctx.get()).empty());
    }
    const Value id = value_of(168, "{id}"), time = value_of(22, "{time}"), none = value_of(180, "30()");
    EXPECT_EQ(kovra_ocsp_singleresponse_new(id.get(), revoked.get(), time.get(), nullptr, nullptr), nullptr);
    EXPECT_EQ(kovra_ocsp_responsedata_new(nullptr, key.get(), time.get(), none.get(), nullptr), nullptr);
    // A content of its own is written where the choice itself refuses to be read from one.
    EXPECT_EQ(hex(encode_content(176, key.get(), 5).octets), "616263");
    EXPECT_EQ(encode_content(178, revoked.get(), 22).codes, Codes({0x1020a, 0x10397}));
    EXPECT_EQ(kovra_asn1_content_length(178, revoked.get()), 22);
    EXPECT_EQ(decode_content(178, "", 1, 0).codes, Codes({0x1026d}));
}

TEST(ServiceValues, TheAuthorityIsCopiedAsAnInteger) {
    const Value number = value_of(2, "02 01 07"), policy = value_of(6, "{oid}"), imprint = value_of(186, "{imp}");
    const Value time = value_of(22, "{time}"), name = value_of(63, "{gname}"), digest = value_of(57, "{imp}");
    const Value yes = value_of(1, "01 01 FF"), accuracy = value_of(191, "30(02 01 01)"), exts = value_of(37, "{exts}");
    auto make = [&](const Value &print, const kovra_asn1_value *tsa) {
        return Value(192, kovra_tsp_tstinfo_new(number.get(), policy.get(), print.get(), number.get(), time.get(),
                                                accuracy.get(), yes.get(), number.get(), tsa, exts.get()));
    };
    EXPECT_FALSE(make(imprint, name.get()));
    const Value odd = make(imprint, number.get());
    ASSERT_TRUE(odd);
    EXPECT_EQ(encoding_of(2, kovra_tsp_tstinfo_gettsaname(odd.get())), "020107");
    EXPECT_EQ(kovra_asn1_length(192, odd.get()), -2);
    EXPECT_EQ(encode(192, odd.get()).codes, Codes({0x1020b}));
    // A DigestInfo is as good as a MessageImprint.
    const Value info = make(digest, nullptr);
    EXPECT_EQ(encoding(info), hex(octets_of("30({stamp} 30(02 01 01) 01 01 FF 02 01 07 A1(30(06 01 2A 04 00)))")));
    const std::pair<Getter, uint32_t> getters[] = {
        {kovra_tsp_tstinfo_getversion, 2},          {kovra_tsp_tstinfo_getpolicy, 6},
        {kovra_tsp_tstinfo_getmessageimprint, 186}, {kovra_tsp_tstinfo_getsn, 2},
        {kovra_tsp_tstinfo_getgentime, 22},         {kovra_tsp_tstinfo_getaccuracy, 191},
        {kovra_tsp_tstinfo_getordering, 1},         {kovra_tsp_tstinfo_getnonce, 2},
    };
    std::string parts;
    for (const auto &[getter, type] : getters)
        parts += encoding_of(type, getter(info.get()));
    EXPECT_EQ(parts, hex(octets_of("{stamp} 30(02 01 01) 01 01 FF 02 01 07")));
    EXPECT_EQ(encoding_of(37, kovra_tsp_tstinfo_getexts(info.get())), encoding(exts));
    EXPECT_EQ(kovra_tsp_tstinfo_gettsaname(info.get()), nullptr);
    fail_each_allocation([&] { return static_cast<bool>(make(imprint, nullptr)); });
}

TEST(ServiceValues, WhatIsSignedIsKept) {
    // BER that no encoder here writes, with a status that cannot be written.
    const std::string tbs = octets_of("30 80 A2 80 04 01 4B 00 00 {time} 30(30({id} {revd} {time})) 00 00");
    const Value read = decode(182, octets_of("30 80") + tbs + octets_of("{alg} {bits} 00 00")).value;
    const Value data = value_of(181, "{data}"), algorithm = value_of(33, "{alg}"), bits = value_of(3, "{bits}");
    const Value built(182, kovra_ocsp_basicocspresponse_new(data.get(), algorithm.get(), bits.get(), nullptr));
    const std::pair<const Value *, std::string> rows[] = {{&read, tbs}, {&built, octets_of("{data}")}};
    for (const auto &[response, expected] : rows) {
        int32_t length = -7;
        EXPECT_EQ(kovra_ocsp_basicocspresponse_gettbsocts(response->get(), nullptr, &length), 1);
        ASSERT_EQ(length, size_of(expected));
        std::string buffer(expected.size(), '\0');
        --length;
        EXPECT_EQ(kovra_ocsp_basicocspresponse_gettbsocts(response->get(), buffer.data(), &length), 0);
        EXPECT_EQ(length, size_of(expected));
        EXPECT_EQ(buffer, std::string(expected.size(), '\0'));
        EXPECT_EQ(kovra_ocsp_basicocspresponse_gettbsocts(response->get(), buffer.data(), &length), 1);
        EXPECT_EQ(hex(buffer), hex(expected));
        EXPECT_EQ(kovra_ocsp_basicocspresponse_gettbsocts(response->get(), buffer.data(), nullptr), 0);
        EXPECT_NE(encode(182, response->get()).octets.find(expected), std::string::npos);
    }
    int32_t length = 5;
    EXPECT_EQ(kovra_ocsp_basicocspresponse_gettbsocts(nullptr, nullptr, &length), 0);
    EXPECT_EQ(kovra_ocsp_basicocspresponse_gettbsocts(data.get(), nullptr, &length), 0);
    EXPECT_EQ(length, 5);
    // The copy of its parts is not to be had, that of the whole is.
    EXPECT_EQ(kovra_ocsp_basicocspresponse_new(kovra_ocsp_basicocspresponse_gettbs(read.get()), algorithm.get(),
                                               bits.get(), nullptr),
              nullptr);
    EXPECT_TRUE(Value(182, kovra_asn1_dupobject(182, read.get(), nullptr)));
}

} // namespace
} // namespace kovra::test
