// Constructors and getters of keys, parameters and stores, one table for all.
#include <array>
#include <functional>
#include <tuple>

#include "tests/keys_testing.hpp"

namespace kovra::test {
namespace {

// A kind of argument: its type, and its encoding, in which xx stands for a number that tells arguments apart.
struct Kind {
    uint32_t type;
    const char *encoding;
};
constexpr Kind integer = {2, "02 01 xx"};
constexpr Kind one = {2, "02 01 01"};
constexpr Kind bits = {3, "03 02 00 xx"};
constexpr Kind octet_string = {4, "04 01 xx"};
constexpr Kind salt_of_8 = {4, "04 08 xx xx xx xx xx xx xx xx"};
constexpr Kind oid = {6, "06 02 2A xx"};
constexpr Kind utf8 = {9, "0C 01 xx"};
constexpr Kind any = {23, "9F xx 01 00"};
constexpr Kind algorithm = {33, "30 04 06 02 2A xx"};
constexpr Kind public_key_info = {35, "30 0A 30 04 06 02 2A xx 03 02 00 AA"};
constexpr Kind certificate = {
    39, "30 45 30 39 02 01 xx 30 04 06 02 2A 03 30 00 30 1E 17 0D 32 35 30 31 30 32 30 33 30 34 30 35 5A"
        "17 0D 32 35 30 31 30 32 30 33 30 34 30 35 5A 30 00 30 0A 30 04 06 02 2A 03 03 02 00 AA"
        "30 04 06 02 2A 03 03 02 00 AA"};
constexpr Kind attributes = {44, "31 0A 30 08 06 02 2A xx 31 02 05 00"};
constexpr Kind rsa_public_key = {56, "30 06 02 01 xx 02 01 07"};
constexpr Kind digest_info = {57, "30 09 30 04 06 02 2A xx 04 01 AA"};
constexpr Kind store_attributes = {95, "30 07 30 05 02 01 xx 05 00"};
constexpr Kind store_key_id = {98, "A0 04 06 02 2A xx"};
constexpr Kind content_info = {111, "30 04 06 02 2A xx"};
constexpr Kind mac_data = {112, "30 0E 30 09 30 04 06 02 2A xx 04 01 AA 04 01 BB"};
constexpr Kind primes = {145, "30 0B 30 09 02 01 xx 02 01 08 02 01 09"};
constexpr Kind salt = {146, "04 01 xx"};
constexpr Kind curve = {201, "06 02 2A xx"};
constexpr Kind sm2_cipher = {203, "30 0C 02 01 xx 02 01 08 04 01 AA 04 01 BB"};
constexpr Kind sm2_key = {204,
                          "30 1C 30 04 06 02 2A xx 30 0C 02 01 07 02 01 08 04 01 AA 04 01 BB 03 02 00 AA 03 02 00 BB"};
constexpr Kind rsa_pair = {205, "30 14 30 04 06 02 2A xx 04 01 AA 30 06 02 01 06 02 01 07 04 01 BB"};
constexpr Kind inner_pair = {206, "A1 16 30 14 30 04 06 02 2A xx 04 01 AA 30 06 02 01 06 02 01 07 04 01 BB"};

constexpr char sha1[] = "30 09 06 05 2B 0E 03 02 1A 05 00";
constexpr char mgf1_sha1[] = "30 16 06 09 2A 86 48 86 F7 0D 01 01 08 30 09 06 05 2B 0E 03 02 1A 05 00";
constexpr char no_label[] = "30 0D 06 09 2A 86 48 86 F7 0D 01 01 09 04 00";
constexpr char hmac_sha1[] = "30 0C 06 08 2A 86 48 86 F7 0D 02 07 05 00";

Value argument(const Kind &kind, size_t number) {
    std::string text = kind.encoding;
    for (size_t at; (at = text.find("xx")) != text.npos;)
        text.replace(at, 2, hex(std::string(1, static_cast<char>(0x21 + number))));
    return decoded(kind.type, text);
}

using Arguments = std::vector<const kovra_asn1_value *>;
using Maker = std::function<kovra_asn1_value *(const Arguments &)>;
using Getter = kovra_asn1_value *(*)(const kovra_asn1_value *);
using Teller = int32_t (*)(const kovra_asn1_value *);

template <class... Given> Maker made_by(kovra_asn1_value *(*make)(Given...)) {
    return [make](const Arguments &given) {
        EXPECT_EQ(given.size(), sizeof...(Given));
        size_t next = 0;
        // Braces keep the order.
        std::array<const kovra_asn1_value *, sizeof...(Given)> ordered{static_cast<Given>(given[next++])...};
        return std::apply(make, ordered);
    };
}

struct Part {
    const Kind &kind;
    Getter get;
    bool is_required;
    const char *fallback = nullptr; // of a part with a default
    Teller has = nullptr;
    int tag = 0; // identifier octet of an explicit or implicit tag
    bool is_explicit = false;

    [[nodiscard]] Part in(int number) const {
        Part changed = {kind, get, is_required, fallback, has, number, true};
        return changed;
    }
    [[nodiscard]] Part as(int number) const {
        Part changed = {kind, get, is_required, fallback, has, number, false};
        return changed;
    }
    [[nodiscard]] std::string written(const Value &value) const {
        std::string octets = encode(value.type(), value.get()).octets;
        if (tag == 0)
            return octets;
        std::string first(1, static_cast<char>(tag));
        return first + (is_explicit ? static_cast<char>(octets.size()) + octets : octets.substr(1));
    }
};
Part required(const Kind &kind, Getter get) {
    return {kind, get, true};
}
Part optional(const Kind &kind, Getter get, Teller has = nullptr) {
    return {kind, get, false, nullptr, has};
}
Part defaulted(const Kind &kind, Getter get, const char *fallback) {
    return {kind, get, false, fallback};
}

struct Family {
    uint32_t type;
    Maker make;
    std::vector<Part> parts;
};

const std::vector<Family> &families() {
    // clang-format off
    static const std::vector<Family> all = {
        {56, made_by(kovra_pkcs1rsapublickey_new), {
            required(integer, kovra_pkcs1rsapublickey_getmodulus),
            required(integer, kovra_pkcs1rsapublickey_getpublicexponent),
        }},
        {99, made_by(kovra_pkcs1rsaprivatekey_new), {
            required(one, kovra_pkcs1rsaprivatekey_getversion),
            required(integer, kovra_pkcs1rsaprivatekey_getmodulus),
            required(integer, kovra_pkcs1rsaprivatekey_getpublicexponent),
            required(integer, kovra_pkcs1rsaprivatekey_getprivateexponent),
            required(integer, kovra_pkcs1rsaprivatekey_getprime1),
            required(integer, kovra_pkcs1rsaprivatekey_getprime2),
            required(integer, kovra_pkcs1rsaprivatekey_getexponent1),
            required(integer, kovra_pkcs1rsaprivatekey_getexponent2),
            required(integer, kovra_pkcs1rsaprivatekey_getcoefficient),
            required(primes, kovra_pkcs1rsaprivatekey_getotherprimeinfos), // by the version
        }},
        {144, made_by(kovra_pkcs1otherprimeinfo_new), {
            required(integer, kovra_pkcs1otherprimeinfo_getprime),
            required(integer, kovra_pkcs1otherprimeinfo_getexponent),
            required(integer, kovra_pkcs1otherprimeinfo_getcoefficient),
        }},
        {100, made_by(kovra_pkcs1oaepparams_new), {
            defaulted(algorithm, kovra_pkcs1oaepparams_gethashalgorithm, sha1).in(0xA0),
            defaulted(algorithm, kovra_pkcs1oaepparams_getmaskgenalgorithm, mgf1_sha1).in(0xA1),
            defaulted(algorithm, kovra_pkcs1oaepparams_getpsourcealgorithm, no_label).in(0xA2),
        }},
        {101, made_by(kovra_pkcs1pssparams_new), {
            defaulted(algorithm, kovra_pkcs1pssparams_gethashalgorithm, sha1).in(0xA0),
            defaulted(algorithm, kovra_pkcs1pssparams_getmaskgenalgorithm, mgf1_sha1).in(0xA1),
            defaulted(integer, kovra_pkcs1pssparams_getsaltlength, "02 01 14").in(0xA2),
            defaulted(integer, kovra_pkcs1pssparams_gettrailerfield, "02 01 01").in(0xA3),
        }},
        {57, made_by(kovra_pkcs1digestinfo_new), {
            required(algorithm, kovra_pkcs1digestinfo_getdigestalgorithm),
            required(octet_string, kovra_pkcs1digestinfo_getdigest),
        }},
        {58, made_by(kovra_dsssigvalue_new), {
            required(integer, kovra_dsssigvalue_getr),
            required(integer, kovra_dsssigvalue_gets),
        }},
        {59, made_by(kovra_ecdsasigvalue_new), {
            required(integer, kovra_ecdsasigvalue_getr),
            required(integer, kovra_ecdsasigvalue_gets),
        }},
        {60, made_by(kovra_dssparms_new), {
            required(integer, kovra_dssparms_getp),
            required(integer, kovra_dssparms_getq),
            required(integer, kovra_dssparms_getg),
        }},
        {102, made_by(kovra_pkcs3dhparam_new), {
            required(integer, kovra_pkcs3dhparam_getprime),
            required(integer, kovra_pkcs3dhparam_getbase),
            optional(integer, kovra_pkcs3dhparam_getprivatevaluelength, kovra_pkcs3dhparam_hasprivatevaluelength),
        }},
        {106, made_by(kovra_pkcs5pbeparam_new), {
            required(salt_of_8, kovra_pkcs5pbeparam_getsalt),
            required(integer, kovra_pkcs5pbeparam_getiterationcount),
        }},
        {105, made_by(kovra_pkcs5pbkdf2params_new), {
            required(salt, kovra_pkcs5pbkdf2params_getsalt),
            required(integer, kovra_pkcs5pbkdf2params_getiterationcount),
            optional(integer, kovra_pkcs5pbkdf2params_getkeylength, kovra_pkcs5pbkdf2params_haskeylength),
            defaulted(algorithm, kovra_pkcs5pbkdf2params_getprf, hmac_sha1),
        }},
        {107, made_by(kovra_pkcs5pbes2params_new), {
            required(algorithm, kovra_pkcs5pbes2params_getkeyderivationfunc),
            required(algorithm, kovra_pkcs5pbes2params_getencryptionscheme),
        }},
        {108, made_by(kovra_pkcs5pbmac1params_new), {
            required(algorithm, kovra_pkcs5pbmac1params_getkeyderivationfunc),
            required(algorithm, kovra_pkcs5pbmac1params_getmessageauthscheme),
        }},
        {109, made_by(kovra_pkcs5rc2cbcparam_new), {
            optional(integer, kovra_pkcs5rc2cbcparam_getrc2parameterversion, kovra_pkcs5rc2cbcparam_hasrc2parameterversion),
            required(octet_string, kovra_pkcs5rc2cbcparam_getiv),
        }},
        {110, made_by(kovra_pkcs5rc5cbcparam_new), {
            required(integer, kovra_pkcs5rc5cbcparam_getversion),
            required(integer, kovra_pkcs5rc5cbcparam_getrounds),
            required(integer, kovra_pkcs5rc5cbcparam_getblocksizeinbits),
            optional(octet_string, kovra_pkcs5rc5cbcparam_getiv, kovra_pkcs5rc5cbcparam_hasiv),
        }},
        {103, made_by(kovra_pkcs8privkeyinfo_new_with_pubkey), {
            required(integer, kovra_pkcs8privkeyinfo_getversion),
            required(algorithm, kovra_pkcs8privkeyinfo_getprivatekeyalgorithm),
            required(octet_string, kovra_pkcs8privkeyinfo_getprivatekey),
            optional(attributes, kovra_pkcs8privkeyinfo_getattributes, kovra_pkcs8privkeyinfo_hasattributes).as(0xA0),
            optional(bits, kovra_pkcs8privkeyinfo_getpublickey, kovra_pkcs8privkeyinfo_haspublickey).as(0x81),
        }},
        {104, made_by(kovra_pkcs8encryptedprivkeyinfo_new), {
            required(algorithm, kovra_pkcs8encryptedprivkeyinfo_getencryptionalgorithm),
            required(octet_string, kovra_pkcs8encryptedprivkeyinfo_getencrypteddata),
        }},
        {113, made_by(kovra_pkcs12pfx_new), {
            required(integer, kovra_pkcs12pfx_getversion),
            required(content_info, kovra_pkcs12pfx_getauthsafe),
            optional(mac_data, kovra_pkcs12pfx_getmacdata, kovra_pkcs12pfx_hasmacdata),
        }},
        {112, made_by(kovra_pkcs12macdata_new), {
            required(digest_info, kovra_pkcs12macdata_getmac),
            required(octet_string, kovra_pkcs12macdata_getmacsalt),
            defaulted(integer, kovra_pkcs12macdata_getiterations, "02 01 01"),
        }},
        {115, made_by(kovra_pkcs12safebag_new), {
            required(oid, kovra_pkcs12safebag_getbagid),
            required(any, kovra_pkcs12safebag_getbagvalue).in(0xA0),
            optional(attributes, kovra_pkcs12safebag_getbagattributes, kovra_pkcs12safebag_hasbagattributes),
        }},
        {117, made_by(kovra_pkcs12certbag_new), {
            required(oid, kovra_pkcs12certbag_getcertid),
            required(any, kovra_pkcs12certbag_getcertvalue).in(0xA0),
        }},
        {118, made_by(kovra_pkcs12crlbag_new), {
            required(oid, kovra_pkcs12crlbag_getcrlid),
            required(any, kovra_pkcs12crlbag_getcrlvalue).in(0xA0),
        }},
        {119, made_by(kovra_pkcs12secretbag_new), {
            required(oid, kovra_pkcs12secretbag_getsecrettypeid),
            required(any, kovra_pkcs12secretbag_getsecretvalue).in(0xA0),
        }},
        {120, made_by(kovra_pkcs12pbeparams_new), {
            required(octet_string, kovra_pkcs12pbeparams_getsalt),
            required(integer, kovra_pkcs12pbeparams_getiterations),
        }},
        {202, made_by(kovra_ecprivatekey_new), {
            required(integer, kovra_ecprivatekey_getversion),
            required(octet_string, kovra_ecprivatekey_getprivkey),
            optional(curve, kovra_ecprivatekey_getparam).in(0xA0),
            optional(bits, kovra_ecprivatekey_getpubkey).in(0xA1),
        }},
        {203, made_by(kovra_sm2cipher_new), {
            required(integer, kovra_sm2cipher_getx),
            required(integer, kovra_sm2cipher_gety),
            required(octet_string, kovra_sm2cipher_gethash),
            required(octet_string, kovra_sm2cipher_getciphertext),
        }},
        {204, made_by(kovra_sm2envelopedkey_new), {
            required(algorithm, kovra_sm2envelopedkey_getsymalgid),
            required(sm2_cipher, kovra_sm2envelopedkey_getsymencryptedkey),
            required(bits, kovra_sm2envelopedkey_getsm2publickey),
            required(bits, kovra_sm2envelopedkey_getsm2encryptedprivatekey),
        }},
        {205, made_by(kovra_rsaenvelopedkeypair_new), {
            required(algorithm, kovra_rsaenvelopedkeypair_getsymalgid),
            required(octet_string, kovra_rsaenvelopedkeypair_getsymencryptedkey),
            required(rsa_public_key, kovra_rsaenvelopedkeypair_getrsapublickey),
            required(octet_string, kovra_rsaenvelopedkeypair_getrsaencryptedprivatekey),
        }},
        {207, made_by(kovra_envelopedkeypair_new), {
            required(public_key_info, kovra_envelopedkeypair_getsignpubkey),
            required(inner_pair, kovra_envelopedkeypair_getenvkeypair),
        }},
        {94, made_by(kovra_certstore_attr_new), {
            required(integer, kovra_certstore_attr_gettype),
            required(any, kovra_certstore_attr_getvalue),
        }},
        {96, made_by(kovra_certstore_certwithattr_new), {
            required(certificate, kovra_certstore_certwithattr_getcert),
            optional(store_attributes, kovra_certstore_certwithattr_getattrlist),
        }},
        {93, made_by(kovra_certstore_privkeyattr_new), {
            required(utf8, kovra_certstore_privkeyattr_getprovider),
            optional(utf8, kovra_certstore_privkeyattr_getsubprovider),
            optional(integer, kovra_certstore_privkeyattr_getkeytype).as(0x80),
            required(integer, kovra_certstore_privkeyattr_getflag),
            optional(store_key_id, kovra_certstore_privkeyattr_getkeyid).in(0xA1),
        }},
    };
    // clang-format on
    return all;
}

// Every structure with every choice of the parts that may be absent: encoded as it must be, read back, got from.
TEST(KeysFunctions, EveryPresenceOfEveryPart) {
    for (const Family &family : families()) {
        SCOPED_TRACE(family.type);
        if (!works(family.type))
            continue;
        for (unsigned given = 0; given < 1u << family.parts.size(); ++given) {
            std::vector<Value> values;
            Arguments arguments;
            std::string content;
            bool is_complete = true;
            for (const Part &part : family.parts) {
                const bool is_given = (given >> values.size() & 1) != 0;
                values.push_back(is_given ? argument(part.kind, values.size()) : Value());
                ASSERT_EQ(static_cast<bool>(values.back()), is_given);
                arguments.push_back(values.back().get());
                content += is_given ? part.written(values.back()) : "";
                is_complete = is_complete && (is_given || !part.is_required);
            }
            Value made(family.type, family.make(arguments));
            ASSERT_EQ(static_cast<bool>(made), is_complete) << given;
            if (!is_complete)
                continue;
            ASSERT_LT(content.size(), 128u);
            EXPECT_EQ(encoding(made), hex('\x30' + std::string(1, static_cast<char>(content.size())) + content));
            Value copy = decoded(family.type, encoding(made));
            for (const Value *holder : {&made, &copy}) {
                for (size_t i = 0; i < family.parts.size(); ++i) {
                    const Part &part = family.parts[i];
                    kovra_asn1_value *got = part.get(holder->get());
                    std::string found = got != nullptr ? hex(encode(part.kind.type, got).octets) : "";
                    EXPECT_EQ(found, values[i]                  ? encoding(values[i])
                                     : part.fallback != nullptr ? hex(octets(part.fallback))
                                                                : "")
                        << "part " << i;
                    EXPECT_TRUE(part.has == nullptr || part.has(holder->get()) == static_cast<int32_t>(!!values[i]));
                }
            }
        }
    }
}

TEST(KeysFunctions, Choices) {
    struct Row {
        uint32_t type;
        Getter make;
        const Kind *kind;
        const char *prefix; // identifier and length octets that stand for, or before, those of the value
        size_t dropped;     // octets of the value that they replace
        Teller number;
        int32_t expected;
        Getter get, get_other;
    };
    const Row rows[] = {
        {146, kovra_pkcs5pbkdf2salt_newspecified, &octet_string, "", 0, kovra_pkcs5pbkdf2salt_gettype, 0,
         kovra_pkcs5pbkdf2salt_getspecified, kovra_pkcs5pbkdf2salt_getothersource},
        {146, kovra_pkcs5pbkdf2salt_newothersource, &algorithm, "", 0, kovra_pkcs5pbkdf2salt_gettype, 1,
         kovra_pkcs5pbkdf2salt_getothersource, kovra_pkcs5pbkdf2salt_getspecified},
        {98, kovra_certstore_keyid_newkeyid, &utf8, "", 0, kovra_certstore_keyid_gettype, 0,
         kovra_certstore_keyid_getkeyid, kovra_certstore_keyid_getalgoid},
        {98, kovra_certstore_keyid_newalgoid, &algorithm, "A0", 1, kovra_certstore_keyid_gettype, 1,
         kovra_certstore_keyid_getalgoid, kovra_certstore_keyid_getkeyid},
        {201, kovra_ecpkparameters_new_namedcurve, &oid, "", 0, kovra_ecpkparameters_gettype, 2,
         kovra_ecpkparameters_namedcurve, nullptr},
        {206, kovra_innerenvelopedkeypair_newrsa, &rsa_pair, "A1 16", 0, kovra_innerenvelopedkeypair_gettype, 1,
         kovra_innerenvelopedkeypair_getrsa, kovra_innerenvelopedkeypair_getsm2},
        {206, kovra_innerenvelopedkeypair_newsm2, &sm2_key, "A0 1E", 0, kovra_innerenvelopedkeypair_gettype, 2,
         kovra_innerenvelopedkeypair_getsm2, kovra_innerenvelopedkeypair_getrsa},
    };
    Value boolean = decoded(1, "01 01 FF");
    for (const Row &row : rows) {
        Value value = argument(*row.kind, 0), made(row.type, row.make(value.get()));
        EXPECT_EQ(encoding(made), hex(octets(row.prefix)) + encoding(value).substr(2 * row.dropped)) << row.type;
        EXPECT_EQ(row.number(made.get()), row.expected);
        EXPECT_EQ(hex(encode(row.kind->type, row.get(made.get())).octets), encoding(value));
        EXPECT_TRUE(row.get_other == nullptr || row.get_other(made.get()) == nullptr);
        EXPECT_EQ(encode_content(row.type, made.get(), -2).codes, Codes({0x10001}));
        if (row.type == 206) {
            EXPECT_EQ(hex(encode_content(row.type, made.get(), -1).octets), encoding(value) + "0000");
        }
        const int32_t none = row.type == 201 || row.type == 206 ? 0 : -1;
        for (const kovra_asn1_value *wrong : Arguments{nullptr, boolean.get()}) {
            EXPECT_EQ(row.make(wrong), nullptr);
            EXPECT_EQ(row.number(wrong), none);
            EXPECT_EQ(row.get(wrong), nullptr);
        }
        fail_each_allocation([&] { return static_cast<bool>(Value(row.type, row.make(value.get()))); });
    }
    Value none(201, kovra_ecpkparameters_new_implicitlyca()), written_out = decoded(201, "30 03 02 01 05");
    EXPECT_EQ(encoding(none), "0500");
    EXPECT_EQ(kovra_ecpkparameters_gettype(none.get()), 3);
    EXPECT_EQ(kovra_ecpkparameters_gettype(written_out.get()), 1);
    EXPECT_EQ(kovra_ecpkparameters_namedcurve(none.get()), nullptr);
    EXPECT_EQ(kovra_ecpkparameters_namedcurve(written_out.get()), nullptr);
    fail_each_allocation([] { return static_cast<bool>(Value(201, kovra_ecpkparameters_new_implicitlyca())); });
}

TEST(KeysFunctions, WhatCouldNotBeEncodedIsNotMade) {
    Value zero = decoded(2, "02 01 00"), first = decoded(2, "02 01 01"), second = decoded(2, "02 01 02");
    Value others = argument(primes, 0), empty(145, kovra_asn1_list_new()),
          salt_of_7 = decoded(4, "04 07 01020304050607");
    auto key = [&](const Value &version, const Value &other_primes) {
        const kovra_asn1_value *n = first.get();
        return Value(99, kovra_pkcs1rsaprivatekey_new(version.get(), n, n, n, n, n, n, n, n, other_primes.get()));
    };
    Value two_primes = key(zero, Value());
    EXPECT_EQ(kovra_pkcs1rsaprivatekey_hasotherprimeinfos(two_primes.get()), 0);
    EXPECT_EQ(kovra_pkcs1rsaprivatekey_hasotherprimeinfos(key(first, others).get()), 1);
    EXPECT_FALSE(key(zero, others) || key(first, Value()) || key(second, others) || key(first, empty));
    EXPECT_EQ(kovra_pkcs5pbeparam_new(salt_of_7.get(), first.get()), nullptr);
    Value marker = decoded(23, "00 00"), id = argument(oid, 0);
    EXPECT_EQ(kovra_pkcs12safebag_new(id.get(), marker.get(), nullptr), nullptr);
    EXPECT_EQ(kovra_pkcs12certbag_new(id.get(), marker.get()), nullptr);
    EXPECT_EQ(kovra_pkcs12crlbag_new(id.get(), marker.get()), nullptr);
    EXPECT_EQ(kovra_pkcs12secretbag_new(id.get(), marker.get()), nullptr);
    EXPECT_EQ(kovra_certstore_attr_new(zero.get(), marker.get()), nullptr);
    Value no_public_key(103, kovra_pkcs8privkeyinfo_new(zero.get(), argument(algorithm, 1).get(),
                                                        argument(octet_string, 2).get(), nullptr));
    EXPECT_EQ(encoding(no_public_key), "300C020100300406022A22040123");
    EXPECT_EQ(kovra_pkcs8privkeyinfo_haspublickey(no_public_key.get()), 0);
}

} // namespace
} // namespace kovra::test
