#include "export/ModMicroArtFileIO.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "support/MemorySink.h"
#include "support/TestRaster.h"

namespace tarvik::ModMicroArtFileIO {
namespace {

using ModMicroArt::ColorClass;
using support::MemorySink;
using support::TestRaster;

std::uint32_t NumberAt(const MemorySink& sink, std::size_t offset, int width) {
  std::uint32_t number = 0;
  for (int index = width - 1; index >= 0; --index) {
    number = number * 256 + sink.bytes.at(offset + static_cast<std::size_t>(index));
  }
  return number;
}

MemorySink IconOf(int size, ColorClass colors) {
  MemorySink sink;
  EXPECT_TRUE(WriteIcon(TestRaster(size, size), TestRaster(size, size), colors, "a.ico", sink));
  return sink;
}

MemorySink BitmapOf(int size, ColorClass colors) {
  MemorySink sink;
  EXPECT_TRUE(WriteBitmap(TestRaster(size, size), colors, "a.bmp", sink));
  return sink;
}

TEST(WriteIcon, WritesABlackAndWhiteIconOf32PixelsIn326Bytes) {
  EXPECT_EQ(IconOf(32, ColorClass::Two).bytes.size(), 326U);  // 6 + 16 + 40 + 8 + 128 + 128
}

TEST(WriteIcon, WritesASixteenColourIconOf16PixelsIn318Bytes) {
  EXPECT_EQ(IconOf(16, ColorClass::Sixteen).bytes.size(), 318U);  // 6 + 16 + 40 + 64 + 128 + 64
}

TEST(WriteIcon, WritesATrueColourIconOf48PixelsIn7358BytesAndDeclares7336) {
  const MemorySink icon = IconOf(48, ColorClass::TrueColor);
  EXPECT_EQ(icon.bytes.size(), 7358U);
  EXPECT_EQ(NumberAt(icon, 14, 4), 7336U);
}

TEST(WriteIcon, WritesTenByteMaskRowsAt64PixelsWhileItDeclaresEight) {
  for (const ColorClass colors : {ColorClass::Sixteen, ColorClass::TwoHundredFiftySix, ColorClass::TrueColor}) {
    const MemorySink icon = IconOf(64, colors);
    constexpr std::size_t directory = 22;
    EXPECT_EQ(icon.bytes.size() - directory - NumberAt(icon, 14, 4), 640U - 512U);
  }
}

TEST(WriteIcon, DeclaresNoMaskBytesAtAnyOtherWidth) {
  EXPECT_EQ(NumberAt(IconOf(24, ColorClass::TrueColor), 14, 4), 40U + 24 * 72);
}

TEST(WriteCursor, CarriesTheHotSpot) {
  struct Row {
    HotSpot hotSpot;
    std::uint32_t x;
    std::uint32_t y;
  };
  for (const Row& row :
       {Row{{}, 0, 0}, Row{{31, 7}, 31, 7}, Row{{32767, 256}, 32767, 256}, Row{{-1, -2}, 65535, 65534}}) {
    MemorySink sink;
    ASSERT_TRUE(WriteCursor(TestRaster(32, 32), TestRaster(32, 32), ColorClass::Two, row.hotSpot, "a.cur", sink));
    EXPECT_EQ(NumberAt(sink, 10, 2), row.x);
    EXPECT_EQ(NumberAt(sink, 12, 2), row.y);
  }
}

TEST(WriteBitmap, Writes822BytesForTrueColourAt16PixelsAndSaysSo) {
  const MemorySink bitmap = BitmapOf(16, ColorClass::TrueColor);
  EXPECT_EQ(bitmap.bytes.size(), 822U);
  EXPECT_EQ(NumberAt(bitmap, 2, 4), 822U);
  EXPECT_EQ(NumberAt(bitmap, 10, 4), 54U);
}

TEST(WriteBitmap, Says6966BytesForTrueColourAt64PixelsAndWrites12342) {
  const MemorySink bitmap = BitmapOf(64, ColorClass::TrueColor);
  EXPECT_EQ(bitmap.bytes.size(), 12342U);
  EXPECT_EQ(NumberAt(bitmap, 2, 4), 6966U);
}

TEST(WriteBitmap, WritesTenByteRowsForTwoColoursAt64Pixels) {
  MemorySink sink;
  ASSERT_TRUE(WriteBitmap(TestRaster(64, 64, white), ColorClass::Two, "a.bmp", sink));
  ASSERT_EQ(sink.bytes.size(), 62U + 640U);
  for (std::size_t index = 0; index < 640; ++index) {
    EXPECT_EQ(sink.bytes[62 + index], index % 10 < 8 ? 255 : 0) << index;
  }
}

TEST(WriteBitmap, WritesFourByteRowsForTwoColoursAt32Pixels) {
  MemorySink sink;
  ASSERT_TRUE(WriteBitmap(TestRaster(32, 32, white), ColorClass::Two, "a.bmp", sink));
  ASSERT_EQ(sink.bytes.size(), 62U + 128U);
  for (std::size_t offset = 62; offset < sink.bytes.size(); ++offset) EXPECT_EQ(sink.bytes[offset], 255);
}

TEST(WriteBitmap, FillsAllPaletteEntriesWith256Colours) {
  MemorySink sink;
  const TestRaster raster(16, [](int x, int y) { return static_cast<Color>(0x400001 + (x + 16 * y) * 0x100); });
  ASSERT_TRUE(WriteBitmap(raster, ColorClass::TwoHundredFiftySix, "a.bmp", sink));
  for (std::uint32_t entry = 0; entry < 256; ++entry) {
    EXPECT_EQ(NumberAt(sink, 54 + 4 * entry, 4), 0x010040U + entry * 0x100U)
        << entry;  // red, green, blue in this order of reading
  }
}

TEST(WriteBitmap, LeavesTheSizeFieldZeroAtAnyOtherWidth) {
  EXPECT_EQ(NumberAt(BitmapOf(24, ColorClass::Two), 2, 4), 0U);
}

TEST(TrueColorBitmap, SaysItsSizeAtEverySize) {
  for (const auto& [size, length] : {std::pair{16, 822U}, {32, 3126U}, {48, 6966U}, {64, 12342U}, {5, 54U + 80U}}) {
    MemorySink sink;
    ASSERT_TRUE(sink.Write(TrueColorBitmap(TestRaster(size, size)).Bytes()));
    EXPECT_EQ(sink.bytes.size(), length);
    EXPECT_EQ(NumberAt(sink, 2, 4), length);
    EXPECT_EQ(NumberAt(sink, 34, 4), length - 54);
    EXPECT_EQ(NumberAt(sink, 28, 2), 24U);
  }
}

struct NamedWriter {
  std::string name;
  std::function<bool(FileSink&)> write;
};

std::vector<NamedWriter> EveryWriter() {
  const TestRaster raster(32, 32);
  return {{"icon", [=](FileSink& sink) { return WriteIcon(raster, raster, ColorClass::Sixteen, "a", sink); }},
          {"cursor", [=](FileSink& sink) { return WriteCursor(raster, raster, ColorClass::Two, {}, "a", sink); }},
          {"bitmap", [=](FileSink& sink) { return WriteBitmap(raster, ColorClass::TwoHundredFiftySix, "a", sink); }}};
}

TEST(EveryWriter, RefusesAReadOnlyFile) {
  for (const NamedWriter& writer : EveryWriter()) {
    MemorySink sink;
    sink.readOnlyFile = ReadOnlyFile::Replaced;
    ASSERT_TRUE(writer.write(sink));
    EXPECT_EQ(sink.readOnlyFile, ReadOnlyFile::Refused) << writer.name;
  }
}

TEST(EveryWriter, WritesNothingMoreAfterAFailureAndSaysNo) {
  for (const NamedWriter& writer : EveryWriter()) {
    MemorySink whole;
    ASSERT_TRUE(writer.write(whole)) << writer.name;
    ASSERT_GE(whole.steps.size(), 3U);
    EXPECT_EQ(whole.steps.front(), "Open");
    EXPECT_EQ(whole.steps.back(), "Close");
    for (int step = 0; step < static_cast<int>(whole.steps.size()); ++step) {
      MemorySink sink(step);
      EXPECT_FALSE(writer.write(sink)) << writer.name << " with failing step " << step;
      // A file that was opened is closed, whether or not writing failed.
      std::vector<std::string> expected(whole.steps.begin(), whole.steps.begin() + step + 1);
      if (step > 0 && expected.back() != "Close") expected.emplace_back("Close");
      EXPECT_EQ(sink.steps, expected) << writer.name << " with failing step " << step;
    }
  }
}

}  // namespace
}  // namespace tarvik::ModMicroArtFileIO
