// Whole files of every size, class and format. Their expected content is laid out here from the tables of the formats;
// the pictures are simple formulas, and so are their bytes.

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

#include "export/ExpectedFile.h"
#include "export/ModMicroArtFileIO.h"
#include "support/MemorySink.h"
#include "support/TestRaster.h"

namespace tarvik::ModMicroArtFileIO {
namespace {

using ModMicroArt::ColorClass;
using support::MemorySink;
using support::TestRaster;
using Bytes = std::vector<std::uint8_t>;

constexpr std::array<Color, 16> standardColors{0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                                               0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                                               0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

// The expected values in the files of one size and class, computed by hand.
struct Row {
  int size;
  ColorClass colors;
  std::uint32_t bitsPerPixel;
  std::uint32_t bytesInResource;  // of an icon or cursor: as declared in its entry
  std::size_t iconLength;         // of an icon or cursor: as really written
  std::uint32_t bitmapSizeField;
  std::uint32_t bitmapImageSize;
  std::uint32_t bitmapPixelOffset;
  std::size_t bitmapLength;
};

constexpr std::array<Row, 16> rows{{
    {16, ColorClass::Two, 1, 176, 198, 126, 64, 62, 126},
    {16, ColorClass::Sixteen, 4, 296, 318, 246, 128, 118, 246},
    {16, ColorClass::TwoHundredFiftySix, 8, 1384, 1406, 1334, 256, 1078, 1334},
    {16, ColorClass::TrueColor, 24, 872, 894, 822, 768, 54, 822},
    {32, ColorClass::Two, 1, 304, 326, 190, 128, 62, 190},
    {32, ColorClass::Sixteen, 4, 744, 766, 630, 512, 118, 630},
    {32, ColorClass::TwoHundredFiftySix, 8, 2216, 2238, 2102, 1024, 1078, 2102},
    {32, ColorClass::TrueColor, 24, 3240, 3262, 3126, 3072, 54, 3126},
    {48, ColorClass::Two, 1, 816, 838, 446, 384, 62, 446},
    {48, ColorClass::Sixteen, 4, 1640, 1662, 1270, 1152, 118, 1270},
    {48, ColorClass::TwoHundredFiftySix, 8, 3752, 3774, 3382, 2304, 1078, 3382},
    {48, ColorClass::TrueColor, 24, 7336, 7358, 6966, 6912, 54, 6966},
    {64, ColorClass::Two, 1, 1072, 1350, 446, 512, 62, 702},
    {64, ColorClass::Sixteen, 4, 2664, 2814, 1270, 2048, 118, 2166},
    {64, ColorClass::TwoHundredFiftySix, 8, 5672, 5822, 3382, 4096, 1078, 5174},
    {64, ColorClass::TrueColor, 24, 12840, 12990, 6966, 12288, 54, 12342},
}};

// Eight pixels of a black-and-white picture, the leftmost in the high bit: a different pattern for each group and row.
constexpr std::array<std::uint8_t, 7> imagePatterns{0x80, 0x0F, 0xA5, 0x01, 0x36, 0xFF, 0x00};
constexpr std::array<std::uint8_t, 5> maskPatterns{0xFF, 0x3C, 0x81, 0x00, 0xE2};

template <std::size_t count>
std::uint8_t PatternAt(const std::array<std::uint8_t, count>& patterns, int group, int y) {
  return patterns[static_cast<std::size_t>(group + 3 * y) % count];
}

template <std::size_t count>
TestRaster PatternRaster(const std::array<std::uint8_t, count>& patterns, int size) {
  return TestRaster(size, [&](int x, int y) {
    const bool bit = (PatternAt(patterns, x / 8, y) >> (7 - x % 8) & 1) != 0;
    return bit ? Color{0xFFFFFF} : Color{0x000000};
  });
}

template <std::size_t count>
Bytes PatternBytes(const std::array<std::uint8_t, count>& patterns, int size) {
  Bytes bytes;
  for (int y = size - 1; y >= 0; --y) {
    for (int group = 0; group < size / 8; ++group) bytes.push_back(PatternAt(patterns, group, y));
    if (size != 32) bytes.insert(bytes.end(), {0, 0});
  }
  return bytes;
}

// 4 bits: the left pixel of pair k in row y is the colour (k + y) mod 16, the right one (3k + 5 + 7y) mod 16.
TestRaster SixteenRaster(int size) {
  return {size, [](int x, int y) {
            const int k = x / 2;
            return standardColors[static_cast<std::size_t>(x % 2 == 0 ? k + y : 3 * k + 5 + 7 * y) % 16];
          }};
}

Bytes SixteenBytes(int size) {
  Bytes bytes;
  for (int y = size - 1; y >= 0; --y) {
    for (int k = 0; k < size / 2; ++k) {
      bytes.push_back(static_cast<std::uint8_t>((k + y) % 16 * 16 + (3 * k + 5 + 7 * y) % 16));
    }
  }
  return bytes;
}

// 8 bits: each row begins with a black and a white pixel; then the colours 0 to 199 follow from the top left, repeated.
// Colour n is blue n + 1, green 255 - n, red 7n mod 256.
int ColorNumberAt(int x, int y, int size) {
  return (x - 2 + y * (size - 2)) % 200;
}

TestRaster PaletteRaster(int size) {
  return TestRaster(size, [size](int x, int y) {
    if (x == 0) return Color{0x000000};
    if (x == 1) return Color{0xFFFFFF};
    const auto n = static_cast<Color>(ColorNumberAt(x, y, size));
    return (n + 1) * 0x10000 + (255 - n) * 0x100 + 7 * n % 256;
  });
}

Bytes PaletteBytesOf(std::size_t firstColorEntry) {
  Bytes bytes(1024, 0);
  for (std::size_t n = 0; n < 200; ++n) {
    const std::size_t offset = (firstColorEntry + n) * 4;
    bytes[offset] = static_cast<std::uint8_t>(n + 1);
    bytes[offset + 1] = static_cast<std::uint8_t>(255 - n);
    bytes[offset + 2] = static_cast<std::uint8_t>(7 * n % 256);
  }
  return bytes;
}

// Black, the colours, and white at the end.
Bytes IconPaletteBytes() {
  Bytes bytes = PaletteBytesOf(1);
  for (const std::size_t offset : {1020U, 1021U, 1022U}) bytes[offset] = 255;
  return bytes;
}

// Black and white, with which the picture begins, and the colours.
Bytes BitmapPaletteBytes() {
  Bytes bytes = PaletteBytesOf(2);
  for (const std::size_t offset : {4U, 5U, 6U}) bytes[offset] = 255;
  return bytes;
}

Bytes PalettePixelBytes(int size, int firstColorEntry) {
  Bytes bytes;
  for (int y = size - 1; y >= 0; --y) {
    bytes.insert(bytes.end(), {0, 255});
    for (int x = 2; x < size; ++x) {
      bytes.push_back(static_cast<std::uint8_t>(firstColorEntry + ColorNumberAt(x, y, size)));
    }
  }
  return bytes;
}

// 24 bits: blue 4x + y, green 3y, red 5x + 2y, each mod 256.
TestRaster TrueColorRaster(int size) {
  return {size, [](int x, int y) {
            return static_cast<Color>((4 * x + y) % 256 * 0x10000 + 3 * y % 256 * 0x100 + (5 * x + 2 * y) % 256);
          }};
}

Bytes TrueColorBytes(int size) {
  Bytes bytes;
  for (int y = size - 1; y >= 0; --y) {
    for (int x = 0; x < size; ++x) {
      for (const int part : {4 * x + y, 3 * y, 5 * x + 2 * y}) bytes.push_back(static_cast<std::uint8_t>(part % 256));
    }
  }
  return bytes;
}

TestRaster RasterFor(const Row& row) {
  switch (row.colors) {
    case ColorClass::Two:
      return PatternRaster(imagePatterns, row.size);
    case ColorClass::Sixteen:
      return SixteenRaster(row.size);
    case ColorClass::TwoHundredFiftySix:
      return PaletteRaster(row.size);
    default:
      return TrueColorRaster(row.size);
  }
}

void AddInfoHeader(ExpectedFile& file, std::size_t start, const Row& row, int height, std::uint32_t imageSize) {
  file.Number("header size", start, 4, 40);
  file.Number("width", start + 4, 4, static_cast<std::uint32_t>(row.size));
  file.Number("height", start + 8, 4, static_cast<std::uint32_t>(height));
  file.Number("planes", start + 12, 2, 1);
  file.Number("bits per pixel", start + 14, 2, row.bitsPerPixel);
  file.Number("compression", start + 16, 4, 0);
  file.Number("image size", start + 20, 4, imageSize);
  file.Number("horizontal resolution", start + 24, 4, 0);
  file.Number("vertical resolution", start + 28, 4, 0);
  file.Number("colours used", start + 32, 4, 0);
  file.Number("colours important", start + 36, 4, 0);
}

void AddPaletteAndPixels(ExpectedFile& file, const Row& row, bool iconLayout) {
  switch (row.colors) {
    case ColorClass::Two:
      file.Bytes("palette", {0, 0, 0, 0, 255, 255, 255, 0});
      file.Bytes("image", PatternBytes(imagePatterns, row.size));
      break;
    case ColorClass::Sixteen:
      file.Bytes("palette",
                 {0,   0,   0,   0, 0, 0,   128, 0,   0,   128, 0,   0,   0, 128, 128, 0,   128, 0, 0,   0, 128, 0, 128,
                  0,   128, 128, 0, 0, 192, 192, 192, 0,   128, 128, 128, 0, 0,   0,   255, 0,   0, 255, 0, 0,   0, 255,
                  255, 0,   255, 0, 0, 0,   255, 0,   255, 0,   255, 255, 0, 0,   255, 255, 255, 0});
      file.Bytes("image", SixteenBytes(row.size));
      break;
    case ColorClass::TwoHundredFiftySix:
      file.Bytes("palette", iconLayout ? IconPaletteBytes() : BitmapPaletteBytes());
      file.Bytes("image", PalettePixelBytes(row.size, iconLayout ? 1 : 2));
      break;
    default:
      file.Bytes("image", TrueColorBytes(row.size));
      break;
  }
}

ExpectedFile ExpectedIconOrCursor(const Row& row, std::uint32_t type, std::uint32_t word10, std::uint32_t word12) {
  ExpectedFile file;
  file.Number("directory reserved", 0, 2, 0);
  file.Number("directory type", 2, 2, type);
  file.Number("image count", 4, 2, 1);
  file.Number("entry width", 6, 1, static_cast<std::uint32_t>(row.size));
  file.Number("entry height", 7, 1, static_cast<std::uint32_t>(row.size));
  file.Number("colour count", 8, 1, 0);
  file.Number("entry reserved", 9, 1, 0);
  file.Number("planes or hot-spot x", 10, 2, word10);
  file.Number("bit count or hot-spot y", 12, 2, word12);
  file.Number("bytes in resource", 14, 4, row.bytesInResource);
  file.Number("image offset", 18, 4, 22);
  AddInfoHeader(file, 22, row, 2 * row.size, 0);
  AddPaletteAndPixels(file, row, true);
  file.Bytes("mask", PatternBytes(maskPatterns, row.size));
  return file;
}

ExpectedFile ExpectedBitmap(const Row& row) {
  ExpectedFile file;
  file.Bytes("type", {'B', 'M'});
  file.Number("file size", 2, 4, row.bitmapSizeField);
  file.Number("reserved 1", 6, 2, 0);
  file.Number("reserved 2", 8, 2, 0);
  file.Number("pixel data offset", 10, 4, row.bitmapPixelOffset);
  AddInfoHeader(file, 14, row, row.size, row.bitmapImageSize);
  AddPaletteAndPixels(file, row, false);
  return file;
}

class GoldenFiles : public testing::TestWithParam<Row> {
 protected:
  const Row& row = GetParam();
  const TestRaster image = RasterFor(row);
  const TestRaster mask = PatternRaster(maskPatterns, row.size);
  MemorySink sink;
};

TEST_P(GoldenFiles, IconHoldsExactlyItsFields) {
  const ExpectedFile expected = ExpectedIconOrCursor(row, 1, 1, row.bitsPerPixel);
  EXPECT_EQ(expected.Length(), row.iconLength);
  ASSERT_TRUE(WriteIcon(mask, image, row.colors, "a.ico", sink));
  EXPECT_EQ(expected.Difference(sink.bytes), "");
  EXPECT_EQ(sink.openedPath, "a.ico");
}

TEST_P(GoldenFiles, CursorHoldsExactlyItsFields) {
  const ExpectedFile expected = ExpectedIconOrCursor(row, 2, 0x0102, 0x0304);
  EXPECT_EQ(expected.Length(), row.iconLength);
  ASSERT_TRUE(WriteCursor(mask, image, row.colors, {0x0102, 0x0304}, "a.cur", sink));
  EXPECT_EQ(expected.Difference(sink.bytes), "");
  EXPECT_EQ(sink.openedPath, "a.cur");
}

TEST_P(GoldenFiles, BitmapHoldsExactlyItsFields) {
  const ExpectedFile expected = ExpectedBitmap(row);
  EXPECT_EQ(expected.Length(), row.bitmapLength);
  ASSERT_TRUE(WriteBitmap(image, row.colors, "a.bmp", sink));
  EXPECT_EQ(expected.Difference(sink.bytes), "");
  EXPECT_EQ(sink.openedPath, "a.bmp");
}

INSTANTIATE_TEST_SUITE_P(EverySizeAndClass, GoldenFiles, testing::ValuesIn(rows), [](const auto& row) {
  return "Size" + std::to_string(row.param.size) + "Bits" + std::to_string(row.param.bitsPerPixel);
});

TEST(ExpectedFile, NamesTheFieldThatDiffers) {
  ExpectedFile file;
  file.Number("first", 0, 2, 0x0201);
  file.Bytes("second", {3, 4});
  EXPECT_EQ(file.Difference({1, 2, 3, 4}), "");
  EXPECT_EQ(file.Difference({1, 2, 3, 5}), "second, byte 1, offset 3: expected 4, found 5");
  EXPECT_EQ(file.Difference({1}), "the file ends before first, byte 1, offset 1");
  EXPECT_EQ(file.Difference({1, 2, 3, 4, 0}), "1 bytes after the last field");
}

}  // namespace
}  // namespace tarvik::ModMicroArtFileIO
