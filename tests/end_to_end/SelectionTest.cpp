// Selecting icons in the grid with the real mouse, and what the menu commands do with the selection.

#include <windows.h>

#include <cstdlib>
#include <string>

#include "end_to_end/SelectionByHand.h"

namespace tarvik::end_to_end {
namespace {

using support::IconFileOf;

class GridSelection : public SelectionByHand {};

TEST_F(GridSelection, AClickSelectsOneIconAndTellsIt) {
  FindIconFiles(fewIcons);
  ClickCell(16);
  ExpectCurrent(16);
  ExpectRows({16});
  ExpectFrames({16});
}

TEST_F(GridSelection, CtrlAddsIconsAndTakesThemOut) {
  FindIconFiles(fewIcons);
  ClickCell(4, {VK_CONTROL});
  ClickCell(17, {VK_CONTROL});
  ExpectCurrent(17);
  ExpectRows({0, 4, 17});
  ExpectFrames({0, 4, 17});
  ClickCell(4, {VK_CONTROL});
  ExpectCurrent(4);
  ExpectRows({0, 17});
  ExpectFrames({0, 17});
}

TEST_F(GridSelection, CtrlOnTheOnlySelectedIconLeavesNone) {
  FindIconFiles(fewIcons);
  ClickCell(0, {VK_CONTROL});
  ExpectRows({});
  ExpectFrames({});
  ExpectCurrent(0);
}

TEST_F(GridSelection, CtrlAndShiftTogetherCountAsAPlainClick) {
  FindIconFiles(fewIcons);
  ClickCell(5);
  ClickCell(9, {VK_CONTROL, VK_SHIFT});
  ExpectCurrent(9);
  ExpectRows({9});
  ExpectFrames({9});
}

TEST_F(GridSelection, ShiftAloneCountsAsAPlainClick) {
  FindIconFiles(fewIcons);
  ClickCell(5);
  ClickCell(9, {VK_SHIFT});
  ExpectCurrent(9);
  ExpectRows({9});
}

TEST_F(GridSelection, TheFirstFrameStaysAfterAPlainClickThatFollowsOthers) {
  FindIconFiles(fewIcons);
  ClickCell(6, {VK_CONTROL});
  ClickCell(8);
  ExpectCurrent(8);
  ExpectRows({8});
  ExpectFrames({0, 8});
}

TEST_F(GridSelection, TheRightButtonSelectsAsTheLeftDoes) {
  FindIconFiles(fewIcons);
  RightClick(CellMiddle(3));
  ExpectCurrent(3);
  ExpectRows({3});
  ExpectFrames({3});
}

TEST_F(GridSelection, NothingRightOf580PixelsCanBeClicked) {
  FindHundred(Size16);
  Click(GridPoint(580, 10));
  ExpectCurrent(26);
  for (const int x : {581, 600, 640, 684}) Click(GridPoint(x, 10));
  WaitForAllInput();
  ExpectCurrent(26);
  ExpectRows({26});
  ExpectFrames({26});
}

TEST_F(GridSelection, NothingAfterTheLastIconCanBeClicked) {
  FindIconFiles(fewIcons);
  ClickCell(7);
  ExpectCurrent(7);
  for (const int entry : {20, 25, 31, 60}) ClickCell(entry);
  WaitForAllInput();
  ExpectCurrent(7);
  ExpectRows({7});
  ExpectFrames({7});
  ClickCell(19);
  ExpectCurrent(19);
}

TEST_F(GridSelection, TheGapBetweenTwoIconsBelongsToTheCellLeftAndAbove) {
  FindIconFiles(fewIcons);
  Click(GridPoint(37, 37));
  ExpectRows({0});
  Click(GridPoint(38, 37));
  ExpectCurrent(1);
  Click(GridPoint(38, 38));
  ExpectCurrent(16);
}

TEST_F(GridSelection, AScrolledGridIsClickedWhereItIs) {
  FindHundred(Size32);
  program_.Item(FrmFindIcon_Vsb).Send(WM_KEYDOWN, VK_END);
  ClickCell(99);
  ExpectCurrent(99);
  ExpectRows({99});
  ExpectFrames({99});
}

TEST_F(GridSelection, ClicksDuringASearchDoNothing) {
  constexpr int folders = 150;
  for (int i = 0; i < folders; ++i) {
    const std::string folder = "folder" + std::to_string(1000 + i);
    tree_.MakeFolder(folder);
    for (const char* name : {"\\a.ico", "\\b.ico"}) tree_.MakeFile(folder + name, IconFileOf(0xFF));
  }
  Start({}, true);
  // As soon as there are entries to click and most are still to come: the status bar shows the number reached.
  const auto hasEntries = [&] {
    const std::string status = Status();
    const auto digits = status.find_first_of("0123456789");
    if (digits == std::string::npos) return false;
    const int listed = std::atoi(status.c_str() + digits);
    return listed > 10 && listed < folders;
  };
  DuringSearch(hasEntries, [&] {
    ClickCell(3);
    ClickCell(5, {VK_CONTROL});
    RightClick(CellMiddle(2));
  });
  WaitForAllInput();
  EXPECT_EQ(TextOf(FrmFindIcon_lblInfo), "Icon No 1 Selected.");
  EXPECT_EQ(Status(), std::to_string(2 * folders) + " Icons Added. Double click an icon for enhanced view.");
  ExpectRows({0});
  ExpectFrames({0});
}

TEST_F(GridSelection, TheMenuInvertsItWithItsFrames) {
  FindIconFiles(fewIcons);
  ClickCell(2);
  ClickCell(18, {VK_CONTROL});
  ExpectRows({2, 18});
  Indexes others;
  for (int entry = 0; entry < fewIcons; ++entry) {
    if (entry != 2 && entry != 18) others.insert(entry);
  }
  program_.Command(FrmFindIcon_mnuRem);
  ExpectRows(others);
  ExpectFrames(others);
  ExpectCurrent(18);
  program_.Command(FrmFindIcon_mnuRem);
  ExpectRows({2, 18});
  ExpectFrames({2, 18});
  ExpectCurrent(18);
}

TEST_F(GridSelection, TheMenuHidesAndShowsTheLabel) {
  FindIconFiles(2);
  const Control label = program_.Item(FrmFindIcon_lblInfo);
  EXPECT_TRUE(label.IsVisible());
  program_.Command(FrmFindIcon_mnuShowLabel);
  EXPECT_TRUE(Eventually([&] { return !label.IsVisible(); }));
  program_.Command(FrmFindIcon_mnuShowLabel);
  EXPECT_TRUE(Eventually([&] { return label.IsVisible(); }));
}

TEST_F(GridSelection, TheMenuChoosesWhetherLabelsCountInAllOrInTheFile) {
  for (const char* name : {"a.dll", "b.dll"}) CopyThreeIcons(In(name));
  Start();
  Tick({Dll});
  Find();
  const auto labelBecomes = [&](const std::string& text) {
    return Eventually([&] { return TextOf(FrmFindIcon_lblInfo) == text; });
  };
  ClickCell(4);
  EXPECT_TRUE(labelBecomes("Icon No 5 Selected."));
  program_.Command(FrmFindIcon_mnuIL2);
  EXPECT_TRUE(labelBecomes("Icon No 2 Selected."));
  ClickCell(5);
  EXPECT_TRUE(labelBecomes("Icon No 3 Selected."));
  program_.Command(FrmFindIcon_mnuIL1);
  EXPECT_TRUE(labelBecomes("Icon No 6 Selected."));
}

}  // namespace
}  // namespace tarvik::end_to_end
