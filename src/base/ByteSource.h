#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tarvik {

// The bytes of a file, read only as they are asked for.
class ByteSource {
 public:
  virtual ~ByteSource() = default;

  virtual std::uint64_t Size() = 0;
  // Fills all of `bytes` from `offset` on, or returns false.
  virtual bool Read(std::uint64_t offset, std::span<std::byte> bytes) = 0;
};

}  // namespace tarvik
