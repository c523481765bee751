#pragma once

#include <windows.h>

namespace tarvik {

// The buttons that windows have in the task bar. Nothing here fails: a system that shows no progress there does
// nothing.
class TaskBar {
 public:
  enum class State { None, Indeterminate, Normal, Error };

  virtual ~TaskBar() = default;

  virtual void SetState(HWND window, State state) = 0;
  // How full the button is in the states Normal and Error: `done` of `total`, which is above 0.
  virtual void SetShare(HWND window, int done, int total) = 0;
};

}  // namespace tarvik
