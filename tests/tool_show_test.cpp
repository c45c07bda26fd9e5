// The commands show and check of kovra-asn1, run as a process.
//
// tests/data/show has what `show` prints for some of the examples. After an intended change it is made again, and read,
// with
//     cd examples; for f in ../tests/data/show/*; do kovra-asn1 show $(basename $f .txt) >$f; done

#include "tests/tool_testing.hpp"

#if defined(KOVRA_TOOL_PATH)

#include <algorithm>
#include <random>

namespace {

namespace fs = std::filesystem;
using kovra::test::count;
using kovra::test::der;
using kovra::test::is_harmless;
using kovra::test::octets;
using kovra::test::oid;
using kovra::test::pem;
using kovra::test::read_file;
using kovra::test::repeated;
using Result = kovra::test::ToolResult;

const fs::path examples = KOVRA_SOURCE_DIR "/examples";

std::string example(const std::string &name) {
    return read_file(examples / name);
}

std::string extension(const char *id, std::string_view value, bool is_critical = false) {
    return der(0x30, oid(id) + (is_critical ? octets("01 01 FF") : "") + der(0x04, value));
}

std::string attribute(const char *id, std::string_view value) {
    return der(0x31, der(0x30, oid(id) + std::string(value)));
}

class Show : public kovra::test::ShowTest {};

TEST_F(Show, ExamplesAreShownAsRecorded) {
    size_t files = 0;
    for (const auto &entry : fs::directory_iterator(KOVRA_SOURCE_DIR "/tests/data/show")) {
        const std::string name = entry.path().stem().string();
        const Result result = run("show " + (examples / name).string());
        std::string expected = read_file(entry.path());
        expected.replace(2, name.size(), (examples / name).string());
        EXPECT_EQ(result.out, expected) << name;
        EXPECT_EQ(result.code, 0) << result.error;
        ++files;
    }
    EXPECT_EQ(files, 9U);
}

TEST_F(Show, AllOfEveryExampleIsShown) {
    size_t extensions = 0;
    for (const auto &entry : fs::directory_iterator(examples)) {
        const fs::path &path = entry.path();
        if (path.extension() == ".md" || path.extension() == ".c")
            continue;
        const Result result = run("show --full " + path.string());
        EXPECT_EQ(result.code, 0) << path << result.error;
        EXPECT_EQ(result.error, "") << path;
        EXPECT_TRUE(is_harmless(result.out)) << path;
        EXPECT_EQ(result.out.find("... ("), result.out.npos) << path << " --full cuts nothing";
        // Identifiers without a name have no other value than octets; others have none such.
        std::istringstream lines(result.out);
        std::string before;
        for (std::string line; std::getline(lines, line); before = line) {
            EXPECT_NE(line.back(), ' ') << path << line;
            if (line.find("    value: ") == 0) {
                EXPECT_EQ(before.find("  1.3.6.1.4.1.99999."), 0U) << path << before;
                ++extensions;
            }
        }
    }
    EXPECT_GE(extensions, 1U);
}

TEST_F(Show, StandardExtensionsAreDecoded) {
    // What is no value of its type is told, what has no type is shown as octets.
    for (const int last : {9, 14, 15, 16, 17, 18, 19, 20, 21, 23, 24, 27, 28, 29, 30, 31, 32, 33, 35, 36, 37, 46, 54}) {
        const std::string id = "2.5.29." + std::to_string(last);
        const Result result = run("show --type EXTENSION", extension(id.c_str(), octets("9E 00")));
        EXPECT_NE(result.out.find("\n  malformed:                9e00\n"), std::string::npos) << id << result.out;
        EXPECT_EQ(result.error.find("kovra-asn1: -[1] "), 0U) << result.error;
        EXPECT_NE(result.error.find(": octet 1: "), std::string::npos) << result.error;
        EXPECT_EQ(result.code, 1) << id;
    }
    const Result unknown = run("show --type EXTENSION", extension("1.2.3.4", octets("9E 00"), true));
    EXPECT_EQ(unknown.out, "1.2.3.4:                    critical\n  value:                    9e00\n");
    EXPECT_EQ(unknown.code, 0);
}

TEST_F(Show, ExtensionsInWords) {
    const std::string name = der(0x30, attribute("2.5.4.3", octets("0C 01 41")));
    const std::string uri = der(0x86, "http://a");
    const struct {
        const char *id;
        std::string value;
        const char *expected;
    } rows[] = {
        {"2.5.29.9", der(0x30, der(0x30, oid("1.3.6.1.5.5.7.9.1") + der(0x31, der(0x18, "19700102030405Z")))),
         "subjectDirectoryAttributes:\n  dateOfBirth:\n    time: 1970-01-02 03:04:05 UTC\n"},
        {"2.5.29.15", octets("03 03 07 0180"), "keyUsage:\n  usage: encipherOnly, decipherOnly\n"},
        {"2.5.29.15", octets("03 01 00"), "keyUsage:\n  usage: (none)\n"},
        {"2.5.29.15", octets("03 03 05 00 60"), "keyUsage:\n  usage: bit 9, bit 10\n"},
        {"2.5.29.16", der(0x30, der(0x81, "20300102030405Z")),
         "privateKeyUsagePeriod:\n  not after: 2030-01-02 03:04:05 UTC\n"},
        {"2.5.29.17",
         der(0x30, der(0xA0, oid("1.2.3.4") + octets("A0 03 02 01 05")) + der(0x81, "a@b") + der(0x82, "a\nb\\") +
                       octets("A3 02 30 00") + der(0xA4, name) +
                       der(0xA5, der(0xA0, octets("0C 01 41")) + der(0xA1, octets("1E 02 0042"))) + uri +
                       octets("87 04 7F000001") + octets("87 10 20010DB8000000000000000000000001") +
                       octets("87 10 00000000000000010000000000000000") + octets("87 02 0102") +
                       octets("88 03 2A0304")),
         "subjectAltName:\n  otherName: 1.2.3.4 020105\n  email: a@b\n  DNS: a\\nb\\\\\n  x400Address: a3023000\n"
         "  dirName: CN=A\n  ediPartyName: \"A\", \"B\"\n  URI: http://a\n  IP: 127.0.0.1\n  IP: 2001:db8::1\n"
         "  IP: 0:0:0:1::\n  IP: 0102\n  registeredID: 1.2.3.4\n"},
        {"2.5.29.19", octets("30 00"), "basicConstraints:\n  CA: no\n"},
        {"2.5.29.19", octets("30 06 01 01 FF 02 01 05"), "basicConstraints:\n  CA: yes\n  path length: 5\n"},
        {"2.5.29.20", octets("02 0A 01000000000000000000"), "cRLNumber:\n  number: 0x01000000000000000000\n"},
        {"2.5.29.20", octets("02 08 8000000000000000"), "cRLNumber:\n  number: -9223372036854775808\n"},
        {"2.5.29.21", octets("0A 01 08"), "cRLReason:\n  reason: removeFromCRL\n"},
        {"2.5.29.21", octets("0A 01 07"), "cRLReason:\n  reason: 7\n"},
        {"2.5.29.23", oid("1.2.840.10040.2.1"), "holdInstructionCode:\n  id: 1.2.840.10040.2.1\n"},
        {"2.5.29.27", octets("02 01 00"), "deltaCRLIndicator:\n  number: 0\n"},
        {"2.5.29.28", octets("30 0A 81 01 FF 83 02 01 0A 85 01 FF"),
         "issuingDistributionPoint:\n  only user certs: yes\n  only CA certs: no\n  only attribute certs: yes\n"
         "  only reasons: superseded, certificateHold\n  indirect CRL: no\n"},
        {"2.5.29.29", der(0x30, der(0xA4, name)), "certificateIssuer:\n  dirName: CN=A\n"},
        {"2.5.29.30",
         der(0x30, der(0xA0, der(0x30, octets("87 08 0A000000 FFFF0000 80 01 05")) +
                                 der(0x30, octets("87 08 0A000000 FF00FF00 81 01 07")) +
                                 der(0x30, octets("87 20 20010DB8000000000000000000000000"
                                                  "       FFFFFFFF000000000000000000000000"))) +
                       der(0xA1, der(0x30, der(0x82, ".a")))),
         "nameConstraints:\n  permitted:\n    IP: 10.0.0.0/16, minimum 5\n    IP: 10.0.0.0/255.0.255.0, maximum 7\n"
         "    IP: 2001:db8::/32\n  excluded:\n    DNS: .a\n"},
        {"2.5.29.31", der(0x30, der(0x30, der(0xA0, der(0xA1, der(0x30, oid("2.5.4.3") + octets("0C 01 41")))))),
         "cRLDistributionPoints:\n  point:\n    relative name: CN=A\n"},
        {"2.5.29.46", der(0x30, der(0x30, der(0xA0, der(0xA0, uri)) + octets("81 02 06 40"))),
         "freshestCRL:\n  point:\n    URI: http://a\n    reasons: keyCompromise\n"},
        {"2.5.29.32",
         der(0x30, der(0x30, oid("2.5.29.32.0") +
                                 der(0x30, der(0x30, oid("1.3.6.1.5.5.7.2.1") + der(0x16, "http://a")) +
                                               der(0x30, oid("1.3.6.1.5.5.7.2.2") +
                                                             der(0x30, der(0x30, octets("1A 01 41 30 03 02 01 07")))) +
                                               der(0x30, oid("1.2.3.4") + octets("02 01 05"))))),
         "certificatePolicies:\n  policy: anyPolicy\n    CPS: http://a\n    notice: (no text)\n"
         "      organization: \"A\"\n      numbers: 7\n    qualifier: 1.2.3.4\n      value: 5\n"},
        {"2.5.29.35", der(0x30, octets("80 02 0102") + der(0xA1, der(0xA4, name)) + octets("82 02 FF00")),
         "authorityKeyIdentifier:\n  key id: 0102\n  issuer:\n    dirName: CN=A\n  serial: -0x0100 (-256)\n"},
        {"2.5.29.36", octets("30 06 80 01 00 81 01 02"),
         "policyConstraints:\n  explicit policy after: 0\n  no mapping after: 2\n"},
        {"2.5.29.54", octets("02 01 03"), "inhibitAnyPolicy:\n  number: 3\n"},
        {"1.3.6.1.5.5.7.1.11", der(0x30, der(0x30, oid("1.3.6.1.5.5.7.48.5") + uri)),
         "subjectInfoAccess:\n  caRepository: URI:http://a\n"},
        {"1.3.6.1.5.5.7.1.3",
         der(0x30, der(0x30, oid("0.4.0.1862.1.1")) + der(0x30, oid("0.4.0.1862.1.3") + octets("02 01 0A"))),
         "qcStatements:\n  statement: qcCompliance\n  statement: qcRetentionPeriod\n    information: 10\n"},
        {"1.3.6.1.5.5.7.1.24", octets("30 06 02 01 05 02 01 06"),
         "tlsfeature:\n  feature: status_request\n  feature: 6\n"},
        {"1.3.6.1.5.5.7.48.1.5", octets("05 00"), "ocspNoCheck:\n  content: NULL\n"},
        {"2.16.840.1.113730.1.1", octets("03 02 00 05"), "nsCertType:\n  type: sslCA, objectSigningCA\n"},
        {"1.3.6.1.4.1.11129.2.4.2",
         der(0x04, octets("0032 0030 00") + repeated("\xAB", 32) + octets("0000018CC251F400 0000 0403 0001 FF")),
         "signedCertificateTimestampList:\n"
         "  time stamp: 2024-01-01 00:00:00 UTC, log "
         "abababababababababababababababababababababababababababababababab\n"},
        {"1.3.6.1.4.1.11129.2.4.2", octets("04 02 0005"), "signedCertificateTimestampList:\n  octets: 0005\n"},
    };
    for (const auto &[id, value, expected] : rows)
        EXPECT_EQ(shown("EXTENSION", extension(id, value)).find(expected), 0U)
            << expected << shown("EXTENSION", extension(id, value));
}

TEST_F(Show, NamesOnOneLine) {
    const std::string two =
        der(0x31, der(0x30, oid("2.5.4.11") + octets("13 01 42")) + der(0x30, oid("2.5.4.3") + octets("13 01 41")));
    const struct {
        std::string rdns;
        const char *expected;
    } rows[] = {
        {"", "(empty)"},
        {attribute("2.5.4.6", octets("13 02 4445")) + two + attribute("0.9.2342.19200300.100.1.25", der(0x16, "org")),
         "DC=org,OU=B+CN=A,C=DE"},
        {attribute("2.5.4.3", der(0x0C, " #a,b+\"c\\<d>;=e ")), R"(CN=\ #a\,b\+\"c\\\<d\>\;=e\ )"},
        {attribute("2.5.4.3", der(0x0C, "#")), "CN=\\#"},
        {attribute("2.5.4.3", octets("0C 0A 41 0A 1B C29B E280AE C3 A9")), "CN=A\\0a\\1b\\c2\\9b\\e2\\80\\aeé"},
        {attribute("2.5.4.3", octets("0C 02 FF 41")), "CN=\\ffA"},
        {attribute("2.5.4.3", octets("14 02 E941")), "CN=éA"},
        {attribute("2.5.4.3", octets("1C 08 00000041 0001F600")), "CN=A😀"},
        {attribute("2.5.4.3", octets("1E 06 0041 D83D DE00")), "CN=A😀"},
        {attribute("2.5.4.3", octets("1E 02 D83D")), "CN=#1e02d83d"},
        {attribute("2.5.4.3", octets("03 02 00 41")), "CN=#03020041"},
        {attribute("1.2.840.113549.1.9.1", der(0x16, "a@b")), "emailAddress=a@b"},
        {attribute("1.2.3.4", octets("0C 00")), "1.2.3.4="},
    };
    for (const auto &[rdns, expected] : rows)
        EXPECT_EQ(shown("NAME", der(0x30, rdns)), "name: " + std::string(expected) + "\n");
}

TEST_F(Show, AlgorithmsKeysAndAttributes) {
    const std::string sha256 = der(0x30, oid("2.16.840.1.101.3.4.2.1"));
    const std::string mgf1 = der(0x30, oid("1.2.840.113549.1.1.8") + sha256);
    const std::string curve = der(0x30, oid("1.2.840.10045.2.1") + oid("1.3.132.0.35"));
    const std::string rsa = der(0x30, oid("1.2.840.113549.1.1.1") + octets("05 00"));
    const std::string requested = der(0x30, extension("2.5.29.15", octets("03 02 05 A0")));
    const struct {
        const char *type;
        std::string value;
        const char *expected;
    } rows[] = {
        {"33", rsa, "algorithm: rsaEncryption\n"},
        {"33", der(0x30, oid("1.2.840.113549.1.1.10") + octets("30 00")),
         "algorithm: id-RSASSA-PSS, sha1, MGF1 with sha1, salt 20\n"},
        {"33",
         der(0x30,
             oid("1.2.840.113549.1.1.10") + der(0x30, der(0xA0, sha256) + der(0xA1, mgf1) + octets("A2 03 02 01 20"))),
         "algorithm: id-RSASSA-PSS, sha256, MGF1 with sha256, salt 32\n"},
        {"33", der(0x30, oid("1.2.840.113549.1.1.7") + der(0x30, der(0xA0, sha256))),
         "algorithm: id-RSAES-OAEP, sha256, MGF1 with sha1\n"},
        {"33", der(0x30, oid("2.16.840.1.101.3.4.1.2") + octets("04 02 0102")),
         "algorithm: aes128-CBC\n  parameters: 0102\n"},
        {"33", der(0x30, oid("1.2.840.113549.1.5.13") + octets("30 03 02 01 05")),
         "algorithm: PBES2\n  parameters:\n    SEQUENCE\n      INTEGER               5\n"},
        {"35", der(0x30, rsa + der(0x03, octets("00 30 0A 02 03 01FFFF 02 03 010001"))),
         "public key: rsaEncryption, 17 bits\n  modulus: 01ffff\n  exponent: 65537\n"},
        {"35", der(0x30, rsa + octets("03 03 00 FFFF")), "public key: rsaEncryption\n  key: ffff\n"},
        {"35", der(0x30, curve + octets("03 03 00 04FF")),
         "public key: id-ecPublicKey, secp521r1, 521 bits\n  point: 04ff\n"},
        {"35", der(0x30, der(0x30, oid("1.3.101.112")) + der(0x03, '\0' + repeated("\xAB", 32))),
         "public key: Ed25519, 256 bits\n  key: abababababababababababababababababababababababababababababababab\n"},
        {"35", der(0x30, der(0x30, oid("1.2.840.10040.4.1") + octets("30 04 02 02 00FF")) + octets("03 04 00 020105")),
         "public key: id-dsa, 8 bits\n  parameters:\n    SEQUENCE\n      INTEGER               255\n  number: 5\n"},
        {"43", der(0x30, oid("1.2.840.113549.1.9.7") + der(0x31, der(0x0C, "a\"b"))),
         "challengePassword:\n  value: \"a\\\"b\"\n"},
        {"43", der(0x30, oid("1.2.840.113549.1.9.2") + der(0x31, der(0x16, "a") + octets("1E 02 00E9"))),
         "unstructuredName:\n  value: \"a\"\n  value: \"é\"\n"},
        {"43", der(0x30, oid("1.2.840.113549.1.9.14") + der(0x31, requested)),
         "extensionRequest:\n  extensions: 1\n    keyUsage:\n      usage: digitalSignature, keyEncipherment\n"},
        {"43", der(0x30, oid("1.2.3.4") + der(0x31, der(0x13, "a"))), "1.2.3.4:\n  value: \"a\"\n"},
    };
    for (const auto &[type, value, expected] : rows)
        EXPECT_EQ(shown(type, value), expected);
}

TEST_F(Show, TypesAreToldOrDetected) {
    const std::string certificate = example("cert-ec.der");
    const std::string crl = example("crl-v1.der");
    const struct {
        const char *name;
        std::string input;
        const char *heading;
    } rows[] = {
        {"DER", certificate, "# f: CERTIFICATE (39)\n"},
        {"no label that is known", pem(certificate, "X"), "# f: CERTIFICATE (39)\n"},
        {"a wrong label", pem(crl, "CERTIFICATE"), "# f: CERTIFICATE_LIST (41)\n"},
        {"a request", example("request.der"), "# f: CERTIFICATION_REQUEST (46)\n"},
        {"a pair", der(0x30, der(0xA0, certificate)), "# f: CERTIFICATE_PAIR (55)\n"},
        {"a key", example("public-ec.der"), "# f: SUBJECT_PUBLIC_KEY_INFO (35)\n"},
        {"a name", der(0x30, attribute("2.5.4.3", octets("0C 01 41"))), "# f: NAME (32)\n"},
        {"anything", octets("30 03 02 01 05"), "# f: ANY (23)\n"},
        {"nothing much", octets("30 00"), "# f: ANY (23)\n"},
        {"several", certificate + crl, "# f[1] CERTIFICATE (39)\n"},
    };
    for (const auto &[name, input, heading] : rows) {
        file("f", input);
        const Result result = run("show f");
        EXPECT_EQ(result.out.find(heading), 0U) << name << result.out.substr(0, 60);
        EXPECT_EQ(result.code, 0) << name << result.error;
    }
    EXPECT_NE(run("show f").out.find("\n# f[2] CERTIFICATE_LIST (41)\nversion:                    1\n"),
              std::string::npos);
    const std::string shown = run("show --quiet", certificate).out;
    EXPECT_EQ(shown.find("version: "), 0U);
    for (const char *type : {"39", "CERTIFICATE", "certificate"})
        EXPECT_EQ(run("show --type " + std::string(type), certificate).out, shown) << type;
    EXPECT_EQ(run("show --type UTF8-string", octets("0C 01 41")).out, "UTF8String                  \"A\"\n");
    EXPECT_EQ(run("show --type null", octets("05 00")).out, "NULL\n");
    for (const char *type : {"208", "CERT", "-1", "\"\"", "4294967335"}) {
        EXPECT_EQ(run("show --type " + std::string(type), certificate).code, 2) << type;
        EXPECT_EQ(run("check --type " + std::string(type), certificate).code, 2) << type;
    }
}

TEST_F(Show, MalformedInputIsExplained) {
    const std::string certificate = example("cert-ec.der");
    // A cut certificate is still taken for one.
    for (const size_t size : {certificate.size() - 1, size_t{300}, size_t{60}, size_t{20}}) {
        const Result result = run("show", certificate.substr(0, size));
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.error.find("kovra-asn1: -[1]: octet " + std::to_string(size) + ": "), 0U) << result.error;
        EXPECT_NE(result.error.find("(0x10259)\n"), std::string::npos) << result.error;
        EXPECT_EQ(result.code, 1);
    }
    EXPECT_EQ(run("show --type certificate", octets("05 00")).code, 1);
    EXPECT_NE(run("show", pem(octets("05 00"), "CERTIFICATE")).error.find("(0x10259)\n"), std::string::npos);
    // What follows is shown all the same.
    file("a", octets("30 05"));
    file("b", certificate);
    const Result result = run("show --quiet a missing b");
    EXPECT_EQ(result.out.find("version: "), 0U);
    EXPECT_EQ(count(result.error, "\n"), 2U) << result.error;
    EXPECT_EQ(result.code, 3);
    // Structures in structures without end take neither the stack nor quadratic time.
    std::string nested = der(0x30, "");
    for (int i = 0; i < 400; ++i)
        nested =
            der(0x30, extension("2.5.29.9", der(0x30, der(0x30, oid("1.2.840.113549.1.9.14") + der(0x31, nested)))));
    EXPECT_EQ(run("show --type extensions", nested).code, 0);
}

// Each mutation stands in a PEM block of its own.
TEST_F(Show, MutationsAreShownOrRefused) {
    std::mt19937 random(20240301);
    std::string input;
    const std::string originals[] = {example("rsa-server.der"),
                                     example("cert-ca.der"),
                                     example("crl-v2.der"),
                                     example("request.der"),
                                     example("cert-pss.der"),
                                     example("cms-signed-two.der"),
                                     example("cms-enveloped-oaep-ec.der"),
                                     example("ocsp-response.der"),
                                     example("timestamp-reply.der"),
                                     example("store-plain.p12"),
                                     example("key-ec-explicit.der")};
    for (int i = 0; i < 3000; ++i) {
        std::string mutated = originals[random() % std::size(originals)];
        for (size_t changes = 1 + random() % 3; changes > 0; --changes) {
            const auto change = static_cast<char>(random() % 2 == 0 ? random() : 1U << (random() % 8));
            char &octet = mutated[4 + random() % (mutated.size() - 4)];
            octet = static_cast<char>(octet ^ change);
        }
        input += pem(i % 10 == 0 ? mutated.substr(0, random() % mutated.size()) : mutated, "X");
    }
    const Result shown = run("show", input);
    EXPECT_EQ(shown.code, 1);
    EXPECT_TRUE(is_harmless(shown.out));
    EXPECT_GT(count(shown.out, "version: "), 2000U);
    EXPECT_GT(count(shown.error, "kovra-asn1: "), 500U);
    const Result checked = run("check", input);
    EXPECT_EQ(checked.code, 1);
    EXPECT_NE(checked.out.find("  different:        0\n"), std::string::npos) << checked.out;
}

class Check : public kovra::test::ToolTest {
protected:
    // The numbers of the summary in their order.
    [[nodiscard]] static std::vector<int> numbers(const std::string &summary) {
        std::vector<int> result;
        std::istringstream lines(summary);
        for (std::string line; std::getline(lines, line);)
            result.push_back(std::atoi(line.substr(line.find(':') + 1).c_str()));
        return result;
    }
    using Numbers = std::vector<int>;
};

TEST_F(Check, ExamplesComeBackIdentical) {
    const Result result = run("check " + examples.string());
    EXPECT_EQ(result.code, 0) << result.error;
    EXPECT_EQ(result.error, "");
    const Numbers summary = numbers(result.out);
    ASSERT_EQ(summary.size(), 10U) << result.out;
    const auto texts = std::count_if(fs::directory_iterator(examples), fs::directory_iterator(), [](const auto &entry) {
        return entry.path().extension() == ".c" || entry.path().extension() == ".md";
    });
    EXPECT_EQ(summary[0], std::distance(fs::directory_iterator(examples), fs::directory_iterator()));
    EXPECT_EQ(summary[1], texts);
    EXPECT_EQ(summary[3], summary[0] - texts + 2) << "one is a bundle of three";
    EXPECT_EQ(summary[4], summary[3]);
    EXPECT_EQ(summary[5] + summary[6], summary[4]);
    EXPECT_EQ(summary[7], 0);
}

TEST_F(Check, SummaryAddsUp) {
    const std::string certificate = example("cert-ec.der");
    const std::string crl = example("crl-v2.der");
    fs::create_directories(path("d/e"));
    file("d/a.der", certificate + crl);
    file("d/b.pem", pem(certificate, "CERTIFICATE") + "-----BEGIN B-----\n?\n-----END B-----\n" + pem(crl, "X509 CRL"));
    file("d/c.txt", "some words, no element\n");
    file("d/e/cut", certificate.substr(0, 100));
    file("d/e/empty", "");
#if defined(_WIN32)
    // For links stand a copy, and a file that nobody else may open.
    fs::copy_file(path("d/a.der"), path("d/e/link"));
    const HANDLE closed = CreateFileW(path("d/e/nothing").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
#else
    fs::create_symlink(path("d"), path("d/e/up"));
    fs::create_symlink(path("d/a.der"), path("d/e/link"));
    fs::create_symlink(path("d/nowhere"), path("d/e/nothing"));
#endif
    Result result = run("check d");
    if (fs::path::preferred_separator != '/')
        std::replace(result.error.begin(), result.error.end(), '\\', '/');
    EXPECT_EQ(numbers(result.out), (Numbers{7, 1, 1, 9, 6, 6, 0, 3, 3, 0})) << result.out;
    EXPECT_EQ(result.code, 3);
    std::vector<std::string> places;
    std::istringstream lines(result.error);
    for (std::string line; std::getline(lines, line);)
        if (line.find("kovra-asn1: ") == 0)
            places.push_back(line.substr(12, line.find(": ", 12) - 12));
    EXPECT_EQ(places, (std::vector<std::string>{"d/b.pem[2]", "d/e/cut[1]", "d/e/empty[1]", "d/e/nothing"}));
    EXPECT_NE(result.error.find("kovra-asn1: d/e/cut[1]: octet 100: "), std::string::npos) << result.error;
    // Named twice, checked twice; a named text is an element.
    EXPECT_EQ(numbers(run("check d/a.der d/a.der").out), (Numbers{2, 0, 0, 4, 4, 4, 0, 0, 0, 0}));
    EXPECT_EQ(run("check d/c.txt").code, 1);
    EXPECT_EQ(run("check d/a.der").code, 0);
    EXPECT_EQ(run("check", certificate).code, 0);
    const Result quiet = run("check --quiet d");
    EXPECT_EQ(quiet.out, "");
    EXPECT_EQ(count(quiet.error, "\n"), 4U) << quiet.error;
    EXPECT_EQ(run("check d/a.der d/nothing").code, 3);
#if defined(_WIN32)
    CloseHandle(closed);
#endif
}

// A certificate, name and extension in forms that DER does not have.
TEST_F(Check, WhatKeepsItsEncodingComesBackFromBer) {
    const std::string certificate = example("cert-v1.der");
    const std::string indefinite = octets("30 80") + certificate.substr(4) + octets("00 00");
    const std::string name = octets("30 80 31 81 0B 30 09 06 03 550403 0C 02 4142 00 00");
    const std::string extension = octets("30 80 06 03 551D0E 01 01 00 24 80 04 02 04 00 00 00 00 00");
    const struct {
        const char *arguments;
        std::string input;
        Numbers numbers;
    } rows[] = {
        {"check", indefinite, {1, 0, 0, 1, 1, 1, 0, 0, 0, 0}},
        {"check --type 32", name, {1, 0, 0, 1, 1, 1, 0, 0, 0, 0}},
        {"check --type 36", extension, {1, 0, 0, 1, 1, 0, 1, 0, 0, 0}},
        {"check --type 1", octets("01 01 01"), {1, 0, 0, 1, 1, 0, 1, 0, 0, 0}},
        {"check --type 39", name, {1, 0, 0, 1, 0, 0, 0, 1, 1, 0}},
    };
    for (const auto &[arguments, input, expected] : rows)
        EXPECT_EQ(numbers(run(arguments, input).out), expected) << arguments;
    EXPECT_NE(run("show", indefinite).out.find("CERTIFICATE (39)"), std::string::npos);
}

#if !defined(_WIN32)
TEST_F(Check, OutputThatIsFullOrClosedEnds) {
    const std::string crl = example("crl-v2.der");
    file("large", repeated(crl, 2000));
    file("in", "");
    for (const char *command : {"show large", "check large"}) {
        const Result full = run_in_shell(command, "> /dev/full");
        EXPECT_EQ(full.code, 3) << command;
        EXPECT_EQ(full.error, "kovra-asn1: standard output: No space left on device\n") << command;
        const Result closed = run_in_shell(command, "| head -c 1 > /dev/null");
        EXPECT_EQ(closed.code, 0) << command;
        EXPECT_EQ(closed.error, "") << command;
    }
}
#endif

#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)
// The bits of a string of 256 MiB are more than an int32_t counts.
TEST_F(Show, LongBitStringsAreOctets) {
    if (sizeof(size_t) == 4)
        GTEST_SKIP() << "SKIPPED: the copies of the string do not fit where addresses have 32 bits";
    file("bits", octets("30 84 1000000A 020102 03 84 10000001 00 FF"));
    fs::resize_file(path("bits"), (1U << 28) + 16);
    EXPECT_EQ(run("show --type PKI_STATUS_INFO bits").out, "status:                     rejection\n"
                                                           "failure:                    ff" +
                                                               repeated("0", 62) + "... (268435456 octets)\n");
    EXPECT_NE(run("dump bits").out.find("... (268435456 octets)\n"), std::string::npos);
}
#endif

} // namespace

#endif
