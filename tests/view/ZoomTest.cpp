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

}  // namespace
}  // namespace tarvik
