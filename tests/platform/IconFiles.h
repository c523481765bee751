#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/PixelView.h"

namespace tarvik::support {

using Bytes = std::vector<std::byte>;

// One picture of an icon file: the left half of its upper half in one colour, the right half in another, its lower
// half transparent.
struct IconPicture {
  int size = 32;  // both sides, even
  int bits = 24;  // per pixel: 1, 4, 8, 24 or 32
  Bytes data;     // as stored in the file
};

// A picture as a device-independent bitmap with its mask.
IconPicture BitmapPicture(int size, int bits, Color left, Color right);
// A picture as PNG.
IconPicture PngPicture(int size, Color left, Color right);

enum class IconFileKind : std::uint16_t { Icon = 1, Cursor = 2 };

// A file of one or more pictures.
Bytes IconFile(std::span<const IconPicture> pictures, IconFileKind kind = IconFileKind::Icon);
// A file of one picture of 32 pixels in one colour.
Bytes IconFileOf(Color color, IconFileKind kind = IconFileKind::Icon);

// Header values of an animation that differ from its content.
struct AnimationClaims {
  std::vector<std::uint32_t> sequence = {};  // the picture of each step; if empty, in the order of the file
  std::optional<std::uint32_t> frames = {};
  std::optional<std::uint32_t> steps = {};
  std::optional<std::uint32_t> listSize = {};  // of the chunk that holds the pictures
};

// An animated cursor with a picture in each of the colours.
Bytes AnimationFile(std::span<const Color> colors, const AnimationClaims& claims = {});

// The group resource of an icon of one picture, which is the icon resource of that number.
Bytes IconGroup(const IconPicture& picture, std::uint16_t number);

// Adds an icon for each of the pictures to a program or library file.
void AddIcons(const std::string& path, std::span<const IconPicture> pictures);

}  // namespace tarvik::support
