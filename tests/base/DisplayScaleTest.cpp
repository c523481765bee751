#include "base/DisplayScale.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

constexpr int displays[] = {96, 120, 144, 168, 192, 240, 288, 384};

TEST(DisplayScale, LeavesEverythingAsItIsAt96DotsAndBelow) {
  for (const int dots : {0, 72, 96}) {
    const DisplayScale scale(dots);
    EXPECT_TRUE(scale.IsOne());
    for (const int pixel : {0, 1, 37, 190, 685, 32767}) {
      EXPECT_EQ(scale.ToDisplay(pixel), pixel);
      EXPECT_EQ(scale.FromDisplay(pixel), pixel);
    }
    EXPECT_EQ(scale.FromDisplay(-3), -3);
  }
  EXPECT_FALSE(DisplayScale(97).IsOne());
}

TEST(DisplayScale, GrowsWithTheDotsAndCountsABrokenPixelWhole) {
  struct Row {
    int dots;
    int width;   // of 685
    int height;  // of 190
  };
  for (const Row& row : {Row{120, 857, 238}, {144, 1028, 285}, {168, 1199, 333}, {192, 1370, 380}, {288, 2055, 570}}) {
    EXPECT_EQ(DisplayScale(row.dots).ToDisplay(685), row.width) << row.dots;
    EXPECT_EQ(DisplayScale(row.dots).ToDisplay(190), row.height) << row.dots;
  }
}

TEST(DisplayScale, RoundsALengthToTheNearestDisplayPixel) {
  struct Row {
    int dots;
    int one;
    int three;
    int five;
    int ten;
  };
  for (const Row& row :
       {Row{96, 1, 3, 5, 10}, {120, 1, 4, 6, 13}, {144, 2, 5, 8, 15}, {168, 2, 5, 9, 18}, {192, 2, 6, 10, 20}}) {
    const DisplayScale scale(row.dots);
    EXPECT_EQ(scale.Nearest(1), row.one) << row.dots;
    EXPECT_EQ(scale.Nearest(3), row.three) << row.dots;
    EXPECT_EQ(scale.Nearest(5), row.five) << row.dots;
    EXPECT_EQ(scale.Nearest(10), row.ten) << row.dots;
  }
}

TEST(DisplayScale, FindsEachPixelAgainWhereItBegins) {
  for (const int dots : displays) {
    const DisplayScale scale(dots);
    for (int pixel = 0; pixel < 2000; ++pixel) {
      const int begin = scale.ToDisplay(pixel);
      ASSERT_EQ(scale.FromDisplay(begin), pixel) << dots;
      ASSERT_EQ(scale.FromDisplay(begin - 1), pixel - 1) << dots;
    }
  }
}

TEST(DisplayScale, IsBelowZeroLeftOfThePicture) {
  EXPECT_EQ(DisplayScale(192).FromDisplay(-1), -1);
  EXPECT_EQ(DisplayScale(192).FromDisplay(-2), -1);
  EXPECT_EQ(DisplayScale(192).FromDisplay(-3), -2);
  EXPECT_EQ(DisplayScale(144).FromDisplay(-1), -1);
}

// 52500 pixels times 192 dpi times 96 does not fit into 32 bits.
TEST(DisplayScale, HoldsTheHighestPictureOnTheFinestDisplay) {
  const DisplayScale scale(768);
  EXPECT_EQ(scale.ToDisplay(32767), 32767 * 8);
  EXPECT_EQ(scale.FromDisplay(32767 * 8), 32767);
  EXPECT_EQ(scale.ToDisplay(4'000'000), 32'000'000);
}

TEST(DisplayScale, MixesNeighboursByTheirAreas) {
  using Mixture = DisplayScale::Mixture;
  const DisplayScale half(144);
  EXPECT_EQ(half.MixtureAt(0), (Mixture{0, 0}));
  EXPECT_EQ(half.MixtureAt(1), (Mixture{0, 48}));
  EXPECT_EQ(half.MixtureAt(2), (Mixture{1, 0}));
  EXPECT_EQ(half.MixtureAt(3), (Mixture{2, 0}));
  const DisplayScale quarter(120);
  EXPECT_EQ(quarter.MixtureAt(1), (Mixture{0, 72}));
  EXPECT_EQ(quarter.MixtureAt(2), (Mixture{1, 48}));
  EXPECT_EQ(quarter.MixtureAt(3), (Mixture{2, 24}));
  EXPECT_EQ(quarter.MixtureAt(4), (Mixture{3, 0}));
}

TEST(DisplayScale, MixesNothingAtWholeScales) {
  for (const int dots : {96, 192, 288, 384}) {
    for (int pixel = 0; pixel < 500; ++pixel) ASSERT_EQ(DisplayScale(dots).MixtureAt(pixel).ofNext, 0) << dots;
  }
}

TEST(DisplayScale, ShowsARangeOnAllDisplayPixelsThatTouchIt) {
  using Range = DisplayScale::Range;
  EXPECT_EQ(DisplayScale(96).DisplayRange({1, 38}), (Range{1, 38}));
  EXPECT_EQ(DisplayScale(144).DisplayRange({1, 38}), (Range{1, 57}));
  EXPECT_EQ(DisplayScale(192).DisplayRange({1, 38}), (Range{2, 76}));
  for (const int dots : displays) {
    const DisplayScale scale(dots);
    const Range shown = scale.DisplayRange({7, 9});
    for (int pixel = 0; pixel < 100; ++pixel) {
      const DisplayScale::Mixture mixture = scale.MixtureAt(pixel);
      const bool touches = mixture.first == 7 || mixture.first == 8 || (mixture.first == 6 && mixture.ofNext > 0);
      ASSERT_EQ(pixel >= shown.begin && pixel < shown.end, touches) << dots << ' ' << pixel;
    }
  }
}

}  // namespace
}  // namespace tarvik
