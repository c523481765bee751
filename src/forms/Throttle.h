#pragma once

#include <windows.h>

namespace tarvik {

// Says whether a repeated action is due: at once the first time, then once per period. Time is the system's tick
// count, which advances in steps of up to 16 milliseconds.
class Throttle {
 public:
  // `period` in milliseconds.
  explicit Throttle(ULONGLONG period) : period_(period) {}

  bool IsDue() const { return GetTickCount64() - doneAt_ >= period_; }
  // Notes that the action is done now.
  void Note() { doneAt_ = GetTickCount64(); }

 private:
  ULONGLONG period_;
  ULONGLONG doneAt_ = 0;
};

}  // namespace tarvik
