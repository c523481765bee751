// How the program comes up and goes.

#include <gmock/gmock.h>

#include <chrono>

#include "end_to_end/EndToEndTest.h"

namespace tarvik::end_to_end {
namespace {

class StartUp : public EndToEnd {};

TEST_F(StartUp, TheStartUpWindowGivesWayToTheMainWindowByItself) {
  program_.Launch();
  const Control startUp = program_.WaitForStartUpWindow();
  EXPECT_EQ(program_.CountWindowsWith(FrmFindIcon_CmdFind), 0);
  const auto shown = std::chrono::steady_clock::now();
  program_.WaitForMainWindow();
  // Its three seconds began before it was seen, so a little less is right, too.
  EXPECT_GT(std::chrono::steady_clock::now() - shown, std::chrono::seconds(2));
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
  const RECT place = program_.Window().Place();
  const LONG freeWidth = GetSystemMetrics(SM_CXSCREEN) - (place.right - place.left);
  const LONG freeHeight = GetSystemMetrics(SM_CYSCREEN) - (place.bottom - place.top);
  // Places are reckoned in twentieths of a point, so a pixel may be rounded either way.
  EXPECT_NEAR(place.left, freeWidth / 2.0, 1.0);
  EXPECT_NEAR(place.top, freeHeight / 3.0, 1.0);
}

TEST_F(StartUp, ASecondCopyStartsLikeTheFirst) {
  Program second(home_.Path(), "second.exe");
  program_.Start();
  second.Start();
  EXPECT_EQ(second.Close(), 0U);
  EXPECT_TRUE(program_.IsRunning());
}

}  // namespace
}  // namespace tarvik::end_to_end
