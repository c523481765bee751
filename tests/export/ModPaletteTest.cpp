#include "export/ModPalette.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/PixelCopy.h"
#include "support/TestRaster.h"

namespace tarvik::ModPalette {
namespace {

using support::RasterOf;
using support::TestRaster;

// A colour for each number from 0, never black or white.
Color NumberedColor(int number) {
  return 0x400000U + static_cast<Color>(number);
}

// A raster of `count` numbered colours in order, the last filling the rest.
TestRaster NumberedRaster(int size, int count) {
  std::vector<Color> colors;
  colors.reserve(static_cast<std::size_t>(count));
  for (int number = 0; number < count; ++number) colors.push_back(NumberedColor(number));
  return RasterOf(size, colors, NumberedColor(count - 1));
}

TEST(FixedPalettes, HoldTheirColoursInOrder) {
  EXPECT_EQ(twoColors, (std::array<Color, 2>{0x000000, 0xFFFFFF}));

  struct Row {
    int blue, green, red;
  };
  const std::vector<Row> rows{{0, 0, 0},       {0, 0, 128},   {0, 128, 0},   {0, 128, 128},
                              {128, 0, 0},     {128, 0, 128}, {128, 128, 0}, {192, 192, 192},
                              {128, 128, 128}, {0, 0, 255},   {0, 255, 0},   {0, 255, 255},
                              {255, 0, 0},     {255, 0, 255}, {255, 255, 0}, {255, 255, 255}};
  ASSERT_EQ(rows.size(), sixteenColors.size());
  for (std::size_t entry = 0; entry < rows.size(); ++entry) {
    EXPECT_EQ(BlueOf(sixteenColors[entry]), rows[entry].blue) << "entry " << entry;
    EXPECT_EQ(GreenOf(sixteenColors[entry]), rows[entry].green) << "entry " << entry;
    EXPECT_EQ(RedOf(sixteenColors[entry]), rows[entry].red) << "entry " << entry;
  }
}

TEST(SixteenColorIndex, FindsEachStandardColourAndNoOther) {
  EXPECT_EQ(SixteenColorIndex(0x000000), 0);
  EXPECT_EQ(SixteenColorIndex(0x800000), 4);
  EXPECT_EQ(SixteenColorIndex(0xC0C0C0), 7);
  EXPECT_EQ(SixteenColorIndex(0x808080), 8);
  EXPECT_EQ(SixteenColorIndex(0xFFFFFF), 15);
  EXPECT_EQ(SixteenColorIndex(0x000001), std::nullopt);
  EXPECT_EQ(SixteenColorIndex(0xFEFFFF), std::nullopt);
}

TEST(IconPalette, KeepsBlackFirstAndWhiteLastAlsoWhereTheyDoNotOccur) {
  const Palette256 palette = BuildIconPalette(PixelCopy(TestRaster(16, 16, 0x123456)));
  EXPECT_EQ(palette[0], black);
  EXPECT_EQ(palette[1], 0x123456U);
  for (std::size_t entry = 2; entry < 255; ++entry) EXPECT_EQ(palette[entry], 0U) << entry;
  EXPECT_EQ(palette[255], white);
}

TEST(IconPalette, GivesEachOtherColourTheNextEntryFromTheTopLeft) {
  TestRaster raster(16, 16, black);
  raster.Set(3, 0, 0x0000AA);  // first, although another one is further left in a lower row
  raster.Set(0, 1, 0x00BB00);
  raster.Set(5, 1, white);
  raster.Set(9, 1, 0x0000AA);  // already found
  raster.Set(15, 15, 0xCC0000);
  const Palette256 palette = BuildIconPalette(PixelCopy(raster));
  EXPECT_EQ(palette[1], 0x0000AAU);
  EXPECT_EQ(palette[2], 0x00BB00U);
  EXPECT_EQ(palette[3], 0xCC0000U);
  EXPECT_EQ(palette[4], 0U);
}

TEST(IconPalette, HoldsTwoHundredAndFiftyFourOtherColours) {
  const Palette256 palette = BuildIconPalette(PixelCopy(NumberedRaster(16, 254)));
  for (int number = 0; number < 254; ++number) {
    EXPECT_EQ(palette[static_cast<std::size_t>(number) + 1], NumberedColor(number)) << number;
  }
  EXPECT_EQ(palette[255], white);
}

TEST(IconPalette, LeavesOutColoursAfterTheLastFreeEntry) {
  const Palette256 palette = BuildIconPalette(PixelCopy(NumberedRaster(32, 300)));
  EXPECT_EQ(palette[254], NumberedColor(253));
  EXPECT_EQ(palette[255], white);
}

TEST(BitmapPalette, ReservesNothingForBlackAndWhite) {
  const Palette256 palette = BuildBitmapPalette(PixelCopy(RasterOf(16, {0x0000AA, white, black, white}, 0x00BB00)));
  EXPECT_EQ(palette[0], 0x0000AAU);
  EXPECT_EQ(palette[1], white);
  EXPECT_EQ(palette[2], black);
  EXPECT_EQ(palette[3], 0x00BB00U);
  for (std::size_t entry = 4; entry < palette.size(); ++entry) EXPECT_EQ(palette[entry], 0U) << entry;
}

TEST(BitmapPalette, IsFilledByExactlyTwoHundredAndFiftySixColours) {
  const Palette256 palette = BuildBitmapPalette(PixelCopy(NumberedRaster(16, 256)));
  for (int number = 0; number < 256; ++number) {
    EXPECT_EQ(palette[static_cast<std::size_t>(number)], NumberedColor(number)) << number;
  }
}

TEST(BitmapPalette, LeavesOutColoursAfterTheLastEntry) {
  const Palette256 palette = BuildBitmapPalette(PixelCopy(NumberedRaster(32, 300)));
  EXPECT_EQ(palette[255], NumberedColor(255));
}

}  // namespace
}  // namespace tarvik::ModPalette
