#include "startup/TextChecks.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tarvik {
namespace {

using support::CutOffTexts;
using support::MenuTextsWithTakenKeys;
using support::TextsWithTakenKeys;
using Texts = std::vector<std::string>;

// Tests the checks themselves: they must find the faults.
class TextChecksTest : public ::testing::Test {
 protected:
  TextChecksTest()
      : window_(CreateWindowExW(0, L"#32770", L"", WS_POPUP, 0, 0, 400, 200, nullptr, nullptr, nullptr, nullptr)) {}
  ~TextChecksTest() override { DestroyWindow(window_); }

  void Add(const wchar_t* name, const wchar_t* text, DWORD style, int width, int height) {
    CreateWindowExW(0, name, text, WS_CHILD | style, 0, 0, width, height, window_, nullptr, nullptr, nullptr);
  }

  HWND window_;
};

TEST_F(TextChecksTest, FindAKeyThatIsTaken) {
  Add(L"Button", L"&Open", BS_PUSHBUTTON, 90, 30);
  Add(L"Button", L"Save && &Keep", BS_PUSHBUTTON, 90, 30);
  Add(L"Static", L"&Old name", SS_LEFT, 90, 30);
  Add(L"Static", L"&O as it stands", SS_NOPREFIX, 90, 30);
  Add(L"Button", L"确定(&o)", BS_PUSHBUTTON, 90, 30);
  Texts found = TextsWithTakenKeys(window_);
  std::ranges::sort(found);
  EXPECT_EQ(found, (Texts{"&Old name", "确定(&o)"}));
}

TEST_F(TextChecksTest, FindAMenuKeyThatIsTakenInItsOwnMenuAlone) {
  const HMENU menu = CreateMenu();
  const HMENU below = CreatePopupMenu();
  AppendMenuW(below, MF_STRING, 1, L"&File");
  AppendMenuW(below, MF_STRING, 2, L"&Find");
  AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(below), L"&File");
  AppendMenuW(menu, MF_STRING, 3, L"&View");
  SetMenu(window_, menu);
  EXPECT_EQ(MenuTextsWithTakenKeys(window_), Texts{"&Find"});
}

TEST_F(TextChecksTest, FindATextThatIsCutOff) {
  Add(L"Static", L"A label that is far too long", SS_LEFT, 60, 16);
  Add(L"Static", L"A label on two lines", SS_LEFT, 90, 40);
  Add(L"Button", L"A box without room", BS_AUTOCHECKBOX, 60, 20);
  Add(L"Button", L"OK", BS_PUSHBUTTON, 60, 20);
  Texts found = CutOffTexts(window_);
  std::ranges::sort(found);
  EXPECT_EQ(found, (Texts{"A box without room", "A label that is far too long"}));
}

}  // namespace
}  // namespace tarvik
