#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "base/PixelView.h"

namespace tarvik {

// A copy of all pixels of a view, for code that reads each pixel several times.
class PixelCopy {
 public:
  explicit PixelCopy(const PixelView& view) : width_(view.Width()), height_(view.Height()) {
    pixels_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
    view.CopyPixels(pixels_);
  }

  int Width() const { return width_; }    // in pixels
  int Height() const { return height_; }  // in pixels
  // Row by row from the top, each from left to right.
  std::span<const Color> Pixels() const { return pixels_; }
  // The row y, 0 <= y < Height().
  std::span<const Color> Row(int y) const {
    const auto rowLength = static_cast<std::size_t>(width_);
    return Pixels().subspan(rowLength * static_cast<std::size_t>(y), rowLength);
  }

 private:
  int width_;
  int height_;
  std::vector<Color> pixels_;
};

}  // namespace tarvik
