#include "view/ViewTexts.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace tarvik {
namespace {

TEST(ViewCaption, TellsHeightAndWidthInThreeLanguages) {
  EXPECT_EQ(ViewCaption(160, 320, "ENG"), "Enhanced View - [Height=160, Width=320]");
  EXPECT_EQ(ViewCaption(160, 320, "CHS"), "浏览窗口 - [高度=160, 宽度=320]");
  EXPECT_EQ(ViewCaption(160, 320, "CHT"), "流覽窗口 - [高度=160, 寬度=320]");
}

TEST(ViewCaption, IsNothingInAnUnknownLanguage) {
  for (const char* code : {"", "CHI", "eng", " CH"}) EXPECT_EQ(ViewCaption(1, 1, code), std::nullopt) << code;
}

TEST(SourceText, IsPathAndIndex) {
  EXPECT_EQ(SourceText({"C:\\图标\\a.dll", 12}), "C:\\图标\\a.dll - 12");
  EXPECT_EQ(SourceText({"C:\\%1.ani", 0}), "C:\\%1.ani - 0");
}

TEST(ViewTooltips, StandForEightButtonsInThreeLanguages) {
  struct Row {
    std::string eng, chs, cht;
  };
  const std::map<int, Row> expected{{frmBit_tlb_control_MoveFirst, {"First", "第一张", "第一張"}},
                                    {frmBit_tlb_control_MoveLast, {"Last", "最后一张", "最後一張"}},
                                    {frmBit_tlb_control_MovePrev, {"Back", "上一张", "上一張"}},
                                    {frmBit_tlb_control_MoveNext, {"Forward", "下一张", "下一張"}},
                                    {frmBit_tlb_control_Start, {"Start", "开始", "開始"}},
                                    {frmBit_tlb_control_Stop, {"Stop", "停止", "停止"}},
                                    {frmBit_tlb_control_Slower, {"Slower", "减慢", "減慢"}},
                                    {frmBit_tlb_control_Faster, {"Faster", "加快", "加快"}}};
  ASSERT_EQ(viewTooltips.size(), expected.size());
  for (const FormText& row : viewTooltips) {
    const Row& texts = expected.at(row.id);
    EXPECT_EQ(row.text.eng, texts.eng);
    EXPECT_EQ(row.text.chs, texts.chs);
    EXPECT_EQ(row.text.cht, texts.cht);
  }
}

}  // namespace
}  // namespace tarvik
