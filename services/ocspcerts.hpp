// The certificates that come with a signed request or response.
#pragma once

#include "core/type.hpp"

namespace kovra::asn1 {

// SEQUENCE OF Certificate, which has no row of its own. A certificate that cannot be written or read leaves the code of
// certificates once; anything else than a constructed SEQUENCE is an incorrect item.
extern const Type ocsp_certificates;

} // namespace kovra::asn1
