// `version`: of the library that the tool runs with.

#include "command.hpp"
#include "kovra/asn1_codec.h"

namespace kovra::tool {

void version(Session &session) {
    session.out.put(Outside(kovra_asn1_version()));
    session.out.put("\n");
}

} // namespace kovra::tool
