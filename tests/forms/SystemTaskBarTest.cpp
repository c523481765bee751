#include "forms/SystemTaskBar.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

// The system's own object. Its display is outside this program, and Wine's displays nothing.
TEST(SystemTaskBar, TakesEveryStateOfAWindow) {
  const HWND window = CreateWindowExW(0, L"Static", L"progress", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100,
                                      nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  ASSERT_NE(window, nullptr);
  {
    SystemTaskBar bar;
    EXPECT_TRUE(bar.IsThere());
    bar.SetState(window, TaskBar::State::Indeterminate);
    bar.SetState(window, TaskBar::State::Normal);
    bar.SetShare(window, 1, 2);
    bar.SetState(window, TaskBar::State::Error);
    bar.SetState(window, TaskBar::State::None);
  }
  EXPECT_NE(IsWindow(window), FALSE);
  DestroyWindow(window);
}

TEST(SystemTaskBar, MindsNoWindowThatIsGone) {
  SystemTaskBar bar;
  bar.SetState(nullptr, TaskBar::State::Normal);
  bar.SetShare(nullptr, 1, 1);
  EXPECT_TRUE(bar.IsThere());
}

}  // namespace
}  // namespace tarvik
