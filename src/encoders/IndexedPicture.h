#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "base/PixelView.h"

namespace tarvik {

// A picture whose pixels are indexes into a palette of 1 to 256 colours.
struct IndexedPicture {
  int width = 0;
  int height = 0;
  std::vector<Color> palette;
  std::vector<std::uint8_t> pixels;  // row by row from the top
  // The palette index of the transparent colour. No pixel of another colour has this index.
  std::optional<std::uint8_t> transparentIndex;
};

// The picture with a palette of its own: its exact colours, in order of first appearance, if they are at most 256,
// otherwise the 256 nearest to them. A transparent colour is one of the 256 and always exact; if no pixel has it, it
// takes no index in the palette and the result has no transparent index.
IndexedPicture IndexByBestPalette(const PixelView& picture, std::optional<Color> transparent);

// The picture in the 216 colours whose channels are multiples of 51, each pixel mapped to the nearest. The palette
// holds all of them, red changing slowest; a transparent colour that the picture has follows as entry 216, itself
// rounded to the nearest of the 216.
IndexedPicture IndexByWebPalette(const PixelView& picture, std::optional<Color> transparent);

}  // namespace tarvik
