#pragma once

#include <cstdint>

#include "support/TestRaster.h"

namespace tarvik::support {

// Red across, green down, blue along the diagonal: no two neighbours alike.
TestRaster Gradient(int size);
// Every pixel a colour by chance; the same seed gives the same picture everywhere.
TestRaster Noise(int size, std::uint32_t seed);
// Soft shapes with light, shadow and a little grain, as a photograph has.
TestRaster Photo(int size, std::uint32_t seed);
// As many different colours as asked for, in rows from the top-left corner, over and over; the colours are multiples
// of a step that keeps them apart.
TestRaster ManyColors(int size, int colors);

}  // namespace tarvik::support
