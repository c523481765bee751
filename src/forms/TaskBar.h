#pragma once

#include <windows.h>

namespace tarvik {

// The windows' buttons in the task bar. No call fails: a system without task-bar progress does nothing.
class TaskBar {
 public:
  enum class State { None, Indeterminate, Normal, Error };

  virtual ~TaskBar() = default;

  virtual void SetState(HWND window, State state) = 0;
  // Sets how full the button is in the states Normal and Error: `done` of `total`, which is above 0.
  virtual void SetShare(HWND window, int done, int total) = 0;
};

}  // namespace tarvik
