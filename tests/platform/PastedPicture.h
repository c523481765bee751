#pragma once

#include <string>
#include <vector>

#include "base/PixelView.h"

namespace tarvik::support {

// The bitmap on the clipboard as another program receives it: a device-independent bitmap of 32 bits.
struct PastedPicture {
  int width = 0;
  int height = 0;
  std::vector<Color> pixels;  // from the top-left corner
};

// The bitmap on the clipboard; no pixels if there is none.
PastedPicture Paste();

// The text on the clipboard, UTF-8; empty if there is none.
std::string PastedText();
// Puts a text on the clipboard, instead of what was there, as another program does.
void CopyText(const std::string& text);

}  // namespace tarvik::support
