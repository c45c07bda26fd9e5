// Constructors and getters of OCSP, time stamps and signing-certificate attributes, over a table of their arguments.
#include <algorithm>
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

struct Argument {
    uint32_t type;
    bool is_optional;
    std::string encoding;
};

struct Case {
    const char *name;
    uint32_t type;
    Constructor make;
    std::vector<Getter> getters; // one for each argument
    std::vector<Argument> arguments = {};
    std::string full = {}, least = {}; // written with all arguments, and with the required ones
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
    // clang-format off
    static std::vector<Case> all = {
        {"certid", 168, kovra_ocsp_certid_new, {kovra_ocsp_certid_gethashalgo, kovra_ocsp_certid_getissuernamehash,
         kovra_ocsp_certid_getissuerkeyhash, kovra_ocsp_certid_getsn}},
        {"request", 169, kovra_ocsp_request_new, {kovra_ocsp_request_getcertid, kovra_ocsp_request_getexts}},
        {"tbsrequest", 171, kovra_ocsp_tbsrequest_new, {kovra_ocsp_tbsrequest_getversion, kovra_ocsp_tbsrequest_getname,
         kovra_ocsp_tbsrequest_getreqlist, kovra_ocsp_tbsrequest_getexts}},
        {"signature", 172, kovra_ocsp_signature_new, {kovra_ocsp_signature_getsignalgo,
         kovra_ocsp_signature_getsignature, kovra_ocsp_signature_getcerts}},
        {"ocsprequest", 173, kovra_ocsp_ocsprequest_new, {kovra_ocsp_ocsprequest_gettbs,
         kovra_ocsp_ocsprequest_getsignature}},
        {"responsebytes", 174, kovra_ocsp_responsebytes_new, {kovra_ocsp_responsebytes_gettype,
         kovra_ocsp_responsebytes_getresponse}},
        {"ocspresponse", 175, kovra_ocsp_ocspresponse_new, {kovra_ocsp_ocspresponse_getstatus,
         kovra_ocsp_ocspresponse_getresponse}},
        {"responderid_name", 176, kovra_ocsp_responderid_newname, {kovra_ocsp_responderid_getname}},
        {"responderid_keyhash", 176, kovra_ocsp_responderid_newkeyhash, {kovra_ocsp_responderid_getkeyhash}},
        {"revokedinfo", 177, kovra_ocsp_revokedinfo_new, {kovra_ocsp_revokedinfo_gettime,
         kovra_ocsp_revokedinfo_getreason}},
        {"certstatus_revoked", 178, kovra_ocsp_certstatus_newrevoked, {kovra_ocsp_certstatus_getrevoked}},
        {"singleresponse", 179, kovra_ocsp_singleresponse_new, {kovra_ocsp_singleresponse_getcertid,
         kovra_ocsp_singleresponse_getcertstatus, kovra_ocsp_singleresponse_getthisupdate,
         kovra_ocsp_singleresponse_getnextupdate, kovra_ocsp_singleresponse_getexts}},
        {"responsedata", 181, kovra_ocsp_responsedata_new, {kovra_ocsp_responsedata_getversion,
         kovra_ocsp_responsedata_getrespid, kovra_ocsp_responsedata_getproducedat, kovra_ocsp_responsedata_getresponses,
         kovra_ocsp_responsedata_getexts}},
        {"basicocspresponse", 182, kovra_ocsp_basicocspresponse_new, {kovra_ocsp_basicocspresponse_gettbs,
         kovra_ocsp_basicocspresponse_getsignalgo, kovra_ocsp_basicocspresponse_getsignature,
         kovra_ocsp_basicocspresponse_getcerts}},
        {"crlid", 183, kovra_ocsp_crlid_new, {kovra_ocsp_crlid_geturl, kovra_ocsp_crlid_getnum,
         kovra_ocsp_crlid_gettime}},
        {"messageimprint", 186, kovra_tsp_messageimprint_new, {kovra_tsp_messageimprint_gethashalgo,
         kovra_tsp_messageimprint_gethashedmessage}},
        {"timestampreq", 187, kovra_tsp_timestampreq_new, {kovra_tsp_timestampreq_getversion,
         kovra_tsp_timestampreq_getmessageimprint, kovra_tsp_timestampreq_getpolicy, kovra_tsp_timestampreq_getnonce,
         kovra_tsp_timestampreq_getcertreq, kovra_tsp_timestampreq_getexts}},
        {"pkistatusinfo", 189, kovra_tsp_pkistatusinfo_new, {kovra_tsp_pkistatusinfo_getstatus,
         kovra_tsp_pkistatusinfo_getstatusstring, kovra_tsp_pkistatusinfo_getfailinfo}},
        {"timestampresp", 190, kovra_tsp_timestampresp_new, {kovra_tsp_timestampresp_getstatus,
         kovra_tsp_timestampresp_gettoken}},
        {"accuracy", 191, kovra_tsp_accuracy_new, {kovra_tsp_accuracy_getseconds, kovra_tsp_accuracy_getmillis,
         kovra_tsp_accuracy_getmicros}},
        {"ess_issuerserial", 193, kovra_ess_issuerserial_new, {kovra_ess_issuerserial_getissuer,
         kovra_ess_issuerserial_getsn}},
        {"ess_certid", 194, kovra_ess_certid_new, {kovra_ess_certid_getcerthash, kovra_ess_certid_getissuersn}},
        {"ess_certidv2", 195, kovra_ess_certidv2_new, {kovra_ess_certidv2_getcerthashalgo,
         kovra_ess_certidv2_getcerthash, kovra_ess_certidv2_getissuersn}},
        {"ess_signingcertificate", 199, kovra_ess_signingcertificate_new, {kovra_ess_signingcertificate_getcerts,
         kovra_ess_signingcertificate_getpolicies}},
        {"ess_signingcertificatev2", 200, kovra_ess_signingcertificatev2_new, {kovra_ess_signingcertificate_getcerts,
         kovra_ess_signingcertificate_getpolicies}},
    };
    // clang-format on
    Notation names;
    for (const std::vector<std::string> &fields : names.read("services_new.txt")) {
        const auto row = std::find_if(all.begin(), all.end(), [&](const Case &one) { return one.name == fields[0]; });
        EXPECT_NE(row, all.end()) << fields[0];
        if (row == all.end() || !row->arguments.empty())
            continue;
        row->full = hex(notation().octets_of(fields[1]));
        row->least = fields[2] == "=" ? row->full : hex(notation().octets_of(fields[2]));
        for (size_t i = 3; i < fields.size(); ++i) {
            const size_t blank = fields[i].find(' ');
            row->arguments.push_back(
                {static_cast<uint32_t>(std::stoul(fields[i])), fields[i][blank - 1] == '?', fields[i].substr(blank)});
        }
    }
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
            least.push_back(!argument.is_optional ? values.back().get() : nullptr);
        }
        Value full(row.type, row.make.call(all)), bare(row.type, row.make.call(least));
        ASSERT_TRUE(full && bare);
        for (size_t i = 0; i < all.size(); ++i) {
            const Argument &argument = row.arguments[i];
            SCOPED_TRACE("argument " + std::to_string(i));
            // Refused: nothing where something is needed, and something of another kind.
            Arguments changed = all;
            changed[i] = nullptr;
            EXPECT_EQ(static_cast<bool>(Value(row.type, row.make.call(changed))), argument.is_optional);
            changed[i] = argument.type == 1 ? values[0].get() : text.get();
            EXPECT_FALSE(Value(row.type, row.make.call(changed)));
            EXPECT_EQ(row.getters[i](nullptr), nullptr);
            EXPECT_EQ(row.getters[i](text.get()), nullptr);
        }
        // Independent of the arguments.
        std::vector<std::string> encodings;
        for (size_t i = 0; i < all.size(); ++i)
            encodings.push_back(encoding_of(row.arguments[i].type, all[i]));
        values.clear();
        for (size_t i = 0; i < all.size(); ++i) {
            const Argument &argument = row.arguments[i];
            EXPECT_EQ(encoding_of(argument.type, row.getters[i](full.get())), encodings[i]);
        }
        EXPECT_EQ(encoding(full), row.full);
        EXPECT_EQ(encoding(bare), row.least);
    }
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
