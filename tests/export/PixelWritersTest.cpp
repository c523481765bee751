#include "export/PixelWriters.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "support/TestRaster.h"

namespace tarvik::ModMicroArtFileIO {
namespace {

using support::RasterOf;
using support::TestRaster;
using Bytes = std::vector<std::uint8_t>;

Bytes BytesOf(const ByteWriter& file) {
  Bytes bytes;
  for (const std::byte value : file.Bytes()) bytes.push_back(std::to_integer<std::uint8_t>(value));
  return bytes;
}

Bytes BytesFrom(void (*writer)(const PixelCopy&, ByteWriter&), const TestRaster& raster) {
  ByteWriter file(0);
  writer(PixelCopy(raster), file);
  return BytesOf(file);
}

Bytes Written8Bit(const TestRaster& raster, const ModPalette::Palette256& palette) {
  ByteWriter file(0);
  Write8Bit(PixelCopy(raster), palette, file);
  return BytesOf(file);
}

TEST(Write1Bit, PutsTheLeftmostOfEightPixelsInTheHighBitAndTheBottomRowFirst) {
  TestRaster raster(32, 2);
  raster.Set(0, 1, white);
  raster.Set(15, 1, white);
  raster.Set(31, 0, white);
  EXPECT_EQ(BytesFrom(Write1Bit, raster), (Bytes{0x80, 0x01, 0, 0, 0, 0, 0, 0x01}));
}

TEST(Write1Bit, TakesOnlyExactWhiteForOne) {
  TestRaster raster(32, 1, 0xFEFFFF);
  raster.Set(1, 0, 0xFFFFFFFF);
  raster.Set(2, 0, white);
  EXPECT_EQ(BytesFrom(Write1Bit, raster), (Bytes{0x20, 0, 0, 0}));
}

TEST(Write1Bit, AddsTwoZeroBytesToEachRowUnlessItIs32PixelsWide) {
  EXPECT_EQ(BytesFrom(Write1Bit, TestRaster(16, 1, white)), (Bytes{255, 255, 0, 0}));
  EXPECT_EQ(BytesFrom(Write1Bit, TestRaster(32, 1, white)), (Bytes{255, 255, 255, 255}));
  EXPECT_EQ(BytesFrom(Write1Bit, TestRaster(48, 1, white)), (Bytes{255, 255, 255, 255, 255, 255, 0, 0}));
  EXPECT_EQ(BytesFrom(Write1Bit, TestRaster(64, 1, white)), (Bytes{255, 255, 255, 255, 255, 255, 255, 255, 0, 0}));
}

TEST(Write1Bit, FillsTheLastByteOfAWidthThatIsNoMultipleOfEightWithZeroBits) {
  EXPECT_EQ(BytesFrom(Write1Bit, TestRaster(11, 1, white)), (Bytes{0xFF, 0xE0, 0, 0}));
}

TEST(Write4Bit, PutsTheFirstOfTwoPixelsInTheHighHalfAndTheBottomRowFirst) {
  TestRaster raster(4, 2);
  raster.Set(0, 1, 0x0000FF);  // 9
  raster.Set(1, 1, 0xC0C0C0);  // 7
  raster.Set(2, 1, 0xFFFFFF);  // 15
  raster.Set(3, 0, 0x808080);  // 8
  EXPECT_EQ(BytesFrom(Write4Bit, raster), (Bytes{0x97, 0xF0, 0x00, 0x08}));
}

TEST(Write4Bit, KeepsTheIndexLastFoundForThatHalfAcrossRows) {
  TestRaster raster(4, 2, 0x123456);  // a colour without entry
  raster.Set(2, 1, 0x0000FF);         // 9, a left half in the bottom row
  raster.Set(1, 0, 0xFFFFFF);         // 15, a right half in the top row
  EXPECT_EQ(BytesFrom(Write4Bit, raster), (Bytes{0x00, 0x90, 0x9F, 0x9F}));
}

TEST(Write4Bit, RepeatsTheRightHalfLastFoundAfterTheLastPixelOfAnOddRow) {
  TestRaster raster(3, 1, 0x0000FF);  // 9
  raster.Set(1, 0, 0xC0C0C0);         // 7
  EXPECT_EQ(BytesFrom(Write4Bit, raster), (Bytes{0x97, 0x97}));
}

TEST(Write4Bit, ComparesOnlyBlueGreenAndRed) {
  EXPECT_EQ(BytesFrom(Write4Bit, TestRaster(2, 1, 0xFFFFFFFF)), (Bytes{0xFF}));
}

TEST(Write8Bit, GivesBlackZeroAndWhite255WhereverThePaletteHasThem) {
  ModPalette::Palette256 palette{};
  palette[0] = 0x0000AA;
  palette[1] = white;
  palette[2] = black;
  palette[3] = 0x00BB00;
  EXPECT_EQ(Written8Bit(RasterOf(2, {white, 0x00BB00, black}, black), palette), (Bytes{0, 0, 255, 3}));
}

TEST(Write8Bit, TakesTheFirstOfEqualEntries) {
  ModPalette::Palette256 palette{};
  palette[5] = 0x0000AA;
  palette[9] = 0x0000AA;
  palette[7] = 0x00BB00;
  palette[254] = 0xCC0000;
  EXPECT_EQ(Written8Bit(RasterOf(2, {0x0000AA, 0x00BB00, 0xCC0000}, black), palette), (Bytes{254, 0, 5, 7}));
}

TEST(Write8Bit, RepeatsTheByteBeforeForAColourWithoutEntryAcrossRows) {
  ModPalette::Palette256 palette{};
  palette[3] = 0x00BB00;
  TestRaster raster(3, 2, 0x123456);
  raster.Set(1, 1, 0x00BB00);
  raster.Set(2, 0, white);
  EXPECT_EQ(Written8Bit(raster, palette), (Bytes{0, 3, 3, 3, 3, 255}));
}

TEST(Write8Bit, FindsNoColourInTheFirstAndTheLastEntry) {
  ModPalette::Palette256 palette{};
  palette[0] = 0x0000AA;
  palette[3] = 0x00BB00;
  palette[255] = 0xCC0000;
  EXPECT_EQ(Written8Bit(RasterOf(2, {0xCC0000, 0x0000AA}, 0x00BB00), palette), (Bytes{3, 3, 3, 3}));
}

TEST(Write24Bit, WritesBlueGreenRedAndNoPadding) {
  TestRaster raster(1, 2, 0x332211);
  raster.Set(0, 1, 0xFFEEDD);
  EXPECT_EQ(BytesFrom(Write24Bit, raster), (Bytes{0xFF, 0xEE, 0xDD, 0x33, 0x22, 0x11}));
}

TEST(WritePadded24Bit, FillsEachRowToWholeWords) {
  EXPECT_EQ(BytesFrom(WritePadded24Bit, TestRaster(1, 2, 0x332211)), (Bytes{0x33, 0x22, 0x11, 0, 0x33, 0x22, 0x11, 0}));
  EXPECT_EQ(BytesFrom(WritePadded24Bit, TestRaster(4, 1, 0x332211)), BytesFrom(Write24Bit, TestRaster(4, 1, 0x332211)));
}

}  // namespace
}  // namespace tarvik::ModMicroArtFileIO
