#pragma once

#include <array>

#include "model/Disk.h"
#include "model/Picture.h"

namespace tarvik::model {

// The measures of the grid that depend on the chosen icon size.
struct Geometry {
  int size = 0;
  int pitch = 0;
  int frame = 0;       // how far a frame reaches beyond its corner
  int firstFrame = 0;  // where the frame that a search draws ends
  int columns = 0;
  int highestLimit = 0;
  int standardLimit = 0;
};
inline constexpr std::array<Geometry, 4> geometries{{
    {16, 22, 20, 21, 31, 4000, 400},
    {32, 38, 36, 37, 15, 2400, 300},
    {48, 54, 52, 53, 10, 1800, 150},
    {64, 70, 68, 69, 8, 1200, 100},
}};

inline constexpr int viewportHeight = 190;
inline constexpr int gridWidth = 685;

// The grid: its picture, and how far it is scrolled.
class Grid {
 public:
  const Picture& Shown() const { return picture_; }
  int Scroll() const { return scroll_; }
  bool Scrolls() const { return scrolls_; }
  int InnerHeight() const { return picture_.height; }

  void Blank() { picture_.Fill(whitePixel); }
  void SizeFor(const Geometry& geometry, int icons);
  void DrawIcon(const Geometry& geometry, int index, const IconLook& look);
  // The frame with that corner, shown in black or erased in white.
  void Frame(int x, int y, int extent, bool shown);

  void ScrollTo(int value);
  void ScrollBy(int pixels) { ScrollTo(scroll_ + pixels); }
  void ScrollToEnd() { ScrollTo(maximum_); }
  int LineStep() const { return line_; }
  // Turns the wheel, in 120ths of a notch.
  void Turn(int delta, int linesOfNotch);

 private:
  Picture picture_{gridWidth, viewportHeight, whitePixel};
  int scroll_ = 0;
  int maximum_ = 0;
  int line_ = 0;
  int rest_ = 0;  // turned so far, but less than a pixel
  bool scrolls_ = false;
};

}  // namespace tarvik::model
