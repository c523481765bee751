// The enhanced view's slide show, and the window's size.

#include <windows.h>

#include <chrono>
#include <utility>

#include "end_to_end/ViewByHand.h"
#include "platform/Holdings.h"

namespace tarvik::end_to_end {
namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

// How far apart two clocks of the machine may read the same moment.
constexpr milliseconds clockStep{60};

class EnhancedViewShow : public ViewByHand {
 protected:
  // Waits until the status shows another entry. Returns when that was.
  static Clock::time_point WaitForStep(const EnhancedView& view) {
    const std::string before = view.Status();
    EXPECT_TRUE(Eventually([&] { return view.Status() != before; })) << "the show does not go on";
    return Clock::now();
  }
  // Waits for two steps less than `limit` apart. Returns how many steps it waited for in all. Load on the machine can
  // only lengthen the time between steps.
  static int WaitForStepWithin(const EnhancedView& view, milliseconds limit) {
    constexpr int maxSteps = 20;
    auto former = WaitForStep(view);
    for (int steps = 2; steps <= maxSteps; ++steps) {
      const auto now = WaitForStep(view);
      if (now - former < limit) return steps;
      former = now;
    }
    ADD_FAILURE() << "no step within " << limit.count() << " ms";
    return maxSteps;
  }
};

TEST_F(EnhancedViewShow, KeepsToTheClockAtEverySpeed) {
  FindFiles(5);
  const EnhancedView view = OpenOn(1);
  view.Press(frmBit_tlb_control_MoveFirst);
  // Up to the longest interval, 65 seconds, and down to two.
  view.Press(frmBit_tlb_control_Slower, 70);
  view.Press(frmBit_tlb_control_Faster, 63);
  auto from = Clock::now();
  view.Press(frmBit_tlb_control_Start);
  const int steps = WaitForStepWithin(view, milliseconds(2900));
  EXPECT_GE(Clock::now() - from, steps * milliseconds(2000) - clockStep);

  // Its key changes the interval during the show: a second, not less.
  from = Clock::now();
  PressKey(VK_OEM_PLUS, {}, 5);
  const int quickSteps = WaitForStepWithin(view, milliseconds(1900));
  EXPECT_GE(Clock::now() - from, (quickSteps - 1) * milliseconds(1000) - clockStep);
  EXPECT_TRUE(view.ShowIsOn());

  // And slower again.
  from = Clock::now();
  view.Press(frmBit_tlb_control_Slower);
  EXPECT_GE(WaitForStep(view) - from, milliseconds(2000) - clockStep);
}

TEST_F(EnhancedViewShow, BeginsAtItsFirstSpeedInEachOpening) {
  FindFiles(5);
  const EnhancedView first = OpenOn(1);
  first.Press(frmBit_tlb_control_Faster, 4);
  first.Press(frmBit_tlb_control_Start);
  first.Close();
  const EnhancedView second = OpenOn(1);
  second.Press(frmBit_tlb_control_MoveFirst);
  const auto from = Clock::now();
  second.Press(frmBit_tlb_control_Start);
  EXPECT_GE(WaitForStep(second) - from, milliseconds(5000) - clockStep);
}

TEST_F(EnhancedViewShow, GoesOnAtTheSecondEntryAfterTheLast) {
  FindFiles(3);
  const EnhancedView view = OpenOn(1);
  view.Press(frmBit_tlb_control_Slower, 60);
  view.Press(frmBit_tlb_control_Start);
  for (const int number : {1, 2, 3, 2, 3, 2}) {
    view.Tick();
    EXPECT_EQ(view.Status(), Source(number));
  }
}

TEST_F(EnhancedViewShow, WaitsWhileTheViewIsMinimised) {
  FindFiles(5);
  const EnhancedView view = OpenOn(1);
  view.Press(frmBit_tlb_control_MoveFirst);
  view.Press(frmBit_tlb_control_Faster, 4);
  view.Press(frmBit_tlb_control_Start);
  WaitForStep(view);
  view.Ask(SC_MINIMIZE);
  ASSERT_TRUE(view.IsMinimised());
  const std::string shown = view.Status();
  for (int i = 0; i < 3; ++i) view.Tick();
  EXPECT_EQ(view.Status(), shown);
  EXPECT_TRUE(view.ShowIsOn());
  view.Ask(SC_RESTORE);
  EXPECT_FALSE(view.IsMinimised());
  WaitForStep(view);
}

TEST_F(EnhancedViewShow, HoldsNoMoreAfterAThousandTicks) {
  FindPictures(Size64);
  const EnhancedView view = OpenOn(1);
  view.Press(frmBit_tlb_control_Slower, 60);
  view.Press(frmBit_tlb_control_Start);
  for (int tick = 0; tick < 100; ++tick) view.Tick();
  const support::Holdings before = support::HeldBy(program_.Process());
  for (int tick = 0; tick < 1000; ++tick) view.Tick();
  const support::Holdings after = support::HeldBy(program_.Process());
  EXPECT_EQ(after.gdiObjects, before.gdiObjects);
  EXPECT_EQ(after.kernelHandles, before.kernelHandles);
  EXPECT_LT(after.userHandles, before.userHandles + 100) << "one in ten ticks";
}

TEST_F(EnhancedViewShow, EndsWithTheView) {
  FindFiles(2);
  const EnhancedView view = OpenOn(1);
  view.Press(frmBit_tlb_control_Faster, 4);
  view.Press(frmBit_tlb_control_Start);
  view.Close();
  EXPECT_TRUE(Eventually([&] { return program_.Window().IsEnabled(); }));
  ClickCell(1);
  ExpectCurrent(1);
}

class EnhancedViewSize : public ViewByHand {
 protected:
  static SIZE SizeOf(const EnhancedView& view) {
    const RECT bounds = view.Window().Bounds();
    return {bounds.right - bounds.left, bounds.bottom - bounds.top};
  }
  // Checks that the whole view is on the screen, with all of its buttons, its list and its status bar.
  static void ExpectUsable(const EnhancedView& view, const std::string& what) {
    const RECT bounds = view.Window().Bounds();
    EXPECT_GE(bounds.left, 0) << what;
    EXPECT_GE(bounds.top, 0) << what;
    EXPECT_LE(bounds.right, GetSystemMetrics(SM_CXSCREEN)) << what;
    EXPECT_LE(bounds.bottom, GetSystemMetrics(SM_CYSCREEN)) << what;
    const RECT inside = view.Window().Inside();
    EXPECT_LE(view.Toolbar().ButtonBounds(frmBit_tlb_control_Exit).right, inside.right) << what;
    EXPECT_LE(view.ZoomList().Bounds().bottom, view.Window().Child(frmBit_sbMain).Bounds().top) << what;
    EXPECT_EQ(view.Window().Child(frmBit_sbMain).Bounds().bottom, inside.bottom) << what;
  }
};

TEST_F(EnhancedViewSize, IsKeptOverARestart) {
  FindFiles(1);
  const EnhancedView view = OpenOn(1);
  EXPECT_EQ(SizeOf(view).cx, 443);
  EXPECT_EQ(SizeOf(view).cy, 354);
  // Dragged by its corner, as a user enlarges it.
  const RECT bounds = view.Window().Bounds();
  ASSERT_TRUE(Eventually([&] {
    Drag({bounds.right - 2, bounds.bottom - 2}, {bounds.right + 98, bounds.bottom + 48});
    return Eventually([&] { return SizeOf(view).cx == 543; }, lostAfter);
  }));
  EXPECT_EQ(SizeOf(view).cy, 404);
  ExpectUsable(view, "enlarged");
  view.Exit();
  EXPECT_EQ(ReadViewSetting("Width"), "8145");
  EXPECT_EQ(ReadViewSetting("Height"), "6060");
  EXPECT_EQ(program_.Close(), 0U);

  program_.Start();
  Find();
  const EnhancedView again = OpenOn(1);
  EXPECT_EQ(SizeOf(again).cx, 543);
  EXPECT_EQ(SizeOf(again).cy, 404);
}

TEST_F(EnhancedViewSize, LeavesNothingBehindWhereItGrew) {
  FindFiles(1);
  const EnhancedView view = OpenOn(1);
  const auto picture = [&] {
    MovePointer({0, 0});
    return Screenshot(view.Window().Inside());
  };
  const auto settledPicture = [&] {
    Screenshot former = picture();
    EXPECT_TRUE(Eventually([&] {
      const Screenshot before = std::exchange(former, picture());
      return CountDifferences(before, former) == 0;
    }));
    return former;
  };
  view.Ask(SC_MAXIMIZE);
  const Screenshot grown = settledPicture();
  RedrawWindow(view.Window().Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  EXPECT_EQ(CountDifferences(grown, settledPicture()), 0);
}

TEST_F(EnhancedViewSize, OfAMaximisedWindowIsThatOfTheWindowNextTime) {
  FindFiles(1);
  const EnhancedView view = OpenOn(1);
  view.Ask(SC_MAXIMIZE);
  const SIZE maximised = SizeOf(view);
  EXPECT_GT(maximised.cx, GetSystemMetrics(SM_CXSCREEN) - 20);
  view.Close();
  const EnhancedView again = OpenOn(1);
  EXPECT_EQ(SizeOf(again).cx, maximised.cx);
  EXPECT_EQ(SizeOf(again).cy, maximised.cy);
}

TEST_F(EnhancedViewSize, FollowsWhatIsStoredWithinTheSystemsOwnLimits) {
  FindFiles(1);
  struct Row {
    const char* text;
    LONG width;
    LONG height;
  };
  const LONG minWidth = GetSystemMetrics(SM_CXMINTRACK);
  const LONG minHeight = GetSystemMetrics(SM_CYMINTRACK);
  const LONG maxWidth = GetSystemMetrics(SM_CXMAXTRACK);
  const LONG maxHeight = GetSystemMetrics(SM_CYMAXTRACK);
  for (const Row& row :
       {Row{"wide", minWidth, minHeight}, Row{"-5310", minWidth, minHeight}, Row{"1e-400", minWidth, minHeight},
        Row{"3000", 200, 200}, Row{"99999999", maxWidth, maxHeight}, Row{"1e30", maxWidth, maxHeight}}) {
    WriteViewSize(row.text, row.text);
    const EnhancedView view = OpenOn(1);
    EXPECT_EQ(SizeOf(view).cx, row.width) << row.text;
    EXPECT_EQ(SizeOf(view).cy, row.height) << row.text;
    view.Close();
  }
  // Only the number at the start of a text counts: 611 and 507 pixels here.
  WriteViewSize("7605.9,5", "9165 twips");
  const EnhancedView view = OpenOn(1);
  EXPECT_EQ(SizeOf(view).cx, 611);
  EXPECT_EQ(SizeOf(view).cy, 507);
}

}  // namespace
}  // namespace tarvik::end_to_end
