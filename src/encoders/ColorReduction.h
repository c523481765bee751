#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "export/PixelView.h"

namespace tarvik {

// A colour and how many pixels have it.
struct CountedColor {
  Color color = black;
  std::uint32_t count = 0;
};

// A palette of at most `most` colours (1 to 256) that keeps the squared error small, summed over the three channels
// of all pixels, when each pixel takes the nearest. The box of colour space whose cut saves most error is cut, again
// and again, where it saves most (after Wu, "Efficient statistical computations for optimal color quantization",
// 1991); then the colours are moved to the means of what falls on them (Lloyd's method) while that still helps.
// The same colours in the same order give the same palette everywhere. There must be one colour at least.
std::vector<Color> ReduceToPalette(std::span<const CountedColor> colors, std::size_t most);

// For each colour the place of the nearest in a palette of 1 to 256; of several equally near, one of them.
std::vector<std::uint8_t> NearestPlaces(std::span<const CountedColor> colors, std::span<const Color> palette);

}  // namespace tarvik
