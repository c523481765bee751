#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tarvik {

// The bytes of a file in memory, appended field by field, little-endian.
class ByteWriter {
 public:
  explicit ByteWriter(std::size_t expectedSize) { bytes_.reserve(expectedSize); }

  void U8(std::uint8_t value) { bytes_.push_back(std::byte{value}); }
  void U16(std::uint16_t value) { LittleEndian(value, 2); }
  void U32(std::uint32_t value) { LittleEndian(value, 4); }
  void I32(std::int32_t value) { LittleEndian(static_cast<std::uint32_t>(value), 4); }

  // Appends `count` zero bytes and returns them to be filled. The span is valid until the next append.
  std::span<std::byte> Zeros(std::size_t count) {
    bytes_.resize(bytes_.size() + count);
    return std::span(bytes_).last(count);
  }

  std::span<const std::byte> Bytes() const { return bytes_; }

 private:
  void LittleEndian(std::uint32_t value, int byteCount) {
    for (int i = 0; i < byteCount; ++i, value /= 256) U8(static_cast<std::uint8_t>(value % 256));
  }

  std::vector<std::byte> bytes_;
};

}  // namespace tarvik
