#include "platform/DiskTarget.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "platform/Handles.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

using testing::TemporaryFolder;

DWORD Attributes(const std::string& path) {
  return GetFileAttributesW(ToWide(path).c_str());
}

TEST(DiskTarget, DeletesAReadOnlyFile) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.jpg");
  testing::AddAttributes(path, FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
  EXPECT_TRUE(DiskTarget().DeleteExistingTarget(path));
  EXPECT_EQ(Attributes(path), INVALID_FILE_ATTRIBUTES);
}

TEST(DiskTarget, IsContentWhereThereIsNoFile) {
  const TemporaryFolder folder;
  EXPECT_TRUE(DiskTarget().DeleteExistingTarget(folder.In("a.jpg")));
}

TEST(DiskTarget, LeavesAFolderAlone) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFolder("a.jpg");
  EXPECT_FALSE(DiskTarget().DeleteExistingTarget(path));
  EXPECT_NE(Attributes(path), INVALID_FILE_ATTRIBUTES);
}

TEST(DiskTarget, KeepsTheAttributesOfAFileThatItCannotDelete) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.jpg");
  testing::AddAttributes(path, FILE_ATTRIBUTE_READONLY);
  const FileHandle holder(CreateFileW(ToWide(path).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(holder);
  EXPECT_FALSE(DiskTarget().DeleteExistingTarget(path));
  EXPECT_NE(Attributes(path) & FILE_ATTRIBUTE_READONLY, 0U);
}

TEST(FileLength, CountsBytes) {
  const TemporaryFolder folder;
  EXPECT_EQ(FileLength(folder.MakeFile("a", std::string(1078, 'x'))), 1078U);
  EXPECT_EQ(FileLength(folder.In("missing")), 0U);
}

}  // namespace
}  // namespace tarvik
