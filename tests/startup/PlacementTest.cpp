#include "startup/Placement.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

struct Row {
  TwipSize screen;
  TwipSize form;
  int left;
  int top;
};

class CenteredCornerTest : public ::testing::TestWithParam<Row> {};

TEST_P(CenteredCornerTest, HalvesTheSpareWidthAndTakesAThirdOfTheSpareHeight) {
  const Row& row = GetParam();
  const auto [left, top] = CenteredCorner(row.screen, row.form);
  EXPECT_EQ(left, row.left);
  EXPECT_EQ(top, row.top);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, CenteredCornerTest,
    ::testing::Values(Row{{15360, 11520}, {9000, 9000}, 3180, 840},      // the example of a screen of 1024 x 768
                      Row{{100, 100}, {100, 100}, 0, 0},                 // exactly full
                      Row{{101, 102}, {100, 100}, 0, 0},                 // the remainders are dropped
                      Row{{105, 105}, {100, 100}, 2, 1},                 //
                      Row{{100, 100}, {105, 105}, -2, -1},               // rounded towards zero, negative values too
                      Row{{100, 100}, {103, 102}, -1, 0},                //
                      Row{{102.5, 105.5}, {100, 100}, 1, 2},             // 2.5 gives 2, 5.5 gives 6
                      Row{{103.5, 108.4}, {100, 100}, 2, 2},             // 3.5 gives 4, 8.4 gives 8
                      Row{{28800, 17280}, {21600, 17400}, 3600, -40}));  // wider than high, and too high

TEST(Twips, AreFifteenAPixelAtNinetySixDots) {
  EXPECT_EQ(ToTwips(600, 96), 9000);
  EXPECT_EQ(ToTwips(1, 144), 10);
  EXPECT_DOUBLE_EQ(ToTwips(7, 168), 60);
  EXPECT_EQ(ToTwips(-2, 192), -15);
}

TEST(Twips, GoToTheNearestPixel) {
  EXPECT_EQ(ToPixels(840, 96), 56);
  EXPECT_EQ(ToPixels(847, 96), 56);
  EXPECT_EQ(ToPixels(848, 96), 57);
  EXPECT_EQ(ToPixels(-40, 96), -3);
  EXPECT_EQ(ToPixels(840, 192), 112);
}

}  // namespace
}  // namespace tarvik
