#pragma once

#include <vector>

#include "base/PixelView.h"

namespace tarvik::support {

// The bitmap on the clipboard, as another program gets it: as a device-independent bitmap of 32 bits.
struct PastedPicture {
  int width = 0;
  int height = 0;
  std::vector<Color> pixels;  // from the top-left corner
};

// What is there; no pixels where there is no bitmap.
PastedPicture Paste();

}  // namespace tarvik::support
