#pragma once

#include <string>

namespace tarvik {

// The enhanced view enlarges by whole factors, so that every pixel of an icon becomes a square of that side.
inline constexpr int minZoom = 1;
inline constexpr int maxZoom = 10;
// The factor that the view opens with, although its zoom list then shows no choice.
inline constexpr int openingZoom = 5;

// The top-left corner of the enlarged picture in the view, in pixels of the client area, whatever the factor.
inline constexpr int pictureLeft = 100;
inline constexpr int pictureTop = 100;

// The zoom list's text for a factor: "500%" for 5.
inline std::string ZoomText(int factor) {
  return std::to_string(factor * 100) + "%";
}

// The factor of the zoom list's row, counted from 0.
constexpr int ZoomOfRow(int row) {
  return row + minZoom;
}

}  // namespace tarvik
