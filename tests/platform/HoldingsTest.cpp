#include "platform/Holdings.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/Handles.h"

namespace tarvik::support {
namespace {

TEST(Holdings, CountWhatThisProcessTakesAndGivesBack) {
  constexpr int taken = 300;
  const Holdings before = HeldBy(GetCurrentProcess());
  {
    std::vector<BrushHandle> brushes;
    std::vector<KernelHandle> events;
    std::vector<HMENU> menus;
    for (int i = 0; i < taken; ++i) {
      brushes.emplace_back(CreateSolidBrush(RGB(i % 256, 0, 0)));
      events.emplace_back(CreateEventW(nullptr, FALSE, FALSE, nullptr));
      menus.push_back(CreateMenu());
    }
    const Holdings held = HeldBy(GetCurrentProcess());
    EXPECT_EQ(held.gdiObjects, before.gdiObjects + taken);
    EXPECT_EQ(held.kernelHandles, before.kernelHandles + taken);
    EXPECT_EQ(held.userHandles, before.userHandles + taken);
    for (const HMENU menu : menus) DestroyMenu(menu);
  }
  const Holdings after = HeldBy(GetCurrentProcess());
  EXPECT_EQ(after.gdiObjects, before.gdiObjects);
  EXPECT_EQ(after.kernelHandles, before.kernelHandles);
  EXPECT_EQ(after.userHandles, before.userHandles);
}

TEST(Holdings, CountAsManyWhereMoreWereHeldBefore) {
  const Holdings before = HeldBy(GetCurrentProcess());
  std::vector<HMENU> menus(6000);
  for (HMENU& menu : menus) menu = CreateMenu();
  for (const HMENU menu : menus) DestroyMenu(menu);
  EXPECT_EQ(HeldBy(GetCurrentProcess()).userHandles, before.userHandles);
  const HMENU menu = CreateMenu();
  EXPECT_EQ(HeldBy(GetCurrentProcess()).userHandles, before.userHandles + 1);
  DestroyMenu(menu);
}

}  // namespace
}  // namespace tarvik::support
