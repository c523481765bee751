#pragma once

#include <windows.h>

#include <functional>

#include "base/Finally.h"
#include "base/Progress.h"
#include "forms/TaskBar.h"

namespace tarvik {

// The progress of a window's commands on its task-bar button. A short command shows nothing there; a longer one is
// updated only when the change is visible: once per hundredth.
class ShownProgress {
 public:
  // Milliseconds since an arbitrary moment.
  using Clock = std::function<ULONGLONG()>;

  // Nothing is shown in the first `delay` milliseconds of a command, or if `bar` is null. `bar` outlives this object.
  explicit ShownProgress(TaskBar* bar, ULONGLONG delay, Clock clock = GetTickCount64)
      : bar_(bar), delay_(delay), clock_(std::move(clock)) {}

  void Attach(HWND window) { window_ = window; }

  void Set(const Progress& progress);

  // Shows an error at once, until the returned object is destroyed; then the progress is shown again, if there is any.
  Finally ShowError();

 private:
  void Show();
  void ShowState(TaskBar::State state);

  TaskBar* bar_;
  ULONGLONG delay_;
  Clock clock_;
  HWND window_ = nullptr;
  Progress progress_;
  ULONGLONG begunAt_ = 0;
  int errors_ = 0;  // how many are shown
  TaskBar::State shownState_ = TaskBar::State::None;
  int shownHundredths_ = -1;  // in the state Normal
};

}  // namespace tarvik
