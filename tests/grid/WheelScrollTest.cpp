#include "grid/WheelScroll.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvik {
namespace {

constexpr int notch = 120;

TEST(WheelScroll, ScrollsANotchAtOnceAgainstTheTurn) {
  WheelScroll wheel;
  EXPECT_EQ(wheel.Turn(-notch, 114), 114);
  EXPECT_EQ(wheel.Turn(notch, 114), -114);
  EXPECT_EQ(wheel.Turn(-3 * notch, 114), 342);
}

struct Parts {
  int count;
  int delta;
};

class WheelParts : public ::testing::TestWithParam<Parts> {};

TEST_P(WheelParts, AddUpToTheNotch) {
  WheelScroll wheel;
  for (const int direction : {1, -1}) {
    int scrolled = 0;
    for (int part = 0; part < GetParam().count; ++part) scrolled += wheel.Turn(-direction * GetParam().delta, 38);
    EXPECT_EQ(scrolled, direction * 38);
  }
}

INSTANTIATE_TEST_SUITE_P(OfANotch, WheelParts,
                         ::testing::Values(Parts{2, 60}, Parts{3, 40}, Parts{12, 10}, Parts{120, 1}),
                         [](const auto& instance) { return std::to_string(instance.param.count); });

TEST(WheelScroll, ScrollsNothingWhereTheSystemAsksForNoLines) {
  WheelScroll wheel;
  EXPECT_EQ(wheel.Turn(-notch, PixelsPerNotch(0, 38, 190)), 0);
}

TEST(PixelsPerNotch, AreTheSystemsLinesUpToAPage) {
  EXPECT_EQ(PixelsPerNotch(1, 38, 190), 38);
  EXPECT_EQ(PixelsPerNotch(3, 38, 190), 114);
  EXPECT_EQ(PixelsPerNotch(5, 38, 190), 190);
  EXPECT_EQ(PixelsPerNotch(6, 38, 190), 190);
  EXPECT_EQ(PixelsPerNotch(3, 70, 190), 190);
  EXPECT_EQ(PixelsPerNotch(1000000000, 38, 190), 190);
  EXPECT_EQ(PixelsPerNotch(pageLines, 38, 190), 190);
}

}  // namespace
}  // namespace tarvik
