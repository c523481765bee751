// The main window by keyboard alone.

#include <gmock/gmock.h>

#include <set>

#include "driver/Input.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/IconFiles.h"

namespace tarvik::end_to_end {
namespace {

using support::IconFileOf;

class Keyboard : public EndToEnd {
 protected:
  int FocusedId() const { return GetDlgCtrlID(program_.Focus().Window()); }
  bool Focuses(int id) const {
    return Eventually([&] { return FocusedId() == id; });
  }
  // Presses Tab until the first control has the focus again. Returns the controls in the order they were reached.
  std::vector<int> TabRound(std::initializer_list<WORD> held = {}) const {
    std::vector<int> order{FocusedId()};
    for (;;) {
      const Control before = program_.Focus();
      PressKey(VK_TAB, held);
      if (!Eventually([&] { return program_.Focus().Window() != before.Window(); })) return order;
      if (FocusedId() == order.front()) return order;
      order.push_back(FocusedId());
    }
  }
};

TEST_F(Keyboard, TabReachesEveryControlThatCanBeUsedFromTopToBottom) {
  Start();
  ASSERT_TRUE(Eventually([&] { return program_.Focus().Window() != nullptr; }));
  Click(MiddleOf(program_.Item(FrmFindIcon_Dir1).Bounds()));
  ASSERT_TRUE(Focuses(FrmFindIcon_Dir1));
  const std::vector<int> expected{FrmFindIcon_Dir1,         FrmFindIcon_File1,        FrmFindIcon_ChkFileType0,
                                  FrmFindIcon_ChkFileType1, FrmFindIcon_ChkFileType2, FrmFindIcon_ChkFileType3,
                                  FrmFindIcon_ChkFileType4, FrmFindIcon_ChkFileType5, FrmFindIcon_ChkFileType6,
                                  FrmFindIcon_chkSubDir,    FrmFindIcon_CboIconSize,  FrmFindIcon_txtMax,
                                  FrmFindIcon_udMain,       FrmFindIcon_CmdFind,      FrmFindIcon_CmdClose,
                                  FrmFindIcon_OptView0,     FrmFindIcon_Drive1};
  EXPECT_EQ(TabRound(), expected);
}

TEST_F(Keyboard, TabReachesGridsScrollBarAndOkAfterASearch) {
  CopyHundredIcons(In("hundred.dll"));
  Start();
  Tick({Dll});
  Find();
  Click(MiddleOf(program_.Item(FrmFindIcon_Dir1).Bounds()));
  ASSERT_TRUE(Focuses(FrmFindIcon_Dir1));
  const auto reached = TabRound();
  EXPECT_THAT(reached, ::testing::Contains(static_cast<int>(FrmFindIcon_CmdOk)));
  EXPECT_THAT(reached, ::testing::Contains(static_cast<int>(FrmFindIcon_Vsb)));
}

TEST_F(Keyboard, TabReachesTheListWhereItIsShown) {
  Start();
  program_.Item(FrmFindIcon_OptView1).Send(BM_CLICK);
  Click(MiddleOf(program_.Item(FrmFindIcon_Dir1).Bounds()));
  ASSERT_TRUE(Focuses(FrmFindIcon_Dir1));
  EXPECT_THAT(TabRound(), ::testing::Contains(static_cast<int>(FrmFindIcon_Lv)));
}

TEST_F(Keyboard, EnterFinds) {
  tree_.MakeFile("a.ico", IconFileOf(0xFF));
  Start();
  Click(MiddleOf(program_.Item(FrmFindIcon_File1).Bounds()));
  ASSERT_TRUE(Focuses(FrmFindIcon_File1));
  PressKey(VK_RETURN);
  EXPECT_TRUE(Eventually([&] { return List().RowCount() == 1; }));
}

TEST_F(Keyboard, AltCCloses) {
  Start();
  PressKey('C', {VK_MENU});
  EXPECT_EQ(program_.WaitForEnd(), 0U);
}

TEST_F(Keyboard, AltF4ClosesWhateverHasTheFocus) {
  for (const int id : {FrmFindIcon_File1, FrmFindIcon_CboIconSize}) {
    Start();
    Click(MiddleOf(program_.Item(id).Bounds()));
    ASSERT_TRUE(Focuses(id));
    PressKey(VK_F4, {VK_MENU});
    EXPECT_EQ(program_.WaitForEnd(), 0U);
  }
}

TEST_F(Keyboard, AltAGoesToTheLimit) {
  Start();
  PressKey('A', {VK_MENU});
  EXPECT_TRUE(Focuses(FrmFindIcon_txtMax));
}

TEST_F(Keyboard, ATypedLimitCounts) {
  for (const char* name : {"a.ico", "b.ico", "c.ico"}) tree_.MakeFile(name, IconFileOf(0xFF));
  Start();
  PressKey('A', {VK_MENU});
  ASSERT_TRUE(Focuses(FrmFindIcon_txtMax));
  PressKey(VK_HOME);
  PressKey(VK_END, {VK_SHIFT});
  // The text is sent as messages, not as key presses, and must not overtake the keys.
  const LRESULT whole = MAKELRESULT(0, TextOf(FrmFindIcon_txtMax).size());
  ASSERT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_txtMax).Send(EM_GETSEL) == whole; }));
  TypeText("2");
  ASSERT_TRUE(Eventually([&] { return TextOf(FrmFindIcon_txtMax) == "2"; })) << TextOf(FrmFindIcon_txtMax);
  EXPECT_EQ(FindAndReadMessage(),
            "Found 3 icons.\r\nOnce search only support Maximum 2 icons!\r\n"
            "Try again after increasing  icons number of list.");
}

TEST_F(Keyboard, MenusOpenByTheirLetters) {
  Start();
  for (const WORD letter : {WORD{'E'}, WORD{'V'}, WORD{'H'}}) {
    PressKey(letter, {VK_MENU});
    EXPECT_TRUE(Eventually([&] { return program_.OpenMenu().has_value(); })) << letter;
    PressKey(VK_ESCAPE, {}, 2);
    EXPECT_TRUE(Eventually([&] { return !program_.OpenMenu(); })) << letter;
  }
}

TEST_F(Keyboard, TheViewMenuShowsTheList) {
  Start();
  PressKey('V', {VK_MENU});
  ASSERT_TRUE(Eventually([&] { return program_.OpenMenu().has_value(); }));
  PressKey(VK_DOWN);
  PressKey(VK_RETURN);
  EXPECT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_Lv).IsVisible(); }));
}

TEST_F(Keyboard, SpaceTicksABox) {
  Start();
  Click(MiddleOf(program_.Item(FrmFindIcon_File1).Bounds()));
  PressKey(VK_TAB);
  ASSERT_TRUE(Focuses(FrmFindIcon_ChkFileType0));
  PressKey(VK_SPACE);
  EXPECT_TRUE(Eventually([&] { return !program_.Item(FrmFindIcon_ChkFileType0).IsChecked(); }));
}

}  // namespace
}  // namespace tarvik::end_to_end
