#pragma once

#include <cstddef>
#include <cstdint>

#include "base/DisplayScale.h"
#include "base/Point.h"

namespace tarvik {

// The rows of a picture in memory, the top one first, three bytes per pixel.
template <typename Byte>
struct PixelRows {
  Byte* first = nullptr;     // the top-left pixel
  std::size_t rowBytes = 0;  // from one row to the next
  int width = 0;             // in pixels
  int height = 0;
  Byte* Row(int y) const { return first + rowBytes * static_cast<std::size_t>(y); }
};

inline constexpr int bytesPerPixel = 3;

// Fills `part` with a part of `picture` at a display's scale: the part whose top-left corner is at `corner`, in display
// pixels, 0 or more. The colour of a display pixel is the area-weighted mean of the pixels that it covers. So at an
// integral scale each pixel becomes a square block, and at a fractional one edges stay as sharp as possible. Beyond the
// picture its last column and row are repeated.
void Enlarge(const PixelRows<const std::uint8_t>& picture, const DisplayScale& scale, Point corner,
             const PixelRows<std::uint8_t>& part);

}  // namespace tarvik
