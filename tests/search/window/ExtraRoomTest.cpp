#include "search/window/ExtraRoom.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

TEST(ShareRoom, GivesTheUpperListsAllThatTheGridCannotUse) {
  EXPECT_EQ(ShareRoom(300, 201, false), (ExtraRoom{300, 201, 0}));
}

TEST(ShareRoom, SharesTheHeightBetweenTheUpperListsAndTheIconList) {
  EXPECT_EQ(ShareRoom(300, 201, true), (ExtraRoom{300, 101, 100}));
  EXPECT_EQ(ShareRoom(0, 1, true), (ExtraRoom{0, 1, 0}));
}

TEST(ShareRoom, TakesNothingFromAControl) {
  EXPECT_EQ(ShareRoom(-5, -7, true), ExtraRoom{});
  EXPECT_EQ(ShareRoom(0, 0, false), ExtraRoom{});
}

}  // namespace
}  // namespace tarvik
