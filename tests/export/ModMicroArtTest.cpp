#include "export/ModMicroArt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "support/FakeSearch.h"
#include "support/Script.h"
#include "support/TestRaster.h"

namespace tarvik::ModMicroArt {
namespace {

using support::FakeIcons;
using support::FakeSurface;
using support::RasterOf;
using support::Script;
using support::TestRaster;
using ::testing::ElementsAre;

constexpr std::array<BlackAndWhite, 2> eitherWay{BlackAndWhite::InOrder, BlackAndWhite::InFixedSlots};

// `count` colours that are neither black nor white nor standard.
std::vector<Color> OtherColors(int count) {
  std::vector<Color> colors;
  colors.reserve(static_cast<std::size_t>(count));
  for (int number = 0; number < count; ++number) colors.push_back(0x010101U + static_cast<Color>(number) * 0x000100U);
  return colors;
}

TEST(ColorClass, IsTheColourCountOrMinusOne) {
  EXPECT_EQ(static_cast<int>(ColorClass::Two), 2);
  EXPECT_EQ(static_cast<int>(ColorClass::Sixteen), 16);
  EXPECT_EQ(static_cast<int>(ColorClass::TwoHundredFiftySix), 256);
  EXPECT_EQ(static_cast<int>(ColorClass::TrueColor), -1);
}

TEST(Classify, FindsTwoColoursInBlackAndWhiteThoughTheyAreStandardColoursToo) {
  for (const BlackAndWhite way : eitherWay) {
    EXPECT_EQ(Classify(RasterOf(32, {white}, black), way), ColorClass::Two);
    EXPECT_EQ(Classify(TestRaster(16, 16, black), way), ColorClass::Two);
    EXPECT_EQ(Classify(TestRaster(64, 64, white), way), ColorClass::Two);
  }
}

TEST(Classify, FindsSixteenColoursInTheStandardColours) {
  const std::vector<Color> standard{0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
                                    0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
  for (const BlackAndWhite way : eitherWay) {
    EXPECT_EQ(Classify(RasterOf(16, standard, black), way), ColorClass::Sixteen);
    for (std::size_t i = 1; i + 1 < standard.size(); ++i) {
      EXPECT_EQ(Classify(RasterOf(48, {standard[i]}, white), way), ColorClass::Sixteen) << std::hex << standard[i];
    }
  }
}

TEST(Classify, NeedsAPaletteForOneColourThatIsNotStandard) {
  for (const BlackAndWhite way : eitherWay) {
    EXPECT_EQ(Classify(RasterOf(16, {0x808081}, black), way), ColorClass::TwoHundredFiftySix);
    TestRaster lastPixel(16, 16, black);
    lastPixel.Set(15, 15, 0x000001);
    EXPECT_EQ(Classify(lastPixel, way), ColorClass::TwoHundredFiftySix);
  }
}

TEST(Classify, CountsEveryColourOfABitmap) {
  std::vector<Color> colors = OtherColors(254);
  colors.insert(colors.end(), {black, white});
  EXPECT_EQ(Classify(RasterOf(32, colors, black), BlackAndWhite::InOrder), ColorClass::TwoHundredFiftySix);
  colors.push_back(0x777777);
  EXPECT_EQ(Classify(RasterOf(32, colors, black), BlackAndWhite::InOrder), ColorClass::TrueColor);
}

TEST(Classify, FindsABitmapOf256OtherColoursInAPaletteAnd257InTrueColour) {
  EXPECT_EQ(Classify(RasterOf(32, OtherColors(256), 0x010101), BlackAndWhite::InOrder), ColorClass::TwoHundredFiftySix);
  EXPECT_EQ(Classify(RasterOf(32, OtherColors(257), 0x010101), BlackAndWhite::InOrder), ColorClass::TrueColor);
}

TEST(Classify, HoldsTwoSlotsOfAnIconForBlackAndWhite) {
  std::vector<Color> colors = OtherColors(254);
  colors.insert(colors.end(), {black, white});
  EXPECT_EQ(Classify(RasterOf(32, colors, white), BlackAndWhite::InFixedSlots), ColorClass::TwoHundredFiftySix);
  colors.push_back(0x777777);
  EXPECT_EQ(Classify(RasterOf(32, colors, white), BlackAndWhite::InFixedSlots), ColorClass::TrueColor);
}

TEST(Classify, HoldsThoseSlotsAlsoWhereBlackAndWhiteDoNotOccur) {
  EXPECT_EQ(Classify(RasterOf(16, OtherColors(254), 0x010101), BlackAndWhite::InFixedSlots),
            ColorClass::TwoHundredFiftySix);
  EXPECT_EQ(Classify(RasterOf(16, OtherColors(255), 0x010101), BlackAndWhite::InFixedSlots), ColorClass::TrueColor);
}

TEST(Classify, TakesTheValueOfAPixelThatCannotBeReadForAColourLikeAnyOther) {
  constexpr Color unreadable = 0xFFFFFFFF;
  EXPECT_EQ(Classify(RasterOf(16, {unreadable}, black), BlackAndWhite::InOrder), ColorClass::TwoHundredFiftySix);
  std::vector<Color> colors = OtherColors(254);
  colors.push_back(unreadable);
  EXPECT_EQ(Classify(RasterOf(32, colors, black), BlackAndWhite::InFixedSlots), ColorClass::TrueColor);
}

class CaptureEntryTest : public ::testing::Test {
 protected:
  bool Capture(const std::string& path, int index, int size) {
    return CaptureEntry(source, {path, Integer16(index), false}, size, {mask, image, composed});
  }

  Script script;
  FakeIcons source{script};
  FakeSurface mask{"mask"};
  FakeSurface image{"image"};
  FakeSurface composed{"composed"};
};

TEST_F(CaptureEntryTest, DrawsMaskImageAndWholeIconAndReleasesIt) {
  EXPECT_TRUE(Capture("a.dll", 7, 48));
  EXPECT_THAT(script, ElementsAre("extract a.dll#7", "draw mask of a.dll#7 on mask at (0,0) size 48 step 0",
                                  "draw image of a.dll#7 on image at (0,0) size 48 step 0",
                                  "draw a.dll#7 on composed at (0,0) size 48 step 0", "release a.dll#7"));
}

TEST_F(CaptureEntryTest, DrawsTheStepOfAnAnimatedCursorFromItsFirstIcon) {
  for (const std::string path : {"wait.ani", "WAIT.ANI", "wait.aNi"}) {
    script.Clear();
    EXPECT_TRUE(Capture(path, 3, 32));
    EXPECT_THAT(script,
                ElementsAre("extract " + path + "#0", "draw mask of " + path + "#0 on mask at (0,0) size 32 step 3",
                            "draw image of " + path + "#0 on image at (0,0) size 32 step 3",
                            "draw " + path + "#0 on composed at (0,0) size 32 step 3", "release " + path + "#0"));
  }
}

TEST_F(CaptureEntryTest, LeavesTheSurfacesAloneWhereTheFileYieldsNoIconAnyMore) {
  source.files["gone.exe"].yields = false;
  EXPECT_FALSE(Capture("gone.exe", 2, 16));
  EXPECT_THAT(script, ElementsAre("extract gone.exe#2"));
}

TEST_F(CaptureEntryTest, DrawsTheOtherPartsWhereOneCannotBeDrawn) {
  source.files["a.ani"].steps = 0;
  EXPECT_TRUE(Capture("a.ani", 9, 16));
  EXPECT_EQ(script.size(), 5U);
  EXPECT_EQ(script.back(), "release a.ani#0");
}

}  // namespace
}  // namespace tarvik::ModMicroArt
