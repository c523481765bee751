#include "grid/GridGeometry.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

constexpr GridGeometry size16 = gridGeometries[0];
constexpr GridGeometry size32 = gridGeometries[1];
constexpr GridGeometry size48 = gridGeometries[2];
constexpr GridGeometry size64 = gridGeometries[3];

TEST(GridGeometries, HoldTheFourSizes) {
  const auto numbers = [](const GridGeometry& geometry) {
    return std::array{geometry.IconSize, geometry.CellPitch, geometry.FrameExtent, geometry.FirstFrameExtent,
                      geometry.Columns,  geometry.MaxLimit,  geometry.DefaultLimit};
  };
  EXPECT_EQ(size16.Caption, "16 x 16");
  EXPECT_EQ(size32.Caption, "32 x 32");
  EXPECT_EQ(size48.Caption, "48 x 48");
  EXPECT_EQ(size64.Caption, "64 x 64");
  EXPECT_EQ(numbers(size16), (std::array{16, 22, 20, 21, 31, 4000, 400}));
  EXPECT_EQ(numbers(size32), (std::array{32, 38, 36, 37, 15, 2400, 300}));
  EXPECT_EQ(numbers(size48), (std::array{48, 54, 52, 53, 10, 1800, 150}));
  EXPECT_EQ(numbers(size64), (std::array{64, 70, 68, 69, 8, 1200, 100}));
}

TEST(GridWidth, IsTheMarginAndAllColumns) {
  EXPECT_EQ(GridWidth(size16), 685);
  EXPECT_EQ(GridWidth(size32), 573);
  EXPECT_EQ(GridWidth(size48), 543);
  EXPECT_EQ(GridWidth(size64), 563);
  EXPECT_EQ(WidestGrid(), 685);
}

TEST(GridRows, RoundUp) {
  EXPECT_EQ(GridRows(size32, 0), 0);
  EXPECT_EQ(GridRows(size32, 1), 1);
  EXPECT_EQ(GridRows(size32, 15), 1);
  EXPECT_EQ(GridRows(size32, 16), 2);
}

struct ExtentRow {
  GridGeometry geometry;
  int icons;
  GridExtent extent;
};

TEST(ExtentOf, ScrollsFromSixRowsOn) {
  for (const ExtentRow& row : {ExtentRow{size32, 0, {190, false, 0}}, ExtentRow{size16, 93, {190, false, 0}},
                               ExtentRow{size32, 75, {190, false, 0}}, ExtentRow{size32, 76, {228, true, 38}},
                               ExtentRow{size32, 90, {228, true, 38}}, ExtentRow{size32, 91, {266, true, 76}},
                               ExtentRow{size64, 40, {190, false, 0}}, ExtentRow{size16, 4000, {2860, true, 2670}}}) {
    EXPECT_EQ(ExtentOf(row.geometry, row.icons), row.extent) << row.geometry.Caption << ", " << row.icons << " icons";
  }
}

// Six rows of the smallest icons are lower than the viewport, and so is the picture.
TEST(ExtentOf, FollowsTheRowsEvenBelowTheViewport) {
  EXPECT_EQ(ExtentOf(size16, 186), (GridExtent{132, true, -58}));
}

TEST(IconCorner, StartsAtTheMarginAndGoesOnByThePitch) {
  EXPECT_EQ(IconCorner(size32, 0), (Point{3, 3}));
  EXPECT_EQ(IconCorner(size32, 14), (Point{535, 3}));
  EXPECT_EQ(IconCorner(size32, 15), (Point{3, 41}));
  EXPECT_EQ(IconCorner(size16, 3999), (Point{3, 2841}));
}

TEST(FrameCorner, LiesTwoPixelsOutsideTheIcon) {
  for (const GridGeometry& geometry : gridGeometries) {
    for (const int index : {0, 1, geometry.Columns, 1199}) {
      const Point icon = IconCorner(geometry, index);
      EXPECT_EQ(FrameCorner(geometry, index), (Point{icon.x - 2, icon.y - 2}));
    }
  }
}

}  // namespace
}  // namespace tarvik
