#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/TaskBar.h"

namespace tarvik::support {

// A task bar that logs the calls in order: a state by its name, a share as "1/4".
class NotedTaskBar final : public TaskBar {
 public:
  void SetState(HWND window, State state) override {
    EXPECT_NE(IsWindow(window), FALSE);
    static constexpr const char* names[] = {"none", "indeterminate", "normal", "error"};
    calls.emplace_back(names[static_cast<std::size_t>(state)]);
  }
  void SetShare(HWND window, int done, int total) override {
    EXPECT_NE(IsWindow(window), FALSE);
    calls.push_back(std::to_string(done) + "/" + std::to_string(total));
  }

  std::vector<std::string> calls;
};

}  // namespace tarvik::support
