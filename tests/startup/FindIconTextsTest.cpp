// The main window's texts as a user sees them.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "search/window/FindIconFixture.h"
#include "startup/TextChecks.h"

namespace tarvik {
namespace {

using support::FindIconFixture;
using Texts = std::vector<std::string>;

TEST_F(FindIconFixture, HasAnAccessKeyOnceInEachWindowAndMenu) {
  for (const std::string language : {"ENG", "CHS", "CHT"}) {
    Open(language);
    EXPECT_EQ(support::TextsWithTakenKeys(window->Window()), Texts{}) << language;
    EXPECT_EQ(support::MenuTextsWithTakenKeys(window->Window()), Texts{}) << language;
  }
}

TEST_F(FindIconFixture, HasRoomForItsTextsInEveryLanguage) {
  for (const std::string language : {"ENG", "CHS", "CHT", "CHI"}) {
    Open(language);
    EXPECT_EQ(support::CutOffTexts(window->Window()), Texts{}) << language;
  }
}

TEST_F(FindIconFixture, StandsInTheMiddleAThirdOfTheSpareHeightDown) {
  Open();
  RECT bounds;
  GetWindowRect(window->Window(), &bounds);
  EXPECT_NEAR(bounds.left * 2, GetSystemMetrics(SM_CXSCREEN) - (bounds.right - bounds.left), 1);
  EXPECT_NEAR(bounds.top * 3, GetSystemMetrics(SM_CYSCREEN) - (bounds.bottom - bounds.top), 1);
}

TEST_F(FindIconFixture, OpensTheAboutBoxAndTheGuideFromItsHelpMenu) {
  Open();
  Click(FrmFindIcon_MnuContent);
  EXPECT_EQ(guideShown, 1);
  EXPECT_FALSE(state.ShowAsAbout);
  Click(FrmFindIcon_MnuAbout);
  EXPECT_EQ(aboutShown, 1);
  EXPECT_TRUE(state.ShowAsAbout);
}

}  // namespace
}  // namespace tarvik
