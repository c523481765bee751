// The grid's picture on the screen, compared with icons that the platform draws at the same places.

#include <gmock/gmock.h>
#include <windows.h>

#include "driver/Input.h"
#include "driver/Screen.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/IconFiles.h"
#include "platform/Surface.h"

namespace tarvik::end_to_end {
namespace {

using testing::AnimationFile;
using testing::BitmapPicture;
using testing::IconFile;
using testing::IconFileOf;
using testing::PngPicture;

constexpr int viewportWidth = 685;
constexpr int viewportHeight = 190;

struct Geometry {
  IconSizeChoice choice;
  int size;
  int pitch;
  int firstFrame;  // the far corner of the frame around the first icon
  int columns;
  friend void PrintTo(const Geometry& geometry, std::ostream* out) { *out << geometry.size << " pixels"; }
};
constexpr Geometry geometries[] = {
    {Size16, 16, 22, 21, 31}, {Size32, 32, 38, 37, 15}, {Size48, 48, 54, 53, 10}, {Size64, 64, 70, 69, 8}};

class GridPicture : public EndToEnd {
 protected:
  // One icon of each depth, a PNG, an animation of 8 steps and a library of 3: 17 icons.
  void MakeTree() const {
    for (const int bits : {1, 4, 8, 24, 32}) {
      const testing::IconPicture pictures[] = {BitmapPicture(32, bits, 0x2040C0, 0x30B010)};
      tree_.MakeFile("bits" + std::to_string(bits) + ".ico", IconFile(pictures));
    }
    const testing::IconPicture png[] = {PngPicture(32, 0x8000FF, 0xFF8000)};
    tree_.MakeFile("picture.ico", IconFile(png));
    const Color colors[] = {0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF, 0xFF00FF, 0xFFFF00, 0x808080, 0x000080};
    tree_.MakeFile("spin.ani", AnimationFile(colors));
    CopyThreeIcons(In("three.dll"));
  }

  // The grid as the platform draws it: every entry's icon, and the frame of the first.
  std::unique_ptr<Surface> Expected(const Geometry& geometry) const {
    const auto entries = Entries();
    const int rows = (static_cast<int>(entries.size()) + geometry.columns - 1) / geometry.columns;
    auto picture = std::make_unique<Surface>(viewportWidth, std::max(viewportHeight, rows * geometry.pitch), white);
    for (int i = 0; const Entry& entry : entries) {
      const POINT corner{3 + i % geometry.columns * geometry.pitch, 3 + i / geometry.columns * geometry.pitch};
      DrawEntry(*picture, entry, corner, geometry.size);
      ++i;
    }
    for (int at = 1; at <= geometry.firstFrame; ++at) {
      for (const POINT pixel :
           {POINT{at, 1}, POINT{at, geometry.firstFrame}, POINT{1, at}, POINT{geometry.firstFrame, at}})
        SetPixel(picture->Dc(), pixel.x, pixel.y, black);
    }
    GdiFlush();
    return picture;
  }

  int ScrolledPixels() const {
    return static_cast<int>(program_.Item(FrmFindIcon_PicFrame).Inside().top -
                            program_.Item(FrmFindIcon_PicIcons).Place().top);
  }
  int GridHeight() const {
    const RECT place = program_.Item(FrmFindIcon_PicIcons).Place();
    return static_cast<int>(place.bottom - place.top);
  }

  // Whether the viewport comes to show that picture, from its row `top` on.
  bool Shows(const Surface& picture, int top) const {
    Surface visible(viewportWidth, viewportHeight, white);
    BitBlt(visible.Dc(), 0, 0, viewportWidth, viewportHeight, picture.Dc(), 0, top, SRCCOPY);
    GdiFlush();
    const RECT inside = program_.Item(FrmFindIcon_PicFrame).Inside();
    MovePointer({0, 0});
    int differences = 0;
    const bool same = Eventually([&] {
      const Screenshot shown(inside);
      differences = CountDifferences(shown, visible);
      return shown.Width() == viewportWidth && shown.Height() == viewportHeight && differences == 0;
    });
    EXPECT_TRUE(same) << differences << " pixels differ";
    return same;
  }
};

class GridPictureAtSize : public GridPicture, public ::testing::WithParamInterface<Geometry> {};

TEST_P(GridPictureAtSize, ShowsTheIconsAsThePlatformDrawsThem) {
  MakeTree();
  Start();
  Tick({Ico, Ani, Dll});
  ChooseSize(GetParam().choice);
  Find();
  ASSERT_EQ(Entries().size(), 17U);
  EXPECT_TRUE(Shows(*Expected(GetParam()), 0));
}

TEST_P(GridPictureAtSize, ShowsTheLastRowsWhenScrolledToTheEnd) {
  CopyHundredIcons(In("hundred.dll"));
  for (const char* name : {"x1.dll", "x2.dll"}) CopyHundredIcons(In(name));
  Start();
  Tick({Dll});
  ChooseSize(GetParam().choice);
  SetLimit("300");
  Find();
  const auto expected = Expected(GetParam());
  EXPECT_EQ(GridHeight(), expected->Height());
  program_.Item(FrmFindIcon_Vsb).Send(WM_KEYDOWN, VK_END);
  const int end = expected->Height() - viewportHeight;
  EXPECT_EQ(ScrolledPixels(), end);
  EXPECT_TRUE(Shows(*expected, end));
}

INSTANTIATE_TEST_SUITE_P(Sizes, GridPictureAtSize, ::testing::ValuesIn(geometries));

TEST_F(GridPicture, SurvivesAnotherWindowOverIt) {
  MakeTree();
  Start();
  Tick({Ico, Ani, Dll});
  Find();
  const auto expected = Expected(geometries[1]);
  Program other(home_.Path(), "other.exe");
  other.Start();
  EXPECT_EQ(other.Close(), 0U);
  EXPECT_TRUE(Shows(*expected, 0));
}

TEST_F(GridPicture, KeepsTheOldIconsWhenTheSizeChangesUntilTheNextSearch) {
  MakeTree();
  Start();
  Tick({Ico, Ani, Dll});
  Find();
  const auto expected = Expected(geometries[1]);
  ChooseSize(Size64);
  EXPECT_TRUE(Shows(*expected, 0));
}

TEST_F(GridPicture, IsBlankAfterARefusedSearch) {
  MakeTree();
  Start();
  Tick({Ico, Ani, Dll});
  Find();
  Tick({Exe});
  FindAndReadMessage();
  EXPECT_TRUE(Shows(Surface(viewportWidth, viewportHeight, white), 0));
}

struct HeightRow {
  int icons;
  IconSizeChoice size;
  int height;
  bool scrolls;
  friend void PrintTo(const HeightRow& row, std::ostream* out) {
    *out << row.icons << " icons, size " << geometries[row.size].size;
  }
};

class GridHeight : public GridPicture, public ::testing::WithParamInterface<HeightRow> {};

TEST_P(GridHeight, FollowsFromTheNumberOfRows) {
  const HeightRow& row = GetParam();
  for (int i = 0; i < row.icons; ++i) tree_.MakeFile(std::to_string(i) + ".ico", IconFileOf(0xFF));
  Start();
  ChooseSize(row.size);
  Find();
  ASSERT_EQ(List().RowCount(), row.icons);
  EXPECT_EQ(GridPicture::GridHeight(), row.height);
  EXPECT_EQ(IsEnabled(FrmFindIcon_Vsb), row.scrolls);
  EXPECT_EQ(ScrolledPixels(), 0);
  if (!row.scrolls) return;
  program_.Item(FrmFindIcon_Vsb).Send(WM_KEYDOWN, VK_END);
  EXPECT_EQ(ScrolledPixels(), row.height - viewportHeight);
}

INSTANTIATE_TEST_SUITE_P(Rows, GridHeight,
                         ::testing::Values(HeightRow{93, Size16, 190, false}, HeightRow{75, Size32, 190, false},
                                           HeightRow{76, Size32, 228, true}, HeightRow{90, Size32, 228, true},
                                           HeightRow{91, Size32, 266, true}));

TEST_F(GridPicture, TheWheelAndTheScrollBarMoveIt) {
  CopyHundredIcons(In("hundred.dll"));
  Start();
  Tick({Dll});
  Find();
  TurnWheel(MiddleOf(program_.Item(FrmFindIcon_PicFrame).Place()), -1);
  EXPECT_TRUE(Eventually([&] { return ScrolledPixels() > 0; }));
  TurnWheel(MiddleOf(program_.Item(FrmFindIcon_PicFrame).Place()), 5);
  EXPECT_TRUE(Eventually([&] { return ScrolledPixels() == 0; }));
  const RECT bar = program_.Item(FrmFindIcon_Vsb).Place();
  Click({(bar.left + bar.right) / 2, bar.bottom - 4});
  EXPECT_TRUE(Eventually([&] { return ScrolledPixels() > 0; }));
}

TEST_F(GridPicture, ASecondSearchScrollsBackToTheTop) {
  CopyHundredIcons(In("hundred.dll"));
  Start();
  Tick({Dll});
  Find();
  program_.Item(FrmFindIcon_Vsb).Send(WM_KEYDOWN, VK_END);
  ASSERT_GT(ScrolledPixels(), 0);
  Find();
  EXPECT_EQ(ScrolledPixels(), 0);
  EXPECT_TRUE(Shows(*Expected(geometries[1]), 0));
}

}  // namespace
}  // namespace tarvik::end_to_end
