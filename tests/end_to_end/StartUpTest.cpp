// How the program starts and ends.

#include <gmock/gmock.h>

#include <chrono>

#include "end_to_end/EndToEndTest.h"
#include "platform/IconFiles.h"

namespace tarvik::end_to_end {
namespace {

class StartUp : public EndToEnd {};

TEST_F(StartUp, TheStartUpWindowGivesWayToTheMainWindowByItself) {
  const auto started = std::chrono::steady_clock::now();
  program_.Launch();
  const Control startUp = program_.WaitForStartUpWindow();
  EXPECT_EQ(program_.CountWindowsWith(FrmFindIcon_CmdFind), 0);
  program_.WaitForMainWindow();
  // Two clocks of the machine may disagree a little about the same three seconds.
  EXPECT_GT(std::chrono::steady_clock::now() - started, std::chrono::milliseconds(2950));
  EXPECT_TRUE(Eventually([&] { return IsWindow(startUp.Window()) == 0; }));
}

TEST_F(StartUp, TheStartUpWindowHasNoButtonWhileItWaits) {
  program_.Launch();
  const Control startUp = program_.WaitForStartUpWindow();
  EXPECT_EQ(IsWindowVisible(GetDlgItem(startUp.Window(), FrmSpash_CmdOk)), FALSE);
  program_.WaitForMainWindow();
}

TEST_F(StartUp, TheAboutBoxStaysUntilOkAndOpensNoSecondMainWindow) {
  Start();
  program_.Command(FrmFindIcon_MnuAbout);
  const Control about = program_.WaitForStartUpWindow();
  EXPECT_FALSE(program_.Window().IsEnabled());
  Control(GetDlgItem(about.Window(), FrmSpash_CmdOk)).Press();
  EXPECT_TRUE(Eventually([&] { return IsWindow(about.Window()) == 0; }));
  EXPECT_TRUE(program_.Window().IsEnabled());
  EXPECT_EQ(program_.CountWindowsWith(FrmFindIcon_CmdFind), 1);
}

TEST_F(StartUp, TheMainWindowStandsInTheMiddleAndAThirdDown) {
  Start();
  const RECT bounds = program_.Window().Bounds();
  const LONG freeWidth = GetSystemMetrics(SM_CXSCREEN) - (bounds.right - bounds.left);
  const LONG freeHeight = GetSystemMetrics(SM_CYSCREEN) - (bounds.bottom - bounds.top);
  // Positions are computed in twentieths of a point, so a pixel may be rounded either way.
  EXPECT_NEAR(bounds.left, freeWidth / 2.0, 1.0);
  EXPECT_NEAR(bounds.top, freeHeight / 3.0, 1.0);
}

TEST_F(StartUp, ASecondCopyStartsLikeTheFirst) {
  Program second(home_.Path(), "second.exe");
  program_.Start();
  second.Start();
  EXPECT_EQ(second.Close(), 0U);
  EXPECT_TRUE(program_.IsRunning());
}

TEST_F(StartUp, TheSameFileStartedTwiceAtOnceGivesTwoProgramsThatWork) {
  tree_.MakeFile("some.ico", support::IconFileOf(0x20C040));
  WriteSetting("Folder", tree_.Path());
  Program second(program_.Path());
  program_.Launch();
  second.Launch();
  EXPECT_NE(program_.WaitForStartUpWindow().Window(), second.WaitForStartUpWindow().Window());
  program_.WaitForMainWindow();
  second.WaitForMainWindow();
  for (const Program* each : {&program_, &second}) {
    EXPECT_EQ(each->CountWindowsWith(FrmFindIcon_CmdFind), 1);
    each->Item(FrmFindIcon_CmdFind).Send(BM_CLICK);
    EXPECT_EQ(ReportView(each->Item(FrmFindIcon_Lv)).RowCount(), 1);
  }
  // Each writes its own settings to the file that both share.
  second.Item(FrmFindIcon_chkSubDir).Send(BM_CLICK);
  EXPECT_EQ(second.Close(), 0U);
  EXPECT_EQ(ReadSetting("Subdir"), "True");
  Find();
  EXPECT_EQ(List().RowCount(), 1);
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(ReadSetting("Subdir"), "False");
}

}  // namespace
}  // namespace tarvik::end_to_end
