#pragma once

#include <cstdint>
#include <string>

#include "encoders/ExistingTarget.h"

namespace tarvik {

// Makes room on disk for a file that an encoder writes.
class DiskTarget final : public ExistingTarget {
 public:
  bool DeleteExistingTarget(const std::string& path) override;
};

// A file's length in bytes; 0 where there is none.
std::uint64_t FileLength(const std::string& path);

}  // namespace tarvik
