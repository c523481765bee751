#include "search/window/IconListRows.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

TEST(IconListColumns, HaveTheirHeadersAndWidthsInOrder) {
  ASSERT_EQ(iconListColumns.size(), 3U);
  EXPECT_EQ(iconListColumns[0].header, "序号");
  EXPECT_EQ(iconListColumns[0].width, 40);
  EXPECT_EQ(iconListColumns[1].header, "文件路径");
  EXPECT_EQ(iconListColumns[1].width, 460);
  EXPECT_EQ(iconListColumns[2].header, "图标索引");
  EXPECT_EQ(iconListColumns[2].width, 80);
}

TEST(IconListCell, ShowsNumberPathAndIndex) {
  IconList list;
  list.Add("C:\\图标.dll", 0);
  list.Add("C:\\图标.dll", 17);
  EXPECT_EQ(IconListCell(list, 2, 0), "2");
  EXPECT_EQ(IconListCell(list, 2, 1), "C:\\图标.dll");
  EXPECT_EQ(IconListCell(list, 2, 2), "17");
  EXPECT_EQ(IconListCell(list, 1, 2), "0");
}

TEST(MarkingOf, IsBoldAndRedWhileSelectedAndPlainBlackOtherwise) {
  EXPECT_EQ(MarkingOf({"x", 0, true}), (RowMarking{true, 255}));
  EXPECT_EQ(MarkingOf({"x", 0, false}), (RowMarking{false, 0}));
}

}  // namespace
}  // namespace tarvik
