#pragma once

#include <windows.h>

#include "base/NonCopyable.h"

namespace tarvik {

// The hourglass for as long as this object lives; then the pointer that was there before. While it lives, windows do
// not put their own pointer back when the mouse moves over them.
class Hourglass : NonCopyable {
 public:
  Hourglass();
  ~Hourglass();

  // Shows the hourglass once more where one is alive, as an answer to the system's question for a window's pointer.
  // False, and nothing done, where none is.
  static bool Maintain();

 private:
  HCURSOR former_;
};

}  // namespace tarvik
