// What the grid shows after several searches in a row, each with another number of icons or at another size: each must
// look as if it had been the first.

#include <windows.h>

#include "end_to_end/GridByHand.h"

namespace tarvik::end_to_end {
namespace {

class GridSteps : public GridPicture {
 protected:
  // 103 icons in two libraries, and 14 in files of the other kinds.
  void StartOnTwoCollections() {
    MakeTree();
    CopyHundredIcons(In("hundred.dll"));
    Start();
  }
  void FindMany() const {
    Tick({Dll});
    Find();
    EXPECT_EQ(List().RowCount(), 103);
  }
  void FindFew() const {
    Tick({Ico, Ani});
    Find();
    EXPECT_EQ(List().RowCount(), 14);
  }
  void ScrollToTheEnd() const {
    program_.Item(FrmFindIcon_Vsb).Send(WM_KEYDOWN, VK_END);
    EXPECT_GT(ScrolledPixels(), 0);
  }
  // Checks the whole grid from its top: its height, its scroll bar, its pixels, and a click in it.
  void ExpectFromTheTop(const Geometry& geometry) const {
    const auto expected = ExpectedPicture(geometry);
    EXPECT_EQ(GridHeight(), expected->Height());
    EXPECT_EQ(ScrolledPixels(), 0);
    const bool scrolls = expected->Height() > viewportHeight;
    EXPECT_EQ(IsEnabled(FrmFindIcon_Vsb), scrolls);
    EXPECT_EQ(program_.Item(FrmFindIcon_Vsb).Scroll().nPos, 0);
    EXPECT_TRUE(Shows(*expected, 0));
    const RECT grid = program_.Item(FrmFindIcon_PicFrame).Inside();
    Click({grid.left + 3 + geometry.pitch + geometry.size / 2, grid.top + 3 + geometry.size / 2});
    EXPECT_TRUE(Eventually([&] { return TextOf(FrmFindIcon_lblInfo) == "Icon No 2 Selected."; }));
  }
  // Checks the end of a grid that scrolls.
  void ExpectTheEnd(const Geometry& geometry) const {
    const auto expected = ExpectedPicture(geometry);
    const int end = expected->Height() - viewportHeight;
    EXPECT_EQ(ScrolledPixels(), end);
    EXPECT_EQ(program_.Item(FrmFindIcon_Vsb).Scroll().nPos, end);
    EXPECT_TRUE(Shows(*expected, end));
  }
};

// For a search that needs no scroll bar the bar went back to its top but the picture did not: the viewport stayed
// white, also after the next search.
TEST_F(GridSteps, AScrolledGridIsBackAtItsTopForASearchThatNeedsNoScrolling) {
  StartOnTwoCollections();
  FindMany();
  ScrollToTheEnd();
  FindFew();
  ExpectFromTheTop(geometries[Size32]);
}

TEST_F(GridSteps, ALargeSearchAfterASmallOneScrollsAgain) {
  StartOnTwoCollections();
  FindMany();
  ScrollToTheEnd();
  FindFew();
  FindMany();
  ExpectFromTheTop(geometries[Size32]);
  FindMany();
  ScrollToTheEnd();
  ExpectTheEnd(geometries[Size32]);
}

TEST_F(GridSteps, TheSameSearchAgainScrollsBackToTheTop) {
  StartOnTwoCollections();
  FindMany();
  ScrollToTheEnd();
  FindMany();
  ExpectFromTheTop(geometries[Size32]);
}

TEST_F(GridSteps, AScrolledGridIsBackAtItsTopAtEverySize) {
  StartOnTwoCollections();
  FindMany();
  for (const Geometry& geometry : {geometries[Size64], geometries[Size16], geometries[Size48], geometries[Size32]}) {
    if (IsEnabled(FrmFindIcon_Vsb)) ScrollToTheEnd();
    ChooseSize(geometry.choice);
    SetLimit("300");
    FindMany();
    ExpectFromTheTop(geometry);
  }
}

TEST_F(GridSteps, ARefusedSearchBetweenTwoLeavesNoTrace) {
  StartOnTwoCollections();
  FindMany();
  ScrollToTheEnd();
  Tick({Exe});
  FindAndReadMessage();
  EXPECT_TRUE(Shows(Surface(viewportWidth, viewportHeight, white), 0));
  FindFew();
  ExpectFromTheTop(geometries[Size32]);
}

}  // namespace
}  // namespace tarvik::end_to_end
