#pragma once

#include <string>

namespace tarvik::bench {

// Starts this program again with one argument and waits until it ends. Throws std::runtime_error if it cannot be
// started or fails.
void RunAgain(const std::string& argument);

}  // namespace tarvik::bench
