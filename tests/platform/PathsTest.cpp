#include "platform/Paths.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "base/FolderPath.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

TEST(Paths, MakesLiteralPathsOfDrivesAndShares) {
  EXPECT_EQ(LiteralPath(R"(C:\a)"), LR"(\\?\C:\a)");
  // A file at a drive's root, as a search names it.
  EXPECT_EQ(LiteralPath(R"(C:\\a.ani)"), LR"(\\?\C:\a.ani)");
  EXPECT_EQ(LiteralPath(R"(\\server\share\\a)"), LR"(\\?\UNC\server\share\a)");
  EXPECT_EQ(LiteralPath(R"(\\server\share\a)"), LR"(\\?\UNC\server\share\a)");
  EXPECT_EQ(LiteralPath(R"(\\?\C:\a)"), LR"(\\?\C:\a)");
  EXPECT_EQ(LiteralPath("C:/a"), L"C:/a");
  EXPECT_EQ(LiteralPath("a"), L"a");
}

TEST(Paths, FindsTheProgramAndItsFolder) {
  EXPECT_EQ(FolderName(ProgramPath()), "window_tests.exe");
  EXPECT_EQ(JoinPath(ProgramFolder(), FolderName(ProgramPath())), ProgramPath());
}

TEST(Paths, FindsTheFoldersOfTheSystem) {
  EXPECT_NE(GetFileAttributesW(ToWide(JoinPath(SystemFolder(), "shell32.dll")).c_str()), INVALID_FILE_ATTRIBUTES);
  EXPECT_TRUE(TempFolder().ends_with('\\'));
  EXPECT_NE(GetFileAttributesW(ToWide(TempFolder()).c_str()) & FILE_ATTRIBUTE_DIRECTORY, 0U);
}

}  // namespace
}  // namespace tarvik
