#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "base/ByteSource.h"
#include "platform/Handles.h"

namespace tarvik {

// The bytes of a file on disk. Other programs may use the file at the same time. A file that cannot be opened has no
// bytes.
class FileBytes final : public ByteSource {
 public:
  // `path` is UTF-8.
  explicit FileBytes(const std::string& path);

  FileStamp Stamp() override;
  bool Read(std::uint64_t offset, std::span<std::byte> bytes) override;

 private:
  FileHandle file_;
};

}  // namespace tarvik
