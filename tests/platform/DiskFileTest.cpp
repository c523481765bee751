#include "platform/DiskFile.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/FolderPath.h"
#include "platform/Paths.h"
#include "platform/SaveTargets.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"
#include "search/icons/Folders.h"

namespace tarvik {
namespace {

using support::AddAttributes;
using support::ReadAll;
using support::TemporaryFolder;

std::span<const std::byte> BytesOf(std::string_view text) {
  return std::as_bytes(std::span(text));
}

bool WriteWhole(const std::string& path, std::string_view text, ReadOnlyFile readOnly = ReadOnlyFile::Refused) {
  DiskFile file;
  return file.Open(path, readOnly) && file.Write(BytesOf(text)) && file.Close();
}

TEST(DiskFile, WritesAllItIsGivenInOrder) {
  const TemporaryFolder folder;
  const std::string path = folder.In("图标.ico");
  DiskFile file;
  ASSERT_TRUE(file.Open(path, ReadOnlyFile::Refused));
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
  EXPECT_EQ(Folders().Files(folder.Path(), "*.*"), std::vector<std::string>{"a.ico"}) << "and leaves no other file";
}

TEST(DiskFile, ReplacesAHiddenFile) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.ico", "old");
  AddAttributes(path, FILE_ATTRIBUTE_HIDDEN);
  EXPECT_TRUE(WriteWhole(path, "new"));
  EXPECT_EQ(ReadAll(path), "new");
}

// The same for all formats: a file of either kind replaces anything that can be at its path, or is refused, and nothing
// else is changed.
TEST(DiskFile, ReplacesTheTargetItselfOrLeavesEverythingAsItIs) {
  for (const ReadOnlyFile readOnly : {ReadOnlyFile::Refused, ReadOnlyFile::Replaced}) {
    SCOPED_TRACE(readOnly == ReadOnlyFile::Replaced ? "read-only files are replaced" : "read-only files are refused");
    const TemporaryFolder folder;
    support::SaveTargets targets(folder.MakeFolder("targets"), folder.MakeFolder("elsewhere"),
                                 [](int number) { return std::to_string(number) + ".ico"; });
    for (int number = 1; number <= support::SaveTargets::Count(); ++number) {
      EXPECT_EQ(WriteWhole(targets.Path(number), "new", readOnly), support::SaveTargets::TakesAFile(number, readOnly))
          << support::SaveTargets::What(number);
    }
    targets.ExpectSaved("new", readOnly);
  }
}

TEST(DiskFile, LeavesAFileThatAnotherCopyOfTheProgramIsWriting) {
  const TemporaryFolder folder;
  const std::string path = folder.In("a.jpg");
  DiskFile first;
  ASSERT_TRUE(first.Open(path, ReadOnlyFile::Replaced));
  ASSERT_TRUE(first.Write(BytesOf("first")));
  EXPECT_FALSE(WriteWhole(path, "second", ReadOnlyFile::Replaced));
  EXPECT_TRUE(first.Close());
  EXPECT_EQ(ReadAll(path), "first");
  EXPECT_EQ(Folders().Files(folder.Path(), "*.*"), std::vector<std::string>{"a.jpg"}) << "and leaves no other file";
}

// Both must share a file that a third program has open; their bytes once ended up in one file.
TEST(DiskFile, LeavesAFileThatAnotherCopyIsWritingInPlace) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.ico", std::string(100, 'f'));
  const FileHandle third(CreateFileW(ToWide(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                     OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(third);
  DiskFile first;
  ASSERT_TRUE(first.Open(path, ReadOnlyFile::Refused));
  EXPECT_FALSE(WriteWhole(path, "a longer file", ReadOnlyFile::Refused));
  ASSERT_TRUE(first.Write(BytesOf("first")));
  EXPECT_TRUE(first.Close());
  EXPECT_EQ(ReadAll(path), "first");
  EXPECT_TRUE(WriteWhole(path, "second"));
  EXPECT_EQ(ReadAll(path), "second");
}

TEST(DiskFile, LeavesWhatWasWrittenOfAFileThatIsNotFinished) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.jpg", "former");
  {
    DiskFile file;
    ASSERT_TRUE(file.Open(path, ReadOnlyFile::Replaced));
    ASSERT_TRUE(file.Write(BytesOf(std::string(100000, 'n'))));
  }
  EXPECT_EQ(ReadAll(path), std::string(100000, 'n'));
}

TEST(DiskFile, RefusesWhatIsNoPlaceForAFile) {
  const TemporaryFolder folder;
  folder.MakeFolder("folder.ico");
  folder.MakeFile(R"(folder.ico\inside)");
  for (const std::string& path :
       {folder.In("folder.ico"), folder.In(R"(none\a.ico)"), folder.In("a?.ico"), std::string(), std::string("NUL"),
        std::string("nul.jpg"), std::string("CON"), std::string("COM9"), std::string("LPT9.gif"), folder.In("NUL"),
        std::string(R"(\\.\NUL)"), std::string(R"(Q:\a.ico)")}) {
    for (const ReadOnlyFile readOnly : {ReadOnlyFile::Refused, ReadOnlyFile::Replaced})
      EXPECT_FALSE(WriteWhole(path, "new", readOnly)) << path;
  }
  EXPECT_EQ(ReadAll(folder.In(R"(folder.ico\inside)")), "x");
  EXPECT_TRUE(Folders().Files(folder.Path(), "*.*").empty());
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
  ASSERT_TRUE(file.Open(folder.In("a.ico"), ReadOnlyFile::Refused));
  EXPECT_TRUE(file.Close());
  EXPECT_FALSE(file.Close());
}

TEST(DiskFile, LetsNobodyReadAHalfWrittenFile) {
  const TemporaryFolder folder;
  DiskFile file;
  ASSERT_TRUE(file.Open(folder.In("a.ico"), ReadOnlyFile::Refused));
  ASSERT_TRUE(file.Write(BytesOf("x")));
  EXPECT_EQ(CreateFileW(ToWide(folder.In("a.ico")).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                        OPEN_EXISTING, 0, nullptr),
            INVALID_HANDLE_VALUE);
  EXPECT_TRUE(file.Close());
}

TEST(DiskFile, ReplacesAFileOfARelativeName) {
  const TemporaryFolder folder;
  folder.MakeFile("a.ico", "former");
  std::wstring former(MAX_PATH, L'\0');
  former.resize(GetCurrentDirectoryW(MAX_PATH, former.data()));
  SetCurrentDirectoryW(ToWide(folder.Path()).c_str());
  EXPECT_TRUE(WriteWhole("a.ico", "new"));
  SetCurrentDirectoryW(former.c_str());
  EXPECT_EQ(ReadAll(folder.In("a.ico")), "new");
}

TEST(FileLength, CountsBytes) {
  const TemporaryFolder folder;
  EXPECT_EQ(FileLength(folder.MakeFile("a", std::string(1078, 'x'))), 1078U);
  EXPECT_EQ(FileLength(folder.In("missing")), 0U);
}

}  // namespace
}  // namespace tarvik
