// The grid's tool tip: its text for the place under the pointer.

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

class FrmFindIconTipTest : public support::FindIconFixture {
 protected:
  void SetUp() override {
    support::FindIconFixture::SetUp();
    SetCursorPos(0, 0);  // not over the grid, which would see it
  }
  // The grid's tool tip control, found among those of the other controls.
  HWND TipOfGrid() const {
    HWND found = nullptr;
    while ((found = FindWindowExW(nullptr, found, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
      const bool isOwn = GetWindowThreadProcessId(found, nullptr) == GetCurrentThreadId();
      if (isOwn && GetWindow(found, GW_OWNER) == window->Window() && !PartOf(found).empty()) return found;
    }
    return nullptr;
  }
  // The tip's text while the pointer rests; empty if there is no tip.
  std::string Tip() const {
    const HWND tip = TipOfGrid();
    return tip == nullptr ? std::string() : PartOf(tip);
  }
  std::string TipAt(int x, int y) const {
    SendMessageW(Grid(), WM_MOUSEMOVE, 0, MAKELPARAM(x, y));
    return Tip();
  }
  // The tip over the middle of an icon of 32 pixels, by its number.
  std::string TipOf(int number) const {
    return TipAt(3 + (number - 1) % 15 * 38 + 16, 3 + (number - 1) / 15 * 38 + 16);
  }

 private:
  std::string PartOf(HWND tip) const {
    std::array<wchar_t, 2048> text{};
    TTTOOLINFOW part{};
    part.cbSize = TTTOOLINFOW_V1_SIZE;
    part.lpszText = text.data();
    if (SendMessageW(tip, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&part)) == 0 || part.hwnd != Grid()) return {};
    return ToUtf8(text.data());
  }
};

TEST_F(FrmFindIconTipTest, NamesFileAndIndexInEachLanguage) {
  struct Row {
    const char* language;
    const char* second;
  };
  for (const Row& row : {Row{"ENG", "Index 1"}, Row{"CHS", "索引 1"}, Row{"CHT", "索引 1"}}) {
    Open(row.language);
    Find(3);
    EXPECT_EQ(TipOf(2), std::string("C:\\icons\\some.dll\r\n") + row.second);
  }
  Open("XYZ");
  Find(3);
  EXPECT_EQ(TipOf(2), "C:\\icons\\some.dll");
}

TEST_F(FrmFindIconTipTest, NamesTheIconThatAClickThereChooses) {
  Open();
  machine.files["C:\\icons"] = {"a.dll", "b & c.dll"};
  machine.icons["C:\\icons\\a.dll"] = 16;
  machine.icons["C:\\icons\\b & c.dll"] = 3;
  Click(FrmFindIcon_CmdFind);
  EXPECT_EQ(TipOf(1), "C:\\icons\\a.dll\r\nIndex 0");
  EXPECT_EQ(TipOf(16), "C:\\icons\\a.dll\r\nIndex 15");
  EXPECT_EQ(TipOf(17), "C:\\icons\\b & c.dll\r\nIndex 0");
  EXPECT_EQ(TipAt(579, 10), "C:\\icons\\a.dll\r\nIndex 15") << "past the end of the row";
  ReleaseOnGrid(579, 10);
  EXPECT_TRUE(IsRowSelected(16));
}

TEST_F(FrmFindIconTipTest, SaysNothingWhereThereIsNoIcon) {
  Open();
  EXPECT_EQ(TipOf(1), "");
  Find(3);
  EXPECT_NE(TipOf(3), "");
  EXPECT_EQ(TipOf(4), "");
  EXPECT_NE(TipOf(3), "");
  EXPECT_EQ(TipOf(18), "") << "the row below";
  EXPECT_NE(TipOf(3), "");
  EXPECT_EQ(TipAt(600, 10), "") << "right of what can be clicked";
}

TEST_F(FrmFindIconTipTest, ForgetsAListThatIsGone) {
  Open();
  Find(3);
  EXPECT_NE(TipOf(1), "");
  machine.files["C:\\icons"] = {"other.dll"};
  machine.icons["C:\\icons\\other.dll"] = 1;
  Click(FrmFindIcon_CmdFind);
  EXPECT_EQ(Tip(), "") << "before the pointer moves";
  EXPECT_EQ(TipOf(1), "C:\\icons\\other.dll\r\nIndex 0");
  EXPECT_EQ(TipOf(2), "");
  EXPECT_NE(TipOf(1), "");
  machine.icons["C:\\icons\\other.dll"] = 0;
  Click(FrmFindIcon_CmdFind);
  EXPECT_EQ(Tip(), "") << "after a refused search";
  EXPECT_EQ(TipOf(1), "");
}

TEST_F(FrmFindIconTipTest, FollowsTheGridThatScrollsUnderThePointer) {
  Open();
  Find(150);
  EXPECT_EQ(TipOf(1), "C:\\icons\\some.dll\r\nIndex 0");
  SendMessageW(window->Window(), WM_VSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(Item(FrmFindIcon_Vsb)));
  EXPECT_EQ(Tip(), "") << "before the pointer moves";
  EXPECT_EQ(TipOf(16), "C:\\icons\\some.dll\r\nIndex 15");
  RECT bounds{};
  GetWindowRect(Item(FrmFindIcon_PicFrame), &bounds);
  PostMessageW(Grid(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)),
               MAKELPARAM(bounds.left + 20, bounds.top + 20));
  application.DoEvents();
  EXPECT_EQ(Tip(), "") << "before the pointer moves";
}

TEST_F(FrmFindIconTipTest, GoesWithTheGrid) {
  Open();
  Find(3);
  EXPECT_NE(TipOf(1), "");
  Click(FrmFindIcon_OptView1);
  EXPECT_EQ(Tip(), "");
}

TEST_F(FrmFindIconTipTest, BreaksALongPathIntoLines) {
  Open();
  std::string folder = "C:";
  for (int depth = 0; depth < 10; ++depth) folder += "\\a folder with a long name";
  machine.files["C:\\icons"] = {folder.substr(3) + "\\图标.dll"};
  machine.icons["C:\\icons\\" + folder.substr(3) + "\\图标.dll"] = 1;
  Click(FrmFindIcon_CmdFind);
  const std::string tip = TipOf(1);
  std::string path = tip;
  std::size_t longest = 0;
  for (std::size_t end = 0; (end = path.find("\r\n")) != std::string::npos;) {
    longest = std::max(longest, end);
    path.erase(0, end + 2);
  }
  EXPECT_EQ(longest, 78U) << tip;
  EXPECT_EQ(path, "Index 0");
}

}  // namespace
}  // namespace tarvik
