#include "platform/DiskFile.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FolderPath.h"
#include "platform/Folders.h"
#include "platform/Paths.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

using testing::AddAttributes;
using testing::ReadAll;
using testing::TemporaryFolder;

std::span<const std::byte> BytesOf(std::string_view text) {
  return std::as_bytes(std::span(text));
}

bool WriteWhole(const std::string& path, std::string_view text) {
  DiskFile file;
  return file.Open(path) && file.Write(BytesOf(text)) && file.Close();
}

TEST(DiskFile, WritesAllItIsGivenInOrder) {
  const TemporaryFolder folder;
  const std::string path = folder.In("图标.ico");
  DiskFile file;
  ASSERT_TRUE(file.Open(path));
  std::string expected;
  for (int i = 0; i < 50000; ++i) {
    const std::string part = std::to_string(i) + ' ';
    ASSERT_TRUE(file.Write(BytesOf(part)));
    expected += part;
  }
  const std::string large(200000, 'L');
  ASSERT_TRUE(file.Write(BytesOf(large)));
  ASSERT_TRUE(file.Write(BytesOf("end")));
  ASSERT_TRUE(file.Close());
  EXPECT_EQ(ReadAll(path), expected + large + "end");
}

TEST(DiskFile, KeepsNoByteOfALongerFileBefore) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.ico", "a long file that was here");
  EXPECT_TRUE(WriteWhole(path, "short"));
  EXPECT_EQ(ReadAll(path), "short");
  EXPECT_EQ(Folders().Files(folder.Path(), "*.*"), std::vector<std::string>{"a.ico"}) << "and leaves nothing beside it";
}

TEST(DiskFile, ReplacesAHiddenFile) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.ico", "old");
  AddAttributes(path, FILE_ATTRIBUTE_HIDDEN);
  EXPECT_TRUE(WriteWhole(path, "new"));
  EXPECT_EQ(ReadAll(path), "new");
}

TEST(DiskFile, ReplacesALinkAndNotWhatItStandsFor) {
  TemporaryFolder folder;
  const std::string target = folder.MakeFile("target.ico", "target");
  const std::string link = folder.MakeLink("link.ico", target);
  EXPECT_TRUE(WriteWhole(link, "new"));
  EXPECT_EQ(ReadAll(link), "new");
  EXPECT_EQ(ReadAll(target), "target");
}

TEST(DiskFile, RefusesAReadOnlyFile) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.ico", "old");
  AddAttributes(path, FILE_ATTRIBUTE_READONLY);
  EXPECT_FALSE(WriteWhole(path, "new"));
  EXPECT_EQ(ReadAll(path), "old");
}

TEST(DiskFile, RefusesWhatIsNoPlaceForAFile) {
  const TemporaryFolder folder;
  folder.MakeFolder("folder.ico");
  folder.MakeFile(R"(folder.ico\inside)");
  for (const std::string& path : {folder.In("folder.ico"), folder.In(R"(none\a.ico)"), folder.In("a?.ico"),
                                  std::string(), std::string("NUL"), std::string(R"(Q:\a.ico)")}) {
    EXPECT_FALSE(WriteWhole(path, "new")) << path;
  }
  EXPECT_EQ(ReadAll(folder.In(R"(folder.ico\inside)")), "x");
}

TEST(DiskFile, RefusesAFileThatAnotherHoldsOpen) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.ico", "old");
  const FileHandle held(
      CreateFileW(ToWide(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(static_cast<bool>(held));
  EXPECT_FALSE(WriteWhole(path, "new"));
  EXPECT_EQ(ReadAll(path), "old");
  EXPECT_EQ(Folders().Files(folder.Path(), "*.*"), std::vector<std::string>{"a.ico"}) << "and leaves nothing beside it";
}

TEST(DiskFile, WritesAnewAFileThatAnotherHoldsOpenAndLetsWrite) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.ico", "a long file that was here");
  const FileHandle held(CreateFileW(ToWide(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(static_cast<bool>(held));
  EXPECT_TRUE(WriteWhole(path, "new"));
  EXPECT_EQ(ReadAll(path), "new");
  EXPECT_EQ(Folders().Files(folder.Path(), "*.*"), std::vector<std::string>{"a.ico"}) << "and leaves nothing beside it";
}

TEST(DiskFile, WritesToAPathOfAnyLength) {
  const TemporaryFolder folder;
  std::string name;
  while (JoinPath(folder.Path(), name).size() < 300) {
    name = JoinPath(name, std::string(60, 'p'));
    folder.MakeFolder(name);
  }
  const std::string path = folder.In(JoinPath(name, "a.ico"));
  EXPECT_TRUE(WriteWhole(path, "deep"));
  EXPECT_EQ(ReadAll(path), "deep");
}

TEST(DiskFile, SaysNoWhereNothingIsOpen) {
  DiskFile file;
  EXPECT_FALSE(file.Write(BytesOf("x")));
  EXPECT_FALSE(file.Close());
  const TemporaryFolder folder;
  ASSERT_TRUE(file.Open(folder.In("a.ico")));
  EXPECT_TRUE(file.Close());
  EXPECT_FALSE(file.Close());
}

TEST(DiskFile, LetsNobodyReadAHalfWrittenFile) {
  const TemporaryFolder folder;
  DiskFile file;
  ASSERT_TRUE(file.Open(folder.In("a.ico")));
  ASSERT_TRUE(file.Write(BytesOf("x")));
  EXPECT_EQ(CreateFileW(ToWide(folder.In("a.ico")).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                        OPEN_EXISTING, 0, nullptr),
            INVALID_HANDLE_VALUE);
  EXPECT_TRUE(file.Close());
}

}  // namespace
}  // namespace tarvik
