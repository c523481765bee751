#include "search/icons/FileBytes.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <array>
#include <string>

#include "platform/Handles.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

using support::TemporaryFolder;

TEST(FileBytes, ReadsFromAnyOffset) {
  const TemporaryFolder folder;
  FileBytes file(folder.MakeFile("光标😀.ani", "0123456789"));
  std::array<std::byte, 3> bytes{};
  EXPECT_EQ(file.Stamp().size, 10U);
  ASSERT_TRUE(file.Read(7, bytes));
  EXPECT_EQ(bytes, (std::array{std::byte{'7'}, std::byte{'8'}, std::byte{'9'}}));
  ASSERT_TRUE(file.Read(0, bytes));
  EXPECT_EQ(bytes[0], std::byte{'0'});
}

TEST(FileBytes, GivesAllBytesOrNone) {
  const TemporaryFolder folder;
  FileBytes file(folder.MakeFile("a.ani", "0123456789"));
  std::array<std::byte, 3> bytes{};
  EXPECT_FALSE(file.Read(8, bytes));
  EXPECT_FALSE(file.Read(1ULL << 40U, bytes));
}

TEST(FileBytes, TellsARewrittenFileByItsTime) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.ani", "0123456789");
  FileBytes before(path);
  const FileStamp stamp = before.Stamp();
  EXPECT_EQ(FileBytes(path).Stamp(), stamp);
  const FileHandle file(
      CreateFileW(ToWide(path).c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
  FILETIME later{static_cast<DWORD>(stamp.written), static_cast<DWORD>(stamp.written >> 32U) + 1};
  ASSERT_NE(SetFileTime(file.get(), nullptr, nullptr, &later), 0);
  EXPECT_NE(FileBytes(path).Stamp(), stamp);
  EXPECT_EQ(FileBytes(path).Stamp().size, stamp.size);
}

TEST(FileBytes, HasNoBytesWhereNoFileIs) {
  const TemporaryFolder folder;
  std::array<std::byte, 1> bytes{};
  for (const std::string& path : {folder.In("none.ani"), folder.Path(), std::string()}) {
    FileBytes file(path);
    EXPECT_EQ(file.Stamp().size, 0U) << path;
    EXPECT_FALSE(file.Read(0, bytes)) << path;
  }
}

}  // namespace
}  // namespace tarvik
