#pragma once

#include <cstdint>

#include "driver/Program.h"

namespace tarvik::end_to_end {

// What a running program has used since it started, as the host system counts it. What it read from files that it
// mapped into its memory counts as memory.
struct Costs {
  std::uint64_t bytesRead;   // by calls that read
  std::uint64_t peakMemory;  // in bytes: the most that was in use at a time
};

// Throws std::runtime_error if the host system does not report it.
Costs CostsOf(const Program& program);

}  // namespace tarvik::end_to_end
