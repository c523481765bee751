#include "search/icons/Folders.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <map>

#include "base/FolderPath.h"
#include "platform/Paths.h"
#include "platform/TemporaryFolder.h"

namespace tarvik {
namespace {

using support::AddAttributes;
using support::TemporaryFolder;
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
  // An ordinal comparison that ignores case compares the upper-case forms: "_" (5F) comes after "Z" (5A).
  EXPECT_EQ(Files(folder.Path()), (Names{"a.ico", "B.ico", "b1.ico", "Z.ico", "_.ico", "é.ico", "中.ico", "图.ico"}));
}

// Folders for which the system lists these entries in this order: Wine's own order would hide that they are not sorted.
Folders FoldersOf(std::vector<FolderEntry> entries, std::map<std::string, std::vector<std::byte>> reparseData = {}) {
  return Folders({[entries](const std::string&, const Folders::Dependencies::Visit& visit) {
                    for (const FolderEntry& entry : entries) visit(entry);
                  },
                  [reparseData](const std::string& path) {
                    const auto found = reparseData.find(path);
                    return found == reparseData.end() ? std::vector<std::byte>() : found->second;
                  }});
}

constexpr std::array shuffled{L"图.ico", L"b1.ico", L"é.ico", L"B.ico",  L"a.ico", L"Z.ico",
                              L"A.ico",  L"_.ico",  L"b.ico", L"中.ico", L"AA.ico"};
// Names that differ only in case are in the order of their character codes.
const Names inOrder{"A.ico", "a.ico", "AA.ico", "B.ico",  "b.ico", "b1.ico",
                    "Z.ico", "_.ico", "é.ico",  "中.ico", "图.ico"};

TEST(Folders, SortsFilesInWhateverOrderTheSystemGivesThem) {
  std::vector<FolderEntry> entries;
  for (const wchar_t* name : shuffled) entries.push_back({name, FILE_ATTRIBUTE_ARCHIVE});
  EXPECT_EQ(FoldersOf(entries).Files("C:\\x", allFiles), inOrder);
}

TEST(Folders, SortsSubFoldersInWhateverOrderTheSystemGivesThem) {
  std::vector<FolderEntry> entries;
  for (const wchar_t* name : shuffled) entries.push_back({name, FILE_ATTRIBUTE_DIRECTORY});
  Folders folders = FoldersOf(entries);
  Names paths;
  for (const std::string& name : inOrder) paths.push_back("C:\\x\\" + name);
  EXPECT_EQ(folders.SubFolders("C:\\x"), paths);
  Names walked;
  for (const WalkedFolder& folder : folders.WalkedFolders("C:\\x")) walked.push_back(folder.path);
  EXPECT_EQ(walked, paths);
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

TEST(Folders, ListsLinksToFoldersAndWalksNone) {
  TemporaryFolder folder;
  folder.MakeFolder("real");
  folder.MakeFolder(R"(real\inner)");
  folder.MakeLink(R"(real\back)", folder.Path());
  EXPECT_EQ(SubFolderNames(folder.In("real")), (Names{"back", "inner"}));
  const auto walked = Folders().WalkedFolders(folder.In("real"));
  ASSERT_EQ(walked.size(), 1U);
  EXPECT_EQ(walked[0].path, folder.In(R"(real\inner)"));
  EXPECT_FALSE(walked[0].isMounted);
}

TEST(Folders, ReadsThroughALinkThatIsChosen) {
  TemporaryFolder folder;
  folder.MakeFolder("real");
  folder.MakeFolder(R"(real\inner)");
  folder.MakeFile(R"(real\a.ico)");
  const std::string link = folder.MakeLink("link", folder.In("real"));
  EXPECT_EQ(Files(link), Names{"a.ico"});
  EXPECT_TRUE(IsReadableFolder(link));
  const auto walked = Folders().WalkedFolders(link);
  ASSERT_EQ(walked.size(), 1U);
  EXPECT_EQ(walked[0].path, JoinPath(link, "inner"));
}

std::vector<std::byte> MountData(std::wstring_view target) {
  const auto size = static_cast<std::byte>(target.size() * 2);
  std::vector<std::byte> data(16 + target.size() * 2);
  data[0] = std::byte{3};
  data[3] = std::byte{0xA0};
  data[10] = size;
  std::memcpy(&data[16], target.data(), target.size() * 2);
  return data;
}

TEST(Folders, WalkAMountedVolumeAndNoJunctionOrOtherLink) {
  constexpr unsigned long point = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  Folders folders = FoldersOf({{L"junction", point, IO_REPARSE_TAG_MOUNT_POINT},
                               {L"symbolic", point, IO_REPARSE_TAG_SYMLINK},
                               {L"unknown", point, 0},
                               {L"disk", point, IO_REPARSE_TAG_MOUNT_POINT},
                               {L"cloud", point, 0x9000001A},
                               {L"plain", FILE_ATTRIBUTE_DIRECTORY, IO_REPARSE_TAG_SYMLINK}},
                              {{R"(C:\x\junction)", MountData(LR"(\??\C:\Users)")},
                               {R"(C:\x\disk)", MountData(LR"(\??\Volume{01234567-89ab-cdef-0123-456789abcdef}\)")}});
  EXPECT_EQ(folders.SubFolders("C:\\x").size(), 6U);
  const auto walked = folders.WalkedFolders("C:\\x");
  ASSERT_EQ(walked.size(), 3U);
  EXPECT_EQ(walked[0].path, R"(C:\x\cloud)");
  EXPECT_EQ(walked[1].path, R"(C:\x\disk)");
  EXPECT_EQ(walked[2].path, R"(C:\x\plain)");
  EXPECT_FALSE(walked[0].isMounted);
  EXPECT_TRUE(walked[1].isMounted);
  EXPECT_FALSE(walked[2].isMounted);
}

TEST(Folders, TellAFolderByWhateverPathLeadsToIt) {
  TemporaryFolder folder;
  const std::string real = folder.MakeFolder("real");
  const std::string other = folder.MakeFolder("other");
  const std::string link = folder.MakeLink("link", real);
  Folders folders;
  EXPECT_NE(folders.Identity(real), "");
  EXPECT_EQ(folders.Identity(link), folders.Identity(real));
  EXPECT_NE(folders.Identity(other), folders.Identity(real));
  EXPECT_EQ(folders.Identity(folder.In("none")), "");
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

TEST(Folders, AreToldFromFiles) {
  TemporaryFolder folder;
  folder.MakeFolder("real");
  folder.MakeFile("file.ico");
  EXPECT_TRUE(IsFolder(folder.Path()));
  EXPECT_TRUE(IsFolder(folder.In("real")));
  EXPECT_TRUE(IsFolder(folder.MakeLink("link", folder.In("real"))));
  EXPECT_FALSE(IsFolder(folder.In("file.ico")));
  EXPECT_FALSE(IsFolder(folder.In("missing")));
  for (const char* root : {R"(C:\)", R"(Y:\)", R"(\\nowhere\share)"}) EXPECT_TRUE(IsFolder(root)) << root;
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
