// Decoding a signed message with three certificates, as far as OpenSSL decodes it: ContentInfo, SignedData and all that
// is in it.

#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>
#include <string>

#include "kovra/asn1.h"

#if defined(HAVE_OPENSSL)
#include <openssl/cms.h>
#endif

namespace {

const std::string &signed_message() {
    static const std::string octets = [] {
        std::ifstream file(KOVRA_SOURCE_DIR "/examples/cms-signed-chain.der", std::ios::binary);
        return std::string{std::istreambuf_iterator<char>(file), {}};
    }();
    return octets;
}

void signed_message_kovra(benchmark::State &state) {
    const std::string &octets = signed_message();
    for (auto _ : state) {
        kovra_asn1_value *info = nullptr;
        kovra_asn1_value *message = nullptr;
        kovra_asn1_mem_decode(octets.data(), static_cast<int32_t>(octets.size()), KOVRA_ASN1_TYPE_CONTENT_INFO, &info);
        if (kovra_asn1_any_toobject(kovra_pkcs7contentinfo_getcontent(info), KOVRA_ASN1_TYPE_CMS_SIGNED_DATA, &message,
                                    nullptr) != 1 ||
            kovra_asn1_list_getsize(kovra_pkcs7signeddata_getcerts(message)) != 3)
            state.SkipWithError("the message was refused");
        kovra_asn1_value_free(KOVRA_ASN1_TYPE_CMS_SIGNED_DATA, message);
        kovra_asn1_value_free(KOVRA_ASN1_TYPE_CONTENT_INFO, info);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(octets.size()));
}
BENCHMARK(signed_message_kovra);

#if defined(HAVE_OPENSSL)
void signed_message_openssl(benchmark::State &state) {
    const std::string &octets = signed_message();
    for (auto _ : state) {
        const auto *data = reinterpret_cast<const unsigned char *>(octets.data());
        CMS_ContentInfo *message = d2i_CMS_ContentInfo(nullptr, &data, static_cast<long>(octets.size()));
        if (message == nullptr)
            state.SkipWithError("the message was refused");
        CMS_ContentInfo_free(message);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(octets.size()));
}
BENCHMARK(signed_message_openssl);
#endif

} // namespace
