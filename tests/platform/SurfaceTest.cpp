#include "platform/Surface.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

TEST(Surface, ReadsBackWhatGdiDrewAsBlueGreenRed) {
  Surface surface(5, 3, white);
  SetPixel(surface.Dc(), 4, 2, RGB(1, 2, 3));
  EXPECT_EQ(surface.Pixel(4, 2), 0x030201U);
  EXPECT_EQ(surface.Pixel(3, 2), white);
}

TEST(Surface, KeepsThePictureWhenItsSizeChanges) {
  Surface surface(5, 3, white);
  surface.Clear(0x112233);
  surface.Resize(6, 4, black);
  EXPECT_EQ(surface.Pixel(4, 2), 0x112233U);
  EXPECT_EQ(surface.Pixel(5, 2), black);
  EXPECT_EQ(surface.Pixel(0, 3), black);
}

}  // namespace
}  // namespace tarvik
