#include "model/Picture.h"

#include <algorithm>

namespace tarvik::model {

Picture::Picture(int wide, int high, Pixel color)
    : width(wide), height(high), pixels(static_cast<std::size_t>(wide) * static_cast<std::size_t>(high), color) {}

void Picture::Set(int x, int y, Pixel color) {
  if (x >= 0 && x < width && y >= 0 && y < height) pixels[OffsetOf(x, y)] = color;
}

void Picture::Fill(Pixel color) {
  std::fill(pixels.begin(), pixels.end(), color);
}

void Picture::Box(int left, int top, int right, int bottom, Pixel color) {
  for (int x = left; x <= right; ++x) {
    Set(x, top, color);
    Set(x, bottom, color);
  }
  for (int y = top; y <= bottom; ++y) {
    Set(left, y, color);
    Set(right, y, color);
  }
}

void Picture::SetHeight(int high, Pixel color) {
  height = high;
  pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(high), color);
}

}  // namespace tarvik::model
