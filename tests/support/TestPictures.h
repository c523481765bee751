#pragma once

#include <cstdint>

#include "support/TestRaster.h"

namespace tarvik::support {

// Red increases across, green down, blue along the diagonal: neighbouring pixels always differ.
TestRaster Gradient(int size);
// Every pixel has a random colour; the same seed gives the same picture everywhere.
TestRaster Noise(int size, std::uint32_t seed);
// Soft shapes with light, shadow and a little grain, like a photograph.
TestRaster Photo(int size, std::uint32_t seed);
// That many different colours, in rows from the top-left corner, repeated; the colours are multiples of a step that
// keeps them distinct.
TestRaster ManyColors(int size, int colors);

}  // namespace tarvik::support
