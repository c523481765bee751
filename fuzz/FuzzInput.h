#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

// What the fuzz targets share.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tarvik {

inline std::string TextOf(const std::uint8_t* data, std::size_t size) {
  return {data, data + size};
}

// Ends the run, and so reports the input, unless what must hold does.
inline void Require(bool holds, std::string_view what) {
  if (holds) return;
  std::cerr << "does not hold: " << what << '\n';
  std::abort();
}

}  // namespace tarvik
