#include "base/ColorIndex.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

TEST(ColorIndex, KeepsTheNumberThatAColourGotFirst) {
  ColorIndex index;
  EXPECT_TRUE(index.Insert(0x123456, 7));
  EXPECT_FALSE(index.Insert(0x123456, 8));
  EXPECT_EQ(index.NumberOf(0x123456, 9), 7);
  EXPECT_EQ(index.Find(0x123456), 7);
  EXPECT_EQ(index.Count(), 1);
}

TEST(ColorIndex, HasNoNumberForAnyOtherColour) {
  ColorIndex index;
  index.Insert(black, 0);
  EXPECT_EQ(index.Find(black), 0);
  EXPECT_EQ(index.Find(white), std::nullopt);
}

// Consecutive colours, and colours that differ only in their high bits.
TEST(ColorIndex, TellsApartAsManyColoursAsAPictureHas) {
  constexpr int count = 60'000;
  for (const Color step : {1U, 0x10000U}) {
    ColorIndex index;
    for (int number = 0; number < count; ++number) {
      const Color color = static_cast<Color>(number) * step;
      ASSERT_EQ(index.NumberOf(color, number), number) << step;
    }
    EXPECT_EQ(index.Count(), count);
    for (int number = 0; number < count; ++number) {
      ASSERT_EQ(index.Find(static_cast<Color>(number) * step), number) << step;
    }
    EXPECT_EQ(index.Find(static_cast<Color>(count) * step), std::nullopt);
  }
}

}  // namespace
}  // namespace tarvik
