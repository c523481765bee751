// The enhanced view on displays of a higher dpi: its picture is larger, and its texts are the same. These cases run at
// the dpi of the current display; tests/CMakeLists.txt lists the values.

#include <windows.h>

#include <commctrl.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <vector>

#include "platform/Display.h"
#include "view/ViewFixture.h"

namespace tarvik {
namespace {

class ViewOnDisplay : public support::ViewFixture {
 protected:
  // The side of an icon's pixel at the factors 1, 3, 5 and 10, the picture's corner, and the side of the toolbar's
  // pictures.
  struct Row {
    int dots;
    std::array<int, 4> sides;
    int corner;
    int buttonSide;
  };
  static constexpr std::array factors{1, 3, 5, 10};

  static const Row& OfDisplay() {
    static constexpr auto rows = std::to_array<Row>({{96, {1, 3, 5, 10}, 100, 24},
                                                     {120, {1, 4, 6, 13}, 125, 30},
                                                     {144, {2, 5, 8, 15}, 150, 36},
                                                     {168, {2, 5, 9, 18}, 175, 42},
                                                     {192, {2, 6, 10, 20}, 200, 48}});
    return *std::ranges::find(rows, DotsOfDisplay(), &Row::dots);
  }
  // The sides of the pictures that an icon resource has.
  static std::vector<int> SidesOf(int icon) {
    const HMODULE program = GetModuleHandleW(nullptr);
    const HRSRC found = FindResourceW(program, MAKEINTRESOURCEW(icon), RT_GROUP_ICON);
    const auto* const group = static_cast<const BYTE*>(LockResource(LoadResource(program, found)));
    constexpr int header = 6;  // bytes; the number of pictures is in the fifth
    constexpr int entry = 14;  // bytes; the width is in the first
    std::vector<int> sides;
    for (int picture = 0; group != nullptr && picture < group[4]; ++picture)
      sides.push_back(group[header + picture * entry]);
    return sides;
  }
  // Compares the window's pixels with the entry's picture, each pixel as a square of that side.
  void ExpectSquares(int number, int side, int size) {
    const RECT bounds = BoundsOf(frmBit_img);
    ASSERT_EQ(bounds.left, OfDisplay().corner);
    ASSERT_EQ(bounds.top, OfDisplay().corner);
    ASSERT_EQ(bounds.right - bounds.left, side * size);
    ASSERT_EQ(bounds.bottom - bounds.top, side * size);
    application.DoEvents();
    Surface shown(side * size, side * size, black);
    const WindowDc dc(Item(frmBit_img));
    BitBlt(shown.Dc(), 0, 0, shown.Width(), shown.Height(), dc.get(), 0, 0, SRCCOPY);
    GdiFlush();
    for (int y = 0; y < shown.Height(); ++y) {
      for (int x = 0; x < shown.Width(); ++x) {
        ASSERT_EQ(shown.Pixel(x, y), support::PictureHost::ColorOf(number, x / side, y / side)) << x << ", " << y;
      }
    }
  }
};

TEST_F(ViewOnDisplay, MakesEveryPixelASquareThatGrowsWithTheDisplay) {
  MakeList(3, 1, 16);
  WhileOpen([this] {
    ShowWindow(view->Window(), SW_MAXIMIZE);
    ExpectSquares(2, OfDisplay().sides[2], 16);  // at the factor that it opens with
    for (std::size_t i = 0; i < factors.size(); ++i) {
      ChooseZoom(factors.at(i) - 1);
      ExpectSquares(2, OfDisplay().sides.at(i), 16);
    }
    Click(frmBit_tlb_control_MoveFirst);
    ExpectSquares(1, OfDisplay().sides.back(), 16);
  });
}

TEST_F(ViewOnDisplay, TellsTheSizeOfThePictureAsOnAnyDisplay) {
  WhileOpen([this] {
    EXPECT_EQ(Caption(), "Enhanced View - [Height=160, Width=160]");
    ChooseZoom(0);
    EXPECT_EQ(Caption(), "Enhanced View - [Height=32, Width=32]");
    ChooseZoom(9);
    EXPECT_EQ(Caption(), "Enhanced View - [Height=320, Width=320]");
  });
}

// Pictures of any other size would be stretched.
TEST_F(ViewOnDisplay, HasToolbarPicturesThatGrowWithTheDisplayAndAreNotStretched) {
  const int side = OfDisplay().buttonSide;
  WhileOpen([&] {
    for (const UINT which : std::array<UINT, 2>{TB_GETIMAGELIST, TB_GETDISABLEDIMAGELIST}) {
      auto* const pictures = reinterpret_cast<HIMAGELIST>(SendMessageW(Item(frmBit_tlb_control), which, 0, 0));
      int width = 0;
      int height = 0;
      ImageList_GetIconSize(pictures, &width, &height);
      EXPECT_EQ(width, side);
      EXPECT_EQ(height, side);
      EXPECT_EQ(ImageList_GetImageCount(pictures), 9);
    }
  });
  for (int button = frmBit_tlb_control_MoveFirst; button <= frmBit_tlb_control_Exit; ++button)
    EXPECT_THAT(SidesOf(button), ::testing::Contains(side)) << button;
  for (const int disabled : {Icon_frmBit_StartDisabled, Icon_frmBit_StopDisabled})
    EXPECT_THAT(SidesOf(disabled), ::testing::Contains(side)) << disabled;
}

// The window's size is in twips, so it grows with the display too.
TEST_F(ViewOnDisplay, FillsItsWindowAsFarAsOnAnyDisplay) {
  WhileOpen([this] {
    const RECT picture = BoundsOf(frmBit_img);
    EXPECT_NEAR(100.0 * static_cast<double>(picture.right) / static_cast<double>(WindowSize().cx), 59, 5);
    EXPECT_NEAR(100.0 * static_cast<double>(picture.bottom) / static_cast<double>(WindowSize().cy), 73, 5);
    EXPECT_LE(BoundsOf(frmBit_CboZoom).bottom, picture.top);
  });
}

}  // namespace
}  // namespace tarvik
