// What the tests of certificates and their kin share: files, and the parts of encodings.
#pragma once

#include <filesystem>

#include "tests/notation.hpp"

namespace kovra::test {

namespace fs = std::filesystem;
using Handle = kovra_asn1_value *;

// The kinds of signed objects, and what differs between their functions.
struct Kind {
    uint32_t type;
    std::string prefix; // of the examples
    Handle (*load)(const void *, int32_t, kovra_err_ctx *) noexcept;
    int32_t (*get_signed_octets)(Handle, void *, int32_t *) noexcept;
    int32_t refusal; // of a first octet
    std::vector<std::string> labels;
};
inline const Kind kinds[] = {
    {39, "cert-", kovra_x509pubkeycert_new, kovra_x509pubkeycert_gettbsocts, 0x10259, {"CERTIFICATE"}},
    {41, "crl-", kovra_x509crl_new, kovra_x509crl_gettbsocts, 0x10261, {"X509 CRL", "CRL"}},
    {46,
     "request",
     kovra_pkcs10certreq_new,
     kovra_pkcs10certreq_gettbsocts,
     0x10269,
     {"CERTIFICATE REQUEST", "NEW CERTIFICATE REQUEST"}}};

inline std::string contents(const fs::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline std::string example(const std::string &name) {
    return contents(fs::path(KOVRA_SOURCE_DIR "/examples") / name);
}

// The examples of a kind.
inline std::vector<std::string> objects(const Kind &kind) {
    std::vector<std::string> found;
    for (const auto &entry : fs::directory_iterator(KOVRA_SOURCE_DIR "/examples")) {
        const std::string name = entry.path().filename().string();
        const bool is_server = kind.type == 39 && name == "rsa-server.der";
        if (entry.path().extension() == ".der" && (name.rfind(kind.prefix, 0) == 0 || is_server))
            found.push_back(contents(entry.path()));
    }
    EXPECT_GE(found.size(), 2u);
    return found;
}

// Whole elements of definite length that stand one after another.
inline std::vector<std::string> elements(const std::string &data) {
    std::vector<std::string> found;
    for (size_t at = 0; at + 2 <= data.size();) {
        size_t header = 2, length = static_cast<uint8_t>(data[at + 1]);
        if (length > 0x80) {
            header += length - 0x80;
            length = 0;
            for (size_t i = at + 2; i < at + header; ++i)
                length = length * 256 + static_cast<uint8_t>(data[i]);
        }
        found.push_back(data.substr(at, header + length));
        at += header + length;
    }
    return found;
}
inline std::vector<std::string> children(const std::string &element) {
    const size_t header = element[1] == '\x82' ? 4 : element[1] == '\x81' ? 3 : 2;
    return elements(element.substr(header));
}

inline Value load(const Kind &kind, const std::string &data, Codes *codes = nullptr) {
    std::unique_ptr<char[]> exact(new char[data.size()]);
    std::memcpy(exact.get(), data.data(), data.size());
    Errors ctx(kovra_err_ctx_new());
    Value value(kind.type, kind.load(exact.get(), size_of(data), ctx.get()));
    if (codes != nullptr)
        *codes = ctx.get();
    return value;
}

} // namespace kovra::test
