#pragma once

namespace tarvik {

// The screen the program starts on.
class Screen {
 public:
  virtual ~Screen() = default;

  virtual int BitsPerPixel() = 0;  // its colour depth
  virtual int Width() = 0;         // in pixels
  virtual int Height() = 0;        // in pixels
};

}  // namespace tarvik
