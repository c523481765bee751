#include "platform/Holdings.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/Handles.h"

namespace tarvik::testing {
namespace {

TEST(Holdings, CountWhatThisProcessTakesAndGivesBack) {
  constexpr int taken = 300;
  HeldBy(GetCurrentProcess());  // the counting itself makes the table of windows and menus as long as it gets
  const Holdings before = HeldBy(GetCurrentProcess());
  {
    std::vector<BrushHandle> brushes;
    std::vector<FileHandle> events;
    std::vector<HMENU> menus;
    for (int i = 0; i < taken; ++i) {
      brushes.emplace_back(CreateSolidBrush(RGB(i % 256, 0, 0)));
      events.emplace_back(CreateEventW(nullptr, FALSE, FALSE, nullptr));
      menus.push_back(CreateMenu());
    }
    const Holdings held = HeldBy(GetCurrentProcess());
    EXPECT_EQ(held.gdiObjects, before.gdiObjects + taken);
    EXPECT_EQ(held.kernelHandles, before.kernelHandles + taken);
    EXPECT_NEAR(held.userHandles, before.userHandles + taken, 20) << "other processes' too";
    for (const HMENU menu : menus) DestroyMenu(menu);
  }
  const Holdings after = HeldBy(GetCurrentProcess());
  EXPECT_EQ(after.gdiObjects, before.gdiObjects);
  EXPECT_EQ(after.kernelHandles, before.kernelHandles);
}

}  // namespace
}  // namespace tarvik::testing
