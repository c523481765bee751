#include "startup/DesktopScreen.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace tarvik {
namespace {

TEST(DesktopScreen, MeasuresThePrimaryMonitor) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  ASSERT_NE(GetMonitorInfoW(MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), &monitor), 0);
  DesktopScreen screen;
  EXPECT_EQ(screen.Width(), monitor.rcMonitor.right);
  EXPECT_EQ(screen.Height(), monitor.rcMonitor.bottom);
}

TEST(DesktopScreen, KnowsTheColorDepth) {
  DEVMODEW mode{};
  mode.dmSize = sizeof mode;
  ASSERT_NE(EnumDisplaySettingsW(nullptr, ENUM_CURRENT_SETTINGS, &mode), 0);
  EXPECT_EQ(DesktopScreen().BitsPerPixel(), static_cast<int>(mode.dmBitsPerPel));
}

}  // namespace
}  // namespace tarvik
