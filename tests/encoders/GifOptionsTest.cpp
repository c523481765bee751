#include "encoders/GifOptions.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "encoders/FrmConvertGIFTexts.h"

namespace tarvik {
namespace {

TEST(GifOptions, ShowsTheSizeInThousandsOfBytesWithTheDecimalsItHas) {
  const std::vector<std::pair<std::uint64_t, std::string>> rows = {
      {0, "0"},
      {1, "0.001"},
      {10, "0.01"},
      {100, "0.1"},
      {999, "0.999"},
      {1000, "1"},
      {1001, "1.001"},
      {1050, "1.05"},
      {1078, "1.078"},
      {1500, "1.5"},
      {20000, "20"},
      {1000000, "1000"},
      {1234567, "1234.567"},
      {4294967296, "4294967.296"},
  };
  for (const auto& [bytes, size] : rows)
    EXPECT_EQ(CaptionWithSize(bytes), "Convert File To Gif  ( Its size is " + size + "K)");
}

void ExpectText(const Text& text, std::string_view eng, std::string_view chs, std::string_view cht) {
  EXPECT_EQ(text.eng, eng);
  EXPECT_EQ(text.chs, chs);
  EXPECT_EQ(text.cht, cht);
}

const Text& TextOf(int id) {
  return std::ranges::find(convertGifTexts, id, &FormText::id)->text;
}

TEST(GifOptions, NamesTheControlsInThreeLanguages) {
  ExpectText(TextOf(formCaption), "Convert File To Gif", "另存为Gif", "另存為Gif");
  ExpectText(TextOf(FrmConvertGIF_Check1), "Save &transparent", "透明", "透明");
  ExpectText(TextOf(FrmConvertGIF_Option1), "&Pallate [Best Quality]", "设计 [高质量]", "設計 [高品質]");
  ExpectText(TextOf(FrmConvertGIF_Option2), "For &Web [Normal Quality]", "Web [普通]", "Web [普通]");
  ExpectText(TextOf(FrmConvertGIF_Frame1), "Options", "选项", "選項");
  ExpectText(TextOf(FrmConvertGIF_CmdOk), "&OK", "确定(&O)", "確定(&O)");
  ExpectText(TextOf(FrmConvertGIF_CmdCancel), "&Cancel", "取消(&C)", "取消(&C)");
}

}  // namespace
}  // namespace tarvik
