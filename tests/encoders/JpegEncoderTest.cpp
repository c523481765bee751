#include "encoders/JpegEncoder.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Decoders.h"
#include "encoders/JpegOptions.h"
#include "support/MemorySink.h"
#include "support/TestPictures.h"

namespace tarvik {
namespace {

using support::Gradient;
using support::MemorySink;
using support::Noise;
using support::Photo;
using support::TestRaster;
using testing::ElementsAre;
using testing::IsEmpty;
using Component = JpegMarkers::Component;

constexpr JpegSampling oneToOne{{{1, 1}, {1, 1}, {1, 1}}};
constexpr JpegSampling grey{{{1, 1}, {0, 0}, {0, 0}}};
const std::string path = "C:\\图标\\Images 1.jpg";

JpegMarkers MarkersOf(const MemorySink& sink) {
  const auto markers = ReadJpegMarkers(sink.Bytes());
  EXPECT_TRUE(markers.has_value()) << "not a whole JPEG file";
  return markers.value_or(JpegMarkers{});
}

// The file of a picture with the encoder's settings made by `prepare`.
template <typename Prepare>
JpegMarkers MarkersAfter(Prepare prepare) {
  MemorySink sink;
  JpegEncoder encoder(sink);
  encoder.TakePicture(Gradient(16));
  prepare(encoder);
  EXPECT_TRUE(encoder.WriteFile(path));
  return MarkersOf(sink);
}

TEST(JpegEncoder, WritesTheFileOnceToThePathGiven) {
  MemorySink sink;
  JpegEncoder encoder(sink);
  encoder.TakePicture(Gradient(32));
  EXPECT_TRUE(encoder.WriteFile(path));
  EXPECT_EQ(sink.openedPath, path);
  EXPECT_EQ(sink.steps, (std::vector<std::string>{"Open", "Write", "Close"}));
  EXPECT_EQ(sink.readOnlyFile, ReadOnlyFile::Replaced);
}

TEST(JpegEncoder, WritesABaselineFileOfThePicturesSize) {
  const std::vector<std::pair<int, int>> sizes = {{1, 1},  {16, 16}, {32, 32},   {48, 48}, {64, 64},
                                                  {17, 5}, {5, 17},  {256, 256}, {1000, 1}};
  for (const auto& [width, height] : sizes) {
    SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height));
    MemorySink sink;
    JpegEncoder encoder(sink);
    encoder.TakePicture(TestRaster(width, height, white));
    EXPECT_TRUE(encoder.WriteFile(path));
    const JpegMarkers markers = MarkersOf(sink);
    EXPECT_EQ(markers.frame, 0xC0);
    EXPECT_EQ(markers.width, width);
    EXPECT_EQ(markers.height, height);
    const auto decoded = DecodeJpeg(sink.Bytes());
    ASSERT_TRUE(decoded);
    EXPECT_EQ(MeanSquaredError(*decoded, TestRaster(width, height, white), width, height), 0);
  }
}

TEST(JpegEncoder, WritesEachSamplingWithItsFactorsForLuminanceAndOneForChroma) {
  for (const std::string_view item : subSamplings) {
    SCOPED_TRACE(item);
    const SamplingFactors luminance{item[0] - '0', item[2] - '0'};
    const JpegSampling sampling{{luminance, {1, 1}, {1, 1}}};
    const JpegMarkers markers = MarkersAfter([&](JpegEncoder& encoder) { encoder.SetSampling(sampling); });
    EXPECT_THAT(markers.components, ElementsAre(Component{luminance.horizontal, luminance.vertical, 0},
                                                Component{1, 1, 1}, Component{1, 1, 1}));
  }
}

TEST(JpegEncoder, InterleavesTheComponentsWhereTheirBlocksFitOneUnitOfTenBlocks) {
  struct Row {
    SamplingFactors luminance;
    bool interleaved;
  };
  const std::vector<Row> rows = {{{1, 1}, true},  {{2, 2}, true},  {{2, 4}, true},  {{4, 2}, true},
                                 {{3, 3}, false}, {{3, 4}, false}, {{4, 3}, false}, {{4, 4}, false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.luminance.horizontal * 10 + row.luminance.vertical);
    const JpegSampling sampling{{row.luminance, {1, 1}, {1, 1}}};
    const JpegMarkers markers = MarkersAfter([&](JpegEncoder& encoder) { encoder.SetSampling(sampling); });
    EXPECT_EQ(markers.componentsOfScans, row.interleaved ? std::vector{3} : std::vector({1, 1, 1}));
  }
}

TEST(JpegEncoder, KeepsAPlainColourInEverySampling) {
  constexpr Color teal = 0x808000;
  for (const std::string_view item : subSamplings) {
    SCOPED_TRACE(item);
    MemorySink sink;
    JpegEncoder encoder(sink);
    encoder.SetSampling(SamplingOf(item, false));
    encoder.SetQuality(100);
    encoder.TakePicture(TestRaster(33, 18, teal));
    ASSERT_TRUE(encoder.WriteFile(path));
    const auto decoded = DecodeJpeg(sink.Bytes());
    ASSERT_TRUE(decoded);
    // Only one rounding step in each channel.
    EXPECT_LE(MeanSquaredError(*decoded, TestRaster(33, 18, teal), 33, 18), 1);
  }
}

TEST(JpegEncoder, WritesGreysAsOneComponent) {
  MemorySink sink;
  JpegEncoder encoder(sink);
  encoder.SetSampling(grey);
  encoder.SetQuality(100);
  encoder.TakePicture(TestRaster(16, 16, 0x0000FF));
  ASSERT_TRUE(encoder.WriteFile(path));
  EXPECT_THAT(MarkersOf(sink).components, ElementsAre(Component{1, 1, 0}));
  const auto decoded = DecodeJpeg(sink.Bytes());
  ASSERT_TRUE(decoded);
  // Red contributes 0.299 of the luminance: 76 of 255.
  EXPECT_EQ(decoded->Pixel(8, 8), 0x4C4C4CU);
}

TEST(JpegEncoder, WritesTheRowsFromTheTopWithRedFirst) {
  constexpr Color red = 0x0000FF;
  constexpr Color blue = 0xFF0000;
  TestRaster picture(16, 16, white);
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) {
      picture.Set(x, y, red);
      picture.Set(8 + x, 8 + y, blue);
    }
  }
  MemorySink sink;
  JpegEncoder encoder(sink);
  encoder.SetQuality(100);
  encoder.TakePicture(picture);
  ASSERT_TRUE(encoder.WriteFile(path));
  const auto decoded = DecodeJpeg(sink.Bytes());
  ASSERT_TRUE(decoded);
  EXPECT_LE(MeanSquaredError(*decoded, picture, 16, 16), 1);
}

// The tables of ITU-T T.81, Annex K.1, row by row, scaled as the library does: quality 50 leaves them unchanged, below
// it they are multiplied by 50 / quality, above it by 2 - quality / 50.
constexpr std::array<int, 64> luminanceTable{16, 11, 10, 16, 24,  40,  51,  61,  12, 12, 14, 19, 26,  58,  60,  55,
                                             14, 13, 16, 24, 40,  57,  69,  56,  14, 17, 22, 29, 51,  87,  80,  62,
                                             18, 22, 37, 56, 68,  109, 103, 77,  24, 35, 55, 64, 81,  104, 113, 92,
                                             49, 64, 78, 87, 103, 121, 120, 101, 72, 92, 95, 98, 112, 100, 103, 99};
constexpr std::array<int, 64> chromaTable{17, 18, 24, 47, 99, 99, 99, 99, 18, 21, 26, 66, 99, 99, 99, 99,
                                          24, 26, 56, 99, 99, 99, 99, 99, 47, 66, 99, 99, 99, 99, 99, 99,
                                          99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99,
                                          99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99};

std::array<int, 64> Scaled(const std::array<int, 64>& table, int quality) {
  const int percent = quality < 50 ? 5000 / quality : 200 - 2 * quality;
  std::array<int, 64> scaled{};
  std::ranges::transform(table, scaled.begin(),
                         [&](int entry) { return std::clamp((entry * percent + 50) / 100, 1, 255); });
  return scaled;
}

// The entries in file order: zigzag, diagonal by diagonal, up and down in turn.
std::array<int, 64> Zigzag(const std::array<int, 64>& rows) {
  std::array<int, 64> indexes{};
  std::iota(indexes.begin(), indexes.end(), 0);
  const auto key = [](int index) {
    const int row = index / 8;
    const int column = index % 8;
    const int diagonal = row + column;
    return std::pair(diagonal, diagonal % 2 == 0 ? column : row);
  };
  std::ranges::sort(indexes, {}, key);
  std::array<int, 64> ordered{};
  std::ranges::transform(indexes, ordered.begin(), [&](int index) { return rows[static_cast<std::size_t>(index)]; });
  return ordered;
}

TEST(JpegEncoder, TakesTheQualityOnTheLibrarysOwnScale) {
  for (const int quality : {1, 10, 20, 25, 40, 49, 50, 51, 60, 75, 80, 99, 100}) {
    SCOPED_TRACE(quality);
    const JpegMarkers markers = MarkersAfter([&](JpegEncoder& encoder) { encoder.SetQuality(quality); });
    ASSERT_EQ(markers.tables.size(), 2U);
    EXPECT_EQ(markers.tables.at(0), Zigzag(Scaled(luminanceTable, quality)));
    EXPECT_EQ(markers.tables.at(1), Zigzag(Scaled(chromaTable, quality)));
  }
}

TEST(JpegEncoder, TakesAQualityOutsideTheScaleAsTheNearerEnd) {
  const auto tablesAt = [](int quality) {
    return MarkersAfter([&](JpegEncoder& encoder) { encoder.SetQuality(quality); }).tables;
  };
  EXPECT_EQ(tablesAt(0), tablesAt(1));
  EXPECT_EQ(tablesAt(-32768), tablesAt(1));
  EXPECT_EQ(tablesAt(101), tablesAt(100));
}

TEST(JpegEncoder, StaysNearThePictureAtTheBestQualityWithoutSubSampling) {
  for (const int size : {16, 32, 48, 64}) {
    for (const TestRaster& picture : {Gradient(size), Noise(size, 3), Photo(size, 4)}) {
      MemorySink sink;
      JpegEncoder encoder(sink);
      encoder.SetQuality(100);
      encoder.SetSampling(oneToOne);
      encoder.TakePicture(picture);
      ASSERT_TRUE(encoder.WriteFile(path));
      const auto decoded = DecodeJpeg(sink.Bytes());
      ASSERT_TRUE(decoded);
      // Only rounding is left: of three colour channels, of the transform, and back; noise also exceeds the range.
      EXPECT_LE(MeanSquaredError(*decoded, picture, size, size), 2) << size;
    }
  }
}

TEST(JpegEncoder, WritesNoCommentWhereThereIsNone) {
  EXPECT_THAT(MarkersAfter([](JpegEncoder&) {}).comments, IsEmpty());
  EXPECT_THAT(MarkersAfter([](JpegEncoder& encoder) {
                encoder.SetComment("draft");
                encoder.SetComment("");
              }).comments,
              IsEmpty());
}

TEST(JpegEncoder, WritesTheCommentAsUtf8AndGivesItBack) {
  const std::string comment = "Brindle\r\n图标 圖示 \U0001F426";
  const JpegMarkers markers = MarkersAfter([&](JpegEncoder& encoder) {
    encoder.SetComment(comment);
    EXPECT_EQ(encoder.Comment(), comment);
  });
  EXPECT_THAT(markers.comments, ElementsAre(comment));
}

TEST(JpegEncoder, SplitsACommentThatOneSegmentCannotHold) {
  const std::string longest(65533, 'x');
  const auto commentsOf = [](const std::string& comment) {
    return MarkersAfter([&](JpegEncoder& encoder) { encoder.SetComment(comment); }).comments;
  };
  EXPECT_THAT(commentsOf(longest), ElementsAre(longest));
  EXPECT_THAT(commentsOf(longest + "y"), ElementsAre(longest, "y"));
  EXPECT_THAT(commentsOf(longest + longest + "y"), ElementsAre(longest, longest, "y"));
}

TEST(JpegEncoder, SplitsACommentBetweenCharacters) {
  const std::vector<std::string> characters = {"é", "图", "\U0001F426"};
  for (const std::string& character : characters) {
    for (std::size_t before = 0; before < character.size(); ++before) {
      SCOPED_TRACE(character + " after " + std::to_string(before) + " bytes that fit");
      const std::string start(65533 - before, 'x');
      const JpegMarkers markers =
          MarkersAfter([&](JpegEncoder& encoder) { encoder.SetComment(start + character + "end"); });
      EXPECT_THAT(markers.comments, ElementsAre(start, character + "end"));
    }
  }
}

TEST(JpegEncoder, SplitsBytesThatAreNoTextWhereTheSegmentEnds) {
  const std::string bytes(70000, '\x80');
  const JpegMarkers markers = MarkersAfter([&](JpegEncoder& encoder) { encoder.SetComment(bytes); });
  EXPECT_THAT(markers.comments, ElementsAre(bytes.substr(0, 65533), bytes.substr(65533)));
}

TEST(JpegEncoder, KeepsItsSettingsForEveryFileThatFollows) {
  MemorySink sink;
  JpegEncoder encoder(sink);
  encoder.SetQuality(20);
  encoder.SetSampling({{{4, 4}, {1, 1}, {1, 1}}});
  encoder.SetComment("of the batch");
  encoder.TakePicture(Noise(32, 1));
  ASSERT_TRUE(encoder.WriteFile("first"));
  const JpegMarkers first = MarkersOf(sink);
  encoder.TakePicture(Noise(32, 2));
  ASSERT_TRUE(encoder.WriteFile("second"));
  const JpegMarkers second = MarkersOf(sink);
  EXPECT_EQ(first.tables, second.tables);
  EXPECT_EQ(first.components, second.components);
  EXPECT_THAT(second.comments, ElementsAre("of the batch"));
}

TEST(JpegEncoder, WritesThePictureAsItWasWhenTaken) {
  MemorySink sink;
  JpegEncoder encoder(sink);
  TestRaster picture(8, 8, white);
  encoder.TakePicture(picture);
  picture.Set(0, 0, black);
  ASSERT_TRUE(encoder.WriteFile(path));
  const auto decoded = DecodeJpeg(sink.Bytes());
  ASSERT_TRUE(decoded);
  EXPECT_EQ(decoded->Pixel(0, 0), white);
}

TEST(JpegEncoder, RefusesToWriteWithoutAPicture) {
  MemorySink sink;
  JpegEncoder encoder(sink);
  EXPECT_FALSE(encoder.WriteFile(path));
  encoder.TakePicture(TestRaster(0, 16));
  EXPECT_FALSE(encoder.WriteFile(path));
  encoder.TakePicture(TestRaster(16, 0));
  EXPECT_FALSE(encoder.WriteFile(path));
  EXPECT_TRUE(sink.steps.empty());
}

TEST(JpegEncoder, TouchesNoFileWhereThePictureIsLargerThanAFileCanHold) {
  MemorySink sink;
  JpegEncoder encoder(sink);
  encoder.TakePicture(TestRaster(65501, 1));
  EXPECT_FALSE(encoder.WriteFile(path));
  EXPECT_TRUE(sink.steps.empty());
  encoder.TakePicture(TestRaster(65500, 1));
  EXPECT_TRUE(encoder.WriteFile(path));
}

TEST(JpegEncoder, TouchesNoFileWhereTheSamplingIsNone) {
  const std::vector<JpegSampling> rows = {
      {{{0, 0}, {1, 1}, {1, 1}}},                               // no luminance
      {{{0, 0}, {0, 0}, {0, 0}}},                               // nothing at all
      {{{1, 1}, {1, 1}, {0, 0}}},                               // one chroma component alone
      {{{1, 1}, {0, 0}, {1, 1}}},  {{{5, 1}, {1, 1}, {1, 1}}},  // over four
      {{{1, 5}, {1, 1}, {1, 1}}},  {{{2, 0}, {1, 1}, {1, 1}}},  // half a pair
      {{{-1, 1}, {1, 1}, {1, 1}}}, {{{1, 1}, {0, 1}, {1, 1}}},
      {{{3, 1}, {2, 1}, {1, 1}}},  // chroma that does not divide the luminance: reported by the library midway
  };
  for (const JpegSampling& sampling : rows) {
    MemorySink sink;
    JpegEncoder encoder(sink);
    encoder.TakePicture(Gradient(16));
    encoder.SetSampling(sampling);
    EXPECT_FALSE(encoder.WriteFile(path));
    EXPECT_TRUE(sink.steps.empty());
    encoder.SetSampling(oneToOne);
    EXPECT_TRUE(encoder.WriteFile(path)) << "an error must not outlive the file it belongs to";
  }
}

TEST(JpegEncoder, SaysNoWhereTheFileCannotBeWritten) {
  const std::vector<std::pair<int, std::vector<std::string>>> rows = {
      {0, {"Open"}}, {1, {"Open", "Write", "Close"}}, {2, {"Open", "Write", "Close"}}};
  for (const auto& [failing, steps] : rows) {
    MemorySink sink(failing);
    JpegEncoder encoder(sink);
    encoder.TakePicture(Gradient(16));
    EXPECT_FALSE(encoder.WriteFile(path));
    EXPECT_EQ(sink.steps, steps);
  }
}

}  // namespace
}  // namespace tarvik
