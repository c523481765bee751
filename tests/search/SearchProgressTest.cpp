// The progress that a search reports.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "search/SearchDriverFixture.h"

namespace tarvik {
namespace {

using ::testing::ElementsAre;

using SearchProgressTest = SearchDriverTest;

TEST_F(SearchProgressTest, IsUnknownWhileItCountsAndThenTheShareListed) {
  AddFile("C:\\a", "two.dll", {.icons = 2});
  AddFile("C:\\a", "move.ani", {.icons = 1, .steps = 2, .stepBound = 5});
  Find();
  EXPECT_THAT(window.progress, ElementsAre("counting", "1/4", "2/4", "3/4", "4/4", "none"));
}

TEST_F(SearchProgressTest, NeverPassesItsEndWhereAFileHasGrown) {
  AddFile("C:\\a", "two.dll", {.icons = 2});
  window.onEvents = [this] { icons.files["C:\\a\\two.dll"].icons = 3; };
  Find();
  EXPECT_THAT(window.progress, ElementsAre("counting", "1/2", "2/2", "none"));
}

TEST_F(SearchProgressTest, EndsBeforeABoxSaysWhyNothingIsListed) {
  Find();
  EXPECT_THAT(window.progress, ElementsAre("counting", "none", "box", "none"));
}

TEST_F(SearchProgressTest, EndsWithARunTimeError) {
  AddFile("C:\\a", "many.dll", {.icons = 40'000});
  EXPECT_THROW(Find(), OverflowError);
  EXPECT_THAT(window.progress, ElementsAre("counting", "none"));
}

}  // namespace
}  // namespace tarvik
