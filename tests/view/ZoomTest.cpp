#include "view/Zoom.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvik {
namespace {

TEST(Zoom, OffersTenWholeFactors) {
  std::vector<std::string> texts;
  for (int factor = minZoom; factor <= maxZoom; ++factor) texts.push_back(ZoomText(factor));
  EXPECT_THAT(texts,
              ::testing::ElementsAre("100%", "200%", "300%", "400%", "500%", "600%", "700%", "800%", "900%", "1000%"));
}

TEST(Zoom, OpensWithFiveTimes) {
  EXPECT_EQ(ZoomText(openingZoom), "500%");
}

TEST(Zoom, TakesItsFactorFromTheRow) {
  for (int row = 0; row < 10; ++row) EXPECT_EQ(ZoomText(ZoomOfRow(row)), std::to_string(row + 1) + "00%");
}

TEST(Zoom, MakesSquaresOfAWholeSideOnEveryDisplay) {
  for (int factor = minZoom; factor <= maxZoom; ++factor) {
    EXPECT_EQ(SideOfSquare(factor, DisplayScale(96)), factor);
    EXPECT_EQ(SideOfSquare(factor, DisplayScale(192)), 2 * factor);
    // A larger factor is a larger square on fractional scales too.
    for (const int dots : {120, 144, 168}) {
      EXPECT_LT(SideOfSquare(factor, DisplayScale(dots)), SideOfSquare(factor + 1, DisplayScale(dots))) << dots;
      EXPECT_NEAR(SideOfSquare(factor, DisplayScale(dots)), factor * dots / 96.0, 0.5) << dots;
    }
  }
}

}  // namespace
}  // namespace tarvik
