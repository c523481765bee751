#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tarvik {

// Little-endian numbers in the bytes of a file; BigU32At reads big-endian. The caller has checked that all bytes of the
// number exist.

inline std::uint32_t U8At(std::span<const std::byte> bytes, std::size_t offset) {
  return std::to_integer<std::uint32_t>(bytes[offset]);
}

inline std::uint32_t U16At(std::span<const std::byte> bytes, std::size_t offset) {
  return U8At(bytes, offset) | U8At(bytes, offset + 1) << 8U;
}

inline std::uint32_t U32At(std::span<const std::byte> bytes, std::size_t offset) {
  return U16At(bytes, offset) | U16At(bytes, offset + 2) << 16U;
}

inline std::uint32_t BigU32At(std::span<const std::byte> bytes, std::size_t offset) {
  return U8At(bytes, offset) << 24U | U8At(bytes, offset + 1) << 16U | U8At(bytes, offset + 2) << 8U |
         U8At(bytes, offset + 3);
}

}  // namespace tarvik
