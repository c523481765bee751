#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace tarvik::support {

// Builds the bytes of a file, part by part.

// The lowest `width` bytes of a number, little-endian.
inline void Append(std::vector<std::byte>& bytes, std::uint64_t number, std::size_t width) {
  for (std::size_t i = 0; i < width; ++i, number >>= 8U) bytes.push_back(static_cast<std::byte>(number));
}

// A number of four bytes, big-endian.
inline void AppendBig32(std::vector<std::byte>& bytes, std::uint32_t number) {
  for (unsigned shift = 32; shift != 0; shift -= 8) bytes.push_back(static_cast<std::byte>(number >> (shift - 8)));
}

inline void Append(std::vector<std::byte>& bytes, std::string_view text) {
  for (const char character : text) bytes.push_back(static_cast<std::byte>(character));
}

inline void Append(std::vector<std::byte>& bytes, const std::vector<std::byte>& more) {
  bytes.insert(bytes.end(), more.begin(), more.end());
}

// The checksum of a chunk in a PNG file (CRC-32).
inline std::uint32_t Crc(std::span<const std::byte> bytes) {
  std::uint32_t crc = 0xFFFFFFFF;
  for (const std::byte value : bytes) {
    crc ^= static_cast<std::uint32_t>(value);
    for (int bit = 0; bit < 8; ++bit) crc = crc >> 1U ^ ((crc & 1U) != 0 ? 0xEDB88320 : 0);
  }
  return ~crc;
}

// A chunk of a PNG file: its length, its type, its content, its checksum.
inline void AppendPngChunk(std::vector<std::byte>& bytes, std::string_view type,
                           const std::vector<std::byte>& content) {
  AppendBig32(bytes, static_cast<std::uint32_t>(content.size()));
  const std::size_t start = bytes.size();
  Append(bytes, type);
  Append(bytes, content);
  AppendBig32(bytes, Crc(std::span(bytes).subspan(start)));
}

}  // namespace tarvik::support
