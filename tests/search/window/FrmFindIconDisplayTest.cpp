// The grid and the list on displays of a higher dpi: the drawing is larger, its layout is the same. These cases run at
// the dpi of the current display; tests/CMakeLists.txt lists the values.

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

#include "forms/PictureBox.h"
#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

using support::FindIconFixture;
using support::SmallMachine;

constexpr int pitch = 38;  // of icons of 32 pixels

class FindIconOnDisplay : public FindIconFixture {
 protected:
  FindIconOnDisplay() {
    const WindowDc screen(nullptr);
    dots = GetDeviceCaps(screen.get(), LOGPIXELSX);
  }

  // The first display pixel that shows a pixel of the picture.
  int DisplayPixel(int pixel) const { return (pixel * dots + 95) / 96; }
  bool IsWhole() const { return dots % 96 == 0; }
  void ChooseSize(int size) {
    SendMessageW(Item(FrmFindIcon_CboIconSize), CB_SETCURSEL, static_cast<WPARAM>(size), 0);
    SendMessageW(window->Window(), WM_COMMAND, MAKEWPARAM(FrmFindIcon_CboIconSize, CBN_SELCHANGE), 0);
  }
  void ScrollToTheEnd() {
    SendMessageW(window->Window(), WM_VSCROLL, SB_BOTTOM, reinterpret_cast<LPARAM>(Item(FrmFindIcon_Vsb)));
  }
  // Hit test: the number of the entry that a click at a display pixel of the picture box selects, 0 if none.
  int ClickEntryAt(int x, int y) {
    SetText(FrmFindIcon_lblInfo, "none");
    ReleaseOnGrid(x, y);
    const std::string text = Text(FrmFindIcon_lblInfo);
    return text == "none" ? 0 : std::stoi(text.substr(8));
  }
  // The darkest of the display pixels that show a column of the picture.
  Color DarkestOf(int column, int y) const {
    Color darkest = white;
    for (int x = DisplayPixel(column) - 1; x < DisplayPixel(column + 1); ++x)
      darkest = std::min(darkest, GridPixel(x, y));
    return darkest;
  }
  SIZE InsideOf(HWND control) const {
    RECT inside{};
    GetClientRect(control, &inside);
    return {inside.right, inside.bottom};
  }
  POINT GridCorner() const {
    POINT corner{0, 0};
    MapWindowPoints(Grid(), Item(FrmFindIcon_PicFrame), &corner, 1);
    return corner;
  }

  int dots = 96;
};

TEST_F(FindIconOnDisplay, TheViewportIsAsLargeAsTheEnlargedGrid) {
  struct Row {
    int dots;
    int width;
    int height;
  };
  constexpr auto rows =
      std::to_array<Row>({{96, 685, 190}, {120, 857, 238}, {144, 1028, 285}, {168, 1199, 333}, {192, 1370, 380}});
  const auto* const row = std::ranges::find(rows, dots, &Row::dots);
  ASSERT_NE(row, rows.end()) << dots;
  Open();
  const SIZE viewport = InsideOf(Item(FrmFindIcon_PicFrame));
  EXPECT_EQ(viewport.cx, row->width);
  EXPECT_EQ(viewport.cy, row->height);
  const SIZE picture = InsideOf(Grid());
  EXPECT_EQ(picture.cx, row->width);
  EXPECT_EQ(picture.cy, row->height);
}

TEST_F(FindIconOnDisplay, APixelOfThePictureIsABlockAtWholeScalesAndMixedAtOthers) {
  Open();
  Find(3);
  // The first frame: black from 1 to 37; the first icon: from 3 to 34.
  const Color icon = SmallMachine::ColorOf(0);
  const int middle = DisplayPixel(18);
  if (IsWhole()) {
    const int times = dots / 96;
    const auto colorAt = [&](int x) { return x == 1 || x == 37 ? black : x >= 3 && x < 35 ? icon : white; };
    for (int x = 0; x < 40 * times; ++x) EXPECT_EQ(GridPixel(x, middle), colorAt(x / times)) << x;
    for (int y = 0; y < 40 * times; ++y) EXPECT_EQ(GridPixel(middle, y), colorAt(y / times)) << y;
  } else if (dots == 144) {
    // Each pair of pixels becomes three display pixels; the middle one is half of each.
    EXPECT_EQ(GridPixel(0, middle), white);
    EXPECT_EQ(GridPixel(1, middle), 0x808080U);
    EXPECT_EQ(GridPixel(2, middle), black);
    EXPECT_EQ(GridPixel(3, middle), white);
    EXPECT_EQ(GridPixel(5, middle), icon);
  }
  EXPECT_EQ(GridPixel(middle, middle), icon);
  EXPECT_EQ(GridPixel(DisplayPixel(33), DisplayPixel(33)), icon);
  EXPECT_EQ(GridPixel(DisplayPixel(36), DisplayPixel(39)), white);
}

TEST_F(FindIconOnDisplay, AClickMeansThePixelUnderThePointer) {
  Open();
  Find(40);
  const int y = DisplayPixel(20);
  EXPECT_EQ(ClickEntryAt(0, 0), 1);
  for (int column = 1; column < 15; ++column) {
    const int edge = DisplayPixel(column * pitch);
    EXPECT_EQ(ClickEntryAt(edge - 1, y), column) << column;
    EXPECT_EQ(ClickEntryAt(edge, y), column + 1) << column;
  }
  EXPECT_EQ(ClickEntryAt(y, DisplayPixel(pitch) - 1), 1);
  EXPECT_EQ(ClickEntryAt(y, DisplayPixel(pitch)), 16);
  EXPECT_EQ(ClickEntryAt(y, DisplayPixel(2 * pitch)), 31);
}

TEST_F(FindIconOnDisplay, TheBoundOf580IsOneOfThePicture) {
  Open();
  ChooseSize(0);
  Find(31);
  EXPECT_EQ(ClickEntryAt(DisplayPixel(581) - 1, DisplayPixel(10)), 27);
  EXPECT_EQ(ClickEntryAt(DisplayPixel(581), DisplayPixel(10)), 0);
  EXPECT_EQ(ClickEntryAt(-1, DisplayPixel(10)), 0);
}

TEST_F(FindIconOnDisplay, AFrameIsDrawnAndErasedWhole) {
  Open();
  Find(20);
  GridPixel(0, 0);  // paints everything
  const int y = DisplayPixel(20);
  ClickEntryAt(DisplayPixel(2 * pitch + 10), y);
  // A vertical line of the frame covers at least half of a display pixel.
  const Color maxColor = IsWhole() ? black : 0x808080;
  EXPECT_LE(DarkestOf(2 * pitch + 1, y), maxColor);
  EXPECT_LE(DarkestOf(2 * pitch + 37, y), maxColor);
  EXPECT_EQ(DarkestOf(1, y), white);
  EXPECT_EQ(DarkestOf(37, y), white);
}

TEST_F(FindIconOnDisplay, TheScrollBarCountsInPixelsOfThePicture) {
  Open();
  Find(90);
  SCROLLINFO bar{};
  bar.cbSize = sizeof bar;
  bar.fMask = SIF_RANGE | SIF_PAGE;
  GetScrollInfo(Item(FrmFindIcon_Vsb), SB_CTL, &bar);
  EXPECT_EQ(bar.nMax, 38 + 190 - 1);
  EXPECT_EQ(bar.nPage, 190U);
  ScrollToTheEnd();
  EXPECT_EQ(GridCorner().y, -DisplayPixel(38));
  EXPECT_EQ(InsideOf(Grid()).cy, DisplayPixel(228));
  // The last row of the picture is visible.
  EXPECT_LE(GridCorner().y + DisplayPixel(228), InsideOf(Item(FrmFindIcon_PicFrame)).cy);
  EXPECT_EQ(ClickEntryAt(DisplayPixel(10), DisplayPixel(228) - 1), 76);
}

// A window has 32767 pixels at most.
TEST_F(FindIconOnDisplay, APictureHigherThanAWindowIsScrolledToItsEndAndClicked) {
  constexpr int icons = 3000;
  constexpr int height = icons / 8 * 70;
  Open();
  ChooseSize(3);
  SetText(FrmFindIcon_txtMax, std::to_string(icons));
  Find(icons);
  ScrollToTheEnd();
  const POINT corner = GridCorner();
  const int above =
      DisplayPixel(height - 190) + static_cast<int>(corner.y);  // display pixels of the picture above the window
  const int y = DisplayPixel(height - 35) - above;              // in the window, of the last row's middle
  ASSERT_LT(y, 32767);
  EXPECT_GE(y + corner.y, 0);
  EXPECT_LT(y + corner.y, InsideOf(Item(FrmFindIcon_PicFrame)).cy);
  EXPECT_EQ(GridPixel(DisplayPixel(3 + 7 * 70 + 20), y), SmallMachine::ColorOf(icons - 1));
  EXPECT_EQ(ClickEntryAt(DisplayPixel(7 * 70 + 20), y), icons);
  const RECT bounds = PictureBox::BoundsInWindow(Grid(), {1, height - 69, 70, height});
  EXPECT_EQ(bounds.bottom, DisplayPixel(height) - above);
  SendMessageW(window->Window(), WM_VSCROLL, SB_TOP, reinterpret_cast<LPARAM>(Item(FrmFindIcon_Vsb)));
  EXPECT_EQ(GridCorner().y, 0);
  EXPECT_EQ(GridPixel(DisplayPixel(20), DisplayPixel(20)), SmallMachine::ColorOf(0));
  EXPECT_EQ(ClickEntryAt(DisplayPixel(20), DisplayPixel(20)), 1);
}

TEST_F(FindIconOnDisplay, TheListTakesTheGridsPlaceAndItsColumnsGrow) {
  Open();
  Find(3);
  RECT list{};
  RECT grid{};
  RECT bar{};
  GetWindowRect(Item(FrmFindIcon_Lv), &list);
  GetWindowRect(Item(FrmFindIcon_PicFrame), &grid);
  GetWindowRect(Item(FrmFindIcon_Vsb), &bar);
  EXPECT_EQ(list.left, grid.left);
  EXPECT_EQ(list.right, bar.right);
  EXPECT_EQ(list.top, grid.top);
  EXPECT_EQ(list.bottom, grid.bottom);
  constexpr std::array widths{40, 460, 80};
  for (int column = 0; column < 3; ++column) {
    EXPECT_EQ(ListView_GetColumnWidth(Item(FrmFindIcon_Lv), column),
              DisplayPixel(widths.at(static_cast<std::size_t>(column))));
  }
}

TEST_F(FindIconOnDisplay, EverythingIsInsideTheWindow) {
  Open();
  const SIZE inside = InsideOf(window->Window());
  RECT status{};
  GetWindowRect(Item(FrmFindIcon_sbMain), &status);
  MapWindowPoints(nullptr, window->Window(), reinterpret_cast<POINT*>(&status), 2);
  for (HWND child = GetWindow(window->Window(), GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    if ((GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) == 0) continue;
    RECT bounds{};
    GetWindowRect(child, &bounds);
    MapWindowPoints(nullptr, window->Window(), reinterpret_cast<POINT*>(&bounds), 2);
    EXPECT_LE(bounds.right, inside.cx) << GetDlgCtrlID(child);
    EXPECT_LE(bounds.bottom, child == Item(FrmFindIcon_sbMain) ? inside.cy : status.top) << GetDlgCtrlID(child);
  }
}

}  // namespace
}  // namespace tarvik
