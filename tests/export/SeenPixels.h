#pragma once

#include <cstddef>
#include <vector>

#include "base/PixelView.h"
#include "support/TestRaster.h"

namespace tarvik {

// What a general reader sees in the files that are meant to differ from what readers expect, worked out from the
// pictures alone. Pixels row by row from the top.

std::vector<bool> WhitePixels(const support::TestRaster& raster);
std::vector<Color> BlackAndWhitePixels(const std::vector<bool>& isWhite);

// Bits of 64-pixel rows of ten bytes, bottom row first, as the writers store them one picture after another.
std::vector<bool> TenByteRows(const std::vector<const support::TestRaster*>& pictures);
// What a reader of eight-byte rows sees in them from that byte on: 64 rows of 64 pixels.
std::vector<bool> SeenInEightByteRows(const std::vector<bool>& bits, std::size_t firstByte);

// The pixels of a 256-colour bitmap as they are meant to show: its colours in the order met fill the palette, black
// shows as entry 0, white as entry 255, and a colour that is not among the entries 1 to 254 as the pixel before it in
// the file.
std::vector<Color> ShownBy256ColorBitmap(const support::TestRaster& composed);

}  // namespace tarvik
