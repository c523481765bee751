#include "search/icons/MountPoint.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace tarvik {
namespace {

constexpr std::uint32_t mountPointTag = 0xA0000003;
constexpr std::size_t targetOffsetField = 8;  // two bytes, counted from the start of the names
constexpr std::size_t targetLengthField = 10;
constexpr std::size_t namesOffset = 16;

constexpr std::string_view volumeStart = R"(\??\Volume{)";
constexpr std::string_view volumeEnd = R"(}\)";
constexpr std::size_t guidLength = 36;  // "01234567-89ab-cdef-0123-456789abcdef"

std::uint32_t Number(std::span<const std::byte> bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) number += std::to_integer<std::uint32_t>(bytes[i]) << 8 * i;
  return number;
}

// Whether UTF-16 characters equal this ASCII text.
bool Are(std::span<const std::byte> characters, std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (Number(characters.subspan(2 * i, 2)) != static_cast<unsigned char>(text[i])) return false;
  }
  return true;
}

}  // namespace

bool IsVolumeMount(std::span<const std::byte> reparseData) {
  constexpr std::size_t targetSize = 2 * (volumeStart.size() + guidLength + volumeEnd.size());
  if (reparseData.size() < namesOffset + targetSize || Number(reparseData.first(4)) != mountPointTag) return false;
  const std::size_t offset = namesOffset + Number(reparseData.subspan(targetOffsetField, 2));
  const std::size_t length = Number(reparseData.subspan(targetLengthField, 2));
  if (length != targetSize || offset > reparseData.size() - targetSize) return false;
  const auto target = reparseData.subspan(offset, targetSize);
  return Are(target, volumeStart) && Are(target.last(2 * volumeEnd.size()), volumeEnd);
}

}  // namespace tarvik
