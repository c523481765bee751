#pragma once

#include <cstddef>
#include <cstdint>

#include "base/DisplayScale.h"
#include "base/Point.h"

namespace tarvik {

// The rows of a picture in memory, the top one first, three bytes a pixel.
template <typename Byte>
struct PixelRows {
  Byte* first = nullptr;     // the top-left pixel
  std::size_t rowBytes = 0;  // from one row to the next
  int width = 0;             // in pixels
  int height = 0;
  Byte* Row(int y) const { return first + rowBytes * static_cast<std::size_t>(y); }
};

inline constexpr int bytesPerPixel = 3;

// Fills `part` with a part of `picture` as a display of that scale shows it: the part whose top-left corner is at
// `corner`, in display pixels, 0 or more. A display pixel has the colours of the pixels that it covers, mixed by the
// areas that it covers of them. So with a whole scale each pixel becomes a square block, and with a broken one edges
// stay as sharp as they can be. What reaches beyond the picture repeats its last column and row.
void Enlarge(const PixelRows<const std::uint8_t>& picture, const DisplayScale& scale, Point corner,
             const PixelRows<std::uint8_t>& part);

}  // namespace tarvik
