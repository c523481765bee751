#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace tarvik {

// What a system wants of an icon: a size in pixels, and the bits per pixel of its screen.
struct IconWish {
  int width = 32;
  int height = 32;
  int bits = 32;
};

// A group of icons, in the form of a module's resource (RT_GROUP_ICON): six bytes (a zero, 1 for icons, and the number
// of pictures), then fourteen for each picture: its sides, a byte each, where two zeros mean 256; colours; a zero;
// planes and bits, two bytes each; its size in bytes; and its number.
inline constexpr std::size_t iconGroupStartSize = 6;
inline constexpr std::size_t iconGroupEntrySize = 14;

// The size in bytes of a group that starts with these; 0 if they are not the start of a group.
std::size_t IconGroupSize(std::span<const std::byte> start);

// The number of the best matching picture, chosen as the system's LookupIconIdFromDirectoryEx does: the nearest size,
// by the sum of the differences of both sides; among those of that size the nearest number of bits; of equals the
// first. The group may be truncated: only entries that are complete count. Returns nothing if there is no entry or the
// bytes are no group.
std::optional<std::uint16_t> ChoosePicture(std::span<const std::byte> group, const IconWish& wish);

// The largest side of a picture that a group can name, and more bytes than any such picture takes.
inline constexpr int maxPictureSide = 256;
inline constexpr std::size_t maxPictureBytes = std::size_t{512} * 1024;

// Returns true if the bytes start with a complete picture of an icon (RT_ICON): an uncompressed device-independent
// bitmap of 1 to 32 bits, twice as high as the icon, followed by its mask; or a PNG picture, of which only the start is
// checked. A picture with a side beyond 256 is rejected. Bytes after it are ignored.
bool HoldsPicture(std::span<const std::byte> bytes);

}  // namespace tarvik
