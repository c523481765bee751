#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tarvik {

// What a file is known by without reading it: while both stay, so does its content.
struct FileStamp {
  std::uint64_t size = 0;
  std::uint64_t written = 0;  // when it was last written to, in the file system's own counting

  bool operator==(const FileStamp&) const = default;
};

// The bytes of a file, read only as they are asked for.
class ByteSource {
 public:
  virtual ~ByteSource() = default;

  virtual FileStamp Stamp() = 0;
  // Fills all of `bytes` from `offset` on, or returns false.
  virtual bool Read(std::uint64_t offset, std::span<std::byte> bytes) = 0;
};

}  // namespace tarvik
