#pragma once

namespace tarvik {

// How far the mouse wheel scrolls the grid. A touchpad or a fine wheel sends a notch in many parts; fractions of a
// pixel are kept for the next turn, so that the parts add up to the notch.
class WheelScroll {
 public:
  // Returns how many pixels the grid scrolls down (below 0: up) for a turn of `delta` 120ths of a notch; above 0 is
  // away from the user. A notch is `pixelsPerNotch`.
  int Turn(int delta, int pixelsPerNotch);

 private:
  int rest_ = 0;  // in 120ths of a pixel
};

// The pixels of one notch: the system's number of lines, each `lineHeight` pixels, but at most `page`. The system's
// value for a whole page is `pageLines`.
int PixelsPerNotch(unsigned lines, int lineHeight, int page);
inline constexpr unsigned pageLines = 0xFFFFFFFF;

}  // namespace tarvik
