#include "grid/WheelScroll.h"

namespace tarvik {
namespace {

constexpr int deltaOfNotch = 120;

}  // namespace

int WheelScroll::Turn(int delta, int pixelsPerNotch) {
  rest_ -= delta * pixelsPerNotch;
  const int pixels = rest_ / deltaOfNotch;
  rest_ -= pixels * deltaOfNotch;
  return pixels;
}

int PixelsPerNotch(unsigned lines, int lineHeight, int page) {
  const auto linesOfPage = static_cast<unsigned>(page / lineHeight);
  return lines > linesOfPage ? page : static_cast<int>(lines) * lineHeight;
}

}  // namespace tarvik
