#pragma once

#include <string>

namespace tarvik::model {

// A line that names the difference; empty if there is none.
inline std::string Compared(const std::string& what, const std::string& expected, const std::string& seen) {
  return expected == seen ? std::string() : what + ": \"" + seen + "\" and not \"" + expected + "\"\n";
}

inline std::string Compared(const std::string& what, int expected, int seen) {
  return expected == seen ? std::string() : Compared(what, std::to_string(expected), std::to_string(seen));
}

}  // namespace tarvik::model
