#include "forms/ReportList.h"

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/Display.h"
#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

constexpr int path = 1;  // the column

class ReportListTest : public support::FindIconFixture {
 protected:
  ReportListTest() {
    ini.values["FindIcon/Folder"] = folder_;
    machine.files[folder_] = {"some.dll"};
    machine.icons[folder_ + "\\some.dll"] = 3;
  }
  void ShowList() {
    Open();
    Click(FrmFindIcon_CmdFind);
    Click(FrmFindIcon_OptView1);
    application.DoEvents();
  }
  HWND List() const { return Item(FrmFindIcon_Lv); }
  POINT MiddleOf(int row, int column) const {
    RECT cell{};
    ListView_GetSubItemRect(List(), row, column, LVIR_LABEL, &cell);
    return {(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2};
  }
  // The tip's text over the cell; empty if there is no tip.
  std::string TipOf(int row, int column) const {
    const POINT middle = MiddleOf(row, column);
    SendMessageW(List(), WM_MOUSEMOVE, 0, MAKELPARAM(middle.x, middle.y));
    return Tip();
  }
  std::string Tip() const {
    HWND found = nullptr;
    while ((found = FindWindowExW(nullptr, found, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
      std::array<wchar_t, 2048> text{};
      TTTOOLINFOW part{};
      part.cbSize = TTTOOLINFOW_V1_SIZE;
      part.lpszText = text.data();
      const bool isOwn = GetWindowThreadProcessId(found, nullptr) == GetCurrentThreadId();
      if (!isOwn || SendMessageW(found, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&part)) == 0) continue;
      if (part.hwnd == List()) return ToUtf8(text.data());
    }
    return {};
  }

  static std::string JoinLines(std::string lines) {
    for (std::size_t end = 0; (end = lines.find("\r\n")) != std::string::npos;) lines.erase(end, 2);
    return lines;
  }

  const std::string folder_ = "C:\\a folder\\" + std::string(150, 'w');
};

TEST_F(ReportListTest, SaysInATipWhatACellIsTooNarrowFor) {
  ShowList();
  EXPECT_EQ(JoinLines(TipOf(1, path)), folder_ + "\\some.dll");
  EXPECT_EQ(TipOf(1, 0), "") << "a number fits";
  EXPECT_EQ(JoinLines(TipOf(2, path)), folder_ + "\\some.dll");
  EXPECT_EQ(TipOf(1, 2), "");
}

TEST_F(ReportListTest, NeedsNoTipWhereTheColumnIsWideEnough) {
  ShowList();
  ListView_SetColumnWidth(List(), 0, 5);
  EXPECT_EQ(TipOf(1, 0), "2");
  ListView_SetColumnWidth(List(), 0, 60);
  EXPECT_EQ(TipOf(1, 0), "");
}

TEST_F(ReportListTest, ForgetsTheTipWhenTheRowsMoveUnderThePointer) {
  ShowList();
  EXPECT_NE(TipOf(1, path), "");
  SendMessageW(List(), WM_VSCROLL, SB_LINEDOWN, 0);
  EXPECT_EQ(Tip(), "");
}

// The pointer can rest on the list while a key starts a search.
TEST_F(ReportListTest, ForgetsTheTipOfRowsThatAreGone) {
  ShowList();
  EXPECT_NE(TipOf(1, path), "");
  machine.icons[folder_ + "\\some.dll"] = 0;
  Click(FrmFindIcon_CmdFind);
  EXPECT_EQ(Tip(), "");
}

TEST_F(ReportListTest, ShowsTheTipWhereThePointerRests) {
  ShowList();
  POINT middle = MiddleOf(1, path);
  ClientToScreen(List(), &middle);
  HWND tip = nullptr;
  const ULONGLONG end = GetTickCount64() + 20'000;
  bool shown = false;
  for (int shift = 0; !shown && GetTickCount64() < end; ++shift) {
    SetCursorPos(middle.x + shift % 2, middle.y);
    const ULONGLONG rest = GetTickCount64() + 3'000;
    while (!shown && GetTickCount64() < rest) {
      application.DoEvents();
      for (tip = nullptr; (tip = FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr;) {
        if (GetWindowThreadProcessId(tip, nullptr) == GetCurrentThreadId() && IsWindowVisible(tip) != FALSE) break;
      }
      shown = tip != nullptr;
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
    }
  }
  EXPECT_TRUE(shown);
}

// Such a path was one line, wider than the screen.
TEST_F(ReportListTest, BreaksALongTextInItsTipIntoLinesThatFitTheScreen) {
  const std::string wide = "C:\\a folder\\" + std::string(220, 'W');
  ini.values["FindIcon/Folder"] = wide;
  machine.files[wide] = {"some.dll"};
  machine.icons[wide + "\\some.dll"] = 3;
  ShowList();
  const std::string text = TipOf(1, path);
  EXPECT_EQ(JoinLines(text), wide + "\\some.dll");
  const WindowDc dc(List());
  const SelectedObject font(dc.get(), reinterpret_cast<HGDIOBJ>(SendMessageW(List(), WM_GETFONT, 0, 0)));
  RECT lines{};
  DrawTextW(dc.get(), ToWide(text).c_str(), -1, &lines, DT_CALCRECT | DT_NOPREFIX);
  EXPECT_LT(lines.right, GetSystemMetrics(SM_CXSCREEN));
}

// The columns take what a larger window gives the list, in one column.
class ColumnWidthTest : public ReportListTest {
 protected:
  void Enlarge(int width) {
    RECT bounds{};
    GetWindowRect(window->Window(), &bounds);
    SetWindowPos(window->Window(), nullptr, 0, 0, bounds.right - bounds.left + width, bounds.bottom - bounds.top,
                 SWP_NOZORDER);
    application.DoEvents();
  }
  std::array<int, 3> Widths() const {
    return {ListView_GetColumnWidth(List(), 0), ListView_GetColumnWidth(List(), 1), ListView_GetColumnWidth(List(), 2)};
  }
  int OfDisplay(int width) const { return (width * DotsOfDisplay() + 95) / 96; }
  std::array<int, 3> First() const { return {OfDisplay(40), OfDisplay(460), OfDisplay(80)}; }
  std::array<int, 3> WithPathWider(int width) const { return {OfDisplay(40), OfDisplay(460) + width, OfDisplay(80)}; }
};

TEST_F(ColumnWidthTest, GivesThePathTheWidthOfALargerWindowAndTakesItBack) {
  ShowList();
  EXPECT_EQ(Widths(), First());
  Enlarge(150);
  EXPECT_EQ(Widths(), WithPathWider(150));
  Enlarge(33);
  EXPECT_EQ(Widths(), WithPathWider(183));
  ShowWindow(window->Window(), SW_MINIMIZE);
  ShowWindow(window->Window(), SW_RESTORE);
  EXPECT_EQ(Widths(), WithPathWider(183));
  Enlarge(-183);
  EXPECT_EQ(Widths(), First());
  RECT before{};
  GetWindowRect(List(), &before);
  ShowWindow(window->Window(), SW_MAXIMIZE);
  application.DoEvents();
  RECT after{};
  GetWindowRect(List(), &after);
  EXPECT_EQ(Widths(), WithPathWider(after.right - after.left - (before.right - before.left)));
  ShowWindow(window->Window(), SW_RESTORE);
  application.DoEvents();
  EXPECT_EQ(Widths(), First());
}

TEST_F(ColumnWidthTest, GivesItToTheColumnsOfTheNextSearchToo) {
  ShowList();
  Enlarge(150);
  Click(FrmFindIcon_CmdFind);
  EXPECT_EQ(Widths(), WithPathWider(150));
  Enlarge(-150);
  EXPECT_EQ(Widths(), First());
}

TEST_F(ColumnWidthTest, LeavesColumnsAsTheUserMadeThem) {
  ShowList();
  ListView_SetColumnWidth(List(), 0, 90);
  Enlarge(150);
  EXPECT_EQ(Widths(), (std::array{90, WithPathWider(150)[1], First()[2]})) << "another column";
  ListView_SetColumnWidth(List(), 1, 300);
  Enlarge(100);
  EXPECT_EQ(Widths(), (std::array{90, 300, First()[2]}));
  Enlarge(-250);
  EXPECT_EQ(Widths(), (std::array{90, 300, First()[2]}));
}

}  // namespace
}  // namespace tarvik
