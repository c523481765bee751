// The grid's picture on the screen, compared with icons that the platform draws at the same places.

#include <windows.h>

#include "end_to_end/GridByHand.h"

namespace tarvik::end_to_end {
namespace {

using support::IconFileOf;

class GridPictureAtSize : public GridPicture, public ::testing::WithParamInterface<Geometry> {};

TEST_P(GridPictureAtSize, ShowsTheIconsAsThePlatformDrawsThem) {
  MakeTree();
  Start();
  Tick({Ico, Ani, Dll});
  ChooseSize(GetParam().choice);
  Find();
  ASSERT_EQ(Entries().size(), 17U);
  EXPECT_TRUE(Shows(*ExpectedPicture(GetParam()), 0));
}

TEST_P(GridPictureAtSize, ShowsTheLastRowsWhenScrolledToTheEnd) {
  CopyHundredIcons(In("hundred.dll"));
  for (const char* name : {"x1.dll", "x2.dll"}) CopyHundredIcons(In(name));
  Start();
  Tick({Dll});
  ChooseSize(GetParam().choice);
  SetLimit("300");
  Find();
  const auto expected = ExpectedPicture(GetParam());
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
  const auto expected = ExpectedPicture(geometries[1]);
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
  const auto expected = ExpectedPicture(geometries[1]);
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
  TurnWheel(MiddleOf(program_.Item(FrmFindIcon_PicFrame).Bounds()), -1);
  EXPECT_TRUE(Eventually([&] { return ScrolledPixels() > 0; }));
  TurnWheel(MiddleOf(program_.Item(FrmFindIcon_PicFrame).Bounds()), 5);
  EXPECT_TRUE(Eventually([&] { return ScrolledPixels() == 0; }));
  const RECT bar = program_.Item(FrmFindIcon_Vsb).Bounds();
  Click({(bar.left + bar.right) / 2, bar.bottom - 4});
  EXPECT_TRUE(Eventually([&] { return ScrolledPixels() > 0; }));
}

TEST_F(GridPicture, FollowsTheThumbWhileItIsDragged) {
  CopyHundredIcons(In("hundred.dll"));
  Start();
  Tick({Dll});
  ChooseSize(Size64);
  Find();
  const auto expected = ExpectedPicture(geometries[Size64]);
  const int end = expected->Height() - viewportHeight;
  const RECT bar = program_.Item(FrmFindIcon_Vsb).Bounds();
  const int arrow = GetSystemMetrics(SM_CYVSCROLL);
  const POINT thumb{(bar.left + bar.right) / 2, bar.top + arrow + 3};
  DragAndHold(thumb, {thumb.x, (bar.top + bar.bottom) / 2});
  EXPECT_TRUE(Eventually([&] { return ScrolledPixels() > 0 && ScrolledPixels() < end; })) << ScrolledPixels();
  const int dragged = ScrolledPixels();
  EXPECT_TRUE(ComesToShow(*expected, dragged));
  ReleaseLeft({thumb.x, bar.bottom + arrow});
  EXPECT_TRUE(Eventually([&] { return ScrolledPixels() == end; })) << ScrolledPixels();
  EXPECT_TRUE(Shows(*expected, end));
  EXPECT_EQ(program_.Item(FrmFindIcon_Vsb).Scroll().nPos, end);
}

// A touchpad and a fine wheel send a notch in many small parts. Once each part alone did not scroll.
TEST_F(GridPicture, PartsOfANotchAddUpToOne) {
  CopyHundredIcons(In("hundred.dll"));
  Start();
  Tick({Dll});
  ChooseSize(Size64);
  Find();
  const Control frame = program_.Item(FrmFindIcon_PicFrame);
  const POINT point = MiddleOf(frame.Bounds());
  const auto turn = [&](int delta) {
    frame.Post(WM_MOUSEWHEEL, static_cast<WPARAM>(delta) << 16U, MAKELPARAM(point.x, point.y));
  };
  turn(-WHEEL_DELTA);
  EXPECT_TRUE(Eventually([&] { return ScrolledPixels() > 0; }));
  const int notch = ScrolledPixels();
  for (int part = 0; part < 12; ++part) turn(-WHEEL_DELTA / 12);
  EXPECT_TRUE(Eventually([&] { return ScrolledPixels() == 2 * notch; })) << ScrolledPixels();
  EXPECT_TRUE(Shows(*ExpectedPicture(geometries[Size64]), 2 * notch));
  for (int part = 0; part < 48; ++part) turn(WHEEL_DELTA / 24);
  EXPECT_TRUE(Eventually([&] { return ScrolledPixels() == 0; })) << ScrolledPixels();
}

}  // namespace
}  // namespace tarvik::end_to_end
