// Round trip: random pictures from a fixed seed, written and read back by a general reader. If the file is in the
// format that readers expect, the picture comes back. If it deliberately is not, the expected result is computed here.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "export/ImageFileReader.h"
#include "export/ModMicroArtFileIO.h"
#include "export/SeenPixels.h"
#include "support/MemorySink.h"
#include "support/TestRaster.h"

namespace tarvik::ModMicroArtFileIO {
namespace {

using ModMicroArt::BlackAndWhite;
using ModMicroArt::Classify;
using ModMicroArt::ColorClass;
using support::MemorySink;
using support::TestRaster;

constexpr int picturesOfAKind = 25;
constexpr std::array<ColorClass, 4> everyClass{ColorClass::Two, ColorClass::Sixteen, ColorClass::TwoHundredFiftySix,
                                               ColorClass::TrueColor};
constexpr std::array<Color, 16> standardColors{0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                                               0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                                               0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

int BitsOf(ColorClass colors) {
  switch (colors) {
    case ColorClass::Two:
      return 1;
    case ColorClass::Sixteen:
      return 4;
    case ColorClass::TwoHundredFiftySix:
      return 8;
    default:
      return 24;
  }
}

// Random pictures from a fixed seed.
class RandomPictures {
 public:
  explicit RandomPictures(std::uint32_t seed) : random_(seed) {}

  int Number(int min, int max) { return std::uniform_int_distribution<int>(min, max)(random_); }
  Color AnyColor() { return static_cast<Color>(Number(0, 0xFFFFFF)); }

  // A picture of that class, counted in the same way for icons and bitmaps. True colour needs 32 pixels or more.
  TestRaster OfClass(int size, ColorClass colors) {
    std::vector<Color> choice{black, white};
    if (colors == ColorClass::Sixteen) choice.assign(standardColors.begin(), standardColors.end());
    if (colors == ColorClass::TwoHundredFiftySix) {
      const int others = Number(1, 254);
      while (static_cast<int>(choice.size()) < others + 2) choice.push_back(AnyColor());
    }
    TestRaster raster(size, [&](int, int) {
      if (colors == ColorClass::TrueColor) return AnyColor();
      return choice[static_cast<std::size_t>(Number(0, static_cast<int>(choice.size()) - 1))];
    });
    if (colors == ColorClass::Sixteen) raster.Set(Number(0, size - 1), Number(0, size - 1), 0x808000);
    if (colors == ColorClass::TwoHundredFiftySix) raster.Set(Number(0, size - 1), Number(0, size - 1), choice.back());
    return raster;
  }

  // White if transparent, otherwise black and other colours.
  TestRaster Mask(int size) {
    constexpr std::array<Color, 4> choice{white, white, black, 0xFEFFFF};
    return {size, [&](int, int) { return choice[static_cast<std::size_t>(Number(0, 3))]; }};
  }

 private:
  std::mt19937 random_;
};

ReadImage WrittenIcon(const TestRaster& mask, const TestRaster& image, ColorClass colors) {
  MemorySink sink;
  EXPECT_TRUE(WriteIcon(mask, image, colors, "a.ico", sink));
  return ReadIconOrCursor(sink.bytes);
}

ReadImage WrittenBitmap(const TestRaster& composed, ColorClass colors, std::size_t* length = nullptr) {
  MemorySink sink;
  EXPECT_TRUE(WriteBitmap(composed, colors, "a.bmp", sink));
  if (length != nullptr) *length = sink.bytes.size();
  return ReadBitmap(sink.bytes);
}

TEST(RoundTrip, IconsAndCursorsUpTo48PixelsComeBackWithImageMaskAndHotSpot) {
  RandomPictures pictures(1);
  for (const int size : {16, 32, 48}) {
    for (const ColorClass colors : everyClass) {
      for (int count = 0; count < picturesOfAKind; ++count) {
        const TestRaster image = pictures.OfClass(size, colors);
        const TestRaster mask = pictures.Mask(size);
        // 256 pixels do not always have more than 254 other colours, so at 16 pixels the class may differ.
        const ColorClass found = Classify(image, BlackAndWhite::InFixedSlots);
        ASSERT_TRUE(found == colors || size == 16);

        const ReadImage icon = WrittenIcon(mask, image, found);
        EXPECT_EQ(icon.fileType, 1);
        EXPECT_EQ(icon.width, size);
        EXPECT_EQ(icon.height, size);
        EXPECT_EQ(icon.bitsPerPixel, BitsOf(found));
        EXPECT_EQ(icon.word12, BitsOf(found));
        EXPECT_EQ(icon.colors, image.Pixels());
        EXPECT_EQ(icon.transparent, WhitePixels(mask));

        MemorySink sink;
        const HotSpot hotSpot{pictures.Number(0, size - 1), pictures.Number(0, size - 1)};
        ASSERT_TRUE(WriteCursor(mask, image, found, hotSpot, "a.cur", sink));
        const ReadImage cursor = ReadIconOrCursor(sink.bytes);
        EXPECT_EQ(cursor.fileType, 2);
        EXPECT_EQ(cursor.word10, hotSpot.x);
        EXPECT_EQ(cursor.word12, hotSpot.y);
        EXPECT_EQ(cursor.colors, image.Pixels());
        EXPECT_EQ(cursor.transparent, WhitePixels(mask));
        EXPECT_EQ(cursor.sizeField, sink.bytes.size() - 22);
      }
    }
  }
}

TEST(RoundTrip, IconsOf64PixelsComeBackWithTheirImageAndWithAMaskReadFromTenByteRows) {
  RandomPictures pictures(2);
  for (const ColorClass colors : {ColorClass::Sixteen, ColorClass::TwoHundredFiftySix, ColorClass::TrueColor}) {
    for (int count = 0; count < picturesOfAKind; ++count) {
      const TestRaster image = pictures.OfClass(64, colors);
      const TestRaster mask = pictures.Mask(64);
      ASSERT_EQ(Classify(image, BlackAndWhite::InFixedSlots), colors);
      const ReadImage icon = WrittenIcon(mask, image, colors);
      EXPECT_EQ(icon.colors, image.Pixels());
      EXPECT_EQ(icon.transparent, SeenInEightByteRows(TenByteRows({&mask}), 0));
    }
  }
}

TEST(RoundTrip, BlackAndWhiteIconsOf64PixelsAreReadFromTenByteRowsOfImageThenMask) {
  RandomPictures pictures(3);
  for (int count = 0; count < picturesOfAKind; ++count) {
    const TestRaster image = pictures.OfClass(64, ColorClass::Two);
    const TestRaster mask = pictures.Mask(64);
    const ReadImage icon = WrittenIcon(mask, image, ColorClass::Two);
    const std::vector<bool> stored = TenByteRows({&image, &mask});
    EXPECT_EQ(icon.colors, BlackAndWhitePixels(SeenInEightByteRows(stored, 0)));
    EXPECT_EQ(icon.transparent, SeenInEightByteRows(stored, 512));
  }
}

TEST(RoundTrip, BitmapsWithoutABuiltPaletteComeBackUpTo48Pixels) {
  RandomPictures pictures(4);
  for (const int size : {16, 32, 48}) {
    for (const ColorClass colors : {ColorClass::Two, ColorClass::Sixteen, ColorClass::TrueColor}) {
      for (int count = 0; count < picturesOfAKind; ++count) {
        const TestRaster composed = pictures.OfClass(size, colors);
        std::size_t length = 0;
        const ReadImage bitmap = WrittenBitmap(composed, colors, &length);
        EXPECT_EQ(bitmap.width, size);
        EXPECT_EQ(bitmap.height, size);
        EXPECT_EQ(bitmap.bitsPerPixel, BitsOf(colors));
        EXPECT_EQ(bitmap.colors, composed.Pixels());
        EXPECT_EQ(bitmap.sizeField, length);
      }
    }
  }
}

TEST(RoundTrip, BitmapsOf64PixelsSayTheSizeOf48) {
  RandomPictures pictures(5);
  constexpr std::array<std::uint32_t, 4> sizes{446, 1270, 3382, 6966};
  for (std::size_t i = 0; i < everyClass.size(); ++i) {
    EXPECT_EQ(WrittenBitmap(pictures.OfClass(64, everyClass[i]), everyClass[i]).sizeField, sizes[i]);
  }
}

TEST(RoundTrip, BitmapsOf64PixelsInSixteenColoursAndTrueColourComeBack) {
  RandomPictures pictures(6);
  for (const ColorClass colors : {ColorClass::Sixteen, ColorClass::TrueColor}) {
    for (int count = 0; count < picturesOfAKind; ++count) {
      const TestRaster composed = pictures.OfClass(64, colors);
      EXPECT_EQ(WrittenBitmap(composed, colors).colors, composed.Pixels());
    }
  }
}

TEST(RoundTrip, BlackAndWhiteBitmapsOf64PixelsAreReadFromTenByteRows) {
  RandomPictures pictures(7);
  for (int count = 0; count < picturesOfAKind; ++count) {
    const TestRaster composed = pictures.OfClass(64, ColorClass::Two);
    EXPECT_EQ(WrittenBitmap(composed, ColorClass::Two).colors,
              BlackAndWhitePixels(SeenInEightByteRows(TenByteRows({&composed}), 0)));
  }
}

TEST(RoundTrip, BitmapsOf256ColoursShowBlackWhiteAndTheFirstColourAsMeant) {
  RandomPictures pictures(8);
  int different = 0;
  for (const int size : {16, 32, 48, 64}) {
    for (int count = 0; count < picturesOfAKind; ++count) {
      const TestRaster composed = pictures.OfClass(size, ColorClass::TwoHundredFiftySix);
      ASSERT_EQ(Classify(composed, BlackAndWhite::InOrder), ColorClass::TwoHundredFiftySix);
      const ReadImage bitmap = WrittenBitmap(composed, ColorClass::TwoHundredFiftySix);
      EXPECT_EQ(bitmap.colors, ShownBy256ColorBitmap(composed));
      if (bitmap.colors != composed.Pixels()) ++different;
    }
  }
  EXPECT_GT(different, 0) << "these pictures never show the difference";
}

TEST(RoundTrip, BitmapsOf256ColoursComeBackWhereBlackIsFirstAndWhiteDoesNotOccur) {
  RandomPictures pictures(9);
  for (int count = 0; count < picturesOfAKind; ++count) {
    TestRaster composed = pictures.OfClass(32, ColorClass::TwoHundredFiftySix);
    for (int number = 0; number < 32 * 32; ++number) {
      if (number == 0 || composed.Pixels()[static_cast<std::size_t>(number)] == white)
        composed.SetNumber(number, black);
    }
    EXPECT_EQ(WrittenBitmap(composed, ColorClass::TwoHundredFiftySix).colors, composed.Pixels());
  }
}

TEST(RoundTrip, ColoursWithoutEntryInSixteenShowAsTheLastFoundForTheirHalf) {
  RandomPictures pictures(10);
  for (const int size : {16, 32, 48, 64}) {
    for (int count = 0; count < picturesOfAKind; ++count) {
      const TestRaster image(size, [&](int, int) {
        return pictures.Number(0, 2) == 0 ? standardColors[static_cast<std::size_t>(pictures.Number(0, 15))]
                                          : pictures.AnyColor();
      });
      TestRaster shown(size, size);
      std::array<Color, 2> lastOfHalf{black, black};
      for (int y = size - 1; y >= 0; --y) {
        for (int x = 0; x < size; ++x) {
          const auto half = static_cast<std::size_t>(x % 2);
          const Color color = image.Pixel(x, y);
          if (std::find(standardColors.begin(), standardColors.end(), color) != standardColors.end()) {
            lastOfHalf.at(half) = color;
          }
          shown.Set(x, y, lastOfHalf.at(half));
        }
      }
      EXPECT_EQ(WrittenIcon(pictures.Mask(size), image, ColorClass::Sixteen).colors, shown.Pixels());
      EXPECT_EQ(WrittenBitmap(image, ColorClass::Sixteen).colors, shown.Pixels());
    }
  }
}

TEST(RoundTrip, ColoursWithoutEntryIn256ShowAsThePixelBefore) {
  RandomPictures pictures(11);
  for (const int size : {32, 48, 64}) {
    const TestRaster image = pictures.OfClass(size, ColorClass::TrueColor);
    std::vector<Color> entries;
    for (const Color color : image.Pixels()) {
      const bool seen = std::find(entries.begin(), entries.end(), color) != entries.end();
      if (!seen && color != black && color != white && entries.size() < 254) entries.push_back(color);
    }
    TestRaster shown(size, size);
    Color previous = black;
    for (int y = size - 1; y >= 0; --y) {
      for (int x = 0; x < size; ++x) {
        const Color color = image.Pixel(x, y);
        const bool has = std::find(entries.begin(), entries.end(), color) != entries.end();
        if (has || color == black || color == white) previous = color;
        shown.Set(x, y, previous);
      }
    }
    EXPECT_EQ(WrittenIcon(pictures.Mask(size), image, ColorClass::TwoHundredFiftySix).colors, shown.Pixels());
    EXPECT_EQ(WrittenBitmap(image, ColorClass::TwoHundredFiftySix).colors, ShownBy256ColorBitmap(image));
  }
}

TEST(RoundTrip, TrueColourBitmapsForEncodersComeBackAtEverySize) {
  RandomPictures pictures(12);
  for (int size = 1; size <= 70; ++size) {
    const TestRaster composed = pictures.OfClass(size, ColorClass::TrueColor);
    MemorySink sink;
    ASSERT_TRUE(sink.Write(TrueColorBitmap(composed).Bytes()));
    const ReadImage bitmap = ReadBitmap(sink.bytes);
    EXPECT_EQ(bitmap.width, size);
    EXPECT_EQ(bitmap.bitsPerPixel, 24);
    EXPECT_EQ(bitmap.colors, composed.Pixels());
    EXPECT_EQ(bitmap.sizeField, sink.bytes.size());
  }
}

}  // namespace
}  // namespace tarvik::ModMicroArtFileIO
