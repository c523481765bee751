// What the main window shows on its task-bar button.

#include <gmock/gmock.h>
#include <windows.h>

#include <string>
#include <vector>

#include "forms/NotedTaskBar.h"
#include "platform/TemporaryFolder.h"
#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FrmFindIconProgressTest : public support::FindIconFixture {
 protected:
  FrmFindIconProgressTest() {
    taskBar = &bar;
    application.onRuntimeError = [this](Form& /*form*/, const RuntimeError& /*error*/) { bar.calls.push_back("box"); };
  }

  support::NotedTaskBar bar;
  support::TemporaryFolder out;
};

TEST_F(FrmFindIconProgressTest, CountsListsAndEndsWithNothing) {
  Open();
  EXPECT_THAT(bar.calls, IsEmpty());
  Find(4);
  EXPECT_THAT(bar.calls, ElementsAre("indeterminate", "normal", "1/4", "2/4", "3/4", "4/4", "none"));
}

TEST_F(FrmFindIconProgressTest, IsOverBeforeASearchSaysWhyItListsNothing) {
  Open();
  Find(0);
  EXPECT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_THAT(bar.calls, ElementsAre("indeterminate", "none"));
}

TEST_F(FrmFindIconProgressTest, ShowsAnErrorWhileItIsReported) {
  Open();
  Find(40'000);
  EXPECT_THAT(bar.calls, ElementsAre("indeterminate", "none", "error", "1/1", "box", "none"));
}

TEST_F(FrmFindIconProgressTest, FollowsABatchAndShowsAFileThatFails) {
  Open();
  Find(2);
  bar.calls.clear();
  dialogs.folder = out.Path();
  Click(FrmFindIcon_mnuSaveAll);
  EXPECT_THAT(bar.calls, ElementsAre("normal", "1/2", "2/2", "none"));
  bar.calls.clear();
  const support::TemporaryFolder taken;
  taken.MakeFolder("Icon 2.ico");
  dialogs.folder = taken.Path();
  Click(FrmFindIcon_mnuSaveAll);
  EXPECT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_THAT(bar.calls, ElementsAre("normal", "1/2", "error", "normal", "1/2", "2/2", "none"));
}

}  // namespace
}  // namespace tarvik
