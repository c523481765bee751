#include "encoders/ColorReduction.h"

#include <limits>
#include <random>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvik {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

TEST(ColorReduction, GivesTheColoursThemselvesWhereTheyAreFewEnough) {
  const std::vector<CountedColor> colors{{0x000000, 5}, {0x0000FF, 1}, {0x00FF00, 9}, {0x010000, 2}};
  EXPECT_THAT(ReduceColors(colors, 4).palette, UnorderedElementsAre(0x000000, 0x0000FF, 0x00FF00, 0x010000));
  EXPECT_THAT(ReduceColors(colors, 256).palette, UnorderedElementsAre(0x000000, 0x0000FF, 0x00FF00, 0x010000));
}

TEST(ColorReduction, GivesTheMeanOfAllPixelsWhereOneColourIsLeft) {
  // Red: (3 * 10 + 1 * 50) / 4 = 20; green: 4 / 4 = 1; blue: (3 * 200 + 1 * 100) / 4 = 175.
  const std::vector<CountedColor> colors{{0xC8000A, 3}, {0x640432, 1}};
  EXPECT_THAT(ReduceColors(colors, 1).palette, ElementsAre(0xAF0114));
}

TEST(ColorReduction, CutsBetweenTwoGroupsOfColours) {
  const std::vector<CountedColor> colors{{0x000010, 1}, {0x0000F0, 1}, {0x000012, 1}, {0x0000F2, 1}, {0x0000F4, 1}};
  EXPECT_THAT(ReduceColors(colors, 2).palette, UnorderedElementsAre(0x000011, 0x0000F2));
}

TEST(ColorReduction, CutsAsLongAsAnythingIsGained) {
  // The last cut separates two neighbours, 0 and 1 or 100 and 101, and saves half of one square step.
  const std::vector<CountedColor> colors{{0, 1}, {1, 1}, {100, 1}, {101, 1}, {200, 1}};
  EXPECT_THAT(ReduceColors(colors, 4).palette, testing::SizeIs(4));
}

TEST(ColorReduction, MovesColoursToWhereTheyFitBestAfterTheCuts) {
  // The first cut saves most between 11 and 15, the second between 15 and 28, so 11 stays with 0 and 2 (mean 4). But 11
  // is nearer to 15 than to that mean: the two pairs and the single colour are the better partition.
  const std::vector<CountedColor> colors{{0, 1}, {2, 1}, {11, 1}, {15, 1}, {28, 1}};
  EXPECT_THAT(ReduceColors(colors, 3).palette, UnorderedElementsAre(1, 13, 28));
}

TEST(ColorReduction, GivesEachColourTheIndexOfTheNearest) {
  std::mt19937 random(2);
  std::vector<CountedColor> colors;
  for (Color i = 0; i < 1000; ++i) colors.push_back({static_cast<Color>(random() % 0x1000000), 1 + i % 7});
  const auto distance = [](Color a, Color b) {
    const int red = RedOf(a) - RedOf(b);
    const int green = GreenOf(a) - GreenOf(b);
    const int blue = BlueOf(a) - BlueOf(b);
    return red * red + green * green + blue * blue;
  };
  for (const std::size_t most : {1U, 2U, 3U, 17U, 255U, 256U}) {
    const Reduction reduction = ReduceColors(colors, most);
    ASSERT_EQ(reduction.palette.size(), most);
    ASSERT_EQ(reduction.indexes.size(), colors.size());
    for (std::size_t i = 0; i < colors.size(); ++i) {
      int nearest = std::numeric_limits<int>::max();
      for (const Color color : reduction.palette) nearest = std::min(nearest, distance(color, colors[i].color));
      ASSERT_EQ(distance(reduction.palette.at(reduction.indexes[i]), colors[i].color), nearest) << most << ", " << i;
    }
  }
}

}  // namespace
}  // namespace tarvik
