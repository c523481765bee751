#include "base/Enlargement.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarvik {
namespace {

// A small picture in memory, its pixels grey.
struct Picture {
  Picture(int pictureWidth, int pictureHeight)
      : bytes(static_cast<std::size_t>(pictureWidth * pictureHeight * bytesPerPixel)),
        width(pictureWidth),
        height(pictureHeight) {}
  PixelRows<std::uint8_t> Rows() {
    return {bytes.data(), static_cast<std::size_t>(width * bytesPerPixel), width, height};
  }
  PixelRows<const std::uint8_t> ReadRows() const {
    return {bytes.data(), static_cast<std::size_t>(width * bytesPerPixel), width, height};
  }
  void Set(int x, int y, std::uint8_t grey) {
    for (int color = 0; color < bytesPerPixel; ++color) Rows().Row(y)[x * bytesPerPixel + color] = grey;
  }
  int At(int x, int y) const { return ReadRows().Row(y)[x * bytesPerPixel]; }

  std::vector<std::uint8_t> bytes;
  int width;
  int height;
};

Picture Shades(int width, int height) {
  Picture picture(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) picture.Set(x, y, static_cast<std::uint8_t>(x * 31 + y * 17));
  }
  return picture;
}

Picture EnlargedPart(const Picture& picture, int dots, Point corner, int width, int height) {
  Picture part(width, height);
  Enlarge(picture.ReadRows(), DisplayScale(dots), corner, part.Rows());
  return part;
}

TEST(Enlarge, MakesEachPixelABlockAtWholeScales) {
  const Picture picture = Shades(5, 4);
  for (const int times : {1, 2, 3, 4}) {
    const Picture shown = EnlargedPart(picture, 96 * times, {}, 5 * times, 4 * times);
    for (int y = 0; y < shown.height; ++y) {
      for (int x = 0; x < shown.width; ++x) ASSERT_EQ(shown.At(x, y), picture.At(x / times, y / times)) << times;
    }
  }
}

TEST(Enlarge, MixesNeighboursByTheAreasUnderADisplayPixel) {
  Picture picture(2, 2);
  picture.Set(0, 0, 0);
  picture.Set(1, 0, 100);
  picture.Set(0, 1, 200);
  picture.Set(1, 1, 40);
  const Picture shown = EnlargedPart(picture, 144, {}, 3, 3);
  EXPECT_EQ(shown.At(0, 0), 0);
  EXPECT_EQ(shown.At(1, 0), 50);
  EXPECT_EQ(shown.At(2, 0), 100);
  EXPECT_EQ(shown.At(0, 1), 100);
  EXPECT_EQ(shown.At(1, 1), 85);
  EXPECT_EQ(shown.At(2, 2), 40);
}

TEST(Enlarge, MixesEachColourForItself) {
  Picture picture(2, 1);
  picture.bytes = {0, 100, 255, 200, 100, 0};
  const Picture shown = EnlargedPart(picture, 144, {}, 3, 1);
  EXPECT_EQ(shown.bytes, (std::vector<std::uint8_t>{0, 100, 255, 100, 100, 128, 200, 100, 0}));
}

TEST(Enlarge, GivesTheSamePixelsWhateverPartIsAskedFor) {
  const Picture picture = Shades(9, 8);
  for (const int dots : {120, 144, 168, 192}) {
    const Picture whole = EnlargedPart(picture, dots, {}, 11, 10);
    const Picture part = EnlargedPart(picture, dots, {3, 2}, 5, 6);
    for (int y = 0; y < part.height; ++y) {
      for (int x = 0; x < part.width; ++x) ASSERT_EQ(part.At(x, y), whole.At(x + 3, y + 2)) << dots;
    }
  }
}

TEST(Enlarge, RepeatsTheLastColumnAndRowBeyondThePicture) {
  const Picture picture = Shades(3, 3);
  const Picture shown = EnlargedPart(picture, 168, {}, 9, 9);
  EXPECT_EQ(shown.At(5, 5), picture.At(2, 2));
  EXPECT_EQ(shown.At(8, 8), picture.At(2, 2));
}

TEST(Enlarge, LeavesTheBytesBetweenRowsAlone) {
  Picture picture(1, 1);
  picture.Set(0, 0, 9);
  std::vector<std::uint8_t> bytes(16, 77);
  Enlarge(picture.ReadRows(), DisplayScale(192), {}, PixelRows<std::uint8_t>{bytes.data(), 8, 2, 2});
  EXPECT_EQ(bytes, (std::vector<std::uint8_t>{9, 9, 9, 9, 9, 9, 77, 77, 9, 9, 9, 9, 9, 9, 77, 77}));
}

}  // namespace
}  // namespace tarvik
