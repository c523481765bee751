#include "export/HotSpotPick.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

constexpr int farBound = 1000;

TEST(HotSpotPick, ScalesByA64thOfThePicturesSide) {
  EXPECT_EQ(HotSpotScale(385), 6);
  EXPECT_EQ(HotSpotScale(257), 4);
  EXPECT_EQ(HotSpotScale(1 + 4 * 64 + 31), 4);
  EXPECT_EQ(HotSpotScale(1 + 4 * 64 + 33), 5);
}

TEST(HotSpotPick, DividesThePositionByTheScale) {
  EXPECT_EQ(PickedCoordinate(13, 4, farBound), 3);
  EXPECT_EQ(PickedCoordinate(29, 4, farBound), 7);
  EXPECT_EQ(PickedCoordinate(0, 4, farBound), 0);
}

TEST(HotSpotPick, NeverPassesTheBound) {
  EXPECT_EQ(PickedCoordinate(13, 4, 0), 0);
  EXPECT_EQ(PickedCoordinate(29, 4, 0), 0);
  EXPECT_EQ(PickedCoordinate(29, 4, 5), 5);
  EXPECT_EQ(PointedCoordinate(29, 4, 0), 0);
  EXPECT_EQ(PointedCoordinate(29, 4, 5), 5);
}

TEST(HotSpotPick, RaisesWhatThePointerShowsOutsideThePicture) {
  EXPECT_EQ(PointedCoordinate(-9, 4, farBound), 0);
  EXPECT_EQ(PointedCoordinate(-9, 4, 0), 0);
  EXPECT_EQ(PointedCoordinate(31, 4, farBound), 7);
}

TEST(HotSpotPick, WritesAtLeastTwoDigits) {
  EXPECT_EQ(TwoDigits(0), "00");
  EXPECT_EQ(TwoDigits(3), "03");
  EXPECT_EQ(TwoDigits(12), "12");
  EXPECT_EQ(TwoDigits(123), "123");
  EXPECT_EQ(TwoDigits(-1), "-01");
}

}  // namespace
}  // namespace tarvik
