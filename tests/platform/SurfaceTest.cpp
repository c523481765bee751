#include "platform/Surface.h"

#include <gtest/gtest.h>

#include <array>

#include "base/RuntimeError.h"

namespace tarvik {
namespace {

TEST(Surface, ReadsBackWhatGdiDrewAsBlueGreenRed) {
  Surface surface(5, 3, white);
  SetPixel(surface.Dc(), 4, 2, RGB(1, 2, 3));
  EXPECT_EQ(surface.Pixel(4, 2), 0x030201U);
  EXPECT_EQ(surface.Pixel(3, 2), white);
}

TEST(Surface, SaysThatThereIsNoMemoryForIt) {
  EXPECT_THROW(Surface(60000, 60000, white), OutOfMemoryError);
}

TEST(Surface, CopiesItsPixelsRowByRowFromTheTop) {
  Surface surface(3, 2, white);
  SetPixel(surface.Dc(), 0, 1, RGB(1, 2, 3));
  SetPixel(surface.Dc(), 2, 0, RGB(4, 5, 6));
  std::array<Color, 6> pixels{};
  surface.CopyPixels(pixels);
  EXPECT_EQ(pixels, (std::array<Color, 6>{white, white, 0x060504, 0x030201, white, white}));
}

TEST(Surface, CopiesAnotherPictureAsFarAsBothGo) {
  Surface source(3, 2, black);
  SetPixel(source.Dc(), 1, 1, RGB(1, 2, 3));
  Surface surface(2, 4, white);
  surface.Copy(source);
  std::array<Color, 8> pixels{};
  surface.CopyPixels(pixels);
  EXPECT_EQ(pixels, (std::array<Color, 8>{black, black, black, 0x030201, white, white, white, white}));
}

TEST(Surface, KeepsThePictureWhenItsSizeChanges) {
  Surface surface(5, 3, white);
  surface.Clear(0x112233);
  surface.Resize(6, 4, black);
  EXPECT_EQ(surface.Pixel(4, 2), 0x112233U);
  EXPECT_EQ(surface.Pixel(5, 2), black);
  EXPECT_EQ(surface.Pixel(0, 3), black);
}

TEST(Surface, CombinesWithAnotherByARasterOperation) {
  Surface surface(3, 2, 0x0F0F0F);
  surface.Combine(Surface(2, 5, 0x333333), SRCAND);
  EXPECT_EQ(surface.Pixel(1, 1), 0x030303U);
  EXPECT_EQ(surface.Pixel(2, 1), 0x0F0F0FU);
  surface.Combine(Surface(3, 2, 0xFF0000), SRCINVERT);
  EXPECT_EQ(surface.Pixel(0, 0), 0xFC0303U);
}

}  // namespace
}  // namespace tarvik
