// Choosing icons in the list with the real mouse and keyboard.

#include <windows.h>

#include <commctrl.h>

#include "end_to_end/SelectionByHand.h"

namespace tarvik::end_to_end {
namespace {

class ListSelection : public SelectionByHand {
 protected:
  void FindInList() {
    FindIconFiles(fewIcons);
    ShowList(true);
  }
  void ShowList(bool list) const {
    program_.Item(list ? FrmFindIcon_OptView1 : FrmFindIcon_OptView0).Press();
    ASSERT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_Lv).IsVisible() == list; }));
  }

  RECT RowBounds(int row) const {
    const Control list = program_.Item(FrmFindIcon_Lv);
    const auto heightOf = [&](WPARAM rows) { return int{HIWORD(list.Send(LVM_APPROXIMATEVIEWRECT, rows, -1))}; };
    const int height = heightOf(2) - heightOf(1);
    const RECT inside = list.Inside();
    const auto header = reinterpret_cast<HWND>(list.Send(LVM_GETHEADER));
    const int rowsAbove = row - static_cast<int>(list.Send(LVM_GETTOPINDEX));
    const LONG top = Control(header).Bounds().bottom + rowsAbove * height;
    return {inside.left, top, inside.right, top + height};
  }
  void ClickRow(int row, HeldKeys held = {}) const { Click(MiddleOf(RowBounds(row)), held); }

  // Checks the selected rows and the frames of the grid, which is shown for a moment.
  void ExpectBoth(const Indexes& expected) const {
    ExpectRows(expected);
    ShowList(false);
    ExpectFrames(expected);
    ShowList(true);
  }
};

TEST_F(ListSelection, AClickSelectsOneRow) {
  FindInList();
  ClickRow(4);
  ExpectCurrent(4);
  ExpectBoth({4});
}

TEST_F(ListSelection, ArrowKeysSelectTheNextRow) {
  FindInList();
  ClickRow(3);
  ExpectCurrent(3);
  PressKey(VK_DOWN, {}, 2);
  ExpectCurrent(5);
  PressKey(VK_UP);
  ExpectCurrent(4);
  ExpectBoth({4});
}

TEST_F(ListSelection, CtrlAddsRowsAndTakesThemOut) {
  FindInList();
  ClickRow(2);
  ExpectCurrent(2);
  ClickRow(5, {VK_CONTROL});
  ExpectCurrent(5);
  ClickRow(7, {VK_CONTROL});
  ExpectCurrent(7);
  ExpectBoth({2, 5, 7});
  ClickRow(5, {VK_CONTROL});
  ExpectCurrent(5);
  ExpectBoth({2, 7});
}

TEST_F(ListSelection, ShiftSelectsARange) {
  FindInList();
  ClickRow(2);
  ExpectCurrent(2);
  ClickRow(6, {VK_SHIFT});
  ExpectCurrent(6);
  ExpectBoth({2, 3, 4, 5, 6});
}

TEST_F(ListSelection, CtrlAndShiftAddARangeFromTheRowThatWasClickedWithoutShift) {
  FindInList();
  ClickRow(1);
  ExpectCurrent(1);
  ClickRow(4, {VK_CONTROL});
  ExpectCurrent(4);
  ClickRow(4, {VK_CONTROL});
  ExpectRows({1});
  ClickRow(7, {VK_CONTROL, VK_SHIFT});
  ExpectCurrent(7);
  ExpectRows({1, 4, 5, 6, 7});  // not the frames: a list that is opened again counts from the current icon
  ClickRow(2, {VK_SHIFT});
  ExpectCurrent(2);
  ExpectBoth({2, 3, 4});
}

TEST_F(ListSelection, ShiftWithArrowKeysSelectsARange) {
  FindInList();
  ClickRow(2);
  ExpectCurrent(2);
  PressKey(VK_DOWN, {VK_SHIFT}, 2);
  ExpectCurrent(4);
  ExpectBoth({2, 3, 4});
}

TEST_F(ListSelection, CtrlASelectsAllAndKeepsTheCurrentEntry) {
  FindInList();
  ClickRow(3);
  ExpectCurrent(3);
  PressKey('A', {VK_CONTROL});
  Indexes all;
  for (int row = 0; row < fewIcons; ++row) all.insert(row);
  ExpectBoth(all);
  ExpectCurrent(3);
}

TEST_F(ListSelection, WhatIsSelectedInTheGridIsSelectedInTheList) {
  FindIconFiles(fewIcons);
  ClickCell(1);
  ClickCell(12, {VK_CONTROL});
  ExpectFrames({1, 12});
  ShowList(true);
  ExpectRows({1, 12});
  ClickRow(8, {VK_CONTROL});
  ExpectCurrent(8);
  ExpectBoth({1, 8, 12});
}

TEST_F(ListSelection, SelectedRowsAreRed) {
  FindInList();
  ClickRow(2);
  ExpectCurrent(2);
  ClickRow(4, {VK_CONTROL});
  ExpectRows({2, 4});
  const auto isRed = [&](int row) {
    constexpr Color red = 0x0000FF;
    const Screenshot shown(RowBounds(row));
    for (int y = 0; y < shown.Height(); ++y) {
      for (int x = 0; x < shown.Width(); ++x) {
        if (shown.Pixel(x, y) == red) return true;
      }
    }
    return false;
  };
  for (int row = 0; row < 6; ++row) {
    const bool selected = row == 2 || row == 4;
    EXPECT_TRUE(Eventually([&] { return isRed(row) == selected; }, shortly)) << row;
  }
}

}  // namespace
}  // namespace tarvik::end_to_end
