// The list view by keys: Enter, and its context menu, which the mouse opens too.

#include <windows.h>

#include "driver/SaveDialog.h"
#include "end_to_end/ViewByHand.h"

namespace tarvik::end_to_end {
namespace {

class ListKeys : public ViewByHand {
 protected:
  // Finds that many icon files and switches to the list view, which gets the focus.
  void FindInList(int count) {
    FindFiles(count);
    GoToList();
  }
  // Switches to the list view, which gets the focus.
  void GoToList() const {
    program_.Item(FrmFindIcon_OptView1).Press();
    ASSERT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_Lv).IsVisible(); }));
    GoTo(FrmFindIcon_Lv);
  }
  void GoTo(int id) const {
    ASSERT_TRUE(Eventually([&] {
      if (GetDlgCtrlID(program_.Focus().Window()) == id) return true;
      const Control before = program_.Focus();
      PressKey(VK_TAB);
      Eventually([&] { return program_.Focus().Window() != before.Window(); }, lostAfter);
      return GetDlgCtrlID(program_.Focus().Window()) == id;
    }));
  }
  Control WaitForMenu() const {
    EXPECT_TRUE(Eventually([&] { return program_.OpenMenu().has_value(); }));
    return program_.OpenMenu().value_or(Control());
  }
  void CloseMenu() const {
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(Eventually([&] { return !program_.OpenMenu(); }));
  }
};

TEST_F(ListKeys, BeginAtTheFirstIconAfterASearch) {
  FindInList(5);
  PressKey(VK_DOWN);
  ExpectCurrent(1);
  ExpectRows({1});
}

// Enter opened the view of the first row, which was chosen instead of the icon that the user had chosen.
TEST_F(ListKeys, BeginAtTheIconThatWasChosenInTheGrid) {
  FindFiles(5);
  ClickCell(1);
  ClickCell(3, {VK_CONTROL});
  ExpectRows({1, 3});
  GoToList();
  PressKey(VK_APPS);
  WaitForMenu();
  CloseMenu();
  ExpectRows({1, 3});
  PressKey(VK_RETURN);
  const EnhancedView view(program_);
  ExpectEntry(view, 4);
  view.Close();
  ExpectRows({1, 3});
  PressKey(VK_DOWN, {VK_SHIFT});
  ExpectRows({3, 4});
}

TEST_F(ListKeys, EnterOpensTheViewOfItsRow) {
  FindInList(5);
  PressKey(VK_DOWN, {}, 2);
  ExpectCurrent(2);
  PressKey(VK_RETURN);
  const EnhancedView view(program_);
  ExpectEntry(view, 3);
  view.Close();
  ASSERT_TRUE(Eventually([&] { return program_.Window().IsEnabled(); }));
  EXPECT_EQ(List().RowCount(), 5) << "the search did not run again";
  ExpectRows({2});
}

TEST_F(ListKeys, EnterChoosesARowThatWasOnlyGoneTo) {
  FindInList(5);
  PressKey(VK_DOWN, {VK_CONTROL}, 3);
  ASSERT_TRUE(Eventually([&] {
    return List().RowCount() == 5 && program_.Item(FrmFindIcon_Lv).Send(LVM_GETNEXTITEM, WPARAM(-1), LVNI_FOCUSED) == 3;
  }));
  PressKey(VK_RETURN);
  const EnhancedView view(program_);
  ExpectEntry(view, 4);
  view.Close();
  ExpectRows({3});
  ExpectCurrent(3);
}

TEST_F(ListKeys, EnterKeepsSeveralSelectedRows) {
  FindInList(5);
  PressKey(VK_DOWN, {VK_SHIFT}, 2);
  ExpectRows({0, 1, 2});
  PressKey(VK_RETURN);
  const EnhancedView view(program_);
  ExpectEntry(view, 3);
  view.Close();
  ExpectRows({0, 1, 2});
}

TEST_F(ListKeys, ShiftF10AndTheMenuKeyOpenTheMenuOfTheRow) {
  FindInList(5);
  PressKey(VK_DOWN, {}, 2);
  ExpectCurrent(2);
  const RECT row = List().RowBounds(2);
  PressKey(VK_F10, {VK_SHIFT});
  const RECT menu = WaitForMenu().Bounds();
  EXPECT_GE(menu.left, row.left);
  EXPECT_LT(menu.left, MiddleOf(row).x);
  EXPECT_EQ(menu.top, row.bottom);
  CloseMenu();
  PressKey(VK_APPS);
  WaitForMenu();
  PressKey(VK_DOWN);  // "Save As"
  PressKey(VK_RETURN);
  SaveDialog(program_).Cancel();
  ExpectRows({2});
}

TEST_F(ListKeys, ARightClickChoosesItsRowAndOpensTheMenu) {
  FindInList(5);
  RightClick(MiddleOf(List().RowBounds(3)));
  WaitForMenu();
  EmptyTheClipboard();
  PressKey('C');  // "Copy to Clipboard"
  EXPECT_TRUE(Eventually([] { return IsClipboardFormatAvailable(CF_BITMAP) != FALSE; }));
  ExpectRows({3});
  ExpectCurrent(3);
}

TEST_F(ListKeys, ARightClickOnOneOfSeveralSelectedRowsKeepsThem) {
  FindInList(5);
  PressKey(VK_DOWN, {VK_SHIFT}, 2);
  ExpectRows({0, 1, 2});
  RightClick(MiddleOf(List().RowBounds(1)));
  WaitForMenu();
  CloseMenu();
  ExpectRows({0, 1, 2});
  ExpectCurrent(1);
}

TEST_F(ListKeys, ARightClickBelowTheRowsOpensNoMenu) {
  FindInList(2);
  RECT row = List().RowBounds(1);
  OffsetRect(&row, 0, 2 * (row.bottom - row.top));
  RightClick(MiddleOf(row));
  WaitForAllInput();
  EXPECT_FALSE(program_.OpenMenu());
}

}  // namespace
}  // namespace tarvik::end_to_end
