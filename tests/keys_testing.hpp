// What the tests of keys and stores share.
#pragma once

#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {

// Types that hold a ContentInfo; they work where that type does.
inline bool works(uint32_t type) {
    static const bool has_content_info = decode(KOVRA_ASN1_TYPE_CONTENT_INFO, octets("30 04 06 02 2A 03")).result == 1;
    return has_content_info || (type != KOVRA_ASN1_TYPE_PFX && type != KOVRA_ASN1_TYPE_AUTHENTICATED_SAFE);
}

// Octets that are accepted: cut anywhere they are refused, alike from memory and from a trickle.
inline void expect_no_truncation(uint32_t type, const std::string &data) {
    for (size_t at = 0; at < data.size(); ++at) {
        Decoded memory = decode(type, data.substr(0, at)), trickle = decode(type, data.substr(0, at), Feed::trickle);
        ASSERT_EQ(memory.result, 0) << "cut at " << at;
        ASSERT_FALSE(memory.codes.empty()) << "cut at " << at;
        ASSERT_EQ(memory.codes, trickle.codes) << "cut at " << at;
    }
}

// Decoding, encoding and copying with too little memory, at every allocation.
inline void expect_clean_without_memory(uint32_t type, const std::string &data) {
    fail_each_allocation([&] {
        Input input(data);
        kovra_asn1_value *out = nullptr;
        if (input.stream() == nullptr || kovra_asn1_decode(input.stream(), type, &out, nullptr, nullptr) != 1)
            return out != nullptr;
        Value value(type, out);
        Value copy(type, kovra_asn1_dupobject(type, value.get(), nullptr));
        return copy && Blob(kovra_asn1_mem_encode(type, copy.get())) != nullptr;
    });
}

} // namespace kovra::test
