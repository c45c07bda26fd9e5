#include "inputs.hpp"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "kovra/util.h"

#if defined(__unix__)
#include <sys/resource.h>
#endif

namespace kovra::bench {

namespace {

std::string read_file(const std::filesystem::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string element(uint8_t identifier, const std::string &content) {
    std::string header(1, static_cast<char>(identifier));
    const size_t length = content.size();
    if (length < 0x80)
        return header + static_cast<char>(length) + content;
    std::string octets;
    for (size_t rest = length; rest != 0; rest >>= 8)
        octets.insert(octets.begin(), static_cast<char>(rest));
    return header + static_cast<char>(0x80 + octets.size()) + octets + content;
}

} // namespace

const std::vector<std::string> &certificates() {
    static const std::vector<std::string> all = [] {
        std::vector<std::string> found;
        const std::string text = read_file("/etc/ssl/certs/ca-certificates.crt");
        int64_t position = 0;
        const char *label = nullptr;
        int32_t label_length = 0;
        void *data = nullptr;
        int32_t length = 0;
        while (kovra_pemnext(text.data(), static_cast<int64_t>(text.size()), &position, &label, &label_length, &data,
                             &length) == 1) {
            found.emplace_back(static_cast<const char *>(data), static_cast<size_t>(length));
            kovra_free(data);
        }
        if (found.empty())
            found.push_back(read_file(KOVRA_SOURCE_DIR "/examples/rsa-server.der"));
        return found;
    }();
    return all;
}

std::string make_crl(uint32_t entries) {
    std::mt19937 random(1);
    const std::string time = element(0x17, "240101000000Z");
    std::string revoked;
    for (uint32_t i = 0; i < entries; ++i) {
        std::string serial(16, '\0');
        for (char &octet : serial)
            octet = static_cast<char>(random());
        serial[0] = static_cast<char>(0x10 + (random() & 0x3F));
        revoked += element(0x30, element(0x02, serial) + time);
    }
    const std::string algorithm("\x30\x0D\x06\x09\x2A\x86\x48\x86\xF7\x0D\x01\x01\x0B\x05\x00", 15);
    const std::string name =
        element(0x30, element(0x31, element(0x30, std::string("\x06\x03\x55\x04\x03", 5) + element(0x0C, "Test CA"))));
    const std::string tbs =
        element(0x30, std::string("\x02\x01\x01", 3) + algorithm + name + time + time + element(0x30, revoked));
    return element(0x30, tbs + algorithm + element(0x03, std::string(257, '\0')));
}

double peak_memory() {
#if defined(__unix__)
    struct rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024.0;
#else
    return 0;
#endif
}

} // namespace kovra::bench
