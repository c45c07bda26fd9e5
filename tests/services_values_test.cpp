// Constructors and getters of OCSP, time stamps and signing-certificate attributes, over a table of their arguments.
#include <functional>

#include "tests/failing_memory.hpp"
#include "tests/notation.hpp"

namespace kovra::test {
namespace {

using Arguments = std::vector<const kovra_asn1_value *>;
using Getter = kovra_asn1_value *(*)(const kovra_asn1_value *);

// One shape for constructors of any number of arguments.
struct Constructor {
    template <class... A>
    Constructor(kovra_asn1_value *(*function)(A...) noexcept) // NOLINT: converts on purpose
        : count(sizeof...(A)), call([function](const Arguments &arguments) {
              return [&]<size_t... i>(std::index_sequence<i...>) {
                  return function(arguments[i]...);
              }
              (std::make_index_sequence<sizeof...(A)>{});
          }) {}
    size_t count;
    std::function<kovra_asn1_value *(const Arguments &)> call;
};

enum Need { required, optional };

struct Argument {
    uint32_t type;
    const char *encoding;
    Need need;
    Getter getter;
};

struct Case {
    const char *name;
    uint32_t type;
    Constructor make;
    std::vector<Argument> arguments;
    const char *full;  // with all arguments
    const char *least; // with the required ones only
};

// Values that several structures are made of.
Notation &notation() {
    static Notation names = [] {
        Notation made;
        made.read("services.txt");
        return made;
    }();
    return names;
}

const std::vector<Case> &cases() {
    const Argument version = {2, "02 01 02", required, nullptr};
    auto with = [](Argument argument, Need need, Getter getter) {
        argument.need = need;
        argument.getter = getter;
        return argument;
    };
    static const std::vector<Case> all = {
        {"certid",
         168,
         kovra_ocsp_certid_new,
         {{33, "@alg", required, kovra_ocsp_certid_gethashalgo},
          {4, "04 01 4E", required, kovra_ocsp_certid_getissuernamehash},
          {4, "04 01 4B", required, kovra_ocsp_certid_getissuerkeyhash},
          {2, "02 01 07", required, kovra_ocsp_certid_getsn}},
         "30{ @alg 04 01 4E 04 01 4B 02 01 07 }",
         "30{ @alg 04 01 4E 04 01 4B 02 01 07 }"},
        {"request",
         169,
         kovra_ocsp_request_new,
         {{168, "@id", required, kovra_ocsp_request_getcertid}, {37, "@exts", optional, kovra_ocsp_request_getexts}},
         "30{ @id A0{ @exts } }",
         "30{ @id }"},
        {"tbsrequest",
         171,
         kovra_ocsp_tbsrequest_new,
         {with(version, optional, kovra_ocsp_tbsrequest_getversion),
          {63, "@gname", optional, kovra_ocsp_tbsrequest_getname},
          {170, "30{ @ask @ask }", required, kovra_ocsp_tbsrequest_getreqlist},
          {37, "@exts", optional, kovra_ocsp_tbsrequest_getexts}},
         "30{ A0{ 02 01 02 } A1{ @gname } 30{ @ask @ask } A2{ @exts } }",
         "30{ 30{ @ask @ask } }"},
        {"signature",
         172,
         kovra_ocsp_signature_new,
         {{33, "@alg", required, kovra_ocsp_signature_getsignalgo},
          {3, "@bits", required, kovra_ocsp_signature_getsignature},
          {24, "30{ @cert @cert }", optional, kovra_ocsp_signature_getcerts}},
         "30{ @alg @bits A0{ 30{ @cert @cert } } }",
         "30{ @alg @bits }"},
        {"ocsprequest",
         173,
         kovra_ocsp_ocsprequest_new,
         {{171, "@tbsreq", required, kovra_ocsp_ocsprequest_gettbs},
          {172, "@sig", optional, kovra_ocsp_ocsprequest_getsignature}},
         "30{ @tbsreq A0{ @sig } }",
         "30{ @tbsreq }"},
        {"responsebytes",
         174,
         kovra_ocsp_responsebytes_new,
         {{6, "@oid", required, kovra_ocsp_responsebytes_gettype},
          {4, "@oct", required, kovra_ocsp_responsebytes_getresponse}},
         "30{ @oid @oct }",
         "30{ @oid @oct }"},
        {"ocspresponse",
         175,
         kovra_ocsp_ocspresponse_new,
         {{7, "0A 01 03", required, kovra_ocsp_ocspresponse_getstatus},
          {174, "30{ @oid @oct }", optional, kovra_ocsp_ocspresponse_getresponse}},
         "30{ 0A 01 03 A0{ 30{ @oid @oct } } }",
         "30{ 0A 01 03 }"},
        {"responderid name",
         176,
         kovra_ocsp_responderid_newname,
         {{32, "@name", required, kovra_ocsp_responderid_getname}},
         "A1{ @name }",
         "A1{ @name }"},
        {"responderid keyhash",
         176,
         kovra_ocsp_responderid_newkeyhash,
         {{4, "04 03 61 62 63", required, kovra_ocsp_responderid_getkeyhash}},
         "A2{ 61 62 63 }",
         "A2{ 61 62 63 }"},
        {"revokedinfo",
         177,
         kovra_ocsp_revokedinfo_new,
         {{22, "@time", required, kovra_ocsp_revokedinfo_gettime},
          {7, "0A 01 01", optional, kovra_ocsp_revokedinfo_getreason}},
         "30{ @time A0{ 0A 01 01 } }",
         "30{ @time }"},
        {"certstatus revoked",
         178,
         kovra_ocsp_certstatus_newrevoked,
         {{177, "30{ @time }", required, kovra_ocsp_certstatus_getrevoked}},
         "",
         ""},
        {"singleresponse",
         179,
         kovra_ocsp_singleresponse_new,
         {{168, "@id", required, kovra_ocsp_singleresponse_getcertid},
          {178, "82 00", required, kovra_ocsp_singleresponse_getcertstatus},
          {22, "@time", required, kovra_ocsp_singleresponse_getthisupdate},
          {22, "18{ \"20250102030405Z\" }", optional, kovra_ocsp_singleresponse_getnextupdate},
          {37, "@exts", optional, kovra_ocsp_singleresponse_getexts}},
         "30{ @id 82 00 @time A0{ 18{ \"20250102030405Z\" } } A0{ @exts } }",
         "30{ @id 82 00 @time }"},
        {"responsedata",
         181,
         kovra_ocsp_responsedata_new,
         {with(version, optional, kovra_ocsp_responsedata_getversion),
          {176, "A1{ @name }", required, kovra_ocsp_responsedata_getrespid},
          {22, "@time", required, kovra_ocsp_responsedata_getproducedat},
          {180, "30{ @one @one }", required, kovra_ocsp_responsedata_getresponses},
          {37, "@exts", optional, kovra_ocsp_responsedata_getexts}},
         "30{ A0{ 02 01 02 } A1{ @name } @time 30{ @one @one } A1{ @exts } }",
         "30{ A1{ @name } @time 30{ @one @one } }"},
        {"basicocspresponse",
         182,
         kovra_ocsp_basicocspresponse_new,
         {{181, "@data", required, kovra_ocsp_basicocspresponse_gettbs},
          {33, "@alg", required, kovra_ocsp_basicocspresponse_getsignalgo},
          {3, "@bits", required, kovra_ocsp_basicocspresponse_getsignature},
          {24, "30{ @cert }", optional, kovra_ocsp_basicocspresponse_getcerts}},
         "30{ @data @alg @bits A0{ 30{ @cert } } }",
         "30{ @data @alg @bits }"},
        {"crlid",
         183,
         kovra_ocsp_crlid_new,
         {{14, "16 01 61", optional, kovra_ocsp_crlid_geturl},
          {2, "02 01 07", optional, kovra_ocsp_crlid_getnum},
          {22, "@time", optional, kovra_ocsp_crlid_gettime}},
         "30{ A0{ 16 01 61 } A1{ 02 01 07 } A1{ @time } }",
         "30 00"},
        {"messageimprint",
         186,
         kovra_tsp_messageimprint_new,
         {{33, "@alg", required, kovra_tsp_messageimprint_gethashalgo},
          {4, "@oct", required, kovra_tsp_messageimprint_gethashedmessage}},
         "30{ @alg @oct }",
         "30{ @alg @oct }"},
        {"timestampreq",
         187,
         kovra_tsp_timestampreq_new,
         {with(version, required, kovra_tsp_timestampreq_getversion),
          {186, "@imp", required, kovra_tsp_timestampreq_getmessageimprint},
          {6, "@oid", optional, kovra_tsp_timestampreq_getpolicy},
          {2, "02 01 09", optional, kovra_tsp_timestampreq_getnonce},
          {1, "01 01 FF", optional, kovra_tsp_timestampreq_getcertreq},
          {37, "30{ 30{ 06 01 2A 04 00 } }", optional, kovra_tsp_timestampreq_getexts}},
         "30{ 02 01 02 @imp @oid 02 01 09 01 01 FF A0{ 30{ 06 01 2A 04 00 } } }",
         "30{ 02 01 02 @imp }"},
        {"pkistatusinfo",
         189,
         kovra_tsp_pkistatusinfo_new,
         {with(version, required, kovra_tsp_pkistatusinfo_getstatus),
          {188, "30{ 0C 01 61 }", optional, kovra_tsp_pkistatusinfo_getstatusstring},
          {3, "03 02 05 20", optional, kovra_tsp_pkistatusinfo_getfailinfo}},
         "30{ 02 01 02 30{ 0C 01 61 } 03 02 05 20 }",
         "30{ 02 01 02 }"},
        {"timestampresp",
         190,
         kovra_tsp_timestampresp_new,
         {{189, "30{ 02 01 00 }", required, kovra_tsp_timestampresp_getstatus},
          {111, "30{ @oid }", optional, kovra_tsp_timestampresp_gettoken}},
         "30{ 30{ 02 01 00 } 30{ @oid } }",
         "30{ 30{ 02 01 00 } }"},
        {"accuracy",
         191,
         kovra_tsp_accuracy_new,
         {{2, "02 01 01", optional, kovra_tsp_accuracy_getseconds},
          {2, "02 02 03 E8", optional, kovra_tsp_accuracy_getmillis},
          {2, "02 01 FF", optional, kovra_tsp_accuracy_getmicros}},
         "30{ 02 01 01 80 02 03 E8 81 01 FF }",
         "30 00"},
        {"issuerserial",
         193,
         kovra_ess_issuerserial_new,
         {{64, "30{ @gname }", required, kovra_ess_issuerserial_getissuer},
          {2, "02 01 07", required, kovra_ess_issuerserial_getsn}},
         "30{ 30{ @gname } 02 01 07 }",
         "30{ 30{ @gname } 02 01 07 }"},
        {"certid",
         194,
         kovra_ess_certid_new,
         {{4, "@oct", required, kovra_ess_certid_getcerthash},
          {193, "@issuer", optional, kovra_ess_certid_getissuersn}},
         "30{ @oct @issuer }",
         "30{ @oct }"},
        {"certidv2",
         195,
         kovra_ess_certidv2_new,
         {{33, "@alg", optional, kovra_ess_certidv2_getcerthashalgo},
          {4, "@oct", required, kovra_ess_certidv2_getcerthash},
          {193, "@issuer", optional, kovra_ess_certidv2_getissuersn}},
         "30{ @alg @oct @issuer }",
         "30{ @oct }"},
        {"signingcertificate",
         199,
         kovra_ess_signingcertificate_new,
         {{196, "30{ 30{ @oct } }", required, kovra_ess_signingcertificate_getcerts},
          {198, "30{ 30{ @oid } }", optional, kovra_ess_signingcertificate_getpolicies}},
         "30{ 30{ 30{ @oct } } 30{ 30{ @oid } } }",
         "30{ 30{ 30{ @oct } } }"},
        {"signingcertificatev2",
         200,
         kovra_ess_signingcertificatev2_new,
         {{197, "30{ 30{ @alg @oct } }", required, kovra_ess_signingcertificate_getcerts},
          {198, "30{ 30{ @oid } }", optional, kovra_ess_signingcertificate_getpolicies}},
         "30{ 30{ 30{ @alg @oct } } 30{ 30{ @oid } } }",
         "30{ 30{ 30{ @alg @oct } } }"},
    };
    return all;
}

// Certificates are elements of a list that has no type.
Value value_of(uint32_t type, const std::string &encoding) {
    Value value = decode(type, notation().octets_of(encoding)).value;
    EXPECT_TRUE(value) << type << ": " << encoding;
    if (type != KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY)
        return value;
    Value list(type, kovra_asn1_list_new());
    for (int32_t i = 0; i < kovra_asn1_list_getsize(value.get()); ++i) {
        kovra_asn1_value *element = nullptr, *certificate = nullptr;
        EXPECT_EQ(kovra_asn1_list_get(value.get(), i, &element), 1);
        EXPECT_EQ(kovra_asn1_any_toobject(element, KOVRA_ASN1_TYPE_CERTIFICATE, &certificate, nullptr), 1);
        EXPECT_EQ(kovra_asn1_list_put(list.get(), certificate), 1);
    }
    return list;
}

std::string encoding_of(uint32_t type, const kovra_asn1_value *value) {
    if (type != KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY)
        return hex(encode(type, value).octets);
    std::string certificates;
    auto *list = const_cast<kovra_asn1_value *>(value);
    for (int32_t i = 0; i < kovra_asn1_list_getsize(list); ++i) {
        kovra_asn1_value *element = nullptr;
        EXPECT_EQ(kovra_asn1_list_get(list, i, &element), 1);
        certificates += encode(KOVRA_ASN1_TYPE_CERTIFICATE, element).octets;
    }
    return hex("\x30" + std::string(1, '\x81') + static_cast<char>(certificates.size()) + certificates);
}

TEST(ServiceValues, ConstructorsCopyAndGettersGive) {
    const Value text = decoded(1, "01 01 FF");
    for (const Case &row : cases()) {
        SCOPED_TRACE(row.name);
        ASSERT_EQ(row.arguments.size(), row.make.count);
        std::vector<Value> values;
        Arguments all, least;
        for (const Argument &argument : row.arguments) {
            values.push_back(value_of(argument.type, argument.encoding));
            all.push_back(values.back().get());
            least.push_back(argument.need == required ? values.back().get() : nullptr);
        }
        Value full(row.type, row.make.call(all)), bare(row.type, row.make.call(least));
        ASSERT_TRUE(full && bare);
        for (size_t i = 0; i < all.size(); ++i) {
            const Argument &argument = row.arguments[i];
            SCOPED_TRACE("argument " + std::to_string(i));
            // Refused: nothing where something is needed, and something of another kind.
            Arguments changed = all;
            changed[i] = nullptr;
            EXPECT_EQ(static_cast<bool>(Value(row.type, row.make.call(changed))), argument.need == optional);
            changed[i] = argument.type == 1 ? values[0].get() : text.get();
            EXPECT_FALSE(Value(row.type, row.make.call(changed)));
            EXPECT_EQ(argument.getter(nullptr), nullptr);
            EXPECT_EQ(argument.getter(text.get()), nullptr);
        }
        // Independent of the arguments.
        std::vector<std::string> encodings;
        for (size_t i = 0; i < all.size(); ++i)
            encodings.push_back(encoding_of(row.arguments[i].type, all[i]));
        values.clear();
        for (size_t i = 0; i < all.size(); ++i) {
            const Argument &argument = row.arguments[i];
            EXPECT_EQ(encoding_of(argument.type, argument.getter(full.get())), encodings[i]);
        }
        EXPECT_EQ(encoding(full), hex(notation().octets_of(row.full)));
        EXPECT_EQ(encoding(bare), hex(notation().octets_of(row.least)));
    }
}

TEST(ServiceValues, EveryAllocationOfConstructorsMayFail) {
    for (const Case &row : cases()) {
        SCOPED_TRACE(row.name);
        std::vector<Value> values;
        Arguments all;
        for (const Argument &argument : row.arguments) {
            values.push_back(value_of(argument.type, argument.encoding));
            all.push_back(values.back().get());
        }
        fail_each_allocation([&] { return static_cast<bool>(Value(row.type, row.make.call(all))); });
    }
    fail_each_allocation([] { return static_cast<bool>(Value(178, kovra_ocsp_certstatus_newgood())); });
    fail_each_allocation([] { return static_cast<bool>(Value(178, kovra_ocsp_certstatus_newunknown())); });
}

TEST(ServiceValues, DefaultsAreHeld) {
    const Value tbs = value_of(171, "@tbsreq"), data = value_of(181, "@data");
    const Value request = value_of(187, "30{ 02 01 01 @imp }"), token = value_of(192, "30{ @stamp }");
    EXPECT_EQ(encoding_of(2, kovra_ocsp_tbsrequest_getversion(tbs.get())), "020100");
    EXPECT_EQ(encoding_of(2, kovra_ocsp_responsedata_getversion(data.get())), "020100");
    EXPECT_EQ(encoding_of(1, kovra_tsp_timestampreq_getcertreq(request.get())), "010100");
    EXPECT_EQ(encoding_of(1, kovra_tsp_tstinfo_getordering(token.get())), "010100");
    const Value hash = value_of(4, "@oct"), with_null = value_of(33, "30{ 06 09 60 86 48 01 65 03 04 02 01 05 00 }");
    const Value built(195, kovra_ess_certidv2_new(nullptr, hash.get(), nullptr)), read = value_of(195, "30{ @oct }");
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

TEST(ServiceValues, ChoicesTellTheirNumber) {
    const Value good(178, kovra_ocsp_certstatus_newgood()), unknown(178, kovra_ocsp_certstatus_newunknown());
    const Value revoked = value_of(178, "@revd"), name = value_of(176, "A1{ @name }");
    const Value key = value_of(176, "A2{ 04 03 61 62 63 }");
    EXPECT_EQ(kovra_ocsp_certstatus_gettype(good.get()), 0);
    EXPECT_EQ(kovra_ocsp_certstatus_gettype(revoked.get()), 1);
    EXPECT_EQ(kovra_ocsp_certstatus_gettype(unknown.get()), 2);
    EXPECT_EQ(kovra_ocsp_certstatus_getrevoked(good.get()), nullptr);
    EXPECT_EQ(kovra_ocsp_certstatus_getrevoked(unknown.get()), nullptr);
    EXPECT_EQ(encoding(good) + encoding(unknown), "80008200");
    EXPECT_EQ(kovra_ocsp_responderid_gettype(name.get()), 1);
    EXPECT_EQ(kovra_ocsp_responderid_gettype(key.get()), 2);
    EXPECT_EQ(kovra_ocsp_responderid_getkeyhash(name.get()), nullptr);
    EXPECT_EQ(kovra_ocsp_responderid_getname(key.get()), nullptr);
    for (const kovra_asn1_value *other : Arguments{nullptr, good.get(), name.get()}) {
        EXPECT_EQ(kovra_ocsp_responderid_gettype(other), other == name.get() ? 1 : 0);
        EXPECT_EQ(kovra_ocsp_certstatus_gettype(other), 0);
    }
    // What these two are written as is not what is read, so copies are not to be had.
    for (const Value *value : {&revoked, &key}) {
        Errors ctx(kovra_err_ctx_new());
        EXPECT_EQ(kovra_asn1_dupobject(value->type(), value->get(), ctx.get()), nullptr);
        EXPECT_FALSE(Codes(ctx.get()).empty());
    }
    const Value id = value_of(168, "@id"), time = value_of(22, "@time"), none = value_of(180, "30{ }");
    EXPECT_EQ(kovra_ocsp_singleresponse_new(id.get(), revoked.get(), time.get(), nullptr, nullptr), nullptr);
    EXPECT_EQ(kovra_ocsp_responsedata_new(nullptr, key.get(), time.get(), none.get(), nullptr), nullptr);
    // A content of its own is written where the choice itself refuses to be read from one.
    EXPECT_EQ(hex(encode_content(176, key.get(), 5).octets), "616263");
    EXPECT_EQ(encode_content(178, revoked.get(), 22).codes, Codes({0x1020a, 0x10397}));
    EXPECT_EQ(kovra_asn1_content_length(178, revoked.get()), 22);
    EXPECT_EQ(decode_content(178, "", 1, 0).codes, Codes({0x1026d}));
}

TEST(ServiceValues, TheAuthorityIsCopiedAsAnInteger) {
    const Value number = value_of(2, "02 01 07"), policy = value_of(6, "@oid"), imprint = value_of(186, "@imp");
    const Value time = value_of(22, "@time"), name = value_of(63, "@gname"), digest = value_of(57, "@imp");
    const Value yes = value_of(1, "01 01 FF"), accuracy = value_of(191, "30{ 02 01 01 }"), exts = value_of(37, "@exts");
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
    EXPECT_EQ(encoding(info),
              hex(notation().octets_of("30{ @stamp 30{ 02 01 01 } 01 01 FF 02 01 07 A1{ 30{ 06 01 2A 04 "
                                       "00 } } }")));
    const std::pair<Getter, uint32_t> getters[] = {
        {kovra_tsp_tstinfo_getversion, 2},          {kovra_tsp_tstinfo_getpolicy, 6},
        {kovra_tsp_tstinfo_getmessageimprint, 186}, {kovra_tsp_tstinfo_getsn, 2},
        {kovra_tsp_tstinfo_getgentime, 22},         {kovra_tsp_tstinfo_getaccuracy, 191},
        {kovra_tsp_tstinfo_getordering, 1},         {kovra_tsp_tstinfo_getnonce, 2},
    };
    std::string parts;
    for (const auto &[getter, type] : getters)
        parts += encoding_of(type, getter(info.get()));
    EXPECT_EQ(parts, hex(notation().octets_of("@stamp 30{ 02 01 01 } 01 01 FF 02 01 07")));
    EXPECT_EQ(encoding_of(37, kovra_tsp_tstinfo_getexts(info.get())), encoding(exts));
    EXPECT_EQ(kovra_tsp_tstinfo_gettsaname(info.get()), nullptr);
    fail_each_allocation([&] { return static_cast<bool>(make(imprint, nullptr)); });
}

TEST(ServiceValues, WhatIsSignedIsKept) {
    // BER that no encoder here writes, with a status that cannot be written.
    const std::string tbs = notation().octets_of("30 80 A2 80 04 01 4B 00 00 @time 30{ 30{ @id @revd @time } } 00 00");
    const Value read =
        decode(182, notation().octets_of("30 80") + tbs + notation().octets_of("@alg @bits 00 00")).value;
    const Value data = value_of(181, "@data"), algorithm = value_of(33, "@alg"), bits = value_of(3, "@bits");
    const Value built(182, kovra_ocsp_basicocspresponse_new(data.get(), algorithm.get(), bits.get(), nullptr));
    const std::pair<const Value *, std::string> rows[] = {{&read, tbs}, {&built, notation().octets_of("@data")}};
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
