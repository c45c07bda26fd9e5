// Certificates, CRLs and requests as other programs write them: every field, and the octets that signatures cover.
#include "tests/failing_memory.hpp"
#include "tests/pkix_testing.hpp"

namespace kovra::test {
namespace {

// The same element with indefinite lengths, or with lengths in five octets.
std::string as_ber(const std::string &element, bool is_indefinite) {
    std::string content;
    if ((element[0] & 0x20) != 0)
        for (const std::string &child : children(element))
            content += as_ber(child, is_indefinite);
    else
        return element;
    if (is_indefinite)
        return element[0] + ("\x80" + content) + std::string(2, '\0');
    return element[0] + ("\x84" + in_four_octets(content.size())) + content;
}

std::string signed_octets(const Kind &kind, const Value &value) {
    int32_t length = -7;
    EXPECT_EQ(kind.get_signed_octets(value.get(), nullptr, &length), 1);
    std::string octets(static_cast<size_t>(length), '\0');
    int32_t capacity = length - 1;
    EXPECT_EQ(kind.get_signed_octets(value.get(), octets.data(), &capacity), 0) << "one octet short";
    EXPECT_EQ(capacity, length);
    capacity = length + 100;
    EXPECT_EQ(kind.get_signed_octets(value.get(), octets.data(), &capacity), 1);
    EXPECT_EQ(capacity, length);
    return octets;
}

std::string encoded(uint32_t type, Handle value) {
    return value != nullptr ? hex(encode(type, value).octets) : "-";
}

// Built again from its fields, each is the same, and so is what its signature covers.
Value built_again(const Kind &kind, Handle of) {
    if (kind.type == 39) {
        const Value tbs(
            38, kovra_x509TBSCertificate_new(kovra_x509pubkeycert_getversion(of), kovra_x509pubkeycert_getserialno(of),
                                             kovra_x509pubkeycert_getinnersignalgo(of),
                                             kovra_x509pubkeycert_getissuer(of), kovra_x509pubkeycert_getvalidity(of),
                                             kovra_x509pubkeycert_getsubject(of), kovra_x509pubkeycert_getpubkey(of),
                                             nullptr, nullptr, kovra_x509pubkeycert_getexts(of)));
        return {39, kovra_x509pubkeycert_create(tbs.get(), kovra_x509pubkeycert_getsignvalue(of))};
    }
    if (kind.type == 41) {
        const Value tbs(40, kovra_x509TBSCertList_new(kovra_x509crl_getversion(of), kovra_x509crl_getinnersignalgo(of),
                                                      kovra_x509crl_getissuer(of), kovra_x509crl_getthisupdate(of),
                                                      kovra_x509crl_getnextupdate(of), kovra_x509crl_getrevcerts(of), 1,
                                                      kovra_x509crl_getexts(of)));
        return {41, kovra_x509crl_create(tbs.get(), kovra_x509crl_getsignvalue(of))};
    }
    const Value info(45,
                     kovra_pkcs10certreqinfo_new(kovra_pkcs10certreq_getversion(of), kovra_pkcs10certreq_getsubject(of),
                                                 kovra_pkcs10certreq_getpubkey(of), kovra_pkcs10certreq_getattrs(of)));
    return {46, kovra_pkcs10certreq_create(info.get(), kovra_pkcs10certreq_getsignalgo(of),
                                           kovra_pkcs10certreq_getsignvalue(of))};
}

TEST(PkixReal, IsBuiltAgainFromItsFields) {
    for (const Kind &kind : kinds) {
        std::vector<std::string> all = objects(kind);
        const std::string end = "-----END CERTIFICATE-----",
                          bundle = kind.type == 39 ? contents("/etc/ssl/certs/ca-certificates.crt") : "";
        for (size_t at = 0, next = 0; (next = bundle.find(end, at)) != bundle.npos; at = next + end.size())
            all.push_back(octets(encoding(load(kind, bundle.substr(bundle.find('-', at), next + end.size() - at)))));
        for (const std::string &data : all) {
            const Value value = load(kind, data), built = built_again(kind, value.get());
            EXPECT_EQ(encoding(value), hex(data));
            EXPECT_EQ(encoding(built), hex(data));
            for (const Value *one : {&value, &built})
                EXPECT_EQ(hex(signed_octets(kind, *one)), hex(children(data)[0]));
        }
    }
}

TEST(PkixReal, BerKeepsItsOctets) {
    for (const Kind &kind : kinds) {
        for (const std::string &data : objects(kind)) {
            for (bool is_indefinite : {false, true}) {
                const std::string ber = as_ber(data, is_indefinite), tbs = as_ber(children(data)[0], is_indefinite);
                const Value value = load(kind, ber);
                ASSERT_TRUE(value);
                EXPECT_EQ(encoding(value), hex(ber));
                EXPECT_EQ(hex(signed_octets(kind, value)), hex(tbs));
                const Value copy(kind.type, kovra_asn1_dupobject(kind.type, value.get(), nullptr));
                EXPECT_EQ(encoding(copy), hex(ber));
                EXPECT_EQ(hex(signed_octets(kind, copy)), hex(tbs));
                // Content alone keeps what is signed, and nothing else.
                const size_t header = is_indefinite ? 2 : 6;
                const Value content =
                    decode_content(kind.type, ber.substr(header), 0, is_indefinite ? -1 : size_of(ber) - 6).value;
                EXPECT_EQ(hex(signed_octets(kind, content)), hex(tbs));
                EXPECT_NE(encode(kind.type, content.get()).octets.find(tbs), std::string::npos);
                // Names keep theirs as well, other fields do not.
                if (kind.type == 39) {
                    const auto fields = children(children(data)[0]);
                    const size_t version = fields[0][0] == '\xA0' ? 1 : 0;
                    EXPECT_EQ(encoded(32, kovra_x509pubkeycert_getissuer(value.get())),
                              hex(as_ber(fields[version + 2], is_indefinite)));
                    EXPECT_EQ(encoded(34, kovra_x509pubkeycert_getvalidity(value.get())), hex(fields[version + 3]));
                }
            }
        }
    }
}

TEST(PkixReal, LoadedFromOctetsAndFromText) {
    for (const Kind &kind : kinds) {
        SCOPED_TRACE(kind.type);
        const std::string data = objects(kind)[0];
        int64_t length = 0;
        auto text = [&](int32_t line) {
            Memory<char> made(kovra_base64encode(data.data(), size_of(data), line, &length));
            return std::string(made.get(), static_cast<size_t>(length));
        };
        auto armoured = [&](const char *label, const std::string &of) {
            Memory<char> made(kovra_pemencode(of.data(), size_of(of), label, &length));
            return std::string(made.get(), static_cast<size_t>(length));
        };
        Codes codes;
        auto loaded = [&](const std::string &input) { return encoding(load(kind, input, &codes)) == hex(data); };
        EXPECT_TRUE(loaded(data));
        EXPECT_TRUE(loaded(text(0)));
        EXPECT_TRUE(loaded(text(64)));
        EXPECT_TRUE(loaded(text(10) + "\r\n \t"));
        for (const std::string &label : kind.labels)
            EXPECT_TRUE(loaded("-----\n" + armoured(label.c_str(), data) + "behind")) << label;
        EXPECT_TRUE(loaded(armoured("OTHER", "x") + armoured(kind.labels.back().c_str(), data)));
        EXPECT_TRUE(loaded((kind.labels.size() == 2 ? armoured(kind.labels[1].c_str(), "x") : "") +
                           armoured(kind.labels[0].c_str(), data)))
            << "the first label goes before the other";

        auto refused = [&](const std::string &input) {
            EXPECT_FALSE(load(kind, input, &codes));
            return codes;
        };
        EXPECT_EQ(refused(data + '\0'), Codes({0x1020b}));
        EXPECT_EQ(refused(armoured(kind.labels[0].c_str(), data + '\0')), Codes({0x1020b}));
        EXPECT_EQ(refused(' ' + data), Codes({kind.refusal}));
        EXPECT_EQ(refused("\xEF\xBB\xBF" + text(0)), Codes({kind.refusal}));
        EXPECT_EQ(refused("1"), Codes({kind.refusal}));
        EXPECT_EQ(refused("M"), Codes({0x10111}));
        EXPECT_EQ(refused(text(0) + "!"), Codes({0x10111}));
        EXPECT_EQ(refused("MQAA"), Codes({0x1020a})) << "31 00 00";
        EXPECT_EQ(refused("-"), Codes({0x10116}));
        EXPECT_EQ(refused(armoured("OTHER", data)), Codes({0x10116}));
        EXPECT_EQ(refused(armoured(kind.labels[0].c_str(), "1")), Codes({0x10105, 0x102e7, 0x10236}));
        EXPECT_EQ(refused(data.substr(0, data.size() - 1)).at(0), 0x10105);
        EXPECT_EQ(refused(""), Codes({0x10001}));
        Errors ctx(kovra_err_ctx_new());
        EXPECT_EQ(kind.load(nullptr, 10, ctx.get()), nullptr);
        EXPECT_EQ(Codes(ctx.get()), Codes({0x10002}));
        EXPECT_EQ(kind.load(data.data(), -1, nullptr), nullptr);
        int32_t needed = 10;
        EXPECT_EQ(kind.get_signed_octets(nullptr, nullptr, &needed), 0);
        EXPECT_EQ(kind.get_signed_octets(load(kind, data).get(), nullptr, nullptr), 0);
        EXPECT_EQ(kind.get_signed_octets(decoded(1, "01 01 FF").get(), nullptr, &needed), 0);
    }
}

TEST(PkixReal, EveryAllocationOfLoadingMayFail) {
    for (const Kind &kind : kinds) {
        const std::string data = objects(kind)[0];
        int64_t length = 0;
        const Memory<char> base64(kovra_base64encode(data.data(), size_of(data), 64, &length));
        const Memory<char> pem(kovra_pemencode(data.data(), size_of(data), kind.labels.back().c_str(), &length));
        for (const std::string &text : {data, std::string(base64.get()), std::string(pem.get())})
            for (bool fails_once : {false, true})
                fail_each_allocation(
                    [&] {
                        const Errors ctx(kovra_err_ctx_new());
                        const Value value(kind.type, kind.load(text.data(), size_of(text), ctx.get()));
                        int32_t needed = 0;
                        return kind.get_signed_octets(value.get(), nullptr, &needed) == 1 && needed > 0;
                    },
                    fails_once);
    }
}

} // namespace
} // namespace kovra::test
