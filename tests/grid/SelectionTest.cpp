#include "grid/Selection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "startup/Language.h"
#include "support/FakeSearch.h"

namespace tarvik {
namespace {

using support::FakeGrid;
using support::Script;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int noKey = 0;
constexpr int ctrlAndShift = 3;

class FakeSelectionView : public SelectionView {
 public:
  explicit FakeSelectionView(Script& script) : script_(script) {}

  bool NumbersByFile() const override { return byFile; }
  void SetInfoText(const std::string& text) override { script_.Add("label " + text); }
  void SetStatusText(const std::string& text) override { script_.Add("status " + text); }
  void ListChanged() override { script_.Add("list changed"); }

  bool byFile = false;

 private:
  Script& script_;
};

// Twenty icons of 32 pixels, fifteen per row, from two files of ten each, in the state after a search.
class SelectionTest : public ::testing::Test {
 protected:
  SelectionTest() { Fill(20); }

  void Fill(int count) {
    list.Clear();
    for (int i = 0; i < count; ++i) list.Add(i < 10 ? "C:\\one.dll" : "C:\\two.dll", i % 10);
    state.IconCount = count;
    state.NextIconNumber = count + 1;
    state.CurrentIndex = 0;
    state.FrameX = 1;
    state.FrameY = 1;
    if (count > 0) list.Select(1);
  }
  // Clicks the middle of an entry's cell, by its number.
  void Click(int number, int heldKeys = noKey) {
    const Point corner = IconCorner(state.Geometry, number - 1);
    selection.PicIcons_MouseUp(heldKeys, corner.x + 10, corner.y + 10);
  }
  std::vector<int> SelectedNumbers() const {
    std::vector<int> numbers;
    for (int number = 1; number <= list.Count(); ++number) {
      if (list.Item(number).selected) numbers.push_back(number);
    }
    return numbers;
  }

  Script script;
  FakeSelectionView view{script};
  IconList list;
  SearchState state;
  std::string language{english};
  FakeGrid grid{script};
  Selection selection{view, grid, list, state, language};
};

TEST_F(SelectionTest, SelectsTheClickedEntryAloneInThisOrder) {
  Fill(3);
  Click(2);
  EXPECT_THAT(script.Lines(),
              ElementsAre("label Icon No 2 Selected.", "erase frame (39,1)(75,37)", "erase frame (77,1)(113,37)",
                          "erase frame (115,1)(151,37)", "erase frame (1,1)(37,37)", "show frame (39,1)(75,37)",
                          "list changed", "status C:\\one.dll"));
  EXPECT_THAT(SelectedNumbers(), ElementsAre(2));
  EXPECT_EQ(state.CurrentIndex, 1);
  EXPECT_EQ(state.FrameX, 39);
  EXPECT_EQ(state.FrameY, 1);
}

TEST_F(SelectionTest, AddsAnEntryWithCtrl) {
  Click(17, ctrlAlone);
  EXPECT_THAT(script.Lines(), ElementsAre("label Icon No 17 Selected.", "show frame (39,39)(75,75)", "list changed",
                                          "status C:\\two.dll"));
  EXPECT_THAT(SelectedNumbers(), ElementsAre(1, 17));
  EXPECT_EQ(state.CurrentIndex, 16);
  EXPECT_EQ(state.FrameX, 39);
  EXPECT_EQ(state.FrameY, 39);
}

TEST_F(SelectionTest, TakesASelectedEntryOutWithCtrlAndMakesItCurrent) {
  Click(5);
  Click(3, ctrlAlone);
  Click(4, ctrlAlone);
  script.Clear();
  Click(3, ctrlAlone);
  EXPECT_THAT(script.Lines("erase frame"), ElementsAre("erase frame (77,1)(113,37)"));
  EXPECT_THAT(script.Lines("show frame"), IsEmpty());
  EXPECT_THAT(SelectedNumbers(), ElementsAre(4, 5));
  EXPECT_EQ(state.CurrentIndex, 2);
  EXPECT_EQ(state.FrameX, 77);
}

TEST_F(SelectionTest, TakesCtrlWithAnotherKeyForAPlainClick) {
  for (const int heldKeys : {ctrlAndShift, 1, 4, 6, 7}) {
    Click(5);
    Click(6, heldKeys);
    EXPECT_THAT(SelectedNumbers(), ElementsAre(6)) << heldKeys;
  }
}

TEST_F(SelectionTest, SelectsAgainWhatIsSelectedWithAPlainClick) {
  Click(4);
  Click(4);
  EXPECT_THAT(SelectedNumbers(), ElementsAre(4));
  EXPECT_EQ(script.Lines().end()[-3], "show frame (115,1)(151,37)");
}

TEST_F(SelectionTest, LeavesTheFirstCellsFrameWhenOthersWereAddedToIt) {
  Click(1);
  Click(2, ctrlAlone);
  script.Clear();
  Click(3);
  EXPECT_THAT(script.Lines("erase frame (1,1)"), IsEmpty());
  EXPECT_THAT(SelectedNumbers(), ElementsAre(3));
}

TEST_F(SelectionTest, ErasesTheFirstCellsFrameWhenItIsTheCurrentOne) {
  Click(2);
  Click(1, ctrlAlone);
  script.Clear();
  Click(3);
  EXPECT_THAT(script.Lines("erase frame (1,1)"), ElementsAre("erase frame (1,1)(37,37)"));
}

TEST_F(SelectionTest, ErasesFromTheSecondCellToOnePastTheLast) {
  Click(7);
  const auto erased = script.Lines("erase frame");
  ASSERT_EQ(erased.size(), 21U);
  EXPECT_EQ(erased[0], "erase frame (39,1)(75,37)");
  EXPECT_EQ(erased[13], "erase frame (533,1)(569,37)");
  EXPECT_EQ(erased[14], "erase frame (1,39)(37,75)");
  EXPECT_EQ(erased[19], "erase frame (191,39)(227,75)") << "the cell after entry 20";
  EXPECT_EQ(erased[20], "erase frame (1,1)(37,37)") << "the current frame";
}

TEST_F(SelectionTest, UsesTheFrameOfTheChosenSize) {
  state.Geometry = gridGeometries[3];
  Click(10, ctrlAlone);
  EXPECT_THAT(script.Lines("show frame"), ElementsAre("show frame (71,71)(139,139)"));
}

TEST_F(SelectionTest, RoundsThePointToWholePixels) {
  selection.PicIcons_MouseUp(noKey, 37.6, 10);
  EXPECT_EQ(state.CurrentIndex, 1);
  selection.PicIcons_MouseUp(noKey, 37.4, 10);
  EXPECT_EQ(state.CurrentIndex, 0);
}

// At 32 pixels a row ends at 570, but the limit for clicks is higher.
TEST_F(SelectionTest, TakesAPointPastARowsEndForTheNextRowsFirstEntry) {
  selection.PicIcons_MouseUp(ctrlAlone, 572, 10);
  EXPECT_EQ(state.CurrentIndex, 15);
  EXPECT_THAT(script.Lines("show frame"), ElementsAre("show frame (571,1)(607,37)"));
  EXPECT_THAT(SelectedNumbers(), ElementsAre(1, 16));
}

struct DeadPoint {
  double x;
  double y;
};

TEST_F(SelectionTest, DoesNothingOutsideThePartThatTakesClicks) {
  for (const DeadPoint point : {DeadPoint{581, 5}, DeadPoint{580.5, 5}, DeadPoint{-1, 5}, DeadPoint{-0.1, 5},
                                DeadPoint{5, -0.1}, DeadPoint{5, 191}, DeadPoint{5, 190.5}}) {
    selection.PicIcons_MouseUp(noKey, point.x, point.y);
    EXPECT_THAT(script.Lines(), IsEmpty()) << point.x << ", " << point.y;
  }
}

TEST_F(SelectionTest, NeverReachesTheLastColumnsAtTheSmallestSize) {
  state.Geometry = gridGeometries[0];
  Fill(31);
  Click(26, ctrlAlone);
  EXPECT_THAT(SelectedNumbers(), ElementsAre(1, 26));
  script.Clear();
  for (const int number : {28, 29, 30, 31}) Click(number, ctrlAlone);
  EXPECT_THAT(script.Lines(), IsEmpty());
}

TEST_F(SelectionTest, DoesNothingAfterTheLastIcon) {
  Click(20);
  script.Clear();
  Click(21);
  EXPECT_THAT(script.Lines(), IsEmpty());
  EXPECT_THAT(SelectedNumbers(), ElementsAre(20));
  EXPECT_EQ(state.CurrentIndex, 19);
}

TEST_F(SelectionTest, DoesNothingWhileASearchRuns) {
  state.IsSearching = true;
  Click(2);
  selection.ChooseRow(2, noKey);
  selection.ChooseRange(1, 3, false);
  selection.ChooseAll();
  selection.mnuRem_Click();
  EXPECT_THAT(script.Lines(), IsEmpty());
  EXPECT_THAT(SelectedNumbers(), ElementsAre(1));
}

// A refused search empties the list, but the counts remain.
TEST_F(SelectionTest, DoesNothingWhereTheListHoldsNoSuchEntry) {
  list.Clear();
  state.IconCount = 401;
  Click(2);
  EXPECT_THAT(script.Lines(), IsEmpty());
  EXPECT_EQ(state.CurrentIndex, 0);
}

// The limit was lowered during the search: fewer entries than icons counted.
TEST_F(SelectionTest, DoesNothingForAnIconThatWasCountedButNotListed) {
  state.IconCount = 30;
  Click(21);
  Click(22);
  EXPECT_THAT(script.Lines(), IsEmpty());
}

// Files were added between the counting and the listing pass: more entries than icons counted.
TEST_F(SelectionTest, AnswersForNoMoreEntriesThanWereCounted) {
  state.IconCount = 10;
  Click(11);
  EXPECT_THAT(script.Lines(), IsEmpty());
  Click(10);
  EXPECT_THAT(SelectedNumbers(), ElementsAre(10));
}

TEST_F(SelectionTest, AnswersForNoEntryBeyondTheNextIconsNumber) {
  state.NextIconNumber = 11;
  Click(12);
  EXPECT_THAT(script.Lines(), IsEmpty());
  Click(11);
  EXPECT_EQ(state.CurrentIndex, 10);
}

struct LabelRow {
  std::string language;
  std::vector<std::string> label;
};

TEST_F(SelectionTest, NamesTheEntryInEachLanguage) {
  for (const LabelRow& row :
       {LabelRow{"ENG", {"label Icon No 12 Selected."}}, LabelRow{"CHS", {"label 选中 NO.12 图标."}},
        LabelRow{"CHT", {"label 選中 NO.12 圖示."}}, LabelRow{"CHI", {}}}) {
    language = row.language;
    script.Clear();
    Click(12);
    EXPECT_EQ(script.Lines("label"), row.label);
    EXPECT_THAT(script.Lines("status"), ElementsAre("status C:\\two.dll"));
  }
}

TEST_F(SelectionTest, NumbersIconsByTheirFileWhenAskedTo) {
  view.byFile = true;
  Click(12);
  EXPECT_THAT(script.Lines("label"), ElementsAre("label Icon No 2 Selected.")) << "index 1 in its own file";
}

// The list view.

TEST_F(SelectionTest, ChoosesARowAsAClickOnItsCellDoes) {
  Fill(3);
  selection.ChooseRow(2, noKey);
  const auto byRow = script.Lines();
  const auto selectedByRow = SelectedNumbers();
  Fill(3);
  script.Clear();
  Click(2);
  EXPECT_EQ(byRow, script.Lines());
  EXPECT_EQ(selectedByRow, SelectedNumbers());
  EXPECT_EQ(state.FrameX, 39);
}

TEST_F(SelectionTest, AddsAndRemovesRowsWithCtrl) {
  selection.ChooseRow(3, ctrlAlone);
  EXPECT_THAT(SelectedNumbers(), ElementsAre(1, 3));
  selection.ChooseRow(1, ctrlAlone);
  EXPECT_THAT(SelectedNumbers(), ElementsAre(3));
  EXPECT_EQ(state.CurrentIndex, 0);
}

TEST_F(SelectionTest, ReachesEveryRowWhateverTheGridsBound) {
  state.Geometry = gridGeometries[0];
  Fill(31);
  selection.ChooseRow(31, noKey);
  EXPECT_THAT(SelectedNumbers(), ElementsAre(31));
  EXPECT_EQ(state.FrameX, 661);
}

TEST_F(SelectionTest, ChoosesNoRowThatIsNotThere) {
  selection.ChooseRow(0, noKey);
  selection.ChooseRow(21, noKey);
  selection.ChooseRange(0, 3, false);
  selection.ChooseRange(3, 21, false);
  EXPECT_THAT(script.Lines(), IsEmpty());
  EXPECT_THAT(SelectedNumbers(), ElementsAre(1));
}

TEST_F(SelectionTest, ChoosesARangeWithItsFrames) {
  Fill(4);
  selection.ChooseRange(2, 3, false);
  EXPECT_THAT(script.Lines(),
              ElementsAre("label Icon No 3 Selected.", "erase frame (1,1)(37,37)", "erase frame (1,1)(37,37)",
                          "show frame (39,1)(75,37)", "show frame (77,1)(113,37)", "erase frame (115,1)(151,37)",
                          "list changed", "status C:\\one.dll"));
  EXPECT_THAT(SelectedNumbers(), ElementsAre(2, 3));
  EXPECT_EQ(state.CurrentIndex, 2);
  EXPECT_EQ(state.FrameX, 77);
  EXPECT_EQ(state.FrameY, 1);
}

TEST_F(SelectionTest, ChoosesARangeUpwards) {
  selection.ChooseRange(16, 14, false);
  EXPECT_THAT(SelectedNumbers(), ElementsAre(14, 15, 16));
  EXPECT_EQ(state.CurrentIndex, 13);
}

TEST_F(SelectionTest, AddsARangeToTheSelection) {
  selection.ChooseRange(5, 6, true);
  EXPECT_THAT(SelectedNumbers(), ElementsAre(1, 5, 6));
  EXPECT_THAT(script.Lines("erase frame"), IsEmpty());
}

// A click past the end of a row puts the current frame at a place that is not a cell's frame.
TEST_F(SelectionTest, ErasesAStrayFrameWithARange) {
  selection.PicIcons_MouseUp(noKey, 572, 10);
  script.Clear();
  selection.ChooseRange(1, 2, false);
  EXPECT_THAT(script.Lines("erase frame (571"), ElementsAre("erase frame (571,1)(607,37)"));
}

TEST_F(SelectionTest, ChoosesAllAndKeepsTheCurrentEntry) {
  Click(2);
  script.Clear();
  selection.ChooseAll();
  EXPECT_EQ(SelectedNumbers().size(), 20U);
  EXPECT_EQ(script.Lines("show frame").size(), 20U);
  EXPECT_THAT(script.Lines("label"), IsEmpty());
  EXPECT_THAT(script.Lines("status"), IsEmpty());
  EXPECT_EQ(state.CurrentIndex, 1);
}

TEST_F(SelectionTest, InvertsEveryEntryWithItsFrame) {
  Fill(3);
  Click(2, ctrlAlone);
  script.Clear();
  selection.mnuRem_Click();
  EXPECT_THAT(script.Lines(), ElementsAre("erase frame (1,1)(37,37)", "erase frame (39,1)(75,37)",
                                          "show frame (77,1)(113,37)", "list changed"));
  EXPECT_THAT(SelectedNumbers(), ElementsAre(3));
  EXPECT_EQ(state.CurrentIndex, 1);
  EXPECT_EQ(state.FrameX, 39);
}

TEST_F(SelectionTest, IsAsItWasAfterInvertingTwice) {
  Click(9);
  Click(11, ctrlAlone);
  selection.mnuRem_Click();
  selection.mnuRem_Click();
  EXPECT_THAT(SelectedNumbers(), ElementsAre(9, 11));
}

TEST_F(SelectionTest, DoesNothingOnAnEmptyList) {
  Fill(0);
  Click(1);
  selection.mnuRem_Click();
  selection.ChooseAll();
  EXPECT_THAT(script.Lines("show frame"), IsEmpty());
  EXPECT_THAT(script.Lines("label"), IsEmpty());
}

}  // namespace
}  // namespace tarvik
