// What the benchmark runs on: the machine's CA certificates, and a CRL made here.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kovra::bench {

// The certificates of the CA bundle, or of examples/ where there is none.
const std::vector<std::string> &certificates();

// A CRL of that many entries, 35 octets each.
std::string make_crl(uint32_t entries);

// The peak of this process's resident memory so far, in octets; 0 where it cannot be told.
double peak_memory();

} // namespace kovra::bench
