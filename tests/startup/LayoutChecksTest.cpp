#include "startup/LayoutChecks.h"

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvik {
namespace {

using Texts = std::vector<std::string>;

// Tests the checks themselves: they must find the faults.
class LayoutChecksTest : public ::testing::Test {
 protected:
  LayoutChecksTest()
      : window_(CreateWindowExW(0, L"#32770", L"", WS_POPUP, 0, 0, 400, 200, nullptr, nullptr, nullptr, nullptr)) {}
  ~LayoutChecksTest() override { DestroyWindow(window_); }

  HWND Add(const wchar_t* name, const wchar_t* text, DWORD style, const RECT& bounds, int id = 0) {
    return CreateWindowExW(0, name, text, WS_CHILD | WS_VISIBLE | style, bounds.left, bounds.top,
                           bounds.right - bounds.left, bounds.bottom - bounds.top, window_,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  }

  HWND window_;
};

TEST_F(LayoutChecksTest, FindControlsThatOverlap) {
  Add(L"Static", L"", 0, {0, 0, 50, 20}, 1);
  Add(L"Static", L"", 0, {50, 0, 100, 20}, 2);
  EXPECT_EQ(support::OverlappingControls(window_), Texts{});
  Add(L"Static", L"", 0, {99, 19, 150, 40}, 3);
  EXPECT_EQ(support::OverlappingControls(window_), Texts{"2 (50,0)-(100,20) over 3 (99,19)-(150,40)"});
}

TEST_F(LayoutChecksTest, FindAControlThatIsNotWhollyInside) {
  Add(L"Static", L"", 0, {0, 0, 400, 200}, 1);
  EXPECT_EQ(support::ControlsOutside(window_), Texts{});
  Add(L"Static", L"", 0, {350, 0, 401, 20}, 2);
  Add(L"Static", L"", 0, {0, 181, 50, 201}, 3);
  Add(L"Static", L"", 0, {-1, 0, 50, 20}, 4);
  EXPECT_EQ(support::ControlsOutside(window_), (Texts{"2 (350,0)-(401,20)", "3 (0,181)-(50,201)", "4 (-1,0)-(50,20)"}));
}

TEST_F(LayoutChecksTest, FindRowsThatCutLetters) {
  Add(L"Edit", L"", 0, {0, 0, 50, 30}, 1);
  Add(L"Edit", L"", 0, {0, 0, 50, 5}, 2);
  const HWND list = Add(L"ListBox", L"", LBS_OWNERDRAWFIXED, {0, 0, 50, 50}, 3);
  SendMessageW(list, LB_SETITEMHEIGHT, 0, 5);
  Add(L"ComboBox", L"", CBS_DROPDOWNLIST, {0, 0, 50, 50}, 4);
  const HWND low = Add(L"ComboBox", L"", CBS_DROPDOWNLIST, {0, 0, 50, 50}, 5);
  SendMessageW(low, CB_SETITEMHEIGHT, WPARAM(-1), 5);
  EXPECT_EQ(support::ListsThatCutLetters(window_), (std::vector<int>{2, 3, 5}));
}

TEST_F(LayoutChecksTest, FindAChoiceThatIsCutOff) {
  const HWND narrow = Add(L"ComboBox", L"", CBS_DROPDOWNLIST, {0, 0, 60, 50});
  for (const wchar_t* text : {L"A choice without room", L"x"})
    SendMessageW(narrow, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
  const HWND wide = Add(L"ComboBox", L"", CBS_DROPDOWNLIST, {0, 0, 300, 50});
  SendMessageW(wide, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"A choice with room"));
  Add(L"Edit", L"A text without room", 0, {0, 0, 40, 20});
  Add(L"Edit", L"A text on two lines", ES_MULTILINE, {0, 0, 40, 60});
  EXPECT_EQ(support::CutOffChoices(window_), (Texts{"A choice without room", "A text without room"}));
}

TEST_F(LayoutChecksTest, FindAHeaderThatIsCutOff) {
  const HWND list = Add(WC_LISTVIEWW, L"", LVS_REPORT, {0, 0, 300, 100});
  std::wstring text = L"Header";
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT | LVCF_WIDTH;
  column.pszText = text.data();
  for (const int width : {20, 150}) {
    column.cx = width;
    SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  }
  EXPECT_EQ(support::CutOffHeaders(list), Texts{"Header"});
}

}  // namespace
}  // namespace tarvik
