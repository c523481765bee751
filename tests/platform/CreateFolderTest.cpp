#include "platform/CreateFolder.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

using support::TemporaryFolder;

bool IsFolder(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(ToWide(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

TEST(CreateFolder, MakesAFolder) {
  const TemporaryFolder folder;
  for (const char* name : {"plain", "with blanks", "新建文件夹"}) {
    const std::string path = folder.In(name);
    EXPECT_EQ(CreateFolder(path), path);
    EXPECT_TRUE(IsFolder(path)) << name;
  }
}

TEST(CreateFolder, GivesThePathThatTheSystemTook) {
  const TemporaryFolder folder;
  EXPECT_EQ(CreateFolder(folder.In("a. ")), folder.In("a"));
  EXPECT_TRUE(IsFolder(folder.In("a")));
}

TEST(CreateFolder, RefusesNamesOfNoFolder) {
  const TemporaryFolder folder;
  for (const char* name : {"", "a:b", ":", "a*", "a?", "a\"", "a<", "a>", "a|", "missing\\a", "missing/a", "."}) {
    EXPECT_EQ(CreateFolder(folder.In("") + name), std::nullopt) << name;
  }
}

TEST(CreateFolder, RefusesWhatStandsThere) {
  const TemporaryFolder folder;
  EXPECT_EQ(CreateFolder(folder.MakeFolder("a")), std::nullopt);
  EXPECT_EQ(CreateFolder(folder.MakeFile("b")), std::nullopt);
}

TEST(CreateFolder, MakesFoldersBelowLongPaths) {
  const TemporaryFolder folder;
  std::string path = folder.Path();
  for (int depth = 0; depth < 4; ++depth) {
    path += '\\' + std::string(90, 'a');
    ASSERT_EQ(CreateFolder(path), path);
  }
  EXPECT_GT(path.size(), 300U);
}

}  // namespace
}  // namespace tarvik
