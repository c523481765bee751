#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include "platform/Handles.h"
#include "startup/Placement.h"

namespace tarvik::support {

// Expects a window to be at the centered position for its size.
inline void ExpectCentered(HWND window) {
  RECT bounds{};
  GetWindowRect(window, &bounds);
  const WindowDc dc(window);
  const int across = GetDeviceCaps(dc.get(), LOGPIXELSX);
  const int down = GetDeviceCaps(dc.get(), LOGPIXELSY);
  const TwipPoint expected =
      CenteredCorner({ToTwips(GetSystemMetrics(SM_CXSCREEN), across), ToTwips(GetSystemMetrics(SM_CYSCREEN), down)},
                     {ToTwips(bounds.right - bounds.left, across), ToTwips(bounds.bottom - bounds.top, down)});
  EXPECT_EQ(bounds.left, ToPixels(expected.left, across));
  EXPECT_EQ(bounds.top, ToPixels(expected.top, down));
}

}  // namespace tarvik::support
