#include "startup/DesktopScreen.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/Handles.h"

namespace tarvik {
namespace {

TEST(DesktopScreen, MeasuresThePrimaryMonitor) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  ASSERT_NE(GetMonitorInfoW(MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), &monitor), 0);
  EXPECT_EQ(desktopScreen::Width(), monitor.rcMonitor.right);
  EXPECT_EQ(desktopScreen::Height(), monitor.rcMonitor.bottom);
}

TEST(DesktopScreen, KnowsTheColorDepth) {
  DEVMODEW mode{};
  mode.dmSize = sizeof mode;
  ASSERT_NE(EnumDisplaySettingsW(nullptr, ENUM_CURRENT_SETTINGS, &mode), 0);
  EXPECT_EQ(desktopScreen::BitsPerPixel(), static_cast<int>(mode.dmBitsPerPel));
}

// A device context that was released is the next one to be handed out again; one that was not released is not.
TEST(DesktopScreen, KeepsTheDeviceContextOfEachMeasurement) {
  const auto nextContext = [] {
    const WindowDc dc(nullptr);
    return dc.get();
  };
  const HDC next = nextContext();
  desktopScreen::BitsPerPixel();
  EXPECT_NE(nextContext(), next);
}

}  // namespace
}  // namespace tarvik
