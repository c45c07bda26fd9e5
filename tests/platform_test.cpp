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
class LargeCrl {
public:
    LargeCrl() : entry_(octets("30 12 02 01 05 17 0D 3236303130313030303030305A")) {
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
            static_cast<LargeCrl *>(user)->read(static_cast<char *>(buffer), static_cast<size_t>(size));
            *count = size;
            return 1;
        };
        return Stream(kovra_stream_new_callbacks(&callbacks, this, nullptr));
    }

    void rewind() { position_ = 0; }

private:
    static constexpr size_t entries = 15'000'000;

    // Identifier and length octets of a SEQUENCE.
    static std::string element(size_t length) { return octets("30 84") + in_four_octets(length); }

    void read(char *buffer, size_t size) {
        for (size_t i = 0; i < size; ++i, ++position_)
            buffer[i] =
                position_ < head_.size() ? head_[position_] : entry_[(position_ - head_.size()) % entry_.size()];
    }

    std::string head_;
    std::string entry_;
    size_t position_ = 0;
};

// While it lives there is room for 256 MiB more.
class TightAddressSpace {
public:
    TightAddressSpace() {
#if defined(_WIN32)
        while (void *piece = VirtualAlloc(nullptr, piece_size, MEM_RESERVE, PAGE_NOACCESS))
            taken_.push_back(piece);
        for (size_t given = 0; given < room && !taken_.empty(); given += piece_size, taken_.pop_back())
            VirtualFree(taken_.back(), 0, MEM_RELEASE);
#elif defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
        getrlimit(RLIMIT_AS, &usual_);
        size_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        rlimit tight = usual_;
        tight.rlim_cur = pages * 4096 + room;
        EXPECT_EQ(setrlimit(RLIMIT_AS, &tight), 0);
#endif
    }
    ~TightAddressSpace() {
#if defined(_WIN32)
        for (void *piece : taken_)
            VirtualFree(piece, 0, MEM_RELEASE);
#elif defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
        setrlimit(RLIMIT_AS, &usual_);
#endif
    }
    TightAddressSpace(const TightAddressSpace &) = delete;

private:
    static constexpr size_t room = size_t{256} << 20;
#if defined(_WIN32)
    static constexpr size_t piece_size = size_t{16} << 20;
    std::vector<void *> taken_;
#elif defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
    rlimit usual_ = {};
#endif
};

TEST(Platform, WhatTheAddressSpaceDoesNotHoldFailsCleanly) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "SKIPPED: the sanitizer's own memory needs the address space";
#endif
    LargeCrl crl;
    const Stream stream = crl.stream();
    const TightAddressSpace tight;
    // Again and again, for what a failure keeps would add up.
    for (int i = 0; i < 3; ++i) {
        crl.rewind();
        const Errors errors(kovra_err_ctx_new());
        const int64_t before = live_blocks();
        kovra_asn1_value *value = nullptr;
        EXPECT_EQ(kovra_asn1_decode(stream.get(), KOVRA_ASN1_TYPE_CERTIFICATE_LIST, &value, nullptr, errors.get()), 0);
        EXPECT_EQ(value, nullptr);
        const Codes codes(errors.get());
        EXPECT_FALSE(codes.empty());
        EXPECT_EQ(codes.empty() ? 0 : codes[0], KOVRA_ERR_NO_MEMORY);
        EXPECT_LE(live_blocks(), before + 8) << "more is left than the entries of the failure";
    }
    void *small = kovra_malloc(size_t{8} << 20, "", 0);
    EXPECT_NE(small, nullptr);
    kovra_free(small);
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
