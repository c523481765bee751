#pragma once

namespace tarvik {

// How far the mouse wheel scrolls the grid. A touchpad or a fine wheel sends a notch in many parts; what is less than a
// pixel is kept for the next turn, so that the parts add up to the notch.
class WheelScroll {
 public:
  // A turn in 120ths of a notch, more than 0 away from the user; how many pixels the grid scrolls down for it, less
  // than 0 for up. A notch is `pixelsPerNotch`.
  int Turn(int delta, int pixelsPerNotch);

 private:
  int rest_ = 0;  // in 120ths of a pixel
};

// The pixels of one notch: the system's number of lines, each `lineHeight` pixels, but never more than `page`. The
// system says `pageLines` for a page.
int PixelsPerNotch(unsigned lines, int lineHeight, int page);
inline constexpr unsigned pageLines = 0xFFFFFFFF;

}  // namespace tarvik
