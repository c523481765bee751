#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "base/NonCopyable.h"
#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

class FrmFindIconSelectionTest : public support::FindIconFixture {
 protected:
  void Open20() {
    Open();
    Find(20);
  }
  std::vector<int> SelectedRows() const {
    std::vector<int> rows;
    for (int number = 1; number <= ListView_GetItemCount(Item(FrmFindIcon_Lv)); ++number) {
      if (IsRowSelected(number)) rows.push_back(number);
    }
    return rows;
  }
  bool IsFramed(int number) const { return GridPixel(1 + (number - 1) % 15 * 38, 1 + (number - 1) / 15 * 38) == black; }
  // As when a user clicks: the control's state changes, and it sends its notification.
  void ChooseInList(int row) {
    ListView_SetItemState(Item(FrmFindIcon_Lv), -1, 0, LVIS_SELECTED);
    ListView_SetItemState(Item(FrmFindIcon_Lv), row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    application.DoEvents();
  }
  // Opens the window over that file and lists its icons.
  void FindIn(IconSource& file, int rows) {
    OpenOver(file, machine);
    Click(FrmFindIcon_CmdFind);
    application.DoEvents();
    ASSERT_EQ(ListView_GetItemCount(Item(FrmFindIcon_Lv)), rows);
  }
};

// A file that holds another number of icons in the listing pass than in the counting pass.
class ChangedFile final : public IconSource {
 public:
  ChangedFile(int counted, int listed) : counted_(counted), listed_(listed) {}

  int CountIcons(const std::string& /*path*/) override { return asked_++ == 0 ? counted_ : listed_; }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& /*path*/, int /*index*/) override {
    return std::make_unique<support::SquareIcon>(0x0000FF);
  }

 private:
  int counted_;
  int listed_;
  int asked_ = 0;
};

using Rows = std::vector<int>;

TEST_F(FrmFindIconSelectionTest, SelectsTheClickedIconAlone) {
  Open20();
  ReleaseOnGrid(3 + 38, 10);
  EXPECT_EQ(SelectedRows(), Rows{2});
  EXPECT_TRUE(IsFramed(2));
  EXPECT_FALSE(IsFramed(1));
  EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 2 Selected.");
  EXPECT_EQ(Status(), "C:\\icons\\some.dll");
}

TEST_F(FrmFindIconSelectionTest, AnswersForNoMoreIconsThanWereCounted) {
  ChangedFile file(3, 5);
  ASSERT_NO_FATAL_FAILURE(FindIn(file, 5));
  ReleaseOnGrid(3 + 3 * 38, 10);
  EXPECT_EQ(SelectedRows(), Rows{1});
  EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 1 Selected.");
  ReleaseOnGrid(3 + 2 * 38, 10);
  EXPECT_EQ(SelectedRows(), Rows{3});
}

TEST_F(FrmFindIconSelectionTest, AnswersForNoIconThatWasCountedButNotListed) {
  ChangedFile file(5, 3);
  ASSERT_NO_FATAL_FAILURE(FindIn(file, 3));
  // The fourth cell is that of the next icon's number.
  for (const int column : {3, 4}) {
    ReleaseOnGrid(3 + column * 38, 10);
    EXPECT_EQ(SelectedRows(), Rows{1}) << column;
    EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 1 Selected.") << column;
  }
  EXPECT_TRUE(boxes.Boxes().empty()) << boxes.Boxes()[0].text;
  ReleaseOnGrid(3 + 2 * 38, 10);
  EXPECT_EQ(SelectedRows(), Rows{3});
}

TEST_F(FrmFindIconSelectionTest, OpensTheListAtTheIconThatWasChosenInTheGrid) {
  Open();
  Find(100);
  const HWND list = Item(FrmFindIcon_Lv);
  const auto isInView = [&](int row) {
    const int top = ListView_GetTopIndex(list);
    return row >= top && row < top + ListView_GetCountPerPage(list);
  };
  for (const int row : {80, 3}) {
    ReleaseOnGrid(10 + row % 15 * 38, 10 + row / 15 * 38);
    Click(FrmFindIcon_OptView1);
    EXPECT_EQ(ListView_GetNextItem(list, -1, LVNI_FOCUSED), row);
    EXPECT_TRUE(isInView(row)) << row;
    EXPECT_EQ(SelectedRows(), Rows{row + 1});
    Click(FrmFindIcon_OptView0);
  }
}

TEST_F(FrmFindIconSelectionTest, KeepsTheFocusOfTheListThatIsShown) {
  Open20();
  Click(FrmFindIcon_OptView1);
  ChooseInList(4);
  ListView_SetItemState(Item(FrmFindIcon_Lv), 9, LVIS_FOCUSED, LVIS_FOCUSED);
  Click(FrmFindIcon_OptView1);
  EXPECT_EQ(ListView_GetNextItem(Item(FrmFindIcon_Lv), -1, LVNI_FOCUSED), 9);
}

TEST_F(FrmFindIconSelectionTest, AddsAndRemovesWithCtrl) {
  Open20();
  ReleaseOnGrid(3 + 38, 10, MK_CONTROL);
  EXPECT_EQ(SelectedRows(), (Rows{1, 2}));
  ReleaseOnGrid(10, 10, MK_CONTROL);
  EXPECT_EQ(SelectedRows(), Rows{2});
  EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 1 Selected.") << "the current entry moves to a deselected one too";
}

TEST_F(FrmFindIconSelectionTest, TakesCtrlWithShiftForAPlainClick) {
  Open20();
  ReleaseOnGrid(3 + 38, 10, MK_CONTROL | MK_SHIFT);
  EXPECT_EQ(SelectedRows(), Rows{2});
}

TEST_F(FrmFindIconSelectionTest, TreatsEveryButtonAlike) {
  Open20();
  ReleaseOnGrid(3 + 38, 10, 0, WM_RBUTTONUP);
  EXPECT_EQ(SelectedRows(), Rows{2});
  ReleaseOnGrid(3 + 76, 10, 0, WM_MBUTTONUP);
  EXPECT_EQ(SelectedRows(), Rows{3});
}

TEST_F(FrmFindIconSelectionTest, IgnoresClicksBesideTheIcons) {
  Open20();
  ReleaseOnGrid(581, 10);
  ReleaseOnGrid(3 + 5 * 38, 3 + 38);
  EXPECT_EQ(SelectedRows(), Rows{1});
  EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 1 Selected.");
}

TEST_F(FrmFindIconSelectionTest, LeavesTheFirstFrameAfterAnotherWasCurrent) {
  Open20();
  ReleaseOnGrid(3 + 38, 10, MK_CONTROL);
  ReleaseOnGrid(3 + 76, 10);
  EXPECT_EQ(SelectedRows(), Rows{3});
  EXPECT_TRUE(IsFramed(1));
  EXPECT_FALSE(IsFramed(2));
}

TEST_F(FrmFindIconSelectionTest, InvertsRowsAndFramesTogether) {
  Open20();
  Click(FrmFindIcon_mnuRem);
  EXPECT_EQ(SelectedRows().size(), 19U);
  EXPECT_FALSE(IsFramed(1));
  EXPECT_TRUE(IsFramed(20));
  EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 1 Selected.");
}

TEST_F(FrmFindIconSelectionTest, FollowsAChoiceInTheList) {
  Open20();
  Click(FrmFindIcon_OptView1);
  ChooseInList(16);
  EXPECT_EQ(SelectedRows(), Rows{17});
  EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 17 Selected.");
  Click(FrmFindIcon_OptView0);
  EXPECT_TRUE(IsFramed(17));
}

// Reports Ctrl, Shift or both as held while this object lives: flags MK_CONTROL and MK_SHIFT.
class HeldKeys : NonCopyable {
 public:
  explicit HeldKeys(WPARAM held) {
    std::array<BYTE, 256> keys{};
    if ((held & MK_CONTROL) != 0) keys[VK_CONTROL] = 0x80;
    if ((held & MK_SHIFT) != 0) keys[VK_SHIFT] = 0x80;
    SetKeyboardState(keys.data());
  }
  ~HeldKeys() {
    std::array<BYTE, 256> keys{};
    SetKeyboardState(keys.data());
  }
};

// The list after a search, clicked with keys held. Rows are counted from 1.
class FrmFindIconRangeTest : public FrmFindIconSelectionTest {
 protected:
  void OpenList() {
    Open20();
    Click(FrmFindIcon_OptView1);
  }
  void ClickRow(int number, WPARAM held = 0) {
    RECT row{};
    ListView_GetItemRect(Item(FrmFindIcon_Lv), number - 1, &row, LVIR_LABEL);
    const LPARAM point = MAKELPARAM(row.left + 3, (row.top + row.bottom) / 2);
    const HeldKeys keys(held);
    SendMessageW(Item(FrmFindIcon_Lv), WM_LBUTTONDOWN, held | MK_LBUTTON, point);
    SendMessageW(Item(FrmFindIcon_Lv), WM_LBUTTONUP, held, point);
    application.DoEvents();
  }
  Rows FramedCells() {
    Click(FrmFindIcon_OptView0);
    Rows cells;
    for (int number = 1; number <= 20; ++number) {
      if (IsFramed(number)) cells.push_back(number);
    }
    Click(FrmFindIcon_OptView1);
    return cells;
  }
};

TEST_F(FrmFindIconRangeTest, IsOneRowIfTheRowOfTheLastClickIsClickedWithShift) {
  OpenList();
  ClickRow(3);
  ClickRow(3, MK_CONTROL);
  ClickRow(3, MK_SHIFT);
  EXPECT_EQ(SelectedRows(), Rows{3});
  EXPECT_EQ(FramedCells(), Rows{3});
}

TEST_F(FrmFindIconRangeTest, StartsAtTheCurrentIconAfterASearch) {
  OpenList();
  ClickRow(4, MK_SHIFT);
  EXPECT_EQ(SelectedRows(), (Rows{1, 2, 3, 4}));
  Find(20);
  ClickRow(2, MK_SHIFT);
  EXPECT_EQ(SelectedRows(), (Rows{1, 2}));
}

// After Ctrl has removed a row from the selection, Wine's control counts from the row last clicked with both keys.
TEST_F(FrmFindIconRangeTest, StartsAtTheRowThatWasClickedWithoutShift) {
  OpenList();
  ClickRow(2);
  ClickRow(5, MK_CONTROL);
  ClickRow(5, MK_CONTROL);
  ASSERT_EQ(SelectedRows(), Rows{2});
  ClickRow(8, MK_CONTROL | MK_SHIFT);
  EXPECT_EQ(SelectedRows(), (Rows{2, 5, 6, 7, 8}));
  ClickRow(3, MK_SHIFT);
  EXPECT_EQ(SelectedRows(), (Rows{3, 4, 5}));
  EXPECT_EQ(FramedCells(), (Rows{3, 4, 5}));
}

TEST_F(FrmFindIconSelectionTest, NumbersTheLabelByTheFileOnDemand) {
  machine.files["C:\\icons"] = {"a.dll", "some.dll"};
  machine.icons["C:\\icons\\a.dll"] = 4;
  Open20();
  ReleaseOnGrid(3 + 4 * 38, 10);
  EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 5 Selected.");
  Click(FrmFindIcon_mnuIL2);
  EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 1 Selected.");
  EXPECT_TRUE(window->TheMenu().IsChecked(FrmFindIcon_mnuIL2));
  EXPECT_FALSE(window->TheMenu().IsChecked(FrmFindIcon_mnuIL1));
  Click(FrmFindIcon_mnuIL1);
  EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 5 Selected.");
}

// Closes the enhanced view as soon as it is open, and remembers the text of its status bar.
class ViewWatcher : NonCopyable {
 public:
  ViewWatcher() : timer_(SetTimer(nullptr, 0, 10, Tick)) { status.clear(); }
  ~ViewWatcher() { KillTimer(nullptr, timer_); }

  static inline std::string status;

 private:
  static BOOL CALLBACK Visit(HWND window, LPARAM /*parameter*/) {
    const HWND bar = GetDlgItem(window, frmBit_sbMain);
    if (bar == nullptr || IsWindowVisible(window) == FALSE) return TRUE;
    std::array<wchar_t, 512> text{};
    SendMessageW(bar, SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(text.data()));
    status = ToUtf8(text.data());
    PostMessageW(window, WM_CLOSE, 0, 0);
    return TRUE;
  }
  static void CALLBACK Tick(HWND /*window*/, UINT /*message*/, UINT_PTR /*id*/, DWORD /*time*/) {
    EnumThreadWindows(GetCurrentThreadId(), Visit, 0);
  }

  UINT_PTR timer_;
};

TEST_F(FrmFindIconSelectionTest, OpensTheEnhancedViewOnADoubleClick) {
  Open20();
  const ViewWatcher view;
  ReleaseOnGrid(3 + 2 * 38, 10);
  ReleaseOnGrid(3 + 2 * 38, 10, MK_LBUTTON, WM_LBUTTONDBLCLK);
  EXPECT_EQ(ViewWatcher::status, "C:\\icons\\some.dll - 2");
  EXPECT_TRUE(IsWindowEnabled(window->Window()));
}

TEST_F(FrmFindIconSelectionTest, OpensNoEnhancedViewOfAnEmptyList) {
  Open();
  const ViewWatcher view;
  ReleaseOnGrid(10, 10, MK_LBUTTON, WM_LBUTTONDBLCLK);
  EXPECT_EQ(ViewWatcher::status, "");
}

TEST_F(FrmFindIconSelectionTest, HidesAndShowsTheLabel) {
  Open20();
  Click(FrmFindIcon_mnuShowLabel);
  EXPECT_FALSE(IsWindowVisible(Item(FrmFindIcon_lblInfo)));
  EXPECT_FALSE(window->TheMenu().IsChecked(FrmFindIcon_mnuShowLabel));
  Click(FrmFindIcon_mnuShowLabel);
  EXPECT_TRUE(IsWindowVisible(Item(FrmFindIcon_lblInfo)));
}

TEST_F(FrmFindIconSelectionTest, ShowsAndNumbersLabelsInAllFromTheStart) {
  Open();
  EXPECT_TRUE(window->TheMenu().IsChecked(FrmFindIcon_mnuShowLabel));
  EXPECT_TRUE(window->TheMenu().IsChecked(FrmFindIcon_mnuIL1));
  EXPECT_FALSE(window->TheMenu().IsChecked(FrmFindIcon_mnuIL2));
}

TEST_F(FrmFindIconSelectionTest, RendersAnEntryIntoTheSurfaces) {
  Open20();
  EXPECT_TRUE(window->Captured().RenderEntry(4));
  EXPECT_EQ(window->Captured().Surfaces().Composed().Pixel(31, 31), support::SmallMachine::ColorOf(3));
  EXPECT_EQ(window->Captured().Surfaces().Mask().Pixel(0, 0), black);
  EXPECT_FALSE(window->Captured().RenderEntry(0));
  EXPECT_FALSE(window->Captured().RenderEntry(21));
  EXPECT_EQ(window->Captured().Surfaces().Composed().Pixel(31, 31), support::SmallMachine::ColorOf(3));
}

TEST_F(FrmFindIconSelectionTest, LeavesTheSurfacesClearedForAFileThatIsGone) {
  Open20();
  EXPECT_TRUE(window->Captured().RenderEntry(4));
  machine.icons.clear();
  EXPECT_TRUE(window->Captured().RenderEntry(4));
  EXPECT_EQ(window->Captured().Surfaces().Composed().Pixel(0, 0), surfaceBackground);
  EXPECT_EQ(window->Captured().Surfaces().Mask().Pixel(0, 0), surfaceBackground);
}

}  // namespace
}  // namespace tarvik
