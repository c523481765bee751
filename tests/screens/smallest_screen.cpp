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
  void ExpectOnScreen(const RECT& place) const {
    EXPECT_GE(place.left, screen_.left);
    EXPECT_GE(place.top, screen_.top);
    EXPECT_LE(place.right, screen_.right);
    EXPECT_LE(place.bottom, screen_.bottom);
  }

  const RECT screen_{0, 0, 800, 600};
};

TEST_F(SmallestScreen, HoldsTheWholeMainWindow) {
  Start();
  ExpectOnScreen(program_.Window().Place());
}

TEST_F(SmallestScreen, AMaximisedViewShowsTheLargestPictureAtItsPlace) {
  FindPictures(Size64);
  const EnhancedView view = OpenOn(1);
  ExpectOnScreen(view.Window().Place());
  view.ChooseFactor(maxZoom);
  view.Ask(SC_MAXIMIZE);
  const RECT inside = view.Window().Inside();
  EXPECT_EQ(inside.left, screen_.left);
  EXPECT_EQ(inside.right, screen_.right);
  EXPECT_LE(inside.bottom, screen_.bottom);
  const RECT picture = view.PicturePlaceInWindow();
  EXPECT_EQ(picture.left, 100);
  EXPECT_EQ(picture.top, 100);
  EXPECT_EQ(picture.right - picture.left, 64 * maxZoom);
  EXPECT_EQ(picture.bottom - picture.top, 64 * maxZoom);
  // Its whole width is visible, and as much of its height as fits on the screen.
  EXPECT_LE(view.PicturePlace().right, screen_.right);
  SavePicture(screen_, BuiltFile("../../../run/smallest-screen-view.png"));
}

}  // namespace
}  // namespace tarvik::end_to_end
