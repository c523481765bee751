#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tarvik {

// Identifies the state of a file without reading it: if both values are unchanged, so is the content.
struct FileStamp {
  std::uint64_t size = 0;
  std::uint64_t written = 0;  // last write time, in the file system's own units

  bool operator==(const FileStamp&) const = default;
};

// The bytes of a file, read on demand.
class ByteSource {
 public:
  virtual ~ByteSource() = default;

  virtual FileStamp Stamp() = 0;
  // Fills all of `bytes` from `offset` on, or returns false.
  virtual bool Read(std::uint64_t offset, std::span<std::byte> bytes) = 0;
};

}  // namespace tarvik
