#pragma once

#include <windows.h>

namespace tarvik {

// A scroll bar control with a value, which is always inside its range.
class ScrollBar {
 public:
  struct Range {
    int minimum = 0;
    int maximum = 0;
    int smallStep = 1;  // by an arrow
    int largeStep = 1;  // by a click next to the thumb
  };

  void Attach(HWND window) { window_ = window; }
  HWND Window() const { return window_; }

  // Sets the range and clamps the value to it. `page` is the visible part of the picture, in the units of the value; it
  // sets the size of the thumb.
  void SetRange(const Range& range, int page = 1);
  int SmallStep() const { return range_.smallStep; }
  int Value() const { return value_; }
  void SetValue(int value);

  // Handles a request of WM_HSCROLL or WM_VSCROLL; returns true if the value changed.
  bool Scroll(int request);

 private:
  int ThumbValue() const;

  HWND window_ = nullptr;
  Range range_;
  int page_ = 1;
  int value_ = 0;
};

}  // namespace tarvik
