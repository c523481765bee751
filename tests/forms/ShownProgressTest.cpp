#include "forms/ShownProgress.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/NotedTaskBar.h"

namespace tarvik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr Progress unknown{Progress::Kind::Unknown};
constexpr Progress none{};

constexpr Progress Share(int done, int total) {
  return {Progress::Kind::Share, done, total};
}

class ShownProgressTest : public ::testing::Test {
 protected:
  ShownProgressTest() { progress.Attach(GetDesktopWindow()); }

  ULONGLONG now = 1'000;
  support::NotedTaskBar bar;
  ShownProgress progress{&bar, 300, [this] { return now; }};
};

TEST_F(ShownProgressTest, ShowsNothingOfACommandThatIsOverSoon) {
  progress.Set(unknown);
  now += 299;
  progress.Set(Share(1, 2));
  progress.Set(none);
  now += 1'000;
  progress.Set(unknown);
  progress.Set(none);
  EXPECT_THAT(bar.calls, IsEmpty());
}

TEST_F(ShownProgressTest, ShowsALongerOneAndNothingAfterIt) {
  progress.Set(unknown);
  now += 300;
  progress.Set(unknown);
  progress.Set(unknown);
  progress.Set(Share(1, 4));
  progress.Set(Share(4, 4));
  progress.Set(none);
  progress.Set(none);
  EXPECT_THAT(bar.calls, ElementsAre("indeterminate", "normal", "1/4", "4/4", "none"));
}

TEST_F(ShownProgressTest, TellsOfEachHundredthOnce) {
  progress.Set(unknown);
  now += 300;
  for (int done = 1; done <= 4'000; ++done) progress.Set(Share(done, 4'000));
  EXPECT_EQ(bar.calls.size(), 1U + 101U);
  EXPECT_EQ(bar.calls[1], "1/4000");
  EXPECT_EQ(bar.calls[2], "40/4000");
  EXPECT_EQ(bar.calls.back(), "4000/4000");
}

TEST_F(ShownProgressTest, TakesATotalOfNothing) {
  progress.Set(unknown);
  now += 300;
  progress.Set(Share(0, 0));
  EXPECT_THAT(bar.calls, ElementsAre("normal"));
}

TEST_F(ShownProgressTest, ShowsAnErrorAtOnceUntilItIsOver) {
  {
    const Finally error = progress.ShowError();
    EXPECT_THAT(bar.calls, ElementsAre("error", "1/1"));
  }
  EXPECT_EQ(bar.calls.back(), "none");
}

TEST_F(ShownProgressTest, GoesOnWhereItWasAfterAnError) {
  progress.Set(unknown);
  now += 300;
  progress.Set(Share(1, 4));
  bar.calls.clear();
  {
    const Finally error = progress.ShowError();
    const Finally another = progress.ShowError();
    progress.Set(Share(2, 4));
    EXPECT_THAT(bar.calls, ElementsAre("error")) << "as full as it was";
  }
  EXPECT_THAT(bar.calls, ElementsAre("error", "normal", "2/4"));
}

TEST_F(ShownProgressTest, DoesNothingWithoutATaskBar) {
  ShownProgress alone(nullptr, 0);
  alone.Set(unknown);
  const Finally error = alone.ShowError();
  alone.Set(none);
  EXPECT_THAT(bar.calls, IsEmpty());
}

}  // namespace
}  // namespace tarvik
