#include "view/ViewStepping.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/NonCopyable.h"
#include "support/FakeHost.h"

namespace tarvik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Host = support::FakeHost;

// The displayed state.
struct Display {
  ViewDisplay Functions() {
    return {[this] {
              ++pictures;
              if (failing) throw OverflowError();
            },
            [this](const std::string& text) {
              status = text;
              texts.push_back(text);
            }};
  }

  int pictures = 0;
  bool failing = false;
  std::string status;
  std::vector<std::string> texts;
};

// A view opened on the list of a main window.
struct View : NonCopyable {
  explicit View(int count, Integer16 selection = 0) : host(count, selection), stepping(host, display.Functions()) {
    stepping.Begin();
  }
  void Next(int times = 1) {
    while (times-- > 0) stepping.ShowNext();
  }
  void Previous(int times = 1) {
    while (times-- > 0) stepping.ShowPrevious();
  }

  Host host;
  Display display;
  ViewStepping stepping;
};

TEST(ViewStepping, BeginsOneBelowTheEntryOnScreen) {
  const View view(5, 2);
  EXPECT_EQ(view.stepping.CurrentEntry(), 2);
  EXPECT_THAT(view.host.asked, IsEmpty());
}

TEST(ViewStepping, ShowsAnEntryByPictureAndSource) {
  View view(5);
  view.stepping.ShowFirst();
  EXPECT_THAT(view.host.asked, ElementsAre(1));
  EXPECT_EQ(view.display.pictures, 1);
  EXPECT_THAT(view.display.texts, ElementsAre("", "C:\\icons\\1.dll - 10")) << "the panel is emptied first";
}

TEST(ViewStepping, GoesToTheFirstAndTheLastEntry) {
  View view(5, 2);
  view.stepping.ShowLast();
  EXPECT_EQ(view.stepping.CurrentEntry(), 5);
  EXPECT_EQ(view.display.status, "C:\\icons\\5.dll - 50");
  view.stepping.ShowFirst();
  EXPECT_EQ(view.stepping.CurrentEntry(), 1);
  EXPECT_EQ(view.display.status, "C:\\icons\\1.dll - 10");
}

TEST(ViewStepping, ShowsTheSameEntryAgainAtTheFirstNext) {
  View view(5, 2);
  view.Next();
  EXPECT_THAT(view.host.asked, ElementsAre(3));
}

TEST(ViewStepping, GoesTwoEntriesBackAtTheFirstPrevious) {
  View view(5, 2);
  view.Previous();
  EXPECT_THAT(view.host.asked, ElementsAre(1));
}

TEST(ViewStepping, GoesFromTheLastEntryToTheSecond) {
  View view(5);
  view.stepping.ShowLast();
  view.Next();
  EXPECT_EQ(view.stepping.CurrentEntry(), 2);
}

TEST(ViewStepping, GoesFromTheFirstEntryToTheLastButOne) {
  View view(5);
  view.stepping.ShowFirst();
  view.Previous();
  EXPECT_EQ(view.stepping.CurrentEntry(), 4);
}

TEST(ViewStepping, LeavesAListOfOneAtItsEndAndStaysOpen) {
  View view(1);
  view.Next();
  EXPECT_THAT(view.host.asked, ElementsAre(1));
  view.Next();
  EXPECT_EQ(view.stepping.CurrentEntry(), 2) << "set to 1, then to 2";
  EXPECT_EQ(view.display.pictures, 1) << "the picture of entry 1 stays";
  EXPECT_EQ(view.display.status, "");
}

TEST(ViewStepping, GoesOnPastTheEndOfAListOfOne) {
  View view(1);
  view.Next(4);
  EXPECT_THAT(view.host.asked, ElementsAre(1, 2, 3, 4)) << "only the exact end wraps";
}

TEST(ViewStepping, StepsThroughAListOfTwo) {
  View view(2);
  view.Next(4);
  EXPECT_THAT(view.host.asked, ElementsAre(1, 2, 2, 2));
  view.stepping.ShowFirst();
  view.Previous(2);
  EXPECT_THAT(view.host.asked, ElementsAre(1, 2, 2, 2, 1, 1, 1));
}

TEST(ViewStepping, LeavesThePictureBelowTheList) {
  View view(5);
  view.Previous();
  EXPECT_EQ(view.stepping.CurrentEntry(), -1) << "only 1 itself wraps";
  EXPECT_EQ(view.display.pictures, 0);
  EXPECT_EQ(view.display.status, "");
  view.Previous(2);
  EXPECT_EQ(view.stepping.CurrentEntry(), -3);
}

TEST(ViewStepping, ComesBackFromBelowTheListByFirstLastOrEnoughNext) {
  View byFirst(5);
  byFirst.Previous(3);
  byFirst.stepping.ShowFirst();
  EXPECT_EQ(byFirst.display.status, "C:\\icons\\1.dll - 10");

  View byLast(5);
  byLast.Previous(3);
  byLast.stepping.ShowLast();
  EXPECT_EQ(byLast.display.status, "C:\\icons\\5.dll - 50");

  View byNext(5);
  byNext.Previous(3);
  byNext.Next(3);
  EXPECT_EQ(byNext.display.status, "");
  byNext.Next();
  EXPECT_EQ(byNext.display.status, "C:\\icons\\1.dll - 10");
}

TEST(ViewStepping, SkipsAnErrorWhileRenderingAndStillShowsTheSource) {
  View view(5, 1);
  view.host.failing = true;
  EXPECT_NO_THROW(view.stepping.ShowNext());
  EXPECT_EQ(view.display.pictures, 0);
  EXPECT_EQ(view.display.status, "C:\\icons\\2.dll - 20");
}

TEST(ViewStepping, SkipsAnErrorWhileTakingThePictureOver) {
  View view(5, 3);
  view.display.failing = true;
  EXPECT_NO_THROW(view.stepping.ShowPrevious());
  EXPECT_EQ(view.display.status, "C:\\icons\\2.dll - 20");
}

TEST(ViewStepping, LetsAnErrorOfFirstAndLastStopThem) {
  View view(5);
  view.host.failing = true;
  EXPECT_THROW(view.stepping.ShowFirst(), OverflowError);
  EXPECT_THROW(view.stepping.ShowLast(), OverflowError);
}

TEST(ViewStepping, NeverWrapsSilentlyAtTheEndsOfASixteenBitNumber) {
  View high(5, 32767);
  high.Next();
  EXPECT_EQ(high.stepping.CurrentEntry(), 32767) << "the sum is an error, and skipped";
  EXPECT_THAT(high.host.asked, ElementsAre(32767)) << "the step goes on after the error";

  View low(5, -32768);
  low.Previous();
  EXPECT_EQ(low.stepping.CurrentEntry(), -32768);
}

TEST(ViewStepping, OverflowsWhereTheListIsLongerThanANumberCounts) {
  View view(32768);
  view.stepping.ShowFirst();
  EXPECT_THROW(view.stepping.ShowLast(), OverflowError);
  EXPECT_EQ(view.stepping.CurrentEntry(), 1);
  view.Previous();
  EXPECT_EQ(view.stepping.CurrentEntry(), 0) << "the wrap is skipped, the step back is not";
}

TEST(ViewStepping, RunsThroughTheWrapForAnHourOfTicks) {
  View view(5);
  for (int tick = 1; tick <= 3700; ++tick) {
    view.Next();
    const int expected = tick <= 5 ? tick : (tick - 6) % 4 + 2;
    ASSERT_EQ(view.stepping.CurrentEntry(), expected) << "tick " << tick;
  }
  EXPECT_EQ(view.display.pictures, 3700);
}

}  // namespace
}  // namespace tarvik
