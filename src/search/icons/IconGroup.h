#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace tarvik {

// What a system asks an icon for: a size in pixels, and the bits of a pixel of its screen.
struct IconWish {
  int width = 32;
  int height = 32;
  int bits = 32;
};

// A group of icons, as the resources of a module have it (RT_GROUP_ICON): six bytes (a zero, 1 for icons, and how many
// pictures there are), then fourteen for each picture: its sides, a byte each, where two zeros are 256; colours; a
// zero; planes and bits, two bytes each; its size in bytes; and its number.
inline constexpr std::size_t iconGroupStartSize = 6;
inline constexpr std::size_t iconGroupEntrySize = 14;

// How many bytes a group takes that starts with these; 0 if they are no start of a group.
std::size_t IconGroupSize(std::span<const std::byte> start);

// The number of the picture that suits best, chosen as the system's LookupIconIdFromDirectoryEx does: the nearest size,
// by the sum of what both sides are off; among those of that size the nearest number of bits; of equals the first. The
// group may be cut short: only entries that are there count. Nothing if there is none, or it is no group.
std::optional<std::uint16_t> ChoosePicture(std::span<const std::byte> group, const IconWish& wish);

// The largest side of a picture that a group can name, and more bytes than any such picture takes.
inline constexpr int maxPictureSide = 256;
inline constexpr std::size_t maxPictureBytes = std::size_t{512} * 1024;

// Whether the bytes start with all of an icon's picture (RT_ICON): a device-independent bitmap without compression, of
// 1 to 32 bits, twice as high as the icon, with its mask behind it; or a PNG picture, of which the start alone is
// looked at. A picture with a side beyond 256 is none. What lies behind it does not matter.
bool HoldsPicture(std::span<const std::byte> bytes);

}  // namespace tarvik
