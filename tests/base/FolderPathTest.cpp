#include "base/FolderPath.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvik {
namespace {

using Chain = std::vector<std::string>;

TEST(TidyFolderPath, KeepsABackslashAtADriveRootAlone) {
  EXPECT_EQ(TidyFolderPath("c:"), "C:\\");
  EXPECT_EQ(TidyFolderPath("c:\\"), "C:\\");
  EXPECT_EQ(TidyFolderPath("c:/Windows/"), "C:\\Windows");
  EXPECT_EQ(TidyFolderPath("C:\\a\\b\\\\"), "C:\\a\\b");
  EXPECT_EQ(TidyFolderPath("\\\\server\\share\\"), "\\\\server\\share");
  EXPECT_EQ(TidyFolderPath(""), "");
}

TEST(FolderChain, GoesFromTheRootDownToTheFolderItself) {
  EXPECT_EQ(FolderChain("C:\\"), (Chain{"C:\\"}));
  EXPECT_EQ(FolderChain("C:\\a\\b"), (Chain{"C:\\", "C:\\a", "C:\\a\\b"}));
  EXPECT_EQ(FolderChain("\\\\server\\share\\x"), (Chain{"\\\\server\\share", "\\\\server\\share\\x"}));
  EXPECT_EQ(FolderChain(""), Chain{});
}

TEST(ParentFolder, IsOneUpAndStopsAtTheRoot) {
  EXPECT_EQ(ParentFolder("C:\\a\\b"), "C:\\a");
  EXPECT_EQ(ParentFolder("C:\\a"), "C:\\");
  EXPECT_EQ(ParentFolder("C:\\"), "C:\\");
  EXPECT_EQ(ParentFolder("\\\\server\\share"), "\\\\server\\share");
}

TEST(FolderName, IsTheLastNameOrTheRoot) {
  EXPECT_EQ(FolderName("C:\\Windows\\图标"), "图标");
  EXPECT_EQ(FolderName("C:\\"), "C:\\");
  EXPECT_EQ(FolderName("\\\\server\\share"), "\\\\server\\share");
}

TEST(JoinPath, PutsOneBackslashBetween) {
  EXPECT_EQ(JoinPath("C:\\", "x.ico"), "C:\\x.ico");
  EXPECT_EQ(JoinPath("C:\\a", "x.ico"), "C:\\a\\x.ico");
}

}  // namespace
}  // namespace tarvik
