#include "grid/HitTest.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

constexpr GridGeometry size16 = gridGeometries[0];
constexpr GridGeometry size32 = gridGeometries[1];
constexpr int height = 228;

TEST(CellAt, TellsRowAndColumnWithoutTheMargin) {
  EXPECT_EQ(CellAt(size32, 0, 0, height), (HitCell{0, {1, 1}}));
  EXPECT_EQ(CellAt(size32, 37, 37, height), (HitCell{0, {1, 1}}));
  EXPECT_EQ(CellAt(size32, 38, 0, height), (HitCell{1, {39, 1}}));
  EXPECT_EQ(CellAt(size32, 0, 38, height), (HitCell{15, {1, 39}}));
  EXPECT_EQ(CellAt(size32, 80, 120, height), (HitCell{47, {77, 115}}));
}

TEST(CellAt, RoundsHalvesToTheEvenPixel) {
  EXPECT_EQ(CellAt(size32, 37.6, 10, height)->index, 1);
  EXPECT_EQ(CellAt(size32, 37.5, 10, height)->index, 1) << "37.5 rounds to 38";
  EXPECT_EQ(CellAt(size16, 43.5, 10, height)->index, 2) << "43.5 rounds to 44";
  EXPECT_EQ(CellAt(size16, 44.5, 10, height)->index, 2);
  EXPECT_EQ(CellAt(size32, 37.4, 10, height)->index, 0);
  EXPECT_EQ(CellAt(size32, 10, 37.6, height)->index, 15);
}

// A pitch of 22 has no odd boundary; this pitch shows that a half is rounded down.
TEST(CellAt, RoundsAHalfDownToAnEvenPixel) {
  constexpr GridGeometry oddPitch{"", 1, 7, 5, 6, 10, 0, 0};
  EXPECT_EQ(CellAt(oddPitch, 6.5, 0, height)->index, 0) << "6.5 rounds to 6";
  EXPECT_EQ(CellAt(oddPitch, 7.5, 0, height)->index, 1);
}

TEST(CellAt, TakesPointsUpToItsBoundsAndNoFurther) {
  EXPECT_TRUE(CellAt(size32, 580, 0, height));
  EXPECT_FALSE(CellAt(size32, 580.01, 0, height));
  EXPECT_FALSE(CellAt(size32, 581, 0, height));
  EXPECT_FALSE(CellAt(size32, -0.01, 0, height));
  EXPECT_TRUE(CellAt(size32, 0, height, height));
  EXPECT_FALSE(CellAt(size32, 0, height + 0.01, height));
  EXPECT_FALSE(CellAt(size32, 0, -0.01, height));
}

TEST(CellAt, ReachesOnlyTheFirstColumnsAtTheSmallestSize) {
  EXPECT_EQ(CellAt(size16, 580, 0, height)->index, 26);
  EXPECT_FALSE(CellAt(size16, 27 * 22, 0, height));
}

TEST(CellAt, GivesACellPastARowsEndToTheNextRow) {
  EXPECT_EQ(CellAt(size32, 575, 0, height), (HitCell{15, {571, 1}}));
}

}  // namespace
}  // namespace tarvik
