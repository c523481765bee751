#pragma once

#include <windows.h>

#include <deque>
#include <functional>

#include "base/NonCopyable.h"

namespace tarvik::support {

// Operates this thread's windows as a user would while a modal one blocks the test: each step waits until a window with
// a control of its id is visible, and then runs once. Steps run in order. If a window does not appear within twenty
// seconds, the test fails and the visible window is closed.
class ModalDriver : NonCopyable {
 public:
  using Step = std::function<void(HWND window)>;

  ModalDriver();
  ~ModalDriver();

  // Runs `step` when the window with the control `id` is visible.
  void On(int id, Step step) { steps_.push_back({id, std::move(step)}); }
  bool IsDone() const { return steps_.empty(); }

 private:
  friend struct ModalDriverTimer;
  struct Waiting {
    int id;
    Step step;
  };
  void Tick();

  unsigned long long timer_;
  unsigned long long waitingSince_;
  std::deque<Waiting> steps_;
};

}  // namespace tarvik::support
