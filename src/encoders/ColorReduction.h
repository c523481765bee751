#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "base/PixelView.h"

namespace tarvik {

// A colour and its number of pixels.
struct CountedColor {
  Color color = black;
  std::uint32_t count = 0;
};

// A palette, and for each of the reduced colours its index in it.
struct Reduction {
  std::vector<Color> palette;
  std::vector<std::uint8_t> indexes;
};

// Reduces the colours to a palette of at most `maxColors` (1 to 256) that keeps the squared error small, summed over
// the three channels of all pixels. Each colour is mapped to the nearest of the palette; if several are equally near,
// to one of them. The box of colour space whose cut reduces the error most is cut repeatedly, at the best place (after
// Wu, "Efficient statistical computations for optimal color quantization", 1991); then the palette's colours are moved
// to the means of the colours mapped to them (Lloyd's method) while that still helps. The result is deterministic on
// every system. There must be at least one colour, and no duplicates.
Reduction ReduceColors(std::span<const CountedColor> colors, std::size_t maxColors);

}  // namespace tarvik
