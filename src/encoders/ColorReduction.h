#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "base/PixelView.h"

namespace tarvik {

// A colour and how many pixels have it.
struct CountedColor {
  Color color = black;
  std::uint32_t count = 0;
};

// A palette, and for each of the colours it was made for its index in it.
struct Reduction {
  std::vector<Color> palette;
  std::vector<std::uint8_t> indexes;
};

// Reduces the colours to a palette of at most `maxColors` (1 to 256) that keeps the squared error small, summed over
// the three channels of all pixels. Each colour gets the nearest of the palette; of several equally near, one of them.
// The box of colour space whose cut saves most error is cut, again and again, where it saves most (after Wu,
// "Efficient statistical computations for optimal color quantization", 1991); then the palette's colours are moved
// to the means of what falls on them (Lloyd's method) while that still helps.
// The same colours in the same order give the same result everywhere. There must be one colour at least, and none
// of them twice.
Reduction ReduceColors(std::span<const CountedColor> colors, std::size_t maxColors);

}  // namespace tarvik
