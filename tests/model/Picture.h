#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarvik::model {

using Pixel = std::uint32_t;  // 0x00BBGGRR

inline constexpr Pixel blackPixel = 0x000000;
inline constexpr Pixel whitePixel = 0xFFFFFF;

// A picture in memory, top row first. Drawing is clipped at its edges.
struct Picture {
  Picture() = default;
  Picture(int wide, int high, Pixel color);

  Pixel At(int x, int y) const { return pixels[OffsetOf(x, y)]; }
  void Set(int x, int y, Pixel color);
  void Fill(Pixel color);
  // The one-pixel outline of a box; both corners belong to it.
  void Box(int left, int top, int right, int bottom, Pixel color);
  // Adds rows of that colour at the bottom, or removes rows there.
  void SetHeight(int high, Pixel color);

  bool operator==(const Picture&) const = default;

  int width = 0;
  int height = 0;
  std::vector<Pixel> pixels;

 private:
  std::size_t OffsetOf(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
  }
};

}  // namespace tarvik::model
