#include "search/SearchDriver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "search/SearchDriverFixture.h"

namespace tarvik {
namespace {

using support::FakeIcons;
using support::Script;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

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
    EXPECT_EQ(list.Item(step + 1),
              (IconListEntry{"C:\\a\\eight.ani", step, step == 0, "Row" + std::to_string(step + 1)}));
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
  EXPECT_THAT(script.Lines("size grid"), ElementsAre("size grid 32 for 90"));
}

TEST_F(SearchDriverTest, SearchesWhileItYieldsAndNoLongerWhenTheListIsShown) {
  std::vector<bool> searching;
  window.onEvents = [&] { searching.push_back(state.IsSearching); };
  window.onListChanged = [&] { searching.push_back(state.IsSearching); };
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

TEST_F(SearchDriverTest, NamesTheFolderOfFile1WhereThereAreNoIcons) {
  window.dir1 = "C:\\elsewhere";
  Find();
  EXPECT_THAT(script.Lines("box"), ElementsAre("box C:\\a ... contains no icons."));
}

TEST_F(SearchDriverTest, SearchesTheFolderOfFile1WithoutSubFolders) {
  window.dir1 = "C:\\elsewhere";
  AddFile("C:\\a", "x.dll", {.icons = 1});
  AddFile("C:\\elsewhere", "y.dll", {.icons = 1});
  Find();
  ASSERT_EQ(list.Count(), 1);
  EXPECT_EQ(list.Item(1).path, "C:\\a\\x.dll");
  EXPECT_THAT(script.Lines("Dir1"), IsEmpty());
  EXPECT_THAT(script.Lines("File1"), IsEmpty());
}

TEST_F(SearchDriverTest, WalksFromTheFolderOfDir1WithSubFolders) {
  window.subDir = true;
  window.file1 = "C:\\elsewhere";
  AddFile("C:\\a", "x.dll", {.icons = 1});
  AddFile("C:\\elsewhere", "y.dll", {.icons = 2});
  Find();
  ASSERT_EQ(list.Count(), 1);
  EXPECT_EQ(list.Item(1).path, "C:\\a\\x.dll");
  EXPECT_EQ(state.IconCount, 1);
  EXPECT_EQ(window.dir1, "C:\\a");
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
  SearchDriver(ToolsOver(spy)).CmdFind_Click();
  EXPECT_THAT(animated, ElementsAre(true, false, true, true, false, false));
}

// Icons that cannot be extracted.

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
  SearchDriver(ToolsOver(vanishing)).CmdFind_Click();
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
  EXPECT_EQ(script.Lines(), Join({Starting(),
                                  {"hourglass 1", "files of C:\\a", "count C:\\a\\1.dll",
                                   "caption Brindle Tarvik - C:\\a - 32767 Icons", "count C:\\a\\2.dll",
                                   "pointer back 1", "clear list view"},
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

// The window once stayed in its searching state for good, and could not even be closed.
TEST_F(SearchDriverTest, TakesTheFailureExitAlsoWhenTheListCannotBeCleared) {
  window.max = "many";
  window.onClearListView = [] { throw std::bad_alloc(); };
  AddFile("C:\\a", "1.dll", {.icons = 1});
  EXPECT_THROW(Find(), std::bad_alloc);
  EXPECT_EQ(script.Lines().back(), "clear grid");
  EXPECT_FALSE(state.IsSearching);
}

TEST_F(SearchDriverTest, AsksForNoLimitWhereThereAreNoIcons) {
  window.max = "many";
  EXPECT_NO_THROW(Find());
  EXPECT_THAT(script.Lines("box"), ElementsAre("box C:\\a ... contains no icons."));
}

TEST_F(SearchDriverTest, OverflowsWhenTheGridGrowsBeyondItsCoordinates) {
  state.Geometry = gridGeometries[3];
  window.max = "32767";
  state.Geometry.MaxLimit = 32767;
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
