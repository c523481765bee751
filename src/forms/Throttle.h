#pragma once

#include <windows.h>

namespace tarvik {

// When something that is done again and again is due: once in each period, and at once the first time. Time is the
// system's tick count, which moves in steps of up to 16 milliseconds.
class Throttle {
 public:
  // `period` in milliseconds.
  explicit Throttle(ULONGLONG period) : period_(period) {}

  bool IsDue() const { return GetTickCount64() - doneAt_ >= period_; }
  // It is done now.
  void Note() { doneAt_ = GetTickCount64(); }

 private:
  ULONGLONG period_;
  ULONGLONG doneAt_ = 0;
};

}  // namespace tarvik
