// Contents that stay in the caller's streams: a message around a file is written without holding the file in memory.
#include <cstdio>
#include <filesystem>
#include <random>

#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"

#if defined(__linux__)
#include <sys/resource.h>
#endif

namespace kovra::test {
namespace {

// Single octets, since segments may be short; no header has one of them.
constexpr char first_octet = '\xE7';
constexpr char last_octet = '\xE9';

// A file of this size with zeros in it and a mark at either end, as a stream; it is removed in the end.
class LargeFile {
public:
    explicit LargeFile(uintmax_t size)
        : path_(std::filesystem::temp_directory_path() / ("kovra_large_" + std::to_string(std::random_device{}()))) {
        std::ofstream(path_, std::ios::binary) << first_octet;
        std::filesystem::resize_file(path_, size - 1);
        std::ofstream(path_, std::ios::binary | std::ios::app) << last_octet;
        stream_.reset(kovra_stream_new_file(path_.string().c_str(), KOVRA_FILE_READ, nullptr));
    }
    ~LargeFile() {
        stream_.reset();
        std::filesystem::remove(path_);
    }
    LargeFile(const LargeFile &) = delete;
    kovra_stream *stream() const { return stream_.get(); }

private:
    std::filesystem::path path_;
    Stream stream_;
};

Value string_of(const LargeFile &file) {
    return {4, kovra_asn1_octetstring_newstream(file.stream())};
}

// An EnvelopedData around a string, and a SignedData; every constructor on the way copies its arguments.
Value enveloped(const Value &content) {
    Value oid = decoded(6, "06 01 2A"), algorithm = decoded(33, "30 03 06 01 2A"), version = decoded(2, "02 01 00"),
          recipients = decoded(163, "31 00");
    Value info(148, kovra_cmsencryptedcontentinfo_new(oid.get(), algorithm.get(), content.get()));
    return {164, kovra_cmsenvelopeddata_new(version.get(), nullptr, recipients.get(), info.get(), nullptr)};
}
Value signed_data(const Value &content) {
    Value oid = decoded(6, "06 01 2A"), version = decoded(2, "02 01 00"), digests = decoded(126, "31 00"),
          signers = decoded(125, "31 00"), any(23, kovra_asn1_objecttoany(4, content.get()));
    Value info(111, kovra_pkcs7contentinfo_new(oid.get(), any.get()));
    return {134, kovra_pkcs7signeddata_new(version.get(), digests.get(), info.get(), nullptr, nullptr, signers.get())};
}

// A stream that counts what it takes and keeps its beginning and end.
struct Sink {
    int64_t count = 0;
    std::string first, last;
    Stream stream = [this] {
        kovra_stream_callbacks callbacks = {};
        callbacks.write = [](void *user, const void *data, int32_t size, int32_t *out_count) {
            Sink &self = *static_cast<Sink *>(user);
            std::string_view octets(static_cast<const char *>(data), static_cast<size_t>(size));
            self.count += *out_count = size;
            self.first += octets.substr(0, 60 - std::min<size_t>(60, self.first.size()));
            self.last = (self.last + std::string(octets.substr(octets.size() - std::min<size_t>(60, octets.size()))));
            self.last = self.last.substr(self.last.size() - std::min<size_t>(60, self.last.size()));
            return 1;
        };
        return Stream(kovra_stream_new_callbacks(&callbacks, this, nullptr));
    }();
};

#if defined(__SANITIZE_ADDRESS__) || !defined(__linux__)
constexpr uintmax_t large = threshold(uintmax_t{64} << 20, uintmax_t{64} << 10);
#else
constexpr uintmax_t large = uintmax_t{1} << 30;
#endif

TEST(CmsStreams, AGibibyteInAFileIsWrittenInLittleMemory) {
    LargeFile file(large);
    Value content = string_of(file);
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
    rlimit usual = {};
    ASSERT_EQ(getrlimit(RLIMIT_AS, &usual), 0);
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    rlimit tight = usual;
    tight.rlim_cur = static_cast<rlim_t>(pages) * 4096 + (4u << 20);
    ASSERT_EQ(setrlimit(RLIMIT_AS, &tight), 0);
#endif
    for (auto make : {enveloped, signed_data}) {
        Value message = make(content);
        Sink sink;
        Errors ctx(kovra_err_ctx_new());
        EXPECT_EQ(kovra_asn1_encode(sink.stream.get(), message.type(), message.get(), nullptr, ctx.get()), 1);
        // Each segment has a header in front; what is around them depends on the message.
        constexpr uintmax_t header = threshold(4, 2);
        EXPECT_EQ(sink.count / 1000, static_cast<int64_t>(large + large / segment * header) / 1000);
        EXPECT_NE(sink.first.find(first_octet), std::string::npos);
        EXPECT_NE(sink.last.find(last_octet), std::string::npos);
    }
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
    setrlimit(RLIMIT_AS, &usual);
#endif
}

TEST(CmsStreams, WhatIsReadBackIsWhatTheFileHolds) {
    LargeFile file(segmented_from + 4321);
    Value content = string_of(file);
    std::string expected = text_of(Blob(kovra_asn1_mem_encode(4, content.get())).get());
    std::string plain(segmented_from + 4321, '\0');
    ASSERT_EQ(kovra_asn1_octetstring_getall(content.get(), plain.data()), 1);

    Value message = enveloped(content);
    Decoded read = decode(164, encode(164, message.get()).octets);
    kovra_asn1_value *string =
        kovra_cmsencryptedcontentinfo_getenccontent(kovra_cmsenvelopeddata_getencinfo(read.value.get()));
    std::string found(static_cast<size_t>(std::max(0, kovra_asn1_octetstring_getlength(string))), '\0');
    ASSERT_EQ(kovra_asn1_octetstring_getall(string, found.data()), 1);
    EXPECT_TRUE(found == plain);

    // The ANY of the string shows segments, whole, in pieces and as a string again; it stays one when it is copied.
    Value data = signed_data(content);
    kovra_asn1_value *any = kovra_pkcs7contentinfo_getcontent(kovra_pkcs7signeddata_getcontentinfo(data.get()));
    EXPECT_TRUE(encode(23, any).octets == expected);
    std::string pieces = octets("24 80"), buffer(5000, '\0');
    for (int32_t got = 1, mode = 1; got > 0; mode = 2) {
        ASSERT_EQ(kovra_asn1_any_getcontent(any, mode, buffer.data(), size_of(buffer), &got, nullptr), 1);
        pieces += buffer.substr(0, static_cast<size_t>(got));
    }
    EXPECT_TRUE(pieces == expected);
    kovra_asn1_value *again = nullptr;
    ASSERT_EQ(kovra_asn1_any_toobject(any, 4, &again, nullptr), 1);
    Value owner(4, again);
    ASSERT_EQ(kovra_asn1_octetstring_getall(again, found.data()), 1);
    EXPECT_TRUE(found == plain);

    // A copy of its own, and what is kept of a value inside another encoding, has the octets.
    Value copy(164, kovra_asn1_dupobject(164, message.get(), nullptr));
    EXPECT_GT(kovra_asn1_length(164, copy.get()), size_of(plain));
    Value whole(23, kovra_asn1_objecttoany(164, message.get()));
    EXPECT_TRUE(encode(23, whole.get()).octets == encode(164, message.get()).octets);

    fail_each_allocation([&] { return static_cast<bool>(enveloped(content)); });
    fail_each_allocation([&] { return static_cast<bool>(signed_data(content)); });
}

} // namespace
} // namespace kovra::test
