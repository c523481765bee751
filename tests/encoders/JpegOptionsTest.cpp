#include "encoders/JpegOptions.h"

#include <algorithm>
#include <set>
#include <span>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "encoders/fSaveJPGTexts.h"

namespace tarvik {
namespace {

using testing::ElementsAre;
using testing::Optional;

TEST(JpegOptions, GivesEachPresetItsQuality) {
  const std::vector<int> qualities = {20, 40, 60, 80, 100};
  for (int preset = 0; preset < 5; ++preset)
    EXPECT_EQ(QualityOfPreset(preset), qualities.at(static_cast<std::size_t>(preset)));
}

TEST(JpegOptions, OpensWithMediumQualityAndTheDefaultSubSampling) {
  EXPECT_EQ(qualityPresets[initialPreset].eng, "Medium");
  EXPECT_EQ(QualityOfPreset(initialPreset), 60);
  EXPECT_EQ(subSamplings[initialSubSampling], "2:2  [Default]");
}

TEST(JpegOptions, ShowsTheLowestPresetForEveryQualityUpTo20) {
  for (int quality = 1; quality <= 20; ++quality) EXPECT_THAT(PresetOfQuality(quality), Optional(0)) << quality;
}

TEST(JpegOptions, ShowsTheOtherPresetsForTheTwoEndsOfTheirSteps) {
  const std::vector<std::pair<int, int>> rows = {{21, 1}, {40, 1}, {41, 2}, {60, 2},
                                                 {61, 3}, {80, 3}, {81, 4}, {100, 4}};
  for (const auto& [quality, preset] : rows) EXPECT_THAT(PresetOfQuality(quality), Optional(preset)) << quality;
}

TEST(JpegOptions, LeavesThePresetAsItIsForEveryOtherQuality) {
  const std::set<int> ends{21, 40, 41, 60, 61, 80, 81, 100};
  for (int quality = 21; quality <= 100; ++quality) {
    if (!ends.contains(quality)) {
      EXPECT_EQ(PresetOfQuality(quality), std::nullopt) << quality;
    }
  }
  for (const int quality : {-1, 0, 101, 120}) EXPECT_EQ(PresetOfQuality(quality), std::nullopt) << quality;
}

TEST(JpegOptions, OffersThe16SubSamplingsInTheirOrder) {
  EXPECT_THAT(subSamplings, ElementsAre("1:1  [Max Quality]", "1:2", "2:1", "2:2  [Default]", "1:3", "3:1", "2:3",
                                        "3:2", "3:3", "1:4", "4:1", "2:4", "4:2", "3:4", "4:3", "4:4  [Max Compress]"));
}

TEST(JpegOptions, ReadsTheFactorsFromTheFirstAndThirdCharacters) {
  const std::vector<SamplingFactors> factors = {{1, 1}, {1, 2}, {2, 1}, {2, 2}, {1, 3}, {3, 1}, {2, 3}, {3, 2},
                                                {3, 3}, {1, 4}, {4, 1}, {2, 4}, {4, 2}, {3, 4}, {4, 3}, {4, 4}};
  for (std::size_t i = 0; i < subSamplings.size(); ++i) EXPECT_EQ(LuminanceOf(subSamplings[i]), factors[i]) << i;
}

TEST(JpegOptions, SetsTheFactorsForLuminanceAndOneForChroma) {
  EXPECT_THAT(SamplingOf("2:1", false),
              ElementsAre(SamplingFactors{2, 1}, SamplingFactors{1, 1}, SamplingFactors{1, 1}));
}

TEST(JpegOptions, LeavesChromaOutForGreyscaleWhateverTheSubSampling) {
  for (const std::string_view item : subSamplings)
    EXPECT_THAT(SamplingOf(item, true),
                ElementsAre(SamplingFactors{1, 1}, SamplingFactors{0, 0}, SamplingFactors{0, 0}));
}

void ExpectText(const Text& text, std::string_view eng, std::string_view chs, std::string_view cht) {
  EXPECT_EQ(text.eng, eng);
  EXPECT_EQ(text.chs, chs);
  EXPECT_EQ(text.cht, cht);
}

const Text& TextOf(std::span<const FormText> texts, int id) {
  return std::ranges::find(texts, id, &FormText::id)->text;
}

TEST(JpegOptions, NamesThePresetsInThreeLanguages) {
  ExpectText(qualityPresets[0], "Lowest", "最小", "最小");
  ExpectText(qualityPresets[1], "Low", "小", "小");
  ExpectText(qualityPresets[2], "Medium", "正常", "正常");
  ExpectText(qualityPresets[3], "High", "高", "高");
  ExpectText(qualityPresets[4], "Highest", "最高", "最高");
}

TEST(JpegOptions, NamesTheControlsInThreeLanguages) {
  ExpectText(TextOf(saveJpgTexts, formCaption), "JPEG Compression Settings", "JPEG 压缩选项", "JPEG 壓縮選項");
  ExpectText(TextOf(saveJpgTexts, fSaveJPG_Label2), "Small", "小", "小");
  ExpectText(TextOf(saveJpgTexts, fSaveJPG_Label3), "Large", "大", "大");
  ExpectText(TextOf(saveJpgTexts, fSaveJPG_lblQuality), "Quality:", "品质:", "品質:");
  ExpectText(TextOf(saveJpgTexts, fSaveJPG_lblSubSample), "Sub Sampling:", "取样比例:", "取樣比例:");
  ExpectText(TextOf(saveJpgTexts, fSaveJPG_chkGreyscale), "Greyscale", "灰度", "灰度");
  ExpectText(TextOf(saveJpgTexts, fSaveJPG_cmdComment), "Co&mment", "内容", "內容");
  ExpectText(TextOf(saveJpgTexts, fSaveJPG_cmdFinish0), "&Cancel", "取消(&C)", "取消(&C)");
  ExpectText(TextOf(saveJpgTexts, fSaveJPG_cmdFinish1), "&OK", "确定(&O)", "確定(&O)");
  ExpectText(TextOf(commentTexts, formCaption), "Comment", "内容", "內容");
  ExpectText(TextOf(commentTexts, fComment_cmdFinish), "&OK", "确定(&O)", "確定(&O)");
}

}  // namespace
}  // namespace tarvik
