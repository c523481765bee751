#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tarvik {

// A colour as 0x00BBGGRR: red in the low byte.
using Color = std::uint32_t;

inline constexpr Color black = 0x000000;
inline constexpr Color white = 0xFFFFFF;

constexpr std::uint8_t RedOf(Color color) {
  return static_cast<std::uint8_t>(color % 256);
}
constexpr std::uint8_t GreenOf(Color color) {
  return static_cast<std::uint8_t>(color % 65536 / 256);
}
constexpr std::uint8_t BlueOf(Color color) {
  return static_cast<std::uint8_t>(color / 65536);
}

// The pixels of one picture, read in place. (0, 0) is the top-left corner.
class PixelView {
 public:
  virtual ~PixelView() = default;

  virtual int Width() const = 0;   // in pixels
  virtual int Height() const = 0;  // in pixels
  // The pixel at (x, y), 0 <= x < Width(), 0 <= y < Height().
  virtual Color Pixel(int x, int y) const = 0;
  // Copies all pixels, row by row from the top, into `pixels`, which holds Width() times Height() colours. A picture in
  // memory overrides this, because copying is much faster than reading pixel by pixel.
  virtual void CopyPixels(std::span<Color> pixels) const {
    std::size_t index = 0;
    for (int y = 0; y < Height(); ++y) {
      for (int x = 0; x < Width(); ++x) pixels[index++] = Pixel(x, y);
    }
  }
};

}  // namespace tarvik
