#pragma once

#include <string>

#include "base/DisplayScale.h"

namespace tarvik {

// The enhanced view enlarges by whole factors, so that every pixel of an icon becomes a square of that side. All sizes
// here are in the program's pixels; see SideOfSquare for those of the display.
inline constexpr int minZoom = 1;
inline constexpr int maxZoom = 10;
// The factor that the view opens with, although its zoom list then shows no choice.
inline constexpr int openingZoom = 5;

// The top-left corner of the enlarged picture in the view, in pixels of the client area, whatever the factor.
inline constexpr int pictureLeft = 100;
inline constexpr int pictureTop = 100;

// The side of one pixel's square on the display, in display pixels. It is whole at every scale, so that the squares are
// equal and their edges sharp; at a fractional scale it is the nearest to the exact one, at least 1.
constexpr int SideOfSquare(int factor, const DisplayScale& scale) {
  return scale.Nearest(factor);
}

// The zoom list's text for a factor: "500%" for 5.
inline std::string ZoomText(int factor) {
  return std::to_string(factor * 100) + "%";
}

// The factor of the zoom list's row, counted from 0.
constexpr int ZoomOfRow(int row) {
  return row + minZoom;
}

}  // namespace tarvik
