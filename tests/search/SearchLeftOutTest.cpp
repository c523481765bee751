// Files that a search leaves out, because their paths cannot be passed to the system.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "search/SearchDriverFixture.h"

namespace tarvik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using SearchLeftOutTest = SearchDriverTest;

TEST_F(SearchLeftOutTest, AreToldInEachLanguageOnceTheOthersAreListed) {
  AddFile("C:\\a", "one.ico", {.icons = 1});
  AddFile("C:\\a", "한글.ico", {});
  AddFile("C:\\a", "한국.ico", {});
  icons.untaken = {"C:\\a\\한글.ico", "C:\\a\\한국.ico"};
  struct Row {
    const char* language;
    const char* text;
  };
  for (const Row& row :
       {Row{"ENG",
            "box Files left out: 2. This version of Windows cannot pass on some characters of their names or of the "
            "names "
            "of their folders. The first one is:\r\nC:\\a\\한글.ico"},
        Row{"CHS",
            "box 未查找的文件：2 个。此版本的 Windows 无法处理其名称或所在文件夹名称中的某些字符。第一个是：\r\n"
            "C:\\a\\한글.ico"},
        Row{"CHT",
            "box 未查找的檔案：2 個。此版本的 Windows 無法處理其名稱或所在資料夾名稱中的某些字元。第一個是：\r\n"
            "C:\\a\\한글.ico"}}) {
    language = row.language;
    script.Clear();
    Find();
    EXPECT_THAT(script.Lines("box"), ElementsAre(row.text));
    EXPECT_EQ(script.Lines().back(), row.text);
    EXPECT_EQ(list.Count(), 1);
    EXPECT_FALSE(state.IsSearching);
  }
}

TEST_F(SearchLeftOutTest, AreToldAfterARefusalToo) {
  AddFile("C:\\a", "한글.ico", {});
  icons.untaken = {"C:\\a\\한글.ico"};
  Find();
  ASSERT_EQ(script.Lines("box").size(), 2U);
  EXPECT_EQ(script.Lines("box")[0], "box C:\\a ... contains no icons.");
  EXPECT_TRUE(script.Lines("box")[1].starts_with("box Files left out: 1."));
}

TEST_F(SearchLeftOutTest, AreForgottenByTheNextSearch) {
  AddFile("C:\\a", "한글.ico", {});
  AddFile("C:\\a", "one.ico", {.icons = 1});
  icons.untaken = {"C:\\a\\한글.ico"};
  Find();
  icons.untaken.clear();
  script.Clear();
  Find();
  EXPECT_THAT(script.Lines("box"), IsEmpty());
}

}  // namespace
}  // namespace tarvik
