#include "export/ModMicroArt.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/NonCopyable.h"
#include "support/TestRaster.h"

namespace tarvik::ModMicroArt {
namespace {

using support::RasterOf;
using support::TestRaster;

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

// Everything that a capture did, one line per call.
using Log = std::vector<std::string>;

class NamedSurface final : public DrawSurface {
 public:
  explicit NamedSurface(std::string surfaceName) : name(std::move(surfaceName)) {}
  const std::string name;
};

class LoggedIcon final : public ExtractedIcon, NonCopyable {
 public:
  LoggedIcon(Log& log, bool draws) : log_(log), draws_(draws) {}
  ~LoggedIcon() override { log_.push_back("release"); }

  bool Draw(DrawSurface& surface, Point corner, int size, int step, DrawPart part) override {
    log_.push_back("draw part " + std::to_string(static_cast<int>(part)) + " into " +
                   dynamic_cast<NamedSurface&>(surface).name + " at " + std::to_string(corner.x) + "," +
                   std::to_string(corner.y) + " size " + std::to_string(size) + " step " + std::to_string(step));
    return draws_;
  }
  int StepBound() const override { return 1; }

 private:
  Log& log_;
  bool draws_;
};

class LoggedSource final : public IconSource {
 public:
  explicit LoggedSource(Log& log) : log_(log) {}
  int CountIcons(const std::string&) override { return 0; }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override {
    log_.push_back("extract " + path + " " + std::to_string(index));
    if (!yields) return nullptr;
    return std::make_unique<LoggedIcon>(log_, draws);
  }
  bool yields = true;
  bool draws = true;

 private:
  Log& log_;
};

class CaptureEntryTest : public testing::Test {
 protected:
  bool Capture(const std::string& path, int index, int size) {
    return CaptureEntry(source, {path, Integer16(index), false}, size, {mask, image, composed});
  }

  Log log;
  LoggedSource source{log};
  NamedSurface mask{"mask"};
  NamedSurface image{"image"};
  NamedSurface composed{"composed"};
};

TEST_F(CaptureEntryTest, DrawsMaskImageAndWholeIconAndReleasesIt) {
  EXPECT_TRUE(Capture("C:\\icons\\a.dll", 7, 48));
  EXPECT_EQ(log, (Log{"extract C:\\icons\\a.dll 7", "draw part 1 into mask at 0,0 size 48 step 0",
                      "draw part 2 into image at 0,0 size 48 step 0", "draw part 3 into composed at 0,0 size 48 step 0",
                      "release"}));
}

TEST_F(CaptureEntryTest, DrawsTheStepOfAnAnimatedCursorFromItsFirstIcon) {
  for (const std::string path : {"C:\\c\\wait.ani", "C:\\c\\WAIT.ANI", "C:\\c\\wait.aNi"}) {
    log.clear();
    EXPECT_TRUE(Capture(path, 3, 32));
    EXPECT_EQ(log, (Log{"extract " + path + " 0", "draw part 1 into mask at 0,0 size 32 step 3",
                        "draw part 2 into image at 0,0 size 32 step 3",
                        "draw part 3 into composed at 0,0 size 32 step 3", "release"}));
  }
}

TEST_F(CaptureEntryTest, LeavesTheSurfacesAloneWhereTheFileYieldsNoIconAnyMore) {
  source.yields = false;
  EXPECT_FALSE(Capture("C:\\gone.exe", 2, 16));
  EXPECT_EQ(log, (Log{"extract C:\\gone.exe 2"}));
}

TEST_F(CaptureEntryTest, DrawsTheOtherPartsWhereOneCannotBeDrawn) {
  source.draws = false;
  EXPECT_TRUE(Capture("C:\\a.ani", 9, 16));
  EXPECT_EQ(log.size(), 5U);
  EXPECT_EQ(log.back(), "release");
}

}  // namespace
}  // namespace tarvik::ModMicroArt
