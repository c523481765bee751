#pragma once

#include <algorithm>
#include <array>

#include "base/DisplayScale.h"

namespace tarvik {

// The sides, in pixels, of the pictures that each icon of the enhanced view's toolbar has: 24 pixels at 96 dpi, and the
// same at 120, 128, 144, 168, 192, 240, 288 and 384 dpi. scripts/make-toolbar-icons makes them.
inline constexpr std::array buttonPictureSides{24, 30, 32, 36, 42, 48, 60, 72, 96};

// The side of the toolbar's pictures on a display: the largest there is that is not larger than 24 pixels are there. A
// picture is never stretched, so that it stays sharp.
constexpr int ButtonPictureSide(const DisplayScale& scale) {
  const int wanted = scale.Nearest(buttonPictureSides.front());
  return *std::find_if(buttonPictureSides.rbegin(), buttonPictureSides.rend(),
                       [=](int side) { return side <= wanted; });
}

}  // namespace tarvik
