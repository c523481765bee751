#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

// Shared by the fuzz targets.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tarvik {

inline std::string TextOf(const std::uint8_t* data, std::size_t size) {
  return {data, data + size};
}

// Aborts the run, which reports the input, unless the condition holds.
inline void Require(bool holds, std::string_view what) {
  if (holds) return;
  std::cerr << "does not hold: " << what << '\n';
  std::abort();
}

}  // namespace tarvik
