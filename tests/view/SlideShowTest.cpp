#include "view/SlideShow.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

TEST(SlideShow, IsOffAtFirstWithAnIntervalOfFiveSeconds) {
  const SlideShow show;
  EXPECT_FALSE(show.IsEnabled());
  EXPECT_EQ(show.Interval(), 5000);
}

TEST(SlideShow, StartsAndStops) {
  SlideShow show;
  show.Start();
  EXPECT_TRUE(show.IsEnabled());
  show.Stop();
  EXPECT_FALSE(show.IsEnabled());
}

TEST(SlideShow, GetsFasterDownToOneSecond) {
  SlideShow show;
  for (const int interval : {4000, 3000, 2000, 1000}) {
    EXPECT_TRUE(show.Faster());
    EXPECT_EQ(show.Interval(), interval);
  }
  EXPECT_FALSE(show.Faster());
  EXPECT_EQ(show.Interval(), 1000);
}

TEST(SlideShow, GetsSlowerUpToSixtyFiveSeconds) {
  SlideShow show;
  for (int interval = 6000; interval <= 65000; interval += 1000) {
    EXPECT_TRUE(show.Slower());
    EXPECT_EQ(show.Interval(), interval);
  }
  EXPECT_FALSE(show.Slower());
  EXPECT_EQ(show.Interval(), 65000);
}

TEST(SlideShow, KeepsRunningOrNotWhateverItsSpeed) {
  for (const bool runs : {false, true}) {
    SlideShow show;
    if (runs) show.Start();
    show.Faster();
    EXPECT_EQ(show.IsEnabled(), runs);
    show.Slower();
    EXPECT_EQ(show.IsEnabled(), runs);
  }
}

}  // namespace
}  // namespace tarvik
