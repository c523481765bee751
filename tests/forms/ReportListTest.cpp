#include "forms/ReportList.h"

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

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

  const std::string folder_ = "C:\\a folder\\" + std::string(150, 'w');
};

TEST_F(ReportListTest, SaysInATipWhatACellIsTooNarrowFor) {
  ShowList();
  EXPECT_EQ(TipOf(1, path), folder_ + "\\some.dll");
  EXPECT_EQ(TipOf(1, 0), "") << "a number fits";
  EXPECT_EQ(TipOf(2, path), folder_ + "\\some.dll");
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

}  // namespace
}  // namespace tarvik
