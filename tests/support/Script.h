#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvik::support {

// A log of the calls, one line each, in order.
class Script : public std::vector<std::string> {
 public:
  void Add(std::string line) { push_back(std::move(line)); }
  const std::vector<std::string>& Lines() const { return *this; }
  // The lines that start with `start`.
  std::vector<std::string> Lines(std::string_view start) const {
    std::vector<std::string> found;
    for (const std::string& line : *this) {
      if (line.starts_with(start)) found.push_back(line);
    }
    return found;
  }
  void Clear() { clear(); }
};

}  // namespace tarvik::support
