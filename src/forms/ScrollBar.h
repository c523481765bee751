#pragma once

#include <windows.h>

namespace tarvik {

// A scroll bar control with a value. A value never leaves its range.
class ScrollBar {
 public:
  struct Range {
    int minimum = 0;
    int maximum = 0;
    int smallStep = 1;  // an arrow
    int largeStep = 1;  // the space beside the thumb
  };

  void Attach(HWND window) { window_ = window; }
  HWND Window() const { return window_; }

  // Sets the range; the value is drawn into it. `page` is the part of the picture in sight, in the units of the value;
  // it sizes the thumb.
  void SetRange(const Range& range, int page = 1);
  int SmallStep() const { return range_.smallStep; }
  int Value() const { return value_; }
  void SetValue(int value);

  // Moves the value as the user asks by WM_HSCROLL or WM_VSCROLL; true when it changed.
  bool Scroll(int request);

 private:
  int ThumbValue() const;

  HWND window_ = nullptr;
  Range range_;
  int page_ = 1;
  int value_ = 0;
};

}  // namespace tarvik
