#include "forms/FolderLists.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

using support::FindIconFixture;

class FolderListsTest : public FindIconFixture {
 protected:
  // How many pixels a list can be scrolled to the right.
  int ScrollsRight(int id) const {
    SCROLLINFO bar{};
    bar.cbSize = sizeof bar;
    bar.fMask = SIF_RANGE | SIF_PAGE;
    const bool shown = (GetWindowLongW(Item(id), GWL_STYLE) & WS_HSCROLL) != 0;
    if (!shown || GetScrollInfo(Item(id), SB_HORZ, &bar) == FALSE) return 0;
    return std::max(0, bar.nMax + 1 - static_cast<int>(bar.nPage));
  }
  int ScrolledRight(int id) const { return GetScrollPos(Item(id), SB_HORZ); }
  int InnerWidth(int id) const {
    RECT inside{};
    GetClientRect(Item(id), &inside);
    return inside.right;
  }
  int TextWidth(int id, const std::string& text) const {
    const WindowDc dc(Item(id));
    const SelectedObject font(dc.get(), reinterpret_cast<HGDIOBJ>(SendMessageW(Item(id), WM_GETFONT, 0, 0)));
    SIZE size{};
    const std::wstring wide = ToWide(text);
    GetTextExtentPoint32W(dc.get(), wide.c_str(), static_cast<int>(wide.size()), &size);
    return size.cx;
  }

  const std::string longName_ = "a name that is far too long for a list of this width, as names often are.ico";
};

TEST_F(FolderListsTest, ScrollToTheEndOfALongFileName) {
  machine.files["C:\\icons"] = {"short.ico", longName_};
  Open();
  const int right = ScrollsRight(FrmFindIcon_File1);
  EXPECT_GE(right, TextWidth(FrmFindIcon_File1, longName_) - InnerWidth(FrmFindIcon_File1));
  EXPECT_LE(right, TextWidth(FrmFindIcon_File1, longName_) - InnerWidth(FrmFindIcon_File1) + 20);
}

TEST_F(FolderListsTest, ScrollToTheEndOfADeepFolderWithItsIndent) {
  std::string folder = "C:";
  for (int depth = 0; depth < 30; ++depth) folder += "\\folder " + std::to_string(depth);
  ini.values["FindIcon/Folder"] = folder;
  Open();
  const int height = static_cast<int>(SendMessageW(Item(FrmFindIcon_Dir1), LB_GETITEMHEIGHT, 0, 0));
  const int needed = 30 * height / 2 + height * 5 / 4 + TextWidth(FrmFindIcon_Dir1, "folder 29");
  const int right = ScrollsRight(FrmFindIcon_Dir1);
  EXPECT_GE(right, needed - InnerWidth(FrmFindIcon_Dir1));
  EXPECT_LE(right, needed - InnerWidth(FrmFindIcon_Dir1) + 20);
}

TEST_F(FolderListsTest, HaveNoScrollBarBelowWhereAllNamesFit) {
  machine.files["C:\\icons"] = {"short.ico"};
  Open();
  EXPECT_EQ(ScrollsRight(FrmFindIcon_File1), 0);
  EXPECT_EQ(ScrollsRight(FrmFindIcon_Dir1), 0);
}

TEST_F(FolderListsTest, GoBackToTheLeftForAnotherFolder) {
  machine.files["C:\\icons"] = {longName_};
  machine.subFolders["C:\\icons"] = {"C:\\icons\\below"};
  machine.files["C:\\icons\\below"] = {longName_ + longName_};
  Open();
  SendMessageW(Item(FrmFindIcon_File1), WM_HSCROLL, SB_RIGHT, 0);
  ASSERT_GT(ScrolledRight(FrmFindIcon_File1), 0);
  SendMessageW(Item(FrmFindIcon_Dir1), LB_SETCURSEL, 2, 0);
  SendMessageW(window->Window(), WM_COMMAND, MAKEWPARAM(FrmFindIcon_Dir1, LBN_DBLCLK), 0);
  application.DoEvents();
  EXPECT_EQ(ScrolledRight(FrmFindIcon_File1), 0);
  EXPECT_GT(ScrollsRight(FrmFindIcon_File1), 0);
}

// A drawn row is clipped only at the list's edge, so that the end of its name is visible after scrolling there.
TEST_F(FolderListsTest, ShowTheEndOfAFoldersNameWhenScrolledToIt) {
  machine.subFolders["C:\\icons"] = {"C:\\icons\\" + std::string(60, 'W') + "MMMMMMMMMM"};
  Open();
  SendMessageW(Item(FrmFindIcon_Dir1), WM_HSCROLL, SB_RIGHT, 0);
  application.DoEvents();
  ASSERT_GT(ScrolledRight(FrmFindIcon_Dir1), 0);
  RECT row{};
  SendMessageW(Item(FrmFindIcon_Dir1), LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&row));
  const int middle = (row.top + row.bottom) / 2;
  const WindowDc dc(Item(FrmFindIcon_Dir1));
  const Color paper = GetSysColor(COLOR_WINDOW);
  int inked = 0;
  for (int x = InnerWidth(FrmFindIcon_Dir1) / 2; x < InnerWidth(FrmFindIcon_Dir1); ++x)
    inked += GetPixel(dc.get(), x, middle) != paper ? 1 : 0;
  EXPECT_GT(inked, 10);
}

// Runs at the dpi of the current display; tests/CMakeLists.txt lists the values.
class FolderPictogramOnDisplay : public FolderListsTest {
 protected:
  // The part of a row, drawn alone, that has the outline of a pictogram.
  RECT OutlineOf(UINT row) const {
    constexpr Color outline = 0x146E96;
    const int height = static_cast<int>(SendMessageW(Item(FrmFindIcon_Dir1), LB_GETITEMHEIGHT, 0, 0));
    Surface drawn(300, height, white);
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_LISTBOX;
    item.CtlID = FrmFindIcon_Dir1;
    item.itemID = row;
    item.hDC = drawn.Dc();
    item.rcItem = {0, 0, drawn.Width(), height};
    SendMessageW(window->Window(), WM_DRAWITEM, FrmFindIcon_Dir1, reinterpret_cast<LPARAM>(&item));
    GdiFlush();
    RECT seen{};
    for (int y = 0; y < drawn.Height(); ++y) {
      for (int x = 0; x < drawn.Width(); ++x) {
        const RECT pixel{x, y, x + 1, y + 1};
        if (drawn.Pixel(x, y) == outline) UnionRect(&seen, &seen, &pixel);
      }
    }
    return seen;
  }
};

// It grew higher with the row, and wider only in whole steps.
TEST_F(FolderPictogramOnDisplay, KeepsItsShape) {
  machine.subFolders["C:\\icons"] = {"C:\\icons\\below"};
  Open();
  const RECT seen = OutlineOf(2);
  const auto width = static_cast<double>(seen.right - seen.left);
  const auto height = static_cast<double>(seen.bottom - seen.top);
  EXPECT_NEAR(width / height, 11.0 / 13, 0.08) << width << " x " << height;
}

}  // namespace
}  // namespace tarvik
