#pragma once

#include <string>

namespace tarvik::end_to_end {

// The path below Wine of a file system that the script mounted for a test: the value of that environment variable.
// Throws std::runtime_error if there is none.
std::string MountedDisk(const char* variable);

}  // namespace tarvik::end_to_end
