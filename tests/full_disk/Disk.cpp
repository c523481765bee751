#include "full_disk/Disk.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace tarvik::end_to_end {

std::string MountedDisk(const char* variable) {
  const char* const path = std::getenv(variable);
  if (path == nullptr) throw std::runtime_error("there is no disk to test on");
  std::string windowsPath = std::string("Z:") + path;
  std::ranges::replace(windowsPath, '/', '\\');
  return windowsPath;
}

}  // namespace tarvik::end_to_end
