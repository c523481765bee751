#pragma once

#include <cstdint>
#include <string>

namespace tarvik::support {

inline int ByteAt(const std::string& bytes, std::size_t offset) {
  return static_cast<std::uint8_t>(bytes.at(offset));
}

// The start of a JPEG file's segment with that marker: the offset of its first byte after the length. Nothing if there
// is none.
inline std::size_t SegmentAt(const std::string& jpeg, int marker) {
  std::size_t offset = 2;
  while (offset + 4 <= jpeg.size()) {
    if (ByteAt(jpeg, offset + 1) == marker) return offset + 4;
    offset += 2 + static_cast<std::size_t>(ByteAt(jpeg, offset + 2) * 256 + ByteAt(jpeg, offset + 3));
  }
  return std::string::npos;
}

// From the header of a JPEG file: the number of components, and the luminance factors (horizontal in the high half).
inline int ComponentsOf(const std::string& jpeg) {
  return ByteAt(jpeg, SegmentAt(jpeg, 0xC0) + 5);
}
inline int LuminanceFactorsOf(const std::string& jpeg) {
  return ByteAt(jpeg, SegmentAt(jpeg, 0xC0) + 7);
}
inline std::string CommentOf(const std::string& jpeg) {
  const std::size_t offset = SegmentAt(jpeg, 0xFE);
  if (offset == std::string::npos) return {};
  return jpeg.substr(offset, static_cast<std::size_t>(ByteAt(jpeg, offset - 2) * 256 + ByteAt(jpeg, offset - 1)) - 2);
}
// The first entry of the luminance quantisation table: the higher, the lower the quality.
inline int FirstQuantiser(const std::string& jpeg) {
  return ByteAt(jpeg, SegmentAt(jpeg, 0xDB) + 1);
}

}  // namespace tarvik::support
