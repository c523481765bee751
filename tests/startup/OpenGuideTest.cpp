#include "startup/OpenGuide.h"

#include <gtest/gtest.h>

#include "forms/BoxWatcher.h"
#include "platform/TemporaryFolder.h"

namespace tarvik {
namespace {

struct Row {
  const char* code;
  const char* text;
  const char* title;
  const char* page;
};

TEST(OpenGuide, SaysInEachLanguageThatAGuideIsMissing) {
  const Row rows[] = {{"ENG", "The user's guide could not be opened. Installing the program again brings it back.",
                       "Brindle Tarvik - Error", "guide-eng.html"},
                      {"CHS", "无法打开用户指南。重新安装本程序即可恢复。", "Brindle Tarvik - 错误", "guide-chs.html"},
                      {"CHT", "無法開啟使用指南。重新安裝本程式即可復原。", "Brindle Tarvik - 錯誤", "guide-cht.html"}};
  const testing::TemporaryFolder folder;
  for (const Row& row : rows) {
    const testing::BoxWatcher boxes;
    OpenGuide(nullptr, folder.Path(), row.code);
    ASSERT_EQ(boxes.Boxes().size(), 1U) << row.code;
    EXPECT_EQ(boxes.Boxes()[0].title, row.title);
    EXPECT_EQ(boxes.Boxes()[0].text, std::string(row.text) + "\r\n\r\n" + folder.Path() + "\\guide\\" + row.page);
  }
}

TEST(OpenGuide, SaysNothingInAnUnknownLanguage) {
  const testing::TemporaryFolder folder;
  const testing::BoxWatcher boxes;
  OpenGuide(nullptr, folder.Path(), "CHI");
  EXPECT_TRUE(boxes.Boxes().empty());
}

}  // namespace
}  // namespace tarvik
