// The steps of a search in their order: what is disabled, drawn and set, and when.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "search/SearchDriverFixture.h"

namespace tarvik {
namespace {

using ::testing::ElementsAre;

// A folder with two icons in one file and an animation of two steps, in one language.
struct FilledTexts {
  std::string language;
  std::string title;
  Lines count;  // the caption after each of the two files
  std::string searching;
  std::string adding1;
  std::string adding3;
  std::string added;
  std::string label;
};

Lines Optional(const std::string& start, const std::string& text) {
  return text.empty() ? Lines{} : Lines{start + text};
}

class FilledSearchTest : public SearchDriverTest, public ::testing::WithParamInterface<FilledTexts> {};

TEST_P(FilledSearchTest, RunsItsStepsInOrder) {
  const FilledTexts& texts = GetParam();
  language = texts.language;
  AddFile("C:\\a", "two.dll", {.icons = 2});
  AddFile("C:\\a", "move.ANI", {.icons = 1, .steps = 2, .stepBound = 5});

  Find();

  const Lines counting{"hourglass 1", "files of C:\\a", "count C:\\a\\two.dll"};
  const Lines trying{"extract C:\\a\\move.ANI#0", "draw C:\\a\\move.ANI#0 on window at (50,50) size 32 step 0",
                     "draw C:\\a\\move.ANI#0 on window at (50,50) size 32 step 1",
                     "draw C:\\a\\move.ANI#0 on window at (50,50) size 32 step 2", "release C:\\a\\move.ANI#0"};
  const Lines readyToList{"pointer back 1", "clear list view",    "clear grid",
                          "hourglass 1",    "size grid 32 for 4", "events"};
  const Lines drawingTwo{
      "count C:\\a\\two.dll",     "extract C:\\a\\two.dll#0", "draw C:\\a\\two.dll#0 on grid at (3,3) size 32 step 0",
      "release C:\\a\\two.dll#0", "extract C:\\a\\two.dll#1", "draw C:\\a\\two.dll#1 on grid at (41,3) size 32 step 0",
      "release C:\\a\\two.dll#1"};
  const Lines drawingMove{"extract C:\\a\\move.ANI#0", "draw C:\\a\\move.ANI#0 on grid at (79,3) size 32 step 0",
                          "draw C:\\a\\move.ANI#0 on grid at (117,3) size 32 step 1", "release C:\\a\\move.ANI#0"};
  const Lines ending{"keep picture",    "show frame (1,1)(37,37)", "enable CmdFind", "enable CmdOk",
                     "enable CmdClose", "enable mnuFile",          "enable mnuEdit", "list changed"};
  const Lines expected = Join({Starting(),
                               counting,
                               Optional("caption ", texts.count[0]),
                               trying,
                               Optional("caption ", texts.count[1]),
                               readyToList,
                               Optional("status ", texts.searching),
                               {"files of C:\\a"},
                               Optional("status ", texts.adding1),
                               drawingTwo,
                               Optional("status ", texts.adding3),
                               trying,
                               drawingMove,
                               Optional("status ", texts.added),
                               {"pointer back 1"},
                               Optional("caption ", texts.title),
                               Optional("label ", texts.label),
                               ending});
  EXPECT_EQ(script.Lines(), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Languages, FilledSearchTest,
    ::testing::Values(FilledTexts{"ENG",
                                  "Brindle Tarvik - C:\\a - 4 Icons",
                                  {"Brindle Tarvik - C:\\a - 2 Icons", "Brindle Tarvik - C:\\a - 4 Icons"},
                                  "Wait..., Searching C:\\a",
                                  "Adding 1th icon to list",
                                  "Adding 3th icon to list",
                                  "4 Icons Added. Double click an icon for enhanced view.",
                                  "Icon No 1 Selected."},
                      FilledTexts{"CHS",
                                  "Brindle Tarvik - C:\\a - 4 个图标",
                                  {"Brindle Tarvik - C:\\a - 2 个图标", "Brindle Tarvik - C:\\a - 4 个图标"},
                                  "请稍候..., 正在查找中 C:\\a",
                                  "正添加No.1到列表中",
                                  "正添加No.3到列表中",
                                  "4个图标被加入列表.双击图标可以浏览.",
                                  "选中NO.1 图标."},
                      FilledTexts{"CHT",
                                  "Brindle Tarvik - C:\\a - 4 個圖示",
                                  {"Brindle Tarvik - C:\\a - 2 個圖示", "Brindle Tarvik - C:\\a - 4 個圖示"},
                                  "请稍候..., 正在查找中 C:\\a",
                                  "正添加No.1到列表中",
                                  "正添加No.3到列表中",
                                  "4個圖示被加入列表.雙擊圖示可以流覽.",
                                  "選中NO.1 圖示."},
                      FilledTexts{"CHI", "", {"", ""}, "", "", "", "", ""}),
    [](const auto& instance) { return instance.param.language; });

// A search that lists nothing: how many icons there are, the limit, and the box in one language.
struct RefusedCase {
  std::string name;
  std::string language;
  int icons;
  std::string caption;
  std::string box;
};

class RefusedSearchTest : public SearchDriverTest, public ::testing::WithParamInterface<RefusedCase> {};

TEST_P(RefusedSearchTest, RunsItsStepsInOrder) {
  const RefusedCase& refused = GetParam();
  language = refused.language;
  window.max = "400";
  state.Geometry.MaxLimit = 4000;
  AddFile("C:\\a", "x.dll", {.icons = refused.icons});

  Find();

  EXPECT_EQ(script.Lines(), Join({Starting(),
                                  {"hourglass 1", "files of C:\\a", "count C:\\a\\x.dll"},
                                  Optional("caption ", refused.caption),
                                  {"pointer back 1", "clear list view"},
                                  Optional("box ", refused.box),
                                  Refusing()}));
  EXPECT_EQ(list.Count(), 0);
  EXPECT_FALSE(state.IsSearching);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, RefusedSearchTest,
    ::testing::Values(
        RefusedCase{"EmptyEnglish", "ENG", 0, "Brindle Tarvik - C:\\a - 0 Icons", "C:\\a ... contains no icons."},
        RefusedCase{"EmptySimplified", "CHS", 0, "Brindle Tarvik - C:\\a - 0 个图标", "C:\\a中没有图标."},
        RefusedCase{"EmptyTraditional", "CHT", 0, "Brindle Tarvik - C:\\a - 0 個圖示", "C:\\a中沒有圖示."},
        RefusedCase{"EmptyUnknown", "CHI", 0, "", ""},
        RefusedCase{"RaiseEnglish", "ENG", 401, "Brindle Tarvik - C:\\a - 401 Icons",
                    "Found 401 icons.\r\nOnce search only support Maximum 400 icons!\r\nTry again after increasing  "
                    "icons number of list."},
        RefusedCase{"RaiseSimplified", "CHS", 401, "Brindle Tarvik - C:\\a - 401 个图标",
                    "共搜索到401个图标.\r\n每次搜索只支持最大400个图标,请增大每次搜索图标数再重试!"},
        RefusedCase{"RaiseTraditional", "CHT", 401, "Brindle Tarvik - C:\\a - 401 個圖示",
                    "共搜索到401個圖示.\r\n每次搜索只支援最大400個圖示,請增大每次搜索圖示數再重試!"},
        RefusedCase{"RaiseUnknown", "xyz", 401, "", ""},
        RefusedCase{"RaiseOneBelowTheUpperEnd", "ENG", 3999, "Brindle Tarvik - C:\\a - 3999 Icons",
                    "Found 3999 icons.\r\nOnce search only support Maximum 400 icons!\r\nTry again after increasing  "
                    "icons number of list."},
        RefusedCase{"NarrowEnglish", "ENG", 4000, "Brindle Tarvik - C:\\a - 4000 Icons",
                    "Found 4000 icons.\r\nOnce search only support Maximum 4000 icons!"},
        RefusedCase{"NarrowSimplified", "CHS", 4001, "Brindle Tarvik - C:\\a - 4001 个图标",
                    "共搜索到4001个图标.\r\n每次搜索只支持最大4000个图标,请缩小目录层次后再重试!"},
        RefusedCase{"NarrowTraditional", "CHT", 4001, "Brindle Tarvik - C:\\a - 4001 個圖示",
                    "共搜索到4001個圖示.\r\n每次搜索只支援最大4000個圖示,請縮小目錄層次後再重試!"},
        RefusedCase{"NarrowUnknown", "", 4001, "", ""}),
    [](const auto& instance) { return instance.param.name; });

}  // namespace
}  // namespace tarvik
