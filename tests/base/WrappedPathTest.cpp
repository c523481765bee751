#include "base/WrappedPath.h"

#include <gtest/gtest.h>

namespace tarvik {
namespace {

TEST(WrapPath, LeavesAPathThatFits) {
  EXPECT_EQ(WrapPath("", 10), "");
  EXPECT_EQ(WrapPath("C:\\a.ico", 8), "C:\\a.ico");
}

TEST(WrapPath, BreaksBehindTheLastBackslashOfALine) {
  EXPECT_EQ(WrapPath("C:\\one\\two\\a.ico", 12), "C:\\one\\two\\\r\na.ico");
  EXPECT_EQ(WrapPath("C:\\one\\two\\a.ico", 10), "C:\\one\\\r\ntwo\\a.ico");
  EXPECT_EQ(WrapPath("C:\\one\\two\\three\\a.ico", 7), "C:\\one\\\r\ntwo\\\r\nthree\\\r\na.ico");
}

TEST(WrapPath, BreaksInsideANameThatIsLongerThanALine) {
  EXPECT_EQ(WrapPath("C:\\abcdefgh.ico", 6), "C:\\\r\nabcdef\r\ngh.ico");
  EXPECT_EQ(WrapPath("abcdefgh", 3), "abc\r\ndef\r\ngh");
}

TEST(WrapPath, CountsTwoColumnsForACharacterOfEastAsiaAndBreaksNone) {
  EXPECT_EQ(WrapPath("图标图标", 4), "图标\r\n图标");
  EXPECT_EQ(WrapPath("图标图标", 5), "图标\r\n图标");
  EXPECT_EQ(WrapPath("äöüß", 4), "äöüß");
  EXPECT_EQ(WrapPath("🎨🎨", 2), "🎨\r\n🎨");
}

TEST(WrapPath, TakesAnyBytes) {
  EXPECT_EQ(WrapPath("\xFF\xE5\x9B", 2), "\xFF\xE5\r\n\x9B");
}

}  // namespace
}  // namespace tarvik
