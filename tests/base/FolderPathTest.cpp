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

TEST(TidyFolderPath, ResolvesDotsByTheNamesAlone) {
  EXPECT_EQ(TidyFolderPath("C:\\a\\..\\b"), "C:\\b");
  EXPECT_EQ(TidyFolderPath("C:\\a\\b\\.."), "C:\\a");
  EXPECT_EQ(TidyFolderPath("C:\\a\\.\\b\\."), "C:\\a\\b");
  EXPECT_EQ(TidyFolderPath("c:/a/./../b/"), "C:\\b");
  EXPECT_EQ(TidyFolderPath("C:\\a\\\\b"), "C:\\a\\b");
  EXPECT_EQ(TidyFolderPath("C:\\..\\..\\a"), "C:\\a");
  EXPECT_EQ(TidyFolderPath("C:\\a\\.."), "C:\\");
  EXPECT_EQ(TidyFolderPath("\\\\server\\share\\a\\..\\..\\b"), "\\\\server\\share\\b");
  EXPECT_EQ(TidyFolderPath("C:\\...\\..a\\b.."), "C:\\...\\..a\\b..") << "names that have dots";
}

TEST(AbsoluteFolderPath, LeavesAPathFromARootWhereItIs) {
  EXPECT_EQ(AbsoluteFolderPath("d:/icons/", "C:\\program"), "D:\\icons");
  EXPECT_EQ(AbsoluteFolderPath("d:", "C:\\program"), "D:\\");
  EXPECT_EQ(AbsoluteFolderPath("\\\\server\\share\\x", "C:\\program"), "\\\\server\\share\\x");
  EXPECT_EQ(AbsoluteFolderPath("", "C:\\program"), "");
}

TEST(AbsoluteFolderPath, StartsAnyOtherPathAtTheBase) {
  EXPECT_EQ(AbsoluteFolderPath("..", "C:\\tools\\program"), "C:\\tools");
  EXPECT_EQ(AbsoluteFolderPath(".", "C:\\tools\\program"), "C:\\tools\\program");
  EXPECT_EQ(AbsoluteFolderPath("..\\icons", "C:\\tools\\program"), "C:\\tools\\icons");
  EXPECT_EQ(AbsoluteFolderPath("icons", "C:\\"), "C:\\icons");
  EXPECT_EQ(AbsoluteFolderPath("\\icons", "D:\\tools\\program"), "D:\\icons");
  EXPECT_EQ(AbsoluteFolderPath("\\icons", "\\\\server\\share\\program"), "\\\\server\\share\\icons");
}

TEST(IsOnOtherComputer, IsTrueOfSharesAndDevicesInEveryForm) {
  for (const char* path : {R"(\\server\share)", R"(\\server\share\a)", R"(\\server)", R"(\\?\UNC\server\share)",
                           R"(\\.\UNC\server\share)", R"(\\?\GLOBALROOT\Device\Mup\server\share)"})
    EXPECT_TRUE(IsOnOtherComputer(path)) << path;
  for (const char* path : {R"(C:\)", R"(C:\a)", R"(\\?\C:\a)", R"(\a)", "a", ""})
    EXPECT_FALSE(IsOnOtherComputer(path)) << path;
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
