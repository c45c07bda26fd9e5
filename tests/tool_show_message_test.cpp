// What show and check of kovra-asn1 make of messages, time stamps, responses, keys and stores.

#include "tests/tool_testing.hpp"

#if defined(KOVRA_TOOL_PATH) && !defined(_WIN32)

#include <map>

namespace {

namespace fs = std::filesystem;
using namespace kovra::test;
using Result = ToolResult;

const fs::path examples = KOVRA_SOURCE_DIR "/examples";

const char *const data_id = "1.2.840.113549.1.7.1";
const char *const signed_id = "1.2.840.113549.1.7.2";
const char *const digested_id = "1.2.840.113549.1.7.5";

std::string content_info(const char *id, std::string_view content) {
    return der(0x30, oid(id) + der(0xA0, content));
}

std::string algorithm(const char *id, std::string_view parameters = "") {
    return der(0x30, oid(id) + std::string(parameters));
}

std::vector<std::string> lines_of(const std::string &text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::string hex_of(const std::string &octets) {
    std::string text;
    for (const char c : octets)
        for (const int nibble : {(c >> 4) & 0xF, c & 0xF})
            text += "0123456789abcdef"[nibble];
    return text;
}

class ShowMessage : public ToolTest {};

// Elements of no known structure are shown as trees; of the examples these are, or have, such.
TEST_F(ShowMessage, KnownStructuresAreNoTrees) {
    size_t trees = 0;
    for (const auto &entry : fs::directory_iterator(examples)) {
        const std::string name = entry.path().filename().string();
        if (entry.path().extension() == ".md" || entry.path().extension() == ".c")
            continue;
        const std::string out = run("show " + entry.path().string()).out;
        const std::vector<std::string> lines = lines_of(out);
        const bool is_tree = std::any_of(lines.begin(), lines.end(), [](const std::string &line) {
            const size_t begin = line.find_first_not_of(' ');
            return line.find("SEQUENCE", begin) == begin || line.find("INTEGER", begin) == begin;
        });
        const bool may_be = name.starts_with("cmp-") || name.starts_with("signature-") || name == "public-rsa.der" ||
                            name == "cms-signed-pss-receipt.der" || name == "parameters-dh.der" ||
                            name == "parameters-dh-pkcs3.der" || name == "parameters-dsa.der";
        EXPECT_EQ(is_tree, may_be) << name << out;
        trees += is_tree ? 1 : 0;
    }
    EXPECT_EQ(trees, 11U);
}

// The same lines with --secrets tell what is not to be found without.
TEST_F(ShowMessage, PrivateValuesAreHidden) {
    const std::map<std::string, size_t> expected = {
        {"key-dh-pkcs3.der", 1},    {"key-dh.der", 1},       {"key-dsa-pkcs8.der", 1},   {"key-dsa.der", 1},
        {"key-ec-explicit.der", 1}, {"key-ec-pkcs8.der", 1}, {"key-ec.der", 1},          {"key-ed25519.der", 1},
        {"key-ed25519.pem", 1},     {"key-rsa-2048.der", 6}, {"key-rsa-3primes.der", 9}, {"key-rsa-pkcs8.der", 6},
        {"key-rsa-pss.der", 6},     {"key-rsa.der", 6},      {"key-sm2-pkcs8.der", 1},   {"key-sm2.der", 1},
        {"store-plain.p12", 6}};
    std::map<std::string, size_t> hidden;
    for (const auto &entry : fs::directory_iterator(examples)) {
        const std::string name = entry.path().filename().string();
        const std::string closed = run("show --full " + entry.path().string()).out;
        const std::vector<std::string> lines = lines_of(closed);
        const std::vector<std::string> open = lines_of(run("show --full --secrets " + entry.path().string()).out);
        ASSERT_EQ(lines.size(), open.size()) << name;
        const std::string file = hex_of(read_file(entry.path()));
        for (size_t i = 0; i < lines.size(); ++i) {
            if (lines[i].find("(hidden, ") == std::string::npos) {
                EXPECT_EQ(lines[i], open[i]) << name;
                continue;
            }
            std::string value = open[i].substr(open[i].rfind(' ') + 1);
            value.erase(0, value.starts_with("0x") ? 2 : 0);
            EXPECT_GE(value.size(), 40U) << open[i];
            EXPECT_EQ(closed.find(value), std::string::npos) << name << lines[i];
            EXPECT_TRUE(entry.path().extension() == ".pem" || file.find(value) != std::string::npos) << open[i];
            ++hidden[name];
        }
    }
    EXPECT_EQ(hidden, expected);
}

TEST_F(ShowMessage, PrivateOctetsThatAreNoKeyAreHidden) {
    const std::string secret = der(0x04, repeated("\xAB", 40));
    const auto key = [&](const char *id) { return der(0x30, octets("020100") + algorithm(id) + der(0x04, secret)); };
    const auto bags = [](const std::string &bag) {
        return content_info(data_id, der(0x04, der(0x30, content_info(data_id, der(0x04, der(0x30, bag))))));
    };
    const auto store = [&](const std::string &safe) { return der(0x30, octets("020103") + safe); };
    const struct {
        const char *name;
        std::string input;
        int code;
    } rows[] = {
        {"a key of an unknown algorithm", key("1.2.3.4"), 0},
        {"octets that are no RSA key", key("1.2.840.113549.1.1.1"), 1},
        {"a label of a key", pem(der(0x30, octets("020100") + secret + octets("05 00")), "EC PRIVATE KEY"), 1},
        {"numbers that are no RSA key", der(0x30, repeated(der(0x02, repeated("\x2B", 40)), 10)), 1},
        {"a bag of an unknown type", store(bags(content_info("1.2.3.4", secret))), 0},
        {"a bag that holds something else", store(bags(content_info("1.2.840.113549.1.12.10.1.1", secret))), 1},
        {"a bag of a secret", store(bags(content_info("1.2.840.113549.1.12.10.1.5", content_info("1.2.3.4", secret)))),
         0},
        {"a store of other data", store(content_info(data_id, der(0x04, secret))), 1},
        {"a store of unknown content", store(content_info("1.2.3.4", secret)), 0},
        {"a store that says it is enveloped",
         store(content_info("1.2.840.113549.1.7.3", der(0x30, octets("020100") + der(0x30, secret)))), 0},
        {"a store that is signed",
         store(content_info(signed_id, der(0x30, octets("020101 3100") +
                                                     bags(content_info("1.2.840.113549.1.12.10.1.1", key("1.2.3.4"))) +
                                                     octets("3100")))),
         0},
    };
    for (const auto &[name, input, code] : rows) {
        const Result result = run("show --full", input);
        EXPECT_EQ(result.code, code) << name << result.error;
        EXPECT_EQ(result.out.find("abababab"), std::string::npos) << name << result.out;
        EXPECT_EQ(result.error.find("abababab"), std::string::npos) << name << result.error;
        if (input.find("-----") == std::string::npos && name != std::string("numbers that are no RSA key")) {
            EXPECT_NE(result.out.find("(hidden, "), std::string::npos) << name << result.out;
            EXPECT_NE(run("show --full --secrets", input).out.find("abababab"), std::string::npos) << name;
        }
    }
}

TEST_F(ShowMessage, TypesAreDetected) {
    const std::string key = read_file(examples / "key-ec.der");
    const struct {
        std::string input;
        const char *heading;
    } rows[] = {
        {pem(key, "PRIVATE KEY"), "EC_PRIVATE_KEY (202)"},
        {read_file(examples / "ocsp-response-key.der").substr(30), "OCSP_BASIC_RESPONSE (182)"},
        {der(0x30, octets("020101 3100") + der(0x30, oid(data_id)) + octets("3100")), "PKCS7_SIGNED_DATA (133)"},
        {der(0x30, octets("020100 3100") + der(0x30, oid(data_id) + algorithm("1.2.3.4"))), "ENVELOPED_DATA (164)"},
        {der(0x30, content_info(data_id, octets("0402 3000"))), "AUTHENTICATED_SAFE (114)"},
        {der(0x30, content_info("1.2.840.113549.1.12.10.1.3", content_info("1.2.3.4", key))), "SAFE_CONTENTS (116)"},
        {octets("30 06 02 01 05 02 01 06"), "ANY (23)"},
        {octets("30 09 02 01 05 02 01 06 02 01 07"), "ANY (23)"},
    };
    for (const auto &[input, heading] : rows) {
        const Result result = run("show", input);
        EXPECT_NE(lines_of(result.out)[0].find(std::string(" ") + heading), std::string::npos)
            << heading << result.out.substr(0, 80) << result.error;
        EXPECT_EQ(result.code, 0) << heading << result.error;
    }
}

// A label says what is tried first, and what a block is not that is none.
TEST_F(ShowMessage, LabelsTellTypes) {
    const struct {
        const char *label;
        const char *example;
        const char *type;
    } rows[] = {
        {"CERTIFICATE", "cert-ec", "CERTIFICATE"},
        {"X509 CERTIFICATE", "cert-ec", "CERTIFICATE"},
        {"X509 CRL", "crl-v1", "CERTIFICATE_LIST"},
        {"CRL", "crl-v1", "CERTIFICATE_LIST"},
        {"CERTIFICATE REQUEST", "request", "CERTIFICATION_REQUEST"},
        {"NEW CERTIFICATE REQUEST", "request", "CERTIFICATION_REQUEST"},
        {"PKCS7", "pkcs7-mail", "CONTENT_INFO"},
        {"CMS", "cms-data", "CONTENT_INFO"},
        {"PUBLIC KEY", "public-ec", "SUBJECT_PUBLIC_KEY_INFO"},
        {"RSA PUBLIC KEY", "public-rsa", "RSA_PUBLIC_KEY"},
        {"PRIVATE KEY", "key-rsa-pkcs8", "PRIVATE_KEY_INFO"},
        {"ENCRYPTED PRIVATE KEY", "key-rsa-encrypted", "ENCRYPTED_PRIVATE_KEY_INFO"},
        {"RSA PRIVATE KEY", "key-rsa", "RSA_PRIVATE_KEY"},
        {"EC PRIVATE KEY", "key-ec", "EC_PRIVATE_KEY"},
        {"DSA PRIVATE KEY", "key-dsa", "SEQUENCE_OF_ANY"},
        {"SM2 PRIVATE KEY", "key-sm2", "EC_PRIVATE_KEY"},
        {"EC PARAMETERS", "parameters-ec", "ECPK_PARAMETERS"},
        {"SM2 PARAMETERS", "parameters-ec", "ECPK_PARAMETERS"},
        {"DSA PARAMETERS", "parameters-dsa", "DSS_PARMS"},
        {"DH PARAMETERS", "parameters-dh-pkcs3", "DH_PARAMETER"},
    };
    for (const auto &[label, example, type] : rows) {
        const std::string element = read_file(examples / (std::string(example) + ".der"));
        const Result result = run("show", pem(element, label));
        EXPECT_EQ(result.out.find(std::string("# -: ") + type + " ("), 0U) << label << result.out.substr(0, 80);
        const std::string other = pem(octets("02 01 05"), label);
        const Result refused = run("show", other);
        EXPECT_EQ(refused.code, 1) << label;
        EXPECT_EQ(refused.error, run(std::string("show --type ") + type, other).error) << label;
    }
}

// What stands in a value is looked at, too; the error says what was expected there.
TEST_F(ShowMessage, InnerValuesAreChecked) {
    const char *const stamp_id = "1.2.840.113549.1.9.16.1.4";
    const std::string bad = octets("30 03 02 01 05");
    const std::string stamp = content_info(stamp_id, der(0x04, bad));
    const auto bag = [&](const char *id, const std::string &value) {
        return der(0x30, content_info((std::string("1.2.840.113549.1.12.10.1.") + id).c_str(), value));
    };
    const struct {
        const char *type;
        std::string value;
        const char *inner;
    } rows[] = {
        {"CONTENT_INFO", stamp, "TST_INFO"},
        {"CONTENT_INFO", content_info("1.2.840.113549.1.7.3", octets("0500")), "ENVELOPED_DATA"},
        {"PKCS7_SIGNED_DATA", der(0x30, octets("020101 3100") + stamp + octets("3100")), "TST_INFO"},
        {"DIGESTED_DATA", der(0x30, octets("020100") + algorithm("1.2.3.4") + stamp + octets("0400")), "TST_INFO"},
        {"TIME_STAMP_RESP", der(0x30, octets("30 03 02 01 00") + stamp), "TST_INFO"},
        {"OCSP_RESPONSE",
         der(0x30, octets("0A 01 00") + der(0xA0, der(0x30, oid("1.3.6.1.5.5.7.48.1.1") + der(0x04, bad)))),
         "OCSP_BASIC_RESPONSE"},
        {"PRIVATE_KEY_INFO", der(0x30, octets("020100") + algorithm("1.2.840.113549.1.1.1") + der(0x04, bad)),
         "RSA_PRIVATE_KEY"},
        {"PFX", der(0x30, octets("020103") + content_info(data_id, der(0x04, bad))), "AUTHENTICATED_SAFE"},
        {"AUTHENTICATED_SAFE", der(0x30, content_info(data_id, der(0x04, bad))), "SAFE_CONTENTS"},
        {"SAFE_CONTENTS", bag("1", bad), "PRIVATE_KEY_INFO"},
        {"SAFE_CONTENTS", bag("3", content_info("1.2.840.113549.1.9.22.1", der(0x04, bad))), "CERTIFICATE"},
        {"SAFE_CONTENTS", bag("4", content_info("1.2.840.113549.1.9.23.1", der(0x04, bad))), "CERTIFICATE_LIST"},
    };
    for (const auto &[type, value, inner] : rows) {
        const Result result = run(std::string("check --type ") + type, value);
        EXPECT_EQ(result.error.find(std::string("kovra-asn1: -[1] ") + inner + ": octet "), 0U)
            << inner << result.error;
        EXPECT_NE(result.out.find("  malformed:        1\n"), std::string::npos) << type << result.out;
    }
}

TEST_F(ShowMessage, ContentThatIsNoneIsExplained) {
    const std::string input = content_info("1.2.840.113549.1.9.16.1.4", octets("30 03 02 01 05"));
    const Result result = run("show", input);
    EXPECT_NE(result.out.find("malformed:                  3003020105\n"), std::string::npos) << result.out;
    EXPECT_EQ(result.error.find("kovra-asn1: -[1] id-ct-TSTInfo: octet 5: "), 0U) << result.error;
    EXPECT_EQ(result.code, 1);
    // BER in content comes back as DER; the content itself is kept.
    const std::string ber = content_info("1.2.840.113549.1.7.6", octets("30 80 02 01 00 30 80") + oid(data_id) +
                                                                     algorithm("1.2.3.4") + octets("0000 0000"));
    EXPECT_NE(run("check", ber).out.find("  reencoded:        1\n"), std::string::npos);
}

// Neither the stack nor quadratic time is taken by what is nested without end.
TEST_F(ShowMessage, DeepNestingEnds) {
    std::string message = content_info(data_id, der(0x04, "a"));
    std::string cipher = algorithm("1.2.3.4");
    std::string bag = content_info("1.2.3.4", octets("0500"));
    for (int i = 0; i < 400; ++i) {
        message =
            content_info(digested_id, der(0x30, octets("020100") + algorithm("1.2.3.4") + message + octets("0401AB")));
        cipher = algorithm("1.2.840.113549.1.5.13", der(0x30, algorithm("1.2.3.4") + cipher));
        bag = content_info("1.2.840.113549.1.12.10.1.6", der(0x30, bag));
    }
    for (const auto &[type, input] : {std::pair("111", message), {"33", cipher}, {"SAFE_BAG", bag}}) {
        EXPECT_EQ(run("show --type " + std::string(type), input).code, 0) << type;
        EXPECT_EQ(run("check --type " + std::string(type), input).code, 0) << type;
    }
}

} // namespace

#endif
