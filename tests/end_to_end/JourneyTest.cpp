// From the first start of the program to the next one, once in each language.

#include "end_to_end/Journey.h"

namespace tarvik::end_to_end {
namespace {

// The other texts of the menus and dialogs are tested one by one elsewhere.
constexpr Tongue tongues[] = {
    {"ENG", "icons", "saved", "flower", "Finds the icons stored in your files and saves them.", "Brindle Tarvik",
     "Found ", " icons.\r\nOnce search only support Maximum ",
     " icons!\r\nTry again after increasing  icons number of list.", " Icons", "Enhanced View - [Height=96, Width=96]"},
    {"CHS", "图标", "保存", "花", "查找并保存文件中的图标。", "布林德图标搜索", "共搜索到",
     "个图标.\r\n每次搜索只支持最大", "个图标,请增大每次搜索图标数再重试!", " 个图标", "浏览窗口 - [高度=96, 宽度=96]"},
    {"CHT", "圖示", "儲存", "花", "尋找並儲存檔案中的圖示。", "布林德圖示搜尋", "共搜索到",
     "個圖示.\r\n每次搜索只支援最大", "個圖示,請增大每次搜索圖示數再重試!", " 個圖示", "流覽窗口 - [高度=96, 寬度=96]"},
};

TEST_P(Journey, FromTheFirstStartToTheNext) {
  const LanguageValue language(tongue_.code);
  StartUp();
  ChooseFolder();
  ChooseTypes();
  Search();
  LookAtMenus();
  LookAtOneIcon();
  Select();
  SaveOneIcon();
  SaveMany();
  CopyIcon();
  ReadTheGuide();
  AskForAMissingGuide();
  LookAtTheAboutBox();
  Leave();
  EXPECT_EQ(program_.WaitForEnd(), 0U);
  ComeBack();
}

INSTANTIATE_TEST_SUITE_P(Languages, Journey, ::testing::ValuesIn(tongues),
                         [](const auto& row) { return std::string(row.param.code); });

}  // namespace
}  // namespace tarvik::end_to_end
