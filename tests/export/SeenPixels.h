#pragma once

#include <cstddef>
#include <vector>

#include "base/PixelView.h"
#include "support/TestRaster.h"

namespace tarvik {

// What a general reader gets from the files that deliberately differ from the usual format, computed from the pictures
// alone. Pixels row by row from the top.

std::vector<bool> WhitePixels(const support::TestRaster& raster);
std::vector<Color> BlackAndWhitePixels(const std::vector<bool>& isWhite);

// Bits of 64-pixel rows of ten bytes, bottom row first, as the writers store them one picture after another.
std::vector<bool> TenByteRows(const std::vector<const support::TestRaster*>& pictures);
// The result of reading them as eight-byte rows, from that byte on: 64 rows of 64 pixels.
std::vector<bool> SeenInEightByteRows(const std::vector<bool>& bits, std::size_t firstByte);

// Image and transparency of an icon or cursor file of these surfaces, with that many bits per pixel.
std::vector<Color> SeenImage(const support::TestRaster& image, const support::TestRaster& mask, int bits);
std::vector<bool> SeenTransparent(const support::TestRaster& image, const support::TestRaster& mask, int bits);
// The same of a bitmap file.
std::vector<Color> SeenBitmap(const support::TestRaster& composed, int bits);

// The pixels that a 256-colour bitmap must show. Its colours fill the palette in the order of their occurrence. Black
// shows as entry 0, white as entry 255, and a colour that is not among the entries 1 to 254 as the pixel before it in
// the file.
std::vector<Color> ShownBy256ColorBitmap(const support::TestRaster& composed);

}  // namespace tarvik
