#include "encoders/GifEncoder.h"

#include <algorithm>
#include <limits>
#include <set>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Decoders.h"
#include "support/MemorySink.h"
#include "support/TestPictures.h"

namespace tarvik {
namespace {

using support::Gradient;
using support::ManyColors;
using support::MemorySink;
using support::Noise;
using support::Photo;
using support::TestRaster;
using testing::Optional;

const std::string path = "C:\\图标\\Images 1.gif";

GifContent WriteAndDecode(const PixelView& picture, const GifSettings& settings) {
  MemorySink sink;
  EXPECT_TRUE(GifEncoder(sink).WriteFile(picture, path, settings));
  const auto content = DecodeGif(sink.Bytes());
  EXPECT_TRUE(content.has_value()) << "not a whole GIF file";
  return content.value_or(GifContent{});
}

GifSettings Transparent(Color color, GifPalette palette = GifPalette::BestQuality) {
  return {.transparent = true, .transparentColor = color, .palette = palette};
}

constexpr GifSettings best{.palette = GifPalette::BestQuality};
constexpr GifSettings web{.palette = GifPalette::Web};

double ErrorOf(const GifContent& content, const PixelView& picture) {
  return MeanSquaredError(content, picture, picture.Width(), picture.Height());
}

// The pixels with the transparent index must be exactly those of that colour.
void ExpectSeeThroughExactly(const GifContent& content, const PixelView& picture, Color color) {
  ASSERT_TRUE(content.transparentIndex);
  int wrong = 0;
  for (int y = 0; y < picture.Height(); ++y)
    for (int x = 0; x < picture.Width(); ++x)
      wrong += (content.Index(x, y) == *content.transparentIndex) != (picture.Pixel(x, y) == color);
  EXPECT_EQ(wrong, 0);
}

int SquareDistance(Color a, Color b) {
  const int red = RedOf(a) - RedOf(b);
  const int green = GreenOf(a) - GreenOf(b);
  const int blue = BlueOf(a) - BlueOf(b);
  return red * red + green * green + blue * blue;
}

TEST(GifEncoder, WritesTheFileOnceToThePathGiven) {
  MemorySink sink;
  EXPECT_TRUE(GifEncoder(sink).WriteFile(Gradient(16), path, best));
  EXPECT_EQ(sink.openedPath, path);
  EXPECT_EQ(sink.steps, (std::vector<std::string>{"Open", "Write", "Close"}));
  EXPECT_EQ(sink.readOnlyFile, ReadOnlyFile::Replaced);
}

TEST(GifEncoder, TellsColoursBackgroundAndPixelShapeInItsHeader) {
  MemorySink sink;
  ASSERT_TRUE(GifEncoder(sink).WriteFile(ManyColors(16, 4), path, best));
  EXPECT_EQ(sink.bytes.at(10), 0xF1) << "a colour table, 8 bits a channel, 4 colours";
  EXPECT_EQ(sink.bytes.at(11), 0) << "the first colour as background";
  EXPECT_EQ(sink.bytes.at(12), 0) << "square pixels, as nothing else is said";
}

TEST(GifEncoder, SaysBeforeTheImageWhichColourIsSeenThroughAndNothingElse) {
  MemorySink sink;
  const TestRaster picture = ManyColors(16, 4);
  ASSERT_TRUE(GifEncoder(sink).WriteFile(picture, path, Transparent(picture.Pixel(0, 0))));
  // After the header of 13 bytes and four colours: the block's kind and length; a flag for the transparent colour and
  // none for waiting or clearing; no delay; the colour; the end.
  const std::vector<std::byte> block(sink.Bytes().begin() + 25, sink.Bytes().begin() + 33);
  EXPECT_THAT(block, testing::ElementsAre(std::byte{0x21}, std::byte{0xF9}, std::byte{4}, std::byte{1}, std::byte{0},
                                          std::byte{0}, std::byte{0}, std::byte{0}));
}

TEST(GifEncoder, UsesEveryIndexOfThePaletteBesideTheTransparentColour) {
  const TestRaster picture = ManyColors(64, 4000);
  const GifContent content = WriteAndDecode(picture, Transparent(picture.Pixel(0, 0)));
  std::set<int> used;
  for (int y = 0; y < 64; ++y)
    for (int x = 0; x < 64; ++x) used.insert(content.Index(x, y));
  EXPECT_EQ(used.size(), 256U);
}

TEST(GifEncoder, WritesOneImageOfThePicturesSize) {
  const std::vector<std::pair<int, int>> sizes = {{1, 1},  {16, 16}, {32, 32},   {48, 48},  {64, 64},
                                                  {17, 5}, {300, 2}, {65535, 1}, {1, 65535}};
  for (const auto& [width, height] : sizes) {
    const TestRaster picture(width, height, 0x123456);
    const GifContent content = WriteAndDecode(picture, best);
    EXPECT_EQ(content.width, width);
    EXPECT_EQ(content.height, height);
    EXPECT_EQ(ErrorOf(content, picture), 0);
  }
}

TEST(GifEncoder, KeepsUpTo256ColoursExactly) {
  for (const int colors : {1, 2, 3, 4, 5, 16, 17, 128, 129, 255, 256}) {
    SCOPED_TRACE(colors);
    const TestRaster picture = ManyColors(64, colors);
    const GifContent content = WriteAndDecode(picture, best);
    EXPECT_EQ(ErrorOf(content, picture), 0);
    EXPECT_EQ(content.transparentIndex, std::nullopt);
    EXPECT_EQ(content.version, "87a");
  }
}

TEST(GifEncoder, KeepsColoursThatDifferByOneStepExactly) {
  TestRaster picture(16, 16);
  for (int i = 0; i < 256; ++i) picture.Set(i % 16, i / 16, 0x7F7F00U + static_cast<Color>(i));
  EXPECT_EQ(ErrorOf(WriteAndDecode(picture, best), picture), 0);
}

TEST(GifEncoder, MakesTheColourMapNoLargerThanThePaletteNeeds) {
  const std::vector<std::pair<int, std::size_t>> rows = {{1, 2},   {2, 2},     {3, 4},    {16, 16},
                                                         {17, 32}, {129, 256}, {256, 256}};
  for (const auto& [colors, entries] : rows)
    EXPECT_EQ(WriteAndDecode(ManyColors(64, colors), best).palette.size(), entries) << colors;
}

TEST(GifEncoder, GivesTheTransparentColourAnIndexOfItsOwnAndKeepsTheOtherColoursExactly) {
  for (const int colors : {1, 2, 255, 256}) {
    SCOPED_TRACE(colors);
    const TestRaster picture = ManyColors(64, colors);
    const Color corner = picture.Pixel(0, 0);
    const GifContent content = WriteAndDecode(picture, Transparent(corner));
    EXPECT_EQ(content.version, "89a");
    EXPECT_EQ(ErrorOf(content, picture), 0);
    ExpectSeeThroughExactly(content, picture, corner);
  }
}

TEST(GifEncoder, KeepsTheTransparentIndexUniqueWhereColoursMustBeMerged) {
  for (const int colors : {257, 258, 4096}) {
    SCOPED_TRACE(colors);
    const TestRaster picture = ManyColors(64, colors);
    // Once the first colour of the picture, once one in its middle.
    for (const Color color : {picture.Pixel(0, 0), picture.Pixel(100, 1)}) {
      const GifContent content = WriteAndDecode(picture, Transparent(color));
      ExpectSeeThroughExactly(content, picture, color);
      EXPECT_EQ(content.palette.at(static_cast<std::size_t>(*content.transparentIndex)), color);
    }
  }
}

TEST(GifEncoder, MakesNoNeighbourOfTheTransparentColourSeeThrough) {
  TestRaster picture = Noise(64, 5);
  constexpr Color corner = 0xC0C0C0;
  picture.Set(0, 0, corner);
  for (int x = 1; x < 64; ++x) picture.Set(x, 0, corner + static_cast<Color>(x % 2 == 0 ? 1 : 0x000100));
  ExpectSeeThroughExactly(WriteAndDecode(picture, Transparent(corner)), picture, corner);
  ExpectSeeThroughExactly(WriteAndDecode(picture, Transparent(corner, GifPalette::Web)), picture, corner);
}

TEST(GifEncoder, SpendsNoIndexOnATransparentColourThatThePictureLacks) {
  const TestRaster picture = ManyColors(64, 256);
  constexpr Color absent = 0xFFFFFF;
  const GifContent content = WriteAndDecode(picture, Transparent(absent));
  EXPECT_EQ(content.transparentIndex, std::nullopt);
  EXPECT_EQ(ErrorOf(content, picture), 0);
  EXPECT_EQ(WriteAndDecode(picture, Transparent(absent, GifPalette::Web)).transparentIndex, std::nullopt);
}

TEST(GifEncoder, IgnoresTheTransparentColourWhereTransparencyIsOff) {
  const TestRaster picture = Gradient(16);
  const GifSettings settings{.transparent = false, .transparentColor = picture.Pixel(0, 0)};
  EXPECT_EQ(WriteAndDecode(picture, settings).transparentIndex, std::nullopt);
}

TEST(GifEncoder, LosesNextToNothingOnOneColourTooMany) {
  // Two of the 257 colours are neighbours; drawing both in one colour costs each a quarter of their squared distance.
  TestRaster picture(64, 64);
  for (int i = 0; i < 4096; ++i) {
    const int color = i % 256;
    picture.Set(i % 64, i / 64, static_cast<Color>(color % 16 * 17 + 256 * (color / 16 * 17)));
  }
  picture.Set(63, 63, 0x010000U + picture.Pixel(63, 63));
  const GifContent content = WriteAndDecode(picture, best);
  // The extra colour is one pixel, and one step away from its neighbour.
  EXPECT_LE(ErrorOf(content, picture), 1.0 / (3 * 4096));
}

TEST(GifEncoder, GivesEachPixelTheNearestColourOfItsPalette) {
  for (const TestRaster& picture : {Gradient(64), Noise(48, 9), Photo(64, 2)}) {
    const GifContent content = WriteAndDecode(picture, best);
    for (int y = 0; y < picture.Height(); ++y) {
      for (int x = 0; x < picture.Width(); ++x) {
        int nearest = std::numeric_limits<int>::max();
        for (const Color color : content.palette)
          nearest = std::min(nearest, SquareDistance(color, picture.Pixel(x, y)));
        ASSERT_EQ(SquareDistance(content.Pixel(x, y), picture.Pixel(x, y)), nearest) << x << ", " << y;
      }
    }
  }
}

TEST(GifEncoder, ComesNearerToThePictureThanTheWebPaletteDoes) {
  for (const int size : {32, 48, 64})
    for (const TestRaster& picture : {Gradient(size), Noise(size, 6), Photo(size, 8)})
      EXPECT_LT(1.5 * ErrorOf(WriteAndDecode(picture, best), picture), ErrorOf(WriteAndDecode(picture, web), picture))
          << size;
}

TEST(GifEncoder, WritesTheWholeWebPaletteWithItsRedChangingSlowest) {
  const GifContent content = WriteAndDecode(Gradient(16), web);
  ASSERT_EQ(content.palette.size(), 256U);
  EXPECT_EQ(content.palette[0], 0x000000U);
  EXPECT_EQ(content.palette[1], 0x330000U);
  EXPECT_EQ(content.palette[6], 0x003300U);
  EXPECT_EQ(content.palette[36], 0x000033U);
  EXPECT_EQ(content.palette[215], 0xFFFFFFU);
  const std::set<Color> different(content.palette.begin(), content.palette.begin() + 216);
  EXPECT_EQ(different.size(), 216U);
}

TEST(GifEncoder, DrawsEachPixelInTheNearestWebColour) {
  // Around every border between two levels: 25 is nearer to 0, 26 to 51, and so on.
  for (int channel = 0; channel < 256; ++channel) {
    const Color color = static_cast<Color>(channel) * 0x010101U;
    const GifContent content = WriteAndDecode(TestRaster(1, 1, color), web);
    const Color drawn = content.Pixel(0, 0);
    EXPECT_EQ(RedOf(drawn) % 51, 0);
    EXPECT_LE(std::abs(RedOf(drawn) - channel), 25);
    EXPECT_EQ(GreenOf(drawn), RedOf(drawn));
    EXPECT_EQ(BlueOf(drawn), RedOf(drawn));
  }
}

TEST(GifEncoder, NearsEachChannelToTheWebPaletteByItself) {
  const GifContent content = WriteAndDecode(TestRaster(4, 4, 0x1980E6), web);
  EXPECT_EQ(content.Pixel(2, 2), 0x0099FFU);
}

TEST(GifEncoder, AddsTheTransparentColourToTheWebPalette) {
  constexpr Color nearlyRed = 0x0000FE;
  constexpr Color red = 0x0000FF;
  TestRaster picture = Gradient(32);
  picture.Set(0, 0, nearlyRed);
  picture.Set(1, 0, red);
  const GifContent content = WriteAndDecode(picture, Transparent(nearlyRed, GifPalette::Web));
  EXPECT_THAT(content.transparentIndex, Optional(216));
  ExpectSeeThroughExactly(content, picture, nearlyRed);
  EXPECT_EQ(content.Pixel(1, 0), red);
  EXPECT_EQ(content.palette.at(216), red) << "a reader that draws it shows a web colour too";
}

TEST(GifEncoder, TouchesNoFileWhereThePictureDoesNotFitTheFormat) {
  const std::vector<std::pair<int, int>> sizes = {{0, 16}, {16, 0}, {65536, 1}, {1, 65536}};
  for (const auto& [width, height] : sizes) {
    MemorySink sink;
    EXPECT_FALSE(GifEncoder(sink).WriteFile(TestRaster(width, height), path, best));
    EXPECT_TRUE(sink.steps.empty());
  }
}

TEST(GifEncoder, SaysNoWhereTheFileCannotBeWritten) {
  const std::vector<std::pair<int, std::vector<std::string>>> rows = {
      {0, {"Open"}}, {1, {"Open", "Write", "Close"}}, {2, {"Open", "Write", "Close"}}};
  for (const auto& [failing, steps] : rows) {
    MemorySink sink(failing);
    EXPECT_FALSE(GifEncoder(sink).WriteFile(Gradient(16), path, best));
    EXPECT_EQ(sink.steps, steps);
  }
}

}  // namespace
}  // namespace tarvik
