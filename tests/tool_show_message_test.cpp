// What show and check of kovra-asn1 make of messages, time stamps, responses, keys and stores.

#include "tests/tool_testing.hpp"

#if defined(KOVRA_TOOL_PATH) && !defined(_WIN32)

#include <map>

namespace {

namespace fs = std::filesystem;
using kovra::test::der;
using kovra::test::octets;
using kovra::test::oid;
using kovra::test::pem;
using kovra::test::read_file;
using kovra::test::repeated;
using Result = kovra::test::ToolResult;

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

std::string attribute(const char *id, std::string_view value) {
    return der(0x30, oid(id) + der(0x31, value));
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

class ShowMessage : public kovra::test::ShowTest {};

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
        {pem(read_file(examples / "parameters-dsa.der"), "DSA PARAMETERS"), "DSS_PARMS (60)"},
        {pem(read_file(examples / "parameters-dh-pkcs3.der"), "DH PARAMETERS"), "DH_PARAMETER (102)"},
        {pem(read_file(examples / "parameters-ec.der"), "EC PARAMETERS"), "ECPK_PARAMETERS (201)"},
        {pem(read_file(examples / "public-rsa.der"), "RSA PUBLIC KEY"), "RSA_PUBLIC_KEY (56)"},
        {pem(read_file(examples / "key-dsa.der"), "DSA PRIVATE KEY"), "SEQUENCE_OF_ANY (24)"},
        {pem(key, "PRIVATE KEY"), "EC_PRIVATE_KEY (202)"},
        {pem(read_file(examples / "pkcs7-mail.der"), "PKCS7"), "CONTENT_INFO (111)"},
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

TEST_F(ShowMessage, StructuresInWords) {
    const std::string sha256 = algorithm("2.16.840.1.101.3.4.2.1");
    const std::string aes = algorithm("2.16.840.1.101.3.4.1.2", octets("0401AB"));
    const std::string name = der(0x30, der(0x31, der(0x30, oid("2.5.4.3") + octets("0C 01 41"))));
    const std::string serial = octets("02 01 07");
    const std::string kek =
        octets("020104") +
        der(0x30, octets("0401AB") + der(0x18, "20300102030405Z") + der(0x30, oid("1.2.3.4") + octets("020105"))) +
        aes + octets("0401CD");
    const std::string imprint = der(0x30, sha256 + octets("0401AB"));
    const struct {
        const char *type;
        std::string value;
        const char *expected;
    } rows[] = {
        {"CONTENT_INFO", der(0x30, oid(signed_id)), "content type: signedData\ncontent: (none)\n"},
        {"CONTENT_INFO", content_info(data_id, der(0x04, "a\n\"")), "content type: data\ncontent: \"a\\n\\\"\"\n"},
        {"CONTENT_INFO", content_info(data_id, octets("24 80 0401AB 0401CD 0000")),
         "content type: data\ncontent: abcd\n"},
        {"CONTENT_INFO", content_info("1.2.3.4", octets("020105")), "content type: 1.2.3.4\ncontent: 5\n"},
        // Content of PKCS #7 is no OCTET STRING.
        {"PKCS7_SIGNED_DATA",
         der(0x30,
             octets("020101 3100") +
                 content_info(digested_id, der(0x30, octets("020100") + sha256 + content_info(data_id, der(0x04, "a")) +
                                                         octets("0401AB"))) +
                 octets("3100")),
         "version: 1\ncontent type: digestedData\ncontent:\n  version: 0\n  digest algorithm: sha256\n"
         "  content type: data\n  content: \"a\"\n  digest: ab\nsigners: 0\n"},
        {"RECIPIENT_INFO", der(0xA2, kek),
         "recipient: key encryption key\n  version: 4\n  key id: ab\n  date: 2030-01-02 03:04:05 UTC\n  other:\n"
         "    id: 1.2.3.4\n    value: 5\n  key encryption: aes128-CBC\n    parameters: ab\n  encrypted key: cd\n"},
        {"RECIPIENT_INFO", der(0xA4, oid("1.2.3.4") + octets("020105")),
         "recipient: other\n  type: 1.2.3.4\n  value: 5\n"},
        {"AUTHENTICATED_DATA",
         der(0x30,
             octets("020100 3100") + sha256 + der(0x30, oid(data_id) + der(0xA0, der(0x04, "a"))) + octets("0401AB")),
         "version: 0\nrecipients: 0\nMAC algorithm: sha256\ncontent type: data\ncontent: \"a\"\nMAC: ab\n"},
        {"REVOCATION_INFO_CHOICE", der(0xA1, oid("1.3.6.1.5.5.7.16.2") + octets("30 03 0A 01 06")),
         "format: 1.3.6.1.5.5.7.16.2\nOCSP response:\n  status: unauthorized\n"},
        {"PKCS10_ATTRIBUTE",
         attribute("1.2.840.113549.1.9.15", der(0x30, aes + algorithm("1.2.840.113549.3.2", octets("02 02 0080")))),
         "sMIMECapabilities:\n  capability: aes128-CBC\n    parameters: ab\n  capability: rc2CBC\n"
         "    parameters: 128\n"},
        {"PKCS10_ATTRIBUTE",
         attribute("1.2.840.113549.1.9.16.2.12",
                   der(0x30, der(0x30, der(0x30, octets("0401AB") + der(0x30, der(0x30, der(0xA4, name)) + serial))) +
                                 der(0x30, der(0x30, oid("1.2.3.4"))))),
         "signingCertificate:\n  certificate:\n    hash: ab\n    issuer:\n      dirName: CN=A\n    serial: 0x07 (7)\n"
         "  policies:\n    policy: 1.2.3.4\n"},
        {"PKCS10_ATTRIBUTE", attribute("1.2.840.113549.1.9.16.2.14", content_info(data_id, der(0x04, "a"))),
         "signatureTimeStampToken:\n  content type: data\n  content: \"a\"\n"},
        {"TIME_STAMP_REQ", der(0x30, octets("020101") + imprint + oid("1.2.3.4") + octets("0101FF")),
         "version: 1\nhash algorithm: sha256\nhash: ab\npolicy: 1.2.3.4\ncertificate wanted: yes\n"},
        {"PKI_STATUS_INFO", octets("30 0E 02 01 02 30 03 0C 01 41 03 04 05 21 00 20"),
         "status: rejection\ntext: \"A\"\nfailure: badRequest, incorrectData, bit 18\n"},
        {"EXTENSION", der(0x30, oid("1.3.6.1.5.5.7.48.1.4") + der(0x04, der(0x30, oid("1.3.6.1.5.5.7.48.1.1")))),
         "ocspResponse:\n  response type: ocspBasic\n"},
        {"OCSP_CRL_ID", der(0x30, der(0xA0, der(0x16, "http://a")) + der(0xA1, octets("020105"))),
         "URL: \"http://a\"\nnumber: 5\n"},
        {"33",
         algorithm("1.2.840.113549.1.5.13",
                   der(0x30, algorithm("1.2.840.113549.1.5.12",
                                       der(0x30, octets("0401AB 02020800 020110") +
                                                     algorithm("1.2.840.113549.2.9", octets("0500")))) +
                                 algorithm("1.2.840.113549.3.2", octets("30 06 02 01 3A 04 01 CD")))),
         "algorithm: PBES2\n  key derivation: PBKDF2\n    salt: ab\n    iterations: 2048\n    key length: 16\n"
         "    pseudorandom function: hmacWithSHA256\n  cipher: rc2CBC\n    version: 58 (128 bits)\n    IV: cd\n"},
        {"33", algorithm("1.2.840.113549.1.12.1.3", octets("30 06 0401AB 020105")),
         "algorithm: pbeWithSHAAnd3-KeyTripleDES-CBC\n  salt: ab\n  iterations: 5\n"},
        {"RSASSA_PSS_PARAMS", octets("30 00"),
         "hash: sha1\nmask generation: id-mgf1\n  with: sha1\nsalt length: 20\ntrailer field: 1\n"},
        {"PRIVATE_KEY_INFO",
         der(0x30, octets("020101") + algorithm("1.3.101.112") + octets("04 03 0401AB") +
                       der(0xA0, attribute("1.2.840.113549.1.9.20", octets("1E 02 0041"))) + octets("81 02 00CD")),
         "version: 1\nalgorithm: Ed25519\nprivate key: (hidden, 1 octets)\nattributes: 1\n  friendlyName:\n"
         "    value: \"A\"\npublic key: cd\n"},
        {"PRIVATE_KEY_ATTRIBUTE", octets("30 10 0C 01 41 80 01 02 02 01 03 A1 05 0C 03 C3A942"),
         "provider: \"A\"\nkey type: 2\nflag: 3\nkey id: \"éB\"\n"},
        {"OLD_CERT_THUMBPRINTS", octets("30 06 0401AB 0401CD"), "thumbprint: ab\nthumbprint: cd\n"},
    };
    for (const auto &[type, value, expected] : rows)
        EXPECT_EQ(shown(type, value), expected) << type;
}

TEST_F(ShowMessage, ContentThatIsNoneIsExplained) {
    const std::string input = content_info("1.2.840.113549.1.9.16.1.4", octets("30 03 02 01 05"));
    const Result result = run("show", input);
    EXPECT_NE(result.out.find("malformed:                  3003020105\n"), std::string::npos) << result.out;
    EXPECT_EQ(result.error.find("kovra-asn1: -[1] id-ct-TSTInfo: octet 5: "), 0U) << result.error;
    EXPECT_EQ(result.code, 1);
    const Result checked = run("check", input);
    EXPECT_EQ(checked.error.find("kovra-asn1: -[1] TST_INFO: octet 5: "), 0U) << checked.error;
    EXPECT_NE(checked.out.find("  malformed:        1\n"), std::string::npos) << checked.out;
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
