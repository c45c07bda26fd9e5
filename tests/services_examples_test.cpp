// Requests, responses and tokens as openssl writes them: what stands in them, and that they come back to the octet.
#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {
namespace {

std::string example(const std::string &name) {
    std::ifstream file(KOVRA_SOURCE_DIR "/examples/" + name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

// A value whose encoding, read anew, copied and written, is what it was read from; cut short it is refused.
Value read_back(uint32_t type, const std::string &octets) {
    Decoded decoded = decode(type, octets), trickled = decode(type, octets, Feed::trickle);
    EXPECT_EQ(decoded.codes, Codes());
    EXPECT_EQ(decoded.consumed, octets.size());
    EXPECT_EQ(kovra_asn1_length(type, decoded.value.get()), size_of(octets));
    Value copy(type, kovra_asn1_dupobject(type, decoded.value.get(), nullptr));
    for (const Value *value : {&decoded.value, &trickled.value, &copy})
        EXPECT_EQ(encoding(*value), hex(octets));
    for (size_t at = 0; at < octets.size(); ++at)
        EXPECT_FALSE(decode(type, octets.substr(0, at)).codes.empty()) << "cut at " << at;
    fail_each_allocation([&] {
        kovra_asn1_value *value = nullptr;
        kovra_asn1_mem_decode(octets.data(), size_of(octets), type, &value);
        Value owner(type, value), again(type, kovra_asn1_dupobject(type, value, nullptr));
        return text_of(Blob(kovra_asn1_mem_encode(type, again.get())).get()) == octets;
    });
    return std::move(decoded.value);
}

std::string octets_in(kovra_asn1_value *string) {
    return text_of(Blob(kovra_asn1_octetstring_getblob(string)).get());
}

int32_t number_in(const kovra_asn1_value *integer) {
    int32_t number = -7;
    EXPECT_EQ(kovra_asn1_integer_getlong(integer, &number), 1);
    return number;
}

std::string oid_in(kovra_asn1_value *oid) {
    return kovra_asn1_oid_getstring(oid);
}

kovra_asn1_value *element(kovra_asn1_value *list, int32_t index) {
    kovra_asn1_value *found = nullptr;
    EXPECT_EQ(kovra_asn1_list_get(list, index, &found), 1);
    return found;
}

// The octets of the element behind an object identifier, which is given by its content.
std::string behind(const std::string &octets, const std::string &oid) {
    const size_t at = octets.find(oid);
    EXPECT_NE(at, octets.npos) << hex(oid);
    return at != octets.npos ? octets.substr(at + oid.size()) : "";
}

bool has_nonce(kovra_asn1_value *extensions) {
    for (int32_t i = 0; i < kovra_asn1_list_getsize(extensions); ++i)
        if (oid_in(kovra_x509extension_getid(element(extensions, i))) == "1.3.6.1.5.5.7.48.1.2")
            return true;
    return false;
}

TEST(ServiceExamples, Requests) {
    const struct {
        const char *file;
        int32_t count;
        bool nonce, name;
        int32_t certificates; // -1: not signed
    } rows[] = {{"ocsp-request.der", 3, true, false, -1}, {"ocsp-request-signed.der", 2, false, true, 2}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.file);
        const Value request = read_back(KOVRA_ASN1_TYPE_OCSP_REQUEST, example(row.file));
        const kovra_asn1_value *tbs = kovra_ocsp_ocsprequest_gettbs(request.get());
        kovra_asn1_value *list = kovra_ocsp_tbsrequest_getreqlist(tbs);
        EXPECT_EQ(number_in(kovra_ocsp_tbsrequest_getversion(tbs)), 0);
        EXPECT_EQ(kovra_ocsp_tbsrequest_getname(tbs) != nullptr, row.name);
        EXPECT_EQ(has_nonce(kovra_ocsp_tbsrequest_getexts(tbs)), row.nonce);
        ASSERT_EQ(kovra_asn1_list_getsize(list), row.count);
        const kovra_asn1_value *id = kovra_ocsp_request_getcertid(element(list, 0));
        EXPECT_EQ(oid_in(kovra_x509algoid_getalgo(kovra_ocsp_certid_gethashalgo(id))), "1.3.14.3.2.26");
        EXPECT_EQ(octets_in(kovra_ocsp_certid_getissuerkeyhash(id)).size(), 20u);
        EXPECT_EQ(number_in(kovra_ocsp_certid_getsn(id)), 0x7F01);
        EXPECT_EQ(kovra_ocsp_request_getexts(element(list, 0)), nullptr);
        const kovra_asn1_value *signature = kovra_ocsp_ocsprequest_getsignature(request.get());
        EXPECT_EQ(signature != nullptr, row.certificates >= 0);
        EXPECT_EQ(kovra_asn1_list_getsize(kovra_ocsp_signature_getcerts(signature)), std::max(row.certificates, 0));
    }
}

TEST(ServiceExamples, Responses) {
    const struct {
        const char *file;
        bool by_key, nonce, next;
        std::vector<int32_t> statuses, reasons;
        int32_t certificates; // -1: no list
    } rows[] = {
        {"ocsp-response.der", false, true, true, {0, 1, 2}, {1}, 1},
        {"ocsp-response-key.der", true, true, true, {0, 1, 2}, {1}, -1},
        {"ocsp-response-certs.der", false, false, false, {0, 1}, {4}, 2},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.file);
        const Value response = read_back(KOVRA_ASN1_TYPE_OCSP_RESPONSE, example(row.file));
        EXPECT_EQ(number_in(kovra_ocsp_ocspresponse_getstatus(response.get())), 0);
        const kovra_asn1_value *bytes = kovra_ocsp_ocspresponse_getresponse(response.get());
        EXPECT_EQ(oid_in(kovra_ocsp_responsebytes_gettype(bytes)), "1.3.6.1.5.5.7.48.1.1");
        const std::string octets = octets_in(kovra_ocsp_responsebytes_getresponse(bytes));
        const Value basic = read_back(KOVRA_ASN1_TYPE_OCSP_BASIC_RESPONSE, octets);
        std::string tbs(octets.size(), '\0');
        int32_t length = size_of(tbs);
        EXPECT_EQ(kovra_ocsp_basicocspresponse_gettbsocts(basic.get(), tbs.data(), &length), 1);
        EXPECT_EQ(hex(tbs.substr(0, static_cast<size_t>(length))), hex(octets.substr(4, static_cast<size_t>(length))));
        kovra_asn1_value *certs = kovra_ocsp_basicocspresponse_getcerts(basic.get());
        EXPECT_EQ(certs != nullptr ? kovra_asn1_list_getsize(certs) : -1, row.certificates);

        const kovra_asn1_value *data = kovra_ocsp_basicocspresponse_gettbs(basic.get());
        const kovra_asn1_value *responder = kovra_ocsp_responsedata_getrespid(data);
        EXPECT_EQ(kovra_ocsp_responderid_gettype(responder), row.by_key ? 2 : 1);
        EXPECT_EQ(kovra_ocsp_responderid_getkeyhash(responder) != nullptr, row.by_key);
        EXPECT_EQ(kovra_ocsp_responderid_getname(responder) != nullptr, !row.by_key);
        EXPECT_EQ(has_nonce(kovra_ocsp_responsedata_getexts(data)), row.nonce);
        kovra_asn1_value *responses = kovra_ocsp_responsedata_getresponses(data);
        std::vector<int32_t> statuses, reasons;
        for (int32_t i = 0; i < kovra_asn1_list_getsize(responses); ++i) {
            const kovra_asn1_value *single = element(responses, i);
            EXPECT_EQ(kovra_ocsp_singleresponse_getnextupdate(single) != nullptr, row.next);
            const kovra_asn1_value *status = kovra_ocsp_singleresponse_getcertstatus(single);
            statuses.push_back(kovra_ocsp_certstatus_gettype(status));
            if (const kovra_asn1_value *info = kovra_ocsp_certstatus_getrevoked(status))
                reasons.push_back(number_in(kovra_ocsp_revokedinfo_getreason(info)));
        }
        EXPECT_EQ(statuses, row.statuses);
        EXPECT_EQ(reasons, row.reasons);
        // The components hold what cannot be written: only the kept octets make the response come back.
        EXPECT_EQ(encode(KOVRA_ASN1_TYPE_OCSP_RESPONSE_DATA, data).result, 0);
    }
}

TEST(ServiceExamples, TimeStampQueries) {
    const struct {
        const char *file, *policy;
        bool nonce, wants_certificate;
    } rows[] = {{"timestamp-query.der", "", true, true}, {"timestamp-query-plain.der", "1.2.3.4.1", false, false}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.file);
        const Value query = read_back(KOVRA_ASN1_TYPE_TIME_STAMP_REQ, example(row.file));
        EXPECT_EQ(number_in(kovra_tsp_timestampreq_getversion(query.get())), 1);
        const kovra_asn1_value *imprint = kovra_tsp_timestampreq_getmessageimprint(query.get());
        EXPECT_EQ(oid_in(kovra_x509algoid_getalgo(kovra_tsp_messageimprint_gethashalgo(imprint))),
                  "2.16.840.1.101.3.4.2.1");
        EXPECT_EQ(octets_in(kovra_tsp_messageimprint_gethashedmessage(imprint)).size(), 32u);
        kovra_asn1_value *policy = kovra_tsp_timestampreq_getpolicy(query.get());
        EXPECT_EQ(policy != nullptr ? oid_in(policy) : "", row.policy);
        EXPECT_EQ(kovra_tsp_timestampreq_getnonce(query.get()) != nullptr, row.nonce);
        EXPECT_EQ(kovra_asn1_boolean_istrue(kovra_tsp_timestampreq_getcertreq(query.get())), row.wants_certificate);
        EXPECT_EQ(kovra_tsp_timestampreq_getexts(query.get()), nullptr);
    }
}

TEST(ServiceExamples, TimeStampReplies) {
    const std::string tst_info = octets("06 0B 2A 86 48 86 F7 0D 01 09 10 01 04");
    const struct {
        const char *file;
        bool has_everything;
        std::string attribute;
        uint32_t type;
        size_t hash;
    } rows[] = {
        {"timestamp-reply.der", true, octets("06 0B 2A 86 48 86 F7 0D 01 09 10 02 2F"),
         KOVRA_ASN1_TYPE_SIGNING_CERTIFICATE_V2, 32},
        {"timestamp-reply-plain.der", false, octets("06 0B 2A 86 48 86 F7 0D 01 09 10 02 0C"),
         KOVRA_ASN1_TYPE_SIGNING_CERTIFICATE, 20},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.file);
        const std::string data = example(row.file);
        const Value reply = read_back(KOVRA_ASN1_TYPE_TIME_STAMP_RESP, data);
        EXPECT_EQ(number_in(kovra_tsp_pkistatusinfo_getstatus(kovra_tsp_timestampresp_getstatus(reply.get()))), 0);
        kovra_asn1_value *token = kovra_tsp_timestampresp_gettoken(reply.get());
        ASSERT_NE(token, nullptr);
        // [0] { OCTET STRING } behind the content type; the reply itself names the type elsewhere only as an attribute.
        kovra_asn1_value *octet_string = nullptr;
        const Value wrapper = decode(KOVRA_ASN1_TYPE_ANY, behind(data, tst_info)).value;
        ASSERT_EQ(kovra_asn1_any_getobject(wrapper.get(), KOVRA_ASN1_TYPE_OCTET_STRING, &octet_string, nullptr), 1);
        const Value content(KOVRA_ASN1_TYPE_OCTET_STRING, octet_string);
        const Value info = read_back(KOVRA_ASN1_TYPE_TST_INFO, octets_in(content.get()));
        EXPECT_EQ(oid_in(kovra_tsp_tstinfo_getpolicy(info.get())), "1.2.3.4.1");
        EXPECT_EQ(kovra_asn1_boolean_istrue(kovra_tsp_tstinfo_getordering(info.get())), row.has_everything);
        EXPECT_EQ(kovra_tsp_tstinfo_getnonce(info.get()) != nullptr, row.has_everything);
        EXPECT_EQ(kovra_tsp_tstinfo_gettsaname(info.get()) != nullptr, row.has_everything);
        const kovra_asn1_value *accuracy = kovra_tsp_tstinfo_getaccuracy(info.get());
        EXPECT_EQ(accuracy != nullptr, row.has_everything);
        if (accuracy != nullptr) {
            EXPECT_EQ(number_in(kovra_tsp_accuracy_getseconds(accuracy)), 1);
            EXPECT_EQ(number_in(kovra_tsp_accuracy_getmillis(accuracy)), 500);
            EXPECT_EQ(number_in(kovra_tsp_accuracy_getmicros(accuracy)), 100);
        }

        // SET { SigningCertificate } behind the type of the attribute.
        kovra_asn1_value *attribute = nullptr;
        const Value set = decode(KOVRA_ASN1_TYPE_SET_OF_ANY, behind(data, row.attribute)).value;
        ASSERT_EQ(kovra_asn1_any_toobject(element(set.get(), 0), row.type, &attribute, nullptr), 1);
        const Value owner(row.type, attribute);
        const Value signing = read_back(row.type, encode(row.type, attribute).octets);
        // The signer's certificate, and where the configuration wants them those that issued it, with their issuers.
        kovra_asn1_value *ids = kovra_ess_signingcertificate_getcerts(signing.get());
        const bool is_v2 = row.type == KOVRA_ASN1_TYPE_SIGNING_CERTIFICATE_V2;
        ASSERT_EQ(kovra_asn1_list_getsize(ids), is_v2 ? 2 : 1);
        for (int32_t i = 0; i < kovra_asn1_list_getsize(ids); ++i) {
            const kovra_asn1_value *id = element(ids, i);
            EXPECT_EQ(octets_in(is_v2 ? kovra_ess_certidv2_getcerthash(id) : kovra_ess_certid_getcerthash(id)).size(),
                      row.hash);
            const kovra_asn1_value *issuer =
                is_v2 ? kovra_ess_certidv2_getissuersn(id) : kovra_ess_certid_getissuersn(id);
            ASSERT_EQ(issuer != nullptr, i == 1);
            if (issuer != nullptr) {
                EXPECT_EQ(number_in(kovra_ess_issuerserial_getsn(issuer)), 1);
            }
        }
        EXPECT_EQ(kovra_ess_signingcertificate_getpolicies(signing.get()), nullptr);
        EXPECT_NE(data.find(encode(row.type, signing.get()).octets), data.npos);
    }
    const Value refusal = read_back(KOVRA_ASN1_TYPE_TIME_STAMP_RESP, example("timestamp-reply-rejected.der"));
    const kovra_asn1_value *status = kovra_tsp_timestampresp_getstatus(refusal.get());
    EXPECT_EQ(number_in(kovra_tsp_pkistatusinfo_getstatus(status)), 2);
    EXPECT_EQ(octets_in(element(kovra_tsp_pkistatusinfo_getstatusstring(status), 0)),
              "Message digest algorithm is not supported.");
    EXPECT_NE(kovra_tsp_pkistatusinfo_getfailinfo(status), nullptr);
    EXPECT_EQ(kovra_tsp_timestampresp_gettoken(refusal.get()), nullptr);
}

} // namespace
} // namespace kovra::test
