// The enhanced view in the real program: how it opens and closes, its toolbar, its keys and its steps.

#include <windows.h>

#include <functional>

#include "end_to_end/ViewByHand.h"

namespace tarvik::end_to_end {
namespace {

class EnhancedViewOpens : public ViewByHand {
 protected:
  void ExpectAsAtFirst(const EnhancedView& view, int number) const {
    ExpectEntry(view, number);
    EXPECT_EQ(view.Caption(), "Enhanced View - [Height=160, Width=160]");
    EXPECT_TRUE(view.ShowIsOff());
    EXPECT_EQ(view.ZoomList().ComboChoice(), -1);
    EXPECT_FALSE(program_.Window().IsEnabled()) << "the view is not modal";
  }
};

TEST_F(EnhancedViewOpens, OnADoubleClickOnAnIconInTheGrid) {
  FindFiles(5);
  const EnhancedView view = OpenOn(3);
  ExpectAsAtFirst(view, 3);
  view.Exit();
  EXPECT_TRUE(Eventually([&] { return program_.Window().IsEnabled(); }));
  ExpectCurrent(2);
}

TEST_F(EnhancedViewOpens, OnADoubleClickOnARowOfTheList) {
  FindFiles(5);
  program_.Item(FrmFindIcon_OptView1).Press();
  ASSERT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_Lv).IsVisible(); }));
  ASSERT_TRUE(Eventually([&] {
    DoubleClick(MiddleOf(List().RowBounds(3)));
    return Eventually([&] { return program_.CountWindowsWith(frmBit_img) == 1; }, lostAfter);
  }));
  const EnhancedView view(program_);
  ExpectAsAtFirst(view, 4);
  view.Close();
  ExpectCurrent(3);
}

// The double click opens the view on its second press. The release that follows was once counted as one more click.
class SecondRelease : public ViewByHand {
 protected:
  // Double-clicks an entry, counted from 0, until the view opens. Each attempt starts with only the first icon
  // selected.
  EnhancedView Open(const std::function<void()>& doubleClick) const {
    EXPECT_TRUE(Eventually([&] {
      ClickCell(0);
      ExpectRows({0});
      doubleClick();
      return Eventually([&] { return program_.CountWindowsWith(frmBit_img) == 1; }, std::chrono::seconds(3));
    }));
    return EnhancedView(program_);
  }
};

TEST_F(SecondRelease, OfADoubleClickWithCtrlTogglesNothing) {
  FindFiles(5);
  const EnhancedView view = Open([&] { DoubleClick(CellMiddle(2), {VK_CONTROL}); });
  ExpectEntry(view, 3);
  view.Close();
  WaitForAllInput();
  ExpectRows({0, 2});
  ExpectFrames({0, 2});
  ExpectCurrent(2);
}

TEST_F(SecondRelease, TwoCellsFurtherMakesNoOtherIconCurrent) {
  FindFiles(5);
  const EnhancedView view = Open([&] {
    DoubleClickAndHold(CellMiddle(1));
    ReleaseLeft(CellMiddle(3));
  });
  ExpectEntry(view, 2);
  view.Close();
  WaitForAllInput();
  ExpectRows({1});
  ExpectCurrent(1);
}

TEST_F(SecondRelease, OnlyAfterTheViewIsClosedSelectsNothing) {
  FindFiles(5);
  const EnhancedView view = Open([&] {
    DoubleClickAndHold(CellMiddle(1));
    if (!Eventually([&] { return program_.CountWindowsWith(frmBit_img) == 1; }, std::chrono::seconds(3)))
      ReleaseLeft(CellMiddle(1));
  });
  view.Close();
  ReleaseLeft(CellMiddle(3));
  WaitForAllInput();
  ExpectRows({1});
  ExpectCurrent(1);
  ClickCell(4);
  ExpectRows({4});
}

TEST_F(EnhancedViewOpens, OnlyWhereThereIsAnIcon) {
  Start();
  DoubleClick(CellMiddle(0));
  WaitForAllInput();
  EXPECT_EQ(program_.CountWindowsWith(frmBit_img), 0);
}

TEST_F(EnhancedViewOpens, AgainAsTheFirstTime) {
  FindFiles(5);
  const EnhancedView first = OpenOn(2);
  first.ChooseFactor(10);
  first.Press(frmBit_tlb_control_MoveLast);
  first.Press(frmBit_tlb_control_Start);
  EXPECT_TRUE(first.ShowIsOn());
  first.Close();
  const EnhancedView second = OpenOn(5);
  ExpectAsAtFirst(second, 5);
  second.Tick();
  ExpectEntry(second, 5);
  second.Press(frmBit_tlb_control_MoveNext, 2);
  ExpectEntry(second, 2);
}

TEST_F(EnhancedViewOpens, AndGoesWithTheProgram) {
  FindFiles(2);
  const EnhancedView view = OpenOn(1);
  SetWindowPos(view.Window().Window(), nullptr, 0, 0, 611, 507, SWP_NOMOVE | SWP_NOZORDER);
  view.Press(frmBit_tlb_control_Start);
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(ReadViewSetting("Width"), "9165");
  EXPECT_EQ(ReadViewSetting("Height"), "7605");
  EXPECT_EQ(ReadSetting("Folder"), tree_.Path());
}

TEST_F(EnhancedViewOpens, AndClosesWhenASearchBegins) {
  FindFiles(2);
  tree_.MakeFile(FileName(3), support::IconFileOf(0xFF));
  const EnhancedView view = OpenOn(2);
  program_.Command(FrmFindIcon_mnuStart);
  EXPECT_TRUE(Eventually([&] { return !view.IsOpen(); }));
  EXPECT_TRUE(Eventually([&] { return List().RowCount() == 3; }));
  ExpectEntry(OpenOn(3), 3);
}

class EnhancedViewToolbar : public ViewByHand {};

TEST_F(EnhancedViewToolbar, WorksUnderTheMouse) {
  FindFiles(5);
  const EnhancedView view = OpenOn(3);
  view.Press(frmBit_tlb_control_Slower, 60);  // so that the timer does not tick in between
  const auto clickShows = [&](int button, int number) {
    ClickUntil(view, button, [&] { return view.Status() == Source(number); });
  };
  clickShows(frmBit_tlb_control_MoveFirst, 1);
  clickShows(frmBit_tlb_control_MoveNext, 2);
  clickShows(frmBit_tlb_control_MoveLast, 5);
  clickShows(frmBit_tlb_control_MovePrev, 4);
  ClickUntil(view, frmBit_tlb_control_Start, [&] { return view.ShowIsOn(); });
  view.Tick();
  ExpectEntry(view, 5);
  for (const int button : {frmBit_tlb_control_Slower, frmBit_tlb_control_Faster}) view.Click(button);
  ClickUntil(view, frmBit_tlb_control_Stop, [&] { return view.ShowIsOff(); });
  view.Tick();
  ExpectEntry(view, 5);
  ClickUntil(view, frmBit_tlb_control_Exit, [&] { return !view.IsOpen(); });
  EXPECT_TRUE(Eventually([&] { return program_.Window().IsEnabled(); }));
}

TEST_F(EnhancedViewToolbar, StopsTheShowWithEachStep) {
  FindFiles(5);
  const EnhancedView view = OpenOn(1);
  for (const int button : {frmBit_tlb_control_MoveFirst, frmBit_tlb_control_MovePrev, frmBit_tlb_control_MoveNext,
                           frmBit_tlb_control_MoveLast}) {
    view.Press(frmBit_tlb_control_Start);
    EXPECT_TRUE(view.ShowIsOn());
    view.Press(button);
    EXPECT_TRUE(view.ShowIsOff()) << button;
    const std::string shown = view.Status();
    view.Tick();
    EXPECT_EQ(view.Status(), shown) << button;
  }
}

class EnhancedViewKeys : public ViewByHand {
 protected:
  // Waits until the program has processed every key pressed so far: one more key has a visible effect. The zoom list
  // has the focus, and its arrow keys change the factor.
  static void WaitForKeys(const EnhancedView& view) {
    view.ChooseFactor(1);
    PressKey(VK_DOWN);
    EXPECT_TRUE(Eventually([&] { return view.Caption() == "Enhanced View - [Height=64, Width=64]"; }))
        << view.Caption();
  }
};

TEST_F(EnhancedViewKeys, StepBackAndForth) {
  FindFiles(5);
  const EnhancedView view = OpenOn(3);
  PressKey(VK_SPACE);
  ExpectEntry(view, 3);
  PressKey(VK_NEXT);
  ExpectEntry(view, 4);
  PressKey(VK_SPACE);
  ExpectEntry(view, 5);
  PressKey(VK_PRIOR, {}, 3);
  ExpectEntry(view, 2);
}

TEST_F(EnhancedViewKeys, StepWhateverHasTheFocus) {
  FindFiles(5);
  const EnhancedView view = OpenOn(1);
  view.Press(frmBit_tlb_control_MoveFirst);
  int number = 1;
  for (const int id : {frmBit_CboZoom, frmBit_tlb_control, frmBit_img, frmBit_sbMain}) {
    view.Window().Child(id).Post(WM_KEYDOWN, VK_SPACE, 1);
    ExpectEntry(view, ++number);
  }
  view.Window().Post(WM_KEYDOWN, VK_PRIOR, 1);
  ExpectEntry(view, 4);
}

TEST_F(EnhancedViewKeys, StepWhileTheZoomListIsDown) {
  FindFiles(5);
  const EnhancedView view = OpenOn(1);
  view.ZoomList().Send(CB_SHOWDROPDOWN, TRUE);
  PressKey(VK_NEXT, {}, 3);
  ExpectEntry(view, 3);
  EXPECT_EQ(view.ZoomList().ComboChoice(), -1);
  EXPECT_NE(view.ZoomList().Send(CB_GETDROPPEDSTATE), 0);
  view.ZoomList().Send(CB_SHOWDROPDOWN, FALSE);
}

TEST_F(EnhancedViewKeys, StopTheShowWhereTheyStepAndLeaveItWhereTheyChangeItsSpeed) {
  FindFiles(5);
  const EnhancedView view = OpenOn(1);
  view.Press(frmBit_tlb_control_Slower, 60);  // so that the timer does not tick in between
  for (const WORD key : {WORD{VK_OEM_PLUS}, WORD{VK_OEM_MINUS}}) {
    view.Press(frmBit_tlb_control_Start);
    PressKey(key);
    WaitForKeys(view);
    EXPECT_TRUE(view.ShowIsOn()) << key;
    view.Press(frmBit_tlb_control_Stop);
    PressKey(key);
    WaitForKeys(view);
    EXPECT_TRUE(view.ShowIsOff()) << key;
  }
  view.Press(frmBit_tlb_control_MoveFirst);
  int number = 1;
  for (const WORD key : {WORD{VK_SPACE}, WORD{VK_NEXT}}) {
    view.Press(frmBit_tlb_control_Start);
    PressKey(key);
    ExpectEntry(view, ++number);
    EXPECT_TRUE(view.ShowIsOff()) << key;
  }
  view.Press(frmBit_tlb_control_Start);
  PressKey(VK_PRIOR);
  ExpectEntry(view, 2);
  EXPECT_TRUE(view.ShowIsOff());
}

TEST_F(EnhancedViewKeys, DoNothingWhereTheyAreNotTheViews) {
  FindFiles(5);
  const EnhancedView view = OpenOn(2);
  view.Press(frmBit_tlb_control_Slower, 60);  // so that the timer does not tick in between
  view.Press(frmBit_tlb_control_Start);
  for (const WORD key : {WORD{'A'}, WORD{'5'}, WORD{VK_ESCAPE}, WORD{VK_RETURN}, WORD{VK_TAB}, WORD{VK_LEFT},
                         WORD{VK_HOME}, WORD{VK_DELETE}, WORD{VK_F2}, WORD{VK_F5}, WORD{VK_INSERT}, WORD{VK_TAB}})
    PressKey(key);
  WaitForKeys(view);
  ExpectEntry(view, 2);
  EXPECT_TRUE(view.ShowIsOn());
}

TEST_F(EnhancedViewKeys, LeaveTheWindowsMenuItsOwn) {
  FindFiles(5);
  const EnhancedView view = OpenOn(2);
  PressKey(VK_SPACE, {VK_MENU});
  EXPECT_TRUE(Eventually([&] { return program_.OpenMenu().has_value(); }));
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(Eventually([&] { return !program_.OpenMenu(); }));
  ExpectEntry(view, 2);
}

TEST_F(EnhancedViewKeys, CloseItWithAltAndF4WhateverHasTheFocus) {
  FindFiles(2);
  const EnhancedView view = OpenOn(2);
  ASSERT_TRUE(Eventually([&] { return program_.Focus().Window() == view.ZoomList().Window(); }));
  PressKey(VK_F4, {VK_MENU});
  EXPECT_TRUE(Eventually([&] { return !view.IsOpen(); }, shortly));
}

// A number of entries, the one that the view is opened on, and the entry that each command of a series leads to. 0
// means a number outside the list: the status is empty, and the picture stays.
struct StepsRow {
  const char* name;
  int entries;
  int opened;
  std::vector<std::pair<int, int>> steps;
  friend void PrintTo(const StepsRow& row, std::ostream* out) { *out << row.name; }
};

constexpr int first = frmBit_tlb_control_MoveFirst;
constexpr int back = frmBit_tlb_control_MovePrev;
constexpr int next = frmBit_tlb_control_MoveNext;
constexpr int last = frmBit_tlb_control_MoveLast;

class EnhancedViewSteps : public ViewByHand, public ::testing::WithParamInterface<StepsRow> {};

TEST_P(EnhancedViewSteps, LeadWhereTheNumbersDo) {
  const StepsRow& row = GetParam();
  FindFiles(row.entries);
  const EnhancedView view = OpenOn(row.opened);
  ExpectEntry(view, row.opened);
  int shown = row.opened;
  for (std::size_t i = 0; i < row.steps.size(); ++i) {
    const auto [command, number] = row.steps[i];
    if (number != 0) shown = number;
    view.Press(command);
    EXPECT_EQ(view.Status(), number == 0 ? "" : Source(number)) << "step " << i;
  }
  EXPECT_TRUE(view.IsOpen());
  ExpectPicture(view, Entries().at(static_cast<std::size_t>(shown) - 1), 32, 5);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, EnhancedViewSteps,
    ::testing::Values(
        StepsRow{"OfOneEntry", 1, 1, {{next, 1}, {next, 0}, {next, 0}, {back, 0}, {back, 1}, {back, 0}, {last, 1}}},
        StepsRow{"OfTwoEntries", 2, 1, {{first, 1}, {next, 2}, {next, 2}, {back, 1}, {back, 1}, {last, 2}}},
        StepsRow{"OfFiveEntries", 5, 3, {{next, 3}, {next, 4}, {last, 5}, {next, 2}, {first, 1}, {back, 4}}},
        StepsRow{"BackAtFirst", 5, 3, {{back, 1}, {back, 4}}},
        StepsRow{"BelowTheFirst", 5, 1, {{back, 0}, {back, 0}, {back, 0}}},
        StepsRow{"BackInTheListByNext", 5, 1, {{back, 0}, {back, 0}, {next, 0}, {next, 0}, {next, 1}, {next, 2}}},
        StepsRow{"BackInTheListByFirst", 5, 1, {{back, 0}, {first, 1}, {next, 2}}},
        StepsRow{"BackInTheListByLast", 5, 1, {{back, 0}, {back, 0}, {last, 5}, {back, 4}}}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace tarvik::end_to_end
