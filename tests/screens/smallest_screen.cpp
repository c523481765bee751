// The windows on the smallest screen that the program starts on.

#include <gtest/gtest.h>
#include <windows.h>

#include "driver/Screen.h"
#include "end_to_end/ViewByHand.h"
#include "view/Zoom.h"

namespace tarvik::end_to_end {
namespace {

class SmallestScreen : public ViewByHand {
 protected:
  void SetUp() override {
    ASSERT_EQ(GetSystemMetrics(SM_CXSCREEN), screen_.right);
    ASSERT_EQ(GetSystemMetrics(SM_CYSCREEN), screen_.bottom);
  }
  void ExpectOnScreen(const RECT& bounds) const {
    EXPECT_GE(bounds.left, screen_.left);
    EXPECT_GE(bounds.top, screen_.top);
    EXPECT_LE(bounds.right, screen_.right);
    EXPECT_LE(bounds.bottom, screen_.bottom);
  }

  const RECT screen_{0, 0, 800, 600};
};

TEST_F(SmallestScreen, HoldsTheWholeMainWindow) {
  Start();
  ExpectOnScreen(program_.Window().Bounds());
}

TEST_F(SmallestScreen, AMaximisedViewShowsTheLargestPictureAtItsPlace) {
  FindPictures(Size64);
  const EnhancedView view = OpenOn(1);
  ExpectOnScreen(view.Window().Bounds());
  view.ChooseFactor(maxZoom);
  view.Ask(SC_MAXIMIZE);
  const RECT inside = view.Window().Inside();
  EXPECT_EQ(inside.left, screen_.left);
  EXPECT_EQ(inside.right, screen_.right);
  EXPECT_LE(inside.bottom, screen_.bottom);
  const RECT picture = view.PictureBoundsInWindow();
  EXPECT_EQ(picture.left, 100);
  EXPECT_EQ(picture.top, 100);
  EXPECT_EQ(picture.right - picture.left, 64 * maxZoom);
  EXPECT_EQ(picture.bottom - picture.top, 64 * maxZoom);
  // Its whole width is visible, and as much of its height as fits on the screen.
  EXPECT_LE(view.PictureBounds().right, screen_.right);
  SavePicture(screen_, BuiltFile("../../../run/smallest-screen-view.png"));
}

// A long path of the widest letters, with a name that is wider than the screen: so was its tip.
TEST_F(SmallestScreen, ShowsTheWholeOfALongPathInATip) {
  const std::string folder(240 - In("\\a.ico").size(), 'W');
  tree_.MakeFolder(folder);
  tree_.MakeFile(folder + "\\a.ico", support::IconFileOf(0xFF));
  const std::string path = In(folder + "\\a.ico");
  ASSERT_EQ(path.size(), 240U);
  Start(In(folder));
  Find();
  const auto expectTip = [&](POINT pointer, const std::string& text) {
    MovePointer(pointer);
    ASSERT_TRUE(Eventually([&] { return program_.ShownTip().has_value(); }));
    std::string shown = program_.ShownTip()->Text();
    for (std::size_t end = 0; (end = shown.find("\r\n")) != std::string::npos;) shown.erase(end, 2);
    EXPECT_EQ(shown, text);
    ExpectOnScreen(program_.ShownTip()->Bounds());
    SavePicture(screen_, BuiltFile("../../../run/smallest-screen-tip.png"));
    MovePointer({0, 0});
    EXPECT_TRUE(Eventually([&] { return !program_.ShownTip(); }));
  };
  expectTip(CellMiddle(0), path + "Index 0");
  program_.Item(FrmFindIcon_OptView1).Press();
  ASSERT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_Lv).IsVisible(); }));
  expectTip(MiddleOf(List().RowBounds(0)), path);
}

}  // namespace
}  // namespace tarvik::end_to_end
