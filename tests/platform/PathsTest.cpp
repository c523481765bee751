#include "platform/Paths.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/Text.h"

namespace tarvik {
namespace {

using Folders = std::vector<std::string>;

TEST(Paths, JoinsWithOneBackslash) {
  EXPECT_EQ(JoinPath(R"(C:\Windows)", "Fonts"), R"(C:\Windows\Fonts)");
  EXPECT_EQ(JoinPath(R"(C:\)", "Windows"), R"(C:\Windows)");
  EXPECT_EQ(JoinPath(R"(\\server\share)", "a"), R"(\\server\share\a)");
}

TEST(Paths, GivesTheParentsOutermostFirst) {
  EXPECT_EQ(ParentFolders(R"(C:\Windows\Fonts\a)"), (Folders{R"(C:\)", R"(C:\Windows)", R"(C:\Windows\Fonts)"}));
  EXPECT_EQ(ParentFolders(R"(C:\Windows)"), (Folders{R"(C:\)"}));
  EXPECT_EQ(ParentFolders(R"(C:\Windows\)"), (Folders{R"(C:\)"}));
  EXPECT_EQ(ParentFolders(R"(\\server\share\a\b)"), (Folders{R"(\\server\share)", R"(\\server\share\a)"}));
}

TEST(Paths, GivesNoParentsOfARoot) {
  for (const char* root : {R"(C:\)", R"(\\server\share)", R"(\\server)", "C:", "a", ""}) {
    EXPECT_EQ(ParentFolders(root), Folders{}) << root;
  }
}

TEST(Paths, NamesTheLastPart) {
  EXPECT_EQ(LastName(R"(C:\Windows\Fonts)"), "Fonts");
  EXPECT_EQ(LastName(R"(C:\Windows\)"), "Windows");
  EXPECT_EQ(LastName(R"(C:\)"), R"(C:\)");
  EXPECT_EQ(LastName(R"(\\server\share)"), R"(\\server\share)");
  EXPECT_EQ(LastName(R"(\\server\share\图标)"), "图标");
}

TEST(Paths, MakesLiteralPathsOfDrivesAndShares) {
  EXPECT_EQ(LiteralPath(R"(C:\a)"), LR"(\\?\C:\a)");
  EXPECT_EQ(LiteralPath(R"(\\server\share\a)"), LR"(\\?\UNC\server\share\a)");
  EXPECT_EQ(LiteralPath(R"(\\?\C:\a)"), LR"(\\?\C:\a)");
  EXPECT_EQ(LiteralPath("C:/a"), L"C:/a");
  EXPECT_EQ(LiteralPath("a"), L"a");
}

TEST(Paths, FindsTheProgramAndItsFolder) {
  EXPECT_EQ(LastName(ProgramPath()), "window_tests.exe");
  EXPECT_EQ(JoinPath(ProgramFolder(), LastName(ProgramPath())), ProgramPath());
}

TEST(Paths, FindsTheFoldersOfTheSystem) {
  EXPECT_NE(GetFileAttributesW(ToWide(JoinPath(SystemFolder(), "shell32.dll")).c_str()), INVALID_FILE_ATTRIBUTES);
  EXPECT_TRUE(TempFolder().ends_with('\\'));
  EXPECT_NE(GetFileAttributesW(ToWide(TempFolder()).c_str()) & FILE_ATTRIBUTE_DIRECTORY, 0U);
}

}  // namespace
}  // namespace tarvik
