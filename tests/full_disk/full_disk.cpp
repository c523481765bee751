// Saves to a full disk.

#include <gmock/gmock.h>
#include <windows.h>

#include <string>

#include "driver/SeenFiles.h"
#include "end_to_end/SavingTest.h"
#include "full_disk/Disk.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FullDisk : public Saving {
 protected:
  void SetUp() override {
    Fill();
    FindPictures();
  }
  void TearDown() override {
    Saving::TearDown();
    Empty();
    for (; fillers_ > 0; --fillers_) DeleteFileW(FillerPath(fillers_).c_str());
  }

  // Deletes the saved files and frees room for that many files, each of at most one block of the disk.
  void LeaveRoomFor(int files) {
    Empty();
    Fill();
    for (; files > 0; --files) DeleteFileW(FillerPath(fillers_--).c_str());
  }
  Names SavedOnDisk() const {
    Names names = NamesIn("R:");
    std::erase_if(names, [](const std::string& name) { return name.starts_with("full ") || name.starts_with('.'); });
    return names;
  }

 private:
  static constexpr std::size_t block = 4096;

  std::wstring FillerPath(int number) const { return ToWide(path_ + "\\full " + std::to_string(number)); }
  // Whether another block could be allocated.
  bool FillBlock() {
    const FileHandle file(CreateFileW(FillerPath(fillers_ + 1).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    const std::string bytes(block, 'x');
    DWORD written = 0;
    return WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != 0 &&
           written == bytes.size();
  }
  void Fill() {
    while (FillBlock()) ++fillers_;
    ASSERT_EQ(GetLastError(), static_cast<DWORD>(ERROR_DISK_FULL));
    DeleteFileW(FillerPath(fillers_ + 1).c_str());
  }
  void Empty() const {
    for (const std::string& name : SavedOnDisk()) DeleteFileW(ToWide("R:\\" + name).c_str());
  }

  const std::string path_ = MountedDisk("TARVIK_FULL_DISK");
  const ExtraDrive drive_{path_, "full"};
  int fillers_ = 0;
};

TEST_F(FullDisk, WhatDoesNotFitIsReportedFileByFile) {
  ExpectEachFileReportedOnDriveR();
}

TEST_F(FullDisk, ABatchSavesWhatFits) {
  const auto expectFirstTwo = [this](const char* name, const char* ending, const auto& pixelsOf) {
    auto files = SeeFiles("R:");
    for (const int entry : {0, 1}) {
      const std::string file = name + std::to_string(entry + 1) + ending;
      EXPECT_EQ(files[file].pixels, pixelsOf(entry)) << file;
    }
  };
  LeaveRoomFor(2);
  ChooseDriveR(FrmFindIcon_mnuSaveAll);
  EXPECT_THAT(ReadMessages(3),
              ElementsAre("Unable to save the file R:\\Icon 3.ico", "Unable to save the file R:\\Icon 4.ico",
                          "Unable to save the file R:\\Icon 5.ico"));
  ExpectAsFound();
  expectFirstTwo("Icon ", ".ico", IconPixels);
  LeaveRoomFor(2);
  ChooseDriveR(FrmFindIcon_mnuSaveAll3);
  EXPECT_THAT(ReadMessages(3), Each(cursorFailed));
  ExpectAsFound();
  expectFirstTwo("Curor ", ".cur", IconPixels);
  LeaveRoomFor(2);
  ChooseDriveR(FrmFindIcon_mnuSaveAll2);
  EXPECT_THAT(ReadMessages(3), Each(imageFailed));
  ExpectAsFound();
  expectFirstTwo("Images ", ".bmp", BitmapPixels);
  LeaveRoomFor(2);
  ChooseDriveR(FrmFindIcon_mnuSaveAll2, Gif);
  AcceptGifOptions();
  EXPECT_THAT(ReadMessages(3), Each(imageFailed));
  ExpectAsFound();
  expectFirstTwo("Images ", ".gif", ComposedPixels);
}

TEST_F(FullDisk, OneIconIsSavedOnceThereIsRoomAgain) {
  SaveAs(FrmFindIcon_mnuSaveAs, "R:\\a.ico");
  EXPECT_THAT(ReadMessages(1), ElementsAre("Unable to save the file R:\\a.ico"));
  ExpectAsFound();
  LeaveRoomFor(1);
  EXPECT_THAT(SavedOnDisk(), IsEmpty());
  SaveAs(FrmFindIcon_mnuSaveAs, "R:\\a.ico");
  ExpectAsFound();
  EXPECT_THAT(SavedOnDisk(), ElementsAre("a.ico"));
  EXPECT_EQ(SeeFiles("R:")["a.ico"].pixels, IconPixels(0));
}

}  // namespace
}  // namespace tarvik::end_to_end
