#pragma once

#include <string>
#include <vector>

namespace tarvik::model {

// A step of a sequence as numbers: which of the possible actions, and with which parameters. Every combination of
// numbers is a valid step.
struct Action {
  int what = 0;
  int a = 0;
  int b = 0;
  int c = 0;
};

// Lines with their numbers, from 1.
inline std::string Numbered(const std::vector<std::string>& log) {
  std::string lines;
  for (std::size_t i = 0; i < log.size(); ++i) lines += std::to_string(i + 1) + "  " + log[i] + "\n";
  return lines;
}

}  // namespace tarvik::model
