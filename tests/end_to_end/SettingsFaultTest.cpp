// Settings files that cannot be read or written as usual.

#include <windows.h>

#include <gmock/gmock.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>

#include "base/FolderPath.h"
#include "base/NonCopyable.h"
#include "driver/Costs.h"
#include "driver/UnixProgram.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/Handles.h"
#include "platform/IconFiles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

namespace fs = std::filesystem;

using support::IconFileOf;

constexpr Color red = 0x0000FF;

// A pipe that another program holds open at both ends, without ever writing to it or reading from it.
class HeldPipe : NonCopyable {
 public:
  explicit HeldPipe(const std::string& unixPath) {
    const UnixAnswer answer = RunUnix("sleep 600 <>" + unixPath + " >/dev/null 2>&1 & echo $!");
    EXPECT_EQ(answer.exitCode, 0);
    process_ = answer.output;
  }
  ~HeldPipe() { EXPECT_EQ(RunUnix("kill " + process_).exitCode, 0); }

 private:
  std::string process_;
};

class SettingsFaults : public EndToEnd {
 protected:
  static void Run(const std::string& command) {
    const UnixAnswer answer = RunUnix(command);
    EXPECT_EQ(answer.exitCode, 0) << command << ": " << answer.output;
  }
  void StartWithDefaults() {
    program_.Start();
    EXPECT_FALSE(program_.FindBox());
    EXPECT_FALSE(program_.Item(FrmFindIcon_chkSubDir).IsChecked());
    EXPECT_THAT(FolderNames(), ::testing::Contains(FolderName(home_.Path())));
  }
  // Starts with the sub-folders ticked, searches, and ends with them not ticked.
  void ChangeOneAndClose() {
    program_.Start();
    EXPECT_TRUE(program_.Item(FrmFindIcon_chkSubDir).IsChecked());
    program_.Item(FrmFindIcon_chkSubDir).Send(BM_CLICK);
    Find();
    EXPECT_EQ(List().RowCount(), 1);
    EXPECT_EQ(program_.Close(), 0U);
  }
  std::string File() const { return ToUtf8(program_.SettingsFile().wstring()); }

  const std::string unixFile_ = QuoteForUnix(program_.SettingsFile());
};

TEST_F(SettingsFaults, AFileThatAnotherProgramHoldsOpenIsReadAndStaysAsItIs) {
  tree_.MakeFile("a.ico", IconFileOf(red));
  WriteSetting("Folder", tree_.Path());
  WriteSetting("Subdir", "True");
  const std::string before = support::ReadAll(File());
  const FileHandle held(
      CreateFileW(program_.SettingsFile().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(held);
  ChangeOneAndClose();
  EXPECT_EQ(support::ReadAll(File()), before);
}

TEST_F(SettingsFaults, AReadOnlyFileIsReadAndStaysWhole) {
  tree_.MakeFile("a.ico", IconFileOf(red));
  WriteSetting("Folder", tree_.Path());
  WriteSetting("Subdir", "True");
  support::AddAttributes(File(), FILE_ATTRIBUTE_READONLY);
  // Under Wine the owner of the machine may write to such a file in spite of its attribute.
  const bool mayBeWritten = static_cast<bool>(
      FileHandle(CreateFileW(program_.SettingsFile().c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr)));
  ChangeOneAndClose();
  EXPECT_EQ(ReadSetting("Folder"), tree_.Path());
  EXPECT_EQ(ReadSetting("Subdir"), mayBeWritten ? "False" : "True");
}

TEST_F(SettingsFaults, AFolderInTheFilesPlaceMeansTheDefaultsAndStays) {
  ASSERT_NE(CreateDirectoryW(ToWide(File()).c_str(), nullptr), 0);
  StartWithDefaults();
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_TRUE(fs::is_directory(ToWide(File())));
}

TEST_F(SettingsFaults, AFileOfNonsenseMeansTheDefaultsAndIsMended) {
  std::ofstream(program_.SettingsFile(), std::ios::binary) << std::string(5000, '\xFF') << "[[=\n\0[FindIcon";
  StartWithDefaults();
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(ReadSetting("Subdir"), "False");
}

// Whether another program may read and write the file is up to the one that holds it.
TEST_F(SettingsFaults, AFileHeldOpenInAnyModeOfSharingIsReadIfItMayBeAndStaysWhole) {
  tree_.MakeFile("a.ico", IconFileOf(red));
  for (const DWORD sharing : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U}) {
    SCOPED_TRACE(sharing);
    WriteSetting("Folder", tree_.Path());
    WriteSetting("Subdir", "True");
    const std::string before = support::ReadAll(File());
    const bool mayBeRead = (sharing & FILE_SHARE_READ) != 0;
    const bool mayBeWritten = mayBeRead && (sharing & FILE_SHARE_WRITE) != 0;
    {
      const FileHandle held(
          CreateFileW(program_.SettingsFile().c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr));
      ASSERT_TRUE(held);
      program_.Start();
      EXPECT_EQ(program_.Item(FrmFindIcon_chkSubDir).IsChecked(), mayBeRead);
      EXPECT_EQ(FileNames().empty(), !mayBeRead);
      if (mayBeRead) program_.Item(FrmFindIcon_chkSubDir).Send(BM_CLICK);
      EXPECT_EQ(program_.Close(), 0U);
    }
    if (mayBeWritten) {
      EXPECT_EQ(ReadSetting("Folder"), tree_.Path());
      EXPECT_EQ(ReadSetting("Subdir"), "False");
    } else {
      EXPECT_EQ(support::ReadAll(File()), before);
    }
  }
}

// Reading from a pipe waits for a writer, and writing to one waits for a reader.
TEST_F(SettingsFaults, APipeInTheFilesPlaceMeansTheDefaultsAndStays) {
  Run("mkfifo " + unixFile_);
  StartWithDefaults();
  EXPECT_EQ(program_.Close(), 0U);
  Run("test -p " + unixFile_);

  const HeldPipe held(unixFile_);
  StartWithDefaults();
  EXPECT_EQ(program_.Close(), 0U);
  Run("test -p " + unixFile_);
}

TEST_F(SettingsFaults, ALinkToNothingMeansTheDefaultsAndIsFollowedAtTheEnd) {
  Run("ln -s elsewhere.dat " + unixFile_);
  StartWithDefaults();
  program_.Item(FrmFindIcon_chkSubDir).Send(BM_CLICK);
  EXPECT_EQ(program_.Close(), 0U);
  Run("test -h " + unixFile_);
  EXPECT_THAT(support::ReadAll(home_.In("elsewhere.dat")), ::testing::HasSubstr("Subdir=True"));
  DeleteFileW(ToWide(home_.In("elsewhere.dat")).c_str());
  Run("rm " + unixFile_);
}

TEST_F(SettingsFaults, ALinkToAFolderMeansTheDefaultsAndStays) {
  const std::string inside = tree_.MakeFile("inside");
  Run("ln -s " + QuoteForUnix(ToWide(tree_.Path())) + ' ' + unixFile_);
  StartWithDefaults();
  EXPECT_EQ(program_.Close(), 0U);
  Run("test -h " + unixFile_);
  EXPECT_EQ(support::ReadAll(inside), "x");
  Run("rm " + unixFile_);
}

// The system would read the whole file into memory for each setting.
TEST_F(SettingsFaults, AFileOfGigabytesMeansTheDefaultsIsHardlyReadAndStaysAsItIs) {
  constexpr std::uint64_t gigabyte = std::uint64_t{1} << 30U;
  constexpr std::uint64_t megabyte = std::uint64_t{1} << 20U;
  StartWithDefaults();
  const Costs usual = CostsOf(program_);
  EXPECT_EQ(program_.Close(), 0U);
  for (const std::uint64_t size : {3 * gigabyte, 5 * gigabyte}) {
    SCOPED_TRACE(size);
    fs::remove(program_.SettingsFile());
    const std::string start = "[FindIcon]\r\nSubdir=True\r\nFolder=" + tree_.Path() + "\r\n";
    home_.MakeSparseFile(FolderName(File()), std::as_bytes(std::span(start)), size);
    StartWithDefaults();
    const Costs costs = CostsOf(program_);
    EXPECT_LT(costs.bytesRead, usual.bytesRead + megabyte);
    EXPECT_LT(costs.peakMemory, usual.peakMemory + 16 * megabyte);
    EXPECT_EQ(program_.Close(), 0U);
    EXPECT_EQ(fs::file_size(program_.SettingsFile()), size);
  }
}

}  // namespace
}  // namespace tarvik::end_to_end
