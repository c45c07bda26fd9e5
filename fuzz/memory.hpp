// The allocator of the targets. It stands in for the libraries' own, measures what is alive, ends at a limit and fails
// on demand.
#pragma once

#include <cstdint>

namespace kovra::fuzz {

// Begins the account of a run: `limit` octets may be alive at once.
void begin_memory(int64_t limit);

// Ends the account, which has to be even: whatever was allocated was freed.
void end_memory();

// Allocations of the run so far, blocks that are alive, and the most octets that were at once.
int64_t allocations();
int64_t live_blocks();
int64_t peak_octets();
// Measures the peak anew.
void forget_peak();

// Lets the allocation behind the next `good` fail, and all behind it too unless `once`.
void fail_allocation(int64_t good, bool once);
// No allocation fails on demand any more.
void fail_no_allocation();

} // namespace kovra::fuzz
