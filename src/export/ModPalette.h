#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "base/PixelView.h"

namespace tarvik {
class PixelCopy;
}

// The palettes of exported files: entry i is the colour of the pixel value i. In a file an entry is four bytes: blue,
// green, red, 0.
namespace tarvik::ModPalette {

inline constexpr std::array<Color, 2> twoColors{black, white};

// The standard colours of 4-bit pictures, in the order of their pixel values.
inline constexpr std::array<Color, 16> sixteenColors{0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                                                     0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                                                     0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

// The pixel value of the first of the sixteen colours with the same blue, green and red; none for any other colour.
constexpr std::optional<int> SixteenColorIndex(Color color) {
  constexpr Color blueGreenRed = 0xFFFFFF;
  const auto* const found = std::ranges::find(sixteenColors, color & blueGreenRed);
  if (found == sixteenColors.end()) return std::nullopt;
  return static_cast<int>(found - sixteenColors.begin());
}

using Palette256 = std::array<Color, 256>;

// The entries of black and white in the icon layout. The 8-bit pixel writer puts them there in either layout.
inline constexpr int blackEntry = 0;
inline constexpr int whiteEntry = 255;

// The palette of an 8-bit icon or cursor: black first, white last, and between them the other colours of the picture in
// scan order from the top left. A colour after the 254th gets no entry; unused entries are 0.
Palette256 BuildIconPalette(const PixelCopy& image);

// The palette of an 8-bit bitmap: every colour, including black and white, in scan order, from entry 0. A colour after
// the 256th gets no entry; unused entries are 0.
Palette256 BuildBitmapPalette(const PixelCopy& composed);

}  // namespace tarvik::ModPalette
