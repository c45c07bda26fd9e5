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

} // namespace kovra::test
