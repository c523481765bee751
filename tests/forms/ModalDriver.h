#pragma once

#include <windows.h>

#include <deque>
#include <functional>

#include "base/NonCopyable.h"

namespace tarvik::support {

// Works this thread's windows the way a user would while a modal one keeps the test waiting: each step waits until a
// window with a control of its id is in sight, and then runs once. Steps run in order. Where a window does not come in
// twenty seconds, the test fails and whatever is in sight is closed.
class ModalDriver : NonCopyable {
 public:
  using Step = std::function<void(HWND window)>;

  ModalDriver();
  ~ModalDriver();

  // Runs `step` when the window is in sight that has the control `id`.
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
