#include "model/Grid.h"

#include <algorithm>

namespace tarvik::model {
namespace {

constexpr int fewestRowsThatScroll = 6;
constexpr int margin = 3;
constexpr int notch = 120;

}  // namespace

void Grid::SizeFor(const Geometry& geometry, int icons) {
  const int rows = (icons + geometry.columns - 1) / geometry.columns;
  scrolls_ = rows >= fewestRowsThatScroll;
  picture_.SetHeight(scrolls_ ? rows * geometry.pitch : viewportHeight, whitePixel);
  maximum_ = std::max(0, picture_.height - viewportHeight);
  line_ = geometry.pitch;
  ScrollTo(0);
}

void Grid::DrawIcon(const Geometry& geometry, int index, const IconLook& look) {
  const int left = margin + index % geometry.columns * geometry.pitch;
  const int top = margin + index / geometry.columns * geometry.pitch;
  for (int y = 0; y < geometry.size; ++y) {
    for (int x = 0; x < geometry.size; ++x) {
      if (!IsTransparent(geometry.size, x, y)) picture_.Set(left + x, top + y, ColorAt(look, geometry.size, x, y));
    }
  }
}

void Grid::Frame(int x, int y, int extent, bool shown) {
  picture_.Box(x, y, x + extent, y + extent, shown ? blackPixel : whitePixel);
}

void Grid::ScrollTo(int value) {
  scroll_ = std::clamp(value, 0, maximum_);
}

void Grid::Turn(int delta, int linesOfNotch) {
  const int lines = std::min(linesOfNotch, viewportHeight / line_);
  const int pixels = linesOfNotch > lines ? viewportHeight : lines * line_;
  rest_ -= delta * pixels;
  ScrollBy(rest_ / notch);
  rest_ %= notch;
}

}  // namespace tarvik::model
