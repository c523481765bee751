#include "startup/OpenGuide.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cwchar>
#include <span>
#include <string>

#include "base/NonCopyable.h"
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

// Checks OpenGuide's message about each row's page, which is below `folder`.
void ExpectMessages(std::span<const Row> rows, const support::TemporaryFolder& folder) {
  for (const Row& row : rows) {
    const support::BoxWatcher boxes;
    OpenGuide(nullptr, folder.Path(), row.code);
    ASSERT_EQ(boxes.Boxes().size(), 1U) << row.code;
    EXPECT_EQ(boxes.Boxes()[0].title, row.title);
    EXPECT_EQ(boxes.Boxes()[0].text, std::string(row.text) + "\r\n\r\n" + folder.Path() + "\\guide\\" + row.page);
  }
}

// Registers web pages as a file type that no program opens.
class NothingOpensPages : NonCopyable {
 public:
  NothingOpensPages() {
    DWORD bytes = sizeof former_;
    known_ = RegGetValueW(HKEY_LOCAL_MACHINE, key, nullptr, RRF_RT_REG_SZ, nullptr, former_, &bytes) == ERROR_SUCCESS;
    Name(L"PageThatNothingOpens");
  }
  ~NothingOpensPages() {
    if (known_)
      Name(former_);
    else
      RegDeleteKeyW(HKEY_LOCAL_MACHINE, key);
  }

 private:
  static void Name(const wchar_t* kind) {
    const auto bytes = static_cast<DWORD>((std::wcslen(kind) + 1) * sizeof(wchar_t));
    ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, nullptr, REG_SZ, kind, bytes), ERROR_SUCCESS);
  }

  static constexpr const wchar_t* key = L"Software\\Classes\\.html";
  wchar_t former_[100] = {};
  bool known_;
};

TEST(OpenGuide, SaysInEachLanguageThatAGuideIsMissing) {
  const Row rows[] = {{"ENG", "The user's guide is missing. Installing the program again brings it back.",
                       "Brindle Tarvik - Error", "guide-eng.html"},
                      {"CHS", "找不到用户指南。重新安装本程序即可恢复。", "Brindle Tarvik - 错误", "guide-chs.html"},
                      {"CHT", "找不到使用指南。重新安裝本程式即可復原。", "Brindle Tarvik - 錯誤", "guide-cht.html"}};
  const support::TemporaryFolder folder;
  ExpectMessages(rows, folder);
}

TEST(OpenGuide, SaysInEachLanguageThatNothingOpensTheGuide) {
  const Row rows[] = {
      {"ENG", "The user's guide could not be opened, because no web browser took it. Its page is here:",
       "Brindle Tarvik - Error", "guide-eng.html"},
      {"CHS", "无法打开用户指南，因为没有可用的网页浏览器。页面位于：", "Brindle Tarvik - 错误", "guide-chs.html"},
      {"CHT", "無法開啟使用指南，因為沒有可用的網頁瀏覽器。頁面位於：", "Brindle Tarvik - 錯誤", "guide-cht.html"}};
  const support::TemporaryFolder folder;
  folder.MakeFolder("guide");
  for (const Row& row : rows) folder.MakeFile(std::string("guide\\") + row.page);
  const NothingOpensPages nothing;
  ExpectMessages(rows, folder);
}

TEST(OpenGuide, SaysNothingInAnUnknownLanguage) {
  const support::TemporaryFolder folder;
  const support::BoxWatcher boxes;
  OpenGuide(nullptr, folder.Path(), "CHI");
  EXPECT_TRUE(boxes.Boxes().empty());
}

}  // namespace
}  // namespace tarvik
