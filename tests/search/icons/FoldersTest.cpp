#include "search/icons/Folders.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cctype>

#include "base/FolderPath.h"
#include "platform/Paths.h"
#include "platform/TemporaryFolder.h"

namespace tarvik {
namespace {

using testing::AddAttributes;
using testing::TemporaryFolder;
using Names = std::vector<std::string>;

constexpr const char* allFiles = "*.*";

Names Files(const std::string& folder, const std::string& pattern = allFiles) {
  return Folders().Files(folder, pattern);
}

// The names of the sub-folders.
Names SubFolderNames(const std::string& folder) {
  Names names;
  for (const std::string& path : Folders().SubFolders(folder)) {
    EXPECT_EQ(JoinPath(folder, FolderName(path)), path);
    names.emplace_back(FolderName(path));
  }
  return names;
}

TEST(Folders, ListsTheFilesThatMatchThePattern) {
  const TemporaryFolder folder;
  for (const char* name : {"a.ico", "B.ICO", "c.dll", "d.icon", "e.ico2", "ico", "f.exe"}) folder.MakeFile(name);
  folder.MakeFolder("folder.ico");
  EXPECT_EQ(Files(folder.Path(), "*.ico;*.exe;"), (Names{"a.ico", "B.ICO", "f.exe"}));
  EXPECT_EQ(Files(folder.Path()).size(), 7U);
}

TEST(Folders, SortsByNameWithCaseIgnored) {
  const TemporaryFolder folder;
  const Names sorted{"_.ico", "a.ico", "B.ico", "b1.ico", "Z.ico", "é.ico", "中.ico", "图.ico"};
  for (const std::size_t i : {5U, 2U, 7U, 0U, 4U, 1U, 6U, 3U}) folder.MakeFile(sorted[i]);
  // Ordinal with case ignored compares the upper-case forms: "_" (5F) stands after "Z" (5A).
  EXPECT_EQ(Files(folder.Path()), (Names{"a.ico", "B.ico", "b1.ico", "Z.ico", "_.ico", "é.ico", "中.ico", "图.ico"}));
}

TEST(Folders, SortsSubFoldersAlike) {
  const TemporaryFolder folder;
  for (const char* name : {"b", "C", "a", "图标😀"}) folder.MakeFolder(name);
  EXPECT_EQ(SubFolderNames(folder.Path()), (Names{"a", "b", "C", "图标😀"}));
}

TEST(Folders, LeavesOutHiddenAndSystemFiles) {
  const TemporaryFolder folder;
  folder.MakeFile("seen.ico");
  AddAttributes(folder.MakeFile("read-only.ico"), FILE_ATTRIBUTE_READONLY);
  AddAttributes(folder.MakeFile("hidden.ico"), FILE_ATTRIBUTE_HIDDEN);
  AddAttributes(folder.MakeFile("system.ico"), FILE_ATTRIBUTE_SYSTEM);
  EXPECT_EQ(Files(folder.Path()), (Names{"read-only.ico", "seen.ico"}));
}

TEST(Folders, ListsHiddenSubFolders) {
  const TemporaryFolder folder;
  folder.MakeFile("file");
  folder.MakeFolder("seen");
  AddAttributes(folder.MakeFolder("hidden"), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  EXPECT_EQ(SubFolderNames(folder.Path()), (Names{"hidden", "seen"}));
}

TEST(Folders, LeavesOutLinksToFolders) {
  TemporaryFolder folder;
  folder.MakeFolder("real");
  folder.MakeLink(R"(real\back)", folder.Path());
  EXPECT_EQ(SubFolderNames(folder.Path()), Names{"real"});
  EXPECT_EQ(SubFolderNames(folder.In("real")), Names{});
}

TEST(Folders, ReadsPathsOfAnyLength) {
  const TemporaryFolder folder;
  std::string name;
  const std::string part(60, 'p');
  while (JoinPath(folder.Path(), name).size() < 300) {
    name = JoinPath(name, part);
    folder.MakeFolder(name);
    folder.MakeFile(JoinPath(name, "icon.ico"));
    const std::string path = folder.In(name);
    EXPECT_EQ(Files(path, "*.ico"), Names{"icon.ico"}) << path.size();
    EXPECT_TRUE(IsReadableFolder(path)) << path.size();
  }
  EXPECT_EQ(SubFolderNames(folder.Path()), Names{part});
  const std::string deepest = ParentFolder(folder.In(name));
  EXPECT_EQ(SubFolderNames(deepest), Names{part});
}

TEST(Folders, ListsNamesOfTheGreatestLength) {
  const TemporaryFolder folder;
  std::string name;
  for (int i = 0; i < 80; ++i) name += "图";
  name += ".ico";
  folder.MakeFile(name);
  EXPECT_EQ(Files(folder.Path(), "*.ico"), Names{name});
}

TEST(Folders, TakesWhatCannotBeReadAsEmpty) {
  const TemporaryFolder folder;
  for (const std::string& path :
       {folder.In("none"), folder.MakeFile("file"), std::string(), std::string("?"), std::string(R"(Q:\)")}) {
    EXPECT_EQ(Files(path), Names{}) << path;
    EXPECT_EQ(Folders().SubFolders(path), Names{}) << path;
    EXPECT_FALSE(IsReadableFolder(path)) << path;
  }
}

TEST(Folders, JoinsTheRootOfADriveWithOneBackslash) {
  const Names folders = Folders().SubFolders(R"(C:\)");
  const auto isWindows = [](const std::string& path) {
    return CompareStringA(LOCALE_INVARIANT, NORM_IGNORECASE, path.c_str(), -1, R"(C:\windows)", -1) == CSTR_EQUAL;
  };
  EXPECT_EQ(std::count_if(folders.begin(), folders.end(), isWindows), 1);
}

TEST(Folders, SaysWhichFoldersCanBeRead) {
  const TemporaryFolder folder;
  EXPECT_TRUE(IsReadableFolder(folder.Path()));
  EXPECT_TRUE(IsReadableFolder(folder.Path() + "\\"));
  EXPECT_TRUE(IsReadableFolder(R"(C:\)"));
  EXPECT_TRUE(IsReadableFolder("C:/windows"));
}

TEST(Drives, HaveTheSystemDriveWithItsRoot) {
  const std::vector<Drive> drives = Drives();
  const auto system =
      std::find_if(drives.begin(), drives.end(), [](const Drive& drive) { return drive.letter == 'c'; });
  ASSERT_NE(system, drives.end());
  EXPECT_EQ(system->Root(), R"(C:\)");
  EXPECT_TRUE(
      std::is_sorted(drives.begin(), drives.end(), [](const Drive& a, const Drive& b) { return a.letter < b.letter; }));
}

TEST(Drives, ShowTheLabelWhereThereIsOne) {
  EXPECT_EQ((Drive{'c', "SYSTEM"}.Display()), "c: [SYSTEM]");
  EXPECT_EQ((Drive{'d', "数据"}.Display()), "d: [数据]");
  EXPECT_EQ((Drive{'z', ""}.Display()), "z:");
}

}  // namespace
}  // namespace tarvik
