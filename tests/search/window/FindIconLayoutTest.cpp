#include "search/window/FindIconLayout.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>

#include "search/window/FindIconFixture.h"
#include "startup/LayoutChecks.h"

namespace tarvik {
namespace {

using support::FindIconFixture;
using Bounds = std::map<int, RECT>;  // of the visible controls, by their ids

class FindIconLayoutTest : public FindIconFixture {
 protected:
  RECT BoundsOf(int id) const {
    RECT bounds{};
    GetWindowRect(Item(id), &bounds);
    MapWindowPoints(nullptr, window->Window(), reinterpret_cast<POINT*>(&bounds), 2);
    return bounds;
  }
  static int WidthOf(const RECT& bounds) { return static_cast<int>(bounds.right - bounds.left); }
  static int HeightOf(const RECT& bounds) { return static_cast<int>(bounds.bottom - bounds.top); }
  SIZE Size() const {
    RECT bounds{};
    GetWindowRect(window->Window(), &bounds);
    return {bounds.right - bounds.left, bounds.bottom - bounds.top};
  }
  void Resize(SIZE size) {
    // In the screen's corner, so that all of it is on the screen.
    SetWindowPos(window->Window(), nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER);
    application.DoEvents();
  }
  void Enlarge(int width, int height) {
    const SIZE size = Size();
    Resize({size.cx + width, size.cy + height});
  }
  Bounds All() const {
    Bounds all;
    for (HWND child = GetWindow(window->Window(), GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
      const int id = GetDlgCtrlID(child);
      if ((GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) != 0) all[id] = BoundsOf(id);
    }
    return all;
  }
  // Checks that each of these moves by (x, y) and keeps its size.
  static void ExpectMoved(const Bounds& from, const Bounds& to, std::initializer_list<int> ids, int x, int y) {
    for (const int id : ids) {
      RECT expected = from.at(id);
      OffsetRect(&expected, x, y);
      const RECT seen = to.at(id);
      EXPECT_NE(EqualRect(&expected, &seen), FALSE)
          << id << ": " << seen.left << ',' << seen.top << ' ' << WidthOf(seen) << " x " << HeightOf(seen);
    }
  }
};

TEST_F(FindIconLayoutTest, CanBeEnlargedAndMaximisedButNotMadeSmaller) {
  Open();
  const LONG style = GetWindowLongW(window->Window(), GWL_STYLE);
  EXPECT_NE(style & WS_THICKFRAME, 0);
  EXPECT_NE(style & WS_MAXIMIZEBOX, 0);
  const SIZE first = Size();
  MINMAXINFO bounds{};
  SendMessageW(window->Window(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&bounds));
  EXPECT_EQ(bounds.ptMinTrackSize.x, first.cx);
  EXPECT_EQ(bounds.ptMinTrackSize.y, first.cy);
}

TEST_F(FindIconLayoutTest, GivesTheListsOfFoldersAndFilesTheRoomOfALargerWindow) {
  Open();
  const Bounds before = All();
  Enlarge(200, 120);
  const Bounds after = All();
  const RECT folders = after.at(FrmFindIcon_Dir1);
  const RECT fileList = after.at(FrmFindIcon_File1);
  EXPECT_EQ(WidthOf(folders), WidthOf(before.at(FrmFindIcon_Dir1)) + 100);
  EXPECT_EQ(HeightOf(folders), HeightOf(before.at(FrmFindIcon_Dir1)) + 120);
  EXPECT_EQ(fileList.left, before.at(FrmFindIcon_File1).left + 100);
  EXPECT_EQ(WidthOf(fileList), WidthOf(before.at(FrmFindIcon_File1)) + 100);
  EXPECT_EQ(HeightOf(fileList), HeightOf(before.at(FrmFindIcon_File1)) + 120);
  EXPECT_EQ(WidthOf(after.at(FrmFindIcon_Drive1)), WidthOf(before.at(FrmFindIcon_Drive1)) + 100);
  EXPECT_EQ(HeightOf(after.at(FrmFindIcon_Drive1)), HeightOf(before.at(FrmFindIcon_Drive1)));
  ExpectMoved(
      before, after,
      {FrmFindIcon_Label3, FrmFindIcon_ChkFileType0, FrmFindIcon_ChkFileType6, FrmFindIcon_chkSubDir,
       FrmFindIcon_lblIconSize, FrmFindIcon_CboIconSize, FrmFindIcon_SkinLabel1, FrmFindIcon_txtMax, FrmFindIcon_udMain,
       FrmFindIcon_SkinLabel2, FrmFindIcon_CmdFind, FrmFindIcon_CmdOk, FrmFindIcon_CmdClose},
      200, 0);
  ExpectMoved(before, after, {FrmFindIcon_OptView0, FrmFindIcon_OptView1, FrmFindIcon_Vsb}, 200, 120);
  ExpectMoved(before, after, {FrmFindIcon_lblInfo}, 0, 120);
  EXPECT_EQ(support::OverlappingControls(window->Window()), std::vector<std::string>{});
}

TEST_F(FindIconLayoutTest, KeepsTheGridsHeightAndPicture) {
  Open();
  Find(90);
  const RECT before = BoundsOf(FrmFindIcon_PicFrame);
  RECT picture{};
  GetClientRect(Grid(), &picture);
  Enlarge(300, 250);
  const RECT after = BoundsOf(FrmFindIcon_PicFrame);
  EXPECT_EQ(HeightOf(after), HeightOf(before));
  EXPECT_EQ(WidthOf(after), WidthOf(before) + 300);
  EXPECT_EQ(BoundsOf(FrmFindIcon_Vsb).left, after.right);
  RECT pictureAfter{};
  GetClientRect(Grid(), &pictureAfter);
  EXPECT_NE(EqualRect(&picture, &pictureAfter), FALSE);
  ReleaseOnGrid(3 + 2 * 38, 10);
  EXPECT_EQ(Text(FrmFindIcon_lblInfo), "Icon No 3 Selected.");
}

TEST_F(FindIconLayoutTest, SharesTheHeightBetweenTheIconListAndTheListsAbove) {
  Open();
  Click(FrmFindIcon_OptView1);
  const RECT list = BoundsOf(FrmFindIcon_Lv);
  const RECT folders = BoundsOf(FrmFindIcon_Dir1);
  Enlarge(300, 250);
  const RECT larger = BoundsOf(FrmFindIcon_Lv);
  EXPECT_EQ(WidthOf(larger), WidthOf(list) + 300);
  EXPECT_EQ(HeightOf(larger), HeightOf(list) + 125);
  EXPECT_EQ(HeightOf(BoundsOf(FrmFindIcon_Dir1)), HeightOf(folders) + 125);
  EXPECT_EQ(support::OverlappingControls(window->Window()), std::vector<std::string>{});
  Click(FrmFindIcon_OptView0);
  EXPECT_EQ(HeightOf(BoundsOf(FrmFindIcon_Dir1)), HeightOf(folders) + 250) << "the grid takes none of it";
  EXPECT_EQ(support::OverlappingControls(window->Window()), std::vector<std::string>{});
}

TEST_F(FindIconLayoutTest, IsAsItWasWhenTheWindowIsAsItWas) {
  Open();
  const SIZE first = Size();
  const Bounds before = All();
  Enlarge(301, 97);
  Click(FrmFindIcon_OptView1);
  Click(FrmFindIcon_OptView0);
  Resize(first);
  const Bounds after = All();
  ASSERT_EQ(before.size(), after.size());
  for (const auto& [id, bounds] : before) EXPECT_NE(EqualRect(&bounds, &after.at(id)), FALSE) << id;
}

TEST_F(FindIconLayoutTest, OpensTheDriveListAsFarAsBefore) {
  Open();
  const auto opened = [this] {
    RECT open{};
    SendMessageW(Item(FrmFindIcon_Drive1), CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&open));
    return HeightOf(open);
  };
  const int before = opened();
  for (int times = 0; times < 3; ++times) Enlarge(50, 20);
  EXPECT_GE(opened(), before);
  EXPECT_LE(opened(), before + 5) << "Wine rounds the height of a new control down to whole rows";
}

TEST_F(FindIconLayoutTest, FillsAMaximisedWindowAndSurvivesAMinimisedOne) {
  Open();
  const Bounds before = All();
  ShowWindow(window->Window(), SW_MAXIMIZE);
  application.DoEvents();
  RECT whole{};
  GetWindowRect(window->Window(), &whole);
  EXPECT_GE(whole.top, -GetSystemMetrics(SM_CYSIZEFRAME)) << "the caption is on the screen";
  RECT inside{};
  GetClientRect(window->Window(), &inside);
  const RECT bar = BoundsOf(FrmFindIcon_Vsb);
  const RECT status = BoundsOf(FrmFindIcon_sbMain);
  EXPECT_GT(inside.right, before.at(FrmFindIcon_Vsb).right + 20);
  EXPECT_GE(bar.right, inside.right - 20);
  EXPECT_LE(bar.right, inside.right);
  EXPECT_EQ(status.bottom, inside.bottom);
  EXPECT_GE(bar.bottom, status.top - 40);
  EXPECT_EQ(support::OverlappingControls(window->Window()), std::vector<std::string>{});
  ShowWindow(window->Window(), SW_MINIMIZE);
  application.DoEvents();
  ShowWindow(window->Window(), SW_RESTORE);
  application.DoEvents();
  ShowWindow(window->Window(), SW_RESTORE);
  application.DoEvents();
  const Bounds after = All();
  for (const auto& [id, bounds] : before) EXPECT_NE(EqualRect(&bounds, &after.at(id)), FALSE) << id;
}

// Labels and boxes once stayed blank after another control had moved across them.
TEST_F(FindIconLayoutTest, PaintsEveryControlAtItsNewPlace) {
  Open();
  const auto inkOf = [this](int id) {
    application.DoEvents();
    const WindowDc dc(Item(id));
    RECT inside{};
    GetClientRect(Item(id), &inside);
    int ink = 0;
    for (int y = 0; y < inside.bottom; ++y) {
      for (int x = 0; x < inside.right; ++x) ink += GetRValue(GetPixel(dc.get(), x, y)) < 128 ? 1 : 0;
    }
    return ink;
  };
  constexpr std::array controls{FrmFindIcon_Label3,     FrmFindIcon_ChkFileType1, FrmFindIcon_chkSubDir,
                                FrmFindIcon_SkinLabel1, FrmFindIcon_SkinLabel2,   FrmFindIcon_txtMax,
                                FrmFindIcon_CmdClose,   FrmFindIcon_OptView1};
  std::map<int, int> before;
  for (const int id : controls) before[id] = inkOf(id);
  for (const int step : {60, 340, -400}) {
    Enlarge(step, step / 2);
    for (const int id : controls) EXPECT_EQ(inkOf(id), before.at(id)) << id << " after " << step;
  }
}

TEST_F(FindIconLayoutTest, KeepsTheSizeOutOfTheSettings) {
  Open();
  Enlarge(200, 100);
  Click(FrmFindIcon_CmdClose);
  for (const auto& [key, value] : ini.values) {
    EXPECT_TRUE(key == "FindIcon/Folder" || key == "FindIcon/Subdir") << key << '=' << value;
  }
}

}  // namespace
}  // namespace tarvik
