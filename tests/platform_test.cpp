// What depends on the system: how much memory there can be, and what Windows shows of a library.
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
#include <sys/resource.h>
#endif

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#include <windows.h>
#endif

#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {
namespace {

// A CRL in DER of 15 million entries, 300 MB, as a stream that makes the octets when they are read.
class EndlessCrl {
public:
    EndlessCrl() : entry_(octets("30 12 02 01 05 17 0D 3236303130313030303030305A")) {
        const std::string algorithm = octets("30 03 06 01 2A");
        const std::string fields = octets("02 01 01") + algorithm + octets("30 00 17 0D 3236303130313030303030305A");
        const std::string tail = algorithm + octets("03 01 00");
        const size_t list = element(entries * entry_.size()).size() + entries * entry_.size();
        const size_t signed_part = fields.size() + list;
        head_ = element(element(signed_part).size() + signed_part + tail.size()) + element(signed_part) + fields +
                element(entries * entry_.size());
    }

    Stream stream() {
        kovra_stream_callbacks callbacks = {};
        callbacks.read = [](void *user, void *buffer, int32_t size, int32_t *count) {
            static_cast<EndlessCrl *>(user)->read(static_cast<char *>(buffer), static_cast<size_t>(size));
            *count = size;
            return 1;
        };
        return Stream(kovra_stream_new_callbacks(&callbacks, this, nullptr));
    }

private:
    static constexpr size_t entries = 15'000'000;

    // Identifier and length octets of a SEQUENCE.
    static std::string element(size_t length) {
        std::string header = octets("30 84");
        for (int shift = 24; shift >= 0; shift -= 8)
            header += static_cast<char>(length >> shift);
        return header;
    }

    void read(char *buffer, size_t size) {
        for (size_t i = 0; i < size; ++i, ++position_)
            buffer[i] =
                position_ < head_.size() ? head_[position_] : entry_[(position_ - head_.size()) % entry_.size()];
    }

    std::string head_;
    std::string entry_;
    size_t position_ = 0;
};

TEST(Platform, WhatTheAddressSpaceDoesNotHoldFailsCleanly) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "SKIPPED: the sanitizer's own memory needs the address space";
#elif defined(__linux__)
    // As much as a process has on 32-bit Windows.
    rlimit usual = {};
    ASSERT_EQ(getrlimit(RLIMIT_AS, &usual), 0);
    rlimit tight = usual;
    tight.rlim_cur = rlim_t{1} << 31;
    ASSERT_EQ(setrlimit(RLIMIT_AS, &tight), 0);
#endif
    EndlessCrl crl;
    const Stream stream = crl.stream();
    const Errors errors(kovra_err_ctx_new());
    const int64_t before = live_blocks();
    kovra_asn1_value *value = nullptr;
    EXPECT_EQ(kovra_asn1_decode(stream.get(), KOVRA_ASN1_TYPE_CERTIFICATE_LIST, &value, nullptr, errors.get()), 0);
    EXPECT_EQ(value, nullptr);
    const Codes codes(errors.get());
    ASSERT_FALSE(codes.empty());
    EXPECT_EQ(codes[0], KOVRA_ERR_NO_MEMORY);
    EXPECT_LE(live_blocks(), before + 8) << "only the entries of the failure are left";
    // The memory is there again.
    void *large = kovra_malloc(size_t{1} << 29, "", 0);
    EXPECT_NE(large, nullptr);
    kovra_free(large);
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
    setrlimit(RLIMIT_AS, &usual);
#endif
}

TEST(Platform, EveryAllocationCanBeMadeToFail) {
    if (!is_memory_watched())
        GTEST_SKIP() << "SKIPPED: a DLL takes no other allocator; allocations are made to fail on Linux, 64 and 32 bit";
    const int64_t before = live_blocks();
    const ScarceMemory scarce(0);
    EXPECT_EQ(kovra_malloc(1, "", 0), nullptr);
    EXPECT_EQ(kovra_asn1_integer_value(5), nullptr);
    EXPECT_EQ(live_blocks(), before);
}

#if defined(_WIN32)
TEST(Platform, VersionResourceCarriesTheText) {
    const std::string version = kovra_asn1_version();
    std::wstring text(version.begin(), version.end());
    text.push_back(L'\0');
    for (const char *name : {"kovra_util.dll", "kovra_asn1.dll"}) {
        HMODULE module = GetModuleHandleA(name);
        ASSERT_NE(module, nullptr) << name;
        HRSRC resource = FindResourceA(module, MAKEINTRESOURCEA(1), MAKEINTRESOURCEA(16)); // RT_VERSION
        ASSERT_NE(resource, nullptr) << name;
        const auto *data = static_cast<const wchar_t *>(LockResource(LoadResource(module, resource)));
        const std::wstring_view found(data, SizeofResource(module, resource) / sizeof(wchar_t));
        EXPECT_NE(found.find(text), std::wstring_view::npos) << name;
    }
}
#endif

} // namespace
} // namespace kovra::test
