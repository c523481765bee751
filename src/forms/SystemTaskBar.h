#pragma once

#include <windows.h>

#include <shobjidl.h>

#include <memory>
#include <optional>

#include "forms/TaskBar.h"
#include "platform/ComUse.h"

namespace tarvik {

// The system's task bar. Its COM object is created by the first call, so a program that shows no progress loads
// nothing.
class SystemTaskBar final : public TaskBar {
 public:
  void SetState(HWND window, State state) override;
  void SetShare(HWND window, int done, int total) override;

  // Whether the system provides that object; creates it.
  bool IsThere() { return List() != nullptr; }

 private:
  struct Release {
    void operator()(ITaskbarList3* list) const { list->Release(); }
  };
  ITaskbarList3* List();

  bool asked_ = false;
  std::optional<ComUse> use_;  // ends after the list is released
  std::unique_ptr<ITaskbarList3, Release> list_;
};

}  // namespace tarvik
