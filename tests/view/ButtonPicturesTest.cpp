#include "view/ButtonPictures.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

int SideAt(int dotsPerInch) {
  return ButtonPictureSide(DisplayScale(dotsPerInch));
}

TEST(ButtonPictureSide, Is24PixelsInProportionToTheDisplay) {
  EXPECT_EQ(SideAt(96), 24);
  EXPECT_EQ(SideAt(120), 30);
  EXPECT_EQ(SideAt(128), 32);
  EXPECT_EQ(SideAt(144), 36);
  EXPECT_EQ(SideAt(168), 42);
  EXPECT_EQ(SideAt(192), 48);
  EXPECT_EQ(SideAt(240), 60);
  EXPECT_EQ(SideAt(288), 72);
  EXPECT_EQ(SideAt(384), 96);
}

TEST(ButtonPictureSide, IsTheNextSmallerOneOnEveryOtherDisplay) {
  EXPECT_EQ(SideAt(72), 24);
  EXPECT_EQ(SideAt(110), 24);
  EXPECT_EQ(SideAt(160), 36);
  EXPECT_EQ(SideAt(216), 48);
  EXPECT_EQ(SideAt(480), 96);
}

}  // namespace
}  // namespace tarvik
