#include "search/icons/IconList.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "base/RuntimeError.h"

namespace tarvik {
namespace {

TEST(IconList, NumbersEntriesFromOneInTheOrderTheyCame) {
  IconList list;
  list.Add("C:\\b.dll", 0);
  list.Add("C:\\a.dll", 4);
  ASSERT_EQ(list.Count(), 2);
  EXPECT_EQ(list.Item(1), (IconListEntry{"C:\\b.dll", 0, false, "Row1"}));
  EXPECT_EQ(list.Item(2), (IconListEntry{"C:\\a.dll", 4, false, "Row2"}));
}

TEST(IconList, NamesEachRowByItsNumber) {
  IconList list;
  for (int index = 0; index < 20; ++index) list.Add("x", index);
  EXPECT_EQ(list.Item(1).key, "Row1");
  EXPECT_EQ(list.Item(17).key, "Row17");
  list.Clear();
  list.Add("y", 0);
  EXPECT_EQ(list.Item(1).key, "Row1");
}

TEST(IconList, HoldsEntriesOneToTheirCountAndNoOther) {
  IconList list;
  EXPECT_FALSE(list.Has(1));
  list.Add("x", 0);
  EXPECT_TRUE(list.Has(1));
  for (const int number : {0, 2, -1}) {
    EXPECT_FALSE(list.Has(number));
    EXPECT_THROW(list.Item(number), std::out_of_range);
    EXPECT_THROW(list.Select(number), std::out_of_range);
  }
}

TEST(IconList, SelectsAndDeselectsOneEntryByItsNumber) {
  IconList list;
  list.Add("x", 0);
  list.Add("x", 1);
  EXPECT_FALSE(list.AnySelected());
  list.Select(2);
  EXPECT_FALSE(list.Item(1).selected);
  EXPECT_TRUE(list.Item(2).selected);
  EXPECT_TRUE(list.AnySelected());
  list.Deselect(2);
  EXPECT_FALSE(list.AnySelected());
}

TEST(IconList, ForgetsEntriesAndSelectionWhenCleared) {
  IconList list;
  list.Add("x", 0);
  list.Select(1);
  list.Clear();
  EXPECT_EQ(list.Count(), 0);
  list.Add("x", 0);
  EXPECT_FALSE(list.Item(1).selected);
}

TEST(IconList, RefusesAnIndexBeyondSixteenBits) {
  IconList list;
  EXPECT_THROW(list.Add("x", 32768), OverflowError);
  EXPECT_EQ(list.Count(), 0);
}

TEST(IsAnimatedCursorName, LooksAtTheLastFourCharactersInAnyCase) {
  for (const std::string name : {"C:\\a.ani", "C:\\A.ANI", ".aNi"}) EXPECT_TRUE(IsAnimatedCursorName(name)) << name;
  for (const std::string name : {"C:\\a.ani.ico", "C:\\aani", "ani", "", "C:\\a.an"}) {
    EXPECT_FALSE(IsAnimatedCursorName(name)) << name;
  }
}

}  // namespace
}  // namespace tarvik
