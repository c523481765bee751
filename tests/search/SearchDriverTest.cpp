#include "search/SearchDriver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "numbers/RuntimeError.h"
#include "search/FakeSearch.h"

namespace tarvik {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Lines = std::vector<std::string>;

Lines Starting() {
  return {"close enhanced view", "disable CmdFind", "disable CmdOk",
          "disable CmdClose",    "disable mnuFile", "disable mnuEdit"};
}

Lines Refusing() {
  return {"enable CmdFind", "enable CmdClose", "disable CmdOk", "disable mnuFile", "disable mnuEdit", "clear grid"};
}

Lines Joined(std::initializer_list<Lines> pieces) {
  Lines all;
  for (const Lines& piece : pieces) all.insert(all.end(), piece.begin(), piece.end());
  return all;
}

class SearchDriverTest : public ::testing::Test {
 protected:
  SearchDriverTest() { PointAt("C:\\a"); }

  void PointAt(const std::string& folder) {
    window.dir1 = folder;
    window.file1 = folder;
  }
  void AddFile(const std::string& folder, const std::string& name, FakeFile file) {
    window.folders[folder].files.push_back(name);
    icons.files[folder + "\\" + name] = file;
  }
  void AddSubFolder(const std::string& folder, const std::string& subFolder) {
    window.folders[folder].subFolders.push_back(subFolder);
  }
  void Find() { driver.CmdFind_Click(); }

  Script script;
  FakeSearchWindow window{script};
  FakeIcons icons{script};
  IconList list;
  SearchState state;
  std::string language{english};
  SearchDriver driver{window, icons, list, state, language};
};

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

  const Lines counting{"files of C:\\a", "count C:\\a\\two.dll"};
  const Lines trying{"extract C:\\a\\move.ANI#0", "draw C:\\a\\move.ANI#0 on window at (50,50) size 32 step 0",
                     "draw C:\\a\\move.ANI#0 on window at (50,50) size 32 step 1",
                     "draw C:\\a\\move.ANI#0 on window at (50,50) size 32 step 2", "release C:\\a\\move.ANI#0"};
  const Lines readyToList{"clear list view", "clear grid", "size grid 190 still",
                          "scroll to top",   "events",     "hourglass 1"};
  const Lines drawingTwo{
      "count C:\\a\\two.dll",     "extract C:\\a\\two.dll#0", "draw C:\\a\\two.dll#0 on grid at (3,3) size 32 step 0",
      "release C:\\a\\two.dll#0", "extract C:\\a\\two.dll#1", "draw C:\\a\\two.dll#1 on grid at (41,3) size 32 step 0",
      "release C:\\a\\two.dll#1"};
  const Lines drawingMove{"extract C:\\a\\move.ANI#0", "draw C:\\a\\move.ANI#0 on grid at (79,3) size 32 step 0",
                          "draw C:\\a\\move.ANI#0 on grid at (117,3) size 32 step 1", "release C:\\a\\move.ANI#0"};
  const Lines ending{"keep picture",   "show frame (1,1)(37,37)", "enable CmdFind", "enable CmdOk", "enable CmdClose",
                     "enable mnuFile", "enable mnuEdit",          "save menus",     "list changed"};
  const Lines expected = Joined({Starting(),
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
                                 {"list changed"},
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
  window.upperEnd = 4000;
  AddFile("C:\\a", "x.dll", {.icons = refused.icons});

  Find();

  EXPECT_EQ(script.Lines(), Joined({Starting(),
                                    {"files of C:\\a", "count C:\\a\\x.dll"},
                                    Optional("caption ", refused.caption),
                                    {"clear list view"},
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

TEST_F(SearchDriverTest, ListsEverythingAtExactlyTheLimit) {
  window.max = "400";
  state.Geometry = gridGeometries[0];
  AddFile("C:\\a", "x.dll", {.icons = 400});
  Find();
  EXPECT_EQ(list.Count(), 400);
  EXPECT_THAT(script.Lines("box"), IsEmpty());
}

TEST_F(SearchDriverTest, NumbersTheIconsOfAFileFromZero) {
  AddFile("C:\\a", "three.dll", {.icons = 3});
  Find();
  ASSERT_EQ(list.Count(), 3);
  for (int number = 1; number <= 3; ++number) {
    EXPECT_EQ(list.Item(number).path, "C:\\a\\three.dll");
    EXPECT_EQ(list.Item(number).index, number - 1);
  }
}

TEST_F(SearchDriverTest, ListsEachStepOfAnAnimationAndTakesItsIconOnce) {
  AddFile("C:\\a", "eight.ani", {.icons = 1, .steps = 8, .stepBound = 8});
  Find();
  ASSERT_EQ(list.Count(), 8);
  Lines drawn;
  for (int step = 0; step < 8; ++step) {
    EXPECT_EQ(list.Item(step + 1), (IconListEntry{"C:\\a\\eight.ani", step, step == 0}));
    drawn.push_back("draw C:\\a\\eight.ani#0 on grid at (" + std::to_string(3 + 38 * step) + ",3) size 32 step " +
                    std::to_string(step));
  }
  EXPECT_EQ(script.Lines("draw C:\\a\\eight.ani#0 on grid"), drawn);
  EXPECT_EQ(script.Lines("extract").size(), 3U) << "once for each count, once for drawing";
  EXPECT_EQ(script.Lines("release").size(), 3U);
}

TEST_F(SearchDriverTest, LeavesTheStateOfAFilledSearchBehind) {
  state.CurrentIndex = 7;
  state.FrameX = 77;
  state.FrameY = 115;
  AddFile("C:\\a", "x.dll", {.icons = 20});
  Find();
  EXPECT_EQ(state.IconCount, 20);
  EXPECT_EQ(state.NextIconNumber, 21);
  EXPECT_EQ(state.CurrentIndex, 0);
  EXPECT_EQ(state.FrameX, 1);
  EXPECT_EQ(state.FrameY, 1);
  EXPECT_FALSE(state.IsSearching);
  EXPECT_TRUE(list.Item(1).selected);
  EXPECT_FALSE(list.Item(2).selected);
}

TEST_F(SearchDriverTest, DrawsTheFirstIconOfTheSecondRowAtTheLeft) {
  AddFile("C:\\a", "x.dll", {.icons = 20});
  Find();
  EXPECT_THAT(script.Lines(), Contains("draw C:\\a\\x.dll#14 on grid at (535,3) size 32 step 0"));
  EXPECT_THAT(script.Lines(), Contains("draw C:\\a\\x.dll#15 on grid at (3,41) size 32 step 0"));
}

TEST_F(SearchDriverTest, DrawsTheFirstFrameToTheExtentOfEachSize) {
  const Lines frames{"show frame (1,1)(21,21)", "show frame (1,1)(37,37)", "show frame (1,1)(53,53)",
                     "show frame (1,1)(69,69)"};
  AddFile("C:\\a", "x.dll", {.icons = 1});
  for (std::size_t size = 0; size < gridGeometries.size(); ++size) {
    state.Geometry = gridGeometries[size];
    script.Clear();
    Find();
    EXPECT_THAT(script.Lines("show frame"), ElementsAre(frames[size]));
  }
}

TEST_F(SearchDriverTest, SizesTheGridBeforeDrawing) {
  AddFile("C:\\a", "x.dll", {.icons = 90});
  Find();
  EXPECT_THAT(script.Lines("size grid"), ElementsAre("size grid 228 scrolls 38"));
}

TEST_F(SearchDriverTest, SearchesWhileItYieldsAndNoLongerWhenTheMenusAreSet) {
  std::vector<bool> searching;
  window.onEvents = [&] { searching.push_back(state.IsSearching); };
  window.onSaveMenus = [&] { searching.push_back(state.IsSearching); };
  AddFile("C:\\a", "x.dll", {.icons = 1});
  Find();
  EXPECT_THAT(searching, ElementsAre(true, false));
}

TEST_F(SearchDriverTest, StartsNoSecondSearchWhileOneRuns) {
  window.onEvents = [&] { Find(); };
  AddFile("C:\\a", "x.dll", {.icons = 1});
  Find();
  EXPECT_EQ(script.Lines("close enhanced view").size(), 1U);
  EXPECT_EQ(list.Count(), 1);
}

TEST_F(SearchDriverTest, ForgetsTheFormerSearch) {
  AddFile("C:\\a", "x.dll", {.icons = 5});
  Find();
  PointAt("C:\\b");
  AddFile("C:\\b", "y.dll", {.icons = 2});
  Find();
  EXPECT_EQ(list.Count(), 2);
  EXPECT_EQ(list.Item(1).path, "C:\\b\\y.dll");
  EXPECT_EQ(state.NextIconNumber, 3);
  EXPECT_EQ(state.IconCount, 2);
}

TEST_F(SearchDriverTest, CutsThePathOfTheNoIconsBoxAtTwentyCharacters) {
  PointAt("C:\\Program Files\\Common Files");
  Find();
  EXPECT_THAT(script.Lines("box"), ElementsAre("box C:\\Program Files\\Com ... contains no icons."));
}

TEST_F(SearchDriverTest, CountsCharactersAndNotBytesForTheNoIconsBox) {
  PointAt("C:\\图标图标图标图标图标图标图标图标图标🎨末尾");
  Find();
  EXPECT_THAT(script.Lines("box"), ElementsAre("box C:\\图标图标图标图标图标图标图标图标图 ... contains no icons."));
}

TEST_F(SearchDriverTest, KeepsTheBackslashOfADrivesRoot) {
  PointAt("C:\\");
  AddFile("C:\\", "x.ico", {});
  icons.files["C:\\\\x.ico"] = {.icons = 1};
  Find();
  ASSERT_EQ(list.Count(), 1);
  EXPECT_EQ(list.Item(1).path, "C:\\\\x.ico");
}

TEST_F(SearchDriverTest, SaysWhichFilesAreAnimated) {
  std::vector<bool> animated;
  class Spy : public FakeIcons {
   public:
    Spy(Script& script, SearchState& state, std::vector<bool>& seen) : FakeIcons(script), state_(state), seen_(seen) {}
    int CountIcons(const std::string& path) override {
      seen_.push_back(state_.IsAnimatedFile);
      return FakeIcons::CountIcons(path);
    }
    std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override {
      seen_.push_back(state_.IsAnimatedFile);
      return FakeIcons::Extract(path, index);
    }

   private:
    SearchState& state_;
    std::vector<bool>& seen_;
  };
  Spy spy(script, state, animated);
  spy.files["C:\\a\\m.Ani"] = {.icons = 1};
  spy.files["C:\\a\\x.ico"] = {.icons = 1};
  window.folders["C:\\a"].files = {"m.Ani", "x.ico"};
  SearchDriver(window, spy, list, state, language).CmdFind_Click();
  EXPECT_THAT(animated, ElementsAre(true, false, true, true, false, false));
}

// Icons that do not come out.

TEST_F(SearchDriverTest, ListsAnIconThatItsFileDoesNotYieldAndLeavesItsCellEmpty) {
  AddFile("C:\\a", "broken.dll", {.icons = 2, .yields = false});
  AddFile("C:\\a", "good.dll", {.icons = 1});
  Find();
  EXPECT_EQ(list.Count(), 3);
  EXPECT_THAT(script.Lines("draw"), ElementsAre("draw C:\\a\\good.dll#0 on grid at (79,3) size 32 step 0"));
}

TEST_F(SearchDriverTest, FindsNothingInAnAnimationThatYieldsNoPicture) {
  AddFile("C:\\a", "broken.ani", {.icons = 1, .yields = false});
  Find();
  EXPECT_EQ(list.Count(), 0);
  EXPECT_THAT(script.Lines("box"), ElementsAre("box C:\\a ... contains no icons."));
}

TEST_F(SearchDriverTest, ListsTheStepsOfAnAnimationWhosePictureIsGoneWhenItIsDrawn) {
  class Vanishing : public FakeIcons {
   public:
    using FakeIcons::FakeIcons;
    std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override {
      return ++extracted_ == 3 ? nullptr : FakeIcons::Extract(path, index);
    }

   private:
    int extracted_ = 0;
  };
  Vanishing vanishing(script);
  vanishing.files["C:\\a\\m.ani"] = {.icons = 1, .steps = 2, .stepBound = 2};
  window.folders["C:\\a"].files = {"m.ani"};
  SearchDriver(window, vanishing, list, state, language).CmdFind_Click();
  EXPECT_EQ(list.Count(), 2);
  EXPECT_THAT(script.Lines("draw C:\\a\\m.ani#0 on grid"), IsEmpty());
}

TEST_F(SearchDriverTest, SelectsNothingWhenTheCountedFilesAreGone) {
  AddFile("C:\\a", "x.dll", {.icons = 2});
  window.onEvents = [&] { window.folders["C:\\a"].files.clear(); };
  Find();
  EXPECT_EQ(list.Count(), 0);
  EXPECT_FALSE(state.IsSearching);
}

TEST_F(SearchDriverTest, CountsStepsUntilOneFails) {
  icons.files["C:\\m.ani"] = {.icons = 1, .steps = 3, .stepBound = 99};
  EXPECT_EQ(driver.CountAnimationFrames("C:\\m.ani"), 3);
  EXPECT_EQ(script.Lines("draw").size(), 4U);
}

TEST_F(SearchDriverTest, CountsNoMoreStepsThanThePictureCanHave) {
  icons.files["C:\\still.ani"] = {.icons = 1, .steps = 1000000, .stepBound = 1};
  EXPECT_EQ(driver.CountAnimationFrames("C:\\still.ani"), 1);
  EXPECT_EQ(script.Lines("draw").size(), 1U);
}

TEST_F(SearchDriverTest, CountsNoStepWhereTheFirstCannotBeDrawn) {
  icons.files["C:\\m.ani"] = {.icons = 1, .steps = 0, .stepBound = 9};
  EXPECT_EQ(driver.CountAnimationFrames("C:\\m.ani"), 0);
}

// The walk.

class SearchWalkTest : public SearchDriverTest {
 protected:
  SearchWalkTest() {
    window.subDir = true;
    AddSubFolder("C:\\a", "C:\\a\\b");
    AddSubFolder("C:\\a", "C:\\a\\d");
    AddSubFolder("C:\\a\\b", "C:\\a\\b\\c");
    AddFile("C:\\a", "1.dll", {.icons = 1});
    AddFile("C:\\a\\b", "2.dll", {.icons = 2});
    AddFile("C:\\a\\b\\c", "3.dll", {.icons = 3});
    AddFile("C:\\a\\d", "4.dll", {.icons = 4});
  }

  // What the walk did to the two lists, and where the second pass starts.
  Lines Moves() const {
    Lines moves;
    for (const std::string& line : script.Lines()) {
      for (const std::string start : {"Dir1 ", "File1 ", "files of ", "sub-folders of ", "clear grid"}) {
        if (line.starts_with(start)) moves.push_back(line);
      }
    }
    return moves;
  }
};

TEST_F(SearchWalkTest, MovesTheListsThroughEachFolderInOrderInBothPasses) {
  const Lines pass{
      "File1 C:\\a",       "files of C:\\a",       "Dir1 C:\\a",       "sub-folders of C:\\a",       "Dir1 C:\\a",
      "File1 C:\\a\\b",    "files of C:\\a\\b",    "Dir1 C:\\a\\b",    "sub-folders of C:\\a\\b",    "Dir1 C:\\a\\b",
      "File1 C:\\a\\b\\c", "files of C:\\a\\b\\c", "Dir1 C:\\a\\b\\c", "sub-folders of C:\\a\\b\\c", "Dir1 C:\\a",
      "File1 C:\\a\\d",    "files of C:\\a\\d",    "Dir1 C:\\a\\d",    "sub-folders of C:\\a\\d",    "Dir1 C:\\a"};
  Find();
  EXPECT_EQ(Moves(), Joined({pass, {"clear grid"}, pass}));
  EXPECT_EQ(window.dir1, "C:\\a");
  EXPECT_EQ(window.file1, "C:\\a");
}

TEST_F(SearchWalkTest, ListsInTheOrderOfTheWalk) {
  Find();
  Lines paths;
  for (int number = 1; number <= list.Count(); ++number) paths.push_back(list.Item(number).path);
  EXPECT_THAT(paths, ElementsAre("C:\\a\\1.dll", "C:\\a\\b\\2.dll", "C:\\a\\b\\2.dll", "C:\\a\\b\\c\\3.dll",
                                 "C:\\a\\b\\c\\3.dll", "C:\\a\\b\\c\\3.dll", "C:\\a\\d\\4.dll", "C:\\a\\d\\4.dll",
                                 "C:\\a\\d\\4.dll", "C:\\a\\d\\4.dll"));
}

// Dir1 still stands at the parent when a nested folder is searched.
TEST_F(SearchWalkTest, ShowsTheFolderThatDir1StandsAt) {
  Find();
  EXPECT_THAT(script.Lines("status Wait"),
              ElementsAre("status Wait..., Searching C:\\a", "status Wait..., Searching C:\\a",
                          "status Wait..., Searching C:\\a\\b", "status Wait..., Searching C:\\a"));
  EXPECT_THAT(script.Lines("caption"),
              ElementsAre("caption Brindle Tarvik - C:\\a - 1 Icons", "caption Brindle Tarvik - C:\\a - 3 Icons",
                          "caption Brindle Tarvik - C:\\a\\b - 6 Icons", "caption Brindle Tarvik - C:\\a - 10 Icons",
                          "caption Brindle Tarvik - C:\\a - 10 Icons"));
}

TEST_F(SearchWalkTest, SaysTheCountSoFarAfterEachFolderIsLeft) {
  Find();
  EXPECT_THAT(script.Lines("status 6"), ElementsAre("status 6 Icons Added. Double click an icon for enhanced view.",
                                                    "status 6 Icons Added. Double click an icon for enhanced view."));
  EXPECT_THAT(script.Lines("status 10"), ElementsAre("status 10 Icons Added. Double click an icon for enhanced view.",
                                                     "status 10 Icons Added. Double click an icon for enhanced view."));
}

TEST_F(SearchWalkTest, SizesScrollsAndYieldsOncePerFolderWhileListing) {
  Find();
  EXPECT_EQ(script.Lines("size grid").size(), 4U);
  EXPECT_EQ(script.Lines("scroll to top").size(), 4U);
  EXPECT_EQ(script.Lines("events").size(), 4U);
}

TEST_F(SearchWalkTest, PutsEachPointerBackAfterThoseOfTheFoldersInside) {
  Find();
  Lines pointers;
  for (const std::string& line : script.Lines()) {
    if (line.starts_with("hourglass") || line.starts_with("pointer")) pointers.push_back(line);
  }
  EXPECT_THAT(pointers, ElementsAre("hourglass 1", "hourglass 2", "hourglass 3", "pointer back 3", "pointer back 2",
                                    "hourglass 2", "pointer back 2", "pointer back 1"));
}

TEST_F(SearchWalkTest, ReadsTheSubFoldersOfAFolderOnceAPass) {
  for (int i = 0; i < 1000; ++i) AddSubFolder("C:\\a", "C:\\a\\side" + std::to_string(i));
  Find();
  EXPECT_THAT(script.Lines("sub-folders of C:\\a"), testing::SizeIs(2 * (1 + 3 + 1000)));
}

TEST_F(SearchWalkTest, GoesDeeperThanACallStackReaches) {
  window.folders.clear();
  AddFile("C:\\a", "1.dll", {.icons = 1});
  std::string folder = "C:\\a";
  for (int depth = 0; depth < 20000; ++depth) {
    const std::string inside = "C:\\a\\" + std::to_string(depth);
    AddSubFolder(folder, inside);
    folder = inside;
  }
  AddFile(folder, "last.dll", {.icons = 1});
  Find();
  ASSERT_EQ(list.Count(), 2);
  EXPECT_EQ(list.Item(2).path, "C:\\a\\19999\\last.dll");
}

TEST_F(SearchWalkTest, NamesTheStartingFolderInTheNoIconsBox) {
  icons.files.clear();
  Find();
  EXPECT_THAT(script.Lines("box"), ElementsAre("box C:\\a ... contains no icons."));
  EXPECT_EQ(window.dir1, "C:\\a");
}

TEST_F(SearchWalkTest, StaysInTheFilesFolderWithoutSubFolders) {
  window.subDir = false;
  Find();
  EXPECT_EQ(Moves(), (Lines{"files of C:\\a", "clear grid", "files of C:\\a"}));
  EXPECT_EQ(list.Count(), 1);
}

// The user can change the options whenever the search yields.

TEST_F(SearchWalkTest, AsksForSubFoldersAnewInEachFolder) {
  window.onEvents = [&] { window.subDir = false; };
  Find();
  EXPECT_EQ(list.Count(), 1) << "unticked while the first folder was listed";
  EXPECT_EQ(window.dir1, "C:\\a");
}

TEST_F(SearchWalkTest, ReadsTheLimitAnewInEachFolder) {
  window.onEvents = [&] {
    if (list.Count() == 3) window.max = "2";
  };
  Find();
  EXPECT_EQ(list.Count(), 3) << "lowered before the third folder was listed";
}

TEST_F(SearchDriverTest, AsksForTheLimitBeforeAFileAndNeverInsideOne) {
  AddFile("C:\\a", "1.dll", {.icons = 2});
  AddFile("C:\\a", "2.dll", {.icons = 5});
  AddFile("C:\\a", "3.dll", {.icons = 1});
  window.onEvents = [&] { window.max = "3"; };
  Find();
  EXPECT_EQ(list.Count(), 7);
}

TEST_F(SearchDriverTest, DrawsInTheSizeChosenMeanwhile) {
  AddFile("C:\\a", "x.dll", {.icons = 2});
  window.onEvents = [&] { state.Geometry = gridGeometries[3]; };
  Find();
  EXPECT_THAT(script.Lines("draw"), ElementsAre("draw C:\\a\\x.dll#0 on grid at (3,3) size 64 step 0",
                                                "draw C:\\a\\x.dll#1 on grid at (73,3) size 64 step 0"));
}

// Run-time errors.

TEST_F(SearchDriverTest, TakesTheFailureExitWhenTheCountOverflows) {
  AddFile("C:\\a", "1.dll", {.icons = 32767});
  AddFile("C:\\a", "2.dll", {.icons = 1});
  EXPECT_THROW(Find(), OverflowError);
  EXPECT_EQ(script.Lines(),
            Joined({Starting(),
                    {"files of C:\\a", "count C:\\a\\1.dll", "caption Brindle Tarvik - C:\\a - 32767 Icons",
                     "count C:\\a\\2.dll", "clear list view"},
                    Refusing()}));
  EXPECT_FALSE(state.IsSearching);
}

TEST_F(SearchDriverTest, TakesTheFailureExitWhenTheLimitIsNoNumber) {
  window.max = "many";
  AddFile("C:\\a", "1.dll", {.icons = 1});
  EXPECT_THROW(Find(), TypeMismatchError);
  EXPECT_THAT(script.Lines("draw"), IsEmpty());
  EXPECT_EQ(script.Lines().back(), "clear grid");
  EXPECT_FALSE(state.IsSearching);
}

TEST_F(SearchDriverTest, TakesTheFailureExitWhenTheLimitIsTooLarge) {
  window.max = "32768";
  AddFile("C:\\a", "1.dll", {.icons = 1});
  EXPECT_THROW(Find(), OverflowError);
  EXPECT_FALSE(state.IsSearching);
}

TEST_F(SearchDriverTest, AsksForNoLimitWhereThereAreNoIcons) {
  window.max = "many";
  EXPECT_NO_THROW(Find());
  EXPECT_THAT(script.Lines("box"), ElementsAre("box C:\\a ... contains no icons."));
}

TEST_F(SearchWalkTest, PutsDir1BackWhenCountingFails) {
  icons.files["C:\\a\\b\\c\\3.dll"].icons = 32767;
  EXPECT_THROW(Find(), OverflowError);
  EXPECT_EQ(window.dir1, "C:\\a");
  EXPECT_EQ(window.file1, "C:\\a");
}

TEST_F(SearchWalkTest, PutsDir1AndThePointersBackWhenListingFails) {
  window.onEvents = [&] {
    if (list.Count() == 3) window.max = "x";
  };
  EXPECT_THROW(Find(), TypeMismatchError);
  EXPECT_EQ(window.dir1, "C:\\a");
  EXPECT_THAT(script.Lines("pointer"), ElementsAre("pointer back 2", "pointer back 1"));
  EXPECT_EQ(list.Count(), 0) << "no list beside a blank grid";
  EXPECT_EQ(script.Lines().back(), "clear grid");
}

TEST_F(SearchDriverTest, OverflowsWhenTheGridGrowsBeyondItsCoordinates) {
  state.Geometry = gridGeometries[3];
  window.max = "32767";
  window.upperEnd = 32767;
  AddFile("C:\\a", "x.dll", {.icons = 4000});
  EXPECT_THROW(Find(), OverflowError);
  EXPECT_EQ(list.Count(), 0);
}

TEST_F(SearchDriverTest, SearchesAgainAfterARunTimeError) {
  window.max = "many";
  AddFile("C:\\a", "1.dll", {.icons = 1});
  EXPECT_THROW(Find(), TypeMismatchError);
  window.max = "300";
  Find();
  EXPECT_EQ(list.Count(), 1);
  EXPECT_THAT(script.Lines(), Contains("enable CmdOk"));
  EXPECT_THAT(script.Lines("box"), IsEmpty());
}

}  // namespace
}  // namespace tarvik
