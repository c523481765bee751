#pragma once

#include <concepts>
#include <cstddef>
#include <vector>

#include "base/PixelView.h"

namespace tarvik::support {

// A picture in memory, made from a formula of (x, y) or filled pixel by pixel.
class TestRaster final : public PixelView {
 public:
  TestRaster(int width, int height, Color color = black)
      : width_(width),
        height_(height),
        pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), color) {}
  template <std::invocable<int, int> Formula>
  TestRaster(int size, Formula formula) : TestRaster(size, size, black) {
    for (int y = 0; y < size; ++y) {
      for (int x = 0; x < size; ++x) Set(x, y, formula(x, y));
    }
  }

  int Width() const override { return width_; }
  int Height() const override { return height_; }
  Color Pixel(int x, int y) const override { return pixels_.at(IndexOf(x, y)); }
  void Set(int x, int y, Color color) { pixels_.at(IndexOf(x, y)) = color; }

  // Row by row from the top.
  const std::vector<Color>& Pixels() const { return pixels_; }
  // Sets the pixel with that number, counted row by row from the top.
  void SetNumber(int number, Color color) { pixels_.at(static_cast<std::size_t>(number)) = color; }

 private:
  std::size_t IndexOf(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
  }

  int width_;
  int height_;
  std::vector<Color> pixels_;
};

// A raster whose pixels, row by row from the top, are these, and then `rest`.
inline TestRaster RasterOf(int size, const std::vector<Color>& first, Color rest) {
  TestRaster raster(size, size, rest);
  for (std::size_t number = 0; number < first.size(); ++number)
    raster.SetNumber(static_cast<int>(number), first[number]);
  return raster;
}

}  // namespace tarvik::support
